#pragma once

#include <kdqcore_export.h>

#include <QAbstractSocket>
#include <QHostAddress>
#include <QObject>
#include <QStringList>

#include <memory>

struct SocketReply;

/// A TCP socket with a blocking interface that any thread may use, and signed lines on top of it
/// (coSocketMessage).
///
/// \code
/// coTcpSocket socket;
/// socket.setTimeout(5000);
/// connect(&socket, &coTcpSocket::signalError, &window, &Window::warn); // nobody there, or a bad line
/// QString answer;
/// if (socket.connectToHost(QHostAddress(QHostAddress::LocalHost), port)
///     && socket.sendSignedLine(QStringLiteral("status?")) && socket.readSignedLine(answer))
///     show(answer);
/// \endcode
///
/// The serving side accepts with QTcpServer::incomingConnection() and hands the descriptor to
/// setSocketDescriptor().
///
/// Each object owns a worker thread in which the real socket lives. It receives ahead of the callers, who
/// take what is there; connecting and the like is handed to it. A call writes what the system takes at once
/// by itself, and one that waits for bytes receives them itself, except on Windows; the rest is left to the
/// worker. An event loop is not needed. Who has one may listen to the signals as well: those of the socket
/// come in the thread in which the coTcpSocket lives. Where readyRead() has a listener the worker receives
/// everything, where bytesWritten() has one it writes everything.
///
/// Thread-safe: one call runs at a time, others wait for their turn. Two threads that each send and then read
/// share one stream of lines, so a reply belongs to whoever reads first; keep such pairs together with a
/// mutex of your own. Destroying the object ends a call that is pending in another thread with an error and
/// waits for it to leave; begin no new one meanwhile, and do not destroy it from a slot of signalError()
/// (deleteLater() is fine). A blocking call made in the worker thread is refused with an error.
///
/// A failed call leaves the socket usable: after a timeout the connection stays, a late answer is what the
/// next read finds, and connectToHost() ends an attempt that is still under way. Up to 16 MiB are received
/// ahead of the reader; then the peer has to wait.
class KDQCORE_EXPORT coTcpSocket : public QObject {
    Q_OBJECT

public:
    class ThreadedSocketWrapper;

    explicit coTcpSocket(QObject* parent = nullptr);
    ~coTcpSocket() override;

    /// Ends an existing connection first. A failure is told by signalError() and in the log; errorString()
    /// stays what it was.
    bool connectToHost(const QHostAddress& address, quint16 port);
    /// Looks the name up, without regard to the timeout, and connects to its first IPv4 address or, where it
    /// has none, to its first IPv6 address. A name without an address is no more than the answer false.
    bool connectToHost(const QString& host, quint16 port);
    /// Only starts to disconnect; an attempt to connect is ended at once.
    void disconnectFromHost();
    void disconnectFromHostBlocking();
    void close();
    /// Adopts an accepted connection; the socket owns the descriptor then.
    bool setSocketDescriptor(qint64 descriptor,
                             QAbstractSocket::SocketState state = QAbstractSocket::ConnectedState,
                             QIODevice::OpenMode openMode = QIODevice::ReadWrite);

    QAbstractSocket::SocketState state();
    qint64 bytesAvailable();
    bool canReadLine();
    QString peerName();
    quint16 peerPort();
    QHostAddress peerAddress();

    /// Returns when the system has taken all bytes. Bytes that were not written at the timeout are still sent
    /// if the peer takes them later.
    bool writeBlocking(const QByteArray& bytes);
    /// Up to \a maxSize bytes, all that are there for 0 or less. Waits where none are there; empty after the
    /// timeout, and at once where the connection has ended.
    QByteArray readBlocking(qint64 maxSize);

    /// Sends in Latin-1: characters beyond it arrive as question marks. The first line sent draws the session
    /// id, unless a line was received before.
    bool sendSignedLine(const QString& line);
    /// All lines in one write; nothing is written where one of them cannot be encoded.
    bool sendSignedLines(const QStringList& lines);
    /// The payload of the next line, read as UTF-8: a peer that speaks through this class sends plain ASCII
    /// or escapes the rest. Refuses a line of another session than the first one. Failures are told by
    /// signalError(), too. A line is as long as the peer makes it, until the timeout.
    bool readSignedLine(QString& line);

    /// Milliseconds for each later call; 60 000 at the start and for a negative number. With 0 only what
    /// needs no waiting succeeds. Does not wait for a running call.
    void setTimeout(int milliseconds);

    /// Of the last call; empty after success. Does not wait for a running call.
    QString errorString() const;
    /// QAbstractSocket::UnknownSocketError (-1) after success, and for a fault of a line instead of the
    /// socket.
    QAbstractSocket::SocketError error() const;

Q_SIGNALS:
    void connected();
    void disconnected();
    void readyRead();
    void bytesWritten(qint64 bytes);
    void error(QAbstractSocket::SocketError code); // clazy:exclude=overloaded-signal
    void hostFound();
    void stateChanged(QAbstractSocket::SocketState state);
    /// A failed connectToHost() or readSignedLine(), in the thread that called it. \a code as error().
    void signalError(int code, const QString& text);

    // Each tells that a request begins and, unless it only reads or asks what has been received already,
    // takes it into the worker thread; a write that needs no worker is not told. Not for others.
    void op_connectToHost(const QString& address, quint16 port, int openMode);
    void op_disconnectFromHost();
    void op_disconnectFromHostBlocking();
    void op_writeBlocking(const QByteArray& bytes);
    void op_readBlocking(qint64 maxSize);
    void op_readLineBlocking();
    void op_state();
    void op_setSocketDescriptor(qint64 descriptor, int state, int openMode);
    void op_close();
    void op_bytesAvailable();
    void op_canReadLine();
    void op_peerName();
    void op_peerPort();
    void op_peerAddress();

private:
    struct Private;
    class Turn;

    void connectOperations();
    template <typename Call>
    SocketReply outcome(const Turn& turn, const Call& call) const;
    template <typename Call>
    SocketReply perform(const Call& call);
    template <typename Post>
    SocketReply request(const Post& post);
    int sendAtOnce(const QByteArray& bytes) const;
    bool readLineBlocking(QString& line);
    bool readPayload(QString& line);
    int sessionId();
    bool encode(const QStringList& lines, QByteArray& bytes);
    void clearError();
    void setErrorFromWrapper(const SocketReply& reply);
    bool setError(int code, const QString& text);

    std::unique_ptr<Private> d;
};
