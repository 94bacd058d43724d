#include "shelllocks.h"

#include <QDir>

ShellLocks::Lock ShellLocks::of(const QString& folder)
{
    const QString canonical = QDir(folder).canonicalPath();
    const QString path = canonical.isEmpty() ? QDir(folder).absolutePath() : canonical;
    Lock lock = m_locks.value(path).lock();
    if (lock == nullptr) {
        lock = std::make_shared<coProjectPathLockFile>(path);
        m_locks.insert(path, lock);
    }
    return lock;
}

void ShellLocks::keep(const Lock& lock)
{
    m_kept.insert(lock->path(), lock);
}

bool ShellLocks::release(const Lock& lock)
{
    return m_kept.remove(lock->path()) > 0;
}

QStringList ShellLocks::keptFolders() const
{
    QStringList folders;
    for (const Lock& lock : m_kept)
        folders.append(QDir::toNativeSeparators(lock->folder()));
    return folders;
}

QString ShellLocks::owner(const coProjectPathLockFile& lock)
{
    coSysLockFile::Info info;
    if (!lock.getLockInfo(&info))
        return QString();
    const QString program = info.applicationName.isEmpty() ? info.processName : info.applicationName;
    return tr("%1 on %2 (%3, process %4)")
        .arg(info.userName, info.hostName, program, QString::number(info.processId));
}

QString ShellLocks::refusal(const coProjectPathLockFile& lock)
{
    const QString folder = QDir::toNativeSeparators(lock.folder());
    if (lock.error() == coSysLockFile::PermissionError)
        return tr("You have no permission to lock the folder '%1'.").arg(folder);
    if (lock.error() != coSysLockFile::LockFailedError)
        return tr("The folder '%1' cannot be locked; the log says why.").arg(folder);
    const QString holder = owner(lock);
    return holder.isEmpty() ? tr("The folder '%1' is locked; by whom cannot be read.").arg(folder)
                            : tr("The folder '%1' is locked by %2.").arg(folder, holder);
}
