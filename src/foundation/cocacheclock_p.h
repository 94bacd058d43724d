#pragma once

#include <kdqcore_export.h>

#include <QtGlobal>

/// The time by which cache items age, in milliseconds.
struct KDQCORE_EXPORT coCacheClock {
    using Clock = qint64 (*)();

    static qint64 now();
    /// Tests run on a clock of their own; null brings the steady system clock back.
    static void setClock(Clock clock);
};
