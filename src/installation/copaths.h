#pragma once

#include "coproducttype.h"
#include "coversionnumber.h"

#include <kdqcore_export.h>

#include <QSettings>
#include <QStringList>

#include <memory>

/// Where this installation lies: finds its root, the base path, once, and derives the other folders from it.
///
/// \code
/// coPaths::createInstance();
/// const QString scripts = coPaths::I().getWeldingScriptPath();
/// if (!QDir(scripts).exists())
///     return fail(tr("The folder '%1' is missing.").arg(scripts));
/// ...
/// coPaths::removeInstance();
/// \endcode
///
/// The base path comes from the first of these that names an existing folder: the environment variable
/// KALDORAN_BASEPATH; the argument after the first "-basePath" of the command line; the application's folder
/// or the nearest above it that is named exactly "kaldoran". What is found so is remembered in the settings
/// file, unless the command line has "-undoSetup". Where nothing is found, the remembered value counts, or
/// "C:/Program Files/kaldoran", whether the folder exists or not.
///
/// The installation tree (V is the version root, by default the base path; a product folder that holds
/// folders named as versions, such as "2018.1", stands for the one that the running application lies in, else
/// for the newest):
///
/// \code{.unparsed}
/// V/additive, V/forming, V/joining, V/welding       the product version folders, each with
///     bin scripts doc demos examples                (additive: templates and tutorials, too)
/// V/tools/kaldoran.mesh                             the mesh product
/// BASE/material/bin BASE/material/data BASE/material/doc
/// BASE/demos/bin BASE/tools/bin BASE/doc BASE/components
/// \endcode
///
/// Every folder is computed when it is first asked for and then stays, until a setter changes one that it
/// depends on. Paths may not exist: ask before you use them. Where the base path is empty, which only an
/// empty remembered value makes it, all paths are. Paths are clean, with the system's separators; the base
/// path is as it was found.
///
/// The object is also its own settings store, in the INI file of the user with the organisation's name and
/// "_paths"; it looks into no other file. Leave no group open in it.
///
/// Lives in the main thread.
class KDQCORE_EXPORT coPaths : public QSettings {
public:
    /// The folders that can be asked for one by one, and two applications.
    enum e_Folder : int {
        BasePath,
        VersionRoot,
        FormingVersion,
        WeldingVersion,
        JoiningVersion,
        AmVersion,
        Mesh,
        FormingScripts,
        WeldingScripts,
        AmScripts,
        WeldingDemos,
        WeldingExamples,
        AmDemos,
        AmExamples,
        AmTemplates,
        AmTutorials,
        MaterialDocs,
        MaterialLibrary,
        MaterialApplication, ///< the executable
        DemosApplication     ///< the executable
    };

    /// What decided about a path.
    enum e_Origin : int {
        Unresolved,      ///< not asked for yet, or nothing found
        Environment,     ///< the variable KALDORAN_BASEPATH
        CommandLine,     ///< the option -basePath
        ApplicationPath, ///< a folder "kaldoran" above the application
        Remembered,      ///< the settings file
        DefaultValue,    ///< no other source
        Composed,        ///< made from another folder
        Set              ///< a setter
    };

    /// With an instance it only logs "coPaths creation failed!".
    static void createInstance();
    /// Without an instance it only logs "coPaths remove failed!".
    static void removeInstance();
    static bool created();
    /// Without an instance it logs that and returns a stand-in whose paths are all empty and which stores
    /// nothing.
    static coPaths& I();

    ~coPaths() override;

    /// The installation root. Never changes during the life of the instance once it is not empty.
    QString getKaldoranBasePath();
    /// Any of the folders, with the log lines of its own getter.
    QString path(e_Folder folder);
    e_Origin origin(e_Folder folder) const;

    /// The folder that holds the product folders: what was set, or the base path once a product folder has
    /// been asked for; empty before.
    QString getVersionRootDir() const;

    QString getFormingVersionPath() { return path(FormingVersion); }
    QString getWeldingVersionPath() { return path(WeldingVersion); }
    QString getJoiningVersionPath() { return path(JoiningVersion); }
    QString getAmVersionPath() { return path(AmVersion); }
    QString getkdMeshFilePath() { return path(Mesh); } ///< the folder of the mesh product

    QString getFormingScriptPath() { return path(FormingScripts); }
    QString getWeldingScriptPath() { return path(WeldingScripts); }
    QString getAmScriptPath() { return path(AmScripts); }

    QString getWeldingDemosPath() { return path(WeldingDemos); }
    QString getWeldingExamplePath() { return path(WeldingExamples); }
    QString getAmDemosPath() { return path(AmDemos); }
    QString getAmExamplePath() { return path(AmExamples); }
    QString getAmTemplatePath() { return path(AmTemplates); }
    QString getAmTutorialPath() { return path(AmTutorials); }

    QString getDemosApplicationFilePath() { return path(DemosApplication); }       ///< the executable
    QString getMaterialApplicationFilePath() { return path(MaterialApplication); } ///< the executable
    QString getMaterialDocsPath() { return path(MaterialDocs); }
    QString getMaterialKaldoranLibraryPath() { return path(MaterialLibrary); }

    // Below the base path; they begin with "/" and have no other separators on any system.
    static QString getRelativeDemosExecutablePath(); ///< "/demos/bin/kaldoran.demos"
    static QString getRelativeMaterialExePath();     ///< "/material/bin/kaldoran.material"
    static QString getRelativeMaterialPath();        ///< "/material/"
    static QString getRelativeMaterialLibraryPath(); ///< "/material/data"

    static QString getFormingSubDirName();      ///< "forming"
    static QString getMSCComponentFolderName(); ///< "components"
    /// The database folder of the registered product: "MasterLibrary" for additive, "Database" for others.
    static QString databaseDirName();

    /// The solver's folder "components": the nearest from the working directory upwards within the
    /// installation, else the nearest from the mesh product's folder upwards, else the one that is missing in
    /// the base path.
    QString getUpperMSCComponentFilePath();

    /// The folder of the running application; empty without a QCoreApplication.
    static QString currentApplicationDirPath();

    /// The application of a product in this installation: in "bin" below the product's folder or, where it
    /// has none of its own, below "tools". Empty for the unknown product.
    QString getAppPathForProduct(const coProductType& product);

    /// A document of the registered product: "doc" in its folder; in the base path where none is registered.
    QString docFilePath(const QString& name);
    /// The same, or the document in the base path's "doc" where only that exists.
    QString docFilePathWithFallback(const QString& name);

    // Without language and extension: "Kaldoran_Welding_2018.1_ReleaseNotes".
    static QString releaseNotesBaseName(const coProductType& product, const coVersionNumber& version);
    static QString whatsNewBaseName(const coProductType& product, const coVersionNumber& version);

    // Setters last for the life of the instance. An empty path takes back what was set. What has been
    // computed from another folder follows, what has been set stays.
    void setVersionRootDir(const QString& path) { set(VersionRoot, path); }
    void fixAmVersionPath(const QString& path) { set(AmVersion, path); }
    void fixWeldingVersionPath(const QString& path) { set(WeldingVersion, path); }
    void setJoiningVersionPath(const QString& path) { set(JoiningVersion, path); }
    void setKdMeshPath(const QString& path) { set(Mesh, path); }
    void setWeldingDemosPath(const QString& path) { set(WeldingDemos, path); }
    void setWeldingExamplePath(const QString& path) { set(WeldingExamples, path); }
    void setAmDemosPath(const QString& path) { set(AmDemos, path); }

    /// The executable stored for a version of a product, or the default executable.
    QString productExecutable(const coProductType& product, const coVersionNumber& version) const;
    /// Stores it for later runs, too. An empty path removes it.
    void setProductExecutable(const coProductType& product, const coVersionNumber& version,
                              const QString& path);
    void removeProductExecutable(const coProductType& product, const coVersionNumber& version);

    /// Process-wide, also without an instance; empty at the start.
    static QString defaultExecutable();
    static void setDefaultExecutable(const QString& path);

    // The settings keys of the stored executables, "ProductExecutables/Kaldoran_Welding_2018.1.0.0", each
    // product's from the oldest version to the newest.
    QStringList allProductKeyNames() const;
    QStringList kaldoranAmKeyNames() const { return keyNames(coProductType::additive()); }
    QStringList kaldoranFormingKeyNames() const { return keyNames(coProductType::forming()); }
    QStringList kaldoranJoiningKeyNames() const { return keyNames(coProductType::joining()); }
    QStringList kaldoranWeldingKeyNames() const { return keyNames(coProductType::welding()); }

    /// The arguments without "-basePath", the folder after it, and "-undoSetup", for an application's own
    /// parser: most parsers would take them for rows of one-letter options.
    static QStringList withoutPathOptions(const QStringList& arguments);

private:
    struct Private;

    coPaths();
    explicit coPaths(Format standInFormat);

    void resolveBasePath();
    void remember(const QString& basePath);
    QString below(e_Folder parent, const QString& relativePath);
    QString initAndReturnVersionPath(e_Folder folder);
    QString initAndReturnScriptPath(e_Folder folder);
    QString getScriptPath(e_Folder versionFolder);
    void updatePathIfNotInitialized(e_Folder folder, const QString& path);
    void set(e_Folder folder, const QString& path);
    void logVersionPath(e_Folder folder) const;
    QString productPath(const coProductType& product);
    QStringList keyNames(const coProductType& product) const;

    static bool compareVersionLess(const QString& left, const QString& right);
    static QString spacesToUnderscores(const QString& text);
    static QString newestVersionFolder(const QString& productFolder);
    static QString keyPrefix(const coProductType& product);
    static QString key(const coProductType& product, const coVersionNumber& version);

    static coPaths* m_Instance;
    static QString m_DefaultExecutable;

    const std::unique_ptr<Private> m_p;
};
