#include "cerror.h"

#include "platform.h"

namespace nSystem {

cError::cError(const QString& message) : std::runtime_error(message.toLocal8Bit().constData()) { }

cError::~cError() = default;

QString cError::message() const
{
    return QString::fromLocal8Bit(what());
}

namespace nWin32 {

cWindowsError::cWindowsError(const QString& context, unsigned long errorCode)
    : cError(makeMessage(context, errorCode))
{
}

cWindowsError::~cWindowsError() = default;

QString cWindowsError::makeMessage(QString context, unsigned long errorCode)
{
    return context + QLatin1Char(' ') + nPlatform::systemErrorText(errorCode);
}

} // namespace nWin32

} // namespace nSystem
