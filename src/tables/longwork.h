#pragma once

#include "kddatatable.h"

/// Counts the steps of a long computation and asks every so many of them whether to go on.
class LongWork {
public:
    LongWork(const kdDataTable::GoOn& goOn, double steps) : m_goOn(goOn), m_steps(steps) { }

    /// One step, or as many as \a count; false from when the answer was no.
    bool step(qint64 count = 1)
    {
        constexpr qint64 interval = 1 << 16; // some milliseconds
        m_sinceAsked += count;
        if (m_sinceAsked < interval)
            return !m_isStopped;
        m_done += static_cast<double>(m_sinceAsked);
        m_sinceAsked = 0;
        m_isStopped = m_isStopped || (m_goOn && !m_goOn(qMin(m_done / m_steps, 1.0)));
        return !m_isStopped;
    }

    bool isStopped() const { return m_isStopped; }

private:
    const kdDataTable::GoOn& m_goOn;
    double m_steps;
    double m_done = 0.0;
    qint64 m_sinceAsked = 0;
    bool m_isStopped = false;
};
