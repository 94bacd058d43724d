#pragma once

#include <kdqcore_export.h>

#include <QString>

/// Fixed texts that the applications share.
namespace nKaldoranCommon {

KDQCORE_EXPORT QString versionCheckExeFileName(); ///< "versioncheck.exe"
KDQCORE_EXPORT QString versionInfoFileName();     ///< "versions.xml"
KDQCORE_EXPORT QString weldMonitorName();         ///< "Welding monitor"

} // namespace nKaldoranCommon
