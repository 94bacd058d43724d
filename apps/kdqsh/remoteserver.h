#pragma once

#include <QCoreApplication>

class ShellCall;
class ShellSocket;

/// Runs the lines of a remote shell in this one, and sends back what they show. One at a time: while one
/// runs, a further one in this process is refused.
class RemoteServer {
public:
    /// \a call is that of the command that serves: whatever reports to its receivers reports to the other
    /// side meanwhile.
    explicit RemoteServer(const ShellCall& call);
    ~RemoteServer();
    Q_DISABLE_COPY(RemoteServer)

    static bool isRunning() { return s_isRunning; }

    /// Returns when the other side has quit or closed, or has said nothing for the socket's timeout.
    void serve(ShellSocket& socket);

private:
    const ShellCall& m_call;
    static bool s_isRunning;
};
