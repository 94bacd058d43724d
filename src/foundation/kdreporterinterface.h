#pragma once

#include <kdqcore_export.h>

#include <QList>
#include <QSharedPointer>
#include <QString>

class kdReporter;

/// The producer's side of user-visible reporting: whatever works long or can fail derives from it and tells
/// what it does, without knowing who shows it.
///
/// \code
/// class Import : public kdReporterInterface {
/// public:
///     void run()
///     {
///         startOperation(tr("Reading the table"));
///         for (int row = 0; row < rows; ++row)
///             progress(double(row) / rows);
///         finishOperation(tr("Table read"));
///     }
/// };
///
/// streamReporter console(1);
/// Import import;
/// import.startReportingTo(console);
/// \endcode
///
/// One producer feeds any number of kdReporter objects, in the order in which they were attached. The link
/// has two ends and no owner: either end may go first, and both may be attached, detached or destroyed while
/// a message is being delivered. A reporter that is attached meanwhile gets the next message first.
///
/// Not thread-safe: producers and reporters of one network live in one thread.
class KDQCORE_EXPORT kdReporterInterface {
public:
    kdReporterInterface();
    explicit kdReporterInterface(kdReporter& reporter);
    virtual ~kdReporterInterface();
    Q_DISABLE_COPY(kdReporterInterface)

    virtual void startReportingTo(kdReporter& reporter);
    /// Takes over the receivers that \a other has now; its later changes are not followed.
    virtual void startReportingTo(kdReporterInterface& other);
    void stopReportingTo(kdReporter& reporter);
    /// Detaches from every receiver that \a other has now.
    void stopReportingTo(kdReporterInterface& other);

    void errorMessage(const QString& text) const;
    /// The higher the level, the less important the text.
    void message(const QString& text, int level) const;
    void startOperation(const QString& text) const;
    /// \a fraction of the running operation, 0 to 1. Cheap enough for inner loops: reporters drop most calls.
    void progress(double fraction) const;
    void finishOperation(const QString& text) const;

protected:
    QList<kdReporter*> messageReceivers() const;

private:
    friend class kdReporter;
    using Receivers = QList<kdReporter*>;

    template <typename Deliver>
    void deliver(Deliver deliver) const;
    void addReceiver(kdReporter& reporter);
    void removeReceiver(kdReporter& reporter);

    /// Outlives the object while a message is being delivered.
    QSharedPointer<Receivers> m_receivers;
};
