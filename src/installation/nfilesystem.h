#pragma once

#include <kdqcore_export.h>

#include <QString>

/// Operations on folders and files that throw a kdException where they fail, naming the path.
///
/// What was done before a failure stays done. Symbolic links inside a folder are copied and removed as links,
/// never followed. Thread-safe, as far as nobody else changes the same folders meanwhile.
///
/// \code
/// const QString run = nFileSystem::toCleanAndNativeDirPath(projectPath + QStringLiteral("/run"), false);
/// nFileSystem::createDir(run);
/// nFileSystem::copyDirRecursivly(templatePath, run);
/// \endcode
namespace nFileSystem {

/// Creates the folder and all that lead to it; an existing folder is fine.
KDQCORE_EXPORT void createDir(const QString& path);

/// Copies the content of the folder \a source, hidden files included, into the folder \a target, which is
/// created where missing. Files of the same name are replaced, other content of the target stays. A folder is
/// not copied onto or into itself.
KDQCORE_EXPORT void copyDirRecursivly(const QString& source, const QString& target);

/// Copies one file, creates the target's folder where missing and replaces an existing target.
KDQCORE_EXPORT void copyFile(const QString& source, const QString& target);

/// Removes the file, also a read-only one; a missing file is a failure.
KDQCORE_EXPORT void removeFile(const QString& path);

/// Removes the folder with all that it holds; a missing folder is a failure.
KDQCORE_EXPORT void removeDirRecursivly(const QString& path);

/// The path with single native separators and without "." and ".."; empty for an empty path. The separator at
/// the end is there if \a withSeparatorAtEnd says so (a root always ends with one).
KDQCORE_EXPORT QString toCleanAndNativeDirPath(const QString& path, bool withSeparatorAtEnd);

/// The same for the path of a file.
KDQCORE_EXPORT QString toCleanAndNativeFilePath(const QString& path);

} // namespace nFileSystem
