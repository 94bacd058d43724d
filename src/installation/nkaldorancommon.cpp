#include "nkaldorancommon.h"

QString nKaldoranCommon::versionCheckExeFileName()
{
    return QStringLiteral("versioncheck.exe");
}

QString nKaldoranCommon::versionInfoFileName()
{
    return QStringLiteral("versions.xml");
}

QString nKaldoranCommon::weldMonitorName()
{
    return QStringLiteral("Welding monitor");
}
