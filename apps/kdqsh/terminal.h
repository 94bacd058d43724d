#pragma once

#include <cstdio>

/// What the shell asks of the window it runs in; terminal_posix.cpp and terminal_windows.cpp answer.
namespace nTerminal {

/// Whether a person looks at (or types into) the stream, not a file or a pipe.
bool isTerminal(std::FILE* stream);

/// Width of the window in columns; 80 where it is not known.
int columns();

} // namespace nTerminal
