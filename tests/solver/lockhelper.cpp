// A process that takes locks, for tests of what happens between processes. Log lines go to standard error.
// Usage: lockhelper hold PATH           one attempt; waits for the end of standard input; ends with the error
//        lockhelper churn PATH FILE [N] takes and releases N times, or for ever; ends with 2 if it was not
//        alone

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

/// Under the lock: nobody else writes his number into the file.
bool isAlone(QFile& file)
{
    const QByteArray own = QByteArray::number(QCoreApplication::applicationPid()).rightJustified(20);
    file.seek(0);
    file.write(own);
    std::this_thread::yield();
    file.seek(0);
    return file.readAll() == own;
}

int churn(coSysLockFile& lock, QFile& file, int rounds)
{
    say("started", true);
    for (int round = 0; round != rounds; ++round) {
        while (!lock.tryLock(0))
            std::this_thread::yield();
        if (!isAlone(file))
            return 2;
        lock.unlock();
    }
    return 0;
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
    return churn(lock, file, arguments.size() == 4 ? arguments.at(3).toInt() : -1);
}
