#include "kdqtest.h"
#include "logcapture.h"

#include <kdQCore/coProjectPathLockFile>

namespace {

/// Without an event loop: the lock must not need one.
template <typename Condition>
bool waitUntil(Condition condition)
{
    const QDeadlineTimer deadline(30000);
    while (!condition() && !deadline.hasExpired())
        QThread::msleep(5);
    return condition();
}

/// Makes the lock file old; true when it has become young again.
bool becomesYoung(const QString& path)
{
    const QDateTime young = QFileInfo(path).lastModified();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)
        || !file.setFileTime(young.addSecs(-1000), QFile::FileModificationTime))
        return kdqOnWindows; // where only the owner sets the time
    file.close();
    return waitUntil([&path, &young] { return QFileInfo(path).lastModified() >= young; });
}

} // namespace

class TestProjectPathLockFile : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void keepsItselfYoungUntilItIsLost()
    {
        const QTemporaryDir folder;
        LogCapture capture;
        coProjectPathLockFile owner(folder.path(), 10);
        for (int round = 0; round < 3; ++round) {
            QVERIFY(owner.tryLock(0) && becomesYoung(owner.path()) && becomesYoung(owner.path()));
            QVERIFY(!coProjectPathLockFile(folder.path()).tryLock(0));
            owner.unlock();
        }
        QVERIFY(owner.tryLock(0) && capture.texts().isEmpty());
        if (!QFile::remove(owner.path()))
            QSKIP("the system keeps the name from everyone");
        QVERIFY(waitUntil([&owner] { return !owner.isLocked(); }));
        QCOMPARE(owner.error(), coSysLockFile::LockFailedError);
        QCOMPARE(capture.texts().size(), 1);
        QVERIFY(owner.tryLock(0) && becomesYoung(owner.path()));
    }

    void threadsTakeAndReleaseWhileItRefreshes()
    {
        const QTemporaryDir folder;
        coProjectPathLockFile lock(folder.path(), 1);
        kdqInThreads(8, [&lock](int) {
            for (int round = 0; round < 20; ++round) {
                lock.tryLock(50);
                lock.unlock();
            }
        });
        QVERIFY(!QFile::exists(lock.path()));
    }
};

KDQ_TEST_MAIN(TestProjectPathLockFile)
#include "tst_coprojectpathlockfile.moc"
