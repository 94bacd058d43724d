#include "kdqtest.h"
#include "logcapture.h"

#include <kdQCore/coProjectPathLockFile>

#include <thread>

namespace {

bool makeOld(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly)
        && file.setFileTime(QDateTime::currentDateTime().addSecs(-1000), QFile::FileModificationTime);
}

/// Without an event loop: the lock must not need one.
template <typename Condition>
bool waitUntil(Condition condition)
{
    const QDeadlineTimer deadline(30000);
    while (!condition() && !deadline.hasExpired())
        QThread::msleep(5);
    return condition();
}

bool isYoung(const QString& path)
{
    return QFileInfo(path).lastModified().secsTo(QDateTime::currentDateTime()) < 900;
}

} // namespace

class TestProjectPathLockFile : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void keepsItselfYoung()
    {
        const QTemporaryDir folder;
        coProjectPathLockFile owner(folder.path(), 10);
        for (int round = 0; round < 3; ++round) { // a released lock is refreshed again when it is taken again
            QVERIFY(owner.tryLock(0));
            QCOMPARE(QFileInfo(owner.path()).path(), folder.path());
            if (!makeOld(owner.path()))
                QSKIP("only the owner sets the time here");
            QVERIFY(waitUntil([&owner] { return isYoung(owner.path()); }));
            QVERIFY(!coProjectPathLockFile(folder.path()).tryLock(0));
            owner.unlock();
            QVERIFY(!QFile::exists(owner.path()));
        }
    }

    void lossIsNoticedAndTheLockCanBeTakenAgain()
    {
        const QTemporaryDir folder;
        LogCapture capture;
        coProjectPathLockFile owner(folder.path(), 10);
        QVERIFY(owner.tryLock(0));
        if (!QFile::remove(owner.path()))
            QSKIP("the system keeps the name from everyone");
        QVERIFY(waitUntil([&owner] { return !owner.isLocked(); }));
        QCOMPARE(owner.error(), coSysLockFile::LockFailedError);
        QCOMPARE(capture.texts().size(), 1);
        QVERIFY(owner.tryLock(0));
        QVERIFY(makeOld(owner.path()));
        QVERIFY(waitUntil([&owner] { return isYoung(owner.path()); }));
    }

    // The refresh of one lock and the taking of it by other threads never wait on each other.
    void threadsTakeAndReleaseWhileItRefreshes()
    {
        const QTemporaryDir folder;
        coProjectPathLockFile lock(folder.path(), 1);
        std::vector<std::thread> threads;
        for (int i = 0; i < 8; ++i)
            threads.emplace_back([&lock] {
                for (int round = 0; round < 20; ++round) {
                    lock.tryLock(50);
                    lock.unlock();
                }
            });
        for (std::thread& thread : threads)
            thread.join();
        QVERIFY(!QFile::exists(lock.path()));
    }
};

KDQ_TEST_MAIN(TestProjectPathLockFile)
#include "tst_coprojectpathlockfile.moc"
