#include "sheetview.h"

#include "curveview.h"
#include "document.h"

#include <kdQCore/kdCommandDispatcher>

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QMenu>
#include <QScrollBar>
#include <QTableView>

SheetView::SheetView(QWidget* parent)
    : QSplitter(Qt::Horizontal, parent), m_table(new QTableView), m_curve(new CurveView)
{
    m_table->setObjectName(QStringLiteral("table"));
    m_table->setAlternatingRowColors(true);
    m_table->setSelectionMode(QAbstractItemView::ContiguousSelection);
    m_table->verticalHeader()->setDefaultSectionSize(m_table->fontMetrics().height() + 8);
    m_table->horizontalHeader()->setContextMenuPolicy(Qt::CustomContextMenu);
    m_table->horizontalHeader()->setHighlightSections(false);
    addWidget(m_table);
    addWidget(m_curve);
    setStretchFactor(0, 2);
    setStretchFactor(1, 3);
    setChildrenCollapsible(false);
    connect(this, &QSplitter::splitterMoved, this, [this] { m_isMoved = true; });
    connect(m_curve, &CurveView::signalRowPicked, this, &SheetView::selectRow);
    connect(m_table->horizontalHeader(), &QWidget::customContextMenuRequested, this, &SheetView::showUnits);
}

void SheetView::setSheet(Document* document, int sheet)
{
    TableModel* const model = document == nullptr ? nullptr : document->sheet(sheet);
    if (m_document == document && m_sheet == sheet && m_table->model() == model)
        return;
    if (m_table->model() != nullptr)
        m_table->model()->disconnect(this);
    QItemSelectionModel* const former = m_table->selectionModel();
    m_document = document;
    m_sheet = sheet;
    m_table->setModel(model);
    delete former; // a view leaves it behind
    m_curve->setSheet(document, sheet);
    if (model != nullptr) {
        connect(model, &TableModel::signalValueEntered, this, &SheetView::enter);
        connect(model, &TableModel::signalEntryRefused, this, &SheetView::signalRefused);
        connect(model, &QAbstractItemModel::modelReset, this, &SheetView::followReset);
        connect(m_table->selectionModel(), &QItemSelectionModel::currentChanged, this, &SheetView::follow);
        m_table->resizeColumnsToContents();
        shareWidth();
        selectRow(0);
    }
    Q_EMIT signalCurrentChanged();
}

/// The table gets what it needs, half of the width at most, until the user moves the border.
void SheetView::shareWidth()
{
    if (m_isMoved)
        return;
    const QString rows = QString::number(m_table->model()->rowCount());
    const int needed = m_table->horizontalHeader()->length()
        + qMax(m_table->verticalHeader()->sizeHint().width(),
               m_table->fontMetrics().horizontalAdvance(rows) + 2 * m_table->fontMetrics().averageCharWidth())
        + m_table->verticalScrollBar()->sizeHint().width() + 4 * m_table->frameWidth();
    const int tableWidth = qBound(width() / 5, needed, width() / 2);
    setSizes({tableWidth, width() - tableWidth});
}

bool SheetView::isEditable() const
{
    return m_document != nullptr && m_document->sheet(m_sheet) != nullptr
        && m_document->sheet(m_sheet)->isEditable();
}

int SheetView::currentRow() const
{
    return m_table->currentIndex().row();
}

void SheetView::selectRow(int row)
{
    if (m_table->model() == nullptr)
        return;
    const int column = qMax(0, m_table->currentIndex().column());
    m_table->setCurrentIndex(m_table->model()->index(row, column));
}

void SheetView::follow()
{
    m_curve->markCell(currentRow(), m_table->currentIndex().column());
    Q_EMIT signalCurrentChanged();
}

void SheetView::followReset()
{
    selectRow(0);
    follow();
}

void SheetView::run(const QString& command, const QStringList& words)
{
    if (m_document == nullptr)
        return;
    const QStringList line =
        QStringList{command, QString::number(m_document->number()), QString::number(m_sheet + 1)} + words;
    kdCommandDispatcher::I().execute(line.join(QLatin1Char(' ')));
    follow();
}

void SheetView::enter(int row, int column, double value)
{
    run(QStringLiteral("set"),
        {QString::number(row + 1), QString::number(column + 1),
         QString::number(value, 'g', QLocale::FloatingPointShortest)});
}

void SheetView::insertRow()
{
    const int row = qMax(0, currentRow());
    run(QStringLiteral("insert"), {QString::number(row + 1)});
    selectRow(row);
}

void SheetView::appendRow()
{
    const int row = m_table->model()->rowCount();
    run(QStringLiteral("insert"), {QString::number(row + 1)});
    selectRow(row);
}

/// Columns by rows. A selection is a box, but may come in pieces; without one the current cell counts.
QRect SheetView::selectedCells() const
{
    QRect cells;
    const QItemSelection selection = m_table->selectionModel()->selection();
    for (const QItemSelectionRange& range : selection)
        cells |= QRect(range.left(), range.top(), range.width(), range.height());
    const QModelIndex current = m_table->currentIndex();
    return cells.isValid() ? cells : QRect(current.column(), current.row(), 1, 1);
}

void SheetView::removeRows()
{
    const QRect cells = selectedCells();
    run(QStringLiteral("remove"), {QString::number(cells.top() + 1), QString::number(cells.height())});
    selectRow(qMin(cells.top(), m_table->model()->rowCount() - 1));
}

void SheetView::copy() const
{
    const QRect cells = selectedCells();
    QStringList lines;
    for (int row = cells.top(); row <= cells.bottom(); ++row) {
        QStringList texts;
        for (int column = cells.left(); column <= cells.right(); ++column)
            texts.append(m_table->model()->index(row, column).data(Qt::EditRole).toString());
        lines.append(texts.join(QLatin1Char('\t')));
    }
    QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

void SheetView::fillUnitMenu(QMenu& menu)
{
    menu.clear();
    const int column = m_table->currentIndex().column();
    if (!isEditable() || column < 0)
        return;
    const kdUnitSystem unit = m_document->sheet(m_sheet)->table().columnRef(column).getUnitSystem();
    for (int i = 0; unit.isValid() && i < kdUnitSystem::unitCount(unit.dimension()); ++i) {
        const kdUnitSystem other(unit.dimension(), i);
        QAction* const action =
            menu.addAction(QStringLiteral("%1\t%2").arg(other.symbol(), other.translatedName()), this,
                           [this, column, other] {
                               run(QStringLiteral("unit"), {QString::number(column + 1), other.symbol()});
                           });
        action->setCheckable(true);
        action->setChecked(i == unit.unitIndex());
    }
}

void SheetView::resizeEvent(QResizeEvent* event)
{
    QSplitter::resizeEvent(event);
    if (m_table->model() != nullptr)
        shareWidth();
}

void SheetView::showUnits(const QPoint& position)
{
    const int column = m_table->horizontalHeader()->logicalIndexAt(position);
    m_table->setCurrentIndex(m_table->model()->index(qMax(0, currentRow()), column));
    QMenu menu;
    fillUnitMenu(menu);
    if (!menu.isEmpty())
        menu.exec(m_table->horizontalHeader()->mapToGlobal(position));
}
