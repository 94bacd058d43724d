#include "shellevents.h"

ShellEvents::ShellEvents(const ShellCall& call, const QString& text, int milliseconds)
    : m_operation(call, text)
{
    constexpr int interval = 100; // ms, the longest that Ctrl-C waits for an answer
    m_elapsed.start();
    QObject::connect(&m_timer, &QTimer::timeout, &m_loop, [this, &call, milliseconds] {
        const double done = static_cast<double>(m_elapsed.elapsed()) / milliseconds;
        if (!call.goOn(done) || done >= 1.0)
            end(TimedOut);
    });
    m_timer.start(interval);
}

ShellEvents::Outcome ShellEvents::run()
{
    if (m_outcome == Waiting)
        m_loop.exec();
    return m_outcome;
}

void ShellEvents::end(Outcome outcome)
{
    if (m_outcome == Waiting)
        m_outcome = outcome;
    m_loop.quit();
}
