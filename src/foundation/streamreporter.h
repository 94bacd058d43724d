#pragma once

#include "kdreporter.h"

/// A reporter for programs without windows: prints what producers tell, errors on standard error, everything
/// else on standard output, in local 8-bit text and flushed line by line.
///
/// \code
/// streamReporter console(1); // levels 0 and 1
/// kdCommandDispatcher::I().startReportingTo(console);
/// \endcode
///
/// It prints instead of emitting signals, every call and at once: the throttle of kdReporter neither holds it
/// back nor is moved by it. Not thread-safe.
class KDQCORE_EXPORT streamReporter : public kdReporter {
    Q_OBJECT

public:
    /// Messages of a level above \a maximumLevel are not printed.
    explicit streamReporter(int maximumLevel, QObject* parent = nullptr);

public Q_SLOTS:
    void slotErrorMessage(const QString& text) override;
    void slotMessage(const QString& text, int level) override;
    void slotStartOperation(const QString& text) override;
    void slotProgress(double fraction) override;
    void slotFinishOperation(const QString& text) override;

private:
    int m_maximumLevel;
};
