#pragma once

#include "deckbuffer.h"

#include <kdQCore/cFeAbstractDatCard>
#include <kdQCore/coFeTableCard>

using Values = QList<double>;
using Variable = coFeTableCard::IndependentVarUsingValues;

inline nMarc::e_TableVariableType type(int code)
{
    return static_cast<nMarc::e_TableVariableType>(code);
}

/// One of the layouts of a deck.
struct Layout {
    datExtensionMode mode;
    datFormat format;
};

inline const Layout fixedStandard{datExtensionMode::standard, datFormat::fixed};
inline const Layout fixedExtended{datExtensionMode::extended, datFormat::fixed};
inline const Layout freeStandard{datExtensionMode::standard, datFormat::free};
inline const Layout freeExtended{datExtensionMode::extended, datFormat::free};

struct Written {
    QByteArray deck;
    bool result = false;
};

inline Written write(const cFeAbstractDatCard& card, const Layout& layout, bool isInWriteMode = true)
{
    DeckBuffer buffer(layout.mode, layout.format);
    buffer.writer().setIsInWriteMode(isInWriteMode);
    const bool result = buffer.writer().writeCard(card);
    return {buffer.bytes(), result};
}
