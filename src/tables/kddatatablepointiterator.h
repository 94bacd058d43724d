#pragma once

#include "kddatacolumn.h"

#include <QPointF>

#include <iterator>
#include <utility>

/// Walks over the rows of an XY table as points, by value; kdDataTable::begin() and end() make it.
///
/// \code
/// double longest = 0.0;
/// for (const QPointF& point : table)
///     longest = qMax(longest, point.y());
/// \endcode
///
/// It moves freely in both directions, so that std::lower_bound and the like are quick. It is valid until the
/// table's columns or number of rows change.
class kdDataTablePointIterator {
public:
    using iterator_category = std::random_access_iterator_tag;
    using value_type = QPointF;
    using difference_type = int;
    using reference = QPointF;
    class pointer { // keeps the point that operator-> shows alive
    public:
        explicit pointer(const QPointF& point) : m_point(point) { }
        const QPointF* operator->() const { return &m_point; }

    private:
        QPointF m_point;
    };

    kdDataTablePointIterator() = default;
    kdDataTablePointIterator(const kdDataColumn* x, const kdDataColumn* y, int row)
        : m_x(x), m_y(y), m_row(row)
    {
    }

    QPointF operator*() const { return at(m_row); }
    pointer operator->() const { return pointer(at(m_row)); }
    QPointF operator[](int offset) const { return at(m_row + offset); }
    kdDataTablePointIterator& operator++() { return *this += 1; }
    kdDataTablePointIterator& operator--() { return *this -= 1; }
    kdDataTablePointIterator operator++(int) { return std::exchange(*this, *this + 1); }
    kdDataTablePointIterator operator--(int) { return std::exchange(*this, *this - 1); }
    kdDataTablePointIterator& operator+=(int rows)
    {
        m_row += rows;
        return *this;
    }
    kdDataTablePointIterator& operator-=(int rows) { return *this += -rows; }
    kdDataTablePointIterator operator+(int rows) const
    {
        return kdDataTablePointIterator(m_x, m_y, m_row + rows);
    }
    kdDataTablePointIterator operator-(int rows) const
    {
        return kdDataTablePointIterator(m_x, m_y, m_row - rows);
    }
    friend kdDataTablePointIterator operator+(int rows, const kdDataTablePointIterator& from)
    {
        return from + rows;
    }
    int operator-(const kdDataTablePointIterator& other) const { return m_row - other.m_row; }
    bool operator==(const kdDataTablePointIterator& other) const
    {
        return m_x == other.m_x && m_row == other.m_row;
    }
    bool operator!=(const kdDataTablePointIterator& other) const { return !(*this == other); }
    bool operator<(const kdDataTablePointIterator& other) const { return m_row < other.m_row; }
    bool operator>(const kdDataTablePointIterator& other) const { return other < *this; }
    bool operator<=(const kdDataTablePointIterator& other) const { return !(other < *this); }
    bool operator>=(const kdDataTablePointIterator& other) const { return !(*this < other); }

private:
    QPointF at(int row) const { return m_x ? QPointF(m_x->value(row), m_y->value(row)) : QPointF(); }

    const kdDataColumn* m_x = nullptr;
    const kdDataColumn* m_y = nullptr;
    int m_row = 0;
};
