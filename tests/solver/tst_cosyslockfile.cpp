#include "kdqtest.h"
#include "logcapture.h"

#include <kdQCore/coSysLockFile>

#include <atomic>

namespace {

/// A lock file as another owner may have left it.
bool forge(const QString& path, const QByteArray& record, int ageInSeconds = 0)
{
    QFile file(path);
    const QDateTime time = QDateTime::currentDateTime().addSecs(-ageInSeconds);
    return file.open(QIODevice::WriteOnly) && file.write(record) == record.size() && file.flush()
        && file.setFileTime(time, QFile::FileModificationTime);
}

/// The record of this process with one value replaced.
QByteArray recordWith(const QByteArray& key, const QByteArray& value)
{
    const QTemporaryDir folder;
    coSysLockFile lock(folder.filePath(S("own")));
    lock.lock();
    QByteArray record = kdqContentOf(lock.path());
    const int start = record.indexOf(key + '=') + key.size() + 1;
    return record.replace(start, record.indexOf('\n', start) - start, value);
}

QByteArray ownRecord()
{
    return recordWith("PID", QByteArray::number(QCoreApplication::applicationPid()));
}

QStringList namesIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

/// Another process that tries to take the lock and says whether it did; \a wrapper runs it.
class Helper : public QProcess {
public:
    explicit Helper(const QString& path, const QStringList& wrapper = {})
    {
        const QStringList command = wrapper + QStringList{S(LOCKHELPER), S("hold"), path};
        start(command.constFirst(), command.mid(1));
    }
    ~Helper() override
    {
        kill();
        waitForFinished();
    }
    bool holds() { return waitForReadyRead() && readLine().trimmed() == "held 1"; }
    bool ends()
    {
        closeWriteChannel();
        return waitForFinished();
    }
};

const QStringList nobody{S("setpriv"), S("--reuid=65534"), S("--clear-groups")};

bool canRun(const QStringList& command)
{
    return QProcess::execute(command.constFirst(), command.mid(1)) == 0;
}

} // namespace

class TestSysLockFile : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath(S("Größe.lock"));
    }
    void cleanup() { m_folder.reset(); }

    void ownerIsNamedAndKeepsOthersOut()
    {
        coSysLockFile owner(m_path);
        QVERIFY(owner.lock() && owner.tryLock(0));
        coSysLockFile other(m_path);
        for (const int timeout : {0, -1, 150})
            QVERIFY(!other.tryLock(timeout));
        QCOMPARE(other.error(), coSysLockFile::LockFailedError);
        owner.setStaleLockTime(1);
        QVERIFY(!owner.removeStaleLockFile()); // never its own
        coSysLockFile::Info info;
        QVERIFY(other.getLockInfo(&info));
        QCOMPARE(info.processId, QCoreApplication::applicationPid());
        QCOMPARE(info.applicationName, QCoreApplication::applicationName());
        QCOMPARE(info.processName, QFileInfo(QCoreApplication::applicationFilePath()).fileName());
        QVERIFY(!info.hostName.isEmpty() && !info.userName.isEmpty() && !info.processStartTime.isEmpty());
        owner.unlock();
        QVERIFY(!owner.isLocked() && !other.getLockInfo(&info) && other.lock());
        QCOMPARE(other.error(), coSysLockFile::NoError);
        other.unlock();
        QVERIFY(namesIn(m_folder->path()).isEmpty());
    }

    void waitsUntilAnotherProcessReleases()
    {
        Helper owner(m_path);
        QVERIFY(owner.holds());
        std::atomic<bool> isTaken{false};
        std::thread waiting([this, &isTaken] { isTaken = coSysLockFile(m_path).tryLock(60000); });
        const bool hasEnded = owner.ends();
        waiting.join();
        QVERIFY(hasEnded && isTaken);
    }

    void staleness_data()
    {
        QTest::addColumn<QByteArray>("record");
        QTest::addColumn<int>("age"); // seconds
        QTest::addColumn<int>("staleTime");
        QTest::addColumn<bool>("isStale");
        const QByteArray elsewhere = recordWith("HostName", "another").replace("PID=", "PID=-");
        kdqRow("living owner, just old enough", ownRecord(), 40, 30000, true);
        kdqRow("living owner, age off", ownRecord(), 4000000, 0, false);
        kdqRow("started later", recordWith("ProcessStartTime", "1@2"), 0, 0, true);
        kdqRow("other program", recordWith("ProcessName", "x"), 0, 0, true);
        kdqRow("no process", recordWith("PID", "0"), 0, 0, true);
        kdqRow("group of processes", recordWith("PID", "-1"), 0, 0, true);
        kdqRow("no host said", QByteArray("PID=0\n"), 0, 0, true);
        kdqRow("other host, young", elsewhere, 20, 30000, false);
        kdqRow("other host, old", elsewhere, 40, 30000, true);
        kdqRow("other host, negative age", elsewhere, 4000000, -1, false);
        kdqRow("from the future", elsewhere, -4000000, 1, false);
        kdqRow("empty, young", QByteArray(), 0, 30000, false);
        kdqRow("empty, old", QByteArray(), 40, 30000, true);
        kdqRow("no number", recordWith("PID", "0x"), 0, 30000, false);
        kdqRow("cut off in the number", recordWith("PID", "0").chopped(1), 0, 30000, false);
        kdqRow("odd lines, repeated key", QByteArray("PID=1\nnone\n=5\nPID= 0\t\r\n"), 0, 0, true);
        kdqRow("endless", QByteArray("PID=0\n" + QByteArray(100000, '\n')), 0, 30000, false);
    }

    void staleness()
    {
        QFETCH(QByteArray, record);
        QFETCH(int, age);
        QFETCH(int, staleTime);
        QFETCH(bool, isStale);
        coSysLockFile lock(m_path);
        lock.setStaleLockTime(staleTime);
        QVERIFY(forge(m_path, record, age));
        QCOMPARE(lock.tryLock(0), isStale);
        lock.unlock();
        QCOMPARE(kdqContentOf(m_path), isStale ? QByteArray() : record);
        QVERIFY(forge(m_path, record, age));
        QCOMPARE(lock.removeStaleLockFile(), isStale);
        QCOMPARE(namesIn(m_folder->path()).size(), isStale ? 0 : 1);
    }

    void refused_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("error");
        QTest::addColumn<QString>("log");
        kdqRow("missing folder", "no/x.lock", 3, "^Got unexpected locking error [1-9]\\d*$");
        kdqRow("a folder bears the name", "folder", 1, "");
        kdqRow("no room to break it", QString(249, QLatin1Char('n')), 3, "is too long");
    }

    void refused()
    {
        QFETCH(QString, name);
        QFETCH(QString, log);
        QVERIFY(QDir(m_folder->path()).mkdir(S("folder")));
        LogCapture capture;
        coSysLockFile lock(m_folder->filePath(name));
        lock.setStaleLockTime(1);
        QVERIFY(!lock.tryLock(0));
        QTEST(int(lock.error()), "error");
        QCOMPARE(namesIn(m_folder->path()), QStringList{S("folder")});
        QVERIFY(capture.texts().value(0).contains(QRegularExpression(log)));
    }

    void breakersLockEachOtherOut()
    {
        const QByteArray dead = recordWith("PID", "0");
        const QString path = m_folder->filePath(QString(248, QLatin1Char('n'))); // the longest one
        coSysLockFile lock(path);
        QVERIFY(forge(path, dead) && forge(path + S(".rmlock"), ownRecord()));
        QVERIFY(!lock.tryLock(0));
        QCOMPARE(kdqContentOf(path), dead);
        QVERIFY(forge(path + S(".rmlock"), dead) && lock.tryLock(0));
        QCOMPARE(namesIn(m_folder->path()).size(), 1);

        for (int round = 0; round < 20; ++round) {
            QVERIFY(forge(m_path, dead));
            coSysLockFile locks[2]{coSysLockFile(m_path), coSysLockFile(m_path)};
            std::atomic<int> ready{0};
            std::atomic<int> wins{0};
            kdqInThreads(2, [&](int number) {
                for (++ready; ready < 2;) { }
                wins += locks[number].tryLock(200); // Windows keeps the removed file's name while it is read
            });
            QCOMPARE(wins.load(), 1);
        }
    }

    // Faults that only another state of the system brings about, by the commands of Linux.
    void faultsOfTheSystem_data()
    {
        QTest::addColumn<QStringList>("wrapper");
        QTest::addColumn<int>("error");
        const auto mounted = [](const QString& fault) {
            const QString script = S("cd %1 && mount -t tmpfs -o size=8k none . && cd %1 && %2 && \"$0\" "
                                     "\"$@\"; status=$?; test ! -e x.lock && exit $status");
            return QStringList{S("unshare"), S("-rm"), S("sh"), S("-c"), script.arg(S("%1"), fault)};
        };
        kdqRow("no permission", nobody, 2);
        kdqRow("full disk", mounted(S("head -c 8192 /dev/zero >full")), 3);
        kdqRow("read-only disk", mounted(S("mount -o remount,ro none .")), 3);
    }

    void faultsOfTheSystem()
    {
        QFETCH(QStringList, wrapper);
        wrapper.last().replace(S("%1"), m_folder->path());
        if (!canRun(wrapper + QStringList{S("test"), S("-x"), S(LOCKHELPER)}))
            QSKIP("not possible on this system");
        QVERIFY(QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7755)));
        Helper helper(m_folder->filePath(S("x.lock")), wrapper);
        QVERIFY(helper.ends());
        QVERIFY(helper.readAllStandardOutput().startsWith("held 0"));
        QTEST(helper.exitCode(), "error");
        QVERIFY(namesIn(m_folder->path()).isEmpty());
    }

    void robbedOwnerLeavesTheNewOwnersFileAlone()
    {
        for (const bool touches : {true, false}) {
            LogCapture capture;
            coSysLockFile owner(m_path);
            QVERIFY(owner.lock());
            if (!QFile::remove(m_path))
                QSKIP("the system keeps the name from everyone");
            QVERIFY(forge(m_path, "foreign", 1000));
            QVERIFY(!touches || (!owner.touch() && !owner.isLocked()));
            owner.unlock();
            QCOMPARE(kdqContentOf(m_path), QByteArray("foreign"));
            QVERIFY(QFileInfo(m_path).lastModified().secsTo(QDateTime::currentDateTime()) > 900);
            QCOMPARE(capture.texts().size(), 1);
            QVERIFY(capture.texts().constFirst().contains(S("has been lost")));
            QVERIFY(QFile::remove(m_path));
        }
    }

    void relativePathStaysThatOfTheLock()
    {
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(m_folder->path()));
        coSysLockFile lock(S("x.lock"));
        const bool isTaken = lock.lock();
        QVERIFY(QDir::setCurrent(before));
        coSysLockFile::Info info;
        QVERIFY(isTaken && lock.getLockInfo(&info));
        lock.unlock();
        QVERIFY(namesIn(m_folder->path()).isEmpty());
    }

    void fileThatCannotBeRemovedIsLoggedOnce()
    {
        if (!kdqOnWindows && !canRun(nobody + QStringList{S("test"), S("-x"), S(LOCKHELPER)}))
            QSKIP("needs a second user");
        QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7777));
        Helper owner(m_path, kdqOnWindows ? QStringList() : nobody);
        QVERIFY(owner.holds());
        QFile reader(m_path); // on Windows enough to keep the file
        QVERIFY(reader.open(QIODevice::ReadOnly));
        QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7755));
        QVERIFY(owner.ends());
        QCOMPARE(owner.readLine().trimmed(), QByteArray("locked 0"));
        const QString expected =
            S("Could not remove our own lock file%1. Either other users of the lock file are reading it "
              "constantly for 500 ms, or we (no longer) have permissions to delete the file")
                .arg(QDir::toNativeSeparators(m_path));
        QCOMPARE(QString::fromLocal8Bit(owner.readAllStandardError()).count(expected), 1);
    }

    void threadsShareAnObject()
    {
        coSysLockFile shared(m_path);
        kdqInThreads(16, [&shared](int) {
            coSysLockFile::Info info;
            for (int i = 0; i < 30; ++i) {
                shared.tryLock(0);
                shared.touch();
                shared.getLockInfo(&info);
                shared.unlock();
            }
        });
        QVERIFY(namesIn(m_folder->path()).isEmpty());
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

KDQ_TEST_MAIN(TestSysLockFile)
#include "tst_cosyslockfile.moc"
