#include "document.h"

#include "tableexport.h"
#include "tablefigure.h"

#include <QFileInfo>

namespace {

QDateTime timeOf(const QString& path)
{
    return QFileInfo(path).lastModified();
}

} // namespace

Document::Document(const QString& path)
    : m_state(newState()), m_savedState(m_state), m_path(path), m_fileTime(timeOf(path))
{
    static int lastNumber = 0;
    m_number = ++lastNumber;
}

Document::~Document() = default;

QString Document::fileName() const
{
    return QFileInfo(m_path).fileName();
}

QString Document::sheetName(int index) const
{
    const TableModel* const model = sheet(index);
    return model == nullptr || model->table().name().isEmpty() ? QFileInfo(m_path).completeBaseName()
                                                               : model->table().name();
}

Outline Document::outline() const
{
    return Outline();
}

bool Document::makeFigure(int index, const QVector<int>& columns, Figure& figure, QString& error) const
{
    nTableFigure::Source source;
    source.table = QSharedPointer<const kdDataTable>::create(sheet(index)->table());
    source.y = columns;
    if (!nTableFigure::make({source}, nTableFigure::Options(), figure, error))
        return false;
    figure.title = sheetName(index);
    error = figure.fault();
    return error.isEmpty();
}

bool Document::save(const QString& path, const kdReporterInterface& reporter, QString& error)
{
    qint64 size = 0;
    for (const QSharedPointer<TableModel>& model : qAsConst(m_sheets))
        size += TableExport::expectedSize(model->table());
    const auto content = [this, &path](QIODevice& device) { return write(device, path); };
    if (!TableExport::writeFile(path, reporter, size, content, error))
        return false;
    m_path = path;
    m_fileTime = timeOf(path);
    m_savedState = m_state;
    Q_EMIT signalTitleChanged();
    return true;
}

bool Document::isChangedOnDisk() const
{
    return QFileInfo::exists(m_path) && timeOf(m_path) != m_fileTime;
}

void Document::setState(int state)
{
    const bool wasModified = isModified();
    m_state = state;
    if (wasModified != isModified())
        Q_EMIT signalTitleChanged();
}

int Document::newState()
{
    static int lastState = 0;
    return ++lastState;
}

TableModel& Document::addSheet(kdDataTable table, TableModel::Access access)
{
    m_sheets.append(QSharedPointer<TableModel>::create(std::move(table), access));
    return *m_sheets.constLast();
}
