#include "kdreporterinterface.h"

#include "kdreporter.h"

kdReporterInterface::kdReporterInterface() : m_receivers(QSharedPointer<Receivers>::create()) { }

kdReporterInterface::kdReporterInterface(kdReporter& reporter) : kdReporterInterface()
{
    kdReporterInterface::startReportingTo(reporter);
}

kdReporterInterface::~kdReporterInterface()
{
    const Receivers receivers = *m_receivers;
    for (kdReporter* receiver : receivers)
        receiver->stopReceivingFrom(*this);
    m_receivers->clear();
}

void kdReporterInterface::startReportingTo(kdReporter& reporter)
{
    reporter.startReceivingFrom(*this);
}

void kdReporterInterface::startReportingTo(kdReporterInterface& other)
{
    const Receivers receivers = *other.m_receivers;
    for (kdReporter* receiver : receivers)
        receiver->startReceivingFrom(*this);
}

void kdReporterInterface::stopReportingTo(kdReporter& reporter)
{
    reporter.stopReceivingFrom(*this);
}

void kdReporterInterface::stopReportingTo(kdReporterInterface& other)
{
    const Receivers receivers = *other.m_receivers;
    for (kdReporter* receiver : receivers)
        receiver->stopReceivingFrom(*this);
}

void kdReporterInterface::errorMessage(const QString& text) const
{
    deliver([text](kdReporter& receiver) { receiver.slotErrorMessage(text); });
}

void kdReporterInterface::message(const QString& text, int level) const
{
    deliver([text, level](kdReporter& receiver) { receiver.slotMessage(text, level); });
}

void kdReporterInterface::startOperation(const QString& text) const
{
    deliver([text](kdReporter& receiver) { receiver.slotStartOperation(text); });
}

void kdReporterInterface::progress(double fraction) const
{
    deliver([fraction](kdReporter& receiver) { receiver.slotProgress(fraction); });
}

void kdReporterInterface::finishOperation(const QString& text) const
{
    deliver([text](kdReporter& receiver) { receiver.slotFinishOperation(text); });
}

QList<kdReporter*> kdReporterInterface::messageReceivers() const
{
    return *m_receivers;
}

template <typename Deliver>
void kdReporterInterface::deliver(Deliver deliver) const
{
    if (m_receivers->isEmpty())
        return;
    // Any receiver may change the list or destroy this object: from here on only local copies are touched.
    const QSharedPointer<Receivers> current = m_receivers;
    const Receivers receivers = *current;
    for (kdReporter* receiver : receivers)
        if (current->contains(receiver))
            deliver(*receiver);
}

void kdReporterInterface::addReceiver(kdReporter& reporter)
{
    if (!m_receivers->contains(&reporter))
        m_receivers->append(&reporter);
}

void kdReporterInterface::removeReceiver(kdReporter& reporter)
{
    m_receivers->removeAll(&reporter);
}
