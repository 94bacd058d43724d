#include "chart.h"
#include "curveview.h"
#include "filecommands.h"
#include "mainwindow.h"
#include "sheetview.h"
#include "tableexport.h"

#include <kdQCore/kdCommandDispatcher>

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMap>
#include <QMenu>
#include <QMessageBox>
#include <QSettings>

namespace {

const QLatin1String recentKey("recentFiles");
constexpr int mostRecent = 8;
constexpr QSize pictureSize(900, 600);

void noteRecent(const QString& path)
{
    QSettings settings;
    QStringList recent = settings.value(recentKey).toStringList();
    recent.removeAll(path);
    recent.prepend(path);
    settings.setValue(recentKey, QStringList(recent.mid(0, mostRecent)));
}

/// Fit for a file's name on every system.
QString fileNameOf(const QString& text)
{
    QString name = text;
    for (QChar& c : name)
        if (!c.isLetterOrNumber() && c != QLatin1Char('-'))
            c = QLatin1Char('_');
    return name;
}

} // namespace

void MainWindow::openFiles(const QStringList& paths)
{
    for (const QString& path : paths)
        openFile(path);
}

void MainWindow::openFile(const QString& path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    const auto document = Workspace::I().find(absolute);
    if (!document.isNull()) {
        showSheet(document.data(), 0);
        return;
    }
    // As an object: in a line of text, semicolons would part commands.
    if (kdCommandDispatcher::I().execute(QSharedPointer<OpenCommand>::create(absolute)))
        noteRecent(absolute);
}

void MainWindow::open()
{
    openFiles(QFileDialog::getOpenFileNames(
        this, tr("Open"), QString(),
        QStringList{tr("Tables, heat treatments, decks (*.xml *.csv *.txt *.dat)"), tr("All files (*)")}.join(
            QLatin1String(";;"))));
}

void MainWindow::fillRecentMenu()
{
    m_menus.recent->clear();
    const QStringList recent = QSettings().value(recentKey).toStringList();
    for (const QString& path : recent)
        m_menus.recent->addAction(
            QDir::toNativeSeparators(path).replace(QLatin1Char('&'), QLatin1String("&&")), this,
            [this, path] { openFile(path); });
    if (recent.isEmpty())
        m_menus.recent->addAction(tr("No files yet"))->setEnabled(false);
}

void MainWindow::save()
{
    if (m_sheet->document() != nullptr)
        saveDocument(*m_sheet->document(), false);
}

void MainWindow::saveAs()
{
    if (m_sheet->document() != nullptr)
        saveDocument(*m_sheet->document(), true);
}

bool MainWindow::saveDocument(Document& document, bool asksForName)
{
    QString path = document.path();
    if (asksForName)
        path = askForFile(tr("Save"), QFileInfo(path).completeBaseName(), document.fileEndings());
    else if (document.isChangedOnDisk()
             && QMessageBox::question(this, tr("Save"),
                                      tr("Another program has changed '%1' in the meantime. Overwrite it?")
                                          .arg(document.fileName()))
                 != QMessageBox::Yes)
        return false;
    if (path.isEmpty())
        return false;
    QString error;
    const bool isSaved = document.save(path, m_reports, error);
    isSaved ? m_reports.message(tr("'%1' saved.").arg(document.fileName()), 1) : refuse(error);
    return isSaved;
}

void MainWindow::closeDocument()
{
    Document* const document = m_sheet->document();
    if (document != nullptr && mayClose(*document))
        kdCommandDispatcher::I().execute(QStringLiteral("close %1").arg(document->number()));
}

bool MainWindow::mayClose(Document& document)
{
    if (!document.isModified())
        return true;
    const auto answer = QMessageBox::warning(
        this, tr("Close"), tr("'%1' has changes that are not saved.").arg(document.fileName()),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && saveDocument(document, false));
}

QString MainWindow::filterOf(const QString& ending)
{
    const QMap<QString, QString> names{{QStringLiteral("xml"), tr("XML")},
                                       {QStringLiteral("txt"), tr("Text with all digits")},
                                       {QStringLiteral("csv"), tr("For spreadsheets")},
                                       {QStringLiteral("svg"), tr("Vector graphics")},
                                       {QStringLiteral("png"), tr("Picture")}};
    return QStringLiteral("%1 (*.%2)").arg(names.value(ending), ending);
}

/// The ending that was chosen is added where the name has none. Asks before it overwrites.
QString MainWindow::askForFile(const QString& title, const QString& baseName, const QStringList& endings)
{
    QFileDialog dialog(this, title, QFileInfo(m_sheet->document()->path()).path());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    QStringList filters;
    for (const QString& ending : endings)
        filters.append(filterOf(ending));
    dialog.setNameFilters(filters);
    dialog.setDefaultSuffix(endings.constFirst());
    connect(&dialog, &QFileDialog::filterSelected, &dialog,
            [&](const QString& filter) { dialog.setDefaultSuffix(endings.value(filters.indexOf(filter))); });
    dialog.selectFile(fileNameOf(baseName));
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

void MainWindow::exportTable()
{
    const Document& document = *m_sheet->document();
    const QString path =
        askForFile(tr("Export table"), document.sheetName(m_sheet->sheet()), TableExport::endings());
    if (path.isEmpty())
        return;
    const kdDataTable& table = document.sheet(m_sheet->sheet())->table();
    writeFile(path, TableExport::expectedSize(table), [&](QIODevice& device) {
        return TableExport::write(table, device, TableExport::formOf(path));
    });
}

void MainWindow::exportCurve()
{
    const QString path = askForFile(tr("Export curve"), m_sheet->curve().figure().title,
                                    {QStringLiteral("svg"), QStringLiteral("png")});
    if (path.isEmpty())
        return;
    const bool isPng = path.endsWith(QLatin1String(".png"), Qt::CaseInsensitive);
    QString error;
    const QByteArray picture = nChart::picture(m_sheet->curve().figure(), isPng ? nChart::Png : nChart::Svg,
                                               pictureSize, isPng ? 2.0 : 1.0, error);
    if (picture.isEmpty())
        refuse(error);
    else
        writeFile(path, picture.size(),
                  [&](QIODevice& device) { return device.write(picture) == picture.size(); });
}

void MainWindow::writeFile(const QString& path, qint64 expectedSize,
                           const std::function<bool(QIODevice& device)>& content)
{
    QString error;
    if (TableExport::writeFile(path, m_reports, expectedSize, content, error))
        m_reports.message(tr("'%1' written.").arg(QDir::toNativeSeparators(path)), 1);
    else
        refuse(error);
}
