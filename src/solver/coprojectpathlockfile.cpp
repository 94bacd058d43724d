#include "coprojectpathlockfile.h"

#include <QDir>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace {

/// A thread that touches a lock until the lock is lost or the thread stopped. It runs only while the lock is
/// held: no tryLock() then sleeps under the lock's own mutex, it returns at once.
class Refresher {
public:
    Refresher(coSysLockFile& lock, int interval) : m_lock(lock), m_interval(interval) { }

    void start() { m_thread = std::thread(&Refresher::run, this); }

    void stop()
    {
        if (!m_thread.joinable())
            return;
        setStopping(true);
        m_stopped.notify_all();
        m_thread.join();
        setStopping(false);
    }

private:
    void run()
    {
        std::unique_lock locker(m_mutex);
        while (!m_stopped.wait_for(locker, m_interval, [this] { return m_isStopping; }))
            if (!m_lock.touch() && !m_lock.isLocked())
                return;
    }

    void setStopping(bool isStopping)
    {
        const std::lock_guard locker(m_mutex);
        m_isStopping = isStopping;
    }

    coSysLockFile& m_lock;
    const std::chrono::milliseconds m_interval;
    std::mutex m_mutex;
    std::condition_variable m_stopped;
    bool m_isStopping = false;
    std::thread m_thread;
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
    /// Makes taking and releasing one step each; held while tryLock() sleeps, so the refresher never waits on
    /// it.
    std::mutex taking;
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
    const std::lock_guard locker(d->taking);
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
    const std::lock_guard locker(d->taking);
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
