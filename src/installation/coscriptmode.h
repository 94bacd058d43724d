#pragma once

#include <kdqcore_export.h>

#include <QCoreApplication>
#include <QString>

/// Reads the scripts that applications execute in script mode, one command or several a line.
///
/// A script may include others. The statement stands on a line of its own; the name is relative to the folder
/// of the script that includes it:
///
/// \code
/// include "common/materials.txt"
/// \endcode
///
/// The quotes (" or ') may be left out, and the statement may end with a semicolon.
///
/// Files are read as UTF-8, or as UTF-16 where a byte order mark says so. Thread-safe.
class KDQCORE_EXPORT coScriptMode {
    Q_DECLARE_TR_FUNCTIONS(coScriptMode)

public:
    /// The script's lines, each ended with "\n", with every include statement replaced by the lines of the
    /// script that it names.
    ///
    /// Throws kdTypedException<QString>, whose payload tells the details: a script cannot be opened, an
    /// included script is missing or not named, a script includes itself (through others, too), or more than
    /// 1000 scripts are included in all.
    static QString readScriptContentToExecute(const QString& path);
};
