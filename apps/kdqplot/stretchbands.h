#pragma once

#include "figure.h"

#include <QFont>
#include <QGraphicsObject>
#include <QPolygonF>
#include <QtCharts/QChart>

/// Draws the stretches of a figure behind the curves of its chart: every second one as a light band, limits
/// as fine lines. A name stands at the top, or upright where it would not fit otherwise, and then at the
/// height where it crosses the fewest curves. Belongs to the chart and follows its size and its x axis.
class StretchBands : public QGraphicsObject {
    Q_OBJECT

public:
    StretchBands(QtCharts::QChart& chart, QtCharts::QAbstractSeries& series,
                 const QVector<Figure::Stretch>& stretches, const QFont& font);

    QRectF boundingRect() const override { return m_area; }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    void follow(const QRectF& plotArea);
    QVector<QPolygonF> curves() const;
    void paintName(QPainter& painter, const QString& name, const QRectF& band,
                   const QVector<QPolygonF>& curves) const;

    QtCharts::QChart& m_chart;
    QtCharts::QAbstractSeries& m_series;
    QVector<Figure::Stretch> m_stretches;
    QFont m_font;
    QRectF m_area;
};
