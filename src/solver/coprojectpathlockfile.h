#pragma once

#include <kdQCore/coSysLockFile>

/// Guards a project folder while an application works in it, and keeps the lock young by itself.
///
/// \code
/// coProjectPathLockFile lock(projectFolder);
/// if (!lock.tryLock(0) && lock.getLockInfo(&owner))
///     refuse(owner.userName, owner.hostName);
/// \endcode
///
/// While it holds the lock, a thread of its own touches the lock file every refreshInterval() milliseconds,
/// so the application needs no event loop and may be busy for as long as it likes. A lost lock (the machine
/// slept, the network was away) is logged, and isLocked() is false from the next refresh on: look at it
/// before results are kept.
///
/// Thread-safe; one object is one owner to all threads.
class KDQCORE_EXPORT coProjectPathLockFile {
public:
    /// In milliseconds: a third of the age at which a lock may be broken, so that a late refresh costs
    /// nothing.
    static constexpr int lockFileRefreshInterval() { return coSysLockFile::defaultStaleLockTime / 3; }
    /// "kaldoran.lock"
    static QString lockFileName();

    /// The folder need not exist before the lock is taken. \a refreshInterval is 1 at least.
    explicit coProjectPathLockFile(const QString& folder, int refreshInterval = lockFileRefreshInterval());
    /// Releases the lock.
    ~coProjectPathLockFile();
    Q_DISABLE_COPY(coProjectPathLockFile)

    QString folder() const;
    /// Of the lock file, in the folder.
    QString path() const;
    int refreshInterval() const;

    /// As the functions of coSysLockFile.
    /// @{
    void setStaleLockTime(int milliseconds);
    int staleLockTime() const;
    bool isLocked() const;
    bool getLockInfo(coSysLockFile::Info* info) const;
    bool lock();
    bool tryLock(int timeoutMs);
    void unlock();
    bool touch();
    bool removeStaleLockFile();
    coSysLockFile::LockError error() const;
    /// @}

private:
    struct Private;
    std::unique_ptr<Private> d;
};
