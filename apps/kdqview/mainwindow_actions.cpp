#include "documenttree.h"
#include "logdock.h"
#include "mainwindow.h"
#include "sheetview.h"
#include "workspace.h"

#include <kdQCore/nCompanyInfo>

#include <QActionGroup>
#include <QApplication>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QToolBar>

QAction* MainWindow::newAction(const char* icon, const QKeySequence& shortcut, void (MainWindow::*slot)())
{
    auto* const action = new QAction(this);
    if (*icon != '\0')
        action->setIcon(QIcon(QStringLiteral(":/icons/%1.svg").arg(QLatin1String(icon))));
    action->setShortcut(shortcut);
    if (slot != nullptr)
        connect(action, &QAction::triggered, this, slot);
    return action;
}

void MainWindow::createActions()
{
    m_actions.open = newAction("open", QKeySequence::Open, &MainWindow::open);
    m_actions.save = newAction("save", QKeySequence::Save, &MainWindow::save);
    m_actions.saveAs = newAction("", QStringLiteral("Ctrl+Shift+S"), &MainWindow::saveAs);
    m_actions.exportTable = newAction("exporttable", QStringLiteral("Ctrl+E"), &MainWindow::exportTable);
    m_actions.exportCurve =
        newAction("exportcurve", QStringLiteral("Ctrl+Shift+E"), &MainWindow::exportCurve);
    m_actions.close = newAction("", QStringLiteral("Ctrl+W"), &MainWindow::closeDocument);
    m_actions.quit = newAction("", QStringLiteral("Ctrl+Q"), nullptr);
    m_actions.undo = newAction("undo", QKeySequence::Undo, nullptr);
    m_actions.redo = newAction("redo", QKeySequence::Redo, nullptr);
    m_actions.copy = newAction("", QKeySequence::Copy, nullptr);
    m_actions.insertRow = newAction("insertrow", QStringLiteral("Ctrl++"), nullptr);
    m_actions.appendRow = newAction("", QStringLiteral("Ctrl+Shift++"), nullptr);
    m_actions.removeRows = newAction("removerows", QStringLiteral("Ctrl+Del"), nullptr);
    m_actions.about = newAction("", QKeySequence(), &MainWindow::about);
    m_actions.aboutQt = newAction("", QKeySequence(), nullptr);
    connect(m_actions.quit, &QAction::triggered, this, &QWidget::close);
    connect(m_actions.undo, &QAction::triggered, &m_history, &CommandHistory::undo);
    connect(m_actions.redo, &QAction::triggered, &m_history, &CommandHistory::redo);
    connect(m_actions.copy, &QAction::triggered, m_sheet, &SheetView::copy);
    connect(m_actions.insertRow, &QAction::triggered, m_sheet, &SheetView::insertRow);
    connect(m_actions.appendRow, &QAction::triggered, m_sheet, &SheetView::appendRow);
    connect(m_actions.removeRows, &QAction::triggered, m_sheet, &SheetView::removeRows);
    connect(m_actions.aboutQt, &QAction::triggered, qApp, &QApplication::aboutQt);
    createLanguageActions();
}

/// A language bears its own name, whatever language the window speaks.
void MainWindow::createLanguageActions()
{
    m_languages = new QActionGroup(this);
    const auto languages = kdQLanguage::languages();
    for (const kdQLanguage::KDLANGUAGE language : languages) {
        QAction* const action = m_languages->addAction(kdQLanguage::nativeName(language));
        action->setObjectName(kdQLanguage::code(language));
        action->setCheckable(true);
        action->setChecked(language == Language::current());
        action->setData(language);
    }
    connect(m_languages, &QActionGroup::triggered, this, &MainWindow::chooseLanguage);
}

void MainWindow::createMenus()
{
    m_menus.file = menuBar()->addMenu(QString());
    m_menus.file->addAction(m_actions.open);
    m_menus.recent = m_menus.file->addMenu(QString());
    m_menus.file->addSeparator();
    m_menus.file->addActions({m_actions.save, m_actions.saveAs});
    m_menus.file->addSeparator();
    m_menus.file->addActions({m_actions.exportTable, m_actions.exportCurve});
    m_menus.file->addSeparator();
    m_menus.file->addActions({m_actions.close, m_actions.quit});

    m_menus.edit = menuBar()->addMenu(QString());
    m_menus.edit->addActions({m_actions.undo, m_actions.redo});
    m_menus.edit->addSeparator();
    m_menus.edit->addAction(m_actions.copy);
    m_menus.edit->addSeparator();
    m_menus.edit->addActions({m_actions.insertRow, m_actions.appendRow, m_actions.removeRows});
    m_menus.unit = m_menus.edit->addMenu(QString());

    m_menus.view = menuBar()->addMenu(QString());
    m_menus.view->addActions({m_documentsDock->toggleViewAction(), m_log->toggleViewAction()});
    m_menus.view->addSeparator();
    m_menus.language = m_menus.view->addMenu(QString());
    m_menus.language->addActions(m_languages->actions());

    m_menus.help = menuBar()->addMenu(QString());
    m_menus.help->addActions({m_actions.about, m_actions.aboutQt});

    connect(m_menus.recent, &QMenu::aboutToShow, this, &MainWindow::fillRecentMenu);
    connect(m_menus.unit, &QMenu::aboutToShow, this, [this] { m_sheet->fillUnitMenu(*m_menus.unit); });
}

void MainWindow::createToolBar()
{
    m_toolBar = addToolBar(QString());
    m_toolBar->setObjectName(QStringLiteral("toolBar"));
    m_toolBar->setMovable(false);
    m_toolBar->setIconSize(QSize(24, 24));
    m_toolBar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    m_toolBar->addActions({m_actions.open, m_actions.save});
    m_toolBar->addSeparator();
    m_toolBar->addActions({m_actions.undo, m_actions.redo});
    m_toolBar->addSeparator();
    m_toolBar->addActions({m_actions.insertRow, m_actions.removeRows});
    m_toolBar->addSeparator();
    m_toolBar->addActions({m_actions.exportTable, m_actions.exportCurve});
    m_menus.view->insertAction(m_log->toggleViewAction(), m_toolBar->toggleViewAction());
}

void MainWindow::retranslateUi()
{
    retranslateFileTexts();
    retranslateEditTexts();
    m_menus.view->setTitle(tr("&View"));
    m_menus.language->setTitle(tr("&Language"));
    m_menus.help->setTitle(tr("&Help"));
    m_actions.about->setText(tr("&About kdqview"));
    m_actions.aboutQt->setText(tr("About &Qt"));
    m_toolBar->setWindowTitle(tr("Tools"));
    m_documentsDock->setWindowTitle(tr("Documents"));
    const QString welcome = tr("<h2>Tables, heat treatments, decks</h2>"
                               "<p>Open a file (%1), or drop files here.</p>")
                                .arg(m_actions.open->shortcut().toString(QKeySequence::NativeText));
    m_welcome->setText(
        QStringLiteral("<div align='center'><img src=':/icons/kdqview.svg'>%1</div>").arg(welcome));
    const QList<QAction*> languages = m_languages->actions();
    for (QAction* const action : languages)
        action->setChecked(action->data().toInt() == Language::current());
    if (m_sheet->document() != nullptr)
        m_outlineDock->setWindowTitle(tr("Content of '%1'").arg(m_sheet->document()->fileName()));
    updateTitle();
    updateHistory();
}

void MainWindow::retranslateFileTexts()
{
    m_menus.file->setTitle(tr("&File"));
    m_menus.recent->setTitle(tr("Open &recent"));
    m_actions.open->setText(tr("&Open ..."));
    m_actions.open->setIconText(tr("Open"));
    m_actions.save->setText(tr("&Save"));
    m_actions.saveAs->setText(tr("Save &as ..."));
    m_actions.exportTable->setText(tr("Export &table ..."));
    m_actions.exportTable->setIconText(tr("Table"));
    m_actions.exportCurve->setText(tr("Export &curve ..."));
    m_actions.exportCurve->setIconText(tr("Curve"));
    m_actions.close->setText(tr("&Close"));
    m_actions.quit->setText(tr("&Quit"));
}

void MainWindow::retranslateEditTexts()
{
    m_menus.edit->setTitle(tr("&Edit"));
    m_menus.unit->setTitle(tr("&Unit of the column"));
    m_actions.copy->setText(tr("&Copy"));
    m_actions.insertRow->setText(tr("&Insert row"));
    m_actions.insertRow->setIconText(tr("Insert"));
    m_actions.appendRow->setText(tr("&Append row"));
    m_actions.removeRows->setText(tr("&Remove rows"));
    m_actions.removeRows->setIconText(tr("Remove"));
}

void MainWindow::updateActions()
{
    const Document* const document = m_sheet->document();
    const bool hasSheet = document != nullptr && document->sheet(m_sheet->sheet()) != nullptr;
    const bool canSave = document != nullptr && !document->fileEndings().isEmpty();
    const bool hasRow = hasSheet && m_sheet->currentRow() >= 0;
    m_actions.save->setEnabled(canSave && document->isModified());
    m_actions.saveAs->setEnabled(canSave);
    m_actions.close->setEnabled(document != nullptr);
    m_actions.exportTable->setEnabled(hasSheet);
    m_actions.exportCurve->setEnabled(hasSheet);
    m_actions.copy->setEnabled(hasRow);
    m_actions.insertRow->setEnabled(m_sheet->isEditable());
    m_actions.appendRow->setEnabled(m_sheet->isEditable());
    m_actions.removeRows->setEnabled(m_sheet->isEditable() && hasRow);
    m_menus.unit->setEnabled(m_sheet->isEditable());
}

void MainWindow::updateHistory()
{
    m_actions.undo->setEnabled(m_history.canUndo());
    m_actions.redo->setEnabled(m_history.canRedo());
    m_actions.undo->setText(m_history.canUndo() ? tr("&Undo: %1").arg(m_history.undoText()) : tr("&Undo"));
    m_actions.redo->setText(m_history.canRedo() ? tr("&Redo: %1").arg(m_history.redoText()) : tr("&Redo"));
    m_actions.undo->setIconText(tr("Undo"));
    m_actions.redo->setIconText(tr("Redo"));
}

void MainWindow::chooseLanguage(const QAction* action)
{
    if (!m_language.choose(static_cast<kdQLanguage::KDLANGUAGE>(action->data().toInt()))) {
        refuse(tr("The texts of the language '%1' are missing.").arg(action->text()));
        retranslateUi();
    }
}

void MainWindow::about()
{
    QMessageBox::about(this, tr("About kdqview"),
                       tr("<h3>kdqview %1</h3><p>Shows and edits tables, heat treatments and decks.</p>"
                          "<p>%2</p>")
                           .arg(QCoreApplication::applicationVersion(), nCompanyInfo::legalCopyrightText()));
}
