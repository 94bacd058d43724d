#pragma once

#include <kdQCore/CFEDatLineWriter>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <limits>
#include <random>
#include <string>

/// Compares the writer's reals with the rule spelt out by the C library, digit by digit.
class RealCheck {
public:
    /// Prints with all decimals, drops the exponent's leading zeros; the caller cuts.
    static std::string printed(double value, bool leadingBlank)
    {
        char text[128];
        std::snprintf(text, sizeof text, leadingBlank ? " %19.19E" : "%20.20E", value);
        std::string result = text;
        const std::size_t mark = result.find(',');
        if (mark != std::string::npos)
            result[mark] = '.';
        const std::size_t digits = result.find('E') + 2;
        const std::size_t first = result.find_first_not_of('0', digits);
        return result.erase(digits, std::min(first, result.size() - 1) - digits);
    }

    static std::string cut(const std::string& text, std::size_t width)
    {
        const std::string exponent = text.substr(text.find('E'));
        return text.substr(0, width - exponent.size()) + exponent;
    }

    /// Whether \a field is \a text cut to \a width; the same as cut(), but cheap enough for millions of
    /// values.
    static bool isCut(const std::string& text, const char* field, std::size_t width)
    {
        const std::size_t mark = text.find('E');
        const std::size_t mantissa = width - (text.size() - mark);
        return text.compare(0, mantissa, field, mantissa) == 0
            && text.compare(mark, std::string::npos, field + mantissa) == 0;
    }

    /// Every width, with and without the leading blank. Returns what differs, or nothing.
    std::string difference(double value) const
    {
        for (const bool leadingBlank : {false, true}) {
            const std::string text = printed(value, leadingBlank);
            for (const CFEDatLineWriter* writer : {&m_ten, &m_nineteen, &m_twenty}) {
                char buffer[CFEDatLineWriter::doubleBufferSize];
                const int length = writer->formatDouble(value, leadingBlank, buffer);
                if (!isCut(text, buffer, static_cast<std::size_t>(length)))
                    return text + " gives '" + buffer + "'";
            }
        }
        return {};
    }

    /// A value as decks and adversaries make them.
    static double next(std::mt19937_64& random)
    {
        const std::uint64_t bits = random();
        switch (random() % 8) {
        case 0:
            return double(std::int64_t(bits % 2000001) - 1000000) / 1000;
        case 1:
            return std::ldexp(double(std::int64_t(bits)), -53) - 500.0;
        case 2:
            return neighbour(std::pow(10.0, int(bits % 617) - 308), int(bits >> 58) - 32);
        case 3:
            return neighbour(std::ldexp(1.0, int(bits % 2098) - 1074), int(bits >> 58) - 32);
        case 4:
            return double(bits % 99 + 1) * std::pow(10.0, int((bits >> 32) % 600) - 300);
        case 5:
            return fromBits(bits & 0x800fffffffffffffu); // subnormal
        case 6:
            return (10.0 - std::ldexp(double(bits % 1000), -40))
                * std::pow(10.0, int((bits >> 32) % 600) - 300);
        default:
            return finite(fromBits(bits));
        }
    }

    static double fromBits(std::uint64_t bits)
    {
        double value;
        std::memcpy(&value, &bits, sizeof value);
        return value;
    }

    static double neighbour(double value, int steps)
    {
        std::uint64_t bits;
        std::memcpy(&bits, &value, sizeof bits);
        return finite(fromBits(bits + static_cast<std::uint64_t>(steps)));
    }

    static double finite(double value) { return std::isfinite(value) ? value : 0.0; }

private:
    CFEDatLineWriter m_ten{datExtensionMode::standard, datFormat::free};
    CFEDatLineWriter m_nineteen{datExtensionMode::extended, datFormat::free};
    CFEDatLineWriter m_twenty{datExtensionMode::extended, datFormat::fixed};
};
