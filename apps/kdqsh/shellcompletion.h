#pragma once

#include "lineeditor.h"

/// The words that may stand at the end of what was typed, by what the command takes at that place: commands,
/// the words of its usage line, files and folders, and what the session holds: tables, their columns and
/// units, processes and their stages, parameters, locked folders.
namespace nShellCompletion {

/// Words with blanks come in quotes.
LineEditor::Completion complete(const QString& beforeCursor);

} // namespace nShellCompletion
