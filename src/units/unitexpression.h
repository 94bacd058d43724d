#pragma once

#include <QString>

/// Reads unit symbols as people type them, and gives texts that mean the same unit the same key.
///
/// A symbol is a product and quotient of units with whole exponents: "W/(m²·K)", "W m^-2 K^-1", "W/m2K". The
/// key lists the units above and below the fraction line in a fixed order; nothing is cancelled, so kg/kg
/// stays what it is.
namespace nUnitExpression {

/// Empty where the text is no unit expression at all. Units unknown to the catalogue are kept.
QString key(const QString& text);

/// Everything after the first "/" is below the fraction line, as in "W/m*K", which strictly means something
/// else.
QString lenientKey(const QString& text);

} // namespace nUnitExpression
