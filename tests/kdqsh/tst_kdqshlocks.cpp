#include "kdqshrun.h"
#include "kdqtest.h"

/// Folders that the shell locks: by hand, and while it writes a deck in them.
class TestKdqshLocks : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void commands_data();
    void commands();
    void openDeckKeepsOthersOut();
    void lockOfAKilledShellIsTaken();
    void waitsForTheOwner();
};

#define S(text) QStringLiteral(text)

namespace {

const QString lockFile = S("kaldoran.lock");

/// A shell that goes on until it is told to end.
class OtherShell : public QProcess {
public:
    explicit OtherShell(const KdqshRun& shell)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(S("LANGUAGE"), S("en"));
        environment.insert(S("LOCALAPPDATA"), shell.path(S("other")));
        setProcessEnvironment(environment);
        setWorkingDirectory(shell.folder());
        start(S(KDQSH_PROGRAM), {S("-")});
    }
    ~OtherShell() override
    {
        kill();
        waitForFinished();
    }

    /// Runs the commands, then waits for the answer to one more.
    bool runs(const QByteArray& commands)
    {
        write(commands + "\nhelp quit\n");
        QByteArray answer;
        while (!answer.contains("Ends the session") && waitForReadyRead())
            answer += readAllStandardOutput();
        return answer.contains("Ends the session");
    }
    bool ends()
    {
        closeWriteChannel();
        return waitForFinished() && exitCode() == 0;
    }
};

} // namespace

void TestKdqshLocks::commands_data()
{
    QTest::addColumn<QString>("commands");
    QTest::addColumn<QString>("output"); // patterns
    QTest::addColumn<QString>("errors");
    const QString none;
    QTest::newRow("take, show, release")
        << S("lock show .; lock take .; lock show .; lock release .; lock show .")
        << S("Folder '*' is not locked.\nFolder '*' locked.\nFolder '*' is locked by * on * (kdqsh, process "
             "*), "
             "refreshed * s ago.\nFolder '*' released.\nFolder '*' is not locked.\n")
        << none;
    QTest::newRow("a deck in a folder locked by hand")
        << S("lock take .; deck open a.dat; lock release .; deck close; lock show .")
        << S("*stays locked for the open deck.\nDeck 'a.dat' written.\nFolder '*' is not locked.\n") << none;
    QTest::newRow("hold ends by itself")
        << S("lock hold . 0.01; lock show .") << S("*Folder '*' is not locked.\n") << none;
    QTest::newRow("failed deck releases")
        << S("deck open .; lock show .") << none << S("*deck open: The deck '.' cannot be opened*");
    QTest::newRow("own lock is no stale one")
        << S("lock take .; lock break .") << S("*")
        << S("*lock break: The lock of '*' is not stale: * (kdqsh, process *) holds it.\n");
    QTest::newRow("nothing to break") << S("lock break .") << none << S("*Folder '*' is not locked.\n");
    QTest::newRow("not taken") << S("lock release .") << none << S("*has not been locked by 'lock take'.\n");
    QTest::newRow("missing folder") << S("lock take no") << none
                                    << S("*cannot be locked; the log says why.\n");
    QTest::newRow("no time") << S("lock hold . soon") << none
                             << S("*SECONDS must be a number, not 'soon'.\n");
    QTest::newRow("negative time") << S("lock take . wait -1") << none << S("*SECONDS must be 0 to 1000000*");
}

void TestKdqshLocks::commands()
{
    QFETCH(QString, commands);
    QFETCH(QString, output);
    QFETCH(QString, errors);
    KdqshRun shell;
    QVERIFY(shell.runCommands(commands));
    const auto matches = [](const QString& text, const QString& pattern) {
        return QRegularExpression(QRegularExpression::anchoredPattern(
                                      QRegularExpression::escape(pattern).replace(S("\\*"), S(".*"))),
                                  QRegularExpression::DotMatchesEverythingOption)
            .match(text)
            .hasMatch();
    };
    QVERIFY2(matches(shell.output, output), qPrintable(shell.output));
    QVERIFY2(matches(shell.errors, errors), qPrintable(shell.errors));
    QVERIFY(!QFile::exists(shell.path(lockFile)));
}

void TestKdqshLocks::openDeckKeepsOthersOut()
{
    KdqshRun shell;
    OtherShell other(shell);
    QVERIFY(other.runs("deck open a.dat; deck comment kept; deck flush"));
    const auto isRefused = [&shell](const QString& commands) {
        return shell.runCommands(commands) && shell.status == 1 && shell.errors.contains(S(" is locked by "))
            && shell.errors.contains(S("(kdqsh, process "));
    };
    QVERIFY2(isRefused(S("deck open a.dat")), qPrintable(shell.errors));
    QVERIFY2(isRefused(S("deck open b.dat")), qPrintable(shell.errors));
    QVERIFY(!QFile::exists(shell.path(S("b.dat"))));
    QVERIFY(other.runs("deck close"));
    QCOMPARE(shell.read(S("a.dat")), QByteArray("$ kept\n"));
    QVERIFY(other.runs("deck open a.dat"));
    QVERIFY(other.ends());
    QVERIFY(!QFile::exists(shell.path(lockFile)));
    QVERIFY(shell.runCommands(S("deck open b.dat")) && shell.status == 0);
}

void TestKdqshLocks::lockOfAKilledShellIsTaken()
{
    KdqshRun shell;
    {
        OtherShell other(shell);
        QVERIFY(other.runs("deck open a.dat"));
    }
    QVERIFY(QFile::exists(shell.path(lockFile)));
    QVERIFY(shell.runCommands(S("deck open a.dat; deck close; lock break .")));
    QVERIFY(shell.errors.contains(S("is not locked")));
}

void TestKdqshLocks::waitsForTheOwner()
{
    KdqshRun shell;
    OtherShell owner(shell);
    QVERIFY(owner.runs("lock take ."));
    QVERIFY(shell.runCommands(S("lock take . wait 0.3")) && shell.status == 1);
    QVERIFY(shell.output.startsWith(S("Waiting for the lock of ")));
    OtherShell waiting(shell);
    waiting.write("lock take . wait 600\n");
    QVERIFY(waiting.waitForReadyRead()); // its first line says that it waits
    QVERIFY(owner.ends());
    QVERIFY(waiting.ends());
    QVERIFY(waiting.readAllStandardOutput().contains(" locked."));
}

KDQ_TEST_MAIN(TestKdqshLocks)
#include "tst_kdqshlocks.moc"
