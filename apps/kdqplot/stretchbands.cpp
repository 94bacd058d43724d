#include "stretchbands.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QtCharts/QXYSeries>

#include <algorithm>
#include <limits>

namespace {

constexpr double gap = 4.0; // between a name and the ends of its band

/// Whether the line from \a a to \a b, cut to the width of the place, may touch it.
bool touches(QPointF a, QPointF b, const QRectF& place)
{
    if (a.x() > b.x())
        std::swap(a, b);
    if (b.x() < place.left() || a.x() > place.right())
        return false;
    const double slope = b.x() > a.x() ? (b.y() - a.y()) / (b.x() - a.x()) : 0.0;
    const double left = a.x() < place.left() ? a.y() + slope * (place.left() - a.x()) : a.y();
    const double right = b.x() > place.right() ? b.y() - slope * (b.x() - place.right()) : b.y();
    return std::max(left, right) >= place.top() && std::min(left, right) <= place.bottom();
}

int crossings(const QRectF& place, const QVector<QPolygonF>& curves)
{
    int count = 0;
    for (const QPolygonF& curve : curves)
        for (int i = 0; i + 1 < curve.size(); ++i)
            count += touches(curve.at(i), curve.at(i + 1), place) ? 1 : 0;
    return count;
}

/// Where in the band an upright name crosses the fewest curves; the highest of such places.
QRectF freePlace(const QRectF& band, const QSizeF& size, const QVector<QPolygonF>& curves)
{
    constexpr int heights = 12;
    const double room = band.height() - size.height() - 2.0 * gap;
    QRectF best;
    int fewest = std::numeric_limits<int>::max();
    for (int i = 0; i <= heights; ++i) {
        const QRectF place(
            QPointF(band.center().x() - size.width() / 2.0, band.top() + gap + room * i / heights), size);
        const int count = crossings(place.adjusted(0.0, -gap, 0.0, gap), curves);
        if (count < fewest)
            best = place;
        fewest = std::min(fewest, count);
    }
    return best;
}

} // namespace

StretchBands::StretchBands(QtCharts::QChart& chart, QtCharts::QAbstractSeries& series,
                           const QVector<Figure::Stretch>& stretches, const QFont& font)
    : QGraphicsObject(&chart), m_chart(chart), m_series(series), m_stretches(stretches), m_font(font)
{
    constexpr double behindGrid = 0.5;
    setZValue(behindGrid);
    connect(&chart, &QtCharts::QChart::plotAreaChanged, this, &StretchBands::follow);
    follow(chart.plotArea());
}

void StretchBands::follow(const QRectF& plotArea)
{
    prepareGeometryChange();
    m_area = plotArea;
    update();
}

void StretchBands::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*)
{
    const QVector<QPolygonF> mapped = curves();
    painter->setFont(m_font);
    bool isShaded = false;
    for (const Figure::Stretch& stretch : qAsConst(m_stretches)) {
        const auto position = [&](double x) {
            return qBound(m_area.left(), m_chart.mapToPosition(QPointF(x, 0.0), &m_series).x(),
                          m_area.right());
        };
        const QRectF band(QPointF(position(stretch.from), m_area.top()),
                          QPointF(position(stretch.to), m_area.bottom()));
        if (isShaded)
            painter->fillRect(band, QColor(0xf3, 0xf5, 0xf8));
        painter->setPen(QPen(QColor(0xc4, 0xcb, 0xd4), 1.0));
        painter->drawLine(band.topRight(), band.bottomRight());
        paintName(*painter, stretch.name, band, mapped);
        isShaded = !isShaded;
    }
}

QVector<QPolygonF> StretchBands::curves() const
{
    QVector<QPolygonF> curves;
    const QList<QtCharts::QAbstractSeries*> allSeries = m_chart.series();
    for (QtCharts::QAbstractSeries* const series : allSeries) {
        const auto* const line = qobject_cast<const QtCharts::QXYSeries*>(series);
        const QVector<QPointF> points = line != nullptr ? line->pointsVector() : QVector<QPointF>();
        QPolygonF curve;
        for (const QPointF& point : points)
            curve.append(m_chart.mapToPosition(point, series));
        curves.append(curve);
    }
    return curves;
}

void StretchBands::paintName(QPainter& painter, const QString& name, const QRectF& band,
                             const QVector<QPolygonF>& curves) const
{
    const QFontMetricsF metrics(m_font);
    const QSizeF lying(metrics.horizontalAdvance(name), metrics.capHeight());
    painter.setPen(QColor(0x5a, 0x64, 0x70));
    if (lying.width() + 2.0 * gap <= band.width()) {
        painter.drawText(QPointF(band.center().x() - lying.width() / 2.0, band.top() + gap + lying.height()),
                         name);
    } else if (lying.height() <= band.width() && lying.width() + 2.0 * gap <= band.height()) {
        const QRectF place = freePlace(band, lying.transposed(), curves);
        painter.save();
        painter.translate(place.right(), place.bottom());
        painter.rotate(-90.0);
        painter.drawText(QPointF(0.0, 0.0), name);
        painter.restore();
    }
}
