#pragma once

#include <cstdint>

/// The full product of two 64-bit numbers.
namespace nDatMultiply {

struct Product {
    std::uint64_t high;
    std::uint64_t low;
};

/// By 32-bit halves, for compilers without a 128-bit integer.
constexpr Product multiplyHalves(std::uint64_t a, std::uint64_t b)
{
    const std::uint64_t lowerA = a & 0xffffffffu;
    const std::uint64_t lowerB = b & 0xffffffffu;
    const std::uint64_t low = lowerA * lowerB;
    const std::uint64_t middle = (a >> 32) * lowerB + (low >> 32);
    const std::uint64_t middle2 = lowerA * (b >> 32) + (middle & 0xffffffffu);
    return {(a >> 32) * (b >> 32) + (middle >> 32) + (middle2 >> 32), (middle2 << 32) | (low & 0xffffffffu)};
}

#ifdef __SIZEOF_INT128__
constexpr Product multiply(std::uint64_t a, std::uint64_t b)
{
    __extension__ using Wide = unsigned __int128;
    const Wide product = static_cast<Wide>(a) * b;
    return {static_cast<std::uint64_t>(product >> 64), static_cast<std::uint64_t>(product)};
}
#else
constexpr Product multiply(std::uint64_t a, std::uint64_t b)
{
    return multiplyHalves(a, b);
}
#endif

} // namespace nDatMultiply
