#pragma once

#include "cfeabstractdatcard.h"

/// The key of the parameter section that lets the deck use tables: write it once, before the first table
/// card.
///
/// \code
/// writer.writeCard(coFeParameterSectionTable());
/// \endcode
///
/// Has no data of its own.
class KDQCORE_EXPORT coFeParameterSectionTable : public cFeAbstractDatCard {
public:
    /// Always returns true: a piece that could not be written shows in the writer's next operation and in its
    /// flush().
    bool write(CFEDatLineWriter& writer) const override;
    ~coFeParameterSectionTable() override;
};
