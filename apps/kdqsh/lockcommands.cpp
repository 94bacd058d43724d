#include "lockcommands.h"

#include "shellsession.h"

#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QThread>

namespace {

using Lock = ShellLocks::Lock;

constexpr int sliceMs = 200; // the longest that Ctrl-C waits for an answer

Lock lockOf(const ShellCall& call)
{
    return ShellSession::I().locks.of(call.text(0));
}

QString folderOf(const Lock& lock)
{
    return QDir::toNativeSeparators(lock->folder());
}

bool checkSeconds(const ShellCall& call, double seconds)
{
    constexpr double longest = 1e6;
    return (seconds >= 0.0 && seconds <= longest)
        || call.fail(LockCommands::tr("SECONDS must be 0 to 1000000, not %1.").arg(seconds));
}

/// Runs \a step until it returns true, the time is over or the user stops it; shows how much of the time has
/// gone.
template <typename Step>
bool repeatFor(const ShellCall& call, double seconds, Step step)
{
    const auto total = static_cast<qint64>(seconds * 1000.0);
    QElapsedTimer timer;
    timer.start();
    for (qint64 left = total; left > 0; left = total - timer.elapsed()) {
        if (step(static_cast<int>(qMin<qint64>(left, sliceMs))))
            return true;
        if (!call.goOn(static_cast<double>(timer.elapsed()) / static_cast<double>(total)))
            break;
    }
    return false;
}

bool takeWithin(const ShellCall& call, const Lock& lock, double seconds)
{
    if (lock->tryLock(0))
        return true;
    bool isTaken = false;
    if (seconds > 0.0 && lock->error() == coSysLockFile::LockFailedError) {
        const ShellOperation operation(call,
                                       LockCommands::tr("Waiting for the lock of '%1'").arg(folderOf(lock)));
        isTaken = repeatFor(call, seconds, [&lock](int timeout) { return lock->tryLock(timeout); });
    }
    return isTaken || call.fail(ShellLocks::refusal(*lock));
}

} // namespace

const ShellCommandGroup& LockCommands::group()
{
    using Entry = ShellCommandEntry;
    static const ShellCommandGroup group{
        "lock",
        "LockCommands",
        QT_TR_NOOP("Who may write in a project folder."),
        {
            {"take", "FOLDER [wait SECONDS]",
             QT_TR_NOOP(
                 "Locks a folder until 'lock release' or the end; waits for another owner if told to."),
             1, 3, Entry::Query, take},
            {"hold", "FOLDER SECONDS",
             QT_TR_NOOP(
                 "Keeps a folder locked for a time; locks it for that time where it is not locked yet."),
             2, 2, Entry::Query, hold},
            {"show", "FOLDER", QT_TR_NOOP("Shows who holds the lock of a folder."), 1, 1, Entry::Query, show},
            {"release", "FOLDER", QT_TR_NOOP("Ends the lock that 'lock take' made."), 1, 1, Entry::Query,
             release},
            {"break", "FOLDER", QT_TR_NOOP("Removes a lock whose owner has died or is long silent."), 1, 1,
             Entry::Query, breakStale},
        }};
    return group;
}

bool LockCommands::take(ShellCall& call)
{
    double seconds = 0.0;
    if (!ShellParameters(call, 1).real("wait", seconds).read() || !checkSeconds(call, seconds))
        return false;
    const Lock lock = lockOf(call);
    if (!takeWithin(call, lock, seconds))
        return false;
    ShellSession::I().locks.keep(lock);
    call.tell(tr("Folder '%1' locked.").arg(folderOf(lock)));
    return true;
}

bool LockCommands::hold(ShellCall& call)
{
    double seconds = 0.0;
    if (!call.readReal(1, QStringLiteral("SECONDS"), seconds) || !checkSeconds(call, seconds))
        return false;
    const Lock lock = lockOf(call);
    if (!takeWithin(call, lock, 0.0))
        return false;
    const ShellOperation operation(call, tr("Holding the lock of '%1'").arg(folderOf(lock)));
    const bool isLost = repeatFor(call, seconds, [&lock](int timeout) {
        QThread::msleep(static_cast<unsigned long>(timeout));
        return !lock->isLocked();
    });
    return !isLost || call.fail(tr("The lock of '%1' was lost to another process.").arg(folderOf(lock)));
}

bool LockCommands::show(ShellCall& call)
{
    const Lock lock = lockOf(call);
    const QFileInfo file(lock->path());
    if (!file.exists()) {
        call.show(tr("Folder '%1' is not locked.").arg(folderOf(lock)));
        return true;
    }
    const QString owner = ShellLocks::owner(*lock);
    const qint64 age = qMax<qint64>(0, file.lastModified().secsTo(QDateTime::currentDateTime()));
    call.show(tr("Folder '%1' is locked by %2, refreshed %3 s ago.")
                  .arg(folderOf(lock), owner.isEmpty() ? tr("an owner that cannot be read") : owner,
                       QString::number(age)));
    return true;
}

bool LockCommands::release(ShellCall& call)
{
    const Lock lock = lockOf(call);
    if (!ShellSession::I().locks.release(lock))
        return call.fail(tr("Folder '%1' has not been locked by 'lock take'.").arg(folderOf(lock)));
    const bool isLast = lock.use_count() == 1;
    call.tell(isLast ? tr("Folder '%1' released.").arg(folderOf(lock))
                     : tr("Folder '%1' stays locked for the open deck.").arg(folderOf(lock)));
    return true;
}

bool LockCommands::breakStale(ShellCall& call)
{
    const Lock lock = lockOf(call);
    if (lock->removeStaleLockFile()) {
        call.tell(tr("Stale lock of folder '%1' removed.").arg(folderOf(lock)));
        return true;
    }
    if (!QFileInfo::exists(lock->path()))
        return call.fail(tr("Folder '%1' is not locked.").arg(folderOf(lock)));
    const QString owner = ShellLocks::owner(*lock);
    return call.fail(tr("The lock of '%1' is not stale: %2 holds it.")
                         .arg(folderOf(lock), owner.isEmpty() ? tr("an owner that cannot be read") : owner));
}
