#include "cfedatlinewriter.h"
#include "datreal_p.h"

#include <QTextStream>
#include <QVarLengthArray>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <cstring>

namespace {

// The longest line holds 32 integers of 11 characters and a comma; a real needs its whole buffer at the end.
constexpr int lineBufferSize = 512;
constexpr int blockSize = 64 * 1024;

} // namespace

int CFEDatLineWriter::formatDouble(double value, bool leadingBlank, char* buffer) const
{
    const int width = m_extensionMode == standard ? 10 : m_format == free ? 19 : 20;
    if (Q_LIKELY(std::isfinite(value)))
        return nDatReal::format(value, width, leadingBlank, buffer);
    const QByteArray text = QString::number(value, 'g', 6).rightJustified(width).toLatin1();
    std::memcpy(buffer, text.constData(), static_cast<std::size_t>(width) + 1);
    return width;
}

char* CFEDatLineWriter::formatInt(int value, char* out) const
{
    char digits[16];
    const char* const end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    const std::ptrdiff_t length = end - digits;
    if (isFixed())
        for (std::ptrdiff_t column = length; column < getMaxWidthForInt(); ++column)
            *out++ = ' ';
    return std::copy_n(digits, length, out);
}

char* CFEDatLineWriter::formatReal(double value, char* out) const
{
    return out + formatDouble(value, false, out);
}

char* CFEDatLineWriter::formatItem(int value, bool bare, char* out) const
{
    out = formatInt(value, out);
    *out = ',';
    return out + (bare ? 0 : 1);
}

char* CFEDatLineWriter::formatItem(double value, bool bare, char* out) const
{
    out = formatReal(value, out);
    *out = ',';
    return out + (bare ? 0 : 1);
}

template <typename Value>
char* CFEDatLineWriter::formatInList(Value value, bool endOfLine, bool continued, char* out) const
{
    out = formatItem(value, isFixed() || (endOfLine && continued), out);
    if (!endOfLine)
        return out;
    if (continued) {
        *out++ = ' ';
        *out++ = 'c';
    }
    *out++ = '\n';
    return out;
}

bool CFEDatLineWriter::writeIntInList(int value, bool endOfLine, bool continued)
{
    char text[doubleBufferSize];
    return put(text, formatInList(value, endOfLine, continued, text) - text);
}

bool CFEDatLineWriter::writeDoubleInList(double value, bool endOfLine, bool continued)
{
    char text[2 * doubleBufferSize];
    return put(text, formatInList(value, endOfLine, continued, text) - text);
}

bool CFEDatLineWriter::writeInList(int value, bool endOfLine, bool continued)
{
    return writeIntInList(value, endOfLine, continued);
}

bool CFEDatLineWriter::writeInList(double value, bool endOfLine, bool continued)
{
    return writeDoubleInList(value, endOfLine, continued);
}

template <typename Value>
bool CFEDatLineWriter::writeItems(const QList<Value>& values, int perLine)
{
    if (perLine == 0 || values.isEmpty() || !m_isInWriteMode)
        return true;
    if (!isStreamGood())
        return false;

    const std::int64_t group = std::abs(static_cast<std::int64_t>(perLine));
    const std::int64_t size = values.size();
    const int most = getMaxNumberOfItemsPerLine<Value>();
    const bool inBlocks = size * widthFor(Value()) > blockSize && canBypassStream();
    const bool bare = isFixed();
    QVarLengthArray<char, lineBufferSize> buffer(inBlocks ? blockSize + lineBufferSize : lineBufferSize);
    char* const begin = buffer.data();
    char* out = begin;
    for (std::int64_t first = 0; first < size;) {
        const std::int64_t end = std::min({first + most, (first / group + 1) * group, size});
        for (std::int64_t i = first; i < end - 1; ++i)
            out = formatItem(values.at(static_cast<int>(i)), bare, out);
        out = formatInList(values.at(static_cast<int>(end - 1)), true, end < size, out);
        first = end;
        if (inBlocks && out - begin < blockSize)
            continue;
        const std::ptrdiff_t length = inBlocks ? blockSize : out - begin;
        if (inBlocks ? !writeThrough(begin, length) : !put(begin, length))
            return false;
        out = std::copy(begin + length, out, begin);
    }
    return put(begin, out - begin);
}

bool CFEDatLineWriter::writeList(const QList<int>& values, int perLine)
{
    return writeItems(values, perLine);
}

bool CFEDatLineWriter::writeList(const QList<double>& values, int perLine)
{
    return writeItems(values, perLine);
}

bool CFEDatLineWriter::writeDoubleValues(const QList<double>& values, int perLine)
{
    return writeItems(values, perLine);
}
