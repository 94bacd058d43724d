#pragma once

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <random>
#include <vector>

/// Reals as decks hold them, and the naive ways of printing them.
namespace reals {

inline std::vector<double> uniform(std::size_t count)
{
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> distribution(-1000.0, 1000.0);
    std::vector<double> values(count);
    for (double& value : values)
        value = distribution(random);
    return values;
}

inline std::vector<double> shortDecimals(std::size_t count)
{
    std::mt19937_64 random(2);
    std::vector<double> values(count);
    for (double& value : values)
        value = double(std::int64_t(random() % 2000001) - 1000000) / double(random() % 2 ? 1000 : 100);
    return values;
}

inline std::vector<double> anyBits(std::size_t count)
{
    std::mt19937_64 random(3);
    std::vector<double> values;
    values.reserve(count);
    while (values.size() < count) {
        const std::uint64_t bits = random();
        double value;
        std::memcpy(&value, &bits, sizeof value);
        if (std::fabs(value) >= 1e-99 && std::fabs(value) < 1e100)
            values.push_back(value);
    }
    return values;
}

/// Drops the exponent's leading zeros and cuts the mantissa, so that width columns remain.
inline int cut(char* text, int length, int width, char mark)
{
    char* const exponent = static_cast<char*>(std::memchr(text, mark, static_cast<std::size_t>(length)));
    *exponent = 'E';
    char* digits = exponent + 2;
    while (*digits == '0' && digits + 1 < text + length)
        ++digits;
    const auto digitCount = static_cast<std::size_t>(text + length - digits);
    char* const to = text + width - 2 - digitCount;
    std::memmove(to, exponent, 2);
    std::memmove(to + 2, digits, digitCount);
    text[width] = '\0';
    return width;
}

inline int formatNaive(double value, int width, char* out)
{
    const int length = std::snprintf(out, 128, "%20.20E", value);
    return cut(out, length, width, 'E');
}

} // namespace reals
