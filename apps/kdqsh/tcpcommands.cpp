#include "tcpcommands.h"

#include "shellsession.h"
#include "shellsockets.h"

const ShellCommandGroup& TcpCommands::group()
{
    using Entry = ShellCommandEntry;
    static const ShellCommandGroup group{
        "tcp",
        "TcpCommands",
        QT_TR_NOOP("Signed lines to and from another process over TCP."),
        {
            {"serve", "[port PORT] [address ADDRESS] [timeout SECONDS]",
             QT_TR_NOOP("Waits for one process to connect; on this machine only, unless ADDRESS says more."),
             0, 6, Entry::Query, serve},
            {"connect", "HOST PORT [timeout SECONDS]", QT_TR_NOOP("Connects to a process that serves."), 2, 4,
             Entry::Query, connect},
            {"send", "TEXT...", QT_TR_NOOP("Sends a signed line."), 1, ShellCommand::anyNumber, Entry::Query,
             send},
            {"receive", "", QT_TR_NOOP("Waits for a signed line, checks and shows it."), 0, 0, Entry::Query,
             receive},
            {"close", "", QT_TR_NOOP("Ends the connection."), 0, 0, Entry::Query, close},
        }};
    return group;
}

bool TcpCommands::serve(ShellCall& call)
{
    int port = 0;
    int timeout = 0;
    double seconds = 60.0;
    QString address = QStringLiteral("127.0.0.1");
    if (!ShellParameters(call, 0)
             .integer("port", port)
             .text("address", address)
             .real("timeout", seconds)
             .read()
        || !nShellSockets::readTimeout(call, seconds, timeout))
        return false;
    ShellListener listener;
    if (!listener.open(call, address, port))
        return false;
    std::unique_ptr<ShellSocket> socket = listener.accept(call, timeout, timeout);
    if (socket == nullptr)
        return call.fail(tr("Nobody has connected within %1 s.").arg(ShellCall::numberText(seconds)));
    call.tell(tr("Connected from %1, port %2.")
                  .arg(socket->peerAddress().toString(), QString::number(socket->peerPort())));
    ShellSession::I().lines = std::move(socket);
    return true;
}

bool TcpCommands::connect(ShellCall& call)
{
    std::unique_ptr<ShellSocket> socket = nShellSockets::connectTo(call);
    if (socket == nullptr)
        return false;
    call.tell(tr("Connected to %1, port %2.")
                  .arg(socket->peerAddress().toString(), QString::number(socket->peerPort())));
    ShellSession::I().lines = std::move(socket);
    return true;
}

bool TcpCommands::send(ShellCall& call)
{
    const QString line = call.textFrom(0);
    if (!isConnected(call) || !isLatin1(call, line))
        return false;
    coTcpSocket& socket = *ShellSession::I().lines;
    return socket.sendSignedLine(line) || call.fail(tr("Not sent: %1").arg(socket.errorString()));
}

bool TcpCommands::receive(ShellCall& call)
{
    if (!isConnected(call))
        return false;
    ShellSocket& socket = *ShellSession::I().lines;
    QString line;
    const ShellOperation operation(call, tr("Waiting for a line"));
    if (!socket.readLine(call, line, ShellSocket::WithProgress))
        return call.fail(tr("Nothing received: %1").arg(socket.errorString()));
    call.show(nShellSockets::printable(line));
    return true;
}

bool TcpCommands::close(ShellCall& call)
{
    if (!isConnected(call))
        return false;
    ShellSession::I().lines->disconnectFromHostBlocking();
    ShellSession::I().lines.reset();
    return true;
}

bool TcpCommands::isConnected(const ShellCall& call)
{
    return ShellSession::I().lines != nullptr
        || call.fail(tr("There is no connection; see 'tcp serve' and 'tcp connect'."));
}

bool TcpCommands::isLatin1(const ShellCall& call, const QString& text)
{
    for (const QChar c : text)
        if (c.unicode() > 0xFF)
            return call.fail(tr("A signed line cannot hold '%1', only Latin-1.").arg(c));
    return true;
}
