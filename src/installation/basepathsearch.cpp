#include "basepathsearch_p.h"
#include "foldersabove_p.h"

#include <kdQCore/kdLog>

#include <QCoreApplication>

namespace nBasePathSearch {

namespace {

QString basePathOption()
{
    return QStringLiteral("-basePath");
}

QString undoSetupOption()
{
    return QStringLiteral("-undoSetup");
}

QStringList arguments()
{
    return QCoreApplication::instance() ? QCoreApplication::arguments() : QStringList();
}

/// Empty where there is no such folder. An empty text would stand for the working directory.
QString absoluteFolder(const QString& path)
{
    return QFileInfo(path).isDir() ? QDir(path).absolutePath() : QString();
}

QString fromEnvironment()
{
    QString path = absoluteFolder(qEnvironmentVariable("KALDORAN_BASEPATH"));
    if (!path.isEmpty())
        KD_LOG(kdLog::Trace, kdLog::Paths,
               QStringLiteral("Kaldoran base path set to: %1 using the 'KALDORAN_BASEPATH' variable.")
                   .arg(path));
    return path;
}

QString fromCommandLine()
{
    const QStringList all = arguments();
    const int index = all.indexOf(basePathOption());
    QString path = index > 0 ? absoluteFolder(all.value(index + 1)) : QString();
    if (!path.isEmpty())
        KD_LOG(kdLog::Trace, kdLog::Paths,
               QStringLiteral("Kaldoran base path set to: %1 using the '-basePath' option.").arg(path));
    return path;
}

QString fromApplicationPath()
{
    if (!QCoreApplication::instance())
        return QString();
    QString path = nearestFolderAbove(QCoreApplication::applicationDirPath(), [](const QDir& dir) {
        return dir.dirName() == QLatin1String("kaldoran");
    });
    if (!path.isEmpty())
        KD_LOG(kdLog::Trace, kdLog::Paths,
               QStringLiteral("Kaldoran base path set to: %1 using the application path.").arg(path));
    return path;
}

} // namespace

Found find()
{
    QString path = fromEnvironment();
    if (!path.isEmpty())
        return {path, coPaths::Environment};
    path = fromCommandLine();
    if (!path.isEmpty())
        return {path, coPaths::CommandLine};
    path = fromApplicationPath();
    return {path, path.isEmpty() ? coPaths::Unresolved : coPaths::ApplicationPath};
}

bool undoesSetup()
{
    return arguments().contains(undoSetupOption());
}

QStringList withoutOptions(QStringList arguments)
{
    for (int i = 1; i < arguments.size();) {
        if (arguments.at(i) == basePathOption())
            arguments.erase(arguments.begin() + i, arguments.begin() + qMin(i + 2, arguments.size()));
        else if (arguments.at(i) == undoSetupOption())
            arguments.removeAt(i);
        else
            ++i;
    }
    return arguments;
}

} // namespace nBasePathSearch
