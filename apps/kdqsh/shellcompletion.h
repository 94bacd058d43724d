#pragma once

#include <QStringList>

/// The words that may stand at the end of what was typed: commands, tables of the session, words of the
/// command's usage, files. All of them begin with what stands there already.
namespace nShellCompletion {

QStringList candidates(const QString& beforeCursor);

} // namespace nShellCompletion
