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
        other.bind(address == QHostAddress::LocalHost ? QHostAddress(S("127.0.0.2")) : address);
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

constexpr quint32 secondsTo2020 = 3786825600U; // of 1900
constexpr quint32 secondsTo2016 = 3660595200U;

} // namespace

class tst_cosntpclient : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void answers_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("fromElsewhere");
        QTest::addColumn<QString>("time");
        QTest::addColumn<QString>("error"); // "?" for any
        const QString timedOut = S("Network operation timed out");
        const QString broken = S("Invalid date.");
        kdqRow("good", answer(secondsTo2020), false, "2020-01-01T00:00:00Z", "");
        kdqRow("with extensions", answer(secondsTo2020, 68), false, "2020-01-01T00:00:00Z", "");
        kdqRow("47 bytes", answer(secondsTo2020, 47), false, "", "?");
        kdqRow("silence", QByteArray(), false, "", timedOut);
        kdqRow("from elsewhere", answer(secondsTo2020), true, "", timedOut);
        kdqRow("1900", answer(0), false, "1900-01-01T00:00:00Z", broken);
        kdqRow("2015", answer(secondsTo2016 - 1), false, "2015-12-31T23:59:59Z", broken);
        kdqRow("2016", answer(secondsTo2016), false, "2016-01-01T00:00:00Z", "");
        kdqRow("the last second", answer(0xFFFFFFFFU), false, "2036-02-07T06:28:15Z", "");
    }

    void answers()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, fromElsewhere);
        QFETCH(QString, error);
        for (const auto address : {QHostAddress::LocalHost, QHostAddress::LocalHostIPv6}) {
            const TimeServer server(bytes, address, fromElsewhere);
            coSntpClient client(QHostAddress(address).toString(), server.port());
            const bool isPatient = !error.contains(S("timed out"));
            QCOMPARE(client.update(isPatient ? 10000 : 100), error.isEmpty());
            QTEST(client.dateTime().toString(Qt::ISODate), "time");
            if (error == S("?"))
                QVERIFY(!client.errorString().isEmpty());
            else
                QCOMPARE(client.errorString(), error);
        }
    }

    void theQueryIsTheStatedOne()
    {
        TimeServer server(answer(secondsTo2020));
        coSntpClient client(S("localhost"), server.port());
        QVERIFY2(client.update(-1), qPrintable(client.errorString()));
        QCOMPARE(server.query().toHex(),
                 QByteArray("e30006ec0000000000000000314e3134").leftJustified(96, '0'));
    }

    void nobodyIsThere()
    {
        coSntpClient client(S("no-such-name.invalid"), 123);
        QVERIFY(!client.update(1000));
        QVERIFY(!client.errorString().isEmpty());
        quint16 port = 0;
        {
            QUdpSocket socket;
            QVERIFY(socket.bind(QHostAddress(QHostAddress::LocalHost)));
            port = socket.localPort();
        }
        client = coSntpClient(S("127.0.0.1"), port);
        QVERIFY(!client.update(1000));
        QVERIFY(!client.errorString().isEmpty() && client.dateTime().isNull());
    }

    void chronyIsUnderstood_data()
    {
        QTest::addColumn<QString>("address");
        kdqRow("IPv4", "127.0.0.1");
        kdqRow("IPv6", "::1");
    }

    void chronyIsUnderstood()
    {
        QFETCH(QString, address);
        const QString chronyd = QStandardPaths::findExecutable(
            S("chronyd"), qEnvironmentVariable("PATH").split(QDir::listSeparator()) << S("/usr/sbin"));
        if (chronyd.isEmpty())
            QSKIP("chronyd is not installed.");
        QTemporaryDir folder;
        QUdpSocket reserved;
        QVERIFY(reserved.bind(QHostAddress(address)));
        const quint16 port = reserved.localPort();
        reserved.close();
        const QString settings = folder.filePath(S("chrony.conf"));
        QVERIFY(kdqWrite(settings,
                         S("port %1\nbindaddress %2\nallow %2\nlocal stratum 8\ncmdport 0\n"
                           "bindcmdaddress /\npidfile %3\n")
                             .arg(QString::number(port), address, folder.filePath(S("pid")))
                             .toUtf8()));

        QProcess server; // in the foreground, with its hands off the system's clock
        server.setProcessChannelMode(QProcess::MergedChannels);
        server.start(
            chronyd,
            {S("-d"), S("-x"), S("-U"), S("-f"), settings, S("-u"), nPlatform::systemInformation().userName});
        coSntpClient client(address, port);
        bool isAnswered = false;
        // Until it has begun to serve.
        for (int i = 0; i < 100 && !isAnswered && !server.waitForFinished(50); ++i)
            isAnswered = client.update(1000);
        QVERIFY2(isAnswered, qPrintable(client.errorString() + QString::fromUtf8(server.readAll())));
        QVERIFY(qAbs(client.dateTime().secsTo(QDateTime::currentDateTimeUtc())) < 60);
        server.terminate();
        server.waitForFinished();
    }
};

KDQ_TEST_MAIN(tst_cosntpclient)
#include "tst_cosntpclient.moc"
