#pragma once

#include <QtGlobal>

#include <cstddef>

/// The units of every dimension. Plain constants: no file is read and nothing is initialised at run time.
/// Private to this folder.
namespace nUnitCatalogue {

/// SI value = (value + shift / 100) * numerator / denominator * pi^piPower.
///
/// Factors are fractions of whole numbers, so that those between two units stay exact: a decimal factor such
/// as 0.001 has no exact double, division by 1000 has.
struct Unit {
    const char* symbol; ///< UTF-8
    const char* name;   ///< English
    quint64 numerator = 1;
    quint64 denominator = 1;
    int piPower = 0;
    qint64 shift = 0; ///< of the unit's zero, in hundredths of the unit; temperatures only
};

struct DimensionEntry {
    const char* name;  ///< English
    const Unit* units; ///< the SI unit first
    int unitCount;
    int viewUnit; ///< index of the default view unit
};

template <std::size_t count>
constexpr DimensionEntry entry(const char* name, const Unit (&units)[count], int viewUnit)
{
    return {name, units, static_cast<int>(count), viewUnit};
}

constexpr Unit none[] = {{"-", QT_TRANSLATE_NOOP("kdUnitSystem", "dimensionless")},
                         {"%", QT_TRANSLATE_NOOP("kdUnitSystem", "per cent"), 1, 100}};
constexpr Unit mass[] = {{"kg", QT_TRANSLATE_NOOP("kdUnitSystem", "kilogram")},
                         {"g", QT_TRANSLATE_NOOP("kdUnitSystem", "gram"), 1, 1000},
                         {"t", QT_TRANSLATE_NOOP("kdUnitSystem", "tonne"), 1000},
                         {"lb", QT_TRANSLATE_NOOP("kdUnitSystem", "pound"), 45359237, 100000000}};
constexpr Unit angle[] = {{"rad", QT_TRANSLATE_NOOP("kdUnitSystem", "radian")},
                          {"°", QT_TRANSLATE_NOOP("kdUnitSystem", "degree"), 1, 180, 1}};
constexpr Unit time[] = {{"s", QT_TRANSLATE_NOOP("kdUnitSystem", "second")},
                         {"ms", QT_TRANSLATE_NOOP("kdUnitSystem", "millisecond"), 1, 1000},
                         {"min", QT_TRANSLATE_NOOP("kdUnitSystem", "minute"), 60},
                         {"h", QT_TRANSLATE_NOOP("kdUnitSystem", "hour"), 3600}};
constexpr Unit length[] = {{"m", QT_TRANSLATE_NOOP("kdUnitSystem", "metre")},
                           {"mm", QT_TRANSLATE_NOOP("kdUnitSystem", "millimetre"), 1, 1000},
                           {"cm", QT_TRANSLATE_NOOP("kdUnitSystem", "centimetre"), 1, 100},
                           {"µm", QT_TRANSLATE_NOOP("kdUnitSystem", "micrometre"), 1, 1000000},
                           {"in", QT_TRANSLATE_NOOP("kdUnitSystem", "inch"), 127, 5000},
                           {"ft", QT_TRANSLATE_NOOP("kdUnitSystem", "foot"), 381, 1250}};
constexpr Unit area[] = {{"m²", QT_TRANSLATE_NOOP("kdUnitSystem", "square metre")},
                         {"mm²", QT_TRANSLATE_NOOP("kdUnitSystem", "square millimetre"), 1, 1000000},
                         {"cm²", QT_TRANSLATE_NOOP("kdUnitSystem", "square centimetre"), 1, 10000},
                         {"in²", QT_TRANSLATE_NOOP("kdUnitSystem", "square inch"), 127 * 127, 5000 * 5000}};
constexpr Unit volume[] = {
    {"m³", QT_TRANSLATE_NOOP("kdUnitSystem", "cubic metre")},
    {"mm³", QT_TRANSLATE_NOOP("kdUnitSystem", "cubic millimetre"), 1, 1000000000},
    {"cm³", QT_TRANSLATE_NOOP("kdUnitSystem", "cubic centimetre"), 1, 1000000},
    {"l", QT_TRANSLATE_NOOP("kdUnitSystem", "litre"), 1, 1000},
    {"in³", QT_TRANSLATE_NOOP("kdUnitSystem", "cubic inch"), 127 * 127 * 127, 125000000000}};
constexpr Unit velocity[] = {{"m/s", QT_TRANSLATE_NOOP("kdUnitSystem", "metre per second")},
                             {"mm/s", QT_TRANSLATE_NOOP("kdUnitSystem", "millimetre per second"), 1, 1000},
                             {"mm/min", QT_TRANSLATE_NOOP("kdUnitSystem", "millimetre per minute"), 1, 60000},
                             {"m/min", QT_TRANSLATE_NOOP("kdUnitSystem", "metre per minute"), 1, 60},
                             {"in/s", QT_TRANSLATE_NOOP("kdUnitSystem", "inch per second"), 127, 5000}};
constexpr Unit acceleration[] = {
    {"m/s²", QT_TRANSLATE_NOOP("kdUnitSystem", "metre per square second")},
    {"mm/s²", QT_TRANSLATE_NOOP("kdUnitSystem", "millimetre per square second"), 1, 1000}};
constexpr Unit angularVelocity[] = {
    {"rad/s", QT_TRANSLATE_NOOP("kdUnitSystem", "radian per second")},
    {"1/min", QT_TRANSLATE_NOOP("kdUnitSystem", "revolution per minute"), 1, 30, 1},
    {"°/s", QT_TRANSLATE_NOOP("kdUnitSystem", "degree per second"), 1, 180, 1}};
constexpr Unit temperature[] = {
    {"K", QT_TRANSLATE_NOOP("kdUnitSystem", "kelvin")},
    {"°C", QT_TRANSLATE_NOOP("kdUnitSystem", "degree Celsius"), 1, 1, 0, 27315},
    {"°F", QT_TRANSLATE_NOOP("kdUnitSystem", "degree Fahrenheit"), 5, 9, 0, 45967}};
constexpr Unit temperatureDifference[] = {
    {"K", QT_TRANSLATE_NOOP("kdUnitSystem", "kelvin")},
    {"°F", QT_TRANSLATE_NOOP("kdUnitSystem", "degree Fahrenheit"), 5, 9}};
constexpr Unit temperatureRate[] = {{"K/s", QT_TRANSLATE_NOOP("kdUnitSystem", "kelvin per second")},
                                    {"K/min", QT_TRANSLATE_NOOP("kdUnitSystem", "kelvin per minute"), 1, 60},
                                    {"K/h", QT_TRANSLATE_NOOP("kdUnitSystem", "kelvin per hour"), 1, 3600}};
constexpr Unit frequency[] = {{"Hz", QT_TRANSLATE_NOOP("kdUnitSystem", "hertz")},
                              {"kHz", QT_TRANSLATE_NOOP("kdUnitSystem", "kilohertz"), 1000},
                              {"1/min", QT_TRANSLATE_NOOP("kdUnitSystem", "per minute"), 1, 60}};
constexpr Unit strainRate[] = {{"1/s", QT_TRANSLATE_NOOP("kdUnitSystem", "per second")},
                               {"1/min", QT_TRANSLATE_NOOP("kdUnitSystem", "per minute"), 1, 60}};
// The pound-force is the pound times the standard acceleration of 9.80665 m/s².
constexpr Unit force[] = {
    {"N", QT_TRANSLATE_NOOP("kdUnitSystem", "newton")},
    {"kN", QT_TRANSLATE_NOOP("kdUnitSystem", "kilonewton"), 1000},
    {"MN", QT_TRANSLATE_NOOP("kdUnitSystem", "meganewton"), 1000000},
    {"lbf", QT_TRANSLATE_NOOP("kdUnitSystem", "pound-force"), 8896443230521, 2000000000000}};
constexpr Unit torque[] = {{"N·m", QT_TRANSLATE_NOOP("kdUnitSystem", "newton metre")},
                           {"N·mm", QT_TRANSLATE_NOOP("kdUnitSystem", "newton millimetre"), 1, 1000},
                           {"kN·m", QT_TRANSLATE_NOOP("kdUnitSystem", "kilonewton metre"), 1000}};
constexpr Unit energy[] = {{"J", QT_TRANSLATE_NOOP("kdUnitSystem", "joule")},
                           {"kJ", QT_TRANSLATE_NOOP("kdUnitSystem", "kilojoule"), 1000},
                           {"MJ", QT_TRANSLATE_NOOP("kdUnitSystem", "megajoule"), 1000000},
                           {"kWh", QT_TRANSLATE_NOOP("kdUnitSystem", "kilowatt-hour"), 3600000}};
// The mechanical horsepower, 550 ft·lbf/s; the metric one and the round 746 W of motors are other units.
constexpr Unit power[] = {
    {"W", QT_TRANSLATE_NOOP("kdUnitSystem", "watt")},
    {"kW", QT_TRANSLATE_NOOP("kdUnitSystem", "kilowatt"), 1000},
    {"MW", QT_TRANSLATE_NOOP("kdUnitSystem", "megawatt"), 1000000},
    {"hp", QT_TRANSLATE_NOOP("kdUnitSystem", "horsepower"), 4191 * 8896443230521, 50000000000000}};
constexpr Unit density[] = {
    {"kg/m³", QT_TRANSLATE_NOOP("kdUnitSystem", "kilogram per cubic metre")},
    {"g/cm³", QT_TRANSLATE_NOOP("kdUnitSystem", "gram per cubic centimetre"), 1000},
    {"t/mm³", QT_TRANSLATE_NOOP("kdUnitSystem", "tonne per cubic millimetre"), 1000000000000}};
constexpr Unit specificHeat[] = {
    {"J/(kg·K)", QT_TRANSLATE_NOOP("kdUnitSystem", "joule per kilogram kelvin")},
    {"J/(g·K)", QT_TRANSLATE_NOOP("kdUnitSystem", "joule per gram kelvin"), 1000},
    {"kJ/(kg·K)", QT_TRANSLATE_NOOP("kdUnitSystem", "kilojoule per kilogram kelvin"), 1000}};
constexpr Unit thermalConductivity[] = {
    {"W/(m·K)", QT_TRANSLATE_NOOP("kdUnitSystem", "watt per metre kelvin")},
    {"mW/(mm·K)", QT_TRANSLATE_NOOP("kdUnitSystem", "milliwatt per millimetre kelvin")}};
constexpr Unit heatTransferCoefficient[] = {
    {"W/(m²·K)", QT_TRANSLATE_NOOP("kdUnitSystem", "watt per square metre kelvin")},
    {"mW/(mm²·K)", QT_TRANSLATE_NOOP("kdUnitSystem", "milliwatt per square millimetre kelvin"), 1000}};
constexpr Unit thermalExpansion[] = {
    {"1/K", QT_TRANSLATE_NOOP("kdUnitSystem", "per kelvin")},
    {"µm/(m·K)", QT_TRANSLATE_NOOP("kdUnitSystem", "micrometre per metre kelvin"), 1, 1000000}};
constexpr Unit heatFlux[] = {
    {"W/m²", QT_TRANSLATE_NOOP("kdUnitSystem", "watt per square metre")},
    {"W/mm²", QT_TRANSLATE_NOOP("kdUnitSystem", "watt per square millimetre"), 1000000}};
constexpr Unit electricCurrent[] = {{"A", QT_TRANSLATE_NOOP("kdUnitSystem", "ampere")},
                                    {"kA", QT_TRANSLATE_NOOP("kdUnitSystem", "kiloampere"), 1000},
                                    {"mA", QT_TRANSLATE_NOOP("kdUnitSystem", "milliampere"), 1, 1000}};
constexpr Unit voltage[] = {{"V", QT_TRANSLATE_NOOP("kdUnitSystem", "volt")},
                            {"kV", QT_TRANSLATE_NOOP("kdUnitSystem", "kilovolt"), 1000},
                            {"mV", QT_TRANSLATE_NOOP("kdUnitSystem", "millivolt"), 1, 1000}};
constexpr Unit resistance[] = {{"Ω", QT_TRANSLATE_NOOP("kdUnitSystem", "ohm")},
                               {"mΩ", QT_TRANSLATE_NOOP("kdUnitSystem", "milliohm"), 1, 1000},
                               {"µΩ", QT_TRANSLATE_NOOP("kdUnitSystem", "microohm"), 1, 1000000}};
constexpr Unit massTransferCoefficient[] = {
    {"m/s", QT_TRANSLATE_NOOP("kdUnitSystem", "metre per second")},
    {"mm/s", QT_TRANSLATE_NOOP("kdUnitSystem", "millimetre per second"), 1, 1000},
    {"cm/s", QT_TRANSLATE_NOOP("kdUnitSystem", "centimetre per second"), 1, 100}};
constexpr Unit massFraction[] = {{"kg/kg", QT_TRANSLATE_NOOP("kdUnitSystem", "kilogram per kilogram")},
                                 {"%", QT_TRANSLATE_NOOP("kdUnitSystem", "per cent"), 1, 100}};
constexpr Unit stress[] = {
    {"Pa", QT_TRANSLATE_NOOP("kdUnitSystem", "pascal")},
    {"kPa", QT_TRANSLATE_NOOP("kdUnitSystem", "kilopascal"), 1000},
    {"MPa", QT_TRANSLATE_NOOP("kdUnitSystem", "megapascal"), 1000000},
    {"GPa", QT_TRANSLATE_NOOP("kdUnitSystem", "gigapascal"), 1000000000},
    {"N/mm²", QT_TRANSLATE_NOOP("kdUnitSystem", "newton per square millimetre"), 1000000},
    {"psi", QT_TRANSLATE_NOOP("kdUnitSystem", "pound per square inch"), 8896443230521, 1290320000},
    {"ksi", QT_TRANSLATE_NOOP("kdUnitSystem", "kilopound per square inch"), 8896443230521, 1290320}};
constexpr Unit diffusionCoefficient[] = {
    {"m²/s", QT_TRANSLATE_NOOP("kdUnitSystem", "square metre per second")},
    {"mm²/s", QT_TRANSLATE_NOOP("kdUnitSystem", "square millimetre per second"), 1, 1000000},
    {"cm²/s", QT_TRANSLATE_NOOP("kdUnitSystem", "square centimetre per second"), 1, 10000}};
constexpr Unit information[] = {{"B", QT_TRANSLATE_NOOP("kdUnitSystem", "byte")},
                                {"KiB", QT_TRANSLATE_NOOP("kdUnitSystem", "kibibyte"), 1 << 10},
                                {"MiB", QT_TRANSLATE_NOOP("kdUnitSystem", "mebibyte"), 1 << 20},
                                {"GiB", QT_TRANSLATE_NOOP("kdUnitSystem", "gibibyte"), 1 << 30}};

/// By dimension number.
constexpr DimensionEntry dimensions[] = {
    entry(QT_TRANSLATE_NOOP("kdUnitSystem", "None"), none, 0),
    entry(QT_TRANSLATE_NOOP("kdUnitSystem", "Mass"), mass, 0),
    entry(QT_TRANSLATE_NOOP("kdUnitSystem", "Angle"), angle, 1),
    entry(QT_TRANSLATE_NOOP("kdUnitSystem", "Time"), time, 0),
    entry(QT_TRANSLATE_NOOP("kdUnitSystem", "Length"), length, 1),
    entry(QT_TRANSLATE_NOOP("kdUnitSystem", "Area"), area, 1),
    entry(QT_TRANSLATE_NOOP("kdUnitSystem", "Volume"), volume, 1),
    entry(QT_TRANSLATE_NOOP("kdUnitSystem", "Velocity"), velocity, 1),
    entry(QT_TRANSLATE_NOOP("kdUnitSystem", "Acceleration"), acceleration, 1),
    entry(QT_TRANSLATE_NOOP("kdUnitSystem", "Angular velocity"), angularVelocity, 1),
    entry(QT_TRANSLATE_NOOP("kdUnitSystem", "Temperature"), temperature, 1),
    entry(QT_TRANSLATE_NOOP("kdUnitSystem", "Temperature difference"), temperatureDifference, 0),
    entry(QT_TRANSLATE_NOOP("kdUnitSystem", "Temperature rate"), temperatureRate, 0),
    entry(QT_TRANSLATE_NOOP("kdUnitSystem", "Frequency"), frequency, 0),
    entry(QT_TRANSLATE_NOOP("kdUnitSystem", "Strain rate"), strainRate, 0),
    entry(QT_TRANSLATE_NOOP("kdUnitSystem", "Force"), force, 1),
    entry(QT_TRANSLATE_NOOP("kdUnitSystem", "Torque"), torque, 0),
    entry(QT_TRANSLATE_NOOP("kdUnitSystem", "Energy"), energy, 0),
    entry(QT_TRANSLATE_NOOP("kdUnitSystem", "Power"), power, 0),
    entry(QT_TRANSLATE_NOOP("kdUnitSystem", "Density"), density, 0),
    entry(QT_TRANSLATE_NOOP("kdUnitSystem", "Specific heat"), specificHeat, 0),
    entry(QT_TRANSLATE_NOOP("kdUnitSystem", "Thermal conductivity"), thermalConductivity, 0),
    entry(QT_TRANSLATE_NOOP("kdUnitSystem", "Heat transfer coefficient"), heatTransferCoefficient, 0),
    entry(QT_TRANSLATE_NOOP("kdUnitSystem", "Thermal expansion"), thermalExpansion, 0),
    entry(QT_TRANSLATE_NOOP("kdUnitSystem", "Heat flux"), heatFlux, 0),
    entry(QT_TRANSLATE_NOOP("kdUnitSystem", "Electric current"), electricCurrent, 0),
    entry(QT_TRANSLATE_NOOP("kdUnitSystem", "Voltage"), voltage, 0),
    entry(QT_TRANSLATE_NOOP("kdUnitSystem", "Resistance"), resistance, 1),
    entry(QT_TRANSLATE_NOOP("kdUnitSystem", "Mass transfer coefficient"), massTransferCoefficient, 1),
    entry(QT_TRANSLATE_NOOP("kdUnitSystem", "Mass fraction"), massFraction, 1),
    entry(QT_TRANSLATE_NOOP("kdUnitSystem", "Stress"), stress, 2),
    entry(QT_TRANSLATE_NOOP("kdUnitSystem", "Diffusion coefficient"), diffusionCoefficient, 1),
    entry(QT_TRANSLATE_NOOP("kdUnitSystem", "Information"), information, 0),
};

constexpr int dimensionCount = static_cast<int>(sizeof(dimensions) / sizeof(dimensions[0]));

/// Null where the catalogue has no such dimension.
inline const DimensionEntry* findDimension(int number)
{
    return number >= 0 && number < dimensionCount ? &dimensions[number] : nullptr;
}

/// Null where the dimension has no such unit, or does not exist.
inline const Unit* findUnit(int dimension, int index)
{
    const DimensionEntry* entry = findDimension(dimension);
    return entry && index >= 0 && index < entry->unitCount ? &entry->units[index] : nullptr;
}

} // namespace nUnitCatalogue
