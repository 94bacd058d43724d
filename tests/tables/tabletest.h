#pragma once

#include <kdQCore/kdDataTable>

#include <algorithm>
#include <cstring>
#include <limits>

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double Largest = std::numeric_limits<double>::max();

using Values = QVector<double>;
using Points = QVector<QPointF>;
Q_DECLARE_METATYPE(Points)

inline kdDataColumn column(const Values& values)
{
    kdDataColumn result;
    for (double value : values)
        result.appendValue(value);
    return result;
}

inline kdDataTable curve(const Points& points, kdUnitSystem::Dimension x = kdUnitSystem::None,
                         kdUnitSystem::Dimension y = kdUnitSystem::None)
{
    kdDataTable table(x, y);
    for (const QPointF& point : points)
        table.addPoint(point);
    return table;
}

inline double doubleOf(quint64 bits)
{
    double value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

// Exact, and a NaN equals a NaN.
inline bool same(double a, double b)
{
    return a == b || (a != a && b != b);
}

inline bool same(const Values& a, const Values& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](double x, double y) { return same(x, y); });
}
