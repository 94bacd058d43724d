// A lock on the project folder, so that no two processes write there at once.
#include <kdQCore/coProjectPathLockFile>

#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QTextStream out(stdout);

    coProjectPathLockFile lock(".");
    if (!lock.tryLock(500)) { // ms
        coSysLockFile::Info owner;
        if (lock.error() == coSysLockFile::LockFailedError && lock.getLockInfo(&owner))
            out << owner.applicationName << " of " << owner.userName << " works here\n";
        else
            out << "The folder cannot be locked\n";
        return 1;
    }
    out << "Locked\n";

    coProjectPathLockFile second(".");
    out << "A second owner: " << (second.tryLock(0) ? "yes\n" : "no\n");

    // ... write the project; the lock keeps itself young meanwhile ...

    return lock.isLocked() ? 0 : 1; // false where it was lost, because the machine slept for instance
} // here the lock goes
