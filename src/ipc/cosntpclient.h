#pragma once

#include <kdqcore_export.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QString>

QT_BEGIN_NAMESPACE
class QUdpSocket;
QT_END_NAMESPACE

/// Asks a time server for the current time, with one SNTP exchange over UDP (RFC 4330), IPv4 or IPv6.
///
/// \code
/// coSntpClient client(QStringLiteral("ntp.example.org"), 123);
/// if (client.update(3000))
///     show(client.dateTime().toLocalTime());
/// else
///     warn(client.errorString());
/// \endcode
///
/// Whole seconds, as they left the server: the way of the packet is not taken out, and the answer is not
/// authenticated. Good for telling a wrong clock, not for setting one. The server's 32-bit seconds end on
/// 7 February 2036; later answers count as broken.
///
/// A value type that holds no socket between calls; not thread-safe, but needs no event loop.
class KDQCORE_EXPORT coSntpClient {
    Q_DECLARE_TR_FUNCTIONS(coSntpClient)

public:
    /// Asks "pool.ntp.org" at port 123.
    coSntpClient();
    /// \a server is a name or an address.
    coSntpClient(const QString& server, quint16 port);

    QString server() const { return m_server; }
    quint16 port() const { return m_port; }

    /// Blocks for at most \a timeoutMs milliseconds for the connection (a name is looked up without regard to
    /// it) and as long again for the answer; a negative number stands for 30 000. An answer dated before 2016
    /// is refused with "Invalid date."; for other failures errorString() has the socket's text.
    bool update(int timeoutMs);

    /// The time received last, UTC, also one that was refused; invalid before.
    QDateTime dateTime() const { return m_dateTime; }
    /// Of the last failure.
    QString errorString() const { return m_errorString; }

    /// The two halves of update(), for a socket that is connected to the server.
    bool writeQuery(QUdpSocket& socket);
    bool readResponse(QUdpSocket& socket);

private:
    bool fail(const QString& text);

    QDateTime m_dateTime;
    QString m_server;
    quint16 m_port;
    QString m_errorString;
};
