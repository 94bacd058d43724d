#include "dattext_p.h"

#include <QTextCodec>

#include <algorithm>
#include <limits>

namespace nDatText {

namespace {

// A NUL would end the line for every reader.
QByteArray withoutNul(QByteArray text)
{
    return text.replace('\0', ' ');
}

bool isAsciiByte(char byte)
{
    return static_cast<unsigned char>(byte) < 0x80;
}

QString decoded(const QByteArray& text, int start, int length)
{
    return QString::fromLocal8Bit(text.constData() + start, length);
}

// The local encoding may be any, so the decoder tells: a cut between characters does not change what both
// sides mean.
bool isBetweenCharacters(const QByteArray& text, int start, int position)
{
    if (isAsciiByte(text.at(position)) && isAsciiByte(text.at(position - 1)))
        return true;
    constexpr int beyond = 8;
    const int end = std::min(position + beyond, text.size());
    return decoded(text, start, position - start) + decoded(text, position, end - position)
        == decoded(text, start, end - start);
}

} // namespace

QByteArray toBytes(const char* text)
{
    return QByteArray(text);
}

QByteArray toBytes(const std::string& text)
{
    constexpr std::size_t most = std::numeric_limits<int>::max() / 2;
    return withoutNul(QByteArray(text.data(), static_cast<int>(std::min(text.size(), most))));
}

QByteArray toBytes(const QString& text)
{
    return withoutNul(text.toLocal8Bit());
}

QByteArray toLatin1Bytes(const QString& text)
{
    return withoutNul(text.toLatin1());
}

QByteArray singleLine(QByteArray text)
{
    if (!text.contains('\n') && !text.contains('\r'))
        return text;
    return text.replace("\r\n", " ").replace('\n', ' ').replace('\r', ' ');
}

bool isAscii(const QByteArray& text)
{
    return std::all_of(text.cbegin(), text.cend(), isAsciiByte);
}

int pieceLength(const QByteArray& text, int start, int most)
{
    if (text.size() - start <= most)
        return text.size() - start;
    constexpr int longestCharacter = 6;
    for (int length = most; length > std::max(0, most - longestCharacter); --length)
        if (isBetweenCharacters(text, start, start + length))
            return length;
    return most;
}

bool keepsAscii(const QTextCodec& codec)
{
    // IANA numbers of US-ASCII, ISO-8859-1 to -10, UTF-8, ISO-8859-13 to -16, windows-1250 to -1258; 0 is the
    // system's own.
    const int mib = codec.mibEnum();
    return mib == 0 || (mib >= 3 && mib <= 13) || mib == 106 || (mib >= 109 && mib <= 112)
        || (mib >= 2250 && mib <= 2258);
}

} // namespace nDatText
