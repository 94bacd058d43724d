#include "kdcommand.h"

#include <exception>

kdCommand::kdCommand(const QString& parameter, QObject* parent) : QObject(parent), m_parameter(parameter) { }

kdCommand::~kdCommand() = default;

QString kdCommand::name() const
{
    return objectName();
}

QString kdCommand::helpMessage() const
{
    return QString();
}

bool kdCommand::allowStop()
{
    return false;
}

bool kdCommand::allowUndo()
{
    return false;
}

QString kdCommand::parameter() const
{
    return m_parameter;
}

QString kdCommand::result() const
{
    return m_result;
}

kdCommand::Status kdCommand::status() const
{
    return m_status;
}

QString kdCommand::description() const
{
    return QStringLiteral("%1 %2").arg(name(), m_parameter);
}

QString kdCommand::toString() const
{
    return m_parameter.isEmpty() ? name() : description();
}

bool kdCommand::execute()
{
    return false;
}

bool kdCommand::undo()
{
    return false;
}

bool kdCommand::slotExecute()
{
    if (m_status != Ready)
        return false;
    m_result.clear();
    return run(Executed, [this] { return execute(); });
}

bool kdCommand::slotUndo()
{
    if (m_status != Executed)
        return false;
    return run(Ready, [this] { return undo(); });
}

bool kdCommand::slotStop()
{
    if (m_status != Running || !allowStop())
        return false;
    m_stopRequested = true;
    return true;
}

void kdCommand::setResult(const QString& result)
{
    m_result = result;
}

bool kdCommand::stopRequested() const
{
    return m_stopRequested;
}

template <typename Work>
bool kdCommand::run(Status after, Work work)
{
    const Status before = m_status;
    m_status = Running;
    m_stopRequested = false;
    bool succeeded = false;
    try {
        succeeded = work();
    } catch (const std::exception& exception) {
        errorMessage(
            tr("The command '%1' failed: %2").arg(toString(), QString::fromLocal8Bit(exception.what())));
    } catch (...) {
        errorMessage(tr("The command '%1' failed for an unknown reason.").arg(toString()));
    }
    m_status = succeeded ? after : before;
    return succeeded;
}
