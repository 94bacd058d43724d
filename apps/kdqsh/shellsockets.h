#pragma once

#include "shellcall.h"

#include <kdQCore/coTcpSocket>

#include <QTcpServer>
#include <QVector>

#include <future>

/// A socket whose waits can be stopped. Its timeout is that of a line.
class ShellSocket : public coTcpSocket {
public:
    /// In milliseconds.
    explicit ShellSocket(int timeout) : m_timeout(timeout) { setTimeout(timeout); }

    enum Waiting { Silent, WithProgress };

    /// As readSignedLine(), which must not be called beside it. A line that comes after a stop is what the
    /// next call reads. Progress needs a running operation.
    bool readLine(const ShellCall& call, QString& line, Waiting waiting);

private:
    int m_timeout;
};

/// Waits for callers and hands each over as a socket for signed lines.
class ShellListener : public QTcpServer {
    Q_DECLARE_TR_FUNCTIONS(ShellListener)

public:
    ~ShellListener() override;

    /// Listens and says where; on this machine only unless \a address is another. Port 0 lets the system
    /// choose one.
    bool open(const ShellCall& call, const QString& address, int port);

    /// The next caller within \a milliseconds, -1 for no limit; null where none came or the user stopped the
    /// call. The socket has \a timeout.
    std::unique_ptr<ShellSocket> accept(const ShellCall& call, int milliseconds, int timeout);

protected:
    void incomingConnection(qintptr descriptor) override;

private:
    QVector<qintptr> m_callers;
};

namespace nShellSockets {

/// Connects as the words of \a call say: HOST PORT [timeout SECONDS]. Null after a failure, which is
/// reported.
std::unique_ptr<ShellSocket> connectTo(const ShellCall& call);

/// Seconds, as the user gives them, in milliseconds; reports a number that is none of a waiting time.
bool readTimeout(const ShellCall& call, double seconds, int& milliseconds);

/// Waits for what another thread works on, shows how much of \a milliseconds has gone, and calls \a abort
/// when the user stops the call.
bool waitFor(const ShellCall& call, std::future<bool> work, int milliseconds,
             const std::function<void()>& abort);

/// A text that came from outside, in characters that command no terminal; line ends and tabs stay.
QString printable(const QString& text);

} // namespace nShellSockets
