#pragma once

#include "copaths.h"

/// Looks for the installation root of this process; coPaths remembers what it finds.
namespace nBasePathSearch {

struct Found {
    QString path; ///< absolute; empty where there is none
    coPaths::e_Origin origin = coPaths::Unresolved;
};

/// Asks the environment, then the command line, then the application's folder and those above. Logs what
/// decided.
Found find();

/// Whether the command line has the option by which an application undoes its set-up.
bool undoesSetup();

/// The command line without the options of the paths.
QStringList withoutOptions(QStringList arguments);

} // namespace nBasePathSearch
