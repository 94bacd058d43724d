#include "cotcpsocket.h"

#include "cosocketmessage.h"
#include "threadedsocketwrapper_p.h"

#include <kdQCore/kdLog>

#include <QCoreApplication>
#include <QHostInfo>
#include <QThread>

#include <cstdlib>
#include <ctime>

namespace {

/// Runs an event loop and lets its objects go before it tells that it has ended.
class WorkerThread : public QThread {
public:
    explicit WorkerThread(SocketExchange& exchange) : m_exchange(exchange) { }

protected:
    void run() override
    {
        exec();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        m_exchange.pass();
    }

private:
    SocketExchange& m_exchange;
};

} // namespace

struct coTcpSocket::Private {
    explicit Private(const coTcpSocket& socket)
        : inbox([this] { callWorker(); },
                [&socket] {
                    static const QMetaMethod signal = QMetaMethod::fromSignal(&coTcpSocket::readyRead);
                    return socket.isSignalConnected(signal);
                })
    {
    }

    /// Held by a call for its whole length; recursive, as calls are made of calls. Nobody waits on it: the
    /// sleeping is the exchange's, with a plain mutex of its own.
    std::recursive_mutex turns;
    SocketExchange exchange;
    SocketInbox inbox;
    SocketOutlet outlet;
    WorkerThread worker{exchange};
    ThreadedSocketWrapper* wrapper = nullptr; ///< lives in the worker, which deletes it
    qint32 sessionId = -1;

    mutable std::mutex errorMutex;
    int errorCode = -1;
    QString errorString;

    bool isInWorker() const { return QThread::currentThread() == &worker; }

    void callWorker()
    {
        exchange.tell([this] {
            QMetaObject::invokeMethod(wrapper, &ThreadedSocketWrapper::resume, Qt::QueuedConnection);
        });
    }

    /// What has come is kept, also where the request ends the connection.
    template <typename Post>
    std::optional<SocketReply> hand(const Post& post)
    {
        inbox.update();
        return exchange.call(post);
    }
};

/// The right of a call to run. It is granted to one thread at a time, and not at all in the worker thread,
/// which would wait for itself, and while the socket is being destroyed.
class coTcpSocket::Turn {
public:
    explicit Turn(Private& d) : m_d(d), m_isGranted(!d.isInWorker() && d.exchange.enter())
    {
        if (m_isGranted)
            m_d.turns.lock();
    }

    ~Turn()
    {
        if (!m_isGranted)
            return;
        m_d.turns.unlock();
        m_d.exchange.leave();
    }

    Q_DISABLE_COPY(Turn)

    bool isGranted() const { return m_isGranted; }

private:
    Private& m_d;
    bool m_isGranted;
};

coTcpSocket::coTcpSocket(QObject* parent) : QObject(parent), d(std::make_unique<Private>(*this))
{
    std::srand(static_cast<unsigned>(std::time(nullptr)));
    d->wrapper = new ThreadedSocketWrapper(*this, d->exchange, d->inbox, d->outlet);
    connectOperations();
    d->worker.setObjectName(QStringLiteral("coTcpSocket"));
    d->worker.start();
    d->wrapper->moveToThread(&d->worker);
}

coTcpSocket::~coTcpSocket()
{
    d->inbox.close();
    d->exchange.close();
    d->wrapper->deleteLater();
    d->worker.quit();
    d->worker.wait();
    d->exchange.pass();
}

void coTcpSocket::connectOperations()
{
    const auto hand = [this](auto operation, auto slot) {
        connect(this, operation, d->wrapper, slot, Qt::QueuedConnection);
    };
    using Wrapper = ThreadedSocketWrapper;
    hand(&coTcpSocket::op_connectToHost, &Wrapper::connectToHost);
    hand(&coTcpSocket::op_disconnectFromHost, &Wrapper::disconnectFromHost);
    hand(&coTcpSocket::op_disconnectFromHostBlocking, &Wrapper::disconnectFromHostBlocking);
    hand(&coTcpSocket::op_writeBlocking, &Wrapper::writeBlocking);
    hand(&coTcpSocket::op_setSocketDescriptor, &Wrapper::setSocketDescriptor);
    hand(&coTcpSocket::op_close, &Wrapper::close);
    hand(&coTcpSocket::op_peerName, &Wrapper::peerName);
    hand(&coTcpSocket::op_peerPort, &Wrapper::peerPort);
    hand(&coTcpSocket::op_peerAddress, &Wrapper::peerAddress);
}

/// \a call gives a reply, or nothing where the destructor ended it.
template <typename Call>
SocketReply coTcpSocket::outcome(const Turn& turn, const Call& call) const
{
    std::optional<SocketReply> reply;
    if (turn.isGranted())
        reply = call();
    if (reply)
        return *std::move(reply);
    return SocketReply::failed(QAbstractSocket::OperationError,
                               d->isInWorker() ? tr("The socket's own thread cannot wait for the socket.")
                                               : tr("The socket is being destroyed."));
}

/// Makes a call, whose outcome becomes the last error.
template <typename Call>
SocketReply coTcpSocket::perform(const Call& call)
{
    const Turn turn(*d);
    SocketReply reply = outcome(turn, call);
    if (reply.success)
        clearError();
    else
        setErrorFromWrapper(reply);
    return reply;
}

/// The same for what the worker has to do.
template <typename Post>
SocketReply coTcpSocket::request(const Post& post)
{
    return perform([&] { return d->hand(post); });
}

bool coTcpSocket::connectToHost(const QHostAddress& address, quint16 port)
{
    const Turn turn(*d);
    const QString text = address.toString();
    const auto connect = [&] {
        // Not through state() and disconnectFromHost(), which would take the last error away.
        if (d->inbox.state() != QAbstractSocket::UnconnectedState)
            d->hand([&] { Q_EMIT op_disconnectFromHost(); });
        return d->hand([&] { Q_EMIT op_connectToHost(text, port, QIODevice::ReadWrite); });
    };
    const SocketReply reply = outcome(turn, connect);
    if (reply.success) {
        clearError();
        return true;
    }
    Q_EMIT signalError(reply.errorCode, reply.errorString);
    kdLog::write(kdLog::Fault, kdLog::Socket, "cotcpsocket", __LINE__,
                 QStringLiteral("Connection to '%1' failed: %2 (%3)")
                     .arg(text, reply.errorString, QString::number(reply.errorCode)));
    return false;
}

bool coTcpSocket::connectToHost(const QString& host, quint16 port)
{
    const Turn turn(*d);
    const QHostAddress literal(host); // spares the system the search for a name of the address
    const QList<QHostAddress> addresses =
        literal.isNull() ? QHostInfo::fromName(host).addresses() : QList<QHostAddress>{literal};
    for (const auto protocol : {QAbstractSocket::IPv4Protocol, QAbstractSocket::IPv6Protocol})
        for (const QHostAddress& address : addresses)
            if (!address.isNull() && address.protocol() == protocol)
                return connectToHost(address, port);
    return false;
}

void coTcpSocket::disconnectFromHost()
{
    request([this] { Q_EMIT op_disconnectFromHost(); });
}

void coTcpSocket::disconnectFromHostBlocking()
{
    request([this] { Q_EMIT op_disconnectFromHostBlocking(); });
}

void coTcpSocket::close()
{
    request([this] { Q_EMIT op_close(); });
}

bool coTcpSocket::setSocketDescriptor(qint64 descriptor, QAbstractSocket::SocketState state,
                                      QIODevice::OpenMode openMode)
{
    return request([&] { Q_EMIT op_setSocketDescriptor(descriptor, state, int(openMode)); }).success;
}

QAbstractSocket::SocketState coTcpSocket::state()
{
    const SocketReply reply = perform([this] {
        Q_EMIT op_state();
        return SocketReply::done(d->inbox.state());
    });
    return QAbstractSocket::SocketState(reply.result.toInt());
}

qint64 coTcpSocket::bytesAvailable()
{
    const SocketReply reply = perform([this] {
        Q_EMIT op_bytesAvailable();
        return SocketReply::done(d->inbox.size());
    });
    return reply.result.toLongLong();
}

bool coTcpSocket::canReadLine()
{
    const SocketReply reply = perform([this] {
        Q_EMIT op_canReadLine();
        return SocketReply::done(d->inbox.hasLine());
    });
    return reply.result.toBool();
}

QString coTcpSocket::peerName()
{
    return request([this] { Q_EMIT op_peerName(); }).result.toString();
}

quint16 coTcpSocket::peerPort()
{
    return static_cast<quint16>(request([this] { Q_EMIT op_peerPort(); }).result.toUInt());
}

QHostAddress coTcpSocket::peerAddress()
{
    return QHostAddress(request([this] { Q_EMIT op_peerAddress(); }).result.toString());
}

bool coTcpSocket::writeBlocking(const QByteArray& bytes)
{
    const auto write = [&]() -> std::optional<SocketReply> {
        const int sent = sendAtOnce(bytes);
        if (sent == bytes.size())
            return SocketReply::done();
        return d->hand([&] { Q_EMIT op_writeBlocking(bytes.mid(sent)); });
    };
    return perform(write).success;
}

/// Who listens to bytesWritten() hears of it in its order with the other signals, as the worker tells them.
int coTcpSocket::sendAtOnce(const QByteArray& bytes) const
{
    static const QMetaMethod written = QMetaMethod::fromSignal(&coTcpSocket::bytesWritten);
    return bytes.isEmpty() || isSignalConnected(written) ? 0 : d->outlet.send(bytes);
}

QByteArray coTcpSocket::readBlocking(qint64 maxSize)
{
    const auto read = [=] {
        Q_EMIT op_readBlocking(maxSize);
        return d->inbox.read(maxSize, d->exchange.timeout());
    };
    return perform(read).data;
}

bool coTcpSocket::readLineBlocking(QString& line)
{
    const SocketReply reply = perform([this] {
        Q_EMIT op_readLineBlocking();
        return d->inbox.readLine(d->exchange.timeout());
    });
    line = QString::fromLatin1(reply.data.constData(), reply.data.size()); // with its zero bytes
    return reply.success;
}

bool coTcpSocket::sendSignedLine(const QString& line)
{
    return sendSignedLines({line});
}

bool coTcpSocket::sendSignedLines(const QStringList& lines)
{
    const Turn turn(*d);
    QByteArray bytes;
    if (turn.isGranted() && !encode(lines, bytes))
        return false;
    return writeBlocking(bytes);
}

/// Appends the signed lines to \a bytes.
bool coTcpSocket::encode(const QStringList& lines, QByteArray& bytes)
{
    constexpr int extra = 24; // the most that a session id and a signature add
    int size = 0;
    for (const QString& line : lines)
        size += line.size() + extra;
    bytes.reserve(size);
    coSocketMessage message;
    message.setSessionId(sessionId());
    for (const QString& line : lines) {
        if (!message.encode(line.toLatin1()))
            return setError(-1, message.errorString());
        bytes += message.signedMessage();
    }
    return true;
}

/// Drawn where there is none yet.
int coTcpSocket::sessionId()
{
    constexpr int count = 0x8000; // rand() reaches farther on some systems
    if (d->sessionId == -1)
        d->sessionId = std::rand() % count; // NOLINT: a number to tell sessions apart, not a secret
    return d->sessionId;
}

bool coTcpSocket::readSignedLine(QString& line)
{
    const Turn turn(*d);
    if (readPayload(line))
        return true;
    Q_EMIT signalError(error(), errorString());
    return false;
}

bool coTcpSocket::readPayload(QString& line)
{
    QString received;
    if (!readLineBlocking(received))
        return false;
    coSocketMessage message;
    if (!message.decode(received.toLatin1()))
        return setError(-1, message.errorString());
    if (d->sessionId == -1)
        d->sessionId = message.sessionId();
    else if (d->sessionId != message.sessionId())
        return setError(-1, tr("Invalid session ID!"));
    const QByteArray payload = message.message();
    line = QString::fromUtf8(payload.constData(), payload.size()); // with its zero bytes
    return true;
}

void coTcpSocket::setTimeout(int milliseconds)
{
    d->exchange.setTimeout(milliseconds);
}

QString coTcpSocket::errorString() const
{
    const std::lock_guard<std::mutex> lock(d->errorMutex);
    return d->errorString;
}

QAbstractSocket::SocketError coTcpSocket::error() const
{
    const std::lock_guard<std::mutex> lock(d->errorMutex);
    return QAbstractSocket::SocketError(d->errorCode);
}

void coTcpSocket::clearError()
{
    setError(-1, QString());
}

void coTcpSocket::setErrorFromWrapper(const SocketReply& reply)
{
    setError(reply.errorCode, reply.errorString);
}

/// False, for the caller to return.
bool coTcpSocket::setError(int code, const QString& text)
{
    const std::lock_guard<std::mutex> lock(d->errorMutex);
    d->errorCode = code;
    d->errorString = text;
    return false;
}
