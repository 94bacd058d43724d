#include "figure.h"

#include "clipping.h"

#include <algorithm>
#include <cmath>

namespace {

QVector<QPointF> withCorners(const QVector<QPointF>& points)
{
    QVector<QPointF> steps;
    steps.reserve(2 * points.size());
    for (const QPointF& point : points) {
        if (!steps.isEmpty() && steps.last().y() != point.y())
            steps.append({point.x(), steps.last().y()});
        steps.append(point);
    }
    return steps;
}

/// From the values of an axis to where they stand on it, and back.
struct AxisScale {
    bool isLogarithmic;

    double to(double value) const { return isLogarithmic ? std::log10(value) : value; }
    double from(double position) const { return isLogarithmic ? std::pow(10.0, position) : position; }

    void setEnds(const Figure::Axis& axis, double& from, double& to) const
    {
        if (!std::isnan(axis.from))
            from = this->to(axis.from);
        if (!std::isnan(axis.to))
            to = this->to(axis.to);
    }
};

/// The neighbours that share a column of the picture.
class Run {
public:
    void add(const QPointF& point, int index)
    {
        if (m_last < 0)
            m_first = m_low = m_high = index, m_lowest = m_highest = point.y();
        if (point.y() < m_lowest)
            m_low = index, m_lowest = point.y();
        if (point.y() > m_highest)
            m_high = index, m_highest = point.y();
        m_last = index;
    }

    void moveTo(QVector<QPointF>& result, const QVector<QPointF>& points)
    {
        int kept[] = {m_first, m_low, m_high, m_last};
        std::sort(std::begin(kept), std::end(kept));
        const int* const end = m_last < 0 ? kept : std::unique(std::begin(kept), std::end(kept));
        for (const int* index = kept; index != end; ++index)
            result.append(points.at(*index));
        m_last = -1;
    }

private:
    int m_first = -1;
    int m_low = -1;
    int m_high = -1;
    int m_last = -1;
    double m_lowest = 0.0;
    double m_highest = 0.0;
};

} // namespace

QString Figure::Axis::label() const
{
    const bool hasUnit = !unit.isEmpty() && unit != QLatin1String("-");
    return (hasUnit ? QStringLiteral("%1 [%2]").arg(title, unit) : title).trimmed();
}

bool Figure::isDrawable(const QPointF& point, const Axis& yAxis) const
{
    return std::isfinite(point.x()) && std::isfinite(point.y()) && (!x.isLogarithmic || point.x() > 0.0)
        && (!yAxis.isLogarithmic || point.y() > 0.0);
}

QVector<QVector<QPointF>> Figure::pieces(const Curve& curve) const
{
    QVector<QVector<QPointF>> pieces;
    const Axis yAxis = y.value(curve.axis);
    const auto isShown = [&](const QPointF& point) { return isDrawable(point, yAxis); };
    const QPointF* const points = curve.points.constData();
    const QPointF* const last = points + curve.points.size();
    for (const QPointF* end = points; end != last;) {
        const QPointF* const begin = std::find_if(end, last, isShown);
        end = std::find_if_not(begin, last, isShown);
        if (begin != end) // the whole curve is shared, not copied
            pieces.append(curve.points.mid(int(begin - points), int(end - begin)));
    }
    if (curve.form == Curve::Steps)
        std::transform(pieces.begin(), pieces.end(), pieces.begin(), withCorners);
    return clipped(pieces, curve.form, yAxis);
}

/// Straight lines are straight where the axes are: on logarithmic ones between the logarithms.
QVector<QVector<QPointF>> Figure::clipped(const QVector<QVector<QPointF>>& pieces, Curve::Form form,
                                          const Axis& yAxis) const
{
    const AxisScale xScale{x.isLogarithmic};
    const AxisScale yScale{yAxis.isLogarithmic};
    Window window;
    xScale.setEnds(x, window.left, window.right);
    yScale.setEnds(yAxis, window.bottom, window.top);
    if (window.isOpen())
        return pieces;
    QVector<QVector<QPointF>> result;
    for (const QVector<QPointF>& whole : pieces) {
        QVector<QPointF> piece = whole;
        for (QPointF& point : piece)
            point = {xScale.to(point.x()), yScale.to(point.y())};
        QVector<QVector<QPointF>> parts =
            form == Curve::Points ? window.contained(piece) : window.clipped(piece);
        for (QVector<QPointF>& part : parts)
            for (QPointF& point : part)
                point = {xScale.from(point.x()), yScale.from(point.y())};
        result += parts;
    }
    return result;
}

Figure Figure::thinned(int columns) const
{
    QVector<QVector<QVector<QPointF>>> allPieces;
    double from = std::numeric_limits<double>::max();
    double to = std::numeric_limits<double>::lowest();
    for (const Curve& curve : curves) {
        allPieces.append(pieces(curve));
        for (const QVector<QPointF>& piece : qAsConst(allPieces.last()))
            for (const QPointF& point : piece) {
                from = std::min(from, point.x());
                to = std::max(to, point.x());
            }
    }
    Figure result = *this;
    for (int i = 0; i < curves.size(); ++i)
        if (curves.at(i).form != Curve::Points && curves.at(i).points.size() > 4 * columns)
            thin(result.curves[i], allPieces.at(i), {from, to}, columns);
    return result;
}

void Figure::thin(Curve& curve, const QVector<QVector<QPointF>>& pieces, const QPointF& ends,
                  int columns) const
{
    const AxisScale scale{x.isLogarithmic};
    const double from = scale.to(ends.x());
    const double width = (scale.to(ends.y()) - from) / columns;
    curve.points.clear();
    curve.form = Curve::Lines;
    for (const QVector<QPointF>& piece : pieces) {
        if (!curve.points.isEmpty())
            curve.points.append({unset, unset});
        Run run;
        double column = 0.0;
        double left = 0.0; // of the column, as values: most points lie in that of the one before
        double right = 0.0;
        for (int i = 0; i < piece.size(); ++i) {
            const double value = piece.at(i).x();
            if (!(value >= left && value < right)) {
                const double itsColumn = width > 0.0 ? std::floor((scale.to(value) - from) / width) : 0.0;
                if (itsColumn != column)
                    run.moveTo(curve.points, piece);
                column = itsColumn;
                left = scale.from(from + column * width);
                right = scale.from(from + (column + 1.0) * width);
            }
            run.add(piece.at(i), i);
        }
        run.moveTo(curve.points, piece);
    }
}

QString Figure::fault() const
{
    if (y.isEmpty() || y.size() > 2)
        return tr("A picture has one or two y axes, not %1.").arg(y.size());
    if (curves.size() > mostCurves)
        return tr("A picture shows at most %1 curves, not %2.")
            .arg(QString::number(mostCurves), QString::number(curves.size()));
    const QVector<Axis> axes = QVector<Axis>{x} + y;
    for (const Axis& axis : axes)
        if (QString fault = faultOfAxis(axis); !fault.isEmpty())
            return fault;
    int pieceCount = 0;
    for (const Curve& curve : curves)
        if (QString fault = faultOfCurve(curve, pieceCount); !fault.isEmpty())
            return fault;
    if (pieceCount == 0)
        return tr("There is nothing to draw: no curve has a point that can be shown.");
    if (pieceCount > mostPieces)
        return tr("The curves have %1 pieces with gaps between, more than the %2 that can be drawn.")
            .arg(QString::number(pieceCount), QString::number(mostPieces));
    return {};
}

QString Figure::faultOfAxis(const Axis& axis) const
{
    for (const double end : {axis.from, axis.to}) {
        if (std::isinf(end) || std::abs(end) > largest)
            return tr("The axis '%1' cannot reach to %2.").arg(axis.label(), QString::number(end));
        if (axis.isLogarithmic && end <= 0.0)
            return tr("The logarithmic axis '%1' must begin above 0, not at %2.")
                .arg(axis.label(), QString::number(end));
    }
    if (axis.from >= axis.to)
        return tr("The axis '%1' must rise, not run from %2 to %3.")
            .arg(axis.label(), QString::number(axis.from), QString::number(axis.to));
    return {};
}

QString Figure::faultOfCurve(const Curve& curve, int& pieceCount) const
{
    if (curve.axis < 0 || curve.axis >= y.size())
        return tr("Curve '%1' belongs to y axis %2, and there are only %3.")
            .arg(curve.name, QString::number(curve.axis + 1), QString::number(y.size()));
    const QVector<QVector<QPointF>> itsPieces = pieces(curve);
    pieceCount += itsPieces.size();
    int count = 0;
    for (const QVector<QPointF>& piece : itsPieces) {
        count += piece.size();
        for (const QPointF& point : piece)
            if (std::abs(point.x()) > largest || std::abs(point.y()) > largest)
                return tr("Curve '%1' has the point (%2, %3), which lies too far out to be drawn.")
                    .arg(curve.name, QString::number(point.x()), QString::number(point.y()));
    }
    if (curve.form == Curve::Points && count > mostSinglePoints)
        return tr("Curve '%1' has %2 points; at most %3 can be drawn singly, without a line.")
            .arg(curve.name, QString::number(count), QString::number(mostSinglePoints));
    return {};
}
