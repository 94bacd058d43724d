#pragma once

#include <kdqcore_export.h>

#include <QString>

#include <iosfwd>

class QDir;

/// Opens and closes the process's debug log, one file per run. Lines are written through KD_LOG (kdLog).
///
/// \code
/// int main(int argc, char** argv)
/// {
///     QCoreApplication application(argc, argv);
///     kdDebugLog::createInstance(argc, argv, false);
///     const int status = QCoreApplication::exec();
///     kdDebugLog::removeInstance();
///     return status;
/// }
/// \endcode
///
/// The file lies in LOCALAPPDATA/kaldoran/log and is named `<program>-<date>-<time>.<process>.log`. It opens
/// with a block of system information and receives the lines of all severities. A line begins with its
/// severity 0 to 6, date, time, thread, source file and line. Whatever goes wrong with the file costs lines,
/// never the process. Where TZ is unset, createInstance sets it to the system's own zone (POSIX), for child
/// processes too.
///
/// createInstance and removeInstance belong to the main thread, at start-up and exit; flush() is thread-safe.
class KDQCORE_EXPORT kdDebugLog {
public:
    kdDebugLog() = delete;

    /// \a argv may be null; its first entry names the file. A second call only logs "kdDebugLog creation
    /// failed!". After removeInstance it opens a new file, for whose name it may wait until the next second.
    static void createInstance(int argc, char* const* argv, bool logInCurrentDirectory);
    /// Closes the file; later lines go to standard error. Without a log it only logs "kdDebugLog remove
    /// failed!".
    static void removeInstance();
    static bool created();

    /// Hands everything logged so far to the system. Lines of severity 4 and more need no flush.
    static void flush();
    /// Echoes the lines on standard error; off by default. Counts for the next createInstance.
    static void setAlsoLogToStdErrorEnabled(bool enabled);

    /// The file of this run; empty while none exists.
    static QString logFilePath();
    /// The start of the path of a log file, as createInstance uses it. Makes the folder.
    static QString defaultLogPath(QString baseName);
    /// Keeps the nine newest files of \a directory named \a baseName + "*.log" and deletes the others.
    /// createInstance does not call it.
    static void removeOldLogFiles(const QDir& directory, const QString& baseName);

private:
    static void logSystemInfo(int argc, char* const* argv);
    static void disableSeparateSeverityLevelLogs();

    static bool m_alsoLogToStdError;
    static bool m_enableLoggingFlag;
};

/// Writes \a text in local 8-bit encoding.
KDQCORE_EXPORT std::ostream& operator<<(std::ostream& stream, const QString& text);
