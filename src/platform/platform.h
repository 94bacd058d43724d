#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

/// The operating system behind one interface. platform_posix.cpp and platform_windows.cpp implement it;
/// nothing above this folder calls the system itself. All functions are thread-safe unless they say
/// otherwise; an object of one of the classes belongs to one thread at a time.
namespace nPlatform {

/// "win" or "linux", as version texts name the system.
QLatin1String systemName();

/// What ends the file name of a program: ".exe" or nothing.
QLatin1String executableExtension();

/// The folder of the shared library that this code is part of, or of the program where it is linked into
/// that. Empty where the system tells no absolute path.
QString moduleFolder();

/// Milliseconds of a steady clock that never jumps or wraps; only differences mean something.
qint64 monotonicMilliseconds();

/// The system's text for an error code, with the line break that the system ends it with; empty where the
/// system does not know the code.
QString systemErrorText(unsigned long errorCode);

/// The code of the calling thread's last failed system call. Ask at once: any later call may replace it.
unsigned long lastErrorCode();

/// Faults that our own readers find where the system would have found them.
enum class DataFault {
    BadExecutable,   ///< the bytes are no executable
    ResourceMissing, ///< a resource of the file is missing or damaged
};

/// The system's own error code for such a fault.
unsigned long errorCodeOf(DataFault fault);

/// The "FileVersion" of an executable in its first language as the system itself reads it, which also knows
/// files whose texts lie elsewhere (language packs, 16-bit programs). Empty where the file has none, and on
/// systems that read no such resources.
QString fileVersionBySystem(const QString& path);

/// What is known of this machine and its user.
struct SystemInformation {
    QString operatingSystem;
    QString processor;          ///< the maker's name of the processor
    QString architecture;       ///< "x64", "Intel Itanium-based", "x86" or "Unknown architecture"
    int cores = 0;              ///< logical processors
    quint64 physicalMemory = 0; ///< bytes
    QString hostName;
    QString userName; ///< account name; on Windows with its domain, "DOMAIN\\name", where one is known
    QString hostId;   ///< stays the same over restarts; empty where the system keeps none
};

/// Collected at the first call, the same object ever after.
const SystemInformation& systemInformation();

/// What the system tells about a process.
struct ProcessFacts {
    bool alive = false;     ///< false also for one that has ended and is only kept for its parent
    QString executableName; ///< file name without folder; empty where the system does not tell
    /// Tells a process from a later one with the same id, also over restarts; may be empty.
    QString startTime;
};

ProcessFacts processFacts(qint64 processId);

enum class StandardStream { Input, Output, Error };

/// Whether a person sits at the other end.
bool isTerminal(StandardStream stream);

/// Width of the window behind the standard error stream in columns; 80 where it is not known.
int terminalColumns();

/// Makes the window behind a standard stream obey escape sequences for colours; false where it cannot, or
/// where there is none.
bool enableEscapeSequences(StandardStream stream);

/// Calls \a handler instead of ending the process when the user presses Ctrl-C (on Windows also Ctrl-Break).
/// It runs in a signal handler or in a thread of the system: it may touch lock-free atomics and end the
/// process by std::_Exit(), nothing else.
void watchInterrupts(void (*handler)());

/// A place in a console's window: column and row from 0, or how many there are.
struct ConsoleCell {
    int column = 0;
    int row = 0;
};

/// What comes from a console's window.
struct ConsoleKey {
    enum Kind {
        Other, ///< nothing to be obeyed; it also wakes who waits for keys after an interrupt
        Character,
        Left,
        Right,
        Up,
        Down,
        Home,
        End,
        Delete,
        Resized, ///< the window; what stands in it may have moved
        Closed   ///< nothing more will come
    };
    Kind kind = Other;
    /// One character, whole: a control character for Enter ("\r"), Tab, Escape, Backspace ("\b", with Ctrl
    /// "\x7f") and for letters with Ctrl.
    QString text;
    bool isModified = false; ///< Ctrl or Alt was held; for characters Alt
    int count = 1;           ///< so many came while the key was held down
};

/// The console's window while a program edits itself what is typed: keys show nothing by themselves, Ctrl-C
/// is one like others, escape sequences are not obeyed. The end of the object gives the window back as it
/// was. What is written goes on in the next row once a row is full; behind the last row all of them move up.
class ConsoleWindow {
public:
    ConsoleWindow() = default;
    virtual ~ConsoleWindow() = default;
    Q_DISABLE_COPY(ConsoleWindow)

    virtual bool hasKeys() const = 0;
    /// Blocks until there is something.
    virtual ConsoleKey wait() = 0;

    virtual ConsoleCell size() const = 0;
    virtual ConsoleCell cursor() const = 0;
    virtual void moveCursor(ConsoleCell cell) = 0;
    /// Writes at the cursor; of the control characters only line feeds are obeyed.
    virtual void write(const QString& text, bool isBold = false) = 0;
    /// Makes that many cells blank, over the ends of rows.
    virtual void erase(ConsoleCell from, int cells) = 0;
};

/// Null where standard input or output is no such window; always null on other systems than Windows, whose
/// terminals have libraries for that.
std::unique_ptr<ConsoleWindow> openConsoleWindow();

/// Names the system's zone in the environment where it names none, so that the C library does not look the
/// zone file up for every time text. Does nothing on Windows. Call it before other threads start.
void presetTimeZone();

/// Whether the system takes a path and a file name of this length, with \a more ASCII characters appended.
bool isLengthAllowed(const QString& absolutePath, int more);

/// Tells a file from every other one for as long as it exists, whatever names lead to it.
struct FileIdentity {
    quint64 volume = 0;
    quint64 file = 0;

    friend bool operator==(const FileIdentity& a, const FileIdentity& b)
    {
        return a.volume == b.volume && a.file == b.file;
    }
};

/// What stood behind a name at one moment.
struct FileSnapshot {
    bool exists = false; ///< something bears the name
    bool isFile = false; ///< and it is a file, no folder, link, pipe or device
    bool isRead = false; ///< content holds all of it
    QByteArray content;
    FileIdentity identity;
    /// Of the last change, in milliseconds since 1970 UTC, by the clock of the machine that keeps the file.
    qint64 lastModified = 0;
};

/// Looks at a small file, without keeping its owner from writing or removing it. More than \a maximalSize
/// bytes are not read. Links are not followed.
FileSnapshot lookAtFile(const QString& path, int maximalSize);

enum class Removal {
    Done,
    Missing,   ///< nothing bears the name any more
    OtherFile, ///< another file bears the name and stays
    Failed,    ///< see lastErrorCode()
};

/// Removes the name if it still leads to that file. Never removes a folder.
Removal removeFile(const QString& path, const FileIdentity& identity);

/// A file that one process creates and all others find taken. It stays when the object closes it.
class ExclusiveFile {
public:
    enum class Failure {
        None,
        Exists,       ///< another owner holds the file, or something else bears its name
        NotPermitted, ///< this user may not create it
        Unexpected,   ///< see errorCode()
    };

    ExclusiveFile();
    ~ExclusiveFile();
    Q_DISABLE_COPY(ExclusiveFile)

    /// Creates the file and keeps it open for writing; others may read it. False if it exists already.
    bool create(const QString& absolutePath);
    bool isOpen() const;
    /// Writes all bytes or fails.
    bool write(const QByteArray& bytes);
    /// Returns when the bytes are on disk.
    bool flush();
    /// Sets the time of the last change to now.
    bool touch();
    void close();

    /// Whether somebody took the file's name away or gave it to another file. False also where the system
    /// cannot tell at present.
    bool hasLostItsName() const;
    /// Closes the file and removes it, unless it has lost its name. After Removal::Failed call it again.
    Removal remove();

    /// Of the last operation that returned a result.
    Failure failure() const { return m_failure; }
    /// The system's own number behind failure(); 0 after success.
    unsigned long errorCode() const { return m_errorCode; }

private:
    bool succeed();
    bool fail(Failure failure, unsigned long errorCode);

    struct Handle;
    std::unique_ptr<Handle> m_handle;
    Failure m_failure = Failure::None;
    unsigned long m_errorCode = 0;
};

/// The bytes of a file, read-only, paged in by the system as they are touched. The file must not be
/// shortened meanwhile: POSIX systems end a process that touches bytes past the new end.
class MappedFile {
public:
    /// How far the opening came.
    enum class Failure { None, Open, CreateMapping, MapView };

    explicit MappedFile(const QString& path);
    ~MappedFile();
    Q_DISABLE_COPY(MappedFile)

    Failure failure() const { return m_failure; }
    unsigned long errorCode() const { return m_errorCode; }
    /// Null after a failure. An empty file fails with CreateMapping.
    const uchar* data() const { return m_data; }
    qint64 size() const { return m_size; }

private:
    void fail(Failure failure, unsigned long errorCode);

    const uchar* m_data = nullptr;
    qint64 m_size = 0;
    Failure m_failure = Failure::None;
    unsigned long m_errorCode = 0;
};

/// A second descriptor of a connected socket. With it one thread may send and receive while another owns the
/// socket and closes it whenever it likes: the number stays this object's own and is not given to another
/// connection. For the peer the connection ends when both are closed.
///
/// POSIX systems only. On Windows a duplicate shares what the socket's owner set for its own waiting and its
/// own notifications, and nothing promises that sending on it never waits; open() returns false there.
class SocketTwin {
public:
    SocketTwin() = default;
    ~SocketTwin() { close(); }
    Q_DISABLE_COPY(SocketTwin)

    /// Replaces the descriptor that it had. False where the system gives none.
    bool open(qintptr socket);
    bool isOpen() const { return m_descriptor != -1; }
    void close();
    /// Sends what the system takes without waiting and returns its size: 0 where it takes nothing, and after
    /// an error.
    int send(const char* bytes, int count) const;
    /// What is there already, at most \a most bytes. Nothing at the end and after an error, too, which are
    /// left for the socket's owner to find.
    QByteArray receive(int most) const;

private:
    friend class SocketBell;
    qintptr m_descriptor = -1;
};

/// Lets one thread wait for a socket and for another thread at once. Not usable where no SocketTwin can be
/// opened.
class SocketBell {
public:
    SocketBell();
    ~SocketBell();
    Q_DISABLE_COPY(SocketBell)

    /// False where the system is out of descriptors.
    bool isUsable() const { return m_descriptor != -1; }
    /// Until the open \a socket has something to receive or has ended, and then true, ring() was called, or
    /// the time is over. A ring that nobody waits for ends the next wait.
    bool wait(const SocketTwin& socket, int milliseconds) const;
    void ring() const;

private:
    qintptr m_descriptor = -1;
};

} // namespace nPlatform
