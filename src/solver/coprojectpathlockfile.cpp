#include "coprojectpathlockfile.h"

#include <QDir>
#include <QMutex>
#include <QThread>
#include <QWaitCondition>

namespace {

/// Touches a lock until it is lost or the thread is stopped. It runs only while the lock is held, when no
/// tryLock() sleeps under the lock's own mutex: tryLock() then returns at once.
class Refresher : public QThread {
public:
    Refresher(coSysLockFile& lock, int interval) : m_lock(lock), m_interval(interval) { }

    void stop()
    {
        setStopping(true);
        m_stopped.wakeAll();
        wait();
        setStopping(false);
    }

protected:
    void run() override
    {
        const QMutexLocker locker(&m_mutex);
        while (!m_isStopping) {
            m_stopped.wait(&m_mutex, static_cast<unsigned long>(m_interval));
            if (!m_isStopping && !m_lock.touch() && !m_lock.isLocked())
                return;
        }
    }

private:
    void setStopping(bool isStopping)
    {
        const QMutexLocker locker(&m_mutex);
        m_isStopping = isStopping;
    }

    coSysLockFile& m_lock;
    const int m_interval;
    QMutex m_mutex;
    QWaitCondition m_stopped;
    bool m_isStopping = false;
};

} // namespace

struct coProjectPathLockFile::Private {
    Private(const QString& givenFolder, int refreshInterval)
        : folder(givenFolder), interval(qMax(1, refreshInterval)),
          lock(QDir(folder).filePath(lockFileName())), refresher(lock, interval)
    {
    }

    const QString folder;
    const int interval;
    /// Makes taking and releasing one step each; held while tryLock() sleeps, so the refresher never waits on it.
    QMutex taking;
    coSysLockFile lock;
    Refresher refresher;
};

QString coProjectPathLockFile::lockFileName()
{
    return QStringLiteral("kaldoran.lock");
}

coProjectPathLockFile::coProjectPathLockFile(const QString& folder, int refreshInterval)
    : d(std::make_unique<Private>(folder, refreshInterval))
{
}

coProjectPathLockFile::~coProjectPathLockFile()
{
    unlock();
}

QString coProjectPathLockFile::folder() const
{
    return d->folder;
}

QString coProjectPathLockFile::path() const
{
    return d->lock.path();
}

int coProjectPathLockFile::refreshInterval() const
{
    return d->interval;
}

void coProjectPathLockFile::setStaleLockTime(int milliseconds)
{
    d->lock.setStaleLockTime(milliseconds);
}

int coProjectPathLockFile::staleLockTime() const
{
    return d->lock.staleLockTime();
}

bool coProjectPathLockFile::isLocked() const
{
    return d->lock.isLocked();
}

bool coProjectPathLockFile::getLockInfo(coSysLockFile::Info* info) const
{
    return d->lock.getLockInfo(info);
}

bool coProjectPathLockFile::lock()
{
    return tryLock(-1);
}

bool coProjectPathLockFile::tryLock(int timeoutMs)
{
    const QMutexLocker locker(&d->taking);
    if (d->lock.isLocked())
        return true;
    d->refresher.stop(); // of a lock that was lost
    if (!d->lock.tryLock(timeoutMs))
        return false;
    d->refresher.start();
    return true;
}

void coProjectPathLockFile::unlock()
{
    const QMutexLocker locker(&d->taking);
    d->refresher.stop();
    d->lock.unlock();
}

bool coProjectPathLockFile::touch()
{
    return d->lock.touch();
}

bool coProjectPathLockFile::removeStaleLockFile()
{
    return d->lock.removeStaleLockFile();
}

coSysLockFile::LockError coProjectPathLockFile::error() const
{
    return d->lock.error();
}
