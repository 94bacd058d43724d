#pragma once

#include <kdqcore_export.h>

#include <QString>

/// The fixed texts of the joining application.
///
/// Spr, Cli and Rsw are its three process families: self-piercing riveting, clinching and resistance spot
/// welding. Each keeps its settings in files of its own, which lie in settingsFolderName().
namespace nKaldoranJoining {

KDQCORE_EXPORT QString productName();
KDQCORE_EXPORT QString productVersion();            ///< "2018"
KDQCORE_EXPORT QString fullVersion(bool withMinor); ///< "2018.1" or "2018"
KDQCORE_EXPORT QString fullRevisionVersion();       ///< "2018.1.345"
KDQCORE_EXPORT QString fullRevisionOSVersion();     ///< "2018.1.345.linux64"
KDQCORE_EXPORT QString fullRevisionOSVersionDate(); ///< ... and the build date
KDQCORE_EXPORT QString productNameAndFullVersion();
KDQCORE_EXPORT QString productNameAndFullRevisionVersion();
KDQCORE_EXPORT QString productNameAndFullRevisionOSVersion();
KDQCORE_EXPORT QString productNameAndFullRevisionOSVersionTime(); ///< ... " - " and the build time
KDQCORE_EXPORT QString productNameFullVersionAndSuffix(); ///< "Kaldoran Joining Optimizer 2018.1 (dev)"

KDQCORE_EXPORT QString joiningDirName();     ///< "joining"
KDQCORE_EXPORT QString exeFileName();        ///< "kaldoran.joining.exe"
KDQCORE_EXPORT QString iniFileName();        ///< "kaldoran.joining"
KDQCORE_EXPORT QString settingsFolderName(); ///< "kaldoran.joining_2018.1"

KDQCORE_EXPORT QString settingsFileNameInvDbSpr();
KDQCORE_EXPORT QString settingsFileNameInvDbCli();
KDQCORE_EXPORT QString settingsFileNameInvDbRsw();
KDQCORE_EXPORT QString settingsFileNameResultViewColumnsSpr();
KDQCORE_EXPORT QString settingsFileNameResultViewColumnsCli();
KDQCORE_EXPORT QString settingsFileNameResultViewColumnsRsw();

/// Thresholds are kept for one set of results each: "resultThresholdsSpr_" and its name, without "_" for no
/// name.
KDQCORE_EXPORT QString settingsFileNameResultThresholdsSpr(const QString& name);
KDQCORE_EXPORT QString settingsFileNameResultThresholdsCli(const QString& name);
KDQCORE_EXPORT QString settingsFileNameResultThresholdsRsw(const QString& name);

/// The first line of the files that the application writes: what the file is, who wrote it in which version
/// and revision, and the present local time.
KDQCORE_EXPORT QString fileComment(const QString& what);

} // namespace nKaldoranJoining
