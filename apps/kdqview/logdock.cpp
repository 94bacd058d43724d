#include "logdock.h"

#include <kdQCore/kdReporter>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QHeaderView>
#include <QTime>
#include <QTreeWidget>

namespace {

enum Column { Time, Text };

constexpr int mostMessages = 1000;
constexpr QRgb errorColour = 0xffb3261e;

} // namespace

LogDock::LogDock(const kdReporter& reporter, QWidget* parent)
    : QDockWidget(parent), m_list(new QTreeWidget), m_copy(new QAction(this)), m_clear(new QAction(this))
{
    setObjectName(QStringLiteral("log"));
    m_list->setColumnCount(2);
    m_list->setHeaderHidden(true);
    m_list->setRootIsDecorated(false);
    m_list->setAlternatingRowColors(true);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->header()->setSectionResizeMode(Time, QHeaderView::ResizeToContents);
    m_list->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_list->addActions({m_copy, m_clear});
    setWidget(m_list);
    retranslateUi();

    connect(&reporter, &kdReporter::signalErrorMessage, this, &LogDock::addError);
    connect(&reporter, &kdReporter::signalMessage, this, &LogDock::addMessage);
    connect(m_copy, &QAction::triggered, this, &LogDock::copySelected);
    connect(m_clear, &QAction::triggered, m_list, &QTreeWidget::clear);
}

void LogDock::addError(const QString& text)
{
    add(QStringLiteral(":/icons/error.svg"), QColor(errorColour), text);
    show();
    raise();
}

void LogDock::addMessage(const QString& text, int level)
{
    const bool isNotable = level <= 0;
    add(isNotable ? QStringLiteral(":/icons/warning.svg") : QStringLiteral(":/icons/info.svg"),
        palette().color(level <= 1 ? QPalette::Active : QPalette::Disabled, QPalette::Text), text);
}

void LogDock::add(const QString& icon, const QColor& colour, const QString& text)
{
    if (count() >= mostMessages)
        delete m_list->takeTopLevelItem(0);
    auto* const item = new QTreeWidgetItem({QTime::currentTime().toString(QStringLiteral("HH:mm:ss")), text});
    item->setIcon(Time, QIcon(icon));
    item->setForeground(Text, colour);
    item->setToolTip(Text, text);
    m_list->addTopLevelItem(item);
    m_list->scrollToItem(item);
}

int LogDock::count() const
{
    return m_list->topLevelItemCount();
}

QString LogDock::lastText() const
{
    return count() == 0 ? QString() : m_list->topLevelItem(count() - 1)->text(Text);
}

void LogDock::copySelected() const
{
    QStringList lines;
    const QList<QTreeWidgetItem*> selected = m_list->selectedItems();
    for (const QTreeWidgetItem* const item : selected)
        lines.append(item->text(Time) + QLatin1Char(' ') + item->text(Text));
    QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

void LogDock::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QDockWidget::changeEvent(event);
}

void LogDock::retranslateUi()
{
    setWindowTitle(tr("Messages"));
    m_copy->setText(tr("Copy"));
    m_clear->setText(tr("Clear"));
}
