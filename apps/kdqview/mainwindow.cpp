#include "mainwindow.h"

#include "documenttree.h"
#include "logdock.h"
#include "outlineview.h"
#include "progressline.h"
#include "sheetview.h"
#include "workspace.h"

#include <kdQCore/kdCommandDispatcher>

#include <QCloseEvent>
#include <QDir>
#include <QDropEvent>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QSettings>
#include <QStackedWidget>
#include <QStatusBar>
#include <QToolBar>
#include <QUrl>

MainWindow::MainWindow(Language& language)
    : m_language(language), m_sheet(new SheetView), m_pages(new QStackedWidget), m_welcome(new QLabel),
      m_summary(new QLabel), m_documents(new DocumentTree), m_outline(new OutlineView),
      m_documentsDock(new QDockWidget), m_outlineDock(new QDockWidget), m_log(new LogDock(m_reporter))
{
    // What commands report while they run, and what the window itself tells, comes to one reporter.
    kdCommandDispatcher::I().startReportingTo(m_reporter);
    m_reports.startReportingTo(m_reporter);

    m_welcome->setAlignment(Qt::AlignCenter);
    m_pages->addWidget(m_welcome);
    m_pages->addWidget(m_sheet);
    setCentralWidget(m_pages);
    createDocks();
    createActions();
    createMenus();
    createToolBar();
    statusBar()->addWidget(m_summary);
    statusBar()->addPermanentWidget(new ProgressLine(m_reporter));
    setAcceptDrops(true);
    setUnifiedTitleAndToolBarOnMac(true);

    connectAll();
    retranslateUi();
    restoreSettings();
    showSheet(nullptr, 0);
}

MainWindow::~MainWindow() = default;

void MainWindow::createDocks()
{
    m_documentsDock->setObjectName(QStringLiteral("documentsDock"));
    m_documentsDock->setWidget(m_documents);
    m_outlineDock->setObjectName(QStringLiteral("outlineDock"));
    m_outlineDock->setWidget(m_outline);
    addDockWidget(Qt::LeftDockWidgetArea, m_documentsDock);
    addDockWidget(Qt::LeftDockWidgetArea, m_outlineDock);
    addDockWidget(Qt::BottomDockWidgetArea, m_log);
    resizeDocks({m_documentsDock}, {350}, Qt::Horizontal);
    resizeDocks({m_documentsDock, m_outlineDock}, {260, 300}, Qt::Vertical);
    resizeDocks({m_log}, {120}, Qt::Vertical);
}

void MainWindow::connectAll()
{
    const Workspace& workspace = Workspace::I();
    connect(&workspace, &Workspace::signalInserted, this, [this](Document* document) {
        connect(document, &Document::signalTitleChanged, this, &MainWindow::updateTitle,
                Qt::UniqueConnection);
        showSheet(document, 0);
    });
    connect(&workspace, &Workspace::signalRemoved, this,
            [this](Document*, int formerIndex) { showAfterRemoval(formerIndex); });
    connect(m_documents, &DocumentTree::signalChosen, this, &MainWindow::showSheet);
    connect(m_outline, &OutlineView::signalSheetChosen, this, &MainWindow::showSheet);
    connect(m_sheet, &SheetView::signalCurrentChanged, this, &MainWindow::updateActions);
    connect(m_sheet, &SheetView::signalRefused, this, &MainWindow::refuse);
    connect(&m_history, &CommandHistory::signalChanged, this, &MainWindow::updateHistory);
    connect(&m_reporter, &WindowReporter::signalBusyChanged, this, &MainWindow::setBusy);
}

void MainWindow::showSheet(Document* document, int sheet)
{
    m_pages->setCurrentIndex(document == nullptr ? 0 : 1);
    m_sheet->setSheet(document, sheet);
    m_documents->setCurrent(document, sheet);
    m_outline->setDocument(document);
    m_outlineDock->setVisible(document != nullptr && !document->outline().titles.isEmpty());
    if (document != nullptr)
        m_outlineDock->setWindowTitle(tr("Content of '%1'").arg(document->fileName()));
    updateTitle();
}

void MainWindow::showAfterRemoval(int formerIndex)
{
    const auto& documents = Workspace::I().documents();
    if (documents.isEmpty())
        showSheet(nullptr, 0);
    else
        showSheet(documents.at(qMin(formerIndex, documents.size() - 1)).data(), 0);
}

void MainWindow::updateTitle()
{
    const Document* const document = m_sheet->document();
    setWindowTitle(document == nullptr ? QStringLiteral("kdqview")
                                       : QStringLiteral("%1[*] - kdqview").arg(document->fileName()));
    setWindowModified(document != nullptr && document->isModified());
    m_summary->setText(document == nullptr
                           ? QString()
                           : QStringLiteral("%1: %2").arg(document->fileName(), document->summary()));
    m_summary->setToolTip(document == nullptr ? QString() : QDir::toNativeSeparators(document->path()));
    updateActions();
}

void MainWindow::setBusy(bool isBusy)
{
    for (QWidget* const part :
         {static_cast<QWidget*>(menuBar()), static_cast<QWidget*>(m_toolBar), static_cast<QWidget*>(m_pages),
          static_cast<QWidget*>(m_documentsDock), static_cast<QWidget*>(m_outlineDock)})
        part->setEnabled(!isBusy);
    setAcceptDrops(!isBusy);
}

void MainWindow::refuse(const QString& reason)
{
    m_reports.errorMessage(reason);
    statusBar()->showMessage(reason, 10000);
}

void MainWindow::restoreSettings()
{
    const QSettings settings;
    if (!restoreGeometry(settings.value(QStringLiteral("window/geometry")).toByteArray()))
        resize(1280, 800);
    restoreState(settings.value(QStringLiteral("window/state")).toByteArray());
}

void MainWindow::saveSettings() const
{
    QSettings settings;
    settings.setValue(QStringLiteral("window/geometry"), saveGeometry());
    settings.setValue(QStringLiteral("window/state"), saveState());
}

void MainWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QMainWindow::changeEvent(event);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (m_reporter.isBusy()) { // a command runs: it is asked to stop, and the window stays until it has
        kdCommandDispatcher::I().slotStop();
        event->ignore();
        return;
    }
    const auto documents = Workspace::I().documents();
    for (const auto& document : documents) {
        if (!mayClose(*document)) {
            event->ignore();
            return;
        }
    }
    saveSettings();
    event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event)
{
    QStringList paths;
    const QList<QUrl> urls = event->mimeData()->urls();
    for (const QUrl& url : urls)
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    event->acceptProposedAction();
    openFiles(paths);
}
