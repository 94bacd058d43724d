#include "platform.h"

#include <cstring>
#include <ctime>

namespace nPlatform {

qint64 monotonicMilliseconds()
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return qint64(now.tv_sec) * 1000 + now.tv_nsec / 1000000;
}

QString systemErrorText(unsigned long errorCode)
{
    char buffer[256] = {};
    const char* text = strerror_r(int(errorCode), buffer, sizeof buffer);
    const QString result = QString::fromLocal8Bit(text);
    if (result.startsWith(QLatin1String("Unknown error")))
        return QString();
    return result + QLatin1Char('\n');
}

} // namespace nPlatform
