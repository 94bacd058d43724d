#include "commandhistory.h"

#include "viewcommand.h"

#include <kdQCore/kdCommandDispatcher>

namespace {

QString textOf(const QSharedPointer<kdCommand>& command)
{
    const auto own = command.dynamicCast<ViewCommand>();
    return own.isNull() ? command->toString() : own->text();
}

} // namespace

CommandHistory::CommandHistory()
{
    const kdCommandDispatcher& dispatcher = kdCommandDispatcher::I();
    connect(&dispatcher, &kdCommandDispatcher::signalCommandExecuted, this, &CommandHistory::noteExecuted);
    connect(&dispatcher, &kdCommandDispatcher::signalCommandReverted, this, &CommandHistory::noteReverted);
}

bool CommandHistory::canUndo() const
{
    return !m_executed.isEmpty() && m_executed.constLast()->allowUndo();
}

bool CommandHistory::canRedo() const
{
    return !m_reverted.isEmpty();
}

QString CommandHistory::undoText() const
{
    return canUndo() ? textOf(m_executed.constLast()) : QString();
}

QString CommandHistory::redoText() const
{
    return canRedo() ? textOf(m_reverted.constLast()) : QString();
}

void CommandHistory::undo()
{
    kdCommandDispatcher::I().slotUndo();
}

void CommandHistory::redo()
{
    if (!canRedo())
        return;
    const Command command = m_reverted.constLast();
    if (kdCommandDispatcher::I().slotRedo())
        return;
    m_reverted.removeOne(command); // the dispatcher drops a command that can no longer be redone
    Q_EMIT signalChanged();
}

void CommandHistory::noteExecuted(const Command& command)
{
    m_reverted.removeOne(command);
    m_executed.append(command);
    Q_EMIT signalChanged();
}

void CommandHistory::noteReverted(const Command& command)
{
    m_executed.removeOne(command);
    m_reverted.append(command);
    Q_EMIT signalChanged();
}
