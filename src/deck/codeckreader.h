#pragma once

#include "codeckfinding.h"
#include "codecklayout.h"
#include "codeckoption.h"

#include <QCoreApplication>

#include <memory>

class QIODevice;

/// Reads an input deck option by option, gives back the cards that this library writes, and says what is
/// wrong with them.
///
/// \code
/// coDeckReader reader(file, coDeckLayout::find(file));
/// coDeckOption option;
/// while (reader.next(option))
///     if (auto table = option.card.dynamicCast<coFeDataTableCard>())
///         tables.append(table);
/// \endcode
///
/// The options follow each other without a gap: their bytes together are the deck. What this library does not
/// write passes as it is: an unknown keyword line with the lines that follow it, comments. Keywords are taken
/// in any case.
///
/// Card values are the doubles whose print is the deck's text: the card, written in the same layout, gives
/// the same bytes, if this library wrote them and no number was wider than its field. A card that was written
/// otherwise (another spelling, blanks elsewhere) comes back with its values. A "$" comment between the lines
/// of an option is passed over and belongs to it, but not to its card. Comments before a point load are its
/// own as far as cPointLoadCard can write them. Tables have no units.
///
/// Constant memory, tables aside: a card holds its values. Never throws. Not thread-safe. The device stays
/// the caller's, must be open for reading and outlive the reader.
class KDQCORE_EXPORT coDeckReader {
    Q_DECLARE_TR_FUNCTIONS(coDeckReader)

public:
    enum Wanted {
        Cards,
        NoCards ///< for checks: tables are read through in constant memory
    };

    coDeckReader(QIODevice& deck, const coDeckLayout& layout, Wanted wanted = Cards,
                 const coDeckFindingSink& sink = coDeckFindingSink());
    ~coDeckReader();
    Q_DISABLE_COPY(coDeckReader)

    /// The next option; false at the end of the deck and when reading fails. Findings go to the sink before
    /// this returns.
    bool next(coDeckOption& option);

    /// Whether the device failed, and what it said.
    bool hasFailed() const;
    QString errorText() const;

private:
    class Private;
    std::unique_ptr<Private> d;
};
