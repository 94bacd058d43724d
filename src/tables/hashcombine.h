#pragma once

#include <QHash>

/// The hash of a sequence of members: start with the seed and add one after the other.
class HashCombine {
public:
    explicit HashCombine(uint seed) : m_hash(seed) { }

    template <typename T>
    HashCombine& add(const T& member)
    {
        m_hash ^= qHash(member) + 0x9e3779b9U + (m_hash << 6) + (m_hash >> 2);
        return *this;
    }
    uint result() const { return m_hash; }

private:
    uint m_hash;
};
