#include "kdlog.h"

#include "kdlogbackend_p.h"

#include <algorithm>
#include <atomic>
#include <cstring>
#include <mutex>
#include <vector>

namespace kdLog {

namespace {

struct Sinks {
    std::recursive_mutex mutex;
    std::vector<Sink*> list; ///< null: left during the delivery that is running
    bool delivering = false;
};

Sinks& sinks()
{
    // Never destroyed: destructors of other static objects may still log.
    static Sinks* const instance = new Sinks;
    return *instance;
}

std::atomic<int> sinkCount{0};
std::atomic<int> minimum{Trace};

constexpr int tagCount = 14;
constexpr const char* tagTexts[tagCount] = {
    "General          ", "Remote           ", "License          ", "Paths            ", "FailedAssert     ",
    "BatchMode        ", "Setup            ", "Command          ", "Settings         ", "WriteDat         ",
    "Socket           ", "ModelCheck       ", "Material         ", "InterProcessCom  ",
};

/// Base name of a source path in lower case, in a buffer of its own.
class BaseName {
public:
    explicit BaseName(const char* path)
    {
        const char* begin = path ? path : "";
        for (const char* c = begin; *c; ++c)
            if (*c == '/' || *c == '\\')
                begin = c + 1;
        char* out = m_text;
        for (; *begin && out < m_text + sizeof m_text - 1; ++begin)
            *out++ = *begin >= 'A' && *begin <= 'Z' ? char(*begin + ('a' - 'A')) : *begin;
        *out = '\0';
    }

    const char* text() const { return m_text; }

private:
    char m_text[128];
};

bool isControl(char c)
{
    return static_cast<unsigned char>(c) < 0x20 && c != '\t';
}

/// A text that comes from outside must not be able to forge a line or to command a terminal.
QByteArray harmless(QByteArray bytes)
{
    if (std::none_of(bytes.cbegin(), bytes.cend(), isControl))
        return bytes;
    bytes.replace("\r\n", "\n");
    std::replace_if(
        bytes.begin(), bytes.end(), [](char c) { return isControl(c) && c != '\n'; }, ' ');
    return bytes.replace("\n", "\n    ");
}

/// Leaves no half of a character of a multi-byte encoding behind.
QByteArray limited(QByteArray bytes)
{
    int size = nLogBackEnd::maximumTextLength;
    if (bytes.size() <= size)
        return bytes;
    for (int i = 0; i < 3 && (static_cast<unsigned char>(bytes.at(size)) & 0xC0) == 0x80; ++i)
        --size;
    return bytes.left(size) + " [...]";
}

void deliver(const Record& record)
{
    Sinks& s = sinks();
    const std::lock_guard<std::recursive_mutex> lock(s.mutex);
    if (s.delivering) // a sink that logs itself
        return;
    s.delivering = true;
    const std::size_t count = s.list.size();
    for (std::size_t i = 0; i < count; ++i) {
        if (!s.list[i])
            continue;
        try {
            s.list[i]->received(record);
        } catch (...) {
            // The caller only wanted to log: the next sink is served, the fault stays the sink's own.
            continue;
        }
    }
    s.list.erase(std::remove(s.list.begin(), s.list.end(), nullptr), s.list.end());
    s.delivering = false;
}

} // namespace

const char* tagText(Tag tag)
{
    return tagTexts[tag >= 0 && tag < tagCount ? tag : General];
}

bool isWanted(Severity severity)
{
    return severity >= minimum.load(std::memory_order_relaxed)
        || sinkCount.load(std::memory_order_relaxed) > 0;
}

Severity minimumSeverity()
{
    return Severity(minimum.load(std::memory_order_relaxed));
}

void setMinimumSeverity(Severity severity)
{
    minimum.store(severity, std::memory_order_relaxed);
}

void write(Severity severity, Tag tag, const char* file, int line, const QString& text)
{
    const BaseName name(file);
    severity = std::clamp(severity, Trace, Critical);
    if (severity >= minimumSeverity())
        nLogBackEnd::write(severity, tagText(tag), name.text(), line, limited(harmless(text.toLocal8Bit())));
    if (sinkCount.load() > 0)
        deliver({severity, tag, QString::fromLocal8Bit(name.text()), line, text});
}

Sink::Sink() = default;

Sink::~Sink()
{
    detach();
}

void Sink::attach()
{
    Sinks& s = sinks();
    const std::lock_guard<std::recursive_mutex> lock(s.mutex);
    if (std::find(s.list.begin(), s.list.end(), this) != s.list.end())
        return;
    s.list.push_back(this);
    ++sinkCount;
}

void Sink::detach()
{
    Sinks& s = sinks();
    const std::lock_guard<std::recursive_mutex> lock(s.mutex);
    const auto found = std::find(s.list.begin(), s.list.end(), this);
    if (found == s.list.end())
        return;
    --sinkCount;
    if (s.delivering)
        *found = nullptr;
    else
        s.list.erase(found);
}

} // namespace kdLog
