#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// Powers of ten as the deck's real format needs them, made by the compiler from exact long integers.
namespace nDatPowers {

/// 10^p cut (never rounded) to 128 significant bits, the top bit set: 10^p >= (high * 2^64 + low) * 2^k.
struct Power {
    std::uint64_t high;
    std::uint64_t low;
};

constexpr int leastPower = -293;
constexpr int mostPower = 340;

/// floor(log10(2^n)), exact for the n of a double.
constexpr int floorLog10OfPowerOf2(int n)
{
    return static_cast<int>((static_cast<std::int64_t>(n) * 1292913986) >> 32);
}

/// floor(log2(10^n)), exact for leastPower to mostPower.
constexpr int floorLog2OfPowerOf10(int n)
{
    return static_cast<int>((static_cast<std::int64_t>(n) * 14267572527) >> 32);
}

/// An unsigned integer of 1280 bits, least word first: room for 10^340 and for 2^1216.
class LongInteger {
public:
    constexpr explicit LongInteger(int bit)
    {
        m_words[static_cast<std::size_t>(bit / 32)] = std::uint32_t(1) << (bit % 32);
    }

    constexpr void multiplyByTen()
    {
        std::uint64_t carry = 0;
        for (std::size_t i = 0; i < wordCount; ++i) {
            carry += std::uint64_t(m_words[i]) * 10;
            m_words[i] = static_cast<std::uint32_t>(carry);
            carry >>= 32;
        }
    }

    constexpr void divideByTen()
    {
        std::uint64_t rest = 0;
        for (std::size_t i = wordCount; i-- > 0;) {
            rest = (rest << 32) | m_words[i];
            m_words[i] = static_cast<std::uint32_t>(rest / 10);
            rest %= 10;
        }
    }

    constexpr Power leadingBits() const
    {
        std::size_t top = wordCount;
        while (m_words[--top] == 0) { }
        int shift = 0;
        while (((m_words[top] << shift) >> 31) == 0)
            ++shift;
        return {bitsFrom(top, shift), top >= 2 ? bitsFrom(top - 2, shift) : 0};
    }

private:
    static constexpr std::size_t wordCount = 40;

    constexpr std::uint64_t bitsFrom(std::size_t top, int shift) const
    {
        const std::uint64_t upper = m_words[top];
        const std::uint64_t middle = top >= 1 ? m_words[top - 1] : 0;
        const std::uint64_t lower = top >= 2 ? m_words[top - 2] : 0;
        return (((upper << 32) | middle) << shift) | ((lower << shift) >> 32);
    }

    std::array<std::uint32_t, wordCount> m_words{};
};

using PowerTable = std::array<Power, mostPower - leastPower + 1>;

constexpr PowerTable makePowerTable()
{
    PowerTable table{};
    LongInteger power(0);
    for (int p = 0; p <= mostPower; ++p) {
        table[static_cast<std::size_t>(p - leastPower)] = power.leadingBits();
        power.multiplyByTen();
    }
    // Dividing the floor by ten gives the floor of the whole quotient, so nothing is lost on the way down.
    LongInteger quotient(1216);
    for (int p = -1; p >= leastPower; --p) {
        quotient.divideByTen();
        table[static_cast<std::size_t>(p - leastPower)] = quotient.leadingBits();
    }
    return table;
}

} // namespace nDatPowers
