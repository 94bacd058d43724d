#pragma once

#include "kdlog.h"

#include <QByteArray>

#include <string>

/// All that the debug log asks of glog, whose types stay in the source file. Thread-safe.
namespace nLogBackEnd {

struct Settings {
    std::string programName;
    std::string destination; ///< start of the path; date, time, process and ".log" are appended
    bool echo = false;       ///< lines also on standard error
};

/// False, nothing changed, where it runs already: glog would end the process.
bool start(const Settings& settings);
/// False where it does not run.
bool stop();
void flush();

/// The longest text that write() takes, in bytes; glog cuts the whole line at 30 000.
constexpr int maximumTextLength = 29000;

/// \a file is a base name, \a text holds no line break that could pass for the start of a line.
void write(kdLog::Severity severity, const char* tag, const char* file, int line, const QByteArray& text);

} // namespace nLogBackEnd
