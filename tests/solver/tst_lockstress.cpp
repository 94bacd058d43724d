// Locks between many processes, some of them killed. The environment makes the runs long.

#include "kdqtest.h"

#include <kdQCore/coSysLockFile>

#include <random>

namespace {

bool isLong()
{
    return qEnvironmentVariableIsSet("KDQ_LONG_RUN");
}

using Process = std::unique_ptr<QProcess>;

Process start(const QStringList& arguments)
{
    auto process = std::make_unique<QProcess>();
    process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process->start(QStringLiteral(LOCKHELPER), arguments);
    return process;
}

bool makeOld(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadWrite)
        && file.setFileTime(QDateTime::currentDateTime().addSecs(-1000), QFile::FileModificationTime);
}

} // namespace

class TestLockStress : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void nobodyHasTheLockBesideItsOwner()
    {
        const QString rounds = isLong() ? QStringLiteral("2000") : QStringLiteral("40");
        // wine opens files whose removal waits for their last reader: readers without a pause keep them for
        // ever.
        constexpr int processCount = kdqOnWindows ? 3 : 8;
        const QTemporaryDir folder;
        std::vector<Process> processes;
        for (int i = 0; i < processCount; ++i)
            processes.push_back(start({QStringLiteral("churn"), folder.filePath(QStringLiteral("lock")),
                                       folder.filePath(QStringLiteral("owner")), rounds}));
        for (const Process& process : processes) {
            QVERIFY(process->waitForFinished(600000));
            QCOMPARE(process->exitCode(), 0);
        }
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{QStringLiteral("owner")});
    }

    // Two processes compete without end; one of them at a time dies in the middle of it, and another takes
    // its place. None of them ever finds that it is not alone. At times both die, and this process takes the
    // lock.
    void killedOwnersNeverKeepTheLock()
    {
        const int kills = isLong() ? 200 : 20;
        constexpr unsigned seed = 7;
        std::mt19937 random(seed);
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("lock"));
        const QStringList arguments{QStringLiteral("churn"), path, folder.filePath(QStringLiteral("owner"))};
        Process processes[2];
        int halfWritten = 0;
        for (int killed = 0; killed < kills;) {
            for (Process& process : processes) {
                if (process != nullptr)
                    continue;
                process = start(arguments);
                QVERIFY(process->waitForReadyRead(30000));
            }
            QThread::usleep(random() % 20000);
            for (Process& process : processes) {
                if (random() % 3 == 0)
                    continue;
                process->kill();
                QVERIFY(process->waitForFinished());
                QVERIFY2(process->exitStatus() == QProcess::CrashExit, "the lock had two owners");
                process.reset();
                ++killed;
            }
            if (processes[0] == nullptr && processes[1] == nullptr)
                takeFromTheDead(path, halfWritten);
            if (QTest::currentTestFailed())
                return;
        }
        qInfo("seed %u: %d kills, %d half-written records met", seed, kills, halfWritten);
    }

private:
    /// One attempt where the records are whole, the age rule where their owners died too early.
    static void takeFromTheDead(const QString& path, int& halfWritten)
    {
        QStringList halves;
        for (const QString& name : {path, path + QStringLiteral(".rmlock")}) {
            coSysLockFile::Info info;
            if (QFile::exists(name) && !coSysLockFile(name).getLockInfo(&info))
                halves.append(name);
        }
        halfWritten += halves.size();
        coSysLockFile lock(path);
        if (!lock.tryLock(0)) {
            QVERIFY(!halves.isEmpty());
            for (const QString& name : qAsConst(halves))
                QVERIFY(makeOld(name));
            QVERIFY(lock.tryLock(0));
        }
        lock.unlock();
        QVERIFY(!QFile::exists(path));
    }
};

KDQ_TEST_MAIN(TestLockStress)
#include "tst_lockstress.moc"
