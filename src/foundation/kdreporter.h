#pragma once

#include <kdqcore_export.h>

#include <QList>
#include <QObject>

class kdReporterInterface;

/// The receiver's side of user-visible reporting: turns what producers tell into signals, for a dialog, a
/// status bar or a console.
///
/// \code
/// kdReporter reporter;
/// QObject::connect(&reporter, &kdReporter::signalProgress, &bar, &ProgressBar::setFraction);
/// import.startReportingTo(reporter);
/// \endcode
///
/// Progress is throttled: between two signals of an operation lies at least a second, except for a fraction
/// of 1 or more, which always comes through while an operation runs and ends it. A start within a running
/// operation is ignored. A fraction that comes when none runs announces the last operation anew.
/// This state is shared by all reporters of the process, on purpose: the user follows one operation at a
/// time.
///
/// Not thread-safe; lives in the thread of its producers, which call the slots directly. Owns no producer.
class KDQCORE_EXPORT kdReporter : public QObject {
    Q_OBJECT

public:
    explicit kdReporter(QObject* parent = nullptr);
    ~kdReporter() override;

    /// The same link as kdReporterInterface::startReportingTo, made from this end.
    void startReceivingFrom(kdReporterInterface& source);
    void stopReceivingFrom(kdReporterInterface& source);

public Q_SLOTS:
    virtual void slotErrorMessage(const QString& text);
    virtual void slotMessage(const QString& text, int level);
    virtual void slotStartOperation(const QString& text);
    /// \a fraction 0 to 1; a NaN is dropped.
    virtual void slotProgress(double fraction);
    virtual void slotFinishOperation(const QString& text);

Q_SIGNALS:
    void signalErrorMessage(const QString& text);
    void signalMessage(const QString& text, int level);
    void signalStartOperation(const QString& text);
    void signalProgress(double fraction);
    void signalFinishOperation(const QString& text);

private:
    friend class kdReporterInterface;

    QList<kdReporterInterface*> m_sources;
};
