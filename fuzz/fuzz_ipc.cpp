// Any bytes as what a peer sends in one piece. Messages are delivered at most once for each zero byte, what a
// delivered greeting says can be written and read again, and the next message always gets through.

#include <kdQCore/coIpcController>
#include <kdQCore/kdLog>

#include <QCoreApplication>
#include <QLocalServer>
#include <QLocalSocket>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>

namespace {

constexpr int largestPiece = 30000; // more would not arrive in one read

void require(bool condition)
{
    if (!condition)
        std::abort();
}

void checkRoundTrip(const coIpcGreetingMessage& greeting)
{
    QByteArray document;
    QXmlStreamWriter writer(&document);
    greeting.writeXml(writer);
    QXmlStreamReader reader(document);
    coIpcGreetingMessage again;
    require(reader.readNextStartElement());
    again.readXml(reader);
    require(!reader.hasError() && again.program() == greeting.program()
            && again.version() == greeting.version() && again.pid() == greeting.pid());
}

class Controller : public coIpcController {
public:
    using coIpcController::coIpcController;
    using coIpcController::peerPid;

    int received = 0;

protected:
    void messageReceived(QSharedPointer<coIpcMessage> message) override
    {
        ++received;
        checkRoundTrip(*message.staticCast<coIpcGreetingMessage>());
    }
};

/// One connection for all inputs: none may end it.
class Connection {
public:
    Connection()
    {
        QLocalServer server;
        const QString name = QStringLiteral("fuzz-ipc-%1").arg(QCoreApplication::applicationPid());
        require(server.listen(name));
        m_peer.connectToServer(name);
        require(server.waitForNewConnection(10000));
        m_ours.reset(server.nextPendingConnection());
        m_ours->setParent(nullptr);
        controller = std::make_unique<Controller>(m_ours.get());
    }

    void send(const QByteArray& bytes)
    {
        m_peer.write(bytes);
        m_peer.flush();
        require(m_ours->waitForReadyRead(10000));
    }

    std::unique_ptr<Controller> controller;

private:
    QLocalSocket m_peer;
    std::unique_ptr<QLocalSocket> m_ours;
};

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    static QCoreApplication application(*argc, *argv);
    kdLog::setMinimumSeverity(kdLog::Critical);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static Connection connection;
    if (size == 0 || size > largestPiece)
        return 0;
    const QByteArray bytes(reinterpret_cast<const char*>(data), int(size));
    Controller& controller = *connection.controller;
    controller.received = 0;
    connection.send(bytes);
    require(controller.received <= bytes.count('\0'));
    connection.send(QByteArray("<Message type=\"Greeting\"><Pid>1</Pid></Message>\0", 48));
    require(controller.peerPid() == 1);
    connection.send(QByteArray("<Message type=\"Greeting\"><Pid>2</Pid></Message>\0", 48));
    require(controller.peerPid() == 2);
    return 0;
}
