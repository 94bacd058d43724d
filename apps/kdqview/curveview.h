#pragma once

#include "figure.h"

#include <QPointer>
#include <QtCharts/QChartView>
#include <QWidget>

class Document;

QT_BEGIN_NAMESPACE
class QComboBox;
class QLabel;
QT_END_NAMESPACE

namespace QtCharts {
class QScatterSeries;
}

/// The curves of a sheet, drawn anew whenever its table changes, with the points of one row marked. A click
/// on the picture asks for the row nearest to it.
class CurveView : public QWidget {
    Q_OBJECT

public:
    explicit CurveView(QWidget* parent = nullptr);

    /// Null: shows nothing.
    void setSheet(Document* document, int sheet);
    /// Marks the points of a row; -1 marks none. Where curves are shown one by one, that of the column is.
    void markCell(int row, int column);

    /// What is shown now; without curves where nothing can be.
    const Figure& figure() const { return m_figure; }
    /// The marked points, one a curve; not finite where nothing is marked.
    QVector<QPointF> markedPoints() const;

Q_SIGNALS:
    void signalRowPicked(int row);

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fillChoice();
    void redraw();
    void drawMark();
    void pick(const QPoint& position);
    QVector<int> chosenColumns() const;

    QPointer<Document> m_document;
    int m_sheet = 0;
    int m_row = -1;
    Figure m_figure;
    QComboBox* m_choice;
    QLabel* m_reason; ///< why there is no picture
    QtCharts::QChartView* m_view;
    QVector<QtCharts::QScatterSeries*> m_marks; ///< the chart's, one a curve
};
