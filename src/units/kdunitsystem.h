#pragma once

#include <kdqcore_export.h>

#include <QMetaType>
#include <QString>

QT_BEGIN_NAMESPACE
class QDebug;
QT_END_NAMESPACE

/// A physical dimension and one of its units.
///
/// The pair (dimension, unit index) that columns, values and settings carry. Index 0 is always the SI unit of
/// the dimension; -1 means "no unit". A pair may be anything a file held: one that names no unit of the
/// catalogue is not valid, has empty texts and converts nothing, and nothing that is done with it fails.
///
/// \code
/// const kdUnitSystem celsius = kdUnitSystem::fromSymbol(QStringLiteral("degC"), kdUnitSystem::Temperature);
/// const double kelvin = celsius.convert(26.85, kdUnitSystem::siUnit(kdUnitSystem::Temperature)); // 300
/// \endcode
///
/// A small value type. The catalogue is constant; the view units are process-wide and may be read and set
/// from any thread.
class KDQCORE_EXPORT kdUnitSystem {
public:
    /// The numbers are stored in files: they are added to, never reused or reordered.
    enum Dimension : int {
        None = 0,                     ///< plain numbers: -, %
        Mass = 1,                     ///< kg, g, t, lb
        Angle = 2,                    ///< rad, °
        Time = 3,                     ///< s, ms, min, h
        Length = 4,                   ///< m, mm, cm, µm, in, ft
        Area = 5,                     ///< m², mm², cm², in²
        Volume = 6,                   ///< m³, mm³, cm³, l, in³
        Velocity = 7,                 ///< m/s, mm/s, mm/min, m/min, in/s
        Acceleration = 8,             ///< m/s², mm/s²
        AngularVelocity = 9,          ///< rad/s, 1/min (revolutions), °/s
        Temperature = 10,             ///< K, °C, °F: points on a scale
        TemperatureDifference = 11,   ///< K, °F: spans, converted without the shift of the zero
        TemperatureRate = 12,         ///< K/s, K/min, K/h
        Frequency = 13,               ///< Hz, kHz, 1/min
        StrainRate = 14,              ///< 1/s, 1/min
        Force = 15,                   ///< N, kN, MN, lbf
        Torque = 16,                  ///< N·m, N·mm, kN·m
        Energy = 17,                  ///< J, kJ, MJ, kWh
        Power = 18,                   ///< W, kW, MW, hp (the mechanical one, 550 ft·lbf/s)
        Density = 19,                 ///< kg/m³, g/cm³, t/mm³
        SpecificHeat = 20,            ///< J/(kg·K), J/(g·K), kJ/(kg·K)
        ThermalConductivity = 21,     ///< W/(m·K), mW/(mm·K)
        HeatTransferCoefficient = 22, ///< W/(m²·K), mW/(mm²·K)
        ThermalExpansion = 23,        ///< 1/K, µm/(m·K)
        HeatFlux = 24,                ///< W/m², W/mm²
        ElectricCurrent = 25,         ///< A, kA, mA
        Voltage = 26,                 ///< V, kV, mV
        Resistance = 27,              ///< Ω, mΩ, µΩ
        MassTransferCoefficient = 28, ///< m/s, mm/s, cm/s
        MassFraction = 29,            ///< kg/kg, %
        Stress = 30,                  ///< Pa, kPa, MPa, GPa, N/mm², psi, ksi
        DiffusionCoefficient = 31,    ///< m²/s, mm²/s, cm²/s
        Information = 32              ///< B, KiB, MiB, GiB
    };

    /// The index that stands for "no unit".
    static constexpr int NoUnit = -1;

    /// The plain number: dimension None, unit "-".
    constexpr kdUnitSystem() = default;
    constexpr kdUnitSystem(Dimension dimension,
                           int unitIndex = 0) // NOLINT: a dimension stands for its SI unit
        : m_dimension(dimension), m_unitIndex(unitIndex)
    {
    }

    /// The SI unit; not valid where the catalogue has no such dimension.
    static kdUnitSystem siUnit(Dimension dimension);

    /// The unit in which values of the dimension are shown.
    static kdUnitSystem viewUnit(Dimension dimension);
    /// Sets the view unit of the whole process; an index outside the dimension is ignored.
    static void setViewUnit(Dimension dimension, int unitIndex);
    static void resetViewUnits();

    /// The first unit in catalogue order that \a symbol names, whatever its dimension.
    ///
    /// Besides the catalogue's own symbols it takes what people type: ASCII for °, µ, Ω, · and raised digits
    /// (degC, um, Ohm, mm^2, mm2), products with *, · or a blank, W/(m K) and W/m/K and W/mK, words (sec,
    /// hours, kelvin), rpm, °C inside a compound for K, and the name of a unit. Upper and lower case matter
    /// where they tell m from M. \a ok tells whether it was understood; if not, the result is the plain
    /// number.
    static kdUnitSystem fromSymbol(const QString& symbol, bool* ok = nullptr);
    /// The same within one dimension, which settles ambiguous symbols (1/min, °F, %, m/s); here C and F alone
    /// are temperatures too. If not understood, the result is the dimension without a unit (index -1).
    static kdUnitSystem fromSymbol(const QString& symbol, Dimension dimension, bool* ok = nullptr);

    static int dimensionCount();
    static bool isDimension(int number);
    /// 0 where the catalogue has no such dimension.
    static int unitCount(Dimension dimension);
    /// English, "Heat transfer coefficient"; stable, so fit for files. Empty where there is no such
    /// dimension.
    static QString dimensionName(Dimension dimension);
    static QString translatedDimensionName(Dimension dimension);
    /// Reads dimensionName() back; case, blanks and the enumerator's spelling do not matter.
    static Dimension dimensionFromName(const QString& name, bool* ok = nullptr);

    constexpr Dimension dimension() const { return m_dimension; }
    constexpr int unitIndex() const { return m_unitIndex; }
    void setDimension(Dimension dimension) { m_dimension = dimension; }
    void setUnitIndex(int unitIndex) { m_unitIndex = unitIndex; }

    bool isValid() const;
    bool isSIUnit() const { return isValid() && m_unitIndex == 0; }

    /// "mm²"; empty if not valid.
    QString symbol() const;
    /// English, in the singular: "square millimetre"; empty if not valid.
    QString name() const;
    /// name() in the language of the application (context "kdUnitSystem").
    QString translatedName() const;

    /// Whether both are valid units of one dimension.
    bool canConvertTo(const kdUnitSystem& target) const;

    /// The value in the target unit; unchanged where it cannot be converted, and bit for bit where the units
    /// are equal.
    double convert(double value, const kdUnitSystem& target) const;
    /// Converts \a count values in place, each as convert() would.
    void convert(double* values, int count, const kdUnitSystem& target) const;

private:
    Dimension m_dimension = None;
    int m_unitIndex = 0;
};

constexpr bool operator==(const kdUnitSystem& a, const kdUnitSystem& b)
{
    return a.dimension() == b.dimension() && a.unitIndex() == b.unitIndex();
}

constexpr bool operator!=(const kdUnitSystem& a, const kdUnitSystem& b)
{
    return !(a == b);
}

/// By dimension, then by unit index.
constexpr bool operator<(const kdUnitSystem& a, const kdUnitSystem& b)
{
    return a.dimension() != b.dimension() ? a.dimension() < b.dimension() : a.unitIndex() < b.unitIndex();
}

KDQCORE_EXPORT uint qHash(const kdUnitSystem& unit, uint seed = 0);
KDQCORE_EXPORT QDebug operator<<(QDebug debug, const kdUnitSystem& unit);

Q_DECLARE_TYPEINFO(kdUnitSystem, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(kdUnitSystem)
