#include "kdreporter.h"

#include "kdreporterinterface.h"
#include "kdreporterthrottle_p.h"
#include "platform.h"

#include <QPointer>

namespace {

kdReporterThrottle::Clock throttleClock = &nPlatform::monotonicMilliseconds;

} // namespace

kdReporterThrottle& kdReporterThrottle::instance()
{
    static kdReporterThrottle throttle;
    return throttle;
}

void kdReporterThrottle::setClock(Clock clock)
{
    throttleClock = clock ? clock : &nPlatform::monotonicMilliseconds;
}

qint64 kdReporterThrottle::now()
{
    return throttleClock();
}

kdReporter::kdReporter(QObject* parent) : QObject(parent) { }

kdReporter::~kdReporter()
{
    const QList<kdReporterInterface*> sources = m_sources;
    for (kdReporterInterface* source : sources)
        source->stopReportingTo(*this);
}

void kdReporter::startReceivingFrom(kdReporterInterface& source)
{
    if (!m_sources.contains(&source))
        m_sources.append(&source);
    source.addReceiver(*this);
}

void kdReporter::stopReceivingFrom(kdReporterInterface& source)
{
    m_sources.removeAll(&source);
    source.removeReceiver(*this);
}

// A connected slot may destroy the reporter: after a signal nothing of the object is touched.

void kdReporter::slotErrorMessage(const QString& text)
{
    Q_EMIT signalErrorMessage(text);
}

void kdReporter::slotMessage(const QString& text, int level)
{
    Q_EMIT signalMessage(text, level);
}

void kdReporter::slotStartOperation(const QString& text)
{
    kdReporterThrottle& throttle = kdReporterThrottle::instance();
    if (throttle.operationRunning)
        return;
    throttle.operation = text;
    throttle.operationRunning = true;
    Q_EMIT signalStartOperation(text);
    throttle.noteSignal();
}

void kdReporter::slotProgress(double fraction)
{
    kdReporterThrottle& throttle = kdReporterThrottle::instance();
    if (fraction >= 1.0) {
        if (!throttle.operationRunning)
            return;
        Q_EMIT signalProgress(fraction);
        throttle.operationRunning = false;
    } else if (fraction < 1.0) {
        if (throttle.millisecondsSinceSignal() < kdReporterThrottle::interval)
            return;
        if (!throttle.operationRunning) {
            const QPointer<kdReporter> self(this);
            const QString operation = throttle.operation; // a slot may start another
            Q_EMIT signalStartOperation(operation);
            throttle.operationRunning = true;
            throttle.noteSignal();
            if (!self)
                return;
        }
        Q_EMIT signalProgress(fraction);
    } else {
        return;
    }
    throttle.noteSignal();
}

void kdReporter::slotFinishOperation(const QString& text)
{
    kdReporterThrottle& throttle = kdReporterThrottle::instance();
    throttle.operationRunning = false;
    Q_EMIT signalFinishOperation(text);
    throttle.noteSignal();
}
