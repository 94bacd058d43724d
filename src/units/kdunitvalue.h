#pragma once

#include "kdunitsystem.h"

#include <QLocale>

QT_BEGIN_NAMESPACE
class QXmlStreamReader;
class QXmlStreamWriter;
QT_END_NAMESPACE

/// A number with its physical unit.
///
/// \code
/// const kdUnitValue step(0.5, kdUnitSystem(kdUnitSystem::Time, 3)); // half an hour
/// step.toSIUnit().value();       // 1800
/// step.toViewUnit().toString();  // "1800 s"
/// \endcode
///
/// Values compare by what they mean, after conversion to the SI unit: 25.4 mm equals 1 in. Values of
/// different dimensions are unequal and ordered by the number of their dimension; a value whose unit is not
/// valid is unequal to every value that has one. As for any double, NaN equals nothing.
///
/// A small value type.
class KDQCORE_EXPORT kdUnitValue {
public:
    /// The plain number 0.
    constexpr kdUnitValue() = default;
    constexpr kdUnitValue(double value,
                          const kdUnitSystem& unit = kdUnitSystem()) // NOLINT: numbers are values
        : m_value(value), m_unit(unit)
    {
    }

    constexpr double value() const { return m_value; }
    constexpr kdUnitSystem unitSystem() const { return m_unit; }
    constexpr kdUnitSystem::Dimension dimension() const { return m_unit.dimension(); }

    /// Keeps the unit.
    void setValue(double value) { m_value = value; }
    /// Keeps the number: nothing is converted, see toUnit().
    void setUnitSystem(const kdUnitSystem& unit) { m_unit = unit; }

    /// The same quantity in another unit; unchanged, with its own unit, where it cannot be converted.
    kdUnitValue toUnit(const kdUnitSystem& unit) const;
    kdUnitValue toSIUnit() const;
    /// In the unit in which the process shows values of this dimension.
    kdUnitValue toViewUnit() const;
    /// The number in another unit; the own number where it cannot be converted.
    double valueIn(const kdUnitSystem& unit) const { return m_unit.convert(m_value, unit); }

    /// "12.5 mm", whatever the user's locale: as few digits as read back to the same number; no symbol for
    /// plain numbers.
    QString toString() const;
    /// The same for people.
    QString toLocalizedString(const QLocale& locale = QLocale()) const;

    /// Writes \code <elementName dimension="4" unit="mm">12.5</elementName> \endcode
    void writeXML(QXmlStreamWriter& writer, const QString& elementName) const;

    /// Reads what writeXML() wrote, from the start of the element (or the start of the document) to its end.
    ///
    /// Files of other versions are understood as far as can be: the symbol decides within the dimension;
    /// where the dimension is missing or unknown, the symbol alone does; where the symbol is missing, the SI
    /// unit of the dimension is meant; other attributes and child elements are passed over. On any failure
    /// (another element, no number, an unknown unit) the error is raised on \a reader, naming the element,
    /// this value stays as it is, and the result is false.
    bool readXML(QXmlStreamReader& reader, const QString& elementName);

private:
    double m_value = 0.0;
    kdUnitSystem m_unit;
};

KDQCORE_EXPORT bool operator==(const kdUnitValue& a, const kdUnitValue& b);
KDQCORE_EXPORT bool operator<(const kdUnitValue& a, const kdUnitValue& b);
KDQCORE_EXPORT bool operator<=(const kdUnitValue& a, const kdUnitValue& b);

inline bool operator!=(const kdUnitValue& a, const kdUnitValue& b)
{
    return !(a == b);
}

inline bool operator>(const kdUnitValue& a, const kdUnitValue& b)
{
    return b < a;
}

inline bool operator>=(const kdUnitValue& a, const kdUnitValue& b)
{
    return b <= a;
}

KDQCORE_EXPORT uint qHash(const kdUnitValue& value, uint seed = 0);
KDQCORE_EXPORT QDebug operator<<(QDebug debug, const kdUnitValue& value);

Q_DECLARE_TYPEINFO(kdUnitValue, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(kdUnitValue)
