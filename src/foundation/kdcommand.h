#pragma once

#include "kdreporterinterface.h"

#include <kdqcore_export.h>

#include <QObject>
#include <QString>

/// One text command with its parameters, as the kdCommandDispatcher runs it.
///
/// \code
/// class Rename : public kdCommand {
/// public:
///     using kdCommand::kdCommand;
///     QString name() const override { return QStringLiteral("rename"); }
///     QString helpMessage() const override { return tr("Renames the table. Usage: rename <name>"); }
///     bool execute() override { m_former = table.name(); table.setName(parameter()); return true; }
///     bool allowUndo() override { return true; }
///     bool undo() override { table.setName(m_former); return true; }
/// private:
///     QString m_former;
/// };
/// QSharedPointer<kdCommand> createRename(const QString& p) { return QSharedPointer<Rename>::create(p); }
/// \endcode
///
/// Subclasses supply execute() and, where that makes sense, undo(); callers use the slots, which watch over
/// the status. A command that was undone is ready again, so it can be repeated. Errors are told through
/// errorMessage(); an exception counts as a failure and is told likewise.
///
/// Not thread-safe; lives in the main thread.
class KDQCORE_EXPORT kdCommand : public QObject, public kdReporterInterface {
    Q_OBJECT

public:
    enum Status {
        Ready = 0,
        Running = 1, ///< while it executes or is undone
        Executed = 2 ///< executed; can be undone where allowUndo() says so
    };
    Q_ENUM(Status)

    explicit kdCommand(const QString& parameter = QString(), QObject* parent = nullptr);
    ~kdCommand() override;

    /// The word that calls the command, without blanks. The base returns objectName().
    virtual QString name() const;
    /// What the command does and takes, in one line. Empty in the base.
    virtual QString helpMessage() const;
    /// Whether slotStop() may end it early: then execute() looks at stopRequested() now and then.
    virtual bool allowStop();
    virtual bool allowUndo();

    QString parameter() const;
    /// What the command found out, for the caller to show; empty until then.
    QString result() const;
    Status status() const;
    /// The name and the parameter, with a blank between.
    QString description() const;
    /// What a user would type: as description(), without the blank where there is no parameter.
    QString toString() const;

    /// The command's work; false where it failed. Called by slotExecute(). The base fails.
    virtual bool execute();
    /// Takes back what execute() did. Called by slotUndo(). The base fails.
    virtual bool undo();

public Q_SLOTS:
    /// Executes a command that is ready; false where it is not, or failed and is ready again.
    bool slotExecute();
    /// Takes an executed command back; false where it was not executed or that failed. Ask allowUndo() first.
    bool slotUndo();
    /// Asks a running command to stop; false where none runs or it does not allow it. Does not wait.
    bool slotStop();

protected:
    void setResult(const QString& result);
    bool stopRequested() const;

private:
    friend class kdCommandDispatcher;
    template <typename Work>
    bool run(Status after, Work work);

    QString m_parameter;
    QString m_result;
    Status m_status = Ready;
    bool m_stopRequested = false;
};
