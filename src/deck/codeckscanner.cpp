#include "codeckscanner.h"

#include <QIODevice>

#include <algorithm>
#include <cstring>
#include <limits>

namespace {

constexpr qint64 bufferSize = 4 * coDeckScanner::longestLine;

bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || static_cast<unsigned char>(c) >= 0x80;
}

bool beginsNumber(const char* c, const char* end)
{
    if ((*c >= '0' && *c <= '9') || *c == '+' || *c == '-' || *c == '.' || *c == ',')
        return true;
    return end - c >= 3 && (qstrnicmp(c, "inf", 3) == 0 || qstrnicmp(c, "nan", 3) == 0);
}

coDeckLine::Kind kindOf(const char* begin, const char* end)
{
    if (begin == end)
        return coDeckLine::Blank;
    if (*begin == '$')
        return coDeckLine::Comment;
    // A word that begins in the first column is never a field: those are right-justified.
    if (isLetter(*begin))
        return coDeckLine::Keyword;
    const char* first = begin;
    while (first != end && (*first == ' ' || *first == '\t'))
        ++first;
    if (first == end)
        return coDeckLine::Blank;
    return beginsNumber(first, end) ? coDeckLine::Data : coDeckLine::Keyword;
}

const char* endOfFields(const char* begin, const char* end)
{
    const char* last = end;
    while (last != begin && (last[-1] == ' ' || last[-1] == '\t'))
        --last;
    const bool isContinued = last - begin >= 2 && (last[-1] == 'c' || last[-1] == 'C') && last[-2] == ' ';
    return isContinued ? last - 2 : end;
}

} // namespace

bool coDeckLine::isFree() const
{
    return begin != end && std::memchr(begin, ',', static_cast<std::size_t>(length())) != nullptr;
}

coDeckScanner::coDeckScanner(QIODevice& deck) : coDeckScanner(deck, std::numeric_limits<qint64>::max()) { }

coDeckScanner::coDeckScanner(QIODevice& deck, qint64 most)
    : m_deck(deck), m_left(most), m_buffer(static_cast<int>(std::min(bufferSize, most)), Qt::Uninitialized)
{
}

bool coDeckScanner::next()
{
    while (true) {
        const char* const begin = m_buffer.constData() + m_begin;
        const auto available = static_cast<std::size_t>(m_end - m_begin);
        if (const void* found = available ? std::memchr(begin, '\n', available) : nullptr) {
            const char* const lineEnd = static_cast<const char*>(found);
            take(begin, lineEnd, lineEnd + 1 - begin);
            m_begin += static_cast<int>(m_line.size);
            return true;
        }
        if (available > static_cast<std::size_t>(longestLine))
            return readLongLine();
        if (!fill()) {
            if (m_begin == m_end || hasFailed())
                return false;
            take(m_buffer.constData() + m_begin, m_buffer.constData() + m_end, m_end - m_begin);
            m_begin = m_end;
            return true;
        }
    }
}

void coDeckScanner::take(const char* begin, const char* end, qint64 size)
{
    m_line.isCut = end - begin > longestLine;
    if (m_line.isCut)
        end = begin + longestLine;
    else if (end != begin && end[-1] == '\r')
        --end;
    m_line.offset += m_line.size;
    m_line.size = size;
    ++m_line.number;
    m_line.begin = begin;
    m_line.end = end;
    m_line.kind = kindOf(begin, end);
    m_line.endOfFields = m_line.kind == coDeckLine::Data ? endOfFields(begin, end) : end;
}

// Moves the rest of the buffer to its front and reads on behind it.
bool coDeckScanner::fill()
{
    std::memmove(m_buffer.data(), m_buffer.constData() + m_begin, static_cast<std::size_t>(m_end - m_begin));
    m_end -= m_begin;
    m_begin = 0;
    const qint64 count =
        m_deck.read(m_buffer.data() + m_end, std::min<qint64>(m_left, m_buffer.size() - m_end));
    if (count < 0 && !m_deck.atEnd())
        m_errorText = tr("The deck cannot be read on after line %1: %2")
                          .arg(QString::number(m_line.number), m_deck.errorString());
    if (count > 0) {
        m_end += static_cast<int>(count);
        m_left -= count;
    }
    return count > 0;
}

bool coDeckScanner::readLongLine()
{
    m_longLine = m_buffer.mid(m_begin, longestLine + 1);
    qint64 passed = 0;
    const void* found = nullptr;
    do {
        passed += m_end - m_begin;
        m_begin = m_end;
        if (!fill())
            break;
        found = std::memchr(m_buffer.constData(), '\n', static_cast<std::size_t>(m_end));
    } while (!found);
    if (hasFailed())
        return false;
    const int rest = found ? static_cast<int>(static_cast<const char*>(found) - m_buffer.constData()) + 1 : 0;
    take(m_longLine.constData(), m_longLine.constData() + m_longLine.size(), passed + rest);
    m_begin = rest;
    return true;
}
