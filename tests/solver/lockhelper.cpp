// A process that takes locks, for tests of what happens between processes. Log lines go to standard error.
// Usage: lockhelper take PATH             one attempt; prints the error
//        lockhelper hold PATH             takes the lock, prints the error, releases it when standard input
//        ends lockhelper abandon PATH          takes the lock and ends without releasing it lockhelper count
//        PATH FILE N     adds N to the number in FILE, one by one, each under the lock lockhelper churn PATH
//        FILE       takes and releases for ever, and ends only if it was not alone

#include <kdQCore/coSysLockFile>

#include <QCoreApplication>
#include <QFile>

#include <cstdio>
#include <cstdlib>
#include <thread>

namespace {

void say(const char* what, int number)
{
    std::printf("%s %d\n", what, number);
    std::fflush(stdout);
}

int take(const QStringList& arguments)
{
    coSysLockFile lock(arguments.at(0));
    const bool isTaken = lock.tryLock(0);
    say("taken", isTaken);
    return lock.error();
}

int hold(const QStringList& arguments)
{
    coSysLockFile lock(arguments.at(0));
    say("held", lock.tryLock(0));
    while (std::getchar() != EOF) { }
    lock.unlock();
    say("locked", lock.isLocked());
    return 0;
}

int abandon(const QStringList& arguments)
{
    coSysLockFile lock(arguments.at(0));
    std::_Exit(lock.tryLock(0) ? 0 : 1);
}

void takeSometime(coSysLockFile& lock)
{
    while (!lock.tryLock(0))
        std::this_thread::yield();
}

qint64 numberIn(QFile& file)
{
    file.seek(0);
    return file.readAll().toLongLong();
}

void store(QFile& file, qint64 number)
{
    file.seek(0);
    file.write(QByteArray::number(number).rightJustified(20));
}

int count(const QStringList& arguments)
{
    coSysLockFile lock(arguments.at(0));
    QFile file(arguments.at(1));
    if (!file.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        return 1;
    for (int left = arguments.at(2).toInt(); left > 0; --left) {
        takeSometime(lock);
        store(file, numberIn(file) + 1);
        lock.unlock();
    }
    return 0;
}

int churn(const QStringList& arguments)
{
    coSysLockFile lock(arguments.at(0));
    QFile file(arguments.at(1));
    if (!file.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        return 1;
    const qint64 own = QCoreApplication::applicationPid();
    say("started", 1);
    for (bool isAlone = true; isAlone;) {
        takeSometime(lock);
        store(file, own);
        std::this_thread::yield();
        isAlone = numberIn(file) == own;
        lock.unlock();
    }
    return 2;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(2);
    const QByteArray mode(argc > 1 ? argv[1] : "");
    if (mode == "take" && arguments.size() == 1)
        return take(arguments);
    if (mode == "hold" && arguments.size() == 1)
        return hold(arguments);
    if (mode == "abandon" && arguments.size() == 1)
        return abandon(arguments);
    if (mode == "count" && arguments.size() == 3)
        return count(arguments);
    if (mode == "churn" && arguments.size() == 2)
        return churn(arguments);
    return 64;
}
