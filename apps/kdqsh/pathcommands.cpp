#include "pathcommands.h"

#include <kdQCore/coPaths>

#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr int components = -1; // depends on the working directory

struct Row {
    const char* name;
    int folder;
    void (coPaths::*setter)(const QString& path);
};

constexpr Row rows[] = {
    {"base", coPaths::BasePath, nullptr},
    {"versionroot", coPaths::VersionRoot, &coPaths::setVersionRootDir},
    {"additive", coPaths::AmVersion, &coPaths::fixAmVersionPath},
    {"forming", coPaths::FormingVersion, nullptr},
    {"joining", coPaths::JoiningVersion, &coPaths::setJoiningVersionPath},
    {"welding", coPaths::WeldingVersion, &coPaths::fixWeldingVersionPath},
    {"mesh", coPaths::Mesh, &coPaths::setKdMeshPath},
    {"additivescripts", coPaths::AmScripts, nullptr},
    {"formingscripts", coPaths::FormingScripts, nullptr},
    {"weldingscripts", coPaths::WeldingScripts, nullptr},
    {"additivedemos", coPaths::AmDemos, &coPaths::setAmDemosPath},
    {"weldingdemos", coPaths::WeldingDemos, &coPaths::setWeldingDemosPath},
    {"additiveexamples", coPaths::AmExamples, nullptr},
    {"weldingexamples", coPaths::WeldingExamples, &coPaths::setWeldingExamplePath},
    {"additivetemplates", coPaths::AmTemplates, nullptr},
    {"additivetutorials", coPaths::AmTutorials, nullptr},
    {"materialdocs", coPaths::MaterialDocs, nullptr},
    {"materiallibrary", coPaths::MaterialLibrary, nullptr},
    {"materialapplication", coPaths::MaterialApplication, nullptr},
    {"demosapplication", coPaths::DemosApplication, nullptr},
    {"components", components, nullptr},
};

// From product number 1 on.
constexpr const char* products[] = {"additive", "demos",   "forming", "jes",     "joining", "material",
                                    "mesh",     "service", "welding", "monitor", "remote"};

const Row* find(const QString& name)
{
    const auto found = std::find_if(std::begin(rows), std::end(rows),
                                    [&name](const Row& row) { return name == QLatin1String(row.name); });
    return found != std::end(rows) ? found : nullptr;
}

template <typename IsListed>
QString names(IsListed isListed)
{
    QStringList names;
    for (const Row& row : rows)
        if (isListed(row))
            names.append(QLatin1String(row.name));
    return names.join(QLatin1String(", "));
}

QString pathOf(const Row& row)
{
    return row.folder == components ? coPaths::I().getUpperMSCComponentFilePath()
                                    : coPaths::I().path(static_cast<coPaths::e_Folder>(row.folder));
}

} // namespace

const ShellCommandGroup& PathCommands::group()
{
    using Entry = ShellCommandEntry;
    static const ShellCommandGroup group{
        "paths",
        "PathCommands",
        QT_TR_NOOP("The installation: its folders and the executables of its products."),
        {
            {"", "", QT_TR_NOOP("Shows all folders: whether each exists, and where it came from."), 0, 0,
             Entry::Query, list},
            {"show", "NAME", QT_TR_NOOP("Shows one of these paths."), 1, 1, Entry::Query, show},
            {"set",
             "versionroot|additive|joining|welding|mesh|additivedemos|weldingdemos|weldingexamples FOLDER",
             QT_TR_NOOP("Sets a folder for this run; what is derived from it follows."), 2, 2,
             Entry::CannotUndo, set},
            {"reset", "[NAME]",
             QT_TR_NOOP("Takes back what was set; without a name, finds the whole installation anew."), 0, 1,
             Entry::CannotUndo, reset},
            {"forget", "", QT_TR_NOOP("Removes the base path that is remembered for later runs."), 0, 0,
             Entry::CannotUndo, forget},
            {"application", "PRODUCT", QT_TR_NOOP("Shows the application of a product in this installation."),
             1, 1, Entry::Query, application},
            {"executables", "", QT_TR_NOOP("Lists the executables stored for versions of products."), 0, 0,
             Entry::Query, executables},
            {"executable", "PRODUCT VERSION", QT_TR_NOOP("Shows the executable stored for a version."), 2, 2,
             Entry::Query, executable},
            {"store", "PRODUCT VERSION FILE",
             QT_TR_NOOP("Stores the executable of a version for this and later runs."), 3, 3,
             Entry::CannotUndo, store},
            {"remove", "PRODUCT VERSION", QT_TR_NOOP("Removes the executable stored for a version."), 2, 2,
             Entry::CannotUndo, remove},
        }};
    return group;
}

QString PathCommands::originText(int origin)
{
    switch (origin) {
    case coPaths::Environment:
        return tr("variable %1").arg(QLatin1String("KALDORAN_BASEPATH"));
    case coPaths::CommandLine:
        return tr("option %1").arg(QLatin1String("-basePath"));
    case coPaths::ApplicationPath:
        return tr("the application's folder");
    case coPaths::Remembered:
        return tr("remembered");
    case coPaths::DefaultValue:
        return tr("default");
    case coPaths::Composed:
        return tr("derived");
    case coPaths::Set:
        return tr("set");
    default:
        return tr("not found");
    }
}

bool PathCommands::list(ShellCall& call)
{
    const QString states[] = {tr("missing"), tr("exists")};
    const int stateWidth = qMax(states[0].size(), states[1].size());
    int nameWidth = 0;
    for (const Row& row : rows)
        nameWidth = qMax(nameWidth, QString::fromLatin1(row.name).size());
    for (const Row& row : rows) {
        const QString path = pathOf(row);
        const int origin = row.folder == components
            ? int(coPaths::Composed)
            : coPaths::I().origin(static_cast<coPaths::e_Folder>(row.folder));
        call.show(QStringLiteral("%1  %2  %3 (%4)")
                      .arg(QString::fromLatin1(row.name).leftJustified(nameWidth),
                           states[QFileInfo::exists(path)].leftJustified(stateWidth), path,
                           originText(origin)));
    }
    return true;
}

bool PathCommands::show(ShellCall& call)
{
    const Row* const row = find(call.text(0));
    if (row == nullptr)
        return call.fail(
            tr("There is no path '%1', only %2.").arg(call.text(0), names([](const Row&) { return true; })));
    call.show(pathOf(*row));
    return true;
}

bool PathCommands::set(ShellCall& call)
{
    const QFileInfo folder(call.text(1));
    return folder.isDir() ? change(call, folder.absoluteFilePath())
                          : call.fail(tr("There is no folder '%1'.").arg(call.text(1)));
}

bool PathCommands::reset(ShellCall& call)
{
    if (call.count() == 1)
        return change(call, QString());
    coPaths::removeInstance();
    coPaths::createInstance();
    return true;
}

bool PathCommands::change(const ShellCall& call, const QString& path)
{
    const Row* const row = find(call.text(0));
    if (row == nullptr || row->setter == nullptr)
        return call.fail(tr("'%1' cannot be set, only %2.").arg(call.text(0), names([](const Row& candidate) {
                                                                    return candidate.setter != nullptr;
                                                                })));
    (coPaths::I().*row->setter)(path);
    return true;
}

bool PathCommands::forget(ShellCall&)
{
    coPaths::I().remove(QStringLiteral("BasePath"));
    return true;
}

bool PathCommands::readProduct(const ShellCall& call, coProductType& product)
{
    QStringList names;
    for (const char* name : products)
        names.append(QLatin1String(name));
    const int index = names.indexOf(call.text(0));
    if (index < 0)
        return call.fail(
            tr("There is no product '%1', only %2.").arg(call.text(0), names.join(QLatin1String(", "))));
    product = coProductType::fromVariant(index + 1);
    return true;
}

bool PathCommands::readVersion(const ShellCall& call, coVersionNumber& version)
{
    static const QRegularExpression form(QStringLiteral("^[0-9]{1,9}(\\.[0-9]{1,9}){0,3}$"));
    if (!form.match(call.text(1)).hasMatch())
        return call.fail(
            tr("A version is one to four numbers with dots between, not '%1'.").arg(call.text(1)));
    version = coVersionNumber::fromString(call.text(1));
    return true;
}

bool PathCommands::application(ShellCall& call)
{
    coProductType product;
    if (!readProduct(call, product))
        return false;
    call.show(coPaths::I().getAppPathForProduct(product));
    return true;
}

bool PathCommands::executables(ShellCall& call)
{
    const coPaths& paths = coPaths::I();
    const QStringList keys = paths.allProductKeyNames();
    for (const QString& key : keys)
        call.show(
            QStringLiteral("%1: %2").arg(key.section(QLatin1Char('/'), 1), paths.value(key).toString()));
    return true;
}

bool PathCommands::executable(ShellCall& call)
{
    coProductType product;
    coVersionNumber version;
    if (!readProduct(call, product) || !readVersion(call, version))
        return false;
    const QString path = coPaths::I().productExecutable(product, version);
    if (path.isEmpty())
        return call.fail(tr("No executable is stored for %1 %2.").arg(product.viewName(), call.text(1)));
    call.show(path);
    return true;
}

bool PathCommands::store(ShellCall& call)
{
    coProductType product;
    coVersionNumber version;
    if (!readProduct(call, product) || !readVersion(call, version))
        return false;
    const QFileInfo file(call.text(2));
    if (!file.isFile())
        return call.fail(tr("There is no file '%1'.").arg(call.text(2)));
    coPaths::I().setProductExecutable(product, version, file.absoluteFilePath());
    return true;
}

bool PathCommands::remove(ShellCall& call)
{
    coProductType product;
    coVersionNumber version;
    if (!readProduct(call, product) || !readVersion(call, version))
        return false;
    coPaths::I().removeProductExecutable(product, version);
    return true;
}
