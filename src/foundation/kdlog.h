#pragma once

#include <kdqcore_export.h>

#include <QString>

/// The one door to the debug log.
///
/// Library and applications write log lines through KD_LOG, never through the back end's own macros: it knows
/// only four levels and would end the process at its highest. A line works at any time: before
/// kdDebugLog::createInstance and after kdDebugLog::removeInstance it goes to standard error. No line ends
/// the process.
///
/// \code
/// KD_LOG(kdLog::Error, kdLog::Paths, QStringLiteral("Folder '%1' is missing.").arg(path));
/// \endcode
///
/// The text is written in local 8-bit encoding. Whoever reads the file finds a severity digit at the start of
/// each line and nowhere else: further lines of a text are indented by four blanks, other control characters
/// become blanks. Texts of more than 29 000 bytes are cut and end in " [...]".
///
/// Thread-safe.
namespace kdLog {

/// Seven severities, 0 the least severe. A line of severity 4 or more is in the file when the call returns,
/// so that a crash does not lose it.
enum Severity : int {
    Trace = 0, ///< life-cycle traces and routine facts
    Detail = 1,
    Notable = 2, ///< notable steps
    Notice = 3,  ///< start-up information, model-check warnings
    Fault = 4,   ///< failed set-up steps, socket faults, failed assertions
    Error = 5,
    Critical = 6
};

/// What a line is about. Its text, padded to 17 characters, opens the line.
enum Tag : int {
    General,
    Remote,
    License,
    Paths,
    FailedAssert,
    BatchMode,
    Setup,
    Command,
    Settings,
    WriteDat,
    Socket,
    ModelCheck,
    Material,
    InterProcessCom
};

/// The tag's text, padded with blanks to 17 characters.
KDQCORE_EXPORT const char* tagText(Tag tag);

/// Lines of a lower severity do not reach the file; sinks see every line. Trace at the start.
KDQCORE_EXPORT void setMinimumSeverity(Severity severity);
KDQCORE_EXPORT Severity minimumSeverity();

/// Whether anyone takes a line of this severity. KD_LOG asks it before the text is built.
KDQCORE_EXPORT bool isWanted(Severity severity);

/// Writes one line. \a file is a source path; the log shows its base name in lower case.
KDQCORE_EXPORT void write(Severity severity, Tag tag, const char* file, int line, const QString& text);

/// One line as the log received it.
struct Record {
    Severity severity;
    Tag tag;
    QString file; ///< base name in lower case
    int line;
    QString text; ///< without the tag
};

/// Sees every line while it is attached, in the thread that writes the line and before the call returns. One
/// line is delivered at a time, so received() needs no lock of its own; it must not wait for another thread
/// that logs. A line that it logs itself reaches the file, but no sink. For tests and for applications that
/// show the log.
///
/// The derived class attaches last thing in its constructor and detaches first thing in its destructor: the
/// base would do it while another thread could meet an object that is only half there.
class KDQCORE_EXPORT Sink {
public:
    Sink();
    virtual ~Sink();
    Q_DISABLE_COPY(Sink)

    virtual void received(const Record& record) = 0;

protected:
    void attach();
    /// Waits for a delivery that runs in another thread.
    void detach();
};

} // namespace kdLog

/// Writes one line; \a text is evaluated only if someone takes it.
#define KD_LOG(severity, tag, text) \
    (kdLog::isWanted(severity) ? kdLog::write(severity, tag, __FILE__, __LINE__, text) : void())

/// Logs a violated assumption of the caller (severity 4, tag FailedAssert); the code after it takes a safe
/// way on.
#define KD_LOG_FAILED_ASSERT(text) KD_LOG(kdLog::Fault, kdLog::FailedAssert, text)
