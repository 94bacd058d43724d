#include "kdlog.h"

#include <QList>
#include <QMutex>

#include <algorithm>
#include <glog/logging.h>

namespace kdLog {

namespace {

struct Sinks {
    QMutex mutex;
    QList<Sink*> list;
};

Sinks& sinks()
{
    static Sinks instance;
    return instance;
}

QString baseName(const char* file)
{
    const QString path = QString::fromLocal8Bit(file);
    const int slash = std::max(path.lastIndexOf(QLatin1Char('/')), path.lastIndexOf(QLatin1Char('\\')));
    return path.mid(slash + 1).toLower();
}

int backEndLevel(Severity severity)
{
    if (severity >= Error)
        return google::GLOG_ERROR;
    return severity >= Notice ? google::GLOG_WARNING : google::GLOG_INFO;
}

} // namespace

const char* tagText(Tag tag)
{
    static const char* const texts[] = {
        "General          ", "Remote           ", "License          ", "Paths            ",
        "FailedAssert     ", "BatchMode        ", "Setup            ", "Command          ",
        "Settings         ", "WriteDat         ", "Socket           ", "ModelCheck       ",
        "Material         ", "InterProcessCom  ",
    };
    return texts[tag];
}

void write(Severity severity, Tag tag, const char* file, int line, const QString& text)
{
    const QString name = baseName(file);
    google::LogMessage(name.toLocal8Bit().constData(), line, backEndLevel(severity)).stream()
        << tagText(tag) << text.toLocal8Bit().constData();
    QMutexLocker lock(&sinks().mutex);
    for (Sink* sink : qAsConst(sinks().list))
        sink->received({severity, tag, name, line, text});
}

Sink::Sink()
{
    QMutexLocker lock(&sinks().mutex);
    sinks().list.append(this);
}

Sink::~Sink()
{
    QMutexLocker lock(&sinks().mutex);
    sinks().list.removeAll(this);
}

} // namespace kdLog
