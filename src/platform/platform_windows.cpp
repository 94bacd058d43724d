#include "platform.h"

#include <QDir>
#include <QFileInfo>
#include <QSysInfo>
#include <QtEndian>

#include <climits>
#include <utility>
#include <windows.h>

#define SECURITY_WIN32
#include <security.h>
#include <winver.h>

namespace nPlatform {

namespace {

void (*interruptHandler)() = nullptr;

const wchar_t* wide(const QString& text)
{
    return reinterpret_cast<const wchar_t*>(text.utf16());
}

// Paths that are longer than the old limit work only in the form that the system takes to the letter.
QString systemPath(const QString& path)
{
    const QString native = QDir::toNativeSeparators(path);
    constexpr int oldLimit = MAX_PATH - 12;
    if (native.size() < oldLimit || native.startsWith(QLatin1String("\\\\?\\")))
        return native;
    const QString absolute = QDir::toNativeSeparators(QDir::cleanPath(QDir().absoluteFilePath(path)));
    if (absolute.startsWith(QLatin1String("\\\\")))
        return QLatin1String("\\\\?\\UNC") + absolute.mid(1);
    return QLatin1String("\\\\?\\") + absolute;
}

// A file that was removed while somebody reads it keeps its name until then, and even its attributes are
// refused.
bool exists(const QString& path)
{
    WIN32_FILE_ATTRIBUTE_DATA attributes{};
    return GetFileAttributesExW(wide(systemPath(path)), GetFileExInfoStandard, &attributes) != 0
        || GetLastError() == ERROR_ACCESS_DENIED;
}

/// A handle that is closed at the end.
class File {
public:
    /// Opens what is there, a link as itself, and lets others do with it what they like meanwhile.
    File(const QString& path, DWORD access)
        : m_handle(CreateFileW(wide(systemPath(path)), access,
                               FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                               FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_BACKUP_SEMANTICS, nullptr))
    {
    }
    ~File()
    {
        if (isOpen())
            CloseHandle(m_handle);
    }
    Q_DISABLE_COPY(File)

    bool isOpen() const { return m_handle != INVALID_HANDLE_VALUE; }
    HANDLE handle() const { return m_handle; }
    /// False also where it is not open.
    bool describe(BY_HANDLE_FILE_INFORMATION& information) const
    {
        return GetFileInformationByHandle(m_handle, &information) != 0;
    }

private:
    HANDLE m_handle;
};

bool isMissing(DWORD code)
{
    return code == ERROR_FILE_NOT_FOUND || code == ERROR_PATH_NOT_FOUND;
}

bool readUpTo(HANDLE file, DWORD maximalSize, QByteArray& content)
{
    content.resize(static_cast<int>(maximalSize) + 1);
    DWORD size = 0;
    while (size <= maximalSize) {
        DWORD count = 0;
        if (!ReadFile(file, content.data() + size, maximalSize + 1 - size, &count, nullptr))
            return false;
        if (count == 0) {
            content.truncate(static_cast<int>(size));
            return true;
        }
        size += count;
    }
    return false;
}

QString processorName()
{
    wchar_t name[128] = {};
    DWORD bytes = sizeof name;
    const LSTATUS status =
        RegGetValueW(HKEY_LOCAL_MACHINE, L"HARDWARE\\DESCRIPTION\\System\\CentralProcessor\\0",
                     L"ProcessorNameString", RRF_RT_REG_SZ, nullptr, name, &bytes);
    return status == ERROR_SUCCESS ? QString::fromWCharArray(name).simplified()
                                   : QSysInfo::currentCpuArchitecture();
}

QString architectureName(WORD architecture)
{
    switch (architecture) {
    case PROCESSOR_ARCHITECTURE_AMD64:
        return QStringLiteral("x64");
    case PROCESSOR_ARCHITECTURE_IA64:
        return QStringLiteral("Intel Itanium-based");
    case PROCESSOR_ARCHITECTURE_INTEL:
        return QStringLiteral("x86");
    default:
        return QStringLiteral("Unknown architecture");
    }
}

QString computerName()
{
    wchar_t name[MAX_COMPUTERNAME_LENGTH + 1] = {};
    DWORD size = MAX_COMPUTERNAME_LENGTH + 1;
    return GetComputerNameW(name, &size) ? QString::fromWCharArray(name, static_cast<int>(size)) : QString();
}

QString accountName()
{
    constexpr DWORD longest = 1024;
    wchar_t name[longest] = {};
    ULONG size = longest;
    if (GetUserNameExW(NameSamCompatible, name, &size))
        return QString::fromWCharArray(name);
    DWORD plainSize = longest;
    return GetUserNameW(name, &plainSize) ? QString::fromWCharArray(name) : QString();
}

QByteArray versionBlock(const QString& path)
{
    const QString file = systemPath(path);
    DWORD ignored = 0;
    QByteArray block(static_cast<int>(GetFileVersionInfoSizeW(wide(file), &ignored)), '\0');
    if (block.isEmpty()
        || !GetFileVersionInfoW(wide(file), 0, static_cast<DWORD>(block.size()), block.data()))
        block.clear();
    return block;
}

/// The bytes of one value; they live as long as the block.
QByteArray versionValue(const QByteArray& block, const QString& key, int bytesPerUnit)
{
    void* value = nullptr;
    UINT units = 0;
    if (!VerQueryValueW(block.constData(), wide(key), &value, &units))
        return QByteArray();
    return QByteArray::fromRawData(static_cast<const char*>(value), static_cast<int>(units) * bytesPerUnit);
}

QString hexadecimal(quint16 number)
{
    return QStringLiteral("%1").arg(number, 4, 16, QLatin1Char('0'));
}

SystemInformation collectSystemInformation()
{
    SYSTEM_INFO system{};
    GetSystemInfo(&system);
    MEMORYSTATUSEX memory{};
    memory.dwLength = sizeof memory;
    GlobalMemoryStatusEx(&memory);

    SystemInformation result;
    result.operatingSystem =
        QStringLiteral("%1 (%2 %3)")
            .arg(QSysInfo::prettyProductName(), QSysInfo::kernelType(), QSysInfo::kernelVersion());
    result.processor = processorName();
    result.architecture = architectureName(system.wProcessorArchitecture);
    result.cores = static_cast<int>(system.dwNumberOfProcessors);
    result.physicalMemory = memory.ullTotalPhys;
    result.hostName = computerName();
    result.userName = accountName();
    result.hostId = QString::fromLatin1(QSysInfo::machineUniqueId());
    return result;
}

QString executableNameOf(HANDLE process)
{
    constexpr DWORD longestPath = 32768;
    QString path(static_cast<int>(longestPath), Qt::Uninitialized);
    DWORD size = longestPath;
    if (!QueryFullProcessImageNameW(process, 0, reinterpret_cast<wchar_t*>(path.data()), &size))
        return QString();
    path.truncate(static_cast<int>(size));
    return path.mid(path.lastIndexOf(QLatin1Char('\\')) + 1);
}

quint64 joined(const FILETIME& time)
{
    return (quint64(time.dwHighDateTime) << 32) | time.dwLowDateTime;
}

qint64 millisecondsSince1970(const FILETIME& time)
{
    constexpr qint64 between1601And1970 = 11644473600000;
    return static_cast<qint64>(joined(time) / 10000) - between1601And1970;
}

FileIdentity identityOf(const BY_HANDLE_FILE_INFORMATION& information)
{
    return {information.dwVolumeSerialNumber,
            (quint64(information.nFileIndexHigh) << 32) | information.nFileIndexLow};
}

ExclusiveFile::Failure creationFailure(DWORD code, const QString& path)
{
    switch (code) {
    case ERROR_SHARING_VIOLATION:
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
        return ExclusiveFile::Failure::Exists;
    case ERROR_ACCESS_DENIED:
        return exists(path) ? ExclusiveFile::Failure::Exists : ExclusiveFile::Failure::NotPermitted;
    default:
        return ExclusiveFile::Failure::Unexpected;
    }
}

} // namespace

QLatin1String systemName()
{
    return QLatin1String("win");
}

QLatin1String executableExtension()
{
    return QLatin1String(".exe");
}

QString moduleFolder()
{
    constexpr DWORD longest = 32768;
    HMODULE module = nullptr;
    const auto here = reinterpret_cast<const wchar_t*>(&moduleFolder);
    QString path(static_cast<int>(longest), Qt::Uninitialized);
    if (!GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS
                                | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                            here, &module))
        return QString();
    path.truncate(
        static_cast<int>(GetModuleFileNameW(module, reinterpret_cast<wchar_t*>(path.data()), longest)));
    return path.isEmpty() ? path : QFileInfo(QDir::fromNativeSeparators(path)).path();
}

qint64 monotonicMilliseconds()
{
    // The tick count steps by some 16 ms; this one is finer and does not wrap either.
    LARGE_INTEGER frequency{}, counter{};
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&counter);
    const qint64 seconds = counter.QuadPart / frequency.QuadPart;
    return seconds * 1000 + counter.QuadPart % frequency.QuadPart * 1000 / frequency.QuadPart;
}

QString systemErrorText(unsigned long errorCode)
{
    wchar_t* buffer = nullptr;
    const DWORD flags =
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_FROM_SYSTEM;
    const DWORD length = FormatMessageW(flags, nullptr, errorCode, MAKELANGID(LANG_NEUTRAL, SUBLANG_DEFAULT),
                                        reinterpret_cast<wchar_t*>(&buffer), 0, nullptr);
    if (length == 0)
        return QString();
    const QString text = QString::fromWCharArray(buffer, static_cast<int>(length));
    LocalFree(buffer);
    return text;
}

unsigned long lastErrorCode()
{
    return GetLastError();
}

unsigned long errorCodeOf(DataFault fault)
{
    return fault == DataFault::BadExecutable ? ERROR_BAD_EXE_FORMAT : ERROR_RESOURCE_DATA_NOT_FOUND;
}

QString fileVersionBySystem(const QString& path)
{
    const QByteArray block = versionBlock(path);
    if (block.isEmpty())
        return QString();
    const QByteArray pair = versionValue(block, QStringLiteral("\\VarFileInfo\\Translation"), 1);
    if (pair.size() < 4)
        return QString();
    const QString table = hexadecimal(qFromLittleEndian<quint16>(pair.constData()))
        + hexadecimal(qFromLittleEndian<quint16>(pair.constData() + 2));
    const QByteArray text =
        versionValue(block, QStringLiteral("\\StringFileInfo\\%1\\FileVersion").arg(table), sizeof(wchar_t));
    // The length may count the closing NUL or not.
    return QString::fromWCharArray(reinterpret_cast<const wchar_t*>(text.constData()),
                                   text.size() / static_cast<int>(sizeof(wchar_t)))
        .section(QChar::Null, 0, 0);
}

const SystemInformation& systemInformation()
{
    static const SystemInformation information = collectSystemInformation();
    return information;
}

ProcessFacts processFacts(qint64 processId)
{
    ProcessFacts facts;
    if (processId <= 0 || processId > UINT_MAX)
        return facts;
    const HANDLE process =
        OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, static_cast<DWORD>(processId));
    if (!process) {
        // It runs for another user, who lets nobody look.
        facts.alive = GetLastError() == ERROR_ACCESS_DENIED;
        return facts;
    }
    DWORD exitCode = 0;
    facts.alive = GetExitCodeProcess(process, &exitCode) && exitCode == STILL_ACTIVE;
    facts.executableName = executableNameOf(process);
    FILETIME created{}, ended{}, kernel{}, user{};
    if (GetProcessTimes(process, &created, &ended, &kernel, &user))
        facts.startTime = QString::number(joined(created));
    CloseHandle(process);
    return facts;
}

namespace {

HANDLE handleOf(StandardStream stream)
{
    DWORD id = STD_ERROR_HANDLE;
    if (stream != StandardStream::Error)
        id = stream == StandardStream::Input ? STD_INPUT_HANDLE : STD_OUTPUT_HANDLE;
    return GetStdHandle(id);
}

BOOL WINAPI onConsoleEvent(DWORD event)
{
    if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT)
        return FALSE;
    interruptHandler();
    INPUT_RECORD wake{};
    wake.EventType = FOCUS_EVENT;
    DWORD count = 0;
    WriteConsoleInputW(handleOf(StandardStream::Input), &wake, 1, &count);
    return TRUE;
}

ConsoleKey::Kind kindOf(WORD virtualKey)
{
    switch (virtualKey) {
    case VK_LEFT:
        return ConsoleKey::Left;
    case VK_RIGHT:
        return ConsoleKey::Right;
    case VK_UP:
        return ConsoleKey::Up;
    case VK_DOWN:
        return ConsoleKey::Down;
    case VK_HOME:
        return ConsoleKey::Home;
    case VK_END:
        return ConsoleKey::End;
    case VK_DELETE:
        return ConsoleKey::Delete;
    default:
        return ConsoleKey::Other;
    }
}

ConsoleKey keyOf(const KEY_EVENT_RECORD& event)
{
    const auto has = [&event](DWORD keys) { return (event.dwControlKeyState & keys) != 0; };
    const bool isCtrl = has(LEFT_CTRL_PRESSED | RIGHT_CTRL_PRESSED);
    const bool isAlt = has(LEFT_ALT_PRESSED | RIGHT_ALT_PRESSED);
    const QChar character(event.uChar.UnicodeChar);
    // A character that was typed by its number, or pasted without a key of its own, comes as Alt is released.
    const bool isByNumber = !event.bKeyDown && event.wVirtualKeyCode == VK_MENU;
    ConsoleKey key;
    if (!event.bKeyDown && !isByNumber)
        return key;
    key.count = qMax<int>(1, event.wRepeatCount);
    if (!character.isNull()) {
        key.kind = ConsoleKey::Character;
        key.text = character;
        key.isModified = isAlt && !isCtrl && !isByNumber; // AltGr counts as both
    } else if (!isAlt || has(ENHANCED_KEY)) {             // else digits of a number behind Alt
        key.kind = kindOf(event.wVirtualKeyCode);
        key.isModified = isCtrl || isAlt;
    }
    return key;
}

class SystemConsole : public ConsoleWindow {
public:
    SystemConsole()
    {
        constexpr DWORD obeyedByTheSystem = ENABLE_LINE_INPUT | ENABLE_ECHO_INPUT | ENABLE_PROCESSED_INPUT
            | ENABLE_MOUSE_INPUT | ENABLE_VIRTUAL_TERMINAL_INPUT;
        m_isOpen = GetConsoleMode(m_input, &m_inputMode) && GetConsoleMode(m_output, &m_outputMode)
            && SetConsoleMode(m_input, (m_inputMode & ~obeyedByTheSystem) | ENABLE_WINDOW_INPUT);
        // Where escape sequences are obeyed, the cursor does not leave a full row before the next character.
        if (m_isOpen)
            SetConsoleMode(m_output, ENABLE_PROCESSED_OUTPUT | ENABLE_WRAP_AT_EOL_OUTPUT);
    }
    ~SystemConsole() override
    {
        if (!m_isOpen)
            return;
        SetConsoleMode(m_input, m_inputMode);
        SetConsoleMode(m_output, m_outputMode);
    }

    bool isOpen() const { return m_isOpen; }

    bool hasKeys() const override
    {
        DWORD count = 0;
        return GetNumberOfConsoleInputEvents(m_input, &count) && count > 0;
    }
    ConsoleKey wait() override;

    ConsoleCell size() const override { return {state().dwSize.X, state().dwSize.Y}; }
    ConsoleCell cursor() const override
    {
        const COORD cell = state().dwCursorPosition;
        return {cell.X, cell.Y};
    }
    void moveCursor(ConsoleCell cell) override { SetConsoleCursorPosition(m_output, coordinates(cell)); }
    void write(const QString& text, bool isBold) override;
    void erase(ConsoleCell from, int cells) override;

private:
    static COORD coordinates(ConsoleCell cell)
    {
        return {static_cast<SHORT>(cell.column), static_cast<SHORT>(cell.row)};
    }
    CONSOLE_SCREEN_BUFFER_INFO state() const
    {
        CONSOLE_SCREEN_BUFFER_INFO information{};
        GetConsoleScreenBufferInfo(m_output, &information);
        return information;
    }
    ConsoleKey joined(ConsoleKey key);

    const HANDLE m_input = handleOf(StandardStream::Input);
    const HANDLE m_output = handleOf(StandardStream::Output);
    DWORD m_inputMode = 0; ///< before
    DWORD m_outputMode = 0;
    bool m_isOpen = false;
    QString m_firstHalf; ///< of a surrogate pair
};

ConsoleKey SystemConsole::wait()
{
    INPUT_RECORD record{};
    DWORD count = 0;
    ConsoleKey key;
    if (!ReadConsoleInputW(m_input, &record, 1, &count) || count == 0)
        key.kind = ConsoleKey::Closed;
    else if (record.EventType == KEY_EVENT)
        return joined(keyOf(record.Event.KeyEvent));
    else if (record.EventType == WINDOW_BUFFER_SIZE_EVENT)
        key.kind = ConsoleKey::Resized;
    return key;
}

/// Surrogate pairs arrive as two characters.
ConsoleKey SystemConsole::joined(ConsoleKey key)
{
    if (key.kind == ConsoleKey::Other)
        return key;
    const QString firstHalf = std::exchange(m_firstHalf, QString());
    if (key.kind != ConsoleKey::Character || !key.text.at(0).isSurrogate())
        return key;
    if (key.text.at(0).isHighSurrogate())
        m_firstHalf = key.text;
    if (key.text.at(0).isHighSurrogate() || firstHalf.isEmpty())
        return {};
    key.text.prepend(firstHalf);
    return key;
}

void SystemConsole::write(const QString& text, bool isBold)
{
    constexpr int mostAtOnce = 8192; // older systems refuse much more
    const WORD attributes = state().wAttributes;
    if (isBold)
        SetConsoleTextAttribute(m_output, attributes | FOREGROUND_INTENSITY);
    for (int begin = 0; begin < text.size(); begin += mostAtOnce) {
        const QString piece = text.mid(begin, mostAtOnce);
        DWORD count = 0;
        WriteConsoleW(m_output, wide(piece), static_cast<DWORD>(piece.size()), &count, nullptr);
    }
    if (isBold)
        SetConsoleTextAttribute(m_output, attributes);
}

void SystemConsole::erase(ConsoleCell from, int cells)
{
    DWORD count = 0;
    FillConsoleOutputCharacterW(m_output, L' ', static_cast<DWORD>(cells), coordinates(from), &count);
    FillConsoleOutputAttribute(m_output, state().wAttributes, static_cast<DWORD>(cells), coordinates(from),
                               &count);
}

} // namespace

bool isTerminal(StandardStream stream)
{
    DWORD mode = 0;
    return GetConsoleMode(handleOf(stream), &mode) != 0;
}

bool enableEscapeSequences(StandardStream stream)
{
    DWORD mode = 0;
    const HANDLE handle = handleOf(stream);
    return GetConsoleMode(handle, &mode) != 0
        && SetConsoleMode(handle, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

void watchInterrupts(void (*handler)())
{
    interruptHandler = handler;
    SetConsoleCtrlHandler(nullptr, FALSE); // a parent may have had it ignored
    SetConsoleCtrlHandler(onConsoleEvent, TRUE);
}

std::unique_ptr<ConsoleWindow> openConsoleWindow()
{
    auto console = std::make_unique<SystemConsole>();
    return console->isOpen() ? std::move(console) : nullptr;
}

int terminalColumns()
{
    CONSOLE_SCREEN_BUFFER_INFO info{};
    if (!GetConsoleScreenBufferInfo(GetStdHandle(STD_ERROR_HANDLE), &info))
        return 80;
    return info.srWindow.Right - info.srWindow.Left + 1;
}

void presetTimeZone() { }

bool isLengthAllowed(const QString& absolutePath, int more)
{
    constexpr int longestName = 255;
    constexpr int longestPath = 32767 - 8; // room for the prefix of long paths
    const int size = absolutePath.size() + more;
    const QString path = QDir::fromNativeSeparators(absolutePath);
    return size < longestPath && size - (path.lastIndexOf(QLatin1Char('/')) + 1) <= longestName;
}

FileSnapshot lookAtFile(const QString& path, int maximalSize)
{
    FileSnapshot snapshot;
    const File file(path, GENERIC_READ);
    BY_HANDLE_FILE_INFORMATION information{};
    if (!file.describe(information) && !File(path, FILE_READ_ATTRIBUTES).describe(information)) {
        snapshot.exists = exists(path);
        return snapshot;
    }
    snapshot.exists = true;
    snapshot.isFile =
        (information.dwFileAttributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT)) == 0;
    snapshot.identity = identityOf(information);
    snapshot.lastModified = millisecondsSince1970(information.ftLastWriteTime);
    if (snapshot.isFile && file.isOpen())
        snapshot.isRead = readUpTo(file.handle(), static_cast<DWORD>(maximalSize), snapshot.content);
    return snapshot;
}

Removal removeFile(const QString& path, const FileIdentity& identity)
{
    // What is removed is the file that was compared, whatever bears the name by then.
    const File file(path, DELETE | FILE_READ_ATTRIBUTES);
    if (!file.isOpen())
        return isMissing(GetLastError()) ? Removal::Missing : Removal::Failed;
    BY_HANDLE_FILE_INFORMATION information{};
    if (!file.describe(information))
        return Removal::Failed;
    if (!(identityOf(information) == identity)
        || (information.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
        return Removal::OtherFile;
    FILE_DISPOSITION_INFO disposition{};
    disposition.DeleteFile = TRUE;
    const bool isRemoved =
        SetFileInformationByHandle(file.handle(), FileDispositionInfo, &disposition, sizeof disposition) != 0;
    return isRemoved ? Removal::Done : Removal::Failed;
}

struct ExclusiveFile::Handle {
    HANDLE file = INVALID_HANDLE_VALUE;
    QString path;
    FileIdentity identity; ///< kept for remove(), which closes before it succeeds

    bool identify()
    {
        BY_HANDLE_FILE_INFORMATION information{};
        if (!GetFileInformationByHandle(file, &information))
            return false;
        identity = identityOf(information);
        return true;
    }
};

ExclusiveFile::ExclusiveFile() : m_handle(std::make_unique<Handle>()) { }

ExclusiveFile::~ExclusiveFile()
{
    close();
}

bool ExclusiveFile::create(const QString& absolutePath)
{
    close();
    m_handle->path = absolutePath;
    m_handle->file = CreateFileW(wide(systemPath(absolutePath)), GENERIC_WRITE | FILE_READ_ATTRIBUTES,
                                 FILE_SHARE_READ, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (isOpen())
        return succeed();
    const DWORD code = GetLastError();
    return fail(creationFailure(code, absolutePath), code);
}

bool ExclusiveFile::isOpen() const
{
    return m_handle->file != INVALID_HANDLE_VALUE;
}

bool ExclusiveFile::write(const QByteArray& bytes)
{
    const DWORD size = static_cast<DWORD>(bytes.size());
    DWORD written = 0;
    if (!WriteFile(m_handle->file, bytes.constData(), size, &written, nullptr))
        return fail(Failure::Unexpected, GetLastError());
    return written == size ? succeed() : fail(Failure::Unexpected, ERROR_DISK_FULL);
}

bool ExclusiveFile::flush()
{
    return FlushFileBuffers(m_handle->file) ? succeed() : fail(Failure::Unexpected, GetLastError());
}

bool ExclusiveFile::touch()
{
    SYSTEMTIME now{};
    GetSystemTime(&now);
    FILETIME time{};
    if (!SystemTimeToFileTime(&now, &time) || !SetFileTime(m_handle->file, nullptr, nullptr, &time))
        return fail(Failure::Unexpected, GetLastError());
    return succeed();
}

void ExclusiveFile::close()
{
    if (isOpen())
        CloseHandle(m_handle->file);
    m_handle->file = INVALID_HANDLE_VALUE;
}

// While the file is open, the system keeps its name from everyone; a server that lost the connection may not.
bool ExclusiveFile::hasLostItsName() const
{
    if (!m_handle->identify())
        return false;
    const File named(m_handle->path, FILE_READ_ATTRIBUTES);
    BY_HANDLE_FILE_INFORMATION information{};
    if (!named.isOpen())
        return isMissing(GetLastError());
    return named.describe(information) && !(identityOf(information) == m_handle->identity);
}

Removal ExclusiveFile::remove()
{
    if (isOpen() && !m_handle->identify())
        return Removal::Failed;
    close();
    return removeFile(m_handle->path, m_handle->identity);
}

MappedFile::MappedFile(const QString& path)
{
    const HANDLE file = CreateFileW(wide(systemPath(path)), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_DELETE,
                                    nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        fail(Failure::Open, GetLastError());
        return;
    }
    const HANDLE mapping = CreateFileMappingW(file, nullptr, PAGE_READONLY, 0, 0, nullptr);
    if (!mapping)
        fail(Failure::CreateMapping, GetLastError());
    if (mapping) {
        m_data = static_cast<const uchar*>(MapViewOfFile(mapping, FILE_MAP_READ, 0, 0, 0));
        if (!m_data)
            fail(Failure::MapView, GetLastError());
        CloseHandle(mapping);
    }
    LARGE_INTEGER size{};
    if (m_data && GetFileSizeEx(file, &size))
        m_size = size.QuadPart;
    CloseHandle(file);
}

MappedFile::~MappedFile()
{
    if (m_data)
        UnmapViewOfFile(m_data);
}

bool SocketTwin::open(qintptr)
{
    return false;
}

void SocketTwin::close() { }

int SocketTwin::send(const char*, int) const
{
    return 0;
}

QByteArray SocketTwin::receive(int) const
{
    return QByteArray();
}

SocketBell::SocketBell() = default;

SocketBell::~SocketBell() = default;

bool SocketBell::wait(const SocketTwin&, int) const
{
    return false;
}

void SocketBell::ring() const { }

} // namespace nPlatform
