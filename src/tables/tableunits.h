#pragma once

#include "kddatacolumn.h"

class kdUnitValue;

/// Conversion between columns. Where either side has no unit, the number is taken as it is; otherwise both
/// must be of one dimension.
namespace tableUnits {

bool convert(double value, const kdUnitSystem& from, const kdUnitSystem& to, double& converted);
bool convert(const kdUnitValue& value, const kdUnitSystem& to, double& converted);
bool convert(const kdDataColumn& column, const kdUnitSystem& to, QVector<double>& converted);

} // namespace tableUnits
