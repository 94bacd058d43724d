#include "chart.h"

#include "axisticks.h"
#include "stretchbands.h"

#include <QGraphicsLayout>
#include <QLocale>
#include <QPen>
#include <QRegularExpression>
#include <QtCharts/QLegendMarker>
#include <QtCharts/QLineSeries>
#include <QtCharts/QLogValueAxis>
#include <QtCharts/QScatterSeries>
#include <QtCharts/QValueAxis>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace QtCharts;

namespace {

// The palette of Okabe and Ito, in an order in which neighbours also differ in lightness.
constexpr QRgb colours[] = {0xff0072b2, 0xffd55e00, 0xff009e73, 0xff000000,
                            0xffcc79a7, 0xff56b4e9, 0xffe69f00, 0xff7f7f7f};
const QVector<qreal> dashes[] = {{}, {6, 2.5}, {1.5, 2}, {7, 2, 1.5, 2}, {12, 3}};

constexpr QRgb textColour = 0xff20262e;
constexpr QRgb axisColour = 0xff6b7580;
constexpr QRgb gridColour = 0xffdfe3e8;

/// A text as charts take it: as HTML, and without what XML cannot hold.
QString shown(const QString& text)
{
    static const QRegularExpression unfit(QStringLiteral("[\\x{0}-\\x{1f}\\x{fffe}\\x{ffff}]"));
    return QString(text).replace(unfit, QString(QChar::ReplacementCharacter)).toHtmlEscaped();
}

QPen penOf(int curve)
{
    QPen pen(QColor::fromRgba(colours[size_t(curve) % std::size(colours)]), 2.2);
    pen.setJoinStyle(Qt::RoundJoin);
    const QVector<qreal>& dash = dashes[size_t(curve) % std::size(dashes)];
    pen.setCapStyle(dash.isEmpty() ? Qt::RoundCap : Qt::FlatCap);
    if (!dash.isEmpty())
        pen.setDashPattern(dash);
    return pen;
}

struct Extent {
    double lowest = std::numeric_limits<double>::max();
    double highest = std::numeric_limits<double>::lowest();

    void add(double value)
    {
        lowest = std::min(lowest, value);
        highest = std::max(highest, value);
    }
    bool isEmpty() const { return lowest > highest; }
};

class ChartMaker {
public:
    explicit ChartMaker(const Figure& figure) : m_figure(figure.thinned()), m_chart(new QChart)
    {
        m_chart->setTheme(QChart::ChartThemeLight);
        m_chart->setAnimationOptions(QChart::NoAnimation);
        m_chart->setBackgroundRoundness(0.0);
        m_chart->setBackgroundBrush(Qt::white);
        m_chart->layout()->setContentsMargins(0, 0, 0, 0);
        m_chart->setMargins(QMargins(16, 14, 20, 12));
        m_chart->setTitle(shown(figure.title));
        m_chart->setTitleFont(nChart::font(17, true));
        m_chart->setTitleBrush(QColor::fromRgba(textColour));
        QLocale locale;
        locale.setNumberOptions(QLocale::OmitGroupSeparator);
        m_chart->setLocale(locale);
        m_chart->setLocalizeNumbers(true);
    }

    std::unique_ptr<QChart> make()
    {
        for (const Figure::Curve& curve : m_figure.curves)
            m_pieces.append(m_figure.pieces(curve));
        addAxes();
        for (int i = 0; i < m_figure.curves.size(); ++i)
            addCurve(i);
        setLegend();
        if (!m_figure.stretches.isEmpty())
            new StretchBands(*m_chart, *m_chart->series().constFirst(), m_figure.stretches, nChart::font(12));
        return std::move(m_chart);
    }

private:
    using Pieces = QVector<QVector<QPointF>>;

    Extent extentOfX() const
    {
        Extent extent;
        for (const Pieces& pieces : m_pieces)
            for (const QVector<QPointF>& piece : pieces)
                for (const QPointF& point : piece)
                    extent.add(point.x());
        return extent;
    }

    Extent extentOfY(int axis) const
    {
        Extent extent;
        for (int i = 0; i < m_pieces.size(); ++i)
            if (m_figure.curves.at(i).axis == axis)
                for (const QVector<QPointF>& piece : m_pieces.at(i))
                    for (const QPointF& point : piece)
                        extent.add(point.y());
        return extent;
    }

    void addAxes()
    {
        constexpr int stepsOfX = 8;
        const Extent extentX = shownExtent(m_figure.x, extentOfX());
        m_chart->addAxis(
            makeAxis(m_figure.x, extentX, AxisTicks::closeTo(extentX.lowest, extentX.highest, stepsOfX)),
            Qt::AlignBottom);
        int steps = 0;
        for (int i = 0; i < m_figure.y.size(); ++i) {
            const Extent extent = shownExtent(m_figure.y.at(i), extentOfY(i));
            const AxisTicks ticks = ticksOfY(extent, steps);
            steps = ticks.steps();
            QAbstractAxis* const axis = makeAxis(m_figure.y.at(i), extent, ticks);
            axis->setGridLineVisible(i == 0);
            axis->setMinorGridLineVisible(i == 0);
            m_chart->addAxis(axis, i == 0 ? Qt::AlignLeft : Qt::AlignRight);
            colourForSingleCurve(i, *axis);
        }
    }

    /// What the axis must show: the curves, or as far as the figure says.
    static Extent shownExtent(const Figure::Axis& axis, Extent extent)
    {
        if (extent.isEmpty())
            extent = {1.0, 1.0};
        if (!std::isnan(axis.from))
            extent = {axis.from, std::max(extent.highest, axis.from)};
        if (!std::isnan(axis.to))
            extent = {std::min(extent.lowest, axis.to), axis.to};
        return extent;
    }

    /// The second axis takes as many steps as the first, so that one grid serves both.
    static AxisTicks ticksOfY(const Extent& extent, int stepsOfFirst)
    {
        constexpr int steps = 6;
        return stepsOfFirst > 0 ? AxisTicks::withSteps(extent.lowest, extent.highest, stepsOfFirst)
                                : AxisTicks::around(extent.lowest, extent.highest, steps);
    }

    /// With two axes, a reader sees by the colour which is whose.
    void colourForSingleCurve(int axisIndex, QAbstractAxis& axis) const
    {
        int curve = -1;
        for (int i = 0; i < m_figure.curves.size(); ++i) {
            if (m_figure.curves.at(i).axis != axisIndex)
                continue;
            if (curve >= 0)
                return;
            curve = i;
        }
        if (curve < 0 || m_figure.y.size() < 2)
            return;
        axis.setTitleBrush(penOf(curve).color());
        axis.setLabelsColor(penOf(curve).color());
    }

    static QAbstractAxis* makeAxis(const Figure::Axis& description, const Extent& extent,
                                   const AxisTicks& ticks)
    {
        QAbstractAxis* const axis = description.isLogarithmic ? logarithmicAxis(extent) : linearAxis(ticks);
        const QVariant from = std::isnan(description.from) ? QVariant() : QVariant(description.from);
        const QVariant to = std::isnan(description.to) ? QVariant() : QVariant(description.to);
        if (from.isValid())
            axis->setMin(from);
        if (to.isValid())
            axis->setMax(to);
        axis->setTitleText(shown(description.label()));
        axis->setTitleFont(nChart::font(14));
        axis->setTitleBrush(QColor::fromRgba(textColour));
        axis->setLabelsFont(nChart::font(13));
        axis->setLabelsColor(QColor::fromRgba(textColour));
        axis->setLinePen(QPen(QColor::fromRgba(axisColour), 1.0));
        axis->setGridLinePen(QPen(QColor::fromRgba(gridColour), 1.0));
        axis->setMinorGridLinePen(QPen(QColor::fromRgba(gridColour), 0.5));
        return axis;
    }

    static QAbstractAxis* linearAxis(const AxisTicks& ticks)
    {
        auto* const axis = new QValueAxis;
        axis->setTickType(QValueAxis::TicksDynamic);
        axis->setTickAnchor(ticks.firstTick());
        axis->setTickInterval(ticks.step);
        axis->setRange(ticks.from, ticks.to);
        axis->setLabelFormat(ticks.needsExponent() ? QStringLiteral("%.3g")
                                                   : QStringLiteral("%.%1f").arg(ticks.decimals()));
        return axis;
    }

    /// Over whole decades; where they are many, only every so many have a tick.
    static QAbstractAxis* logarithmicAxis(const Extent& extent)
    {
        constexpr double slack = 1e-12; // the ends shall be ticks in spite of rounded logarithms
        constexpr int mostTicks = 12;
        const double from = std::floor(std::log10(extent.lowest) + slack);
        const double to = std::max(std::ceil(std::log10(extent.highest) - slack), from + 1.0);
        const double decades = std::ceil((to - from) / mostTicks);
        auto* const axis = new QLogValueAxis;
        axis->setBase(std::pow(10.0, decades));
        axis->setRange(std::pow(10.0, from) * (1.0 - slack), std::pow(10.0, to) * (1.0 + slack));
        axis->setMinorTickCount(decades > 1.0 ? 0 : 8);
        axis->setLabelFormat(QStringLiteral("%.6g"));
        return axis;
    }

    void addCurve(int index)
    {
        const Figure::Curve& curve = m_figure.curves.at(index);
        bool isFirst = true;
        for (const QVector<QPointF>& piece : qAsConst(m_pieces.at(index))) {
            const bool isLine = curve.form != Figure::Curve::Points && piece.size() > 1;
            QXYSeries* const series = isLine ? lineSeries(index) : pointSeries(index);
            series->setName(shown(curve.name));
            series->replace(piece);
            m_chart->addSeries(series);
            series->attachAxis(m_chart->axes(Qt::Horizontal).constFirst());
            series->attachAxis(m_chart->axes(Qt::Vertical).at(curve.axis));
            m_chart->legend()->markers(series).constFirst()->setVisible(isFirst);
            isFirst = false;
        }
    }

    static QXYSeries* lineSeries(int index)
    {
        auto* const series = new QLineSeries;
        series->setPen(penOf(index));
        return series;
    }

    static QXYSeries* pointSeries(int index)
    {
        auto* const series = new QScatterSeries;
        series->setMarkerSize(8.0);
        series->setMarkerShape(index % 2 == 0 ? QScatterSeries::MarkerShapeCircle
                                              : QScatterSeries::MarkerShapeRectangle);
        series->setColor(penOf(index).color());
        series->setBorderColor(Qt::white);
        return series;
    }

    void setLegend()
    {
        QLegend& legend = *m_chart->legend();
        legend.setVisible(m_figure.curves.size() > 1);
        legend.setAlignment(Qt::AlignBottom);
        legend.setMarkerShape(QLegend::MarkerShapeFromSeries);
        legend.setFont(nChart::font(13));
        legend.setLabelColor(QColor::fromRgba(textColour));
    }

    const Figure m_figure;
    std::unique_ptr<QChart> m_chart;
    QVector<Pieces> m_pieces;
};

} // namespace

QFont nChart::font(int pixels, bool isBold)
{
    // The later families are for who shows an SVG elsewhere; their letters are about as wide.
    QFont font(QStringLiteral("DejaVu Sans,Verdana,sans-serif"));
    font.setPixelSize(pixels);
    font.setBold(isBold);
    return font;
}

std::unique_ptr<QChart> nChart::make(const Figure& figure)
{
    return ChartMaker(figure).make();
}
