#pragma once

#include <kdqcore_export.h>

#include <QString>

/// The fixed texts of the additive manufacturing application.
///
/// All version texts of a family member are made in the same way from its version, its minor release number
/// and the revision, platform, date and time of the build.
namespace nKaldoranAm {

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
KDQCORE_EXPORT QString fullVersionAndSuffix();                    ///< "2018 (dev)"

KDQCORE_EXPORT QString amDirName();   ///< "additive", its folder below the installation root
KDQCORE_EXPORT QString iniFileName(); ///< "kaldoran.additive", without extension
/// iniFileName(), "_" and the full version, with the minor number on demand.
KDQCORE_EXPORT QString versionDependentIniFileName(bool withMinor);
KDQCORE_EXPORT QString exeFileName(bool withExtension); ///< "Kaldoran Additive" or "Kaldoran Additive.exe"
KDQCORE_EXPORT QString databaseDirectoryName();         ///< "MasterLibrary"

} // namespace nKaldoranAm
