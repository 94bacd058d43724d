#pragma once

#include "shellcommand.h"

/// All groups of the shell's commands.
namespace nShellGroups {

const QVector<const ShellCommandGroup*>& all();

/// Null where there is none of that name.
const ShellCommandGroup* find(const QString& name);

/// Makes the groups known to the command dispatcher.
void registerCommands();

} // namespace nShellGroups
