#pragma once

#include <QPointer>
#include <QSplitter>

class CurveView;
class Document;

QT_BEGIN_NAMESPACE
class QMenu;
class QTableView;
QT_END_NAMESPACE

/// One sheet: its table, and beside it its curves. What the user changes becomes commands of the dispatcher.
class SheetView : public QSplitter {
    Q_OBJECT

public:
    explicit SheetView(QWidget* parent = nullptr);

    /// Null: shows nothing.
    void setSheet(Document* document, int sheet);
    Document* document() const { return m_document; }
    int sheet() const { return m_sheet; }
    bool isEditable() const;
    int currentRow() const;
    CurveView& curve() const { return *m_curve; }

    void selectRow(int row);
    void insertRow();
    void appendRow();
    void removeRows();
    /// The selected cells, as other programs paste them.
    void copy() const;
    /// The units that the current column can be converted to.
    void fillUnitMenu(QMenu& menu);

Q_SIGNALS:
    /// Another cell, sheet or table: what can be done may be another.
    void signalCurrentChanged();
    void signalRefused(const QString& reason);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void shareWidth();
    QRect selectedCells() const;
    void follow();
    void followReset();
    void showUnits(const QPoint& position);
    void run(const QString& command, const QStringList& words);
    void enter(int row, int column, double value);

    QPointer<Document> m_document;
    int m_sheet = 0;
    QTableView* m_table;
    CurveView* m_curve;
    bool m_isMoved = false; ///< the user has chosen the widths
};
