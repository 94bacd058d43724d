#include "shellsockets.h"

#include <QTcpSocket>

#include <algorithm>
#include <cmath>

ShellListener::~ShellListener()
{
    while (!m_callers.isEmpty())
        QTcpSocket().setSocketDescriptor(m_callers.takeFirst()); // closes it
}

bool ShellListener::open(const ShellCall& call, const QString& address, int port)
{
    const QHostAddress host(address);
    if (host.isNull())
        return call.fail(tr("'%1' is no address of the form 127.0.0.1 or ::1.").arg(address));
    if (port < 0 || port > 65535)
        return call.fail(tr("A port is 0 to 65535, not %1.").arg(port));
    if (!listen(host, static_cast<quint16>(port)))
        return call.fail(
            tr("Cannot listen on %1, port %2: %3").arg(address, QString::number(port), errorString()));
    if (!host.isLoopback())
        call.warn(tr("Whoever reaches %1 can connect; a signature keeps out nobody.").arg(address));
    call.show(tr("Listening on %1, port %2.").arg(address, QString::number(serverPort())));
    return true;
}

std::unique_ptr<coTcpSocket> ShellListener::accept(int milliseconds)
{
    if (m_callers.isEmpty() && (!waitForNewConnection(milliseconds) || m_callers.isEmpty()))
        return nullptr;
    auto socket = std::make_unique<coTcpSocket>();
    return socket->setSocketDescriptor(m_callers.takeFirst()) ? std::move(socket) : nullptr;
}

void ShellListener::incomingConnection(qintptr descriptor)
{
    m_callers.append(descriptor);
}

std::unique_ptr<coTcpSocket> nShellSockets::connectTo(const ShellCall& call)
{
    int timeout = 0;
    double seconds = 60.0;
    int port = 0;
    if (!ShellParameters(call, 2).real("timeout", seconds).read() || !readTimeout(call, seconds, timeout)
        || !call.readInt(1, QStringLiteral("PORT"), port))
        return nullptr;
    if (port < 1 || port > 65535) {
        call.fail(ShellListener::tr("A port is 1 to 65535, not %1.").arg(port));
        return nullptr;
    }
    auto socket = std::make_unique<coTcpSocket>();
    socket->setTimeout(timeout);
    QString reason = ShellListener::tr("The name has no address.");
    QObject::connect(socket.get(), &coTcpSocket::signalError,
                     [&reason](int, const QString& text) { reason = text; });
    if (socket->connectToHost(call.text(0), static_cast<quint16>(port))) {
        QObject::disconnect(socket.get(), &coTcpSocket::signalError, nullptr, nullptr);
        return socket;
    }
    call.fail(ShellListener::tr("Cannot connect to %1, port %2: %3")
                  .arg(call.text(0), QString::number(port), reason));
    return nullptr;
}

bool nShellSockets::readTimeout(const ShellCall& call, double seconds, int& milliseconds)
{
    constexpr double longest = 1e6;
    if (!(seconds > 0.0 && seconds <= longest))
        return call.fail(ShellListener::tr("A timeout is more than 0 and up to 1000000 seconds, not %1.")
                             .arg(ShellCall::numberText(seconds)));
    milliseconds = int(std::ceil(seconds * 1000.0));
    return true;
}

QString nShellSockets::printable(const QString& text)
{
    QString result = text;
    std::replace_if(
        result.begin(), result.end(),
        [](QChar c) { return c.category() == QChar::Other_Control && c != u'\n' && c != u'\t'; },
        QChar(QChar::ReplacementCharacter));
    return result;
}
