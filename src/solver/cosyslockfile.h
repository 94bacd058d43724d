#pragma once

#include <kdqcore_export.h>

#include <QString>

#include <memory>

/// Guards a folder or a file against a second process, on this machine or on another one that shares it.
///
/// Who holds the lock owns a lock file beside what it guards; its text names the owner, so that a lock whose
/// owner has died is told from a live one and broken by the next taker. Nothing but the exclusive creation of
/// a file is asked of the file system, so network shares serve as well as local disks. docs/locks.md holds
/// the format and all rules.
///
/// \code
/// coSysLockFile lock(folder + QStringLiteral("/results.lock"));
/// if (!lock.tryLock(2000))
///     return lock.error(); // see getLockInfo() for who holds it
/// write();
/// lock.unlock();
/// \endcode
///
/// A lock that is older than staleLockTime() may be broken even though its owner lives: call touch() more
/// often than that while you hold it, or use coProjectPathLockFile, which does it for you.
///
/// Thread-safe. One object's operations wait for each other, also while tryLock() sleeps; to it all threads
/// are one owner. Of several objects on one path, in whatever process, one holds the lock.
class KDQCORE_EXPORT coSysLockFile {
public:
    enum LockError {
        NoError = 0,
        LockFailedError = 1, ///< another owner holds the lock, or something else bears its name
        PermissionError = 2, ///< this user may not create the lock file
        UnknownError = 3     ///< missing folder, full or read-only disk, name too long; the log says what
    };

    /// What a lock file tells of its owner. Texts are empty where the record does not say.
    struct Info {
        qint64 processId = 0;
        QString hostName;
        QString userName;
        QString processName;      ///< file name of the program
        QString processStartTime; ///< tells a process from a later one with the same id; form of the system
        QString applicationName;  ///< QCoreApplication::applicationName()
    };

    static constexpr int defaultStaleLockTime = 30000;

    /// Touches nothing yet. A relative \a path is resolved when the lock is taken. Its file name must leave
    /// room for ".rmlock", which is appended while a stale lock is broken: 248 bytes (Windows: characters) at
    /// most.
    explicit coSysLockFile(const QString& path);
    /// Releases the lock.
    ~coSysLockFile();
    Q_DISABLE_COPY(coSysLockFile)

    QString path() const;

    /// In milliseconds: the age of the lock file's last change above which the lock may be broken although
    /// its owner cannot be checked or still runs. 0 or less: never. 30000 at the start. Over a network share
    /// the clocks of the machines must agree within this time.
    void setStaleLockTime(int milliseconds);
    int staleLockTime() const;

    /// Whether this object holds the lock, as far as it knows: see touch().
    bool isLocked() const;

    /// Reads who holds the lock. False where there is no lock file, or none with a whole record.
    bool getLockInfo(Info* info) const;

    /// One attempt, as tryLock(-1): it does not wait for a live owner.
    bool lock();

    /// Takes the lock, which may need a stale one to be broken, at most once a call. True also where this
    /// object holds it already. While another owner lives it tries again after 100 ms, 200 ms and so on up
    /// to 6.4 s, until \a timeoutMs milliseconds are over; with 0 or less it tries once. On failure error()
    /// says why.
    bool tryLock(int timeoutMs);

    /// Removes the lock file; does nothing where the lock is not held. Blocks for half a second at most where
    /// others keep the file from going; it is then left and the log says so. A file that another owner has
    /// put there meanwhile stays, which the log says too.
    void unlock();

    /// Makes the lock young again. False where it is not held, could not be touched, or has been lost: broken
    /// by another process because it was not touched in time. A lost lock is logged, and not held any more.
    bool touch();

    /// Removes the lock file if it counts as stale; true where it did. Never removes this object's own lock.
    bool removeStaleLockFile();

    /// Of the last attempt to take the lock, or a loss that touch() met.
    LockError error() const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};
