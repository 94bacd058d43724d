#include "kdqtest.h"
#include "logcapture.h"

#include <kdQCore/coSysLockFile>

#include <atomic>
#include <thread>

namespace {

QString text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A lock file as another owner may have left it.
bool forge(const QString& path, const QByteArray& record, int ageInSeconds = 0)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(record) == record.size() && file.flush()
        && file.setFileTime(QDateTime::currentDateTime().addSecs(-ageInSeconds),
                            QFileDevice::FileModificationTime);
}

/// The record of this process with some lines replaced.
QByteArray recordWith(const QMap<QByteArray, QByteArray>& values)
{
    QTemporaryDir folder;
    coSysLockFile lock(folder.filePath(text("own")));
    lock.lock();
    QByteArray result;
    const QList<QByteArray> lines = contentOf(lock.path()).split('\n');
    for (const QByteArray& line : lines) {
        const QByteArray key = line.left(line.indexOf('='));
        if (!key.isEmpty())
            result += values.contains(key) ? key + '=' + values.value(key) + '\n' : line + '\n';
    }
    return result;
}

QStringList namesIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

class Helper : public QProcess {
public:
    Helper(const QStringList& arguments, const QStringList& wrapper = {})
    {
        const QStringList command = wrapper + QStringList{text(LOCKHELPER)} + arguments;
        start(command.constFirst(), command.mid(1));
    }
    ~Helper() override
    {
        kill();
        waitForFinished();
    }

    QByteArray line() { return canReadLine() || waitForReadyRead() ? readLine().trimmed() : QByteArray(); }
    bool ends()
    {
        closeWriteChannel();
        return waitForFinished();
    }
};

bool canRun(const QStringList& command)
{
    QProcess process;
    process.start(command.constFirst(), command.mid(1));
    return process.waitForFinished() && process.error() == QProcess::UnknownError && process.exitCode() == 0;
}

} // namespace

class TestSysLockFile : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath(text("Größe.lock"));
    }
    void cleanup() { m_folder.reset(); }

    void ownerIsNamedAndKeepsOthersOut()
    {
        coSysLockFile owner(m_path);
        QVERIFY(owner.lock());
        QVERIFY(owner.tryLock(0)); // holds it already
        coSysLockFile other(m_path);
        other.setStaleLockTime(0);
        for (const int timeout : {0, -1, 150}) {
            QVERIFY(!other.tryLock(timeout));
            QCOMPARE(other.error(), coSysLockFile::LockFailedError);
        }
        QVERIFY(!other.lock() && !other.isLocked() && !other.removeStaleLockFile());
        coSysLockFile::Info info;
        QVERIFY(other.getLockInfo(&info));
        QCOMPARE(info.processId, QCoreApplication::applicationPid());
        QCOMPARE(info.applicationName, QCoreApplication::applicationName());
        QCOMPARE(info.processName, QFileInfo(QCoreApplication::applicationFilePath()).fileName());
        QVERIFY(!info.hostName.isEmpty() && !info.userName.isEmpty() && !info.processStartTime.isEmpty());

        owner.unlock();
        QVERIFY(!owner.isLocked() && !other.getLockInfo(&info));
        QVERIFY(other.lock());
        QCOMPARE(other.error(), coSysLockFile::NoError);
        other.unlock();
        QVERIFY(namesIn(m_folder->path()).isEmpty());
    }

    void waitsForTheOwnerToRelease()
    {
        Helper owner({text("hold"), m_path});
        QCOMPARE(owner.line(), QByteArray("held 1"));
        std::atomic<bool> isTaken{false};
        std::thread waiting([this, &isTaken] { isTaken = coSysLockFile(m_path).tryLock(60000); });
        const bool ended = owner.ends();
        waiting.join();
        QVERIFY(ended && isTaken);
    }

    void lockOfAnEndedProcessIsTakenAtOnce()
    {
        Helper owner({text("abandon"), m_path});
        QVERIFY(owner.waitForFinished());
        QVERIFY(!contentOf(m_path).isEmpty());
        coSysLockFile lock(m_path);
        lock.setStaleLockTime(0);
        QVERIFY(lock.tryLock(0));
        QCOMPARE(namesIn(m_folder->path()).size(), 1);
    }

    void staleness_data()
    {
        QTest::addColumn<QByteArray>("record");
        QTest::addColumn<int>("age"); // seconds
        QTest::addColumn<int>("staleTime");
        QTest::addColumn<bool>("isStale");
        const QByteArray own = recordWith({});
        const QByteArray elsewhere = recordWith({{"HostName", "another"}, {"PID", "0"}});
        QTest::newRow("living owner, young") << own << 0 << 30000 << false;
        QTest::newRow("living owner, just old enough") << own << 40 << 30000 << true;
        QTest::newRow("living owner, age off") << own << 4000000 << 0 << false;
        QTest::newRow("id of a process that started later")
            << recordWith({{"ProcessStartTime", "1@2"}}) << 0 << 0 << true;
        QTest::newRow("id of another program") << recordWith({{"ProcessName", "x"}}) << 0 << 0 << true;
        QTest::newRow("no process") << recordWith({{"PID", "0"}}) << 0 << 0 << true;
        QTest::newRow("group of processes") << recordWith({{"PID", "-1"}}) << 0 << 0 << true;
        QTest::newRow("no host said") << recordWith({{"HostName", ""}, {"PID", "0"}}) << 0 << 0 << true;
        QTest::newRow("other host, young") << elsewhere << 20 << 30000 << false;
        QTest::newRow("other host, old") << elsewhere << 40 << 30000 << true;
        QTest::newRow("other host, age off") << elsewhere << 4000000 << 0 << false;
        QTest::newRow("other host, negative age") << elsewhere << 4000000 << -1 << false;
        QTest::newRow("from the future") << elsewhere << -4000000 << 1 << false;
        QTest::newRow("empty, young") << QByteArray() << 0 << 30000 << false;
        QTest::newRow("empty, old") << QByteArray() << 40 << 30000 << true;
        QTest::newRow("no number") << recordWith({{"PID", "0x"}}) << 0 << 30000 << false;
        QTest::newRow("lines to skip, blanks, CR, a repeated key")
            << QByteArray("PID=1\r\nnone\r\n=5\r\n" + recordWith({{"PID", "0\t "}}).replace('\n', "\r\n"))
            << 0 << 0 << true;
        QTest::newRow("endless") << QByteArray("PID=0\n" + QByteArray(100000, '\n')) << 0 << 30000 << false;
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
        QCOMPARE(contentOf(m_path), isStale ? QByteArray() : record);
        QVERIFY(forge(m_path, record, age));
        QCOMPARE(lock.removeStaleLockFile(), isStale);
        QCOMPARE(namesIn(m_folder->path()).size(), isStale ? 0 : 1);
    }

    void noPartOfARecordPassesForTheWhole()
    {
        const QByteArray whole = recordWith({{"PID", "12"}});
        coSysLockFile lock(m_path);
        coSysLockFile::Info info;
        for (int size = 0; size < whole.size(); ++size) {
            QVERIFY(forge(m_path, whole.left(size)));
            QVERIFY2(!lock.getLockInfo(&info), whole.left(size).constData());
        }
        QVERIFY(forge(m_path, whole) && lock.getLockInfo(&info));
        QCOMPARE(info.processId, qint64(12));
    }

    void refused_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("error");
        QTest::addColumn<QString>("log");
        QTest::newRow("missing folder") << text("no/x.lock") << 3 << text("cannot be created");
        QTest::newRow("a folder bears the name") << text("folder") << 1 << QString();
        QTest::newRow("no room to break it") << QString(249, QLatin1Char('n')) << 3 << text("is too long");
        QTest::newRow("longest name") << QString(255, QLatin1Char('n')) << 3 << text("is too long");
    }

    void refused()
    {
        QFETCH(QString, name);
        QFETCH(QString, log);
        QVERIFY(QDir(m_folder->path()).mkdir(text("folder")));
        LogCapture capture;
        coSysLockFile lock(m_folder->filePath(name));
        lock.setStaleLockTime(1);
        QVERIFY(!lock.tryLock(0));
        QTEST(int(lock.error()), "error");
        QCOMPARE(namesIn(m_folder->path()), QStringList{text("folder")});
        QVERIFY(log.isEmpty() ? capture.texts().isEmpty() : capture.texts().last().contains(log));
        if (capture.texts().size() > 1) // the system's own number
            QVERIFY(QRegularExpression(text("^Got unexpected locking error [1-9]\\d*$"))
                        .match(capture.texts().first())
                        .hasMatch());
    }

    void longestNameIsBrokenToo()
    {
        const QString path = m_folder->filePath(QString(248, QLatin1Char('n')));
        const QByteArray dead = recordWith({{"PID", "0"}});
        QVERIFY(forge(path, dead) && forge(path + text(".rmlock"), dead));
        coSysLockFile lock(path);
        QVERIFY(lock.tryLock(0));
        QCOMPARE(namesIn(m_folder->path()).size(), 1);
    }

    void guardOfAnotherBreakerIsRespected()
    {
        const QByteArray dead = recordWith({{"PID", "0"}});
        QVERIFY(forge(m_path, dead) && forge(m_path + text(".rmlock"), recordWith({})));
        coSysLockFile lock(m_path);
        QVERIFY(!lock.tryLock(0));
        QCOMPARE(contentOf(m_path), dead);
        QVERIFY(forge(m_path + text(".rmlock"), dead));
        QVERIFY(lock.tryLock(0));
    }

    // Faults that only another system's state brings about. The commands are those of Linux.
    void faultsOfTheSystem_data()
    {
        QTest::addColumn<QStringList>("wrapper");
        QTest::addColumn<int>("error");
        const QString nobody = text("--reuid=65534");
        QTest::newRow("no permission") << QStringList{text("setpriv"), nobody, text("--clear-groups")} << 2;
        // A file system of its own for the helper; the record finds no page there.
        const QString mounted = text("mount -t tmpfs -o size=8k none %1 && ");
        const QString helper = text(" && exec \"$0\" \"$@\"");
        const auto inNamespace = [](const QString& script) {
            return QStringList{text("unshare"), text("-rm"), text("sh"), text("-c"), script};
        };
        QTest::newRow("full disk") << inNamespace(mounted + text("head -c 8192 /dev/zero > %1/full") + helper)
                                   << 3;
        QTest::newRow("read-only disk")
            << inNamespace(mounted + text("mount -o remount,ro none %1") + helper) << 3;
    }

    void faultsOfTheSystem()
    {
        QFETCH(QStringList, wrapper);
        const QString folder = m_folder->path();
        for (QString& word : wrapper)
            word.replace(text("%1"), folder);
        if (!canRun(wrapper + QStringList{text("test"), text("-x"), text(LOCKHELPER)}))
            QSKIP("not possible on this system");
        QVERIFY(QFile::setPermissions(folder, QFile::Permissions(0x7755)));
        if (wrapper.size() == 5)
            wrapper.last()
                .replace(text("exec"), text("\"$0\" \"$@\"; status=$?; ls %1 >&2; exit $status; : "))
                .replace(text("%1"), folder);
        Helper helper({text("take"), folder + text("/x.lock")}, wrapper);
        QVERIFY(helper.ends());
        QCOMPARE(helper.readAllStandardOutput(), QByteArray("taken 0\n"));
        QTEST(helper.exitCode(), "error");
        QVERIFY(!helper.readAllStandardError().contains("\nx.lock"));
        QVERIFY(namesIn(folder).isEmpty());
    }

    void robbedOwnerLeavesTheNewOwnersFileAlone()
    {
        const QByteArray foreign = recordWith({{"HostName", "another"}});
        for (const bool touches : {true, false}) {
            LogCapture capture;
            coSysLockFile owner(m_path);
            QVERIFY(owner.lock());
            if (!QFile::remove(m_path)) {
                QVERIFY(kdqOnWindows); // the system keeps the name from everyone
                return;
            }
            QVERIFY(forge(m_path, foreign, 1000));
            if (touches) {
                QVERIFY(!owner.touch() && !owner.isLocked());
                QCOMPARE(owner.error(), coSysLockFile::LockFailedError);
            }
            owner.unlock();
            QVERIFY(!owner.isLocked());
            QCOMPARE(contentOf(m_path), foreign);
            QVERIFY(QFileInfo(m_path).lastModified().secsTo(QDateTime::currentDateTime()) > 900);
            QCOMPARE(capture.texts().size(), 1);
            QVERIFY(capture.texts().constFirst().contains(text("has been lost")));
            QVERIFY(QFile::remove(m_path));
        }
    }

    void touchKeepsALockFromLookingOld()
    {
        coSysLockFile owner(m_path);
        QVERIFY(!owner.touch());
        QVERIFY(owner.lock());
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        if (!file.setFileTime(QDateTime::currentDateTime().addSecs(-1000), QFile::FileModificationTime))
            QSKIP("only the owner sets the time here");
        file.close();
        QVERIFY(owner.touch());
        QVERIFY(!coSysLockFile(m_path).tryLock(0));
    }

    void relativePathStaysThatOfTheLock()
    {
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(m_folder->path()));
        coSysLockFile lock(text("x.lock"));
        const bool isTaken = lock.lock();
        QVERIFY(QDir::setCurrent(before));
        coSysLockFile::Info info;
        QVERIFY(isTaken && lock.getLockInfo(&info));
        lock.unlock();
        QVERIFY(namesIn(m_folder->path()).isEmpty());
    }

    void fileThatCannotBeRemovedIsLoggedOnce()
    {
        QStringList wrapper;
        if (!kdqOnWindows) {
            wrapper = QStringList{text("setpriv"), text("--reuid=65534"), text("--clear-groups")};
            if (!canRun(wrapper + QStringList{text("test"), text("-x"), text(LOCKHELPER)}))
                QSKIP("needs a second user");
            QVERIFY(QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7777)));
        }
        Helper owner({text("hold"), m_path}, wrapper);
        QCOMPARE(owner.line(), QByteArray("held 1"));
        QFile reader(m_path); // on Windows enough to keep the file
        QVERIFY(reader.open(QIODevice::ReadOnly));
        QVERIFY(QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7755)));
        QVERIFY(owner.ends());
        QCOMPARE(owner.line(), QByteArray("locked 0"));
        const QString log = QString::fromLocal8Bit(owner.readAllStandardError());
        const QString expected =
            text("Could not remove our own lock file%1. Either other users of the lock file are reading it "
                 "constantly for 500 ms, or we (no longer) have permissions to delete the file")
                .arg(QDir::toNativeSeparators(m_path));
        QCOMPARE(log.count(expected), 1);
    }

    void twoBreakersOneWins()
    {
        const QByteArray dead = recordWith({{"PID", "0"}});
        for (int round = 0; round < 50; ++round) {
            QVERIFY(forge(m_path, dead));
            coSysLockFile locks[2]{coSysLockFile(m_path), coSysLockFile(m_path)};
            std::atomic<int> ready{0};
            std::atomic<int> wins{0};
            const auto compete = [&](coSysLockFile& lock) {
                for (++ready; ready < 2;) { }
                wins += lock.tryLock(0);
            };
            std::thread other(compete, std::ref(locks[1]));
            compete(locks[0]);
            other.join();
            QCOMPARE(wins.load(), 1);
        }
    }

    void threadsShareAnObjectAndCompeteWithOthers()
    {
        constexpr int threadCount = 16;
        coSysLockFile shared(m_path);
        std::atomic<int> holders{0};
        std::atomic<int> collisions{0};
        const auto useShared = [&shared] {
            coSysLockFile::Info info;
            for (int i = 0; i < 50; ++i) {
                shared.tryLock(0);
                shared.touch();
                shared.getLockInfo(&info);
                shared.setStaleLockTime(30000 + int(shared.isLocked()));
                shared.unlock();
            }
        };
        const auto useOwn = [&] {
            coSysLockFile own(m_path + text("2"));
            for (int i = 0; i < 20; ++i) {
                if (!own.tryLock(0))
                    continue;
                collisions += ++holders != 1;
                --holders;
                own.unlock();
            }
        };
        std::vector<std::thread> threads;
        for (int i = 0; i < threadCount; ++i) {
            threads.emplace_back(useShared);
            threads.emplace_back(useOwn);
        }
        for (std::thread& thread : threads)
            thread.join();
        QCOMPARE(collisions.load(), 0);
        QVERIFY(namesIn(m_folder->path()).isEmpty());
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

KDQ_TEST_MAIN(TestSysLockFile)
#include "tst_cosyslockfile.moc"
