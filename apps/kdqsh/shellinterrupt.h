#pragma once

/// Ctrl-C: the first is a request, which whatever runs obeys when it can; a second one before the request was
/// cleared ends the process at once. One flag for the process, as there is one keyboard.
namespace nInterrupt {

constexpr int exitStatus = 130; ///< 128 and the number of the signal, as shells have it

/// Until this is called Ctrl-C ends the process.
void watch();
bool isRequested();
void clear();

} // namespace nInterrupt
