#pragma once

#include <kdqcore_export.h>

#include <QString>

/// What all reporters of the process share: the operation that the user is following, and when a signal last
/// told about it.
struct KDQCORE_EXPORT kdReporterThrottle {
    using Clock = qint64 (*)();

    static kdReporterThrottle& instance();
    /// Tests run on a clock of their own; null brings the steady system clock back.
    static void setClock(Clock clock);

    qint64 millisecondsSinceSignal() const { return now() - lastSignal; }
    void noteSignal() { lastSignal = now(); }

    static constexpr qint64 interval = 1000;

    bool operationRunning = false;
    QString operation;
    qint64 lastSignal = 0;

private:
    static qint64 now();
};
