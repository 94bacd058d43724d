#include "datmultiply_p.h"
#include "datpowers_p.h"
#include "datreal_p.h"

#include <QtAlgorithms>
#include <QtEndian>

#include <charconv>
#include <cmath>
#include <cstring>

namespace nDatReal {

namespace {

using nDatMultiply::Product;
using std::uint32_t;
using std::uint64_t;

constexpr nDatPowers::PowerTable powers = nDatPowers::makePowerTable();

constexpr uint64_t tenTo16 = 10000000000000000u;
constexpr uint32_t tenTo8 = 100000000u;

constexpr int leastExponent = -325;
constexpr int mostExponent = 309;

struct ExponentText {
    char text[7];
    unsigned char length;
};

constexpr ExponentText makeExponentText(int exponent)
{
    ExponentText result{{'E', exponent < 0 ? '-' : '+'}, 2};
    const int magnitude = exponent < 0 ? -exponent : exponent;
    for (int unit = magnitude >= 100 ? 100 : magnitude >= 10 ? 10 : 1; unit > 0; unit /= 10)
        result.text[result.length++] = static_cast<char>('0' + magnitude / unit % 10);
    return result;
}

using ExponentTable = std::array<ExponentText, mostExponent - leastExponent + 1>;

constexpr ExponentTable makeExponentTable()
{
    ExponentTable table{};
    for (int exponent = leastExponent; exponent <= mostExponent; ++exponent)
        table[static_cast<std::size_t>(exponent - leastExponent)] = makeExponentText(exponent);
    return table;
}

constexpr ExponentTable exponents = makeExponentTable();

// The fraction from which the rounding of the last 3, 4 or 5 printed digits carries, less one unit of 2^-64.
constexpr uint64_t half = uint64_t(1) << 63;
constexpr uint64_t carryThresholds[] = {~(half / 1000), ~(half / 10000), ~(half / 100000)};
constexpr uint64_t undecidedUnits = 2;

// Eight digits as eight characters in memory order, all positions at once: 2 x 4 digits, 4 x 2, 8 x 1, each
// step dividing by multiplication.
void storeEightDigits(uint32_t number, char* out)
{
    const uint64_t fours = (number / 10000u) | (uint64_t(number % 10000u) << 32);
    const uint64_t hundreds = ((fours * 10486u) >> 20) & 0x0000007f0000007fu;
    const uint64_t pairs = hundreds | ((fours - hundreds * 100u) << 16);
    const uint64_t tens = ((pairs * 103u) >> 10) & 0x000f000f000f000fu;
    const uint64_t digits = tens | ((pairs - tens * 10u) << 8);
    qToLittleEndian(digits | 0x3030303030303030u, out);
}

// 17 digits with the point after the first: 18 characters.
void storeMantissa(uint64_t digits, char* out)
{
    const auto upper = static_cast<uint32_t>(digits / tenTo8);
    const auto lower = static_cast<uint32_t>(digits - uint64_t(upper) * tenTo8);
    const uint32_t first = upper / tenTo8;
    out[0] = static_cast<char>('0' + first);
    out[1] = '.';
    storeEightDigits(upper - first * tenTo8, out + 2);
    storeEightDigits(lower, out + 10);
}

// The sign counts in the width. Returns false where the product does not decide.
bool formatFast(double value, int width, int decimals, char* out)
{
    uint64_t bits;
    std::memcpy(&bits, &value, sizeof bits);
    const auto sign = static_cast<int>(bits >> 63);
    *out = '-';
    out += sign;
    width -= sign;

    uint64_t mantissa = bits & 0x000fffffffffffffu;
    int binaryExponent = static_cast<int>(bits >> 52) & 0x7ff;
    if (Q_LIKELY(binaryExponent != 0)) {
        mantissa = (mantissa | 0x0010000000000000u) << 11;
        binaryExponent -= 1075 + 11;
    } else if (mantissa != 0) {
        const auto shift = static_cast<int>(qCountLeadingZeroBits(mantissa));
        mantissa <<= shift;
        binaryExponent = -1074 - shift;
    } else {
        std::memcpy(out, "0.000000000000000000000000", 24);
        std::memcpy(out + width - 3, "E+0", 3);
        return true;
    }

    int exponent = nDatPowers::floorLog10OfPowerOf2(binaryExponent + 63);
    const int power = 15 - exponent;
    const nDatPowers::Power& g = powers[static_cast<std::size_t>(power - nDatPowers::leastPower)];
    const Product upper = nDatMultiply::multiply(mantissa, g.high);
    const uint64_t low = upper.low + nDatMultiply::multiply(mantissa, g.low).high;
    const uint64_t high = upper.high + (low < upper.low ? 1 : 0);
    const int shift = -1 - binaryExponent - nDatPowers::floorLog2OfPowerOf10(power); // 9 to 13
    uint64_t integer = high >> shift;
    const uint64_t fraction = (high << (64 - shift)) | (low >> shift);

    const int carryDigits = decimals - 15 - (integer >= tenTo16 ? 1 : 0);
    const uint64_t threshold = carryThresholds[carryDigits - 3];
    if (Q_UNLIKELY(fraction - (threshold - undecidedUnits) <= 2 * undecidedUnits))
        return false;
    integer += fraction > threshold ? 1 : 0;

    // 16 and 17 digits are equally frequent: a factor is cheaper than a branch that is missed every other
    // time.
    const bool isLonger = integer >= tenTo16;
    exponent += isLonger ? 1 : 0;
    storeMantissa(integer * (isLonger ? 1 : 10), out);
    const ExponentText& text = exponents[static_cast<std::size_t>(exponent - leastExponent)];
    std::memcpy(out + width - text.length, &text, sizeof text);
    return true;
}

} // namespace

int formatExact(double value, int width, bool leadingBlank, char* out)
{
    char text[64];
    char* begin = text;
    if (leadingBlank)
        *begin++ = ' ';
    // Not printf: its decimal mark is the user's.
    char* const end =
        std::to_chars(begin, text + sizeof text, value, std::chars_format::scientific, leadingBlank ? 19 : 20)
            .ptr;
    char* const exponentMark =
        static_cast<char*>(std::memchr(text, 'e', static_cast<std::size_t>(end - text)));
    *exponentMark = 'E';
    const char* digits = exponentMark + 2;
    while (*digits == '0' && digits + 1 < end)
        ++digits;
    const auto digitCount = static_cast<int>(end - digits);
    const int mantissaLength = width - 2 - digitCount;
    std::memcpy(out, text, static_cast<std::size_t>(mantissaLength));
    std::memcpy(out + mantissaLength, exponentMark, 2);
    std::memcpy(out + mantissaLength + 2, digits, static_cast<std::size_t>(digitCount));
    out[width] = '\0';
    return width;
}

int format(double value, int width, bool leadingBlank, char* out)
{
    const int blanks = leadingBlank ? 1 : 0;
    *out = ' ';
    if (Q_UNLIKELY(!formatFast(value, width - blanks, 20 - blanks, out + blanks)))
        return formatExact(value, width, leadingBlank, out);
    out[width] = '\0';
    return width;
}

} // namespace nDatReal
