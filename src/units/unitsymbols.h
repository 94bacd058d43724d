#pragma once

#include <QString>

/// The place of a unit in the catalogue.
struct UnitNumber {
    int dimension = 0;
    int unitIndex = -1; ///< -1 where nothing was found
};

/// Finds units by the texts that people and files use for them.
namespace nUnitSymbols {

/// In any dimension: the first unit in catalogue order.
UnitNumber find(const QString& text);

/// Within one dimension, which may be any number.
UnitNumber find(const QString& text, int dimension);

} // namespace nUnitSymbols
