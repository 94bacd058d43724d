#pragma once

#include <QtGlobal>

#include <array>

/// SPECK64/128: a permutation of 64-bit numbers with a key of 128 bits, in 27 rounds of add, rotate and xor.
///
/// Source: R. Beaulieu, D. Shors, J. Smith, S. Treatman-Clark, B. Weeks, L. Wingers, "The SIMON and SPECK
/// Families of Lightweight Block Ciphers", Cryptology ePrint Archive 2013/404; test vector in its appendix C.
namespace nSpeck {

constexpr int rounds = 27;
using RoundKeys = std::array<quint32, rounds>;

constexpr quint32 rotatedRight(quint32 x, int n)
{
    return x >> n | x << (32 - n);
}

constexpr quint32 rotatedLeft(quint32 x, int n)
{
    return x << n | x >> (32 - n);
}

/// One round of the permutation, and of the key schedule, where the round's number stands for the key.
constexpr void turn(quint32& x, quint32& y, quint32 key)
{
    x = (rotatedRight(x, 8) + y) ^ key;
    y = rotatedLeft(y, 3) ^ x;
}

/// The key's words k0, l0, l1, l2, the last one first: as the paper prints it.
constexpr RoundKeys roundKeys(quint32 l2, quint32 l1, quint32 l0, quint32 k0)
{
    RoundKeys keys{};
    quint32 l[3] = {l0, l1, l2};
    keys[0] = k0;
    for (int i = 0; i < rounds - 1; ++i) {
        quint32 key = keys[static_cast<std::size_t>(i)];
        turn(l[i % 3], key, static_cast<quint32>(i));
        keys[static_cast<std::size_t>(i) + 1] = key;
    }
    return keys;
}

constexpr quint64 encrypted(quint64 block, const RoundKeys& keys)
{
    auto x = static_cast<quint32>(block >> 32);
    auto y = static_cast<quint32>(block);
    for (const quint32 key : keys)
        turn(x, y, key);
    return quint64(x) << 32 | y;
}

constexpr quint64 decrypted(quint64 block, const RoundKeys& keys)
{
    auto x = static_cast<quint32>(block >> 32);
    auto y = static_cast<quint32>(block);
    for (std::size_t i = keys.size(); i-- > 0;) {
        y = rotatedRight(y ^ x, 3);
        x = rotatedLeft((x ^ keys[i]) - y, 8);
    }
    return quint64(x) << 32 | y;
}

} // namespace nSpeck
