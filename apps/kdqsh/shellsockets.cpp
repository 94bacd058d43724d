#include "shellsockets.h"

#include <QElapsedTimer>
#include <QTcpSocket>

#include <algorithm>
#include <cmath>

namespace {

constexpr int sliceMs = 100; // the longest that Ctrl-C waits for an answer

/// A time to wait, in slices.
class Wait {
public:
    /// Without limit where \a milliseconds are negative.
    Wait(const ShellCall& call, int milliseconds, ShellSocket::Waiting waiting = ShellSocket::WithProgress)
        : m_call(call), m_total(milliseconds), m_isSilent(waiting == ShellSocket::Silent)
    {
        m_timer.start();
    }

    /// False where the time is over or the user stops the call.
    bool goesOn() const
    {
        const double elapsed = static_cast<double>(m_timer.elapsed());
        if (m_total >= 0 && elapsed >= m_total)
            return false;
        return m_isSilent || m_total < 0 ? !m_call.isStopped() : m_call.goOn(elapsed / m_total);
    }

private:
    const ShellCall& m_call;
    double m_total;
    bool m_isSilent;
    QElapsedTimer m_timer;
};

} // namespace

bool ShellSocket::readLine(const ShellCall& call, QString& line, Waiting waiting)
{
    setTimeout(qMin(m_timeout, sliceMs));
    const Wait wait(call, m_timeout, waiting);
    bool isRead = readSignedLine(line);
    while (!isRead && error() == QAbstractSocket::SocketTimeoutError && wait.goesOn())
        isRead = readSignedLine(line);
    setTimeout(m_timeout);
    return isRead;
}

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

std::unique_ptr<ShellSocket> ShellListener::accept(const ShellCall& call, int milliseconds, int timeout)
{
    const ShellOperation operation(call, tr("Waiting for a connection"));
    const Wait wait(call, milliseconds);
    while (m_callers.isEmpty() && wait.goesOn())
        waitForNewConnection(sliceMs);
    if (m_callers.isEmpty())
        return nullptr;
    auto socket = std::make_unique<ShellSocket>(timeout);
    return socket->setSocketDescriptor(m_callers.takeFirst()) ? std::move(socket) : nullptr;
}

void ShellListener::incomingConnection(qintptr descriptor)
{
    m_callers.append(descriptor);
}

std::unique_ptr<ShellSocket> nShellSockets::connectTo(const ShellCall& call)
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
    auto socket = std::make_unique<ShellSocket>(timeout);
    QString reason = ShellListener::tr("The name has no address.");
    QObject::connect(socket.get(), &coTcpSocket::signalError,
                     [&reason](int, const QString& text) { reason = text; });
    const ShellOperation operation(call, ShellListener::tr("Connecting to %1").arg(call.text(0)));
    auto attempt = std::async(std::launch::async, [&call, port, to = socket.get()] {
        return to->connectToHost(call.text(0), static_cast<quint16>(port));
    });
    if (waitFor(call, std::move(attempt), timeout, [&socket] { socket.reset(); })) {
        QObject::disconnect(socket.get(), &coTcpSocket::signalError, nullptr, nullptr);
        return socket;
    }
    call.fail(ShellListener::tr("Cannot connect to %1, port %2: %3")
                  .arg(call.text(0), QString::number(port), reason));
    return nullptr;
}

bool nShellSockets::waitFor(const ShellCall& call, std::future<bool> work, int milliseconds,
                            const std::function<void()>& abort)
{
    const Wait wait(call, milliseconds);
    while (work.wait_for(std::chrono::milliseconds(sliceMs)) != std::future_status::ready) {
        wait.goesOn();
        if (call.isStopped()) {
            abort();
            work.wait();
        }
    }
    return work.get() && !call.isStopped();
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
