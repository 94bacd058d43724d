#include "kddatatable.h"

#include <algorithm>

namespace {

constexpr int noUnit = -1;

} // namespace

void kdDataTable::toViewUnit()
{
    for (const ColumnPointer& column : m_columns)
        column->toViewUnit();
}

void kdDataTable::toSIUnit()
{
    for (const ColumnPointer& column : m_columns)
        column->toSIUnit();
}

void kdDataTable::toUnit(int unitX, int unitY)
{
    xToUnit(unitX);
    yToUnit(unitY);
}

void kdDataTable::toUnit(const kdUnitSystem& unitX, const kdUnitSystem& unitY)
{
    xToUnit(unitX);
    yToUnit(unitY);
}

bool kdDataTable::xToViewUnit()
{
    return column(0) && column(0)->toViewUnit();
}

bool kdDataTable::yToViewUnit()
{
    return column(1) && column(1)->toViewUnit();
}

bool kdDataTable::xToUnit(int unit)
{
    return column(0) && column(0)->toUnit(unit);
}

bool kdDataTable::xToUnit(const kdUnitSystem& unit)
{
    return column(0) && column(0)->toUnit(unit);
}

bool kdDataTable::yToUnit(int unit)
{
    return column(1) && column(1)->toUnit(unit);
}

bool kdDataTable::yToUnit(const kdUnitSystem& unit)
{
    return column(1) && column(1)->toUnit(unit);
}

bool kdDataTable::allYToUnit(int unit)
{
    bool all = true;
    for (int i = 1; i < columns(); ++i)
        all = column(i)->toUnit(unit) && all;
    return all;
}

bool kdDataTable::allYToUnit(const kdUnitSystem& unit)
{
    bool all = true;
    for (int i = 1; i < columns(); ++i)
        all = column(i)->toUnit(unit) && all;
    return all;
}

bool kdDataTable::unitX(int& unit) const
{
    unit = column(0) ? column(0)->getUnitIndex() : noUnit;
    return column(0) != nullptr;
}

bool kdDataTable::unitY(int& unit) const
{
    unit = column(1) ? column(1)->getUnitIndex() : noUnit;
    return column(1) != nullptr;
}

void kdDataTable::setUnitX(int unit)
{
    if (kdDataColumn* x = column(0))
        x->setUnitIndex(unit);
}

void kdDataTable::setUnitX(const kdUnitSystem& unit)
{
    if (kdDataColumn* x = column(0))
        x->setUnit(unit);
}

void kdDataTable::setUnitY(int unit)
{
    if (kdDataColumn* y = column(1))
        y->setUnitIndex(unit);
}

void kdDataTable::setUnitY(const kdUnitSystem& unit)
{
    if (kdDataColumn* y = column(1))
        y->setUnit(unit);
}

kdUnitSystem kdDataTable::xUnitSystem() const
{
    return column(0) ? column(0)->getUnitSystem() : kdUnitSystem(kdUnitSystem::None, noUnit);
}

kdUnitSystem kdDataTable::yUnitSystem() const
{
    return column(1) ? column(1)->getUnitSystem() : kdUnitSystem(kdUnitSystem::None, noUnit);
}

bool kdDataTable::allColumnsUnitSystemNone() const
{
    return std::all_of(m_columns.begin(), m_columns.end(), [](const ColumnPointer& column) {
        return column->getUnitSystem().dimension() == kdUnitSystem::None;
    });
}
