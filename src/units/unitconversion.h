#pragma once

#include "unitcatalogue.h"

/// The one step from a unit to another of the same dimension: (value * factor + offset) / divisor.
///
/// All three are whole numbers wherever the units allow, so that conversions whose result is a short decimal
/// number give just that number: 26.85 °C is 300 K, 212 °F is 100 °C, 1234 mm is 1.234 m.
class UnitConversion {
public:
    UnitConversion(const nUnitCatalogue::Unit& from, const nUnitCatalogue::Unit& to);

    double operator()(double value) const;

private:
    double m_factor;
    double m_offset = 0.0;
    double m_divisor;
    bool m_isShifted;
};
