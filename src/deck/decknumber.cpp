#include "datreal_p.h"
#include "decknumber_p.h"
#include "numbertext.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

namespace nDeckNumber {

namespace {

constexpr int widestReal = 20;
constexpr int mostDigits = 16;

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isSign(char c)
{
    return c == '+' || c == '-';
}

bool isExponentLetter(char c)
{
    return c == 'E' || c == 'e' || c == 'D' || c == 'd';
}

void trim(const char*& first, const char*& last)
{
    while (first != last && nNumberText::isBlank(*first))
        ++first;
    while (first != last && nNumberText::isBlank(last[-1]))
        --last;
}

/// The value of eight digits; false where one of the characters is none. All places at once: pairs, fours,
/// eight.
bool readEightDigits(const char* text, quint64& value)
{
    const quint64 characters = qFromLittleEndian<quint64>(text);
    const quint64 digits = characters - 0x3030303030303030u;
    if (((characters + 0x4646464646464646u) | digits) & 0x8080808080808080u)
        return false;
    const quint64 pairs = (digits * 10 + (digits >> 8)) & 0x00ff00ff00ff00ffu;
    const quint64 fours = (pairs * 100 + (pairs >> 16)) & 0x0000ffff0000ffffu;
    value = (fours * 10000 + (fours >> 32)) & 0xffffffffu;
    return true;
}

/// Decimals behind the point, appended to \a digits.
bool appendDecimals(const char* c, const char* end, quint64& digits)
{
    for (quint64 eight = 0; end - c >= 8; c += 8) {
        if (!readEightDigits(c, eight))
            return false;
        digits = digits * 100000000u + eight;
    }
    for (; c != end; ++c) {
        if (!isDigit(*c))
            return false;
        digits = digits * 10 + static_cast<quint64>(*c - '0');
    }
    return true;
}

/// Reads what the writer prints, "-1.5000E+0", where one multiplication or division of two numbers that
/// doubles hold exactly gives the nearest double (W. D. Clinger, How to read floating point numbers
/// accurately, 1990): digits below 2^53, a power of ten up to 22. False for anything else.
bool readPrintedReal(const char* first, const char* last, double& value)
{
    static constexpr double powers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                        1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                        1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
    constexpr int largestPower = 22;
    constexpr std::ptrdiff_t mostDecimals = 15;
    const bool isNegative = first != last && *first == '-';
    const char* const begin = first + (isNegative ? 1 : 0);
    const char* mark = last;
    while (mark != begin && last - mark < 4 && isDigit(mark[-1]))
        --mark;
    if (mark - begin < 5 || mark == last || !isSign(mark[-1]) || mark[-2] != 'E' || begin[1] != '.'
        || !isDigit(*begin))
        return false;
    const char* const letter = mark - 2;
    const std::ptrdiff_t decimals = letter - (begin + 2);
    quint64 digits = static_cast<quint64>(*begin - '0');
    if (decimals > mostDecimals || !appendDecimals(begin + 2, letter, digits) || digits >> 53 != 0)
        return false;
    int exponent = 0;
    for (const char* c = mark; c != last; ++c)
        exponent = exponent * 10 + (*c - '0');
    const int power = (mark[-1] == '-' ? -exponent : exponent) - static_cast<int>(decimals);
    if (power < -largestPower || power > largestPower)
        return false;
    const double whole = static_cast<double>(digits);
    const double magnitude = power < 0 ? whole / powers[-power] : whole * powers[power];
    value = isNegative ? -magnitude : magnitude;
    return true;
}

/// Reads 1.5D+3 and 1.5+3 after bringing them into the usual form.
bool readFortranReal(const char* first, const char* last, double& value)
{
    std::array<char, 64> usual;
    trim(first, last);
    if (last - first >= static_cast<std::ptrdiff_t>(usual.size()))
        return false;
    char* out = usual.data();
    for (const char* c = first; c != last; ++c) {
        if (isSign(*c) && c != first && (isDigit(c[-1]) || c[-1] == '.'))
            *out++ = 'E';
        *out++ = *c == 'D' || *c == 'd' ? 'E' : *c;
        if (out >= usual.data() + usual.size() - 1)
            return false;
    }
    return nNumberText::read(usual.data(), out, value);
}

/// The digits of a printed number from the first that is not 0, and the power of ten of that one.
struct Decimal {
    std::array<char, mostDigits> digits{};
    int shown = 0;       ///< how many digits the text has
    int significant = 0; ///< the same without zeros at the end
    int exponent = -1;

    void add(char digit)
    {
        if (shown < mostDigits)
            digits[static_cast<std::size_t>(shown)] = digit;
        ++shown;
        if (digit != '0')
            significant = shown;
    }
};

Decimal decimalOf(const char* c, const char* last)
{
    Decimal result;
    result.digits.fill('0');
    trim(c, last);
    if (c != last && isSign(*c))
        ++c;
    bool isAfterPoint = false;
    for (; c != last && (isDigit(*c) || *c == '.'); ++c) {
        if (*c == '.') {
            isAfterPoint = true;
            continue;
        }
        const bool isLeadingZero = result.shown == 0 && *c == '0';
        if (!isLeadingZero)
            result.add(*c);
        if (isLeadingZero && isAfterPoint)
            --result.exponent;
        else if (!isLeadingZero && !isAfterPoint)
            ++result.exponent;
    }
    if (c != last && isExponentLetter(*c))
        ++c;
    if (c != last && *c == '+')
        ++c;
    int exponent = 0;
    std::from_chars(c, last, exponent);
    result.exponent += exponent;
    return result;
}

bool isBelow(const Decimal& a, const Decimal& b)
{
    return a.exponent != b.exponent ? a.exponent < b.exponent : a.digits < b.digits;
}

Decimal printed(double value)
{
    char text[nDatReal::bufferSize];
    const int width = nDatReal::format(std::fabs(value), widestReal, false, text);
    return decimalOf(text, text + width);
}

} // namespace

bool readReal(const char* first, const char* last, double& value)
{
    return readPrintedReal(first, last, value) || nNumberText::read(first, last, value)
        || readFortranReal(first, last, value);
}

bool readCardReal(const char* first, const char* last, double& value)
{
    if (!readReal(first, last, value))
        return false;
    if (value == 0.0 || !std::isfinite(value))
        return true;
    const Decimal text = decimalOf(first, last);
    const Decimal print = printed(value);
    if (text.significant > print.shown || !isBelow(print, text))
        return true;
    const double next = std::nextafter(value, std::copysign(std::numeric_limits<double>::infinity(), value));
    if (std::isfinite(next))
        value = next;
    return true;
}

bool readInt(const char* first, const char* last, int& value)
{
    trim(first, last);
    if (last - first > 1 && *first == '+' && isDigit(first[1]))
        ++first;
    int number = 0;
    const std::from_chars_result result = std::from_chars(first, last, number);
    if (first == last || result.ptr != last || result.ec != std::errc())
        return false;
    value = number;
    return true;
}

} // namespace nDeckNumber
