#pragma once

#include <kdQCore/coProjectPathLockFile>

#include <QCoreApplication>
#include <QMap>

/// The locks of folders that a session uses, by hand and for its deck: one lock a folder, released when
/// nobody in the session keeps it any more.
class ShellLocks {
    Q_DECLARE_TR_FUNCTIONS(ShellLocks)

public:
    using Lock = std::shared_ptr<coProjectPathLockFile>;

    /// The lock of a folder, taken or not.
    Lock of(const QString& folder);

    /// Keeps a taken lock until release() or the end of the session.
    void keep(const Lock& lock);
    /// False where keep() was not called for it.
    bool release(const Lock& lock);

    QStringList keptFolders() const;

    /// Who holds the lock; empty where the lock file does not say.
    static QString owner(const coProjectPathLockFile& lock);
    /// Why it could not be taken.
    static QString refusal(const coProjectPathLockFile& lock);

private:
    QMap<QString, std::weak_ptr<coProjectPathLockFile>> m_locks; ///< by the folder's one true path
    QMap<QString, Lock> m_kept;                                  ///< by the lock file's path
};
