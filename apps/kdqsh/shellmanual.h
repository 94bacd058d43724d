#pragma once

#include "programhelp.h"

/// The manual page, made from the help texts, so that it cannot lag behind them.
namespace nShellManual {

/// With what the program says of itself, and the help on all commands.
QString page(const ProgramHelp& help);

} // namespace nShellManual
