// Taking and releasing a lock, and being refused one, beside QLockFile and beside the bare system calls that
// a flushed record needs. On the disk of the working directory in wall time, as the disk is what takes it; in
// memory in processor time.

#include "duel.h"

#include <kdQCore/coSysLockFile>

#include <QCoreApplication>
#include <QFileInfo>
#include <QLockFile>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// A step that must not fail, or nothing is measured.
void need(bool isDone)
{
    if (isDone)
        return;
    std::fputs("a lock could not be taken or refused as expected\n", stderr);
    std::exit(2);
}

void rawSequence(const QByteArray& path, const QByteArray& record)
{
    const int file = open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
    need(file >= 0 && write(file, record.constData(), size_t(record.size())) == record.size());
    need(fsync(file) == 0 && close(file) == 0 && unlink(path.constData()) == 0);
}

/// With what keeps a robbed owner from removing its successor's file.
void checkedSequence(const QByteArray& path, const QByteArray& record)
{
    const int file = open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
    need(file >= 0 && write(file, record.constData(), size_t(record.size())) == record.size());
    struct stat own { };
    struct stat named { };
    need(fsync(file) == 0 && fstat(file, &own) == 0 && lstat(path.constData(), &named) == 0);
    need(own.st_ino == named.st_ino && unlink(path.constData()) == 0 && close(file) == 0);
}

template <typename Lock>
void takeAndRelease(const QString& path, int rounds)
{
    Lock lock(path);
    for (int i = 0; i < rounds; ++i) {
        need(lock.tryLock(0));
        lock.unlock();
    }
}

const std::string rawName = "open O_EXCL, write, fsync, close, unlink";
const std::string checkedName = "the same with fstat and lstat";

/// \a limit is the sequence that costs the lock at most 15 % more.
bool measureTaking(const QString& folder, Duel&& duel, const std::string& limit, int pairs, double bar)
{
    const QString path = folder + QStringLiteral("/lock");
    QByteArray record;
    {
        coSysLockFile lock(path);
        need(lock.tryLock(0));
        QFile file(path);
        need(file.open(QIODevice::ReadOnly));
        record = file.readAll();
    }
    duel.add("QLockFile", [&] { takeAndRelease<QLockFile>(path, pairs); });
    duel.add(rawName, [&, name = QFile::encodeName(path)] {
        for (int i = 0; i < pairs; ++i)
            rawSequence(name, record);
    });
    duel.add(checkedName, [&, name = QFile::encodeName(path)] {
        for (int i = 0; i < pairs; ++i)
            checkedSequence(name, record);
    });
    duel.add("coSysLockFile", [&] { takeAndRelease<coSysLockFile>(path, pairs); });
    duel.run(31);
    const bool beatsPeer = duel.demand("coSysLockFile", "QLockFile", bar);
    return duel.demand("coSysLockFile", limit, 1 / 1.15) && beatsPeer;
}

template <typename Lock>
std::function<void()> refusal(const QString& path, int attempts)
{
    return [other = std::make_shared<Lock>(path), attempts] {
        for (int i = 0; i < attempts; ++i)
            need(!other->tryLock(0));
    };
}

bool measureRefusal(const QString& folder, const std::string& place)
{
    constexpr int attempts = 2000;
    const QString peerPath = folder + QStringLiteral("/peer");
    const QString path = folder + QStringLiteral("/ours");
    QLockFile peer(peerPath);
    coSysLockFile ours(path);
    need(peer.tryLock(0) && ours.tryLock(0));
    Duel duel("A refused attempt " + place, attempts);
    duel.add("QLockFile", refusal<QLockFile>(peerPath, attempts));
    duel.add("coSysLockFile", refusal<coSysLockFile>(path, attempts));
    duel.run(15);
    return duel.demand("coSysLockFile", "QLockFile", 1.5);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir disk(QStringLiteral("bench_lock-XXXXXX"));
    constexpr int onDisk = 50;
    bool ok = measureTaking(disk.path(), Duel("Take and release on disk", onDisk, Duel::OfWaiting), rawName,
                            onDisk, 0.95);
    if (QFileInfo(QStringLiteral("/dev/shm")).isWritable()) {
        const QTemporaryDir memory(QStringLiteral("/dev/shm/bench_lock-XXXXXX"));
        constexpr int inMemory = 2000;
        // Where nothing waits for a disk, the two look-ups alone take 15 % of the bare sequence's time.
        ok = measureTaking(memory.path(), Duel("Take and release in memory", inMemory), checkedName, inMemory,
                           1.7)
            && ok;
    }
    return measureRefusal(disk.path(), "on disk") && ok ? 0 : 1;
}
