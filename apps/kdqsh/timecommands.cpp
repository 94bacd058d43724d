#include "timecommands.h"

#include "shellevents.h"
#include "shellsockets.h"

#include <kdQCore/coSntpClient>

#include <QUdpSocket>

const ShellCommandGroup& TimeCommands::group()
{
    using Entry = ShellCommandEntry;
    static const ShellCommandGroup group{
        "time",
        "TimeCommands",
        QT_TR_NOOP("The time that a time server tells."),
        {
            {"ask", "[server HOST] [port PORT] [timeout SECONDS]",
             QT_TR_NOOP(
                 "Asks a time server and shows its time (UTC), and how far this machine's clock is off."),
             0, 6, Entry::Query, ask},
        }};
    return group;
}

bool TimeCommands::ask(ShellCall& call)
{
    coSntpClient client;
    QString server = client.server();
    int port = client.port();
    int timeout = 0;
    double seconds = 5.0;
    if (!ShellParameters(call, 0).text("server", server).integer("port", port).real("timeout", seconds).read()
        || !nShellSockets::readTimeout(call, seconds, timeout))
        return false;
    if (port < 1 || port > 65535)
        return call.fail(tr("A port is 1 to 65535, not %1.").arg(port));
    client = coSntpClient(server, static_cast<quint16>(port));
    QString error;
    if (!exchange(call, client, timeout, error))
        return call.fail(
            tr("%1, port %2, does not tell the time: %3").arg(server, QString::number(port), error));
    call.show(client.dateTime().toString(Qt::ISODate));
    call.tell(tr("This machine's clock is off by %1 s.")
                  .arg(client.dateTime().secsTo(QDateTime::currentDateTimeUtc())));
    return true;
}

/// As coSntpClient::update(), but the user can stop it: also while the name is looked up.
bool TimeCommands::exchange(const ShellCall& call, coSntpClient& client, int timeout, QString& error)
{
    QUdpSocket socket;
    ShellEvents events(call, tr("Asking %1").arg(client.server()), timeout);
    QObject::connect(&socket, &QUdpSocket::connected, &socket, [&] {
        if (!client.writeQuery(socket))
            events.end(ShellEvents::Closed);
    });
    QObject::connect(&socket, &QUdpSocket::readyRead, &socket, [&] { events.end(ShellEvents::Done); });
    QObject::connect(&socket, &QUdpSocket::errorOccurred, &socket, [&] { events.end(ShellEvents::Closed); });
    socket.connectToHost(client.server(), client.port(), QIODevice::ReadWrite,
                         QAbstractSocket::AnyIPProtocol);
    const ShellEvents::Outcome outcome = events.run();
    if (outcome == ShellEvents::Done && client.readResponse(socket))
        return true;
    error = outcome == ShellEvents::Done ? client.errorString() : socket.errorString();
    if (outcome == ShellEvents::TimedOut)
        error = tr("No answer came within %1 s.").arg(ShellCall::numberText(timeout / 1000.0));
    return false;
}
