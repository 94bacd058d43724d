#include "threadedsocketwrapper_p.h"

#include <QEvent>
#include <QNetworkProxy>

namespace {

/// A peer that sends faster than anyone reads must not fill the memory.
constexpr qint64 readAhead = 16 * 1024 * 1024;

/// Who has written no more than this mostly reads the answer next; who writes more prepares the next block.
constexpr int longestQuestion = 2100;

} // namespace

coTcpSocket::ThreadedSocketWrapper::ThreadedSocketWrapper(coTcpSocket& owner, SocketExchange& exchange)
    : m_owner(owner), m_exchange(exchange), m_socket(this), m_timer(this)
{
    m_socket.setProxy(QNetworkProxy(QNetworkProxy::NoProxy));
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);

    using Self = ThreadedSocketWrapper;
    connect(&m_socket, &QTcpSocket::connected, this, &Self::onConnected);
    connect(&m_socket, &QTcpSocket::disconnected, this, &Self::onDisconnected);
    connect(&m_socket, &QTcpSocket::readyRead, this, &Self::onReadyRead);
    connect(&m_socket, &QTcpSocket::bytesWritten, this, &Self::onBytesWritten);
    connect(&m_socket, &QTcpSocket::errorOccurred, this, &Self::onError);
    connect(&m_timer, &QTimer::timeout, this, &Self::onTimeout);
    forwardSignals();
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

void coTcpSocket::ThreadedSocketWrapper::begin(e_Operation operation)
{
    m_pending = operation;
    m_next = SocketExchange::Soon;
    m_reply = SocketReply();
    m_readSize = -1;
}

void coTcpSocket::ThreadedSocketWrapper::succeed()
{
    m_reply.success = true;
    end();
}

void coTcpSocket::ThreadedSocketWrapper::fail(int code, const QString& text)
{
    m_reply.errorCode = code;
    m_reply.errorString = text;
    end();
}

void coTcpSocket::ThreadedSocketWrapper::failWithSocketError()
{
    if (m_socket.error() == QAbstractSocket::UnknownSocketError && isUnconnected())
        fail(QAbstractSocket::OperationError, coTcpSocket::tr("The socket is not connected."));
    else
        fail(m_socket.error(), m_socket.errorString());
}

void coTcpSocket::ThreadedSocketWrapper::end()
{
    m_pending = None;
    m_timer.stop();
    if (m_socket.isValid()) // Qt would listen to a closed descriptor
        m_socket.setReadBufferSize(readAhead);
    m_exchange.reply(std::move(m_reply), m_next);
}

void coTcpSocket::ThreadedSocketWrapper::answer(const QVariant& result)
{
    begin(Immediate);
    m_reply.result = result;
    succeed();
}

void coTcpSocket::ThreadedSocketWrapper::connectToHost(const QString& address, quint16 port, int openMode)
{
    m_socket.abort(); // an earlier attempt, or a connection that cannot write its last bytes
    begin(Connect);
    m_socket.connectToHost(address, port, QIODevice::OpenMode(openMode));
}

void coTcpSocket::ThreadedSocketWrapper::disconnectFromHost()
{
    leaveHost();
    answer();
}

void coTcpSocket::ThreadedSocketWrapper::disconnectFromHostBlocking()
{
    begin(BlockingDisconnect);
    leaveHost();
    if (m_pending != None && isUnconnected())
        succeed();
}

void coTcpSocket::ThreadedSocketWrapper::writeBlocking(const QByteArray& bytes)
{
    begin(Write);
    if (bytes.isEmpty())
        return succeed();
    if (bytes.size() > longestQuestion)
        m_next = SocketExchange::Later;
    if (isUnconnected() || m_socket.write(bytes) < bytes.size())
        return failWithSocketError();
    m_socket.flush();
    onBytesWritten();
}

void coTcpSocket::ThreadedSocketWrapper::readBlocking(qint64 maxSize)
{
    begin(Read);
    m_readSize = maxSize;
    takeBytes();
    if (!m_reply.data.isEmpty())
        succeed();
    else if (isUnconnected())
        failWithSocketError();
}

void coTcpSocket::ThreadedSocketWrapper::readLineBlocking()
{
    begin(ReadLine);
    takeLine();
    if (m_pending == None)
        return;
    if (isUnconnected())
        failWithSocketError();
    else
        m_socket.setReadBufferSize(0);
}

void coTcpSocket::ThreadedSocketWrapper::state()
{
    answer(int(m_socket.state()));
}

void coTcpSocket::ThreadedSocketWrapper::setSocketDescriptor(qint64 descriptor, int state, int openMode)
{
    m_socket.abort();
    m_socket.close(); // drops what was not read
    begin(Immediate);
    if (!m_socket.setSocketDescriptor(descriptor, QAbstractSocket::SocketState(state),
                                      QIODevice::OpenMode(openMode)))
        return fail(m_socket.error(), m_socket.errorString());
    prepareConnection();
    succeed();
}

void coTcpSocket::ThreadedSocketWrapper::close()
{
    if (isConnecting())
        m_socket.abort();
    m_socket.close();
    answer();
}

void coTcpSocket::ThreadedSocketWrapper::bytesAvailable()
{
    answer(m_socket.bytesAvailable());
}

void coTcpSocket::ThreadedSocketWrapper::canReadLine()
{
    answer(m_socket.canReadLine());
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

void coTcpSocket::ThreadedSocketWrapper::onConnected()
{
    prepareConnection();
    if (m_pending == Connect)
        succeed();
}

void coTcpSocket::ThreadedSocketWrapper::onDisconnected()
{
    if (m_pending == BlockingDisconnect)
        succeed();
}

void coTcpSocket::ThreadedSocketWrapper::onReadyRead()
{
    if (m_pending == ReadLine)
        takeLine();
    if (m_pending != Read)
        return;
    takeBytes();
    succeed();
}

void coTcpSocket::ThreadedSocketWrapper::onBytesWritten()
{
    if (m_pending == Write && m_socket.bytesToWrite() == 0)
        succeed();
}

void coTcpSocket::ThreadedSocketWrapper::onError(QAbstractSocket::SocketError code)
{
    if (m_pending >= Connect)
        fail(code, m_socket.errorString());
}

void coTcpSocket::ThreadedSocketWrapper::onTimeout()
{
    if (m_pending != None)
        fail(QAbstractSocket::SocketTimeoutError, coTcpSocket::tr("Operation timed out."));
}

void coTcpSocket::ThreadedSocketWrapper::prepareConnection()
{
    m_socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
    m_socket.setReadBufferSize(readAhead);
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

void coTcpSocket::ThreadedSocketWrapper::takeBytes()
{
    const qint64 available = m_socket.bytesAvailable();
    if (available > 0)
        m_reply.data = m_socket.read(m_readSize > 0 ? qMin(m_readSize, available) : available);
}

void coTcpSocket::ThreadedSocketWrapper::takeLine()
{
    if (!m_socket.canReadLine())
        return;
    m_reply.data = m_socket.readLine();
    succeed();
}
