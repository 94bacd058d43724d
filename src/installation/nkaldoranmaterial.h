#pragma once

#include <kdqcore_export.h>

#include <QString>
#include <QStringList>

/// The fixed texts of the material application, and its start.
///
/// \code
/// nKaldoranMaterial::execute({nKaldoranMaterial::openFileFlag(), filePath});
/// \endcode
namespace nKaldoranMaterial {

KDQCORE_EXPORT QString productName();                   ///< "Kaldoran Material"
KDQCORE_EXPORT QString productVersion();                ///< "2018"
KDQCORE_EXPORT QString productNameAndVersion();         ///< "Kaldoran Material 2018"
KDQCORE_EXPORT QString fullVersion();                   ///< with the minor release number: "2018.1"
KDQCORE_EXPORT QString fullRevisionVersion();           ///< "2018.1.345"
KDQCORE_EXPORT QString productNameForSettings();        ///< "material"
KDQCORE_EXPORT QString iniFileName();                   ///< "kaldoran.material"
KDQCORE_EXPORT QString exeFileName(bool withExtension); ///< "kaldoran.material" or "kaldoran.material.exe"

KDQCORE_EXPORT QString fileExtension();               ///< ".xmt"
KDQCORE_EXPORT QString fileExtensionWildcard();       ///< "*.xmt"
KDQCORE_EXPORT QString xmtVersion11();                ///< "-xmt_11"
KDQCORE_EXPORT QString xmtVersion12();                ///< "-xmt_12"
KDQCORE_EXPORT QString newMatDefaultName();           ///< "New_Material"
KDQCORE_EXPORT QString validationExceptionFileName(); ///< "validation_exceptions.txt"
KDQCORE_EXPORT QString toolMaterialFlag();            ///< "Tool material"

/// Where the application keeps files between two of its steps: "Kaldoran Material Intermediate Files" in the
/// user's temporary folder. The folder is not made here.
KDQCORE_EXPORT QString intermediateFilePath();

/// The documents of the material application: coPaths' folder for them. In an application without coPaths,
/// the one of the installation that it belongs to: every application lies in "<root>/<product>/bin", the
/// documents in "<root>/material/doc". The folder need not exist.
KDQCORE_EXPORT QString documentsFolder();
/// The tutorial in the user's language, German or English: "Kaldoran_Material_Tutorial_de.pdf" in
/// documentsFolder().
KDQCORE_EXPORT QString tutorialFilePath();

/// The material application of the same installation.
KDQCORE_EXPORT QString executableFilePath();
/// Starts the material application as a process of its own and logs whether that worked. Does not wait for
/// it.
KDQCORE_EXPORT bool execute(const QStringList& arguments = QStringList());

// Command-line flags of the material application.
KDQCORE_EXPORT QString callerVersionStartParamFlag();          ///< "-callerVersion"
KDQCORE_EXPORT QString validateMaterialsStartParam();          ///< "-validateMaterials"
KDQCORE_EXPORT QString validationReportTargetPathStartParam(); ///< "-reportPath"
KDQCORE_EXPORT QString addToDatabaseFlag();                    ///< "-addToDatabase"
KDQCORE_EXPORT QString showDatabaseFlag();                     ///< "-showDatabase"
KDQCORE_EXPORT QString openFileFlag();                         ///< "-open"
KDQCORE_EXPORT QString readOnlyFlag();                         ///< "-readOnly"

/// The argument that filters what the application shows: "-filters" "Group:Steel;Area:Welding".
namespace nFilterArgs {

KDQCORE_EXPORT QString commandArg();                                          ///< "-filters"
KDQCORE_EXPORT QString wildcard();                                            ///< "*"
KDQCORE_EXPORT QString groupFlag();                                           ///< "Group"
KDQCORE_EXPORT QString areaFlag();                                            ///< "Area"
KDQCORE_EXPORT QString pairSeparator();                                       ///< ":"
KDQCORE_EXPORT QString listSeparator();                                       ///< ";"
KDQCORE_EXPORT QString mkFilterArg(const QString& key, const QString& value); ///< "key:value"

} // namespace nFilterArgs

/// What a material is used for, as stored with it.
namespace nAreaOfApplication {

KDQCORE_EXPORT QString welding();   ///< "Welding"
KDQCORE_EXPORT QString powder();    ///< "Powder"
KDQCORE_EXPORT QString basePlate(); ///< "Base plate"

} // namespace nAreaOfApplication

/// Texts of earlier versions, still found in stored materials.
namespace Legacy {

KDQCORE_EXPORT QString toolSteelGroup(); ///< "ToolSteel"

} // namespace Legacy

namespace Docs {

/// Relative to the documents.
KDQCORE_EXPORT QString relDamageTutorialPath(); ///< "Chapters/02_10_Damage/Damage"

} // namespace Docs

} // namespace nKaldoranMaterial
