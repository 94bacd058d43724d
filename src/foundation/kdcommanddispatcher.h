#pragma once

#include "kdcommand.h"
#include "kdqlanguage.h"

#include <kdqcore_export.h>

#include <QList>
#include <QObject>
#include <QSharedPointer>
#include <QStringList>

#include <memory>

class QTranslator;

/// Runs text commands and remembers them for undo and redo: the way in for typed lines, scripts and other
/// processes.
///
/// \code
/// kdCommandDispatcher::createInstance();
/// kdCommandDispatcher& dispatcher = kdCommandDispatcher::I();
/// dispatcher.registerCommand(createRename);
/// dispatcher.startReportingTo(console);
/// dispatcher.execute(QStringLiteral("language de; rename flow curve"));
/// dispatcher.slotUndo();
/// kdCommandDispatcher::removeInstance();
/// \endcode
///
/// A command line is a name, white space and the parameters as they stand. Semicolons part commands; the
/// first failure ends the line. What a running command reports reaches the receivers that the dispatcher had
/// when it started. Commands may themselves execute commands, and may remove the dispatcher.
///
/// Two commands are there from the start: "list" (its result lists the registered commands with their help)
/// and "language" followed by a code such as de or en, which can be undone.
///
/// Not thread-safe; lives in the main thread. Shares the ownership of the commands in its two lists.
class KDQCORE_EXPORT kdCommandDispatcher : public QObject, public kdReporterInterface {
    Q_OBJECT

public:
    using Factory = QSharedPointer<kdCommand> (*)(const QString& parameters);

    /// With an instance it only logs "kdCommandDispatcher creation failed!".
    static void createInstance();
    /// Without an instance it only logs "kdCommandDispatcher remove failed!".
    static void removeInstance();
    static bool created();
    /// Without an instance it logs that and returns a stand-in that knows no command.
    static kdCommandDispatcher& I();

    /// False for a null pointer and for a factory that is registered already. Where two factories make
    /// commands of one name, the earlier one wins.
    bool registerCommand(Factory factory);
    /// Registers "list" and "language"; createInstance does so.
    void registerInternalCommands();
    /// Null where no factory makes a command of that name.
    QSharedPointer<kdCommand> getCommand(const QString& name, const QString& parameters);
    /// One of each name, sorted by name.
    QList<QSharedPointer<kdCommand>> commands() const;

    bool undoAvailable() const;
    bool redoAvailable() const;
    kdQLanguage::KDLANGUAGE language() const;

    /// Executes a line of commands. An empty line succeeds; an unknown name is reported and fails.
    bool execute(const QString& line);
    /// Executes a command and puts it on the undo list. Null succeeds. The redo list stays as it is.
    bool execute(QSharedPointer<kdCommand> command);
    /// Takes a command back and puts it on the redo list.
    bool undo(QSharedPointer<kdCommand> command);

    /// Loads the commands' texts from the file "%commands_<code>.qm" in the folder "translations" beside the
    /// executable or, failing that, in share/kdQCore/translations beside its folder or of the tree that the
    /// shared library lies in, wherever that has been moved. False, nothing changed, where there is none;
    /// English needs none.
    bool setLanguage(const kdQLanguage::KDLANGUAGE& language);

    static QSharedPointer<kdCommand> createComList(const QString& parameters);
    static QSharedPointer<kdCommand> createComLanguage(const QString& parameters);

public Q_SLOTS:
    /// Takes the last command back, which stays on the undo list where that fails or is not allowed.
    bool slotUndo();
    /// Executes the command undone last once more. One that fails now is dropped from the redo list.
    bool slotRedo();
    /// Asks the command being executed to stop.
    bool slotStop();

Q_SIGNALS:
    void signalCommandExecuted(QSharedPointer<kdCommand> command);
    void signalCommandReverted(QSharedPointer<kdCommand> command);
    void signalUndoEnabled(bool enabled);
    /// Comes with an undo only. A redo is told by signalCommandExecuted, at which redoAvailable() is up to
    /// date.
    void signalRedoEnabled(bool enabled);

private:
    kdCommandDispatcher();
    ~kdCommandDispatcher() override;

    class ReporterLink;

    bool executeSingle(const QString& line);

    static kdCommandDispatcher* m_Instance;

    QList<Factory> m_factories;
    QList<QSharedPointer<kdCommand>> m_undoList;
    QList<QSharedPointer<kdCommand>> m_redoList;
    kdCommand* m_currentCommand = nullptr;
    std::unique_ptr<QTranslator> m_translator; ///< installed; null while the texts of the sources are shown
    kdQLanguage::KDLANGUAGE m_language = kdQLanguage::English;
};
