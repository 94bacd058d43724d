#include "cosyslockfile.h"

#include "lockrecord_p.h"
#include "platform.h"

#include <kdQCore/kdLog>

#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QThread>

#include <mutex>
#include <optional>

using nPlatform::ExclusiveFile;
using nPlatform::FileSnapshot;
using nPlatform::Removal;

namespace {
const QLatin1String guardSuffix(".rmlock");

FileSnapshot lookAt(const QString& path)
{
    return nPlatform::lookAtFile(path, lockRecord::maximalSize);
}

} // namespace

struct coSysLockFile::Private {
    explicit Private(const QString& givenPath)
        : path(givenPath), nativePath(QDir::toNativeSeparators(givenPath)),
          isAbsolute(QDir::isAbsolutePath(givenPath))
    {
    }

    LockError attempt();
    LockError creationError(const QString& target) const;
    LockError writingFailed();
    bool removeOwnFile();
    void reportLoss() const;

    bool countsAsStale(const FileSnapshot& lock) const;
    bool breakStaleLock();

    QString absolutePath() const;
    static bool hasRoomForGuard(const QString& target);

    std::recursive_mutex mutex;
    const QString path;
    const QString nativePath;
    const bool isAbsolute;
    QString heldPath; ///< of the lock file; a relative path may mean another one by now
    ExclusiveFile file;
    int staleLockTime = defaultStaleLockTime;
    LockError error = NoError;
    bool isLocked = false;
    bool isGuard = false; ///< of another lock, while that is broken
};

QString coSysLockFile::Private::absolutePath() const
{
    if (isLocked)
        return heldPath;
    return isAbsolute ? nativePath : QDir::toNativeSeparators(QDir::current().absoluteFilePath(path));
}

bool coSysLockFile::Private::hasRoomForGuard(const QString& target)
{
    return nPlatform::isLengthAllowed(target, guardSuffix.size());
}

coSysLockFile::LockError coSysLockFile::Private::attempt()
{
    const QString target = absolutePath();
    if (!isGuard && !hasRoomForGuard(target)) {
        KD_LOG(kdLog::Error, kdLog::General,
               QStringLiteral("The name of the lock file '%1' is too long.").arg(target));
        return UnknownError;
    }
    if (!file.create(target))
        return creationError(target);
    if (!file.write(lockRecord::ofThisProcess()) || !file.flush())
        return writingFailed();
    heldPath = target;
    return NoError;
}

coSysLockFile::LockError coSysLockFile::Private::creationError(const QString& target) const
{
    if (file.failure() == ExclusiveFile::Failure::Exists)
        return LockFailedError;
    if (file.failure() == ExclusiveFile::Failure::NotPermitted)
        return PermissionError;
    const QString code = QString::number(file.errorCode());
    KD_LOG(kdLog::Error, kdLog::General, QStringLiteral("Got unexpected locking error %0").arg(code));
    KD_LOG(kdLog::Error, kdLog::General,
           QStringLiteral("The lock file '%1' cannot be created: %2")
               .arg(target, nPlatform::systemErrorText(file.errorCode()).trimmed()));
    return UnknownError;
}

coSysLockFile::LockError coSysLockFile::Private::writingFailed()
{
    KD_LOG(kdLog::Error, kdLog::General,
           QStringLiteral("The lock file '%1' cannot be written: %2")
               .arg(absolutePath(), nPlatform::systemErrorText(file.errorCode()).trimmed()));
    removeOwnFile();
    return UnknownError;
}

/// False where the file had been lost to somebody else.
bool coSysLockFile::Private::removeOwnFile()
{
    constexpr int attempts = 500;
    Removal removal = file.remove();
    for (int made = 1; removal == Removal::Failed && made < attempts; ++made) {
        QThread::msleep(1);
        removal = file.remove();
    }
    file.close();
    if (removal == Removal::Failed)
        KD_LOG(kdLog::Error, kdLog::General,
               QStringLiteral(
                   "Could not remove our own lock file%1. Either other users of the lock file are reading it "
                   "constantly for 500 ms, or we (no longer) have permissions to delete the file")
                   .arg(absolutePath()));
    return removal == Removal::Done || removal == Removal::Failed;
}

void coSysLockFile::Private::reportLoss() const
{
    KD_LOG(kdLog::Error, kdLog::General,
           QStringLiteral(
               "The lock '%1' has been lost: another process broke it, as it was not refreshed in time.")
               .arg(absolutePath()));
}

bool coSysLockFile::Private::countsAsStale(const FileSnapshot& lock) const
{
    if (!lock.isFile)
        return false;
    Info owner;
    if (lock.isRead && lockRecord::read(lock.content, owner) && lockRecord::isOfThisHost(owner)
        && !lockRecord::isOwnerRunning(owner))
        return true;
    return staleLockTime >= 1 && QDateTime::currentMSecsSinceEpoch() - lock.lastModified > staleLockTime;
}

bool coSysLockFile::Private::breakStaleLock()
{
    const QString target = absolutePath();
    if (!countsAsStale(lookAt(target)))
        return false;
    std::optional<coSysLockFile> guard;
    // A guard whose own guard's name would be too long has none, or its owner's crash would leave it for
    // good.
    if (hasRoomForGuard(target)) {
        guard.emplace(target + guardSuffix);
        guard->d->isGuard = true;
        if (!guard->tryLock(0))
            return false;
    }
    const FileSnapshot lock = lookAt(target);
    return countsAsStale(lock) && nPlatform::removeFile(target, lock.identity) == Removal::Done;
}

coSysLockFile::coSysLockFile(const QString& path) : d(std::make_unique<Private>(path)) { }

coSysLockFile::~coSysLockFile()
{
    unlock();
}

QString coSysLockFile::path() const
{
    return d->path;
}

void coSysLockFile::setStaleLockTime(int milliseconds)
{
    const std::lock_guard locker(d->mutex);
    d->staleLockTime = milliseconds;
}

int coSysLockFile::staleLockTime() const
{
    const std::lock_guard locker(d->mutex);
    return d->staleLockTime;
}

bool coSysLockFile::isLocked() const
{
    const std::lock_guard locker(d->mutex);
    return d->isLocked;
}

bool coSysLockFile::getLockInfo(Info* info) const
{
    const std::lock_guard locker(d->mutex);
    const FileSnapshot lock = lookAt(d->absolutePath());
    return lock.isRead && lockRecord::read(lock.content, *info);
}

bool coSysLockFile::lock()
{
    return tryLock(-1);
}

bool coSysLockFile::tryLock(int timeoutMs)
{
    const std::lock_guard locker(d->mutex);
    if (d->isLocked)
        return true;
    QElapsedTimer timer;
    timer.start();
    constexpr qint64 longestDoubledSleep = 5000;
    qint64 sleepTime = 100;
    bool hasBroken = false;
    for (;;) {
        d->error = d->attempt();
        d->isLocked = d->error == NoError;
        if (d->error != LockFailedError)
            return d->isLocked;
        if (!hasBroken && d->breakStaleLock()) {
            hasBroken = true;
            continue;
        }
        const qint64 timeLeft = timeoutMs - timer.elapsed();
        if (timeLeft < 1)
            return false;
        const qint64 sleep = qMin(timeLeft, sleepTime);
        QThread::msleep(static_cast<unsigned long>(sleep));
        if (sleep < longestDoubledSleep)
            sleepTime *= 2;
    }
}

void coSysLockFile::unlock()
{
    const std::lock_guard locker(d->mutex);
    if (!d->isLocked)
        return;
    if (!d->removeOwnFile())
        d->reportLoss();
    d->isLocked = false;
    d->error = NoError;
}

bool coSysLockFile::touch()
{
    const std::lock_guard locker(d->mutex);
    if (!d->isLocked)
        return false;
    if (d->file.hasLostItsName()) {
        d->reportLoss();
        d->file.close();
        d->isLocked = false;
        d->error = LockFailedError;
        return false;
    }
    if (d->file.touch())
        return true;
    KD_LOG(kdLog::Fault, kdLog::General,
           QStringLiteral("The lock file '%1' cannot be refreshed: %2")
               .arg(d->heldPath, nPlatform::systemErrorText(d->file.errorCode()).trimmed()));
    return false;
}

bool coSysLockFile::removeStaleLockFile()
{
    const std::lock_guard locker(d->mutex);
    return !d->isLocked && d->breakStaleLock();
}

coSysLockFile::LockError coSysLockFile::error() const
{
    const std::lock_guard locker(d->mutex);
    return d->error;
}
