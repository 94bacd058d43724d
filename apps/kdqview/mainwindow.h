#pragma once

#include "commandhistory.h"
#include "language.h"
#include "windowreporter.h"

#include <kdQCore/kdReporterInterface>

#include <QMainWindow>

#include <functional>

class Document;
class DocumentTree;
class LogDock;
class OutlineView;
class ProgressLine;
class SheetView;

QT_BEGIN_NAMESPACE
class QActionGroup;
class QLabel;
class QStackedWidget;
QT_END_NAMESPACE

/// The window: documents at the left, the sheet in the middle, messages at the bottom.
///
/// It shows what the workspace holds and turns actions into commands of the dispatcher; it changes no
/// document itself. Saving and exporting change none either and are plain functions. Its parts lie in
/// mainwindow_actions.cpp (menus, texts, what is enabled) and mainwindow_files.cpp (opening, saving,
/// exporting).
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    /// \a language outlives the window.
    explicit MainWindow(Language& language);
    ~MainWindow() override;

    void openFiles(const QStringList& paths);

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    // mainwindow_actions.cpp
    QAction* newAction(const char* icon, const QKeySequence& shortcut, void (MainWindow::*slot)());
    void createActions();
    void createLanguageActions();
    void createMenus();
    void createToolBar();
    void retranslateUi();
    void retranslateFileTexts();
    void retranslateEditTexts();
    void updateActions();
    void updateHistory();
    void chooseLanguage(const QAction* action);
    void about();

    // mainwindow_files.cpp
    void open();
    void openFile(const QString& path);
    void fillRecentMenu();
    void save();
    void saveAs();
    bool saveDocument(Document& document, bool asksForName);
    void closeDocument();
    /// Asks about unsaved changes; false where the user wants to go on with the document.
    bool mayClose(Document& document);
    void exportTable();
    void exportCurve();
    QString askForFile(const QString& title, const QString& baseName, const QStringList& endings);
    static QString filterOf(const QString& ending);
    void writeFile(const QString& path, qint64 expectedSize,
                   const std::function<bool(QIODevice& device)>& content);

    void createDocks();
    void connectAll();
    void restoreSettings();
    void saveSettings() const;
    void showSheet(Document* document, int sheet);
    void showAfterRemoval(int formerIndex);
    void updateTitle();
    void setBusy(bool isBusy);
    void refuse(const QString& reason);

    Language& m_language;
    WindowReporter m_reporter;
    kdReporterInterface m_reports; ///< what the window itself has to tell
    CommandHistory m_history;
    SheetView* m_sheet;
    QStackedWidget* m_pages;
    QLabel* m_welcome;
    QLabel* m_summary; ///< of the current document, in the status bar
    DocumentTree* m_documents;
    OutlineView* m_outline;
    QDockWidget* m_documentsDock;
    QDockWidget* m_outlineDock;
    LogDock* m_log;
    QToolBar* m_toolBar = nullptr;
    QActionGroup* m_languages = nullptr;

    struct Menus {
        QMenu* file;
        QMenu* recent;
        QMenu* edit;
        QMenu* unit;
        QMenu* view;
        QMenu* language;
        QMenu* help;
    } m_menus{};
    struct Actions {
        QAction* open;
        QAction* save;
        QAction* saveAs;
        QAction* exportTable;
        QAction* exportCurve;
        QAction* close;
        QAction* quit;
        QAction* undo;
        QAction* redo;
        QAction* copy;
        QAction* insertRow;
        QAction* appendRow;
        QAction* removeRows;
        QAction* about;
        QAction* aboutQt;
    } m_actions{};
};
