#pragma once

#include "codecklayout.h"
#include "codeckoption.h"

#include <QCoreApplication>
#include <QStringList>
#include <QVector>

class QIODevice;

/// Compares two input decks option by option.
///
/// Options meet by what they are called ("table 'k'", "solver", an unknown keyword line), the n-th of a name
/// with the n-th. Their numbers are compared as numbers, within a relative tolerance, whole ones exactly;
/// everything else as text. Layouts do not count: a deck in fixed columns equals the same one in free format,
/// as far as the narrower fields show its digits and the tolerance allows for that. Comments do not count.
///
/// \code
/// coDeckCompare compare(1e-5);
/// if (!compare.run(first, coDeckLayout::find(first), second, coDeckLayout::find(second)))
///     show(compare.report());
/// \endcode
///
/// Both devices must be open for reading, seekable and two different ones; they are read twice, in memory
/// that grows with the number of options only. Not thread-safe.
class KDQCORE_EXPORT coDeckCompare {
    Q_DECLARE_TR_FUNCTIONS(coDeckCompare)

public:
    /// Of one option, the first difference and how many there are.
    struct Difference {
        enum Kind {
            Changed,
            OnlyInFirst,
            OnlyInSecond,
            Moved ///< the same, at another place among the options
        };
        Kind kind = Changed;
        QString option;
        qint64 firstLine = 0; ///< counted from 1; 0 in the deck that lacks the option
        qint64 secondLine = 0;
        QString first; ///< the words that differ, empty where one deck has no more
        QString second;
        qint64 count = 1;           ///< words of the option that differ
        double largestRelative = 0; ///< of the numbers among them
    };

    /// \a tolerance: |a - b| up to tolerance * max(|a|, |b|) is no difference.
    explicit coDeckCompare(double tolerance = 0.0) : m_tolerance(tolerance) { }

    /// Whether the decks say the same; false, too, where a device fails.
    bool run(QIODevice& first, const coDeckLayout& firstLayout, QIODevice& second,
             const coDeckLayout& secondLayout);

    /// In the order of the first deck, what only the second has at the end.
    const QVector<Difference>& differences() const { return m_differences; }
    /// One or three lines each, the option's name in front; empty where nothing differs.
    QString report() const;
    /// What a device said that failed.
    QString errorText() const { return m_errorText; }

private:
    struct Deck {
        QIODevice* device;
        coDeckLayout layout;
        QVector<coDeckOption> options;
    };

    bool readOptions(Deck& deck);
    QVector<int> match(const Deck& first, const Deck& second);
    void findMoved(const Deck& first, const Deck& second, const QVector<int>& partners);
    void compareOption(const Deck& first, const coDeckOption& a, const Deck& second, const coDeckOption& b);
    bool isSame(const QByteArray& a, const QByteArray& b, double& relative) const;

    double m_tolerance;
    QVector<Difference> m_differences;
    QString m_errorText;
};
