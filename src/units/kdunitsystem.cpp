#include "kdunitsystem.h"

#include "unitcatalogue.h"
#include "unitconversion.h"
#include "unitsymbols.h"

#include <QCoreApplication>
#include <QDebug>
#include <QHash>

#include <algorithm>
#include <atomic>
#include <utility>

using nUnitCatalogue::DimensionEntry;
using nUnitCatalogue::findDimension;
using nUnitCatalogue::findUnit;
using nUnitCatalogue::Unit;

namespace {

using ViewUnits = std::atomic<int>[nUnitCatalogue::dimensionCount];

// Offsets from the default, so that the array needs no initialisation at run time.
ViewUnits viewUnitOffsets;

QString translated(const char* text)
{
    return QCoreApplication::translate("kdUnitSystem", text);
}

QString comparableName(const QString& name)
{
    return QString(name).remove(QLatin1Char(' ')).toLower();
}

void setOk(bool* ok, bool value)
{
    if (ok)
        *ok = value;
}

} // namespace

kdUnitSystem kdUnitSystem::siUnit(Dimension dimension)
{
    return {dimension, 0};
}

kdUnitSystem kdUnitSystem::viewUnit(Dimension dimension)
{
    const DimensionEntry* entry = findDimension(dimension);
    if (!entry)
        return {dimension, NoUnit};
    return {dimension, entry->viewUnit + viewUnitOffsets[dimension].load(std::memory_order_relaxed)};
}

void kdUnitSystem::setViewUnit(Dimension dimension, int unitIndex)
{
    if (findUnit(dimension, unitIndex))
        viewUnitOffsets[dimension].store(unitIndex - findDimension(dimension)->viewUnit,
                                         std::memory_order_relaxed);
}

void kdUnitSystem::resetViewUnits()
{
    for (std::atomic<int>& offset : viewUnitOffsets)
        offset.store(0, std::memory_order_relaxed);
}

kdUnitSystem kdUnitSystem::fromSymbol(const QString& symbol, bool* ok)
{
    const UnitNumber found = nUnitSymbols::find(symbol);
    setOk(ok, found.unitIndex != NoUnit);
    if (found.unitIndex == NoUnit)
        return {};
    return {static_cast<Dimension>(found.dimension), found.unitIndex};
}

kdUnitSystem kdUnitSystem::fromSymbol(const QString& symbol, Dimension dimension, bool* ok)
{
    const UnitNumber found = nUnitSymbols::find(symbol, dimension);
    setOk(ok, found.unitIndex != NoUnit);
    return {dimension, found.unitIndex};
}

int kdUnitSystem::dimensionCount()
{
    return nUnitCatalogue::dimensionCount;
}

bool kdUnitSystem::isDimension(int number)
{
    return findDimension(number) != nullptr;
}

int kdUnitSystem::unitCount(Dimension dimension)
{
    const DimensionEntry* entry = findDimension(dimension);
    return entry ? entry->unitCount : 0;
}

QString kdUnitSystem::dimensionName(Dimension dimension)
{
    const DimensionEntry* entry = findDimension(dimension);
    return entry ? QString::fromUtf8(entry->name) : QString();
}

QString kdUnitSystem::translatedDimensionName(Dimension dimension)
{
    const DimensionEntry* entry = findDimension(dimension);
    return entry ? translated(entry->name) : QString();
}

kdUnitSystem::Dimension kdUnitSystem::dimensionFromName(const QString& name, bool* ok)
{
    const QString wanted = comparableName(name);
    for (int number = 0; number < dimensionCount(); ++number) {
        const Dimension dimension = static_cast<Dimension>(number);
        if (comparableName(dimensionName(dimension)) == wanted) {
            setOk(ok, true);
            return dimension;
        }
    }
    setOk(ok, false);
    return None;
}

bool kdUnitSystem::isValid() const
{
    return findUnit(m_dimension, m_unitIndex) != nullptr;
}

QString kdUnitSystem::symbol() const
{
    const Unit* unit = findUnit(m_dimension, m_unitIndex);
    return unit ? QString::fromUtf8(unit->symbol) : QString();
}

QString kdUnitSystem::name() const
{
    const Unit* unit = findUnit(m_dimension, m_unitIndex);
    return unit ? QString::fromUtf8(unit->name) : QString();
}

QString kdUnitSystem::translatedName() const
{
    const Unit* unit = findUnit(m_dimension, m_unitIndex);
    return unit ? translated(unit->name) : QString();
}

bool kdUnitSystem::canConvertTo(const kdUnitSystem& target) const
{
    return m_dimension == target.m_dimension && isValid() && target.isValid();
}

double kdUnitSystem::convert(double value, const kdUnitSystem& target) const
{
    convert(&value, 1, target);
    return value;
}

void kdUnitSystem::convert(double* values, int count, const kdUnitSystem& target) const
{
    if (m_unitIndex == target.m_unitIndex || !canConvertTo(target))
        return;
    const UnitConversion conversion(*findUnit(m_dimension, m_unitIndex),
                                    *findUnit(target.m_dimension, target.m_unitIndex));
    std::transform(values, values + std::max(count, 0), values, conversion);
}

uint qHash(const kdUnitSystem& unit, uint seed)
{
    return qHash(std::make_pair(static_cast<int>(unit.dimension()), unit.unitIndex()), seed);
}

QDebug operator<<(QDebug debug, const kdUnitSystem& unit)
{
    const QDebugStateSaver saver(debug);
    debug.nospace().noquote() << "kdUnitSystem(" << static_cast<int>(unit.dimension()) << ", "
                              << unit.unitIndex();
    if (unit.isValid())
        debug << ", " << unit.symbol();
    return debug << ')';
}
