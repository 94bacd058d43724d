#include "numbertext.h"

#include <QByteArray>
#include <QtAlgorithms>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

namespace {

constexpr ushort minusSign = 0x2212;

char* copied(char* out, const char* text)
{
    const std::size_t length = std::strlen(text);
    std::memcpy(out, text, length);
    return out + length;
}

// Neither "-0" nor "-nan": the texts are those of QString::number.
bool writeSpecial(char*& out, double value)
{
    if (value == 0.0)
        out = copied(out, "0");
    else if (std::isnan(value))
        out = copied(out, "nan");
    else
        return false;
    return true;
}

// Whether exactly 17 digits write the value, so that 16 are a tie: std::to_chars then rounds to even, Qt up.
// The value is odd * 2^-places = odd * 5^places * 10^-places; a product of 17 digits needs 1 to 24 places,
// as integers beyond 2^53 have too many factors of two.
bool isTie(double value)
{
    quint64 bits;
    std::memcpy(&bits, &value, sizeof bits);
    const quint64 mantissa = (bits & 0xfffffffffffffu) | 0x10000000000000u;
    const int zeros = int(qCountTrailingZeroBits(mantissa));
    const int places = 1075 - int(bits >> 52 & 0x7ff) - zeros;
    if (places < 1 || places > 24)
        return false;
    quint64 power = 5;
    for (int i = 1; i < places; ++i)
        power *= 5;
    const quint64 odd = mantissa >> zeros;
    return odd > (Q_UINT64_C(10000000000000000) - 1) / power
        && odd <= (Q_UINT64_C(100000000000000000) - 1) / power;
}

char* writeTie(char* out, double value)
{
    const QByteArray text = QByteArray::number(value, 'g', 16);
    return std::copy(text.begin(), text.end(), out);
}

// The largest doubles, rounded to 16 digits, lie beyond the range.
bool isLargestRounded(QByteArray text)
{
    if (text.startsWith('-'))
        text.remove(0, 1);
    return text == "1.797693134862316e+308";
}

// std::from_chars leaves the value alone and does not say whether the number was too large or too small.
bool readOutOfRange(const char* first, const char* last, double& value)
{
    const QByteArray text(first, int(last - first));
    const double nearest = text.toDouble();
    if (std::fabs(nearest) <= 1.0)
        value = nearest;
    else if (isLargestRounded(text))
        value = std::copysign(std::numeric_limits<double>::max(), *first == '-' ? -1.0 : 1.0);
    else
        return false;
    return true;
}

char typedCharacter(QChar c, bool decimalComma)
{
    switch (c.unicode()) {
    case ',':
        return decimalComma ? '.' : ',';
    case 'D':
    case 'd':
        return 'e';
    case minusSign:
        return '-';
    default:
        return c.unicode() < 0x80 ? char(c.unicode()) : '?';
    }
}

} // namespace

char* nNumberText::writeRounded(char* out, double value)
{
    if (writeSpecial(out, value))
        return out;
    if (isTie(value))
        return writeTie(out, value);
    return std::to_chars(out, out + capacity, value, std::chars_format::general, 16).ptr;
}

char* nNumberText::writeShortest(char* out, double value)
{
    if (writeSpecial(out, value))
        return out;
    return std::to_chars(out, out + capacity, value).ptr;
}

char* nNumberText::writeShortest(char* out, float value)
{
    if (writeSpecial(out, double(value)))
        return out;
    return std::to_chars(out, out + capacity, value).ptr;
}

bool nNumberText::read(const char* first, const char* last, double& value)
{
    while (first != last && isBlank(*first))
        ++first;
    while (first != last && isBlank(last[-1]))
        --last;
    if (last - first > 1 && *first == '+' && first[1] != '-')
        ++first;
    double number = 0.0;
    const std::from_chars_result result = std::from_chars(first, last, number);
    if (result.ptr != last || result.ec == std::errc::invalid_argument || last[-1] == ')')
        return false;
    if (result.ec == std::errc::result_out_of_range)
        return readOutOfRange(first, last, value);
    value = number;
    return true;
}

bool nNumberText::readTyped(QStringView text, double& value, bool decimalComma)
{
    // No sensible number is longer; a text of a thousand digits still goes the long way below.
    constexpr int usual = 64;
    char buffer[usual];
    QByteArray longText;
    char* narrow = buffer;
    if (text.size() > usual) {
        longText.resize(int(text.size()));
        narrow = longText.data();
    }
    char* const end = std::transform(text.begin(), text.end(), narrow,
                                     [decimalComma](QChar c) { return typedCharacter(c, decimalComma); });
    return read(narrow, end, value);
}

QString nNumberText::plain(QStringView text, bool decimalComma)
{
    QString result = text.toString();
    for (QChar& c : result)
        c = QLatin1Char(typedCharacter(c, decimalComma));
    return result;
}
