#include "progressline.h"

#include <kdQCore/kdCommandDispatcher>
#include <kdQCore/kdReporter>

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QToolButton>

ProgressLine::ProgressLine(const kdReporter& reporter, QWidget* parent)
    : QWidget(parent), m_text(new QLabel), m_bar(new QProgressBar), m_cancel(new QToolButton)
{
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_text);
    layout->addWidget(m_bar);
    layout->addWidget(m_cancel);
    m_bar->setMaximumWidth(240);
    m_cancel->setObjectName(QStringLiteral("cancel"));
    m_cancel->setIcon(QIcon(QStringLiteral(":/icons/cancel.svg")));
    m_cancel->setAutoRaise(true);
    retranslateUi();
    hide();

    connect(&reporter, &kdReporter::signalStartOperation, this, &ProgressLine::start);
    connect(&reporter, &kdReporter::signalProgress, this, &ProgressLine::setFraction);
    connect(&reporter, &kdReporter::signalFinishOperation, this, &QWidget::hide);
    connect(m_cancel, &QToolButton::clicked, this, [] { kdCommandDispatcher::I().slotStop(); });
}

void ProgressLine::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

void ProgressLine::start(const QString& text)
{
    m_text->setText(text);
    m_bar->setRange(0, 0); // busy, until the first fraction comes
    show();
}

void ProgressLine::setFraction(double fraction)
{
    m_bar->setRange(0, 1000);
    m_bar->setValue(qRound(fraction * 1000.0));
}

void ProgressLine::retranslateUi()
{
    m_cancel->setToolTip(tr("Stop what is running"));
}
