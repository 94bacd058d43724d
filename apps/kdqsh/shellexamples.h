#pragma once

#include <QStringList>

/// For every command an example that works as it stands, where the files of examples/fire and
/// examples/case-hardening lie in the working directory. Those that need another process are halves of one
/// conversation, over port 4711 or with process 4711.
namespace nShellExamples {

/// The lines of the example of \a command, its name as it is typed ("table import"); none where it is
/// unknown.
QStringList of(const QString& command);

} // namespace nShellExamples
