#pragma once

#include "shellcall.h"

#include <kdQCore/coTcpSocket>

#include <QTcpServer>
#include <QVector>

/// Waits for callers and hands each over as a socket for signed lines.
class ShellListener : public QTcpServer {
    Q_DECLARE_TR_FUNCTIONS(ShellListener)

public:
    ~ShellListener() override;

    /// Listens and says where; on this machine only unless \a address is another. Port 0 lets the system
    /// choose one.
    bool open(const ShellCall& call, const QString& address, int port);

    /// The next caller; null after \a milliseconds, -1 for no limit.
    std::unique_ptr<coTcpSocket> accept(int milliseconds);

protected:
    void incomingConnection(qintptr descriptor) override;

private:
    QVector<qintptr> m_callers;
};

namespace nShellSockets {

/// Connects as the words of \a call say: HOST PORT [timeout SECONDS]. Null after a failure, which is
/// reported.
std::unique_ptr<coTcpSocket> connectTo(const ShellCall& call);

/// Seconds, as the user gives them, in milliseconds; reports a number that is none of a waiting time.
bool readTimeout(const ShellCall& call, double seconds, int& milliseconds);

/// A text that came from outside, in characters that command no terminal; line ends and tabs stay.
QString printable(const QString& text);

} // namespace nShellSockets
