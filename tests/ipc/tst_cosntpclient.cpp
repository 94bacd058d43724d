#include "kdqtest.h"
#include "platform.h"

#include <kdQCore/coSntpClient>

#include <QProcess>
#include <QTemporaryDir>
#include <QtEndian>
#include <QUdpSocket>

#include <atomic>
#include <future>
#include <thread>

namespace {

QByteArray answer(quint32 seconds, int size = 48)
{
    char time[4];
    qToBigEndian(seconds, time);
    return QByteArray(size, '\xFF').replace(40, 4, time, 4);
}

/// A time server on loopback, in a thread of its own, that gives one answer to every query.
class TimeServer {
public:
    /// With \a fromElsewhere the answer leaves from another socket than the one that was asked.
    explicit TimeServer(const QByteArray& answer, const QHostAddress& address = QHostAddress::LocalHost,
                        bool fromElsewhere = false)
    {
        std::promise<quint16> port;
        std::future<quint16> bound = port.get_future();
        m_thread = std::thread([=, &port] { serve(answer, address, fromElsewhere, port); });
        m_port = bound.get();
    }

    ~TimeServer()
    {
        m_isEnding = true;
        m_thread.join();
    }

    Q_DISABLE_COPY(TimeServer)

    quint16 port() const { return m_port; }
    /// Valid once the answer is there.
    QByteArray query() const { return m_query; }

private:
    void serve(const QByteArray& answer, const QHostAddress& address, bool fromElsewhere,
               std::promise<quint16>& port)
    {
        QUdpSocket socket;
        QUdpSocket other;
        socket.bind(address);
        other.bind(address == QHostAddress::LocalHost ? QHostAddress(QStringLiteral("127.0.0.2")) : address);
        port.set_value(socket.localPort());
        while (!m_isEnding) {
            if (!socket.waitForReadyRead(20))
                continue;
            QByteArray query(1000, '\0');
            QHostAddress client;
            quint16 clientPort = 0;
            query.truncate(int(socket.readDatagram(query.data(), query.size(), &client, &clientPort)));
            m_query = query;
            if (!answer.isEmpty())
                (fromElsewhere ? other : socket).writeDatagram(answer, client, clientPort);
        }
    }

    std::thread m_thread;
    std::atomic<bool> m_isEnding{false};
    QByteArray m_query;
    quint16 m_port = 0;
};

const QDateTime year2020(QDate(2020, 1, 1), QTime(0, 0), Qt::UTC);
constexpr quint32 secondsTo2020 = 3786825600U; // of 1900
constexpr quint32 secondsTo2016 = 3660595200U;

} // namespace

class tst_cosntpclient : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void answers_data();
    void answers();
    void theQueryIsTheStatedOne();
    void nobodyIsThere();
    void chronyIsUnderstood_data();
    void chronyIsUnderstood();
};

void tst_cosntpclient::answers_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("fromElsewhere");
    QTest::addColumn<QDateTime>("time");
    QTest::addColumn<QString>("error"); // "?" for any
    const QString timedOut = QStringLiteral("Network operation timed out");
    const QString broken = QStringLiteral("Invalid date.");
    QTest::newRow("good") << answer(secondsTo2020) << false << year2020 << QString();
    QTest::newRow("with extensions") << answer(secondsTo2020, 68) << false << year2020 << QString();
    QTest::newRow("47 bytes") << answer(secondsTo2020, 47) << false << QDateTime() << QStringLiteral("?");
    QTest::newRow("silence") << QByteArray() << false << QDateTime() << timedOut;
    QTest::newRow("from elsewhere") << answer(secondsTo2020) << true << QDateTime() << timedOut;
    QTest::newRow("1900") << answer(0) << false << QDateTime(QDate(1900, 1, 1), QTime(0, 0), Qt::UTC)
                          << broken;
    QTest::newRow("2015") << answer(secondsTo2016 - 1) << false
                          << QDateTime(QDate(2015, 12, 31), QTime(23, 59, 59), Qt::UTC) << broken;
    QTest::newRow("2016") << answer(secondsTo2016) << false
                          << QDateTime(QDate(2016, 1, 1), QTime(0, 0), Qt::UTC) << QString();
    QTest::newRow("the last second") << answer(0xFFFFFFFFU) << false
                                     << QDateTime(QDate(2036, 2, 7), QTime(6, 28, 15), Qt::UTC) << QString();
}

void tst_cosntpclient::answers()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, fromElsewhere);
    QFETCH(QDateTime, time);
    QFETCH(QString, error);
    for (const auto address : {QHostAddress::LocalHost, QHostAddress::LocalHostIPv6}) {
        const TimeServer server(bytes, address, fromElsewhere);
        coSntpClient client(QHostAddress(address).toString(), server.port());
        const bool isPatient = error != QLatin1String("Network operation timed out");
        QCOMPARE(client.update(isPatient ? 10000 : 100), error.isEmpty());
        QCOMPARE(client.dateTime(), time);
        if (error == QLatin1String("?"))
            QVERIFY(!client.errorString().isEmpty());
        else
            QCOMPARE(client.errorString(), error);
    }
}

void tst_cosntpclient::theQueryIsTheStatedOne()
{
    TimeServer server(answer(secondsTo2020));
    coSntpClient client(QStringLiteral("localhost"), server.port());
    QVERIFY2(client.update(-1), qPrintable(client.errorString()));
    QCOMPARE(server.query().toHex(),
             QByteArray("e30006ec"
                        "0000000000000000"
                        "314e3134")
                 .leftJustified(96, '0'));
    const coSntpClient copy = client;
    QCOMPARE(copy.dateTime(), year2020);
}

void tst_cosntpclient::nobodyIsThere()
{
    coSntpClient client(QStringLiteral("no-such-name.invalid"), 123);
    QVERIFY(!client.update(1000));
    QVERIFY(!client.errorString().isEmpty());
    quint16 port = 0;
    {
        QUdpSocket socket;
        QVERIFY(socket.bind(QHostAddress(QHostAddress::LocalHost)));
        port = socket.localPort();
    }
    client = coSntpClient(QStringLiteral("127.0.0.1"), port);
    QVERIFY(!client.update(1000));
    QVERIFY(!client.errorString().isEmpty() && client.dateTime().isNull());
}

void tst_cosntpclient::chronyIsUnderstood_data()
{
    QTest::addColumn<QString>("address");
    QTest::newRow("IPv4") << QStringLiteral("127.0.0.1");
    QTest::newRow("IPv6") << QStringLiteral("::1");
}

void tst_cosntpclient::chronyIsUnderstood()
{
    QFETCH(QString, address);
    const QString chronyd = QStandardPaths::findExecutable(
        QStringLiteral("chronyd"),
        qEnvironmentVariable("PATH").split(QDir::listSeparator()) << QStringLiteral("/usr/sbin"));
    if (chronyd.isEmpty())
        QSKIP("chronyd is not installed.");
    QTemporaryDir folder;
    QUdpSocket reserved;
    QVERIFY(reserved.bind(QHostAddress(address)));
    const quint16 port = reserved.localPort();
    reserved.close();
    QFile file(folder.filePath(QStringLiteral("chrony.conf")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QStringLiteral("port %1\nbindaddress %2\nallow %2\nlocal stratum 8\ncmdport 0\n"
                              "bindcmdaddress /\npidfile %3\n")
                   .arg(QString::number(port), address, folder.filePath(QStringLiteral("pid")))
                   .toUtf8());
    file.close();

    QProcess server; // in the foreground, with its hands off the system's clock
    server.setProcessChannelMode(QProcess::MergedChannels);
    server.start(chronyd,
                 {QStringLiteral("-d"), QStringLiteral("-x"), QStringLiteral("-U"), QStringLiteral("-f"),
                  file.fileName(), QStringLiteral("-u"), nPlatform::systemInformation().userName});
    coSntpClient client(address, port);
    bool isAnswered = false;
    for (int i = 0; i < 100 && !isAnswered && !server.waitForFinished(50); ++i) // until it has begun to serve
        isAnswered = client.update(1000);
    QVERIFY2(isAnswered, qPrintable(client.errorString() + QString::fromUtf8(server.readAll())));
    QVERIFY(qAbs(client.dateTime().secsTo(QDateTime::currentDateTimeUtc())) < 60);
    server.terminate();
    server.waitForFinished();
}

KDQ_TEST_MAIN(tst_cosntpclient)
#include "tst_cosntpclient.moc"
