#pragma once

#include <QPointF>
#include <QVector>

#include <limits>

/// A part of the plane; open where nothing was set.
struct Window {
    double left = -std::numeric_limits<double>::infinity();
    double right = std::numeric_limits<double>::infinity();
    double bottom = -std::numeric_limits<double>::infinity();
    double top = std::numeric_limits<double>::infinity();

    bool isOpen() const;
    /// The pieces of a line within the window, cut at its edges; a line of one point stays if it is inside.
    QVector<QVector<QPointF>> clipped(const QVector<QPointF>& line) const;

    /// The same of points without a line between them: one piece, or none.
    QVector<QVector<QPointF>> contained(const QVector<QPointF>& points) const;

private:
    bool contains(const QPointF& point) const;
    bool clip(QPointF& a, QPointF& b) const;
};
