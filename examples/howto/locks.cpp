// Locks: who works in the folder, and what to do when the lock is lost.
#include <kdQCore/coProjectPathLockFile>

#include <QCoreApplication>
#include <QTextStream>

QTextStream out(stdout);

void tell(const QString& user, const QString& host, const QString& application)
{
    out << application << " of " << user << " on " << host << " works here\n";
}

bool saveProject(const QString& projectFolder)
{
    coProjectPathLockFile lock(projectFolder);
    if (!lock.tryLock(2000)) { // milliseconds; 0 tries once
        coSysLockFile::Info owner;
        if (lock.error() == coSysLockFile::LockFailedError && lock.getLockInfo(&owner))
            tell(owner.userName, owner.hostName, owner.applicationName);
        return false;
    }
    out << "writing\n";
    return lock.touch(); // false: lost meanwhile, another process may have written too
}

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    return saveProject(".") ? 0 : 1;
}
