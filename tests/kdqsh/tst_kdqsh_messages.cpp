#include "kdqshrun.h"
#include "kdqtest.h"

#include <QRegularExpression>

/// Two shells that talk to each other.
class TestKdqshMessages : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void shellsGreet();
};

#define S(text) QStringLiteral(text)

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

KDQ_TEST_MAIN(TestKdqshMessages)
#include "tst_kdqsh_messages.moc"
