#include "datreal_p.h"
#include "decknumber_p.h"
#include "numbertext.h"

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

bool readOtherReal(const char* first, const char* last, double& value)
{
    return nNumberText::read(first, last, value) || readFortranReal(first, last, value);
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
