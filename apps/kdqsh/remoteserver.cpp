#include "remoteserver.h"

#include "linesource.h"
#include "remotelink.h"
#include "shell.h"
#include "shellsockets.h"

#include <kdQCore/kdCommandDispatcher>

bool RemoteServer::s_isRunning = false;

namespace {

/// Sends what a console would show.
class RemoteConsole : public ShellConsole {
public:
    explicit RemoteConsole(RemoteLink& link) : m_link(link) { }

protected:
    void showMessage(const QString& text, int level) override
    {
        m_link.send(level <= Result ? RemoteLink::Result : RemoteLink::Account, text);
    }
    void showError(const QString& line) override { m_link.send(RemoteLink::Error, line); }
    void startOperation(const QString& text) override { m_link.send(RemoteLink::Start, text); }
    void showProgress(double fraction) override
    {
        m_link.send(RemoteLink::Progress, QString::number(fraction));
    }
    void finishOperation(const QString& text) override { m_link.send(RemoteLink::Finish, text); }

private:
    RemoteLink& m_link;
};

/// The lines of the other side. Asking for the next one means that the last one is done.
class RemoteLines : public LineSource {
public:
    RemoteLines(RemoteLink& link, const ShellConsole& console) : m_link(link), m_console(console) { }

    bool next(QString& line, bool&) override
    {
        finishLine();
        RemoteLink::Kind kind = RemoteLink::Done;
        m_isOpen = m_link.receive(kind, line) && kind == RemoteLink::Run;
        m_errorsBefore = m_console.errorCount();
        return m_isOpen;
    }
    QString name() const override { return {}; }

    void finishLine()
    {
        const bool isGood = m_console.errorCount() == m_errorsBefore;
        if (m_isOpen)
            m_link.send(RemoteLink::Done, isGood ? QStringLiteral("ok") : QStringLiteral("failed"));
        m_isOpen = false;
    }

private:
    RemoteLink& m_link;
    const ShellConsole& m_console;
    int m_errorsBefore = 0;
    bool m_isOpen = false;
};

} // namespace

RemoteServer::RemoteServer(const ShellCall& call) : m_call(call)
{
    kdCommandDispatcher::I().stopReportingTo(m_call.reporter());
    s_isRunning = true;
}

RemoteServer::~RemoteServer()
{
    kdCommandDispatcher::I().startReportingTo(m_call.reporter());
    s_isRunning = false;
}

void RemoteServer::serve(ShellSocket& socket)
{
    RemoteLink link(socket, m_call);
    RemoteConsole console(link);
    if (!link.send(RemoteLink::Hello, QStringLiteral("kdqsh ") + QCoreApplication::applicationVersion()))
        return;
    kdCommandDispatcher::I().startReportingTo(console.reporter());
    RemoteLines lines(link, console);
    Shell(console, true).run(lines);
    lines.finishLine();
    kdCommandDispatcher::I().stopReportingTo(console.reporter());
}
