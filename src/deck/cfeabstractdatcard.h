#pragma once

#include <kdqcore_export.h>

class CFEDatLineWriter;

/// One option block of a deck: a keyword line and its data lines.
///
/// A card holds the values of its option and knows its lines; the writer knows format and widths. So a card
/// comes out right in every layout. Cards are values: fill one with setters, then hand it to
/// CFEDatLineWriter::writeCard.
///
/// \code
/// class RestartCard : public cFeAbstractDatCard {
/// public:
///     bool write(CFEDatLineWriter& writer) const override
///     {
///         bool ok = writer.writeKeywordLine("restart");
///         ok = writer.writeInt(1) && ok;
///         return writer.writeLineBreak() && ok;
///     }
/// };
/// \endcode
///
/// Not thread-safe. A card owns its values, never the writer.
class KDQCORE_EXPORT cFeAbstractDatCard {
public:
    /// Writes the card's lines. A card does not stop at a failed piece; it returns true only if every piece
    /// was written and its own checks passed.
    virtual bool write(CFEDatLineWriter& writer) const = 0;

    virtual ~cFeAbstractDatCard();

protected:
    cFeAbstractDatCard() = default;
    cFeAbstractDatCard(const cFeAbstractDatCard&) = default;
    cFeAbstractDatCard& operator=(const cFeAbstractDatCard&) = default;
};
