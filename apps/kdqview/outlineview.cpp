#include "outlineview.h"

#include "document.h"

#include <QEvent>

OutlineView::OutlineView(QWidget* parent) : QTreeWidget(parent)
{
    setObjectName(QStringLiteral("outline"));
    setRootIsDecorated(false);
    setAlternatingRowColors(true);
    setUniformRowHeights(true);
    connect(this, &QTreeWidget::itemClicked, this, [this](const QTreeWidgetItem* item) {
        const int sheet = item->data(0, Qt::UserRole).toInt();
        if (m_document != nullptr && sheet >= 0)
            Q_EMIT signalSheetChosen(m_document, sheet);
    });
}

void OutlineView::setDocument(Document* document)
{
    if (m_document == document)
        return;
    m_document = document;
    fill();
}

void OutlineView::fill()
{
    clear();
    const Outline outline = m_document == nullptr ? Outline() : m_document->outline();
    setHeaderLabels(outline.titles);
    setColumnCount(outline.titles.size());
    QList<QTreeWidgetItem*> items;
    for (const Outline::Row& row : outline.rows) {
        items.append(new QTreeWidgetItem(row.cells));
        items.constLast()->setData(0, Qt::UserRole, row.sheet);
    }
    addTopLevelItems(items);
    for (int column = 0; column < columnCount(); ++column)
        resizeColumnToContents(column);
}

void OutlineView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        fill();
    QTreeWidget::changeEvent(event);
}
