#pragma once

#include <QHashFunctions>
#include <QMetaType>

/// The number of an object, as a type of its own so that it is not taken for a count or an index. A small
/// value type.
class coId {
public:
    constexpr coId() = default;
    constexpr explicit coId(unsigned int id) : m_id(id) { }

    /// 0 by default.
    constexpr unsigned int getId() const { return m_id; }

private:
    unsigned int m_id = 0;
};

constexpr bool operator==(coId a, coId b)
{
    return a.getId() == b.getId();
}

constexpr bool operator!=(coId a, coId b)
{
    return !(a == b);
}

constexpr bool operator<(coId a, coId b)
{
    return a.getId() < b.getId();
}

inline uint qHash(coId id, uint seed = 0)
{
    return qHash(id.getId(), seed);
}

Q_DECLARE_TYPEINFO(coId, Q_PRIMITIVE_TYPE);
Q_DECLARE_METATYPE(coId)
