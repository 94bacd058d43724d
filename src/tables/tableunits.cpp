#include "tableunits.h"

#include <kdQCore/kdUnitValue>

namespace tableUnits {

namespace {

bool hasUnit(const kdUnitSystem& unitSystem)
{
    return unitSystem.dimension() != kdUnitSystem::None && unitSystem.isValid();
}

bool compatible(const kdUnitSystem& from, const kdUnitSystem& to)
{
    return from.canConvertTo(to) || !hasUnit(from) || !hasUnit(to);
}

} // namespace

bool convert(double value, const kdUnitSystem& from, const kdUnitSystem& to, double& converted)
{
    converted = from.convert(value, to);
    return compatible(from, to);
}

bool convert(const kdUnitValue& value, const kdUnitSystem& to, double& converted)
{
    return convert(value.value(), value.unitSystem(), to, converted);
}

bool convert(const kdDataColumn& column, const kdUnitSystem& to, QVector<double>& converted)
{
    converted = column.values();
    column.getUnitSystem().convert(converted.data(), converted.size(), to);
    return compatible(column.getUnitSystem(), to);
}

} // namespace tableUnits
