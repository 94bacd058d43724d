#include "copredefinedtablelistmodel.h"

#include <kdQCore/kdLog>

#include <QDir>
#include <QSaveFile>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

/// The name of the table in a file, from its first element; null where it holds no table.
QString tableName(const QFileInfo& info)
{
    QFile file(info.filePath());
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QXmlStreamReader reader(&file);
    if (!reader.readNextStartElement() || reader.name() != kdDataTable::xmlStartElement())
        return {};
    const QString name = reader.attributes().value(QLatin1String("name")).toString();
    return name.isEmpty() ? info.completeBaseName() : name;
}

void warn(const QString& text)
{
    KD_LOG(kdLog::Notice, kdLog::General, text);
}

} // namespace

coPredefinedTableListModel::coPredefinedTableListModel(const QString& folder, QObject* parent)
    : QAbstractListModel(parent)
{
    setFolder(folder);
}

void coPredefinedTableListModel::setFolder(const QString& folder)
{
    m_folder = folder;
    reload();
}

void coPredefinedTableListModel::reload()
{
    beginResetModel();
    m_entries.clear();
    const QFileInfoList files = m_folder.isEmpty()
        ? QFileInfoList()
        : QDir(m_folder).entryInfoList({QStringLiteral("*.xml")}, QDir::Files, QDir::Name);
    for (const QFileInfo& file : files) {
        const QString name = tableName(file);
        if (name.isNull())
            warn(QStringLiteral("'%1' holds no table.").arg(file.filePath()));
        else if (rowOfTable(name) >= 0)
            warn(QStringLiteral("'%1' holds another table '%2'.").arg(file.filePath(), name));
        else
            m_entries.append({name, file.filePath()});
    }
    std::sort(m_entries.begin(), m_entries.end(),
              [](const Entry& a, const Entry& b) { return QString::localeAwareCompare(a.name, b.name) < 0; });
    endResetModel();
}

int coPredefinedTableListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_entries.size();
}

QVariant coPredefinedTableListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Entry& entry = m_entries.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case TableNameRole:
        return entry.name;
    case FilePathRole:
        return entry.filePath;
    case Qt::ToolTipRole:
        return QDir::toNativeSeparators(entry.filePath);
    default:
        return {};
    }
}

QHash<int, QByteArray> coPredefinedTableListModel::roleNames() const
{
    QHash<int, QByteArray> names = QAbstractListModel::roleNames();
    names.insert(TableNameRole, "tableName");
    names.insert(FilePathRole, "filePath");
    return names;
}

int coPredefinedTableListModel::rowOfTable(const QString& name) const
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [&name](const Entry& entry) { return entry.name == name; });
    return found != m_entries.end() ? int(found - m_entries.begin()) : -1;
}

QSharedPointer<const kdDataTable> coPredefinedTableListModel::table(const QString& name) const
{
    m_errorText.clear();
    const int row = rowOfTable(name);
    if (row < 0) {
        fail(tr("There is no predefined table '%1'.").arg(name));
        return {};
    }
    QFile file(m_entries.at(row).filePath);
    if (!file.open(QIODevice::ReadOnly)) {
        fail(tr("'%1' cannot be read: %2").arg(file.fileName(), file.errorString()));
        return {};
    }
    const auto table = QSharedPointer<kdDataTable>::create();
    QXmlStreamReader reader(&file);
    if (!table->readXML(reader)) {
        fail(tr("'%1' cannot be read: %2").arg(file.fileName(), reader.errorString()));
        return {};
    }
    return table;
}

bool coPredefinedTableListModel::copyToProject(const QString& name)
{
    m_errorText.clear();
    const int row = rowOfTable(name);
    if (row < 0)
        return fail(tr("There is no predefined table '%1'.").arg(name));
    const QDir project(m_projectFolder);
    const QString path = project.filePath(QFileInfo(m_entries.at(row).filePath).fileName());
    if (!m_projectFolder.isEmpty() && QFile::exists(path))
        return true;
    if (m_projectFolder.isEmpty() || !project.mkpath(QStringLiteral(".")))
        return fail(tr("The folder '%1' of the project cannot be made.").arg(m_projectFolder));
    QFile source(m_entries.at(row).filePath);
    if (!source.open(QIODevice::ReadOnly))
        return fail(tr("'%1' cannot be read: %2").arg(source.fileName(), source.errorString()));
    QSaveFile copy(path);
    const bool isWritten = copy.open(QIODevice::WriteOnly) && copy.write(source.readAll()) == source.size();
    if (!isWritten || !copy.commit())
        return fail(tr("'%1' cannot be written: %2").arg(path, copy.errorString()));
    return true;
}

bool coPredefinedTableListModel::fail(const QString& text) const
{
    m_errorText = text;
    warn(text);
    return false;
}
