#include "nfilesystem.h"

#include <kdQCore/kdException>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <filesystem>

namespace nFileSystem {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(nFileSystem)
};

QFileInfoList contentOf(const QString& dir)
{
    return QDir(dir).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System,
                                   QDir::Name);
}

/// The path without links, also where its last parts do not exist yet.
QString canonicalPath(const QString& path)
{
    QString existing = QDir::cleanPath(QDir().absoluteFilePath(path));
    QString rest;
    while (!QFileInfo::exists(existing) && !QDir(existing).isRoot()) {
        const int slash = existing.lastIndexOf(QLatin1Char('/'));
        rest.prepend(existing.mid(slash));
        existing.truncate(slash);
        if (slash <= 0)
            break;
    }
    const QString start = existing.isEmpty() ? QString() : QFileInfo(existing).canonicalFilePath();
    return (start.endsWith(QLatin1Char('/')) ? start.chopped(1) : start) + rest;
}

kdException copyFailure(const QString& source, const QString& target, const QString& reason)
{
    return kdException(Texts::tr("Failed to copy '%1' to '%2': %3").arg(source, target, reason));
}

void removeExisting(const QString& path)
{
    const QFileInfo info(path);
    if (info.exists() || info.isSymbolicLink())
        removeFile(path);
}

// Qt makes the target of a link absolute, the standard library copies it as it stands.
void copyLink(const QString& source, const QString& target)
{
    removeExisting(target);
    try {
        std::filesystem::copy_symlink(source.toStdU16String(), target.toStdU16String());
    } catch (const std::exception& failure) {
        throw copyFailure(source, target, QString::fromLocal8Bit(failure.what()));
    }
}

void copyContent(const QString& source, const QString& target)
{
    createDir(target);
    const QFileInfoList entries = contentOf(source);
    for (const QFileInfo& entry : entries) {
        const QString entryTarget = target + QLatin1Char('/') + entry.fileName();
        if (entry.isSymbolicLink())
            copyLink(entry.filePath(), entryTarget);
        else if (entry.isDir())
            copyContent(entry.filePath(), entryTarget);
        else
            copyFile(entry.filePath(), entryTarget);
    }
}

} // namespace

void createDir(const QString& path)
{
    if (!QDir().mkpath(path))
        throw kdException(Texts::tr("Could not create directory '%1'.").arg(path));
}

void copyDirRecursivly(const QString& source, const QString& target)
{
    if (!QFileInfo(source).isDir())
        throw kdException(Texts::tr("Directory '%1' does not exist.").arg(source));
    const QString from = canonicalPath(source) + QLatin1Char('/');
    const QString to = canonicalPath(target) + QLatin1Char('/');
    if (to.startsWith(from))
        throw copyFailure(source, target, Texts::tr("the target lies in the source"));
    copyContent(source, target);
}

void copyFile(const QString& source, const QString& target)
{
    if (QFileInfo::exists(target) && canonicalPath(source) == canonicalPath(target))
        throw copyFailure(source, target, Texts::tr("both are the same file"));
    // Opening a pipe would wait for its writer.
    if (QFileInfo::exists(source) && !QFileInfo(source).isFile())
        throw copyFailure(source, target, Texts::tr("it is no regular file"));
    QFile file(source);
    if (!file.open(QIODevice::ReadOnly))
        throw copyFailure(source, target, file.errorString());
    file.close();
    createDir(QFileInfo(target).path());
    removeExisting(target);
    if (!file.copy(target))
        throw copyFailure(source, target, file.errorString());
}

void removeFile(const QString& path)
{
    QFile file(path);
    if (file.remove())
        return;
    const QString reason = file.errorString();
    // Windows keeps read-only files from being removed.
    const QFileDevice::Permissions permissions = file.permissions();
    const bool isLink = QFileInfo(path).isSymbolicLink();
    if (!isLink && file.setPermissions(permissions | QFileDevice::WriteOwner) && file.remove())
        return;
    if (!isLink)
        file.setPermissions(permissions);
    throw kdException(Texts::tr("Failed to remove file '%1': %2").arg(path, reason));
}

void removeDirRecursivly(const QString& path)
{
    const QFileInfo dir(path);
    if (!dir.isDir())
        throw kdException(Texts::tr("Directory '%1' does not exist.").arg(path));
    if (dir.isSymbolicLink()) {
        removeFile(path);
        return;
    }
    const QFileInfoList entries = contentOf(path);
    for (const QFileInfo& entry : entries) {
        if (entry.isDir() && !entry.isSymbolicLink())
            removeDirRecursivly(entry.filePath());
        else
            removeFile(entry.filePath());
    }
    if (!QDir().rmdir(path))
        throw kdException(Texts::tr("Failed to remove directory '%1'.").arg(path));
}

QString toCleanAndNativeDirPath(const QString& path, bool withSeparatorAtEnd)
{
    QString clean = QDir::cleanPath(QDir::fromNativeSeparators(path));
    if (withSeparatorAtEnd && !clean.isEmpty() && !clean.endsWith(QLatin1Char('/')))
        clean += QLatin1Char('/');
    return QDir::toNativeSeparators(clean);
}

QString toCleanAndNativeFilePath(const QString& path)
{
    return toCleanAndNativeDirPath(path, false);
}

} // namespace nFileSystem
