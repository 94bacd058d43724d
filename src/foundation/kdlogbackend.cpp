#include "kdlogbackend_p.h"

#include <algorithm>
#include <chrono>
#include <glog/logging.h>
#include <list>
#include <mutex>
#include <ostream>
#include <shared_mutex>
#include <thread>

namespace nLogBackEnd {

namespace {

struct State {
    std::shared_mutex mutex; ///< exclusive while glog opens or closes
    bool running = false;
    std::list<std::string> programNames; ///< glog keeps a pointer to the name for ever
    std::chrono::system_clock::time_point lastStart;
};

State& state()
{
    // Never destroyed: destructors of other static objects may still log.
    static State* const instance = new State;
    return *instance;
}

constexpr int foreignLine = -1;
thread_local int severityOfThisLine = foreignLine;

int severityDigit(const google::LogMessageInfo& info)
{
    if (severityOfThisLine != foreignLine)
        return severityOfThisLine;
    switch (info.severity[0]) {
    case 'I':
        return kdLog::Trace;
    case 'W':
        return kdLog::Notice;
    case 'E':
        return kdLog::Error;
    default:
        return kdLog::Critical;
    }
}

char* putNumber(char* out, int number, int digits)
{
    for (int i = digits - 1; i >= 0; --i) {
        out[i] = char('0' + number % 10);
        number /= 10;
    }
    return out + digits;
}

/// "4 20261121 09:03:12.123456", the time as glog has it.
void writePrefix(std::ostream& stream, const google::LogMessageInfo& info, void*)
{
    char buffer[32];
    char* out = putNumber(buffer, severityDigit(info), 1);
    *out++ = ' ';
    out = putNumber(out, 1900 + info.time.year(), 4);
    out = putNumber(out, 1 + info.time.month(), 2);
    out = putNumber(out, info.time.day(), 2);
    *out++ = ' ';
    out = putNumber(out, info.time.hour(), 2);
    *out++ = ':';
    out = putNumber(out, (info.time.min)(), 2);
    *out++ = ':';
    out = putNumber(out, info.time.sec(), 2);
    *out++ = '.';
    out = putNumber(out, info.time.usec(), 6);
    *out++ = ' ';
    stream.write(buffer, out - buffer);
    stream << info.thread_id << ' ' << info.filename << ':' << info.line_number << ']';
}

int glogLevel(kdLog::Severity severity)
{
    if (severity >= kdLog::Error)
        return google::GLOG_ERROR;
    return severity >= kdLog::Notice ? google::GLOG_WARNING : google::GLOG_INFO;
}

/// One file takes the lines of all levels, and only files take lines.
void setDestination(const Settings& settings)
{
    FLAGS_alsologtostderr = settings.echo;
    FLAGS_stderrthreshold = google::NUM_SEVERITIES;
    FLAGS_logtostderr = false;
    FLAGS_log_prefix = true;
    FLAGS_timestamp_in_logfile_name = true;
    FLAGS_minloglevel = google::GLOG_INFO;
    google::SetLogDestination(google::GLOG_INFO, settings.destination.c_str());
    for (int level = google::GLOG_WARNING; level < google::NUM_SEVERITIES; ++level)
        google::SetLogDestination(level, "");
    google::SetLogSymlink(google::GLOG_INFO, "");
    google::SetLogFilenameExtension(".log");
}

/// The file's name tells the second of its creation, and glog does not open one that exists.
void waitForAnotherSecond(std::chrono::system_clock::time_point last)
{
    const auto next = std::chrono::time_point_cast<std::chrono::seconds>(last) + std::chrono::seconds(1);
    std::this_thread::sleep_until(std::min<std::chrono::system_clock::time_point>(
        next, std::chrono::system_clock::now() + std::chrono::seconds(1)));
}

} // namespace

bool start(const Settings& settings)
{
    State& s = state();
    const std::unique_lock<std::shared_mutex> lock(s.mutex);
    if (s.running || google::IsGoogleLoggingInitialized())
        return false;
    waitForAnotherSecond(s.lastStart);
    s.lastStart = std::chrono::system_clock::now();
    setDestination(settings);
    s.programNames.push_back(settings.programName);
    google::InitGoogleLogging(s.programNames.back().c_str(), &writePrefix);
    s.running = true;
    return true;
}

bool stop()
{
    State& s = state();
    const std::unique_lock<std::shared_mutex> lock(s.mutex);
    if (!s.running)
        return false;
    s.running = false;
    google::FlushLogFiles(google::GLOG_INFO);
    if (google::IsGoogleLoggingInitialized())
        google::ShutdownGoogleLogging();
    return true;
}

void flush()
{
    const std::shared_lock<std::shared_mutex> lock(state().mutex);
    google::FlushLogFiles(google::GLOG_INFO);
}

void write(kdLog::Severity severity, const char* tag, const char* file, int line, const QByteArray& text)
{
    const std::shared_lock<std::shared_mutex> lock(state().mutex);
    severityOfThisLine = severity;
    google::LogMessage(file, line, glogLevel(severity))
        .stream()
        .write(tag, 17)
        .write(text.constData(), text.size());
    severityOfThisLine = foreignLine;
    if (severity >= kdLog::Fault)
        google::FlushLogFiles(google::GLOG_INFO);
}

} // namespace nLogBackEnd
