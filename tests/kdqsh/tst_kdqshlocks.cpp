#include "kdqshrun.h"
#include "kdqtest.h"

namespace {

const QString lockFile = S("kaldoran.lock");

/// A shell that goes on until its input ends or it is killed.
class OtherShell : public QProcess {
public:
    explicit OtherShell(const KdqshRun& shell)
    {
        setProcessEnvironment(shell.environment(shell.path(S("other"))));
        setWorkingDirectory(shell.folder());
        start(S(KDQSH_PROGRAM), {S("-")});
    }
    ~OtherShell() override
    {
        kill();
        waitForFinished();
    }
    /// Waits for the answer to a last command, so that all others have been run.
    bool runs(const QByteArray& commands)
    {
        write(commands + "; help quit\n");
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

/// Folders that the shell locks: by hand, and while it writes a deck in them.
class TestKdqshLocks : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void commands_data()
    {
        QTest::addColumn<QString>("commands");
        QTest::addColumn<QString>("output"); // patterns
        QTest::addColumn<QString>("errors");
        kdqRow("take, show, release", "lock take .; lock show .; lock release .; lock show .",
               "Folder '*' locked.\nFolder '*' is locked by * on * (kdqsh, process *), refreshed * s ago.\n"
               "Folder '*' released.\nFolder '*' is not locked.\n",
               "");
        kdqRow("deck in a folder locked by hand",
               "lock take .; deck open a.dat; lock release .; deck close; lock show .",
               "*stays locked for the open deck.\nDeck 'a.dat' written.\nFolder '*' is not locked.\n", "");
        kdqRow("hold", "lock hold . 0.01; lock show .", "*Folder '*' is not locked.\n", "");
        kdqRow("own lock is no stale one", "lock take .; lock break .", "*",
               "*The lock of '*' is not stale: * holds it.\n");
        kdqRow("not taken", "lock release .", "", "*has not been locked by 'lock take'.\n");
        kdqRow("missing folder", "lock take no", "", "*cannot be locked; the log says why.\n");
        kdqRow("negative time", "lock hold . -1", "", "*SECONDS must be 0 to 1000000*");
    }

    void commands()
    {
        QFETCH(QString, output);
        QFETCH(QString, errors);
        QFETCH(QString, commands);
        KdqshRun shell;
        QVERIFY(shell.runCommands(commands));
        QVERIFY2(QRegExp(output, Qt::CaseSensitive, QRegExp::WildcardUnix).exactMatch(shell.output),
                 qPrintable(shell.output));
        QVERIFY2(QRegExp(errors, Qt::CaseSensitive, QRegExp::WildcardUnix).exactMatch(shell.errors),
                 qPrintable(shell.errors));
        QVERIFY(!QFile::exists(shell.path(lockFile)));
    }

    void openDeckKeepsOthersOut()
    {
        KdqshRun shell;
        {
            OtherShell other(shell);
            QVERIFY(other.runs("deck open a.dat; deck comment kept; deck flush"));
            for (const QString& name : {S("a.dat"), S("b.dat")}) {
                QVERIFY(shell.runCommands(S("deck open ") + name));
                QCOMPARE(shell.status, 1);
                QVERIFY2(shell.errors.contains(S("(kdqsh, process ")), qPrintable(shell.errors));
            }
            QVERIFY(other.runs("deck close"));
            QCOMPARE(shell.read(S("a.dat")), QByteArray("$ kept\n"));
            QVERIFY(!QFile::exists(shell.path(S("b.dat"))) && !QFile::exists(shell.path(lockFile)));
            QVERIFY(other.runs("deck open a.dat"));
        }
        QVERIFY(QFile::exists(shell.path(lockFile))); // of a killed shell
        QVERIFY(shell.runCommands(S("deck open a.dat")));
        QCOMPARE(shell.status, 0);
        QVERIFY(!QFile::exists(shell.path(lockFile)));
    }

    void waitsForTheOwner()
    {
        KdqshRun shell;
        OtherShell owner(shell);
        QVERIFY(owner.runs("lock take ."));
        QVERIFY(shell.runCommands(S("lock take . wait 0.3")) && shell.status == 1);
        OtherShell waiting(shell);
        waiting.write("lock take . wait 600\n");
        QVERIFY(waiting.waitForReadyRead());
        QVERIFY(waiting.readAllStandardOutput().contains("Waiting for the lock of "));
        QVERIFY(owner.ends() && waiting.ends());
        QVERIFY(waiting.readAllStandardOutput().contains(" locked."));
    }
};

KDQ_TEST_MAIN(TestKdqshLocks)
#include "tst_kdqshlocks.moc"
