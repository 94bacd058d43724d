// A process that takes locks, for tests of what happens between processes. Log lines go to standard error.
// Usage: lockhelper hold PATH          one attempt; waits for the end of standard input; ends with the error
//        lockhelper count PATH FILE N  adds N to the number in FILE, one by one, each under the lock
//        lockhelper churn PATH FILE    takes and releases for ever, and ends only if it was not alone

#include <kdQCore/coSysLockFile>

#include <QCoreApplication>
#include <QFile>

#include <cstdio>
#include <thread>

namespace {

void say(const char* what, bool isTrue)
{
    std::printf("%s %d\n", what, isTrue);
    std::fflush(stdout);
}

int hold(coSysLockFile& lock)
{
    say("held", lock.tryLock(0));
    const int error = lock.error();
    while (std::getchar() != EOF) { }
    lock.unlock();
    say("locked", lock.isLocked());
    return error;
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

int count(coSysLockFile& lock, QFile& file, int rounds)
{
    for (; rounds > 0; --rounds) {
        takeSometime(lock);
        store(file, numberIn(file) + 1);
        lock.unlock();
    }
    return 0;
}

int churn(coSysLockFile& lock, QFile& file)
{
    const qint64 own = QCoreApplication::applicationPid();
    say("started", true);
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
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    coSysLockFile lock(arguments.value(1));
    if (arguments.value(0) == QLatin1String("hold"))
        return hold(lock);
    QFile file(arguments.value(2));
    if (!file.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        return 64;
    return arguments.size() == 4 ? count(lock, file, arguments.at(3).toInt()) : churn(lock, file);
}
