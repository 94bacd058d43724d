#include "curveview.h"

#include "chart.h"
#include "document.h"

#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QtCharts/QLegendMarker>
#include <QtCharts/QScatterSeries>
#include <QVBoxLayout>

#include <cmath>
#include <limits>

using namespace QtCharts;

namespace {

constexpr int allColumns = -1;
constexpr QRgb markColour = 0xffd55e00;

/// Shows another chart and deletes the former one, which a view does not do of itself.
void showChart(QChartView& view, QChart* chart)
{
    QChart* const former = view.chart();
    view.setChart(chart);
    delete former;
}

QScatterSeries* newMark()
{
    auto* const mark = new QScatterSeries;
    mark->setMarkerSize(13.0);
    mark->setColor(Qt::white);
    mark->setPen(QPen(QColor(markColour), 3.0));
    return mark;
}

bool isFinite(const QPointF& point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

} // namespace

CurveView::CurveView(QWidget* parent)
    : QWidget(parent), m_choice(new QComboBox), m_reason(new QLabel), m_view(new QChartView)
{
    setObjectName(QStringLiteral("curve"));
    m_choice->setObjectName(QStringLiteral("columns"));
    m_reason->setWordWrap(true);
    m_reason->setAlignment(Qt::AlignCenter);
    m_view->setRenderHint(QPainter::Antialiasing);
    m_view->setFrameShape(QFrame::NoFrame);
    m_view->viewport()->installEventFilter(this);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_choice);
    layout->addWidget(m_view, 1);
    layout->addWidget(m_reason, 1);
    connect(m_choice, qOverload<int>(&QComboBox::activated), this, &CurveView::redraw);
}

void CurveView::setSheet(Document* document, int sheet)
{
    if (m_document != nullptr && m_document->sheet(m_sheet) != nullptr)
        m_document->sheet(m_sheet)->disconnect(this);
    m_document = document;
    m_sheet = sheet;
    m_row = -1;
    fillChoice();
    redraw();
    if (document != nullptr && document->sheet(sheet) != nullptr)
        connect(document->sheet(sheet), &TableModel::signalTableChanged, this, &CurveView::redraw);
}

/// All columns together where they make a picture, and each alone.
void CurveView::fillChoice()
{
    const int before = m_choice->currentIndex();
    const int count = m_choice->count();
    m_choice->clear();
    const TableModel* const model = m_document == nullptr ? nullptr : m_document->sheet(m_sheet);
    if (model == nullptr) {
        m_choice->hide();
        return;
    }
    Figure figure;
    QString error;
    if (m_document->makeFigure(m_sheet, {}, figure, error))
        m_choice->addItem(tr("All curves"), allColumns);
    const int x = model->table().defaultXColumnIndex();
    for (int column = 0; column < model->columnCount(); ++column)
        if (column != x)
            m_choice->addItem(TableModel::titleOf(model->table().columnRef(column), column), column);
    if (count == m_choice->count())
        m_choice->setCurrentIndex(before);
    m_choice->setVisible(m_choice->count() > 2);
}

QVector<int> CurveView::chosenColumns() const
{
    const int column = m_choice->count() == 0 ? allColumns : m_choice->currentData().toInt();
    return column == allColumns ? QVector<int>() : QVector<int>{column};
}

void CurveView::redraw()
{
    QString error;
    m_figure = Figure();
    m_marks.clear();
    const bool isDrawn = m_document != nullptr && m_document->sheet(m_sheet) != nullptr
        && m_document->makeFigure(m_sheet, chosenColumns(), m_figure, error);
    if (!isDrawn)
        m_figure = Figure();
    showChart(*m_view, isDrawn ? nChart::make(m_figure).release() : new QChart);
    m_view->setVisible(isDrawn);
    m_reason->setVisible(!isDrawn);
    m_reason->setText(error);
    drawMark();
}

void CurveView::markCell(int row, int column)
{
    m_row = row;
    const int choice = m_choice->findData(column);
    if (choice >= 0 && choice != m_choice->currentIndex() && !chosenColumns().isEmpty()) {
        m_choice->setCurrentIndex(choice);
        redraw();
    }
    drawMark();
}

void CurveView::drawMark()
{
    if (m_marks.isEmpty() && !m_figure.curves.isEmpty()) {
        QChart* const chart = m_view->chart();
        const QList<QAbstractAxis*> yAxes = chart->axes(Qt::Vertical);
        for (const Figure::Curve& curve : qAsConst(m_figure.curves)) {
            QScatterSeries* const mark = newMark();
            m_marks.append(mark);
            chart->addSeries(mark);
            mark->attachAxis(chart->axes(Qt::Horizontal).constFirst());
            mark->attachAxis(yAxes.value(curve.axis));
            chart->legend()->markers(mark).constFirst()->setVisible(false);
        }
    }
    const QVector<QPointF> points = markedPoints();
    for (int i = 0; i < m_marks.size(); ++i)
        m_marks.at(i)->replace(isFinite(points.at(i)) ? QVector<QPointF>{points.at(i)} : QVector<QPointF>());
}

QVector<QPointF> CurveView::markedPoints() const
{
    // A picture may show more than the table: curves of other points have nothing to mark.
    const TableModel* const model = m_document == nullptr ? nullptr : m_document->sheet(m_sheet);
    const int rows = model == nullptr ? 0 : model->rowCount();
    QVector<QPointF> points;
    for (const Figure::Curve& curve : m_figure.curves) {
        const bool isOfTable = curve.points.size() == rows;
        points.append(isOfTable && m_row >= 0 && m_row < rows ? curve.points.at(m_row)
                                                              : QPointF(Figure::unset, Figure::unset));
    }
    return points;
}

void CurveView::pick(const QPoint& position)
{
    const QPointF place = m_view->chart()->mapFromScene(m_view->mapToScene(position));
    int nearest = -1;
    double smallest = std::numeric_limits<double>::max();
    for (int i = 0; i < m_marks.size(); ++i) {
        const QVector<QPointF>& points = m_figure.curves.at(i).points;
        for (int row = 0; row < points.size(); ++row) {
            const QPointF distance = m_view->chart()->mapToPosition(points.at(row), m_marks.at(i)) - place;
            const double square = QPointF::dotProduct(distance, distance);
            if (square < smallest) { // never for points that are not finite
                smallest = square;
                nearest = row;
            }
        }
    }
    if (nearest >= 0)
        Q_EMIT signalRowPicked(nearest);
}

bool CurveView::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress)
        pick(static_cast<QMouseEvent*>(event)->pos());
    return QWidget::eventFilter(watched, event);
}

void CurveView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        fillChoice();
        redraw();
    }
    QWidget::changeEvent(event);
}
