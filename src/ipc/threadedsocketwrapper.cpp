#include "threadedsocketwrapper_p.h"

#include <QEvent>
#include <QNetworkProxy>

namespace {

/// What Qt keeps for us while the inbox is full.
constexpr qint64 chunk = 1024 * 1024;

} // namespace

coTcpSocket::ThreadedSocketWrapper::ThreadedSocketWrapper(coTcpSocket& owner, SocketExchange& exchange,
                                                          SocketInbox& inbox, SocketOutlet& outlet)
    : m_owner(owner), m_exchange(exchange), m_inbox(inbox), m_outlet(outlet), m_socket(this), m_timer(this),
      m_patience(this)
{
    m_socket.setProxy(QNetworkProxy(QNetworkProxy::NoProxy));
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    m_patience.setSingleShot(true);
    m_patience.setInterval(SocketInbox::patience);

    using Self = ThreadedSocketWrapper;
    connect(&m_socket, &QTcpSocket::connected, this, &Self::onConnected);
    connect(&m_socket, &QTcpSocket::disconnected, this, &Self::onDisconnected);
    connect(&m_socket, &QTcpSocket::readyRead, this, &Self::receive);
    connect(&m_socket, &QTcpSocket::bytesWritten, this, &Self::onBytesWritten);
    connect(&m_socket, &QTcpSocket::errorOccurred, this, &Self::onError);
    connect(&m_socket, &QTcpSocket::stateChanged, this, &Self::onStateChanged);
    connect(&m_timer, &QTimer::timeout, this, &Self::onTimeout);
    connect(&m_patience, &QTimer::timeout, this, &Self::onPatienceOver);
    forwardSignals();
    publishState();
}

coTcpSocket::ThreadedSocketWrapper::~ThreadedSocketWrapper()
{
    m_socket.abort(); // while there still is someone to take its signals
}

void coTcpSocket::ThreadedSocketWrapper::forwardSignals()
{
    const auto plain = [this](auto from, auto to) {
        connect(&m_socket, from, this, [this, signal = QMetaMethod::fromSignal(to)] { forward(signal); });
    };
    plain(&QTcpSocket::connected, &coTcpSocket::connected);
    plain(&QTcpSocket::disconnected, &coTcpSocket::disconnected);
    plain(&QTcpSocket::readyRead, &coTcpSocket::readyRead);
    plain(&QTcpSocket::hostFound, &coTcpSocket::hostFound);
    using Code = QAbstractSocket::SocketError;
    const auto written = QMetaMethod::fromSignal(&coTcpSocket::bytesWritten);
    const auto changed = QMetaMethod::fromSignal(&coTcpSocket::stateChanged);
    const auto failed = QMetaMethod::fromSignal(QOverload<Code>::of(&coTcpSocket::error));
    connect(&m_socket, &QTcpSocket::bytesWritten, this,
            [=](qint64 bytes) { forward(written, Q_ARG(qint64, bytes)); });
    connect(&m_socket, &QTcpSocket::stateChanged, this, [=](QAbstractSocket::SocketState state) {
        forward(changed, Q_ARG(QAbstractSocket::SocketState, state));
    });
    connect(&m_socket, &QTcpSocket::errorOccurred, this,
            [=](Code code) { forward(failed, Q_ARG(QAbstractSocket::SocketError, code)); });
}

/// Queued, so that listeners may make blocking calls; and only where someone listens, since the owner's
/// thread may have no event loop that would ever take the events.
void coTcpSocket::ThreadedSocketWrapper::forward(const QMetaMethod& signal, QGenericArgument argument)
{
    if (m_owner.isSignalConnected(signal))
        signal.invoke(&m_owner, Qt::QueuedConnection, argument);
}

/// A request was posted under the exchange's lock.
bool coTcpSocket::ThreadedSocketWrapper::event(QEvent* event)
{
    const int timeout = m_exchange.timeout();
    const bool isRequest = event->type() == QEvent::MetaCall; // another one may delete this object
    const bool isTaken = QObject::event(event);
    if (isRequest && m_pending != None && !m_timer.isActive()) // it has to wait
        m_timer.start(timeout);
    return isTaken;
}

void coTcpSocket::ThreadedSocketWrapper::end(SocketReply&& reply)
{
    m_pending = None;
    m_timer.stop();
    publishState();
    m_exchange.reply(std::move(reply));
}

void coTcpSocket::ThreadedSocketWrapper::answer(const QVariant& result)
{
    end(SocketReply::done(result));
}

SocketReply coTcpSocket::ThreadedSocketWrapper::fault() const
{
    if (m_socket.error() == QAbstractSocket::UnknownSocketError && isUnconnected())
        return SocketReply::failed(QAbstractSocket::OperationError,
                                   coTcpSocket::tr("The socket is not connected."));
    return SocketReply::failed(m_socket.error(), m_socket.errorString());
}

void coTcpSocket::ThreadedSocketWrapper::connectToHost(const QString& address, quint16 port, int openMode)
{
    m_socket.abort(); // an earlier attempt, or a connection that cannot write its last bytes
    m_inbox.clear();
    m_pending = Connect;
    m_socket.connectToHost(address, port, QIODevice::OpenMode(openMode));
}

void coTcpSocket::ThreadedSocketWrapper::disconnectFromHost()
{
    leaveHost();
    answer();
}

void coTcpSocket::ThreadedSocketWrapper::disconnectFromHostBlocking()
{
    m_pending = BlockingDisconnect;
    leaveHost();
    if (m_pending != None && isUnconnected())
        end();
}

void coTcpSocket::ThreadedSocketWrapper::writeBlocking(const QByteArray& bytes)
{
    m_pending = Write;
    if (isUnconnected() || m_socket.write(bytes) < bytes.size())
        return end(fault());
    m_socket.flush();
    if (m_socket.bytesToWrite() > 0)
        m_outlet.close();
    onBytesWritten();
}

void coTcpSocket::ThreadedSocketWrapper::setSocketDescriptor(qint64 descriptor, int state, int openMode)
{
    m_socket.abort();
    m_socket.close(); // drops what was not read
    m_inbox.clear();
    m_pending = Immediate;
    if (!m_socket.setSocketDescriptor(descriptor, QAbstractSocket::SocketState(state),
                                      QIODevice::OpenMode(openMode)))
        return end(SocketReply::failed(m_socket.error(), m_socket.errorString()));
    prepareConnection();
    end();
}

void coTcpSocket::ThreadedSocketWrapper::close()
{
    if (isConnecting())
        m_socket.abort();
    m_socket.close();
    m_inbox.clear();
    answer();
}

void coTcpSocket::ThreadedSocketWrapper::peerName()
{
    answer(m_socket.peerName());
}

void coTcpSocket::ThreadedSocketWrapper::peerPort()
{
    answer(uint(m_socket.peerPort()));
}

void coTcpSocket::ThreadedSocketWrapper::peerAddress()
{
    answer(m_socket.peerAddress().toString());
}

/// Only Qt's notifier comes here.
bool coTcpSocket::ThreadedSocketWrapper::eventFilter(QObject* notifier, QEvent* event)
{
    if (event->type() != QEvent::SockAct)
        return false;
    if (m_inbox.claim()) {
        notifier->event(event);
        m_inbox.release();
    } else {
        m_readNotifier->setEnabled(false);
        m_patience.start();
    }
    return true;
}

void coTcpSocket::ThreadedSocketWrapper::onPatienceOver()
{
    if (!m_inbox.promiseCall())
        resume();
}

void coTcpSocket::ThreadedSocketWrapper::resume()
{
    receive();
    if (m_readNotifier)
        m_readNotifier->setEnabled(true);
}

void coTcpSocket::ThreadedSocketWrapper::receive()
{
    if (!m_socket.isReadable())
        return;
    const qint64 available = m_socket.bytesAvailable();
    const qint64 count = qMin(available, m_inbox.room());
    m_inbox.put(m_socket.read(count), count < available);
}

void coTcpSocket::ThreadedSocketWrapper::onConnected()
{
    prepareConnection();
    if (m_pending == Connect)
        end();
}

void coTcpSocket::ThreadedSocketWrapper::onDisconnected()
{
    if (m_pending == BlockingDisconnect)
        end();
}

void coTcpSocket::ThreadedSocketWrapper::onBytesWritten()
{
    if (m_socket.bytesToWrite() > 0)
        return;
    openOutlet();
    if (m_pending == Write)
        end();
}

void coTcpSocket::ThreadedSocketWrapper::onError(QAbstractSocket::SocketError code)
{
    if (m_pending >= Connect)
        end(SocketReply::failed(code, m_socket.errorString()));
}

/// The outlet is closed in the same step as Qt's descriptor: the peer sees the end when both are.
void coTcpSocket::ThreadedSocketWrapper::onStateChanged(QAbstractSocket::SocketState state)
{
    if (state != QAbstractSocket::ConnectedState) {
        m_outlet.close();
        m_inbox.detach();
    }
    publishState();
}

void coTcpSocket::ThreadedSocketWrapper::onTimeout()
{
    if (m_pending != None)
        end(SocketReply::timedOut());
}

void coTcpSocket::ThreadedSocketWrapper::prepareConnection()
{
    m_socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
    m_socket.setReadBufferSize(chunk);
    shareReceiving();
    openOutlet();
}

/// Qt has one object that tells of bytes to read, somewhere below the socket. Where it has none, callers
/// cannot be kept apart from it and do not receive.
void coTcpSocket::ThreadedSocketWrapper::shareReceiving()
{
    const QList<QSocketNotifier*> notifiers = m_socket.findChildren<QSocketNotifier*>();
    for (QSocketNotifier* const notifier : notifiers)
        if (notifier->type() == QSocketNotifier::Read)
            m_readNotifier = notifier;
    if (!m_readNotifier || !m_socket.isReadable())
        return;
    m_readNotifier->installEventFilter(this);
    m_inbox.attach(m_socket.socketDescriptor());
}

void coTcpSocket::ThreadedSocketWrapper::openOutlet()
{
    if (m_socket.state() == QAbstractSocket::ConnectedState && m_socket.isWritable())
        m_outlet.open(m_socket.socketDescriptor());
}

void coTcpSocket::ThreadedSocketWrapper::publishState()
{
    m_inbox.setState(m_socket.state(), fault());
}

bool coTcpSocket::ThreadedSocketWrapper::isUnconnected() const
{
    return m_socket.state() == QAbstractSocket::UnconnectedState;
}

bool coTcpSocket::ThreadedSocketWrapper::isConnecting() const
{
    return m_socket.state() == QAbstractSocket::ConnectingState
        || m_socket.state() == QAbstractSocket::HostLookupState;
}

/// Qt would end an attempt only once it has succeeded.
void coTcpSocket::ThreadedSocketWrapper::leaveHost()
{
    if (isConnecting())
        m_socket.abort();
    else
        m_socket.disconnectFromHost();
}
