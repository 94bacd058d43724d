#include "stretchbands.h"

#include <QFontMetricsF>
#include <QPainter>

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
        paintName(*painter, stretch.name, band);
        isShaded = !isShaded;
    }
}

void StretchBands::paintName(QPainter& painter, const QString& name, const QRectF& band) const
{
    constexpr double gap = 4.0;
    const QFontMetricsF metrics(m_font);
    const double width = metrics.horizontalAdvance(name);
    painter.setPen(QColor(0x5a, 0x64, 0x70));
    if (width + 2.0 * gap <= band.width()) {
        painter.drawText(QPointF(band.center().x() - width / 2.0, band.top() + gap + metrics.ascent()), name);
    } else if (metrics.height() <= band.width()) {
        painter.save();
        painter.translate(band.center().x() + (metrics.ascent() - metrics.descent()) / 2.0,
                          band.top() + gap + width);
        painter.rotate(-90.0);
        painter.drawText(QPointF(0.0, 0.0), name);
        painter.restore();
    }
}
