#pragma once

#include <QStringList>

/// What a command takes at one place, as its usage line says: "NAME COLUMN UNIT [COLUMN UNIT]... [as NEW]".
struct UsagePlace {
    QStringList keywords; ///< words that may be typed as they stand there
    QStringList values;   ///< in capitals: kinds of values
    QString after;        ///< the keyword that asks for the value; empty for a value that its place tells

    /// The place behind the arguments \a typed.
    static UsagePlace find(const QString& usage, const QStringList& typed);
};
