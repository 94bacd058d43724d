#include "platform.h"

#include <QFile>
#include <QFileInfo>
#include <QSysInfo>

#include <cerrno>
#include <climits>
#include <csignal>
#include <cstring>
#include <ctime>
#include <dlfcn.h>
#include <fcntl.h>
#include <poll.h>
#include <pwd.h>
#include <sys/eventfd.h>
#include <sys/ioctl.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/utsname.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace nPlatform {

namespace {

void (*interruptHandler)() = nullptr;

unsigned long currentError()
{
    return static_cast<unsigned long>(errno);
}

// strerror_r has two forms; which one a C library offers shows in the type of its result.
[[maybe_unused]] QString errorText(int, const char* buffer)
{
    return QString::fromLocal8Bit(buffer);
}

[[maybe_unused]] QString errorText(const char* text, const char*)
{
    return QString::fromLocal8Bit(text);
}

QString rawErrorText(int errorCode)
{
    char buffer[256] = {};
    return errorText(strerror_r(errorCode, buffer, sizeof buffer), buffer);
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString architectureName()
{
    utsname system{};
    uname(&system);
    const QString machine = QString::fromLocal8Bit(system.machine);
    if (machine == QLatin1String("x86_64") || machine == QLatin1String("amd64"))
        return QStringLiteral("x64");
    if (machine == QLatin1String("ia64"))
        return QStringLiteral("Intel Itanium-based");
    if (machine.size() == 4 && machine.startsWith(QLatin1Char('i')) && machine.endsWith(QLatin1String("86")))
        return QStringLiteral("x86");
    return QStringLiteral("Unknown architecture");
}

QString processorName()
{
    const QList<QByteArray> lines = contentOf(QStringLiteral("/proc/cpuinfo")).split('\n');
    for (const QByteArray& line : lines)
        if (line.startsWith("model name"))
            return QString::fromUtf8(line.mid(line.indexOf(':') + 1)).simplified();
    return QSysInfo::currentCpuArchitecture();
}

QString accountName()
{
    std::vector<char> buffer(16384);
    passwd entry{};
    passwd* found = nullptr;
    if (getpwuid_r(geteuid(), &entry, buffer.data(), buffer.size(), &found) == 0 && found)
        return QString::fromLocal8Bit(found->pw_name);
    return QString::number(geteuid());
}

SystemInformation collectSystemInformation()
{
    SystemInformation result;
    result.operatingSystem =
        QStringLiteral("%1 (%2 %3)")
            .arg(QSysInfo::prettyProductName(), QSysInfo::kernelType(), QSysInfo::kernelVersion());
    result.processor = processorName();
    result.architecture = architectureName();
    result.cores = static_cast<int>(sysconf(_SC_NPROCESSORS_ONLN));
    result.physicalMemory =
        static_cast<quint64>(sysconf(_SC_PHYS_PAGES)) * static_cast<quint64>(sysconf(_SC_PAGESIZE));
    result.hostName = QSysInfo::machineHostName();
    result.userName = accountName();
    result.hostId = QString::fromLatin1(QSysInfo::machineUniqueId());
    return result;
}

/// A descriptor that is closed at the end; -1 after a failure.
class Descriptor {
public:
    Descriptor(const char* path, int flags) : m_number(open(path, flags | O_CLOEXEC)) { }
    ~Descriptor()
    {
        if (m_number >= 0)
            ::close(m_number);
    }
    Q_DISABLE_COPY(Descriptor)

    int number() const { return m_number; }

private:
    int m_number;
};

/// All that is there up to \a maximalSize bytes; false where there is more or the reading fails. Files are
/// read in one go: less than was asked for means that there is no more.
bool readUpTo(int descriptor, int maximalSize, QByteArray& content)
{
    content = QByteArray(maximalSize + 1, Qt::Uninitialized);
    ssize_t size = 0;
    do {
        size = ::read(descriptor, content.data(), static_cast<size_t>(maximalSize) + 1);
    } while (size < 0 && errno == EINTR);
    content.truncate(static_cast<int>(qMax<ssize_t>(size, 0)));
    return size >= 0 && size <= maximalSize;
}

/// The field after \a number others; empty where there is none. Blanks are between them.
QByteArray field(const QByteArray& line, int number)
{
    int start = 0;
    for (; number > 0; --number) {
        start = line.indexOf(' ', start) + 1;
        if (start == 0)
            return QByteArray();
    }
    return line.mid(start, line.indexOf(' ', start) - start);
}

// Records of processes are looked at for every refused lock: QFile would take several times as long.
QByteArray processFile(qint64 processId, const char* name)
{
    constexpr int maximalSize = 4095;
    const QByteArray path = "/proc/" + QByteArray::number(processId) + '/' + name;
    const Descriptor file(path.constData(), O_RDONLY);
    QByteArray content;
    return file.number() >= 0 && readUpTo(file.number(), maximalSize, content) ? content : QByteArray();
}

QString executableNameOf(qint64 processId)
{
    char buffer[PATH_MAX];
    const QByteArray link = "/proc/" + QByteArray::number(processId) + "/exe";
    const ssize_t size = readlink(link.constData(), buffer, sizeof buffer);
    if (size <= 0)
        return QString();
    QByteArray path = QByteArray::fromRawData(buffer, static_cast<int>(size));
    const QByteArray deleted(" (deleted)");
    if (path.endsWith(deleted))
        path.chop(deleted.size());
    return QFile::decodeName(path.mid(path.lastIndexOf('/') + 1));
}

const QByteArray& bootId()
{
    static const QByteArray id = contentOf(QStringLiteral("/proc/sys/kernel/random/boot_id")).trimmed();
    return id;
}

FileIdentity identityOf(const struct stat& status)
{
    return {static_cast<quint64>(status.st_dev), static_cast<quint64>(status.st_ino)};
}

void describe(const struct stat& status, FileSnapshot& snapshot)
{
    snapshot.exists = true;
    snapshot.isFile = S_ISREG(status.st_mode);
    snapshot.identity = identityOf(status);
    snapshot.lastModified = qint64(status.st_mtim.tv_sec) * 1000 + status.st_mtim.tv_nsec / 1000000;
}

Removal removeNamed(const QByteArray& name, const FileIdentity& identity)
{
    struct stat status { };
    if (lstat(name.constData(), &status) != 0)
        return errno == ENOENT ? Removal::Missing : Removal::Failed;
    if (!(identityOf(status) == identity))
        return Removal::OtherFile;
    if (unlink(name.constData()) == 0)
        return Removal::Done;
    return errno == ENOENT ? Removal::Missing : Removal::Failed;
}

} // namespace

QLatin1String systemName()
{
    return QLatin1String("linux");
}

QLatin1String executableExtension()
{
    return QLatin1String();
}

QString moduleFolder()
{
    // For a program the system gives the name it was called by, which means nothing elsewhere.
    Dl_info module{};
    if (dladdr(reinterpret_cast<const void*>(&moduleFolder), &module) == 0 || module.dli_fname == nullptr
        || module.dli_fname[0] != '/')
        return QString();
    return QFileInfo(QFile::decodeName(module.dli_fname)).path();
}

qint64 monotonicMilliseconds()
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return qint64(now.tv_sec) * 1000 + now.tv_nsec / 1000000;
}

QString systemErrorText(unsigned long errorCode)
{
    if (errorCode > INT_MAX)
        return QString();
    // No error bears the largest number, so its text shows how this system, in this language, says "unknown".
    const QString unknown =
        rawErrorText(INT_MAX).replace(QString::number(INT_MAX), QString::number(errorCode));
    const QString text = rawErrorText(static_cast<int>(errorCode));
    return text == unknown ? QString() : text + QLatin1Char('\n');
}

unsigned long lastErrorCode()
{
    return currentError();
}

unsigned long errorCodeOf(DataFault fault)
{
    return fault == DataFault::BadExecutable ? ENOEXEC : ENODATA;
}

QString fileVersionBySystem(const QString&)
{
    return QString();
}

const SystemInformation& systemInformation()
{
    static const SystemInformation information = collectSystemInformation();
    return information;
}

ProcessFacts processFacts(qint64 processId)
{
    ProcessFacts facts;
    // 0 and negative numbers address groups of processes.
    if (processId <= 0 || processId > INT_MAX)
        return facts;
    const QByteArray record = processFile(processId, "stat");
    // The name in parentheses may itself hold blanks and parentheses; the fields after it may not.
    const QByteArray fields = record.mid(record.lastIndexOf(')') + 2);
    constexpr int stateField = 0;
    constexpr int startTimeField = 19;
    const QByteArray startTime = field(fields, startTimeField);
    if (startTime.isEmpty()) {
        facts.alive = kill(static_cast<pid_t>(processId), 0) == 0 || errno == EPERM;
        return facts;
    }
    const QByteArray state = field(fields, stateField);
    facts.alive = state != "Z" && state != "X";
    facts.executableName = executableNameOf(processId);
    facts.startTime = QString::fromLatin1(startTime + '@' + bootId());
    return facts;
}

int terminalColumns()
{
    winsize size{};
    return ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : 80;
}

bool isTerminal(StandardStream stream)
{
    switch (stream) {
    case StandardStream::Input:
        return isatty(STDIN_FILENO) == 1;
    case StandardStream::Output:
        return isatty(STDOUT_FILENO) == 1;
    case StandardStream::Error:
        return isatty(STDERR_FILENO) == 1;
    }
    return false;
}

bool enableEscapeSequences(StandardStream stream)
{
    return isTerminal(stream);
}

void watchInterrupts(void (*handler)())
{
    interruptHandler = handler;
    struct sigaction action = {};
    action.sa_handler = [](int) { interruptHandler(); };
    action.sa_flags = SA_RESTART; // nobody who writes a file just now sees half of it refused
    sigaction(SIGINT, &action, nullptr);
}

std::unique_ptr<ConsoleWindow> openConsoleWindow()
{
    return nullptr;
}

void presetTimeZone()
{
    if (qEnvironmentVariableIsSet("TZ") || !QFile::exists(QStringLiteral("/etc/localtime")))
        return;
    qputenv("TZ", ":/etc/localtime");
    tzset();
}

bool isLengthAllowed(const QString& absolutePath, int more)
{
    constexpr int mostBytes = 4; // of a character, in whatever encoding
    const int nameSize = absolutePath.size() - (absolutePath.lastIndexOf(QLatin1Char('/')) + 1);
    if (nameSize * mostBytes + more <= NAME_MAX && absolutePath.size() * mostBytes + more < PATH_MAX)
        return true;
    const QByteArray path = QFile::encodeName(absolutePath);
    return path.size() + more < PATH_MAX && path.size() - (path.lastIndexOf('/') + 1) + more <= NAME_MAX;
}

FileSnapshot lookAtFile(const QString& path, int maximalSize)
{
    FileSnapshot snapshot;
    struct stat status { };
    const QByteArray name = QFile::encodeName(path);
    // Without blocking: the name may be that of a pipe.
    const Descriptor file(name.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK);
    if (file.number() < 0) {
        if (lstat(name.constData(), &status) == 0)
            describe(status, snapshot);
        return snapshot;
    }
    if (fstat(file.number(), &status) == 0)
        describe(status, snapshot);
    if (snapshot.isFile)
        snapshot.isRead = readUpTo(file.number(), maximalSize, snapshot.content);
    return snapshot;
}

Removal removeFile(const QString& path, const FileIdentity& identity)
{
    return removeNamed(QFile::encodeName(path), identity);
}

struct ExclusiveFile::Handle {
    int descriptor = -1;
    QString name;
    QByteArray path; ///< the same as the system takes it
};

ExclusiveFile::ExclusiveFile() : m_handle(std::make_unique<Handle>()) { }

ExclusiveFile::~ExclusiveFile()
{
    close();
}

bool ExclusiveFile::create(const QString& absolutePath)
{
    close();
    if (m_handle->name != absolutePath) {
        m_handle->name = absolutePath;
        m_handle->path = QFile::encodeName(absolutePath);
    }
    const char* const path = m_handle->path.constData();
    m_handle->descriptor = open(path, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
    if (isOpen())
        return succeed();
    const unsigned long code = currentError();
    if (code == EEXIST)
        return fail(Failure::Exists, code);
    if (code != EACCES && code != EPERM)
        return fail(Failure::Unexpected, code);
    struct stat status { };
    const bool exists = lstat(path, &status) == 0;
    return fail(exists ? Failure::Exists : Failure::NotPermitted, code);
}

bool ExclusiveFile::isOpen() const
{
    return m_handle->descriptor >= 0;
}

bool ExclusiveFile::write(const QByteArray& bytes)
{
    qint64 done = 0;
    while (done < bytes.size()) {
        const ssize_t count =
            ::write(m_handle->descriptor, bytes.constData() + done, static_cast<size_t>(bytes.size() - done));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return fail(Failure::Unexpected, currentError());
        done += count;
    }
    return succeed();
}

bool ExclusiveFile::flush()
{
    if (fsync(m_handle->descriptor) == 0)
        return succeed();
    return fail(Failure::Unexpected, currentError());
}

bool ExclusiveFile::touch()
{
    if (futimens(m_handle->descriptor, nullptr) == 0)
        return succeed();
    return fail(Failure::Unexpected, currentError());
}

void ExclusiveFile::close()
{
    if (isOpen())
        ::close(m_handle->descriptor);
    m_handle->descriptor = -1;
}

bool ExclusiveFile::hasLostItsName() const
{
    struct stat own { };
    struct stat named { };
    if (fstat(m_handle->descriptor, &own) != 0)
        return false;
    if (lstat(m_handle->path.constData(), &named) != 0)
        return errno == ENOENT;
    return !(identityOf(named) == identityOf(own));
}

// The file stays open until its name is gone: the system gives the number of a file that nobody holds to the
// next one.
Removal ExclusiveFile::remove()
{
    struct stat own { };
    if (fstat(m_handle->descriptor, &own) != 0)
        return Removal::Failed;
    const Removal removal = removeNamed(m_handle->path, identityOf(own));
    if (removal != Removal::Failed)
        close();
    return removal;
}

MappedFile::MappedFile(const QString& path)
{
    // Without blocking: the name may be that of a pipe.
    const int descriptor = open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0) {
        fail(Failure::Open, currentError());
        return;
    }
    struct stat status { };
    fstat(descriptor, &status);
    if (!S_ISREG(status.st_mode)) {
        fail(Failure::Open, S_ISDIR(status.st_mode) ? EISDIR : ENODEV);
    } else if (status.st_size == 0) {
        fail(Failure::CreateMapping, EINVAL);
    } else {
        void* view =
            mmap(nullptr, static_cast<size_t>(status.st_size), PROT_READ, MAP_PRIVATE, descriptor, 0);
        if (view == MAP_FAILED) {
            fail(Failure::MapView, currentError());
        } else {
            m_data = static_cast<const uchar*>(view);
            m_size = status.st_size;
        }
    }
    ::close(descriptor);
}

MappedFile::~MappedFile()
{
    if (m_data)
        munmap(const_cast<uchar*>(m_data), static_cast<size_t>(m_size));
}

bool SocketTwin::open(qintptr socket)
{
    close();
    m_descriptor = fcntl(int(socket), F_DUPFD_CLOEXEC, 0);
    return isOpen();
}

void SocketTwin::close()
{
    if (isOpen())
        ::close(int(std::exchange(m_descriptor, -1)));
}

int SocketTwin::send(const char* bytes, int count) const
{
    if (!isOpen())
        return 0;
    return int(
        qMax<ssize_t>(0, ::send(int(m_descriptor), bytes, size_t(count), MSG_NOSIGNAL | MSG_DONTWAIT)));
}

/// The size comes first: receiving would take the error of the connection away from its owner.
QByteArray SocketTwin::receive(int most) const
{
    int there = 0;
    if (!isOpen() || ioctl(int(m_descriptor), FIONREAD, &there) != 0 || qMin(there, most) <= 0)
        return QByteArray();
    QByteArray bytes(qMin(there, most), Qt::Uninitialized);
    bytes.truncate(
        int(qMax<ssize_t>(0, recv(int(m_descriptor), bytes.data(), size_t(bytes.size()), MSG_DONTWAIT))));
    return bytes;
}

SocketBell::SocketBell() : m_descriptor(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) { }

SocketBell::~SocketBell()
{
    if (m_descriptor != -1)
        ::close(int(m_descriptor));
}

bool SocketBell::wait(const SocketTwin& socket, int milliseconds) const
{
    pollfd sources[] = {{int(socket.m_descriptor), POLLIN, 0}, {int(m_descriptor), POLLIN, 0}};
    if (poll(sources, 2, milliseconds) <= 0)
        return false;
    eventfd_t rings = 0;
    if (sources[1].revents != 0)
        eventfd_read(int(m_descriptor), &rings);
    return sources[0].revents != 0;
}

void SocketBell::ring() const
{
    eventfd_write(int(m_descriptor), 1);
}

} // namespace nPlatform
