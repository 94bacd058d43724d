#include "shell.h"

#include "linesource.h"
#include "shellgroups.h"
#include "shellhelp.h"
#include "shellinterrupt.h"

#include <kdQCore/kdCommandDispatcher>

QStringList Shell::words()
{
    return {QStringLiteral("help"), QStringLiteral("history"), QStringLiteral("quit"), QStringLiteral("redo"),
            QStringLiteral("undo")};
}

bool Shell::run(LineSource& source)
{
    m_sourceName = source.name();
    bool ok = true;
    QString line;
    for (bool isContinued = false; !m_isQuitting && (ok || m_keepsGoing) && source.next(line, isContinued);
         isContinued = m_parser.needsMoreLines()) {
        if (!isContinued)
            m_parser.drop();
        ok = runLine(line) && ok;
    }
    if (m_parser.finish()) {
        setPlace(m_parser.errorLine());
        m_console.error(m_parser.errorText());
        ok = false;
    }
    m_console.setPlace(QString());
    return ok;
}

bool Shell::runLine(const QString& line)
{
    if (!m_parser.addLine(line)) {
        setPlace(m_parser.errorLine());
        m_console.error(m_parser.errorText());
        return false;
    }
    bool ok = true;
    const QVector<ShellStatement> statements = m_parser.takeStatements();
    for (const ShellStatement& statement : statements) {
        if (m_isQuitting || (!ok && !m_keepsGoing) || nInterrupt::isRequested())
            break;
        const ShellCommandGroup* const group = nShellGroups::find(statement.name);
        const QString subCommand = statement.parameters.section(QLatin1Char(' '), 0, 0);
        const bool isKnown = group != nullptr && group->find(subCommand) != nullptr;
        setPlace(statement.line, isKnown ? statement.name + QLatin1Char(' ') + subCommand : statement.name);
        m_history.append((statement.name + QLatin1Char(' ') + statement.parameters).trimmed());
        ok = runStatement(statement) && ok;
    }
    return ok;
}

bool Shell::runStatement(const ShellStatement& statement)
{
    bool isOwn = true;
    const bool ok = runOwnWord(statement, isOwn);
    return isOwn ? ok : runCommand(statement);
}

bool Shell::runOwnWord(const ShellStatement& statement, bool& isOwn)
{
    if (statement.name == QLatin1String("help")) {
        QStringList lines;
        const bool isFound = nShellHelp::find(statement.parameters, lines);
        for (const QString& line : qAsConst(lines))
            isFound ? m_console.message(line) : m_console.error(line);
        return isFound;
    }
    isOwn = words().contains(statement.name);
    if (!isOwn)
        return true;
    if (!takesNothing(statement))
        return false;
    if (statement.name == QLatin1String("undo"))
        return undo();
    if (statement.name == QLatin1String("redo"))
        return redo();
    if (statement.name == QLatin1String("quit"))
        m_isQuitting = true;
    else
        for (int i = 0; i < m_history.size(); ++i)
            m_console.message(
                QStringLiteral("%1  %2").arg(QString::number(i + 1).rightJustified(4), m_history.at(i)));
    return true;
}

bool Shell::takesNothing(const ShellStatement& statement)
{
    if (statement.parameters.isEmpty())
        return true;
    m_console.error(tr("'%1' takes no arguments.").arg(statement.name));
    return false;
}

bool Shell::runCommand(const ShellStatement& statement)
{
    kdCommandDispatcher& dispatcher = kdCommandDispatcher::I();
    const QSharedPointer<kdCommand> command = dispatcher.getCommand(statement.name, statement.parameters);
    if (command.isNull()) {
        setPlace(statement.line);
        m_console.error(statement.parameters.isEmpty()
                            ? kdCommandDispatcher::tr("Unknown command: >%1<!").arg(statement.name)
                            : kdCommandDispatcher::tr("Unknown command: >%1 %2<!")
                                  .arg(statement.name, statement.parameters));
        return false;
    }
    const ShellCommand* const own = qobject_cast<ShellCommand*>(command.data());
    const bool isQuery = own != nullptr ? own->isQuery() : !command->allowUndo();
    if (!isQuery) {
        const bool ok = dispatcher.execute(command);
        showResult(*command, ShellConsole::Account);
        return ok;
    }
    command->startReportingTo(m_console.reporter());
    const bool ok = command->slotExecute();
    showResult(*command, ShellConsole::Result);
    return ok;
}

void Shell::showResult(const kdCommand& command, int level)
{
    if (!command.result().isEmpty())
        m_console.message(command.result(), level);
}

bool Shell::undo()
{
    kdCommandDispatcher& dispatcher = kdCommandDispatcher::I();
    QString reverted;
    const auto connection = QObject::connect(
        &dispatcher, &kdCommandDispatcher::signalCommandReverted,
        [&reverted](const QSharedPointer<kdCommand>& command) { reverted = command->toString(); });
    const bool isAvailable = dispatcher.undoAvailable();
    const bool ok = dispatcher.slotUndo();
    QObject::disconnect(connection);
    if (ok)
        m_console.message(tr("Undone: %1").arg(reverted), ShellConsole::Account);
    else
        m_console.error(isAvailable ? tr("The last command could not be undone.")
                                    : tr("There is nothing that can be undone."));
    return ok;
}

bool Shell::redo()
{
    kdCommandDispatcher& dispatcher = kdCommandDispatcher::I();
    if (!dispatcher.redoAvailable()) {
        m_console.error(tr("There is nothing to redo."));
        return false;
    }
    QString executed;
    const auto connection = QObject::connect(
        &dispatcher, &kdCommandDispatcher::signalCommandExecuted,
        [&executed](const QSharedPointer<kdCommand>& command) { executed = command->toString(); });
    const bool ok = dispatcher.slotRedo();
    QObject::disconnect(connection);
    if (ok)
        m_console.message(tr("Redone: %1").arg(executed), ShellConsole::Account);
    return ok;
}

void Shell::setPlace(int line, const QString& command)
{
    QStringList parts;
    if (!m_sourceName.isEmpty())
        parts.append(QStringLiteral("%1:%2").arg(m_sourceName, QString::number(line)));
    if (!command.isEmpty())
        parts.append(command);
    m_console.setPlace(parts.join(QLatin1String(": ")));
}
