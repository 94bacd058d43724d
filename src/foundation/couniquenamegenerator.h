#pragma once

#include "cotakennames.h"

#include <QHash>
#include <QSet>

/// Hands out numbered names, fast also for very many.
///
/// \code
/// coUniqueNameGenerator names(QLatin1Char('-'));
/// names.reserve(existingNames);
/// names.next(QStringLiteral("Particle")); // "Particle-1", the next time "Particle-2"
/// \endcode
///
/// Every base has a counter of its own, which begins at 1 and only rises. A number that would make a reserved
/// name, or one that was handed out before, is passed over. Letter case makes no difference, neither between
/// bases nor between names. Names are not checked or cut: keep a base that shall make internal names short
/// enough for its counters. The time for a name does not grow with their number; the memory does.
///
/// A value type; not thread-safe.
class KDQCORE_EXPORT coUniqueNameGenerator {
public:
    /// A null \a separator sets the number directly behind the base.
    explicit coUniqueNameGenerator(QChar separator = QLatin1Char('-'));

    QChar separator() const { return m_separator; }
    /// next() will hand out none of these, display or internal.
    void reserve(const coTakenNames& names);
    /// An empty \a base becomes the translated "Name".
    QString next(const QString& base);

private:
    QChar m_separator;
    QHash<QString, qint64> m_counters; // by folded base
    QSet<QString> m_taken;             // folded
};
