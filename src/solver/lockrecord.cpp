#include "lockrecord_p.h"
#include "platform.h"

#include <QCoreApplication>

#include <mutex>

namespace {

QByteArray line(const char* key, const QString& value)
{
    return QByteArray(key) + '=' + value.simplified().toUtf8() + '\n';
}

QByteArray describe(qint64 ownId, const QString& applicationName)
{
    const nPlatform::ProcessFacts own = nPlatform::processFacts(ownId);
    const nPlatform::SystemInformation& system = nPlatform::systemInformation();
    return line("HostName", system.hostName) + line("UserName", system.userName)
        + line("ProcessName", own.executableName) + line("ProcessStartTime", own.startTime)
        + line("ApplicationName", applicationName) + line("PID", QString::number(ownId));
}

struct TextField {
    const char* key;
    QString coSysLockFile::Info::*member;
};

constexpr TextField textFields[] = {
    {"HostName", &coSysLockFile::Info::hostName},
    {"UserName", &coSysLockFile::Info::userName},
    {"ProcessName", &coSysLockFile::Info::processName},
    {"ProcessStartTime", &coSysLockFile::Info::processStartTime},
    {"ApplicationName", &coSysLockFile::Info::applicationName},
};

/// Ignores keys that it does not know.
void assignText(const QByteArray& key, const QString& value, coSysLockFile::Info& info)
{
    for (const TextField& field : textFields)
        if (key == field.key)
            info.*field.member = value;
}

} // namespace

QByteArray lockRecord::ofThisProcess()
{
    static std::mutex mutex;
    static QByteArray record;
    static qint64 describedId = 0;
    static QString describedName;
    // A copy that the system made of this process is another owner.
    const qint64 id = QCoreApplication::applicationPid();
    const QString name = QCoreApplication::applicationName();
    const std::lock_guard lock(mutex);
    if (id != describedId || name != describedName) {
        record = describe(id, name);
        describedId = id;
        describedName = name;
    }
    return record;
}

bool lockRecord::read(const QByteArray& record, coSysLockFile::Info& info)
{
    info = coSysLockFile::Info();
    if (!record.endsWith('\n'))
        return false;
    bool hasProcessId = false;
    for (int start = 0; start < record.size();) {
        const int end = record.indexOf('\n', start);
        const int equals = record.indexOf('=', start);
        if (equals > start && equals < end) {
            const QByteArray key = QByteArray::fromRawData(record.constData() + start, equals - start);
            const QString value =
                QString::fromUtf8(record.constData() + equals + 1, end - equals - 1).trimmed();
            if (key == "PID")
                info.processId = value.toLongLong(&hasProcessId);
            else
                assignText(key, value, info);
        }
        start = end + 1;
    }
    return hasProcessId;
}

bool lockRecord::isOfThisHost(const coSysLockFile::Info& info)
{
    return info.hostName.isEmpty() || info.hostName == nPlatform::systemInformation().hostName;
}

bool lockRecord::isOwnerRunning(const coSysLockFile::Info& info)
{
    const nPlatform::ProcessFacts facts = nPlatform::processFacts(info.processId);
    if (!facts.alive)
        return false;
    // What the system hides from this user cannot differ: an owner is not robbed on a guess.
    const bool isSameProgram = facts.executableName.isEmpty() || facts.executableName == info.processName;
    const bool isSameStart = facts.startTime.isEmpty() || facts.startTime == info.processStartTime;
    return isSameProgram && isSameStart;
}
