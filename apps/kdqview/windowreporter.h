#pragma once

#include <kdQCore/kdReporter>

#include <QElapsedTimer>

/// The window's end of the reporter network. What comes in goes out as signals, as with any kdReporter;
/// beyond that the window keeps being drawn, and can be asked to stop, while an operation reports its
/// progress.
///
/// Producers call the slots in the thread of the window. Every 50 ms of an operation they therefore let the
/// window handle its events; signalBusyChanged() tells it to take no input but Cancel until the operation
/// ends, so that nothing is changed under the hands of a running command.
class WindowReporter : public kdReporter {
    Q_OBJECT

public:
    using kdReporter::kdReporter;

    bool isBusy() const { return m_isBusy; }

public Q_SLOTS:
    void slotStartOperation(const QString& text) override;
    void slotProgress(double fraction) override;
    void slotFinishOperation(const QString& text) override;

Q_SIGNALS:
    void signalBusyChanged(bool isBusy);

private:
    void setBusy(bool isBusy);

    QElapsedTimer m_sinceEvents;
    bool m_isBusy = false;
};
