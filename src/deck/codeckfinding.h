#pragma once

#include <kdqcore_export.h>

#include <QCoreApplication>
#include <QString>

#include <functional>

/// What a reader of decks found wrong, and where. A plain value.
struct KDQCORE_EXPORT coDeckFinding {
    Q_DECLARE_TR_FUNCTIONS(coDeckFinding)

public:
    enum Severity {
        Warning, ///< the solver reads the deck, though perhaps not as it was meant
        Error    ///< the solver stops here, or reads something else
    };

    Severity severity = Error;
    qint64 line = 0; ///< counted from 1; 0 where the whole deck is meant
    int column = 0;  ///< in bytes, counted from 1; 0 where the whole line is meant
    QString option;  ///< "table 'yield_stress'"; empty outside of options
    QString text;    ///< what was found, and what was expected

    /// For people: "line 12, column 21: error: table 'yield_stress': x value expected, found 'abc'."
    QString toString() const;
};

using coDeckFindingSink = std::function<void(const coDeckFinding&)>;
