#include "remotecommands.h"

#include "remotelink.h"
#include "remoteserver.h"
#include "shelllineparser.h"
#include "shellsession.h"
#include "shellsockets.h"

const ShellCommandGroup& RemoteCommands::group()
{
    using Entry = ShellCommandEntry;
    static const ShellCommandGroup group{
        "remote",
        "RemoteCommands",
        QT_TR_NOOP("Commands that run in another shell."),
        {
            {"serve", "[port PORT] [address ADDRESS] [clients N] [timeout SECONDS]",
             QT_TR_NOOP(
                 "Lets other shells run commands in this one, one after the other, N in all or without end; "
                 "on this machine only, unless ADDRESS says more."),
             0, 8, Entry::Query, serve},
            {"connect", "HOST PORT [timeout SECONDS]", QT_TR_NOOP("Connects to a shell that serves."), 2, 4,
             Entry::Query, connect},
            {"run", "COMMAND...",
             QT_TR_NOOP("Runs a command, or a quoted line of several, in the other shell."), 1,
             ShellCommand::anyNumber, Entry::Query, run},
            {"close", "", QT_TR_NOOP("Ends the connection."), 0, 0, Entry::Query, close},
        }};
    return group;
}

bool RemoteCommands::serve(ShellCall& call)
{
    int port = 0;
    int timeout = 0;
    int clients = 0;
    double seconds = 600.0;
    QString address = QStringLiteral("127.0.0.1");
    if (!ShellParameters(call, 0)
             .integer("port", port)
             .text("address", address)
             .integer("clients", clients)
             .real("timeout", seconds)
             .read()
        || !nShellSockets::readTimeout(call, seconds, timeout))
        return false;
    if (RemoteServer::isRunning())
        return call.fail(tr("This shell serves already."));
    ShellListener listener;
    if (!listener.open(call, address, port))
        return false;
    RemoteServer server(call);
    for (int client = 1; clients <= 0 || client <= clients; ++client) {
        const std::unique_ptr<ShellSocket> socket = listener.accept(call, -1, timeout);
        if (socket == nullptr)
            return call.fail(tr("Cannot accept a connection: %1").arg(listener.errorString()));
        call.tell(tr("Serving %1.").arg(socket->peerAddress().toString()));
        server.serve(*socket);
    }
    return true;
}

bool RemoteCommands::connect(ShellCall& call)
{
    std::unique_ptr<ShellSocket> socket = nShellSockets::connectTo(call);
    if (socket == nullptr)
        return false;
    RemoteLink link(*socket, call);
    RemoteLink::Kind kind = RemoteLink::Done;
    QString greeting;
    if (!link.receive(kind, greeting) || kind != RemoteLink::Hello)
        return call.fail(tr("No shell answers there: %1").arg(link.errorText()));
    call.tell(tr("Connected to %1.").arg(nShellSockets::printable(greeting)));
    ShellSession::I().remote = std::move(socket);
    return true;
}

bool RemoteCommands::run(ShellCall& call)
{
    if (!isConnected(call))
        return false;
    QStringList words = call.textsFrom(0);
    if (words.size() > 1)
        for (QString& word : words)
            word = ShellLineParser::quoted(word);
    RemoteLink link(*ShellSession::I().remote, call);
    if (link.send(RemoteLink::Run, words.join(QLatin1Char(' '))))
        return showAnswers(call, link);
    return lost(call, link);
}

bool RemoteCommands::showAnswers(const ShellCall& call, RemoteLink& link)
{
    RemoteLink::Kind kind = RemoteLink::Done;
    QString text;
    while (link.receive(kind, text)) {
        const QString shown = nShellSockets::printable(text);
        switch (kind) {
        case RemoteLink::Error:
            call.fail(shown);
            break;
        case RemoteLink::Start:
            call.reporter().startOperation(shown);
            break;
        case RemoteLink::Progress:
            call.reporter().progress(text.toDouble());
            break;
        case RemoteLink::Finish:
            call.reporter().finishOperation(shown);
            break;
        case RemoteLink::Done:
            return text == QLatin1String("ok") || call.hasFailed() || call.fail(tr("The command failed."));
        case RemoteLink::Account:
            call.tell(shown);
            break;
        default:
            call.show(shown);
        }
    }
    return lost(call, link);
}

bool RemoteCommands::lost(const ShellCall& call, const RemoteLink& link)
{
    const QString reason = link.errorText();
    ShellSession::I().remote.reset(); // a late answer would be taken for that of the next command
    return call.fail(tr("The other shell does not answer: %1").arg(reason));
}

bool RemoteCommands::close(ShellCall& call)
{
    if (!isConnected(call))
        return false;
    ShellSession::I().remote->disconnectFromHostBlocking();
    ShellSession::I().remote.reset();
    return true;
}

bool RemoteCommands::isConnected(const ShellCall& call)
{
    return ShellSession::I().remote != nullptr
        || call.fail(tr("There is no connection; see 'remote connect'."));
}
