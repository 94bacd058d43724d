#pragma once

#include <QString>

/// The operating system behind one interface. platform_posix.cpp and platform_windows.cpp implement it;
/// nothing above this folder calls the system itself. All functions are thread-safe.
namespace nPlatform {

/// Milliseconds of a steady clock that never jumps or wraps; only differences mean something.
qint64 monotonicMilliseconds();

/// The system's text for an error code, with the line break that the system ends it with; empty where the
/// system does not know the code.
QString systemErrorText(unsigned long errorCode);

} // namespace nPlatform
