// Signed lines over TCP on loopback beside bare blocking sockets that pass the same bytes: a line there and
// back, a call that only asks, and many lines in blocks.

#include "duel.h"

#include <kdQCore/coSocketMessage>
#include <kdQCore/coTcpSocket>

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QProcess>
#include <QTcpServer>
#include <QTcpSocket>

#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>

namespace {

constexpr int roundTrips = 1000;
constexpr int lineCount = 100000;
constexpr int blockSize = 100;
const QString payload(64, QLatin1Char('x'));
const QHostAddress loopback(QHostAddress::LocalHost);

QByteArray signedLine()
{
    coSocketMessage message;
    message.setSessionId(1);
    message.encode(payload.toLatin1());
    return message.signedMessage();
}

/// One connection to this process, as a descriptor.
class Acceptor : public QTcpServer {
public:
    Acceptor() { listen(loopback); }

    qintptr accept()
    {
        waitForNewConnection(-1);
        return m_descriptor;
    }

protected:
    void incomingConnection(qintptr descriptor) override { m_descriptor = descriptor; }

private:
    qintptr m_descriptor = -1;
};

bool readLine(QTcpSocket& socket)
{
    while (!socket.canReadLine())
        if (!socket.waitForReadyRead(-1))
            return false;
    socket.readLine();
    return true;
}

void write(QTcpSocket& socket, const QByteArray& bytes)
{
    socket.write(bytes);
    while (socket.bytesToWrite() > 0)
        socket.waitForBytesWritten(-1);
}

/// Answers each line with one, in a thread of its own, until the other side closes.
class Echo {
public:
    explicit Echo(bool isOurs)
        : m_thread([this, isOurs] { isOurs ? serveOurs(m_server.accept()) : serveBare(m_server.accept()); })
    {
    }
    ~Echo() { m_thread.join(); }
    Q_DISABLE_COPY(Echo)

    quint16 port() const { return m_server.serverPort(); }

private:
    static void serveBare(qintptr descriptor)
    {
        QTcpSocket socket;
        socket.setSocketDescriptor(descriptor);
        socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
        const QByteArray answer = signedLine();
        while (readLine(socket))
            write(socket, answer);
    }

    static void serveOurs(qintptr descriptor)
    {
        coTcpSocket socket;
        socket.setSocketDescriptor(descriptor);
        QString line;
        while (socket.readSignedLine(line))
            socket.sendSignedLine(line);
    }

    Acceptor m_server;
    std::thread m_thread;
};

class BareAsker {
public:
    explicit BareAsker(quint16 port)
    {
        m_socket.connectToHost(loopback, port);
        m_socket.waitForConnected();
        m_socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
    }

    void run()
    {
        for (int i = 0; i < roundTrips; ++i) {
            write(m_socket, m_line);
            readLine(m_socket);
        }
    }

private:
    QTcpSocket m_socket;
    QByteArray m_line = signedLine();
};

class OurAsker {
public:
    explicit OurAsker(quint16 port)
    {
        m_socket.connectToHost(loopback, port);
        // Adopts the session of the line that the bare side sends.
        QString line;
        m_socket.writeBlocking(signedLine());
        m_socket.readSignedLine(line);
    }

    void run()
    {
        QString line;
        for (int i = 0; i < roundTrips; ++i)
            if (!m_socket.sendSignedLine(payload) || !m_socket.readSignedLine(line))
                std::abort();
    }

    void askState()
    {
        for (int i = 0; i < roundTrips; ++i)
            m_socket.state();
    }

    void askTheWorker()
    {
        for (int i = 0; i < roundTrips; ++i)
            m_socket.peerPort();
    }

private:
    coTcpSocket m_socket;
};

/// Two threads that wake each other, with nothing in between.
class HandOver {
public:
    HandOver() : m_thread([this] { serve(); }) { }
    ~HandOver()
    {
        pass(Ending);
        m_thread.join();
    }
    Q_DISABLE_COPY(HandOver)

    void run()
    {
        for (int i = 0; i < roundTrips; ++i) {
            pass(Asked);
            wait(Answered);
        }
    }

private:
    enum State { Answered, Asked, Ending };

    void pass(State state)
    {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_state = state;
        }
        m_condition.notify_all();
    }

    void wait(State state)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_condition.wait(lock, [this, state] { return m_state == state; });
    }

    void serve()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        while (m_state != Ending) {
            m_condition.wait(lock, [this] { return m_state != Answered; });
            if (m_state == Asked) {
                m_state = Answered;
                m_condition.notify_all();
            }
        }
    }

    std::mutex m_mutex;
    std::condition_variable m_condition;
    State m_state = Answered;
    std::thread m_thread;
};

/// A process of its own that takes what comes, so that only the sending side is measured.
class Drain {
public:
    Drain()
    {
        m_process.start(QCoreApplication::applicationFilePath(), {QString::number(m_server.serverPort())});
        m_descriptor = m_server.accept();
    }
    ~Drain()
    {
        m_process.kill();
        m_process.waitForFinished();
    }
    Q_DISABLE_COPY(Drain)

    qintptr descriptor() const { return m_descriptor; }

    static int run(quint16 port)
    {
        QTcpSocket socket;
        socket.connectToHost(loopback, port);
        while (socket.waitForConnected() && socket.waitForReadyRead(-1))
            socket.readAll();
        return 0;
    }

private:
    Acceptor m_server;
    QProcess m_process;
    qintptr m_descriptor = -1;
};

bool compareRoundTrips(Duel::Time time)
{
    Echo echoes[] = {Echo(false), Echo(false), Echo(true)};
    BareAsker bare(echoes[0].port());
    OurAsker half(echoes[1].port());
    OurAsker both(echoes[2].port());
    HandOver handOver;
    Duel duel(time == Duel::OfWaiting ? "A signed line of 64 bytes there and back, waiting time"
                                      : "The same, processor time of both sides",
              roundTrips, time);
    duel.add("QTcpSocket, blocking, both sides", [&bare] { bare.run(); });
    duel.add("coTcpSocket on one side", [&half] { half.run(); });
    duel.add("coTcpSocket on both sides", [&both] { both.run(); });
    duel.add("an empty call: coTcpSocket::state()", [&half] { half.askState(); });
    duel.add("one that the worker answers: peerPort()", [&half] { half.askTheWorker(); });
    duel.add("mutex and condition, there and back", [&handOver] { handOver.run(); });
    duel.run(15);
    return time != Duel::OfWaiting
        || duel.demand("coTcpSocket on one side", "QTcpSocket, blocking, both sides", 1 / 1.4);
}

bool compareManyLines()
{
    const Drain drains[2];
    QTcpSocket bare;
    bare.setSocketDescriptor(drains[0].descriptor());
    coTcpSocket ours;
    ours.setSocketDescriptor(drains[1].descriptor());
    const QByteArray line = signedLine();
    QStringList block;
    for (int i = 0; i < blockSize; ++i)
        block.append(payload);

    volatile char sink = 0; // keeps the digests
    Duel duel("100 000 lines in blocks of 100, processor time of the sending side", lineCount);
    duel.add("QTcpSocket, each line hashed", [&] {
        for (int i = 0; i < lineCount; ++i) {
            sink = QCryptographicHash::hash(line, QCryptographicHash::Sha1).at(0);
            bare.write(line);
            if (i % blockSize == blockSize - 1)
                while (bare.bytesToWrite() > 0)
                    bare.waitForBytesWritten(-1);
        }
    });
    duel.add("coTcpSocket::sendSignedLines", [&] {
        for (int i = 0; i < lineCount; i += blockSize)
            if (!ours.sendSignedLines(block))
                std::abort();
    });
    duel.run(9);
    return duel.demand("coTcpSocket::sendSignedLines", "QTcpSocket, each line hashed", 0.5);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    if (argc > 1)
        return Drain::run(static_cast<quint16>(std::atoi(argv[1])));
    const bool isFastThere = compareRoundTrips(Duel::OfWaiting);
    compareRoundTrips(Duel::OfProcessors);
    return compareManyLines() && isFastThere ? 0 : 1;
}
