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
constexpr std::ptrdiff_t mostDecimals = 15;
constexpr quint64 zeros = 0x3030303030303030u;
constexpr quint64 wholePowers[] = {1, 10, 100, 1000, 10000, 100000, 1000000, 10000000};

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

/// Eight characters, the first in the lowest byte.
quint64 loadEight(const char* text)
{
    return qFromLittleEndian<quint64>(text);
}

bool areDigits(quint64 characters)
{
    return (((characters + 0x4646464646464646u) | (characters - zeros)) & 0x8080808080808080u) == 0;
}

/// All places at once: pairs, fours, eight.
quint64 valueOfDigits(quint64 characters)
{
    const quint64 digits = characters - zeros;
    const quint64 pairs = (digits * 10 + (digits >> 8)) & 0x00ff00ff00ff00ffu;
    const quint64 fours = (pairs * 100 + (pairs >> 16)) & 0x0000ffff0000ffffu;
    return (fours * 10000 + (fours >> 32)) & 0xffffffffu;
}

/// What the writer prints: "-1.5000E+0", with at most two digits behind the exponent's sign.
struct PrintedReal {
    const char* begin = nullptr; ///< behind the sign
    const char* mark = nullptr;  ///< the exponent's letter
    const char* end = nullptr;

    std::ptrdiff_t decimals() const { return mark - begin - 2; }
    bool find(const char* first, const char* last);
    bool hasDigits() const;
    quint64 digits() const;
    int exponent() const;

private:
    quint64 lastDecimals(std::ptrdiff_t count) const;
};

bool PrintedReal::find(const char* first, const char* last)
{
    constexpr std::ptrdiff_t shortest = 8; // so that eight characters can be loaded
    begin = first + (first != last && *first == '-' ? 1 : 0);
    end = last;
    if (end - begin < shortest)
        return false;
    mark = end - (isDigit(end[-2]) ? 4 : 3);
    return *mark == 'E' && isSign(mark[1]) && isDigit(end[-1]) && begin[1] == '.' && isDigit(*begin)
        && decimals() <= mostDecimals;
}

/// The last \a count decimals as eight digits, zeros in front.
quint64 PrintedReal::lastDecimals(std::ptrdiff_t count) const
{
    const std::ptrdiff_t beyond = std::max<std::ptrdiff_t>(6 - decimals(), 0); // which lie before the number
    const quint64 characters = loadEight(mark - 8 + beyond) << (8 * beyond);
    const quint64 others = ~quint64(0) >> (8 * count);
    return (characters & ~others) | (zeros & others);
}

// Eight or more decimals are two groups of eight, which may overlap.
bool PrintedReal::hasDigits() const
{
    return decimals() < 8 ? areDigits(lastDecimals(decimals()))
                          : areDigits(loadEight(begin + 2)) && areDigits(loadEight(mark - 8));
}

quint64 PrintedReal::digits() const
{
    const auto first = static_cast<quint64>(*begin - '0');
    const std::ptrdiff_t count = decimals();
    if (count < 8)
        return first * wholePowers[count] + valueOfDigits(lastDecimals(count));
    const quint64 nine = first * 100000000u + valueOfDigits(loadEight(begin + 2));
    return nine * wholePowers[count - 8] + valueOfDigits(lastDecimals(count - 8));
}

int PrintedReal::exponent() const
{
    const int magnitude = end - mark == 3 ? end[-1] - '0' : (end[-2] - '0') * 10 + (end[-1] - '0');
    return mark[1] == '-' ? -magnitude : magnitude;
}

/// Reads what the writer prints where one multiplication or division of two numbers that doubles hold exactly
/// gives the nearest double (W. D. Clinger, How to read floating point numbers accurately, 1990): digits
/// below 2^53, a power of ten up to 22. False for anything else.
bool readPrintedReal(const char* first, const char* last, double& value)
{
    static constexpr double powers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                        1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                        1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
    constexpr int largestPower = 22;
    PrintedReal printed;
    if (!printed.find(first, last) || !printed.hasDigits())
        return false;
    const quint64 digits = printed.digits();
    const int power = printed.exponent() - static_cast<int>(printed.decimals());
    if (digits >> 53 != 0 || power < -largestPower || power > largestPower)
        return false;
    const double whole = static_cast<double>(digits);
    const double magnitude = power < 0 ? whole / powers[-power] : whole * powers[power];
    value = std::copysign(magnitude, printed.begin == first ? 1.0 : -1.0);
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

bool isPlainReal(const char* first, const char* last)
{
    PrintedReal printed;
    return printed.find(first, last) && printed.hasDigits();
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
