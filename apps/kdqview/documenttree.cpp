#include "documenttree.h"

#include "workspace.h"

#include <QDir>
#include <QEvent>
#include <QScopedValueRollback>

namespace {

enum Role { NumberRole = Qt::UserRole, SheetRole };

} // namespace

DocumentTree::DocumentTree(QWidget* parent) : QTreeWidget(parent)
{
    setObjectName(QStringLiteral("documents"));
    setHeaderHidden(true);
    setTextElideMode(Qt::ElideMiddle);
    const Workspace& workspace = Workspace::I();
    connect(&workspace, &Workspace::signalInserted, this, [this](Document* document) {
        connect(document, &Document::signalTitleChanged, this, &DocumentTree::fill, Qt::UniqueConnection);
        fill();
    });
    connect(&workspace, &Workspace::signalRemoved, this, &DocumentTree::fill);
    connect(this, &QTreeWidget::currentItemChanged, this, &DocumentTree::tell);
}

void DocumentTree::setCurrent(const Document* document, int sheet)
{
    const int number = document == nullptr ? 0 : document->number();
    if (number == m_currentNumber && sheet == m_currentSheet)
        return;
    m_currentNumber = number;
    m_currentSheet = sheet;
    fill();
}

void DocumentTree::fill()
{
    const QScopedValueRollback<bool> guard(m_isFilling, true);
    clear();
    for (const auto& document : Workspace::I().documents())
        addDocument(*document);
}

void DocumentTree::addDocument(Document& document)
{
    const QString name =
        document.isModified() ? QStringLiteral("%1 *").arg(document.fileName()) : document.fileName();
    auto* const item = new QTreeWidgetItem(this, {name});
    QFont font = item->font(0);
    font.setBold(true);
    item->setFont(0, font);
    item->setIcon(0, QIcon(document.iconPath()));
    item->setToolTip(
        0, QStringLiteral("%1\n%2").arg(QDir::toNativeSeparators(document.path()), document.summary()));
    item->setData(0, NumberRole, document.number());
    item->setExpanded(true);
    const bool isCurrent = document.number() == m_currentNumber;
    if (isCurrent)
        setCurrentItem(item);
    for (int i = 0; document.sheetCount() > 1 && i < document.sheetCount(); ++i) {
        auto* const child = new QTreeWidgetItem(item, {document.sheetName(i)});
        child->setToolTip(0, document.sheetName(i));
        child->setData(0, NumberRole, document.number());
        child->setData(0, SheetRole, i);
        if (isCurrent && i == m_currentSheet)
            setCurrentItem(child);
    }
}

void DocumentTree::tell(const QTreeWidgetItem* item)
{
    if (m_isFilling || item == nullptr)
        return;
    const auto document = Workspace::I().find(item->data(0, NumberRole).toInt());
    if (document.isNull())
        return;
    m_currentNumber = document->number();
    m_currentSheet = item->data(0, SheetRole).toInt();
    Q_EMIT signalChosen(document.data(), m_currentSheet);
}

void DocumentTree::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        fill();
    QTreeWidget::changeEvent(event);
}
