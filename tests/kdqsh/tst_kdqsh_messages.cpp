#include "kdqshrun.h"
#include "kdqtest.h"

#include <QUdpSocket>

/// Two shells that talk to each other.
class TestKdqshMessages : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void shellsGreet();
    void linesAreExchanged();
    void commandsRunInTheOtherShell();
    void theTimeIsAsked();

private:
    /// Of the line that tells where a shell listens.
    static QString port(KdqshRun& shell)
    {
        const QString line = shell.nextLine();
        return QRegularExpression(QStringLiteral("port (\\d+)")).match(line).captured(1);
    }
};

void TestKdqshMessages::shellsGreet()
{
    KdqshRun listener;
    listener.start({S("-c"), S("ipc listen welding greetings 2")});
    const QString pid = QRegularExpression(S("\\d+")).match(listener.nextLine()).captured();
    KdqshRun greeter;
    QVERIFY(
        greeter.runCommands(S("ipc greet welding %1; ipc greet welding %1 say 'good day, Jürgen'").arg(pid)));
    const QString greeting = S("Greeting received: [PID=%1] Kaldoran Service %2.0\n");
    const QString version = S(KDQSH_VERSION);
    QCOMPARE(greeter.errors, QString());
    QCOMPARE(greeter.output, greeting.arg(pid, version).repeated(2));

    QVERIFY(listener.finish());
    const QString other = QRegularExpression(S("PID=(\\d+)")).match(listener.output).captured(1);
    QVERIFY(other != pid);
    const QString heard = S("[PID=%1] Kaldoran Service %2.0: good day, Jürgen\n").arg(other, version);
    QCOMPARE(listener.output,
             S("Process %1 listens as welding.\n").arg(pid) + greeting.arg(other, version).repeated(2)
                 + heard);
    QCOMPARE(listener.status, 0);
}

void TestKdqshMessages::linesAreExchanged()
{
    KdqshRun server;
    server.start({S("-q"), S("-c"), S("tcp serve; tcp receive; tcp send 'answer: ok'; tcp receive")});
    KdqshRun client;
    QVERIFY(client.runCommands(
        S("tcp connect localhost %1; tcp send 'a  question: ?'; tcp receive; tcp close").arg(port(server)),
        {S("-q")}));
    QCOMPARE(client.errors, QString());
    QCOMPARE(client.output, S("answer: ok\n"));
    QVERIFY(server.finish());
    QVERIFY(server.output.endsWith(S("\na  question: ?\n")));
    QCOMPARE(server.errors,
             S("-c:1: tcp receive: Nothing received: The remote host closed the connection\n"));
    QCOMPARE(server.status, 1);
}

void TestKdqshMessages::commandsRunInTheOtherShell()
{
    KdqshRun server;
    QVERIFY(server.write(S("curve.csv"), "x;y\n0;1\n2;3\n"));
    server.start({S("-c"), S("remote serve clients 2; table list")});
    const QString number = port(server);
    KdqshRun stranger; // is sent away, and the next one is served
    QVERIFY(stranger.runCommands(
        S("tcp connect ::ffff:127.0.0.1 %1; tcp receive; tcp send x; tcp receive").arg(number), {S("-q")}));
    QCOMPARE(stranger.output, S("hello kdqsh %1\n").arg(S(KDQSH_VERSION)));
    QVERIFY(stranger.errors.contains(S("The remote host closed the connection")));

    const QString longWord = S("C:\\new\\\u20AC").repeated(400);
    KdqshRun client;
    QVERIFY(client.runCommands(S("remote connect 127.0.0.1 %1\n"
                                 "remote run table import curve.csv as 'a \u20AC'\n"
                                 "remote run 'table lookup \"a \u20AC\" 1; table lookup x 1'\n"
                                 "remote run remote serve\n"
                                 "remote run undo\n"
                                 "remote run %2\n"
                                 "remote run table import curve.csv as left\n"
                                 "remote run quit\n"
                                 "remote run table list")
                                   .arg(number, longWord),
                               {S("-k")}));
    QCOMPARE(client.status, 1);
    QCOMPARE(client.output,
             S("Connected to kdqsh %1.\n"
               "Table 'a \u20AC': 2 rows, 2 columns.\n"
               "2 -\n"
               "Undone: table import curve.csv as \"a \u20AC\"\n"
               "Table 'left': 2 rows, 2 columns.\n")
                 .arg(S(KDQSH_VERSION)));
    QCOMPARE(client.errors,
             S("-c:3: remote run: table lookup: There is no table 'x', only a \u20AC.\n"
               "-c:4: remote run: remote serve: This shell serves already.\n"
               "-c:6: remote run: Unknown command: >%1<!\n"
               "-c:9: remote run: The other shell does not answer: The remote host closed the connection\n")
                 .arg(longWord));
    QVERIFY(server.finish());
    QCOMPARE(server.errors, QString());
    QVERIFY(server.output.endsWith(S("Serving 127.0.0.1.\nTable 'left': 2 rows, 2 columns.\n")));
}

void TestKdqshMessages::theTimeIsAsked()
{
    QUdpSocket server;
    QVERIFY(server.bind(QHostAddress(QHostAddress::LocalHost)));
    KdqshRun shell;
    shell.start(
        {S("-q"), S("-c"), S("time ask server 127.0.0.1 port %1 timeout 30").arg(server.localPort())});
    QVERIFY(server.waitForReadyRead(30000));
    QHostAddress client;
    quint16 port = 0;
    server.readDatagram(nullptr, 0, &client, &port);
    server.writeDatagram(QByteArray(48, '\xE1'), client, port);
    QVERIFY(shell.finish());
    QCOMPARE(shell.errors, QString());
    QCOMPARE(shell.output, S("2020-02-03T00:03:45Z\n"));
}

KDQ_TEST_MAIN(TestKdqshMessages)
#include "tst_kdqsh_messages.moc"
