#include "ipccommands.h"

#include "ipcpeer.h"
#include "shellevents.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <QTimer>

namespace {

/// In the order of their numbers, from 1 on.
const QStringList& productWords()
{
    static const QStringList words{QStringLiteral("forming"),  QStringLiteral("welding"),
                                   QStringLiteral("joining"),  QStringLiteral("jes"),
                                   QStringLiteral("material"), QStringLiteral("additive")};
    return words;
}

} // namespace

const ShellCommandGroup& IpcCommands::group()
{
    using Entry = ShellCommandEntry;
    static const ShellCommandGroup group{
        "ipc",
        "IpcCommands",
        QT_TR_NOOP("Messages between processes on this machine."),
        {
            {"listen", "forming|welding|joining|jes|material|additive [greetings N] [seconds S]",
             QT_TR_NOOP(
                 "Takes greetings and texts under a product's name, from this user only, until N other "
                 "processes (1) have greeted and gone."),
             1, 5, Entry::Query, listen},
            {"greet", "forming|welding|joining|jes|material|additive PID [say TEXT] [seconds S]",
             QT_TR_NOOP("Greets the process that listens under a product's name, and sends it a text."), 2, 6,
             Entry::Query, greet},
        }};
    return group;
}

bool IpcCommands::listen(ShellCall& call)
{
    nKaldoranProducts::e_Product product = nKaldoranProducts::Undefined;
    int greetings = 1;
    int seconds = 60;
    if (!readProduct(call, product)
        || !ShellParameters(call, 1).integer("greetings", greetings).integer("seconds", seconds).read()
        || !checkSeconds(call, seconds))
        return false;

    const qint64 pid = QCoreApplication::applicationPid();
    const QString name = coIpcController::socketName(product, pid);
    QLocalServer server;
    server.setSocketOptions(QLocalServer::UserAccessOption);
    QLocalServer::removeServer(name); // left by a crashed process that had our process id
    if (!server.listen(name))
        return call.fail(tr("'%1' cannot be opened: %2").arg(name, server.errorString()));
    call.show(tr("Process %1 listens as %2.").arg(QString::number(pid), call.text(0)));

    ShellEvents events(call, tr("Waiting for greetings"), seconds * 1000);
    int taken = 0;
    const auto count = [&](const IpcPeer& peer) {
        if (peer.hasGreeted() && ++taken >= greetings)
            events.end(ShellEvents::Done);
    };
    QObject::connect(&server, &QLocalServer::newConnection, &server, [&] {
        QLocalSocket* const socket = server.nextPendingConnection();
        auto* const peer = new IpcPeer(socket);
        peer->setParent(socket);
        serve(call, *peer);
        QObject::connect(socket, &QLocalSocket::disconnected, &server, [count, socket, peer] {
            socket->deleteLater();
            count(*peer);
        });
    });
    return events.run() == ShellEvents::Done
        || call.fail(tr("%1 of %2 greetings came within %3 s.")
                         .arg(QString::number(taken), QString::number(greetings), QString::number(seconds)));
}

void IpcCommands::serve(const ShellCall& call, IpcPeer& peer)
{
    QObject::connect(&peer, &IpcPeer::signalGreetingReceived, &peer,
                     [&] { call.show(tr("Greeting received: %1").arg(peer.clientName())); });
    QObject::connect(&peer, &IpcPeer::signalTextReceived, &peer, [&](const QString& text) {
        call.show(QStringLiteral("%1: %2").arg(peer.clientName(), text));
        peer.say(text); // the answer for which the other side waits
    });
}

bool IpcCommands::greet(ShellCall& call)
{
    nKaldoranProducts::e_Product product = nKaldoranProducts::Undefined;
    int pid = 0;
    QString text;
    int seconds = 10;
    if (!readProduct(call, product) || !call.readInt(1, QStringLiteral("PID"), pid)
        || !ShellParameters(call, 2).text("say", text).integer("seconds", seconds).read()
        || !checkSeconds(call, seconds))
        return false;

    ShellEvents events(call, tr("Waiting for an answer"), seconds * 1000);
    QLocalSocket socket;
    socket.connectToServer(coIpcController::socketName(product, pid));
    if (!socket.waitForConnected(seconds * 1000))
        return call.fail(tr("No process %1 listens as %2: %3")
                             .arg(QString::number(pid), call.text(0), socket.errorString()));
    IpcPeer peer(&socket);
    QObject::connect(&peer, &IpcPeer::signalGreetingReceived, &socket, [&] {
        call.show(tr("Greeting received: %1").arg(peer.clientName()));
        if (text.isEmpty())
            events.end(ShellEvents::Done);
        else
            peer.say(text);
    });
    QObject::connect(&peer, &IpcPeer::signalTextReceived, &socket, [&] { events.end(ShellEvents::Done); });
    QObject::connect(&socket, &QLocalSocket::disconnected, &socket, [&] { events.end(ShellEvents::Closed); });
    if (socket.state() != QLocalSocket::ConnectedState) // it went while it was being greeted
        QTimer::singleShot(0, &socket, [&] { events.end(ShellEvents::Closed); });
    switch (events.run()) {
    case ShellEvents::Closed:
        return call.fail(tr("The other side closed the connection before it had answered."));
    case ShellEvents::TimedOut:
        return call.fail(tr("No answer came within %1 s.").arg(seconds));
    case ShellEvents::Waiting:
    case ShellEvents::Done:
        break;
    }
    return true;
}

bool IpcCommands::readProduct(const ShellCall& call, nKaldoranProducts::e_Product& product)
{
    const int index = productWords().indexOf(call.text(0));
    product = static_cast<nKaldoranProducts::e_Product>(index + 1);
    return index >= 0
        || call.fail(tr("'%1' is no product that listens; possible are: %2.")
                         .arg(call.text(0), productWords().join(QLatin1String(", "))));
}

bool IpcCommands::checkSeconds(const ShellCall& call, int seconds)
{
    return (seconds > 0 && seconds <= 86400)
        || call.fail(tr("'seconds' must be from 1 to 86400, not %1.").arg(seconds));
}
