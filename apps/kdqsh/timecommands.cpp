#include "timecommands.h"

#include "shellsockets.h"

#include <kdQCore/coSntpClient>

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
    const ShellOperation operation(call, tr("Asking %1").arg(server));
    auto answer = std::async(std::launch::async, [&client, timeout] { return client.update(timeout); });
    if (!nShellSockets::waitFor(call, std::move(answer), timeout, [] {}))
        return call.fail(tr("%1, port %2, does not tell the time: %3")
                             .arg(server, QString::number(port), client.errorString()));
    call.show(client.dateTime().toString(Qt::ISODate));
    call.tell(tr("This machine's clock is off by %1 s.")
                  .arg(client.dateTime().secsTo(QDateTime::currentDateTimeUtc())));
    return true;
}
