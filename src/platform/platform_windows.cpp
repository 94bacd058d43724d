#include "platform.h"

#include <QDir>
#include <QSysInfo>

#include <climits>
#include <windows.h>

namespace nPlatform {

namespace {

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

bool exists(const QString& path)
{
    WIN32_FILE_ATTRIBUTE_DATA attributes{};
    return GetFileAttributesExW(wide(systemPath(path)), GetFileExInfoStandard, &attributes) != 0;
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
    wchar_t name[257] = {};
    DWORD size = 257;
    return GetUserNameW(name, &size) ? QString::fromWCharArray(name) : QString();
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
    // The limited right is granted for the processes of other users too.
    const HANDLE process =
        OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, static_cast<DWORD>(processId));
    if (!process)
        return facts;
    DWORD exitCode = 0;
    facts.alive = GetExitCodeProcess(process, &exitCode) && exitCode == STILL_ACTIVE;
    facts.executableName = executableNameOf(process);
    FILETIME created{}, ended{}, kernel{}, user{};
    if (GetProcessTimes(process, &created, &ended, &kernel, &user))
        facts.startTime = QString::number(joined(created));
    CloseHandle(process);
    return facts;
}

bool isTerminal(StandardStream stream)
{
    DWORD id = STD_ERROR_HANDLE;
    if (stream != StandardStream::Error)
        id = stream == StandardStream::Input ? STD_INPUT_HANDLE : STD_OUTPUT_HANDLE;
    DWORD mode = 0;
    return GetConsoleMode(GetStdHandle(id), &mode) != 0;
}

int terminalColumns()
{
    CONSOLE_SCREEN_BUFFER_INFO info{};
    if (!GetConsoleScreenBufferInfo(GetStdHandle(STD_ERROR_HANDLE), &info))
        return 80;
    return info.srWindow.Right - info.srWindow.Left + 1;
}

void presetTimeZone() { }

struct ExclusiveFile::Handle {
    HANDLE file = INVALID_HANDLE_VALUE;
};

ExclusiveFile::ExclusiveFile() : m_handle(std::make_unique<Handle>()) { }

ExclusiveFile::~ExclusiveFile()
{
    close();
}

bool ExclusiveFile::create(const QString& absolutePath)
{
    close();
    m_handle->file = CreateFileW(wide(systemPath(absolutePath)), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                 CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
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

} // namespace nPlatform
