#include "hashcombine.h"
#include "kddatacolumn.h"

#include <algorithm>

kdDataColumn::kdDataColumn() : m_unitSystem(kdUnitSystem::None, -1) { }

kdDataColumn::kdDataColumn(kdUnitSystem::Dimension dimension, Usage usage, const QString& name)
    : m_name(name), m_usage(usage)
{
    setType(dimension);
}

kdDataColumn::kdDataColumn(const kdDataColumn& other)
{
    *this = other;
}

kdDataColumn& kdDataColumn::operator=(const kdDataColumn& other)
{
    m_values = other.m_values;
    m_name = other.m_name;
    m_title = other.m_title;
    m_unitSystem = other.m_unitSystem;
    m_type = other.m_type;
    m_usage = other.m_usage;
    m_id = other.m_id;
    m_red = other.m_red;
    m_green = other.m_green;
    m_blue = other.m_blue;
    m_hasColor = other.m_hasColor;
    m_visible = other.m_visible;
    m_minimum.store(other.minimum(), std::memory_order_relaxed);
    m_maximum.store(other.maximum(), std::memory_order_relaxed);
    m_order.store(other.m_order.load(std::memory_order_relaxed), std::memory_order_relaxed);
    return *this;
}

kdDataColumn::~kdDataColumn() = default;

kdDataColumn* kdDataColumn::getCopy() const
{
    return new kdDataColumn(*this);
}

void kdDataColumn::clear()
{
    kdDataColumn::operator=(kdDataColumn());
}

bool kdDataColumn::operator==(const kdDataColumn& other) const
{
    // std::equal, because QVector takes a vector that shares its data for equal even where it holds a NaN.
    return m_unitSystem == other.m_unitSystem && m_type == other.m_type && m_usage == other.m_usage
        && m_title == other.m_title && m_name == other.m_name
        && std::equal(m_values.cbegin(), m_values.cend(), other.m_values.cbegin(), other.m_values.cend());
}

uint qHash(const kdDataColumn& column, uint seed)
{
    HashCombine hash(seed);
    hash.add(column.getUnitSystem()).add(int(column.getType())).add(int(column.getUsage()));
    hash.add(column.title()).add(column.name());
    for (double value : column.values())
        hash.add(value);
    return hash.result();
}

qint64 kdDataColumn::memoryFootprint() const
{
    const auto bytes = [](int count, std::size_t each) { return qint64(count) * qint64(each); };
    return qint64(sizeof *this) + bytes(m_values.capacity(), sizeof(double))
        + bytes(m_name.capacity() + m_title.capacity(), sizeof(QChar));
}

void kdDataColumn::setRGBColor(int red, int green, int blue)
{
    m_red = red;
    m_green = green;
    m_blue = blue;
    m_hasColor = true;
}

void kdDataColumn::removeRGBColor()
{
    setRGBColor(0, 0, 0);
    m_hasColor = false;
}

kdDataColumn::Type kdDataColumn::typeOfDimension(kdUnitSystem::Dimension dimension)
{
    switch (dimension) {
    case kdUnitSystem::Time:
        return TypeTime;
    case kdUnitSystem::Length:
        return TypeLength;
    case kdUnitSystem::Temperature:
        return TypeTemperature;
    case kdUnitSystem::Stress:
        return TypeStress;
    default:
        return TypeUnspecified;
    }
}

void kdDataColumn::setType(kdUnitSystem::Dimension dimension)
{
    m_unitSystem = kdUnitSystem(dimension, 0);
    m_type = typeOfDimension(dimension);
}

void kdDataColumn::setUnit(const kdUnitSystem& unitSystem)
{
    if (unitSystem.dimension() != m_unitSystem.dimension())
        m_type = typeOfDimension(unitSystem.dimension());
    m_unitSystem = unitSystem;
}

int kdDataColumn::getUnitIndex() const
{
    return m_unitSystem.unitIndex();
}

void kdDataColumn::setUnitIndex(int unitIndex)
{
    m_unitSystem.setUnitIndex(unitIndex);
}

bool kdDataColumn::toUnit(const kdUnitSystem& unitSystem)
{
    if (!m_unitSystem.canConvertTo(unitSystem))
        return false;
    if (m_unitSystem == unitSystem)
        return true;
    m_unitSystem.convert(m_values.data(), m_values.size(), unitSystem);
    m_unitSystem = unitSystem;
    generateMinMax();
    invalidateMonotonicity();
    return true;
}

bool kdDataColumn::toUnit(int unitIndex)
{
    return toUnit(kdUnitSystem(m_unitSystem.dimension(), unitIndex));
}

bool kdDataColumn::toViewUnit()
{
    return toUnit(kdUnitSystem::viewUnit(m_unitSystem.dimension()));
}

bool kdDataColumn::toSIUnit()
{
    return toUnit(kdUnitSystem::siUnit(m_unitSystem.dimension()));
}
