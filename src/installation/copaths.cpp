#include "copaths.h"

#include "basepathsearch_p.h"
#include "coproductinformation.h"
#include "foldersabove_p.h"
#include "installationtree_p.h"
#include "kdsingleton_p.h"
#include "ncompanyinfo.h"
#include "nfilesystem.h"
#include "nkaldoranam.h"
#include "nkaldoranwelding.h"

#include <kdQCore/coCachedString>

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>

coPaths* coPaths::m_Instance = nullptr;
QString coPaths::m_DefaultExecutable; // NOLINT(cert-err58-cpp): an empty text cannot throw

namespace {

enum Kind { Folder, Version, Scripts, Application };

struct Row {
    Kind kind;
    coPaths::e_Folder parent;
    const char* below;
    const coProductType& (*product)();
};

// By e_Folder.
constexpr Row rows[] = {
    {Folder, coPaths::BasePath, "", nullptr},
    {Folder, coPaths::BasePath, "", nullptr},
    {Version, coPaths::VersionRoot, "/", &coProductType::forming},
    {Version, coPaths::VersionRoot, "/", &coProductType::welding},
    {Version, coPaths::VersionRoot, "/", &coProductType::joining},
    {Version, coPaths::VersionRoot, "/", &coProductType::additive},
    {Version, coPaths::VersionRoot, "/", &coProductType::mesh},
    {Scripts, coPaths::FormingVersion, "/scripts", nullptr},
    {Scripts, coPaths::WeldingVersion, "/scripts", nullptr},
    {Scripts, coPaths::AmVersion, "/scripts", nullptr},
    {Folder, coPaths::WeldingVersion, "/demos", nullptr},
    {Folder, coPaths::WeldingVersion, "/examples", nullptr},
    {Folder, coPaths::AmVersion, "/demos", nullptr},
    {Folder, coPaths::AmVersion, "/examples", nullptr},
    {Folder, coPaths::AmVersion, "/templates", nullptr},
    {Folder, coPaths::AmVersion, "/tutorials", nullptr},
    {Folder, coPaths::BasePath, "/material/doc", nullptr},
    {Folder, coPaths::BasePath, "/material/data", nullptr},
    {Application, coPaths::BasePath, "/material/bin/", &coProductType::material},
    {Application, coPaths::BasePath, "/demos/bin/", &coProductType::demosAndExamples},
};
constexpr int folderCount = sizeof(rows) / sizeof(rows[0]);
static_assert(folderCount == coPaths::DemosApplication + 1);

QString relativePath(coPaths::e_Folder folder)
{
    const Row& row = rows[folder];
    const QString below = QLatin1String(row.below);
    if (row.kind == Version)
        return below + nInstallationTree::productFolder(row.product());
    return row.kind == Application ? below + nInstallationTree::executableName(row.product()) : below;
}

QString cleanPath(const QString& path)
{
    return nFileSystem::toCleanAndNativeDirPath(path, false);
}

QString basePathKey()
{
    return QStringLiteral("BasePath");
}

bool holdsComponents(const QDir& dir)
{
    return QFileInfo(dir.filePath(coPaths::getMSCComponentFolderName())).isDir();
}

} // namespace

struct coPaths::Private {
    struct Entry {
        coCachedString path;
        e_Origin origin = Unresolved;
    };

    bool isStandIn = false;
    Entry entries[folderCount];
};

void coPaths::createInstance()
{
    KD_SINGLETON(coPaths, kdLog::Paths).create(m_Instance, [] { return new coPaths; });
}

void coPaths::removeInstance()
{
    KD_SINGLETON(coPaths, kdLog::Paths).remove(m_Instance, [](coPaths* instance) { delete instance; });
}

bool coPaths::created()
{
    return m_Instance != nullptr;
}

coPaths& coPaths::I()
{
    return KD_SINGLETON(coPaths, kdLog::Paths).access(m_Instance, []() -> coPaths& {
        static coPaths* const standIn = new coPaths(InvalidFormat);
        return *standIn;
    });
}

coPaths::coPaths()
    : QSettings(IniFormat, UserScope, nCompanyInfo::organizationNameForSettings(),
                nCompanyInfo::organizationNameForSettings() + QLatin1String("_paths")),
      m_p(std::make_unique<Private>())
{
    setFallbacksEnabled(false);
}

coPaths::coPaths(Format standInFormat) : QSettings(QString(), standInFormat), m_p(std::make_unique<Private>())
{
    m_p->isStandIn = true;
}

coPaths::~coPaths() = default;

QString coPaths::getKaldoranBasePath()
{
    const Private::Entry& base = m_p->entries[BasePath];
    if (QString(base.path).isEmpty() && !m_p->isStandIn)
        resolveBasePath();
    return base.path;
}

void coPaths::resolveBasePath()
{
    nBasePathSearch::Found found = nBasePathSearch::find();
    if (!found.path.isEmpty()) {
        if (!nBasePathSearch::undoesSetup())
            remember(cleanPath(found.path));
    } else {
        found.origin = contains(basePathKey()) ? Remembered : DefaultValue;
        found.path = value(basePathKey(), QStringLiteral("C:/Program Files/kaldoran")).toString();
    }
    m_p->entries[BasePath] = {found.path, found.origin};
}

void coPaths::remember(const QString& basePath)
{
    if (value(basePathKey()).toString() == basePath)
        return;
    setValue(basePathKey(), basePath);
    sync();
    if (status() != NoError)
        KD_LOG(kdLog::Notable, kdLog::Paths,
               QStringLiteral("The base path could not be stored in '%1'.").arg(fileName()));
}

QString coPaths::path(e_Folder folder)
{
    if (folder == BasePath)
        return getKaldoranBasePath();
    const Row& row = rows[folder];
    if (row.kind == Version)
        return initAndReturnVersionPath(folder);
    if (row.kind == Scripts)
        return initAndReturnScriptPath(folder);
    if (origin(folder) == Unresolved)
        updatePathIfNotInitialized(folder, below(row.parent, relativePath(folder)));
    return m_p->entries[folder].path;
}

coPaths::e_Origin coPaths::origin(e_Folder folder) const
{
    return m_p->entries[folder].origin;
}

QString coPaths::below(e_Folder parent, const QString& relativePath)
{
    const QString parentPath = path(parent);
    return parentPath.isEmpty() ? QString() : cleanPath(parentPath + relativePath);
}

void coPaths::updatePathIfNotInitialized(e_Folder folder, const QString& path)
{
    Private::Entry& entry = m_p->entries[folder];
    if (!entry.path.initialized() && !path.isEmpty())
        entry = {path, Composed};
}

QString coPaths::initAndReturnVersionPath(e_Folder folder)
{
    if (origin(folder) == Unresolved) {
        updatePathIfNotInitialized(folder,
                                   newestVersionFolder(below(rows[folder].parent, relativePath(folder))));
        logVersionPath(folder);
    }
    return m_p->entries[folder].path;
}

QString coPaths::initAndReturnScriptPath(e_Folder folder)
{
    if (origin(folder) == Unresolved)
        updatePathIfNotInitialized(folder, getScriptPath(rows[folder].parent));
    return m_p->entries[folder].path;
}

QString coPaths::getScriptPath(e_Folder versionFolder)
{
    QString scripts = below(versionFolder, QStringLiteral("/scripts"));
    if (!scripts.isEmpty() && !QFileInfo(scripts).isDir())
        KD_LOG(kdLog::Notable, kdLog::Paths,
               QStringLiteral("No submit script directory in: %1.").arg(path(versionFolder)));
    return scripts;
}

void coPaths::logVersionPath(e_Folder folder) const
{
    const QString path = m_p->entries[folder].path;
    if (path.isEmpty())
        return;
    if (folder == Mesh && !QFileInfo(path).isDir())
        KD_LOG(kdLog::Notable, kdLog::Paths,
               QStringLiteral("The kaldoran.mesh product folder could not be found."));
    if (folder == Mesh)
        KD_LOG(kdLog::Trace, kdLog::Paths, QStringLiteral("Kaldoran Mesh version path is '%1'.").arg(path));
    else if (folder == JoiningVersion)
        KD_LOG(kdLog::Trace, kdLog::Paths,
               QStringLiteral("Kaldoran Joining version path is '%1'.").arg(path));
    else
        KD_LOG(kdLog::Trace, kdLog::Paths,
               QStringLiteral("%1 version path: %2.").arg(rows[folder].product().viewName(), path));
}

QString coPaths::newestVersionFolder(const QString& productFolder)
{
    static const QRegularExpression version(QStringLiteral("^[0-9]+(\\.[0-9]+){0,3}$"));
    const QDir dir(productFolder);
    const QStringList versions = productFolder.isEmpty()
        ? QStringList()
        : dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot).filter(version);
    if (versions.isEmpty())
        return productFolder;
    const QString application = currentApplicationDirPath();
    for (const QString& name : versions)
        if (liesInFolder(application, dir.filePath(name)))
            return cleanPath(dir.filePath(name));
    return cleanPath(dir.filePath(*std::max_element(versions.begin(), versions.end(), compareVersionLess)));
}

bool coPaths::compareVersionLess(const QString& left, const QString& right)
{
    return coVersionNumber(left) < coVersionNumber(right);
}

void coPaths::set(e_Folder folder, const QString& path)
{
    if (m_p->isStandIn)
        return;
    for (Private::Entry& entry : m_p->entries)
        if (entry.origin == Composed)
            entry = {};
    Private::Entry& changed = m_p->entries[folder];
    changed = {};
    if (!path.isEmpty())
        changed = {cleanPath(path), Set};
    if (rows[folder].kind == Version)
        logVersionPath(folder);
}

QString coPaths::getVersionRootDir() const
{
    return m_p->entries[VersionRoot].path;
}

QString coPaths::getRelativeDemosExecutablePath()
{
    return relativePath(DemosApplication);
}

QString coPaths::getRelativeMaterialExePath()
{
    return relativePath(MaterialApplication);
}

QString coPaths::getRelativeMaterialPath()
{
    return QStringLiteral("/material/");
}

QString coPaths::getRelativeMaterialLibraryPath()
{
    return relativePath(MaterialLibrary);
}

QString coPaths::getFormingSubDirName()
{
    return nInstallationTree::productFolder(coProductType::forming());
}

QString coPaths::getMSCComponentFolderName()
{
    return QStringLiteral("components");
}

QString coPaths::databaseDirName()
{
    return coProductInformation::productType().isAdditive() ? nKaldoranAm::databaseDirectoryName()
                                                            : nKaldoranWelding::databaseDirectoryName();
}

QString coPaths::getUpperMSCComponentFilePath()
{
    const QString base = getKaldoranBasePath();
    const QString mesh = getkdMeshFilePath();
    if (base.isEmpty())
        return QString();
    const auto isWanted = [&base](const QDir& dir) {
        return holdsComponents(dir) && liesInFolder(dir.path(), base);
    };
    QString folder = nearestFolderAbove(QDir::currentPath(), isWanted);
    if (folder.isEmpty())
        folder = holdsComponents(mesh) ? mesh : nearestFolderAbove(mesh, isWanted);
    if (folder.isEmpty()) {
        folder = base;
        KD_LOG(kdLog::Notable, kdLog::Paths,
               QStringLiteral("The msc component folder could not be found in '%1'.").arg(cleanPath(base)));
    }
    return cleanPath(folder + QLatin1Char('/') + getMSCComponentFolderName());
}

QString coPaths::currentApplicationDirPath()
{
    if (!QCoreApplication::instance())
        return QString();
    const QString path = QCoreApplication::applicationDirPath();
    return QFileInfo(path).isDir() ? cleanPath(path) : path;
}

QString coPaths::productPath(const coProductType& product)
{
    const auto row = std::find_if(std::begin(rows), std::end(rows), [&product](const Row& candidate) {
        return candidate.kind == Version && candidate.product() == product;
    });
    if (row != std::end(rows))
        return path(static_cast<e_Folder>(row - std::begin(rows)));
    return below(BasePath, QLatin1Char('/') + nInstallationTree::productFolder(product));
}

QString coPaths::getAppPathForProduct(const coProductType& product)
{
    const QString folder = productPath(product);
    if (product.isUnknown() || folder.isEmpty())
        return QString();
    return cleanPath(folder + QLatin1String("/bin/") + nInstallationTree::executableName(product));
}

QString coPaths::docFilePath(const QString& name)
{
    const QString folder = productPath(coProductInformation::productType());
    return folder.isEmpty() ? QString() : cleanPath(folder + QLatin1String("/doc/") + name);
}

QString coPaths::docFilePathWithFallback(const QString& name)
{
    const QString path = docFilePath(name);
    const QString fallback = below(BasePath, QLatin1String("/doc/") + name);
    return !QFileInfo::exists(path) && QFileInfo::exists(fallback) ? fallback : path;
}

QString coPaths::spacesToUnderscores(const QString& text)
{
    return QString(text).replace(QLatin1Char(' '), QLatin1Char('_'));
}

QString coPaths::releaseNotesBaseName(const coProductType& product, const coVersionNumber& version)
{
    return spacesToUnderscores(QStringLiteral("%1 %2 ReleaseNotes")
                                   .arg(product.viewName(), version.toString(coVersionNumber::MajorMinor)));
}

QString coPaths::whatsNewBaseName(const coProductType& product, const coVersionNumber& version)
{
    return spacesToUnderscores(QStringLiteral("%1 %2 WhatsNew")
                                   .arg(product.viewName(), version.toString(coVersionNumber::MajorMinor)));
}

QString coPaths::keyPrefix(const coProductType& product)
{
    return QStringLiteral("ProductExecutables/%1_").arg(spacesToUnderscores(product.viewName()));
}

QString coPaths::key(const coProductType& product, const coVersionNumber& version)
{
    return keyPrefix(product) + version.toString();
}

QString coPaths::productExecutable(const coProductType& product, const coVersionNumber& version) const
{
    return value(key(product, version), m_DefaultExecutable).toString();
}

void coPaths::setProductExecutable(const coProductType& product, const coVersionNumber& version,
                                   const QString& path)
{
    if (path.isEmpty())
        removeProductExecutable(product, version);
    else
        setValue(key(product, version), nFileSystem::toCleanAndNativeFilePath(path));
}

void coPaths::removeProductExecutable(const coProductType& product, const coVersionNumber& version)
{
    remove(key(product, version));
}

QString coPaths::defaultExecutable()
{
    return m_DefaultExecutable;
}

void coPaths::setDefaultExecutable(const QString& path)
{
    m_DefaultExecutable = path;
}

QStringList coPaths::keyNames(const coProductType& product) const
{
    const QString prefix = keyPrefix(product);
    QStringList names;
    const QStringList stored = allKeys();
    for (const QString& name : stored)
        if (name.startsWith(prefix))
            names.append(name);
    std::sort(names.begin(), names.end(), [&prefix](const QString& left, const QString& right) {
        return compareVersionLess(left.mid(prefix.size()), right.mid(prefix.size()));
    });
    return names;
}

QStringList coPaths::allProductKeyNames() const
{
    QStringList names;
    for (int id = coProductType::Additive; id <= coProductType::Remote; ++id)
        names += keyNames(coProductType::fromVariant(id));
    return names;
}

QStringList coPaths::withoutPathOptions(const QStringList& arguments)
{
    return nBasePathSearch::withoutOptions(arguments);
}
