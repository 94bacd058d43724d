#include "windowreporter.h"

#include <QCoreApplication>

void WindowReporter::slotStartOperation(const QString& text)
{
    m_sinceEvents.start();
    kdReporter::slotStartOperation(text);
}

void WindowReporter::slotProgress(double fraction)
{
    constexpr qint64 interval = 50; // ms
    kdReporter::slotProgress(fraction);
    if (!m_sinceEvents.isValid() || m_sinceEvents.elapsed() < interval)
        return;
    setBusy(true);
    QCoreApplication::processEvents();
    m_sinceEvents.start();
}

void WindowReporter::slotFinishOperation(const QString& text)
{
    m_sinceEvents.invalidate();
    kdReporter::slotFinishOperation(text);
    setBusy(false);
}

void WindowReporter::setBusy(bool isBusy)
{
    if (m_isBusy == isBusy)
        return;
    m_isBusy = isBusy;
    Q_EMIT signalBusyChanged(isBusy);
}
