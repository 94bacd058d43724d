#pragma once

#include "cotakennames.h"

/// Checks the name that a user typed, and corrects it. Thread-safe.
///
/// \code
/// QStringList remarks;
/// const QString name = coCheckAndCorrectName::checkAndCorrectName(
///     text, taken, coCheckAndCorrectName::eInternalName, &remarks);
/// if (!remarks.isEmpty())
///     warn(coCheckAndCorrectName::wrapTextForPreferredLength(remarks.join(QLatin1Char('\n')), 60));
/// \endcode
class KDQCORE_EXPORT coCheckAndCorrectName {
public:
    /// Whose rules the name keeps, and among which names it must be free.
    enum e_Mode : int {
        /// Any text in one line: control characters become blanks, and blanks at both ends go. Then as
        /// nCreateObjectName::createUniqueDisplayName().
        eDisplayName = 0,
        /// As nCreateObjectName::createUniqueInternalName().
        eInternalName = 1
    };

    /// The name itself where nothing is wrong with it. What was wrong is added to \a remarks, one translated
    /// sentence each.
    static QString checkAndCorrectName(const QString& name, const coTakenNames& takenNames,
                                       e_Mode mode = eDisplayName, QStringList* remarks = nullptr);

    /// Inserts line breaks into \a text, so that no line shows more than \a length characters; they stand
    /// behind blanks or, in a longer word, where its line is full. No character is taken away, so blanks in
    /// front of a break remain at the end of their line. Line breaks of the text are kept. A length below 1
    /// leaves the text as it is.
    static QString wrapTextForPreferredLength(const QString& text, int length);
};
