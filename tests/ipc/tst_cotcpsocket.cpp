#include "kdqtest.h"
#include "logcapture.h"
#include "scriptedpeer.h"
#include "signedpart.h"

#include <kdQCore/coTcpSocket>

#include <QSemaphore>
#include <QSignalSpy>

namespace {

const QHostAddress loopback(QHostAddress::LocalHost);

/// Makes a call where another thread delivers its next event: the only way into a socket's worker.
class ProbingApplication : public QCoreApplication {
public:
    using QCoreApplication::QCoreApplication;

    std::function<void()> probe;
    std::atomic<bool> isArmed{false};

    bool notify(QObject* receiver, QEvent* event) override
    {
        if (QThread::currentThread() != thread() && isArmed.exchange(false))
            probe();
        return QCoreApplication::notify(receiver, event);
    }
};

} // namespace

class tst_cotcpsocket : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void lineOfAPeer_data();
    void lineOfAPeer();
    void peerClosesAtEveryPoint();
    void peerNeverReads();
    void peerSeesTheEndAtOnce();
    void linesAreSentTogetherOrNotAtAll();
    void bytesAreReadAsAsked();
    void endedConnectionIsToldAtOnce();
    void nobodyIsThere();
    void namesAndAddresses();
    void attemptUnderWayGivesWay();
    void theListenersHear();
    void floodIsHeldBack();
    void destructionEndsAPendingCall();
    void timeoutIsSetWhileACallRuns();
    void theWorkerCannotWaitForItself();
};

using Peer = ScriptedPeer;

void tst_cotcpsocket::lineOfAPeer_data()
{
    QTest::addColumn<QByteArray>("sent"); // after "hello", with the session of it
    QTest::addColumn<QString>("then");
    QTest::addColumn<QString>("received");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("error");
    const QByteArray good = signedLine("status", 0x1A2B);
    const QByteArray zeros = QByteArray("a\0b:  1A2B", 10);
    const QByteArray umlaut = signedLine("\xC3\xA4", 0x1A2B);
    const QByteArray wrong = QByteArray(good).replace(0, 1, "S");
    const QString silent = QStringLiteral("silent");
    const QString closes = QStringLiteral("closes");
    const QString timedOut = QStringLiteral("Operation timed out.");
    const QString closed = QStringLiteral("The remote host closed the connection");
    const auto row = [](const char* name, const QByteArray& sent, const QString& then,
                        const QString& received, int code = -1, const QString& error = QString()) {
        QTest::newRow(name) << sent << then << received << code << error;
    };
    row("good line", good, silent, QStringLiteral("status"));
    row("good line, then closed", good, closes, QStringLiteral("status"));
    row("byte by byte", good, QStringLiteral("bytewise"), QStringLiteral("status"));
    row("UTF-8", umlaut, silent, QStringLiteral("\u00E4"));
    row("zero inside", signedPart(zeros), silent, QString::fromLatin1("a\0b", 3));
    row("nothing", "", silent, {}, QAbstractSocket::SocketTimeoutError, timedOut);
    row("half a line", good.left(10), silent, {}, QAbstractSocket::SocketTimeoutError, timedOut);
    row("20 MB in one line", QByteArray(20000000, 'x') + '\n', silent, {}, -1,
        QStringLiteral("No tag separator found!"));
    row("10 MB without a line feed", QByteArray(10000000, 'x'), silent, {},
        QAbstractSocket::SocketTimeoutError, timedOut);
    row("resets", "", QStringLiteral("resets"), {}, QAbstractSocket::RemoteHostClosedError, closed);
    row("wrong signature", wrong, silent, {}, -1, QStringLiteral("Invalid message signature!"));
    row("other session", signedLine("status", 0x1A2C), silent, {}, -1, QStringLiteral("Invalid session ID!"));
}

void tst_cotcpsocket::lineOfAPeer()
{
    QFETCH(QByteArray, sent);
    QFETCH(QString, then);
    QFETCH(QString, received);
    QFETCH(int, code);
    QFETCH(QString, error);
    int connection = 0;
    Peer peer([&](QTcpSocket& socket) {
        if (connection++ > 0)
            return peer.echo(socket);
        Peer::send(socket, signedLine("hello", 0x1A2B));
        const int step = then == QLatin1String("bytewise") ? 1 : qMax(1, sent.size());
        for (int i = 0; i < sent.size(); i += step)
            Peer::send(socket, sent.mid(i, step));
        if (then == QLatin1String("resets")) {
            socket.waitForReadyRead(30000); // bytes that nobody reads turn the close into a reset
            socket.abort();
        } else if (then != QLatin1String("closes")) {
            peer.staySilent(socket);
        }
    });

    coTcpSocket socket;
    QString line;
    QVERIFY(socket.connectToHost(loopback, peer.port()));
    QVERIFY(socket.readSignedLine(line));
    QCOMPARE(line, QStringLiteral("hello"));
    if (then == QLatin1String("resets"))
        QVERIFY(socket.writeBlocking("unread"));
    QSignalSpy errors(&socket, &coTcpSocket::signalError);
    if (code == QAbstractSocket::SocketTimeoutError)
        socket.setTimeout(200);
    const bool isReceived = socket.readSignedLine(line);
    QCOMPARE(isReceived, error.isEmpty());
    QCOMPARE(int(socket.error()), code);
    QCOMPARE(socket.errorString(), error);
    QCOMPARE(errors.size(), isReceived ? 0 : 1);
    if (isReceived)
        QCOMPARE(line, received);
    else
        QCOMPARE(errors.first(), (QVariantList{code, error}));

    socket.setTimeout(-1);
    QVERIFY(socket.connectToHost(loopback, peer.port()));
    QVERIFY(socket.sendSignedLine(QStringLiteral("again")));
    QVERIFY2(socket.readSignedLine(line), qPrintable(socket.errorString()));
    QCOMPARE(line, QStringLiteral("again"));
    QVERIFY(socket.errorString().isEmpty());
}

void tst_cotcpsocket::peerClosesAtEveryPoint()
{
    const QByteArray good = signedLine("status", 0x1A2B);
    int cut = 0;
    Peer peer([&](QTcpSocket& socket) { Peer::send(socket, good.left(cut++)); });
    coTcpSocket socket;
    QString line;
    for (int i = 0; i <= good.size(); ++i) {
        QVERIFY(socket.connectToHost(loopback, peer.port()));
        QCOMPARE(socket.readSignedLine(line), i == good.size());
        if (i < good.size())
            QCOMPARE(socket.error(), QAbstractSocket::RemoteHostClosedError);
    }
}

void tst_cotcpsocket::peerNeverReads()
{
    QSemaphore mayRead;
    QSemaphore hasRead;
    QByteArray much; // shows a byte that is lost or comes in another's place
    for (int i = 0; much.size() < 20000000; ++i)
        much += QByteArray::number(i);
    std::atomic<int> whole{0};
    Peer peer([&](QTcpSocket& socket) {
        socket.setReadBufferSize(1000);
        mayRead.tryAcquire(1, 30000);
        socket.setReadBufferSize(0);
        QByteArray taken;
        while (socket.bytesAvailable() > 0 || socket.waitForReadyRead(10000))
            taken += socket.readAll();
        whole += taken == much;
        hasRead.release();
    });
    coTcpSocket socket;
    QVERIFY(socket.connectToHost(loopback, peer.port()));
    socket.setTimeout(200);
    QVERIFY(!socket.writeBlocking(much));
    QCOMPARE(socket.error(), QAbstractSocket::SocketTimeoutError);
    socket.disconnectFromHostBlocking();
    QCOMPARE(socket.error(), QAbstractSocket::SocketTimeoutError);
    QCOMPARE(socket.state(), QAbstractSocket::ClosingState);
    // The rest still goes out when the peer takes it, also while more is written.
    socket.setTimeout(-1);
    mayRead.release();
    socket.disconnectFromHostBlocking();
    QCOMPARE(socket.state(), QAbstractSocket::UnconnectedState);
    QVERIFY(hasRead.tryAcquire(1, 30000));
    QVERIFY(socket.connectToHost(loopback, peer.port()));
    mayRead.release();
    socket.setTimeout(0);
    const int most = much.size() - 1000000;
    socket.writeBlocking(much.left(most));
    for (int i = most; i < much.size(); i += 1000)
        socket.writeBlocking(much.mid(i, 1000));
    socket.setTimeout(-1);
    socket.disconnectFromHostBlocking();
    QVERIFY(hasRead.tryAcquire(1, 30000));
    QCOMPARE(whole.load(), 2);
}

void tst_cotcpsocket::peerSeesTheEndAtOnce()
{
    std::atomic<int> ended{0};
    Peer peer([&](QTcpSocket& socket) {
        while (socket.waitForReadyRead(20000)) { }
        ended += socket.state() == QAbstractSocket::UnconnectedState && socket.readAll() == "good bye";
    });
    int count = 0;
    auto socket = std::make_unique<coTcpSocket>();
    const std::function<void()> endings[] = {
        [&] { socket->disconnectFromHost(); },
        [&] { socket->close(); },
        [&] { QVERIFY(socket->connectToHost(loopback, peer.port())); },
        [&] { socket.reset(); },
    };
    for (const auto& end : endings) {
        if (socket->state() == QAbstractSocket::UnconnectedState)
            QVERIFY(socket->connectToHost(loopback, peer.port()));
        QVERIFY(socket->writeBlocking("good bye"));
        end();
        ++count;
        QTRY_COMPARE_WITH_TIMEOUT(ended.load(), count, 15000);
    }
}

void tst_cotcpsocket::linesAreSentTogetherOrNotAtAll()
{
    Peer peer([&](QTcpSocket& socket) { peer.echo(socket); });
    coTcpSocket socket;
    QVERIFY(socket.writeBlocking({})); // nothing, to nobody
    QVERIFY(!socket.sendSignedLine(QStringLiteral("nobody")));
    QVERIFY(socket.connectToHost(loopback, peer.port()));
    QVERIFY(!socket.sendSignedLines({QStringLiteral("a"), QString(2049, QLatin1Char('x'))}));
    QCOMPARE(socket.errorString(), QStringLiteral("The message is too long!"));
    QCOMPARE(socket.error(), QAbstractSocket::UnknownSocketError);
    QVERIFY(socket.sendSignedLines({}));
    QVERIFY(socket.sendSignedLines({QStringLiteral("b"), QStringLiteral("\u00E4\u20AC")}));
    QString line;
    QVERIFY(socket.readSignedLine(line));
    QCOMPARE(line, QStringLiteral("b"));
    QVERIFY(socket.readSignedLine(line)); // Latin-1 out, UTF-8 in
    QCOMPARE(line, QStringLiteral("\uFFFD?"));
    QCOMPARE(socket.bytesAvailable(), qint64(0));
}

void tst_cotcpsocket::bytesAreReadAsAsked()
{
    Peer peer([&](QTcpSocket& socket) { peer.echo(socket); });
    coTcpSocket socket;
    QVERIFY(socket.connectToHost(loopback, peer.port()));
    QCOMPARE(socket.peerPort(), peer.port());
    QCOMPARE(socket.peerAddress(), loopback);
    QVERIFY(socket.writeBlocking("one\ntwo"));
    QTRY_COMPARE(socket.bytesAvailable(), qint64(7));
    QVERIFY(socket.canReadLine());
    QCOMPARE(socket.readBlocking(4), QByteArray("one\n"));
    QVERIFY(!socket.canReadLine());
    QCOMPARE(socket.readBlocking(0), QByteArray("two"));
    QVERIFY(socket.writeBlocking("three"));
    QCOMPARE(socket.readBlocking(Q_INT64_C(1) << 40).left(1), QByteArray("t"));
    socket.close();
    QCOMPARE(socket.state(), QAbstractSocket::UnconnectedState);
}

void tst_cotcpsocket::endedConnectionIsToldAtOnce()
{
    Peer peer([](QTcpSocket& socket) {
        socket.waitForReadyRead(20000);
        Peer::send(socket, socket.readAll());
        socket.waitForReadyRead(50); // long enough for the worker to give up waiting
        Peer::send(socket, "later");
        socket.waitForReadyRead(20000);
        Peer::send(socket, "last words");
    });
    coTcpSocket socket;
    QString line;
    QVERIFY(socket.readBlocking(0).isEmpty());
    QCOMPARE(socket.errorString(), QStringLiteral("The socket is not connected."));
    QVERIFY(socket.connectToHost(loopback, peer.port()));
    QVERIFY(socket.writeBlocking("?"));
    QCOMPARE(socket.readBlocking(0), QByteArray("?")); // received by the caller, the last words by the worker
    QCOMPARE(socket.readBlocking(0), QByteArray("later"));
    QVERIFY(socket.writeBlocking("!"));
    QTRY_COMPARE(socket.state(), QAbstractSocket::UnconnectedState);
    QCOMPARE(socket.readBlocking(0), QByteArray("last words"));
    // None of these may wait for its minute.
    QVERIFY(socket.readBlocking(0).isEmpty());
    QCOMPARE(socket.error(), QAbstractSocket::RemoteHostClosedError);
    QVERIFY(!socket.readSignedLine(line));
    QVERIFY(!socket.writeBlocking("x"));
    QCOMPARE(socket.error(), QAbstractSocket::RemoteHostClosedError);
    socket.disconnectFromHostBlocking();
    QVERIFY(socket.errorString().isEmpty());
    QVERIFY(!socket.setSocketDescriptor(-1));
    QVERIFY(!socket.errorString().isEmpty());
}

void tst_cotcpsocket::nobodyIsThere()
{
    quint16 port = 0;
    {
        QTcpServer server;
        QVERIFY(server.listen(loopback));
        port = server.serverPort();
    }
    coTcpSocket socket;
    QSignalSpy errors(&socket, &coTcpSocket::signalError);
    const LogCapture log;
    socket.readBlocking(0);
    const QString lastError = socket.errorString();
    QVERIFY(!lastError.isEmpty());
    QVERIFY(!socket.connectToHost(loopback, port));
    QCOMPARE(socket.errorString(), lastError);
    QCOMPARE(errors.size(), 1);
    QCOMPARE(errors.first().first().toInt(), int(QAbstractSocket::ConnectionRefusedError));
    const QString text = errors.first().last().toString();
    QVERIFY(!text.isEmpty());
    QVERIFY(log.contains(kdLog::Fault, kdLog::Socket,
                         QStringLiteral("Connection to '127.0.0.1' failed: %1 (0)").arg(text)));
    QCOMPARE(log.records().last().file, QStringLiteral("cotcpsocket"));
}

void tst_cotcpsocket::namesAndAddresses()
{
    Peer peer([&](QTcpSocket& socket) { peer.echo(socket); });
    Peer sixth([&](QTcpSocket& socket) { sixth.echo(socket); }, QHostAddress::LocalHostIPv6);
    coTcpSocket socket;
    QSignalSpy errors(&socket, &coTcpSocket::signalError);
    QVERIFY(socket.connectToHost(QStringLiteral("localhost"), peer.port()));
    QVERIFY(socket.connectToHost(QStringLiteral("127.0.0.1"), peer.port()));
    QVERIFY(socket.connectToHost(QStringLiteral("::1"), sixth.port()));
    QCOMPARE(socket.peerAddress(), QHostAddress(QHostAddress::LocalHostIPv6));
    QVERIFY(!socket.connectToHost(QStringLiteral("no-such-name.invalid"), peer.port()));
    QVERIFY(socket.errorString().isEmpty() && errors.isEmpty());
    QCOMPARE(socket.state(), QAbstractSocket::ConnectedState);
}

void tst_cotcpsocket::attemptUnderWayGivesWay()
{
    // A server that never accepts; once its queue is full, the system leaves further callers waiting.
    QTcpServer full;
    QVERIFY(full.listen(loopback));
    std::vector<std::unique_ptr<QTcpSocket>> callers;
    do {
        callers.push_back(std::make_unique<QTcpSocket>());
        callers.back()->connectToHost(loopback, full.serverPort());
    } while (callers.back()->waitForConnected(200) && callers.size() < 500);
    if (callers.back()->state() == QAbstractSocket::ConnectedState)
        QSKIP("This system's queue takes any number of callers.");

    Peer peer([&](QTcpSocket& socket) { peer.echo(socket); });
    coTcpSocket socket;
    for (int round = 0; round < 3; ++round) {
        socket.setTimeout(100);
        QVERIFY(!socket.connectToHost(loopback, full.serverPort()));
        QCOMPARE(socket.state(), QAbstractSocket::ConnectingState);
        socket.setTimeout(-1);
        switch (round) {
        case 0:
            QVERIFY(socket.connectToHost(loopback, peer.port()));
            break;
        case 1:
            socket.disconnectFromHostBlocking();
            break;
        default:
            socket.close();
        }
        QCOMPARE(socket.state(),
                 round == 0 ? QAbstractSocket::ConnectedState : QAbstractSocket::UnconnectedState);
    }
}

void tst_cotcpsocket::theListenersHear()
{
    Peer peer([&](QTcpSocket& socket) { peer.echo(socket); });
    coTcpSocket socket;
    QStringList heard;
    QString answer;
    connect(&socket, &coTcpSocket::connected, [&] { heard += QStringLiteral("connected"); });
    connect(&socket, &coTcpSocket::bytesWritten, [&](qint64 n) { heard += QString::number(n); });
    connect(&socket, &coTcpSocket::readyRead, [&] { // a blocking call in a slot
        QCOMPARE(QThread::currentThread(), thread());
        answer += QString::fromLatin1(socket.readBlocking(0));
        if (answer.size() == 5)
            socket.disconnectFromHost();
    });
    connect(&socket, &coTcpSocket::disconnected, [&] { heard += QStringLiteral("disconnected"); });
    QSignalSpy states(&socket, &coTcpSocket::stateChanged);
    QVERIFY(socket.connectToHost(loopback, peer.port()));
    QVERIFY(socket.writeBlocking("12345"));
    QTRY_VERIFY(heard.contains(QStringLiteral("disconnected")));
    QCOMPARE(answer, QStringLiteral("12345"));
    QCOMPARE(heard,
             (QStringList{QStringLiteral("connected"), QStringLiteral("5"), QStringLiteral("disconnected")}));
    QCOMPARE(states.last().first().value<QAbstractSocket::SocketState>(), QAbstractSocket::UnconnectedState);
}

void tst_cotcpsocket::floodIsHeldBack()
{
    QSemaphore started;
    constexpr int most = 16 * 1024 * 1024;
    Peer peer([&](QTcpSocket& socket) {
        const QByteArray chunk = QByteArray("0123456789").repeated(100000);
        while (!peer.isEnding() && socket.state() == QAbstractSocket::ConnectedState) {
            socket.write(chunk);
            while (socket.bytesToWrite() > 0 && socket.waitForBytesWritten(100)) { }
            if (socket.bytesToWrite() > 10000000)
                break;
        }
        started.release();
        peer.staySilent(socket);
    });
    coTcpSocket socket;
    QVERIFY(socket.connectToHost(loopback, peer.port()));
    started.acquire(); // the peer cannot get rid of more
    const qint64 available = socket.bytesAvailable();
    QVERIFY2(available > most / 2 && available <= most, qPrintable(QString::number(available)));
    qint64 count = 0; // what is held back comes once there is room, in its order
    while (count <= most) {
        const QByteArray bytes = socket.readBlocking(qMin<qint64>(socket.bytesAvailable(), 1000000));
        for (const char byte : bytes)
            if (byte != '0' + count++ % 10)
                QFAIL(qPrintable(QStringLiteral("'%1' at %2").arg(byte).arg(count - 1)));
        QVERIFY(!bytes.isEmpty());
    }
}

void tst_cotcpsocket::destructionEndsAPendingCall()
{
    Peer peer([&](QTcpSocket& socket) { peer.staySilent(socket); });
    auto socket = std::make_unique<coTcpSocket>();
    QVERIFY(socket->connectToHost(loopback, peer.port()));
    QSemaphore isPending;
    connect(socket.get(), &coTcpSocket::op_readLineBlocking, [&] { isPending.release(); });
    bool isRead = true;
    QString error;
    connect(
        socket.get(), &coTcpSocket::signalError, socket.get(),
        [&](int, const QString& text) { error = text; }, Qt::DirectConnection);
    std::thread reader([&, s = socket.get()] {
        QString line;
        isRead = s->readSignedLine(line);
    });
    isPending.acquire();
    socket.reset();
    reader.join();
    QVERIFY(!isRead);
    QCOMPARE(error, QStringLiteral("The socket is being destroyed."));
}

void tst_cotcpsocket::timeoutIsSetWhileACallRuns()
{
    QSemaphore mayEnd;
    Peer peer([&](QTcpSocket&) { mayEnd.tryAcquire(1, 30000); });
    coTcpSocket socket;
    QVERIFY(socket.connectToHost(loopback, peer.port()));
    QSemaphore isPending;
    connect(&socket, &coTcpSocket::op_readBlocking, [&] { isPending.release(); });
    std::thread reader([&] { socket.readBlocking(0); });
    isPending.acquire();
    socket.setTimeout(1000); // neither waits for the reader
    QVERIFY(socket.errorString().isEmpty());
    mayEnd.release();
    reader.join();
    QCOMPARE(socket.error(), QAbstractSocket::RemoteHostClosedError);
}

void tst_cotcpsocket::theWorkerCannotWaitForItself()
{
    auto& application = static_cast<ProbingApplication&>(*QCoreApplication::instance());
    coTcpSocket socket;
    QString error;
    bool isSent = true;
    application.probe = [&] {
        isSent = socket.sendSignedLine(QStringLiteral("x"));
        error = socket.errorString();
    };
    application.isArmed = true;
    socket.disconnectFromHost(); // the worker makes a call before it answers
    QVERIFY(!isSent);
    QCOMPARE(error, QStringLiteral("The socket's own thread cannot wait for the socket."));
}

int main(int argc, char** argv)
{
    ProbingApplication application(argc, argv);
    kdqPrepareTest("tst_cotcpsocket");
    tst_cotcpsocket test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_cotcpsocket.moc"
