#include "logcommands.h"

#include <kdQCore/kdDebugLog>
#include <kdQCore/kdLog>

#include <cstdio>
#include <memory>

namespace {

/// Shows log lines on standard error as they are written.
class Echo : public kdLog::Sink {
public:
    explicit Echo(int severity) : m_severity(severity) { attach(); }
    ~Echo() override { detach(); }

    void received(const kdLog::Record& record) override
    {
        if (record.severity < m_severity)
            return;
        const QString line = QStringLiteral("log %1 %2%3\n")
                                 .arg(QString::number(record.severity),
                                      QLatin1String(kdLog::tagText(record.tag)), record.text);
        std::fputs(line.toLocal8Bit().constData(), stderr);
    }

private:
    int m_severity;
};

bool readSeverity(const ShellCall& call, int& severity)
{
    if (!call.readInt(0, QStringLiteral("SEVERITY"), severity))
        return false;
    return (severity >= kdLog::Trace && severity <= kdLog::Critical)
        || call.fail(LogCommands::tr("A severity is 0 to 6, not %1.").arg(severity));
}

} // namespace

const ShellCommandGroup& LogCommands::group()
{
    using Entry = ShellCommandEntry;
    static const ShellCommandGroup group{
        "log",
        "LogCommands",
        QT_TR_NOOP("The debug log of this run."),
        {
            {"path", "", QT_TR_NOOP("Shows where the log file lies."), 0, 0, Entry::Query, path},
            {"echo", "SEVERITY|off",
             QT_TR_NOOP("Shows log lines from a severity (0 to 6) on also on standard error."), 1, 1,
             Entry::Query, echo},
            {"write", "SEVERITY TEXT", QT_TR_NOOP("Writes a line into the log."), 2, ShellCommand::anyNumber,
             Entry::Query, write},
            {"flush", "", QT_TR_NOOP("Hands all log lines to the system."), 0, 0, Entry::Query, flush},
        }};
    return group;
}

bool LogCommands::path(ShellCall& call)
{
    call.show(kdDebugLog::logFilePath());
    return true;
}

bool LogCommands::echo(ShellCall& call)
{
    static std::unique_ptr<Echo> current;
    int severity = 0;
    if (!call.is(0, "off") && !readSeverity(call, severity))
        return false;
    current.reset();
    if (!call.is(0, "off"))
        current = std::make_unique<Echo>(severity);
    return true;
}

bool LogCommands::write(ShellCall& call)
{
    int severity = 0;
    if (!readSeverity(call, severity))
        return false;
    KD_LOG(static_cast<kdLog::Severity>(severity), kdLog::Command, call.textFrom(1));
    return true;
}

bool LogCommands::flush(ShellCall&)
{
    kdDebugLog::flush();
    return true;
}
