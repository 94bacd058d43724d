#pragma once

#include <kdqcore_export.h>

#include <QString>

/// The fixed texts of the job editor.
///
/// Paths are joined with the separator of the system, as users see them.
namespace nKaldoranJes {

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

KDQCORE_EXPORT QString shortProductName();           ///< "jes"
KDQCORE_EXPORT QString iniFileName();                ///< "kaldoran.jes"
KDQCORE_EXPORT QString iniFileSuffix();              ///< ".ini"
KDQCORE_EXPORT QString opFolderName();               ///< "_stages"
KDQCORE_EXPORT QString projectSettingsFolderName();  ///< "_projectSettings"
KDQCORE_EXPORT QString backgroundImageFileName();    ///< "backgroundImage"
KDQCORE_EXPORT QString defaultProjectName();         ///< "Project"
KDQCORE_EXPORT QString imagesFolderName();           ///< "_images"
KDQCORE_EXPORT QString projectFileExtension();       ///< ".jes"
KDQCORE_EXPORT QString projectFileSelectionFilter(); ///< for file dialogues: "jes files (*.jes)"

/// A project has a folder of its name in \a folder, and in it the project file of its name.
KDQCORE_EXPORT QString createProjectFilePath(const QString& folder, const QString& name);
KDQCORE_EXPORT QString createProjectFolderPath(const QString& folder, const QString& name);

} // namespace nKaldoranJes
