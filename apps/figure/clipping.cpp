#include "clipping.h"

#include <algorithm>
#include <cmath>

namespace {

/// Narrows the part [\a first, \a last] of the way from \a a to \a b to where it is not above \a limit.
bool narrow(double a, double b, double limit, double& first, double& last)
{
    if (a <= limit && b <= limit)
        return true;
    if (a > limit && b > limit)
        return false;
    const double share = (limit - a) / (b - a);
    if (a > limit)
        first = std::max(first, share);
    else
        last = std::min(last, share);
    return first <= last;
}

double between(double a, double b, double share)
{
    return share == 0.0 ? a : share == 1.0 ? b : a + (b - a) * share;
}

} // namespace

bool Window::isOpen() const
{
    return std::isinf(left) && std::isinf(right) && std::isinf(bottom) && std::isinf(top);
}

bool Window::contains(const QPointF& point) const
{
    return point.x() >= left && point.x() <= right && point.y() >= bottom && point.y() <= top;
}

bool Window::clip(QPointF& a, QPointF& b) const
{
    double first = 0.0;
    double last = 1.0;
    if (!narrow(a.x(), b.x(), right, first, last) || !narrow(-a.x(), -b.x(), -left, first, last)
        || !narrow(a.y(), b.y(), top, first, last) || !narrow(-a.y(), -b.y(), -bottom, first, last))
        return false;
    const QPointF start = a;
    a = {between(start.x(), b.x(), first), between(start.y(), b.y(), first)};
    b = {between(start.x(), b.x(), last), between(start.y(), b.y(), last)};
    return true;
}

QVector<QVector<QPointF>> Window::clipped(const QVector<QPointF>& line) const
{
    QVector<QVector<QPointF>> pieces;
    if (line.size() == 1 && contains(line.first()))
        pieces.append(line);
    bool isOpenEnded = false; // the last piece goes on with the next stretch
    for (int i = 0; i + 1 < line.size(); ++i) {
        QPointF a = line.at(i);
        QPointF b = line.at(i + 1);
        const bool isVisible = clip(a, b);
        if (isVisible && !isOpenEnded)
            pieces.append(QVector<QPointF>{a});
        if (isVisible)
            pieces.last().append(b);
        isOpenEnded = isVisible && contains(line.at(i + 1));
    }
    return pieces;
}

QVector<QVector<QPointF>> Window::contained(const QVector<QPointF>& points) const
{
    QVector<QPointF> inside;
    std::copy_if(points.begin(), points.end(), std::back_inserter(inside),
                 [this](const QPointF& point) { return contains(point); });
    return inside.isEmpty() ? QVector<QVector<QPointF>>() : QVector<QVector<QPointF>>{inside};
}
