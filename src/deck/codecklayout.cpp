#include "codecklayout.h"

#include "codeckscanner.h"

#include <QIODevice>

#include <cstddef>
#include <cstring>
#include <optional>

namespace {

using Mode = CFEDatLineWriter::datExtensionMode;

constexpr qint64 mostLines = 10000;

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// Digits of the exponent that begins at \a c; the next field's may follow at once.
int exponentDigits(const char* c, const char* end)
{
    int count = 0;
    for (c += 2; count < 3 && c < end && isDigit(*c); ++c)
        ++count;
    return count;
}

std::optional<Mode> modeByWidth(std::ptrdiff_t mantissa, int mostDigits)
{
    for (int digits = 1; digits <= mostDigits; ++digits) {
        const std::ptrdiff_t width = mantissa + 2 + digits;
        if (width == 10)
            return Mode::standard;
        if (width == 19 || width == 20)
            return Mode::extended;
    }
    return std::nullopt;
}

// A real of this library fills its field and has one digit before its point; an integer may touch it.
std::optional<Mode> modeByReals(const coDeckLine& line)
{
    const char* c = line.begin;
    while (c != line.end && *c != '.')
        ++c;
    const char* start = c;
    if (start != line.begin && isDigit(start[-1]))
        --start;
    if (start != line.begin && start[-1] == '-')
        --start;
    const bool isFull =
        c != line.end && (start == line.begin || start[-1] == ',' || (start - line.begin) % 5 == 0);
    const char* end = isFull ? c + 1 : line.end;
    while (end != line.end && isDigit(*end))
        ++end;
    if (!isFull || end == line.end || *end != 'E')
        return std::nullopt;
    return modeByWidth(end - start, exponentDigits(end, line.end));
}

// The first integer after a padded key ends in column 15 or 30.
std::optional<Mode> modeByKey(const coDeckLine& line)
{
    for (const char* key : {"table ", "autoforge ", "optimize ", "OPTIMIZE "}) {
        const std::size_t length = std::strlen(key);
        if (line.length() < static_cast<int>(length) || std::memcmp(line.begin, key, length) != 0)
            continue;
        const char* c = line.begin + length;
        while (c != line.end && *c == ' ')
            ++c;
        while (c != line.end && (isDigit(*c) || *c == '-'))
            ++c;
        if (c - line.begin == 15)
            return Mode::standard;
        if (c - line.begin == 30)
            return Mode::extended;
    }
    return std::nullopt;
}

std::optional<Mode> modeBy(const coDeckLine& line)
{
    if (line.kind == coDeckLine::Data)
        return modeByReals(line);
    return line.kind == coDeckLine::Keyword ? modeByKey(line) : std::nullopt;
}

} // namespace

coDeckLayout coDeckLayout::find(QIODevice& deck)
{
    coDeckLayout result;
    if (deck.isSequential())
        return result;
    const qint64 start = deck.pos();
    coDeckScanner scanner(deck);
    while (result.m_source == Assumed && scanner.line().number < mostLines && scanner.next()) {
        if (const auto mode = modeBy(scanner.line())) {
            result.m_mode = *mode;
            result.m_source = Found;
            result.m_line = scanner.line().number;
        }
    }
    deck.seek(start);
    return result;
}

QString coDeckLayout::text() const
{
    const QString widths =
        m_mode == CFEDatLineWriter::standard ? tr("standard widths") : tr("extended widths");
    switch (m_source) {
    case Given:
        return tr("%1, as given").arg(widths);
    case Found:
        return tr("%1, as line %2 shows").arg(widths, QString::number(m_line));
    case Assumed:
        break;
    }
    return tr("%1, which the deck does not show").arg(widths);
}
