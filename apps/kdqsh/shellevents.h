#pragma once

#include "shellcall.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

/// Waits for what comes as signals, with progress, until something ends it, the time is over or the user
/// stops it.
///
/// \code
/// ShellEvents events(call, tr("Asking %1").arg(server), 5000);
/// connect(&socket, &QUdpSocket::readyRead, &socket, [&] { events.end(ShellEvents::Done); });
/// if (events.run() == ShellEvents::Done)
///     ...
/// \endcode
class ShellEvents {
public:
    enum Outcome { Waiting, Done, Closed, TimedOut };

    ShellEvents(const ShellCall& call, const QString& text, int milliseconds);
    Q_DISABLE_COPY(ShellEvents)

    /// A stop counts as TimedOut.
    Outcome run();
    /// The first outcome counts, also one before run().
    void end(Outcome outcome);

private:
    ShellOperation m_operation;
    QEventLoop m_loop;
    QTimer m_timer;
    QElapsedTimer m_elapsed;
    Outcome m_outcome = Waiting;
};
