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

#define KD_UNIT_NAME(text) QT_TRANSLATE_NOOP("kdUnitSystem", text)

constexpr Unit none[] = {{"-", KD_UNIT_NAME("dimensionless")}, {"%", KD_UNIT_NAME("per cent"), 1, 100}};
constexpr Unit mass[] = {{"kg", KD_UNIT_NAME("kilogram")},
                         {"g", KD_UNIT_NAME("gram"), 1, 1000},
                         {"t", KD_UNIT_NAME("tonne"), 1000},
                         {"lb", KD_UNIT_NAME("pound"), 45359237, 100000000}};
constexpr Unit angle[] = {{"rad", KD_UNIT_NAME("radian")}, {"°", KD_UNIT_NAME("degree"), 1, 180, 1}};
constexpr Unit time[] = {{"s", KD_UNIT_NAME("second")},
                         {"ms", KD_UNIT_NAME("millisecond"), 1, 1000},
                         {"min", KD_UNIT_NAME("minute"), 60},
                         {"h", KD_UNIT_NAME("hour"), 3600}};
constexpr Unit length[] = {{"m", KD_UNIT_NAME("metre")},
                           {"mm", KD_UNIT_NAME("millimetre"), 1, 1000},
                           {"cm", KD_UNIT_NAME("centimetre"), 1, 100},
                           {"µm", KD_UNIT_NAME("micrometre"), 1, 1000000},
                           {"in", KD_UNIT_NAME("inch"), 127, 5000},
                           {"ft", KD_UNIT_NAME("foot"), 381, 1250}};
constexpr Unit area[] = {{"m²", KD_UNIT_NAME("square metre")},
                         {"mm²", KD_UNIT_NAME("square millimetre"), 1, 1000000},
                         {"cm²", KD_UNIT_NAME("square centimetre"), 1, 10000},
                         {"in²", KD_UNIT_NAME("square inch"), 127 * 127, 5000 * 5000}};
constexpr Unit volume[] = {{"m³", KD_UNIT_NAME("cubic metre")},
                           {"mm³", KD_UNIT_NAME("cubic millimetre"), 1, 1000000000},
                           {"cm³", KD_UNIT_NAME("cubic centimetre"), 1, 1000000},
                           {"l", KD_UNIT_NAME("litre"), 1, 1000},
                           {"in³", KD_UNIT_NAME("cubic inch"), 127 * 127 * 127, 125000000000}};
constexpr Unit velocity[] = {{"m/s", KD_UNIT_NAME("metre per second")},
                             {"mm/s", KD_UNIT_NAME("millimetre per second"), 1, 1000},
                             {"mm/min", KD_UNIT_NAME("millimetre per minute"), 1, 60000},
                             {"m/min", KD_UNIT_NAME("metre per minute"), 1, 60},
                             {"in/s", KD_UNIT_NAME("inch per second"), 127, 5000}};
constexpr Unit acceleration[] = {{"m/s²", KD_UNIT_NAME("metre per square second")},
                                 {"mm/s²", KD_UNIT_NAME("millimetre per square second"), 1, 1000}};
constexpr Unit angularVelocity[] = {{"rad/s", KD_UNIT_NAME("radian per second")},
                                    {"1/min", KD_UNIT_NAME("revolution per minute"), 1, 30, 1},
                                    {"°/s", KD_UNIT_NAME("degree per second"), 1, 180, 1}};
constexpr Unit temperature[] = {{"K", KD_UNIT_NAME("kelvin")},
                                {"°C", KD_UNIT_NAME("degree Celsius"), 1, 1, 0, 27315},
                                {"°F", KD_UNIT_NAME("degree Fahrenheit"), 5, 9, 0, 45967}};
constexpr Unit temperatureDifference[] = {{"K", KD_UNIT_NAME("kelvin")},
                                          {"°F", KD_UNIT_NAME("degree Fahrenheit"), 5, 9}};
constexpr Unit temperatureRate[] = {{"K/s", KD_UNIT_NAME("kelvin per second")},
                                    {"K/min", KD_UNIT_NAME("kelvin per minute"), 1, 60},
                                    {"K/h", KD_UNIT_NAME("kelvin per hour"), 1, 3600}};
constexpr Unit frequency[] = {{"Hz", KD_UNIT_NAME("hertz")},
                              {"kHz", KD_UNIT_NAME("kilohertz"), 1000},
                              {"1/min", KD_UNIT_NAME("per minute"), 1, 60}};
constexpr Unit strainRate[] = {{"1/s", KD_UNIT_NAME("per second")},
                               {"1/min", KD_UNIT_NAME("per minute"), 1, 60}};
// The pound-force is the pound times the standard acceleration of 9.80665 m/s².
constexpr Unit force[] = {{"N", KD_UNIT_NAME("newton")},
                          {"kN", KD_UNIT_NAME("kilonewton"), 1000},
                          {"MN", KD_UNIT_NAME("meganewton"), 1000000},
                          {"lbf", KD_UNIT_NAME("pound-force"), 8896443230521, 2000000000000}};
constexpr Unit torque[] = {{"N·m", KD_UNIT_NAME("newton metre")},
                           {"N·mm", KD_UNIT_NAME("newton millimetre"), 1, 1000},
                           {"kN·m", KD_UNIT_NAME("kilonewton metre"), 1000}};
constexpr Unit energy[] = {{"J", KD_UNIT_NAME("joule")},
                           {"kJ", KD_UNIT_NAME("kilojoule"), 1000},
                           {"MJ", KD_UNIT_NAME("megajoule"), 1000000},
                           {"kWh", KD_UNIT_NAME("kilowatt-hour"), 3600000}};
// The mechanical horsepower, 550 ft·lbf/s; the metric one and the round 746 W of motors are other units.
constexpr Unit power[] = {{"W", KD_UNIT_NAME("watt")},
                          {"kW", KD_UNIT_NAME("kilowatt"), 1000},
                          {"MW", KD_UNIT_NAME("megawatt"), 1000000},
                          {"hp", KD_UNIT_NAME("horsepower"), 4191 * 8896443230521, 50000000000000}};
constexpr Unit density[] = {{"kg/m³", KD_UNIT_NAME("kilogram per cubic metre")},
                            {"g/cm³", KD_UNIT_NAME("gram per cubic centimetre"), 1000},
                            {"t/mm³", KD_UNIT_NAME("tonne per cubic millimetre"), 1000000000000}};
constexpr Unit specificHeat[] = {{"J/(kg·K)", KD_UNIT_NAME("joule per kilogram kelvin")},
                                 {"J/(g·K)", KD_UNIT_NAME("joule per gram kelvin"), 1000},
                                 {"kJ/(kg·K)", KD_UNIT_NAME("kilojoule per kilogram kelvin"), 1000}};
constexpr Unit thermalConductivity[] = {{"W/(m·K)", KD_UNIT_NAME("watt per metre kelvin")},
                                        {"mW/(mm·K)", KD_UNIT_NAME("milliwatt per millimetre kelvin")}};
constexpr Unit heatTransferCoefficient[] = {
    {"W/(m²·K)", KD_UNIT_NAME("watt per square metre kelvin")},
    {"mW/(mm²·K)", KD_UNIT_NAME("milliwatt per square millimetre kelvin"), 1000}};
constexpr Unit thermalExpansion[] = {{"1/K", KD_UNIT_NAME("per kelvin")},
                                     {"µm/(m·K)", KD_UNIT_NAME("micrometre per metre kelvin"), 1, 1000000}};
constexpr Unit heatFlux[] = {{"W/m²", KD_UNIT_NAME("watt per square metre")},
                             {"W/mm²", KD_UNIT_NAME("watt per square millimetre"), 1000000}};
constexpr Unit electricCurrent[] = {{"A", KD_UNIT_NAME("ampere")},
                                    {"kA", KD_UNIT_NAME("kiloampere"), 1000},
                                    {"mA", KD_UNIT_NAME("milliampere"), 1, 1000}};
constexpr Unit voltage[] = {{"V", KD_UNIT_NAME("volt")},
                            {"kV", KD_UNIT_NAME("kilovolt"), 1000},
                            {"mV", KD_UNIT_NAME("millivolt"), 1, 1000}};
constexpr Unit resistance[] = {{"Ω", KD_UNIT_NAME("ohm")},
                               {"mΩ", KD_UNIT_NAME("milliohm"), 1, 1000},
                               {"µΩ", KD_UNIT_NAME("microohm"), 1, 1000000}};
constexpr Unit massTransferCoefficient[] = {{"m/s", KD_UNIT_NAME("metre per second")},
                                            {"mm/s", KD_UNIT_NAME("millimetre per second"), 1, 1000},
                                            {"cm/s", KD_UNIT_NAME("centimetre per second"), 1, 100}};
constexpr Unit massFraction[] = {{"kg/kg", KD_UNIT_NAME("kilogram per kilogram")},
                                 {"%", KD_UNIT_NAME("per cent"), 1, 100}};
constexpr Unit stress[] = {{"Pa", KD_UNIT_NAME("pascal")},
                           {"kPa", KD_UNIT_NAME("kilopascal"), 1000},
                           {"MPa", KD_UNIT_NAME("megapascal"), 1000000},
                           {"GPa", KD_UNIT_NAME("gigapascal"), 1000000000},
                           {"N/mm²", KD_UNIT_NAME("newton per square millimetre"), 1000000},
                           {"psi", KD_UNIT_NAME("pound per square inch"), 8896443230521, 1290320000},
                           {"ksi", KD_UNIT_NAME("kilopound per square inch"), 8896443230521, 1290320}};
constexpr Unit diffusionCoefficient[] = {{"m²/s", KD_UNIT_NAME("square metre per second")},
                                         {"mm²/s", KD_UNIT_NAME("square millimetre per second"), 1, 1000000},
                                         {"cm²/s", KD_UNIT_NAME("square centimetre per second"), 1, 10000}};
constexpr Unit information[] = {{"B", KD_UNIT_NAME("byte")},
                                {"KiB", KD_UNIT_NAME("kibibyte"), 1 << 10},
                                {"MiB", KD_UNIT_NAME("mebibyte"), 1 << 20},
                                {"GiB", KD_UNIT_NAME("gibibyte"), 1 << 30}};

/// By dimension number.
constexpr DimensionEntry dimensions[] = {
    entry(KD_UNIT_NAME("None"), none, 0),
    entry(KD_UNIT_NAME("Mass"), mass, 0),
    entry(KD_UNIT_NAME("Angle"), angle, 1),
    entry(KD_UNIT_NAME("Time"), time, 0),
    entry(KD_UNIT_NAME("Length"), length, 1),
    entry(KD_UNIT_NAME("Area"), area, 1),
    entry(KD_UNIT_NAME("Volume"), volume, 1),
    entry(KD_UNIT_NAME("Velocity"), velocity, 1),
    entry(KD_UNIT_NAME("Acceleration"), acceleration, 1),
    entry(KD_UNIT_NAME("Angular velocity"), angularVelocity, 1),
    entry(KD_UNIT_NAME("Temperature"), temperature, 1),
    entry(KD_UNIT_NAME("Temperature difference"), temperatureDifference, 0),
    entry(KD_UNIT_NAME("Temperature rate"), temperatureRate, 0),
    entry(KD_UNIT_NAME("Frequency"), frequency, 0),
    entry(KD_UNIT_NAME("Strain rate"), strainRate, 0),
    entry(KD_UNIT_NAME("Force"), force, 1),
    entry(KD_UNIT_NAME("Torque"), torque, 0),
    entry(KD_UNIT_NAME("Energy"), energy, 0),
    entry(KD_UNIT_NAME("Power"), power, 0),
    entry(KD_UNIT_NAME("Density"), density, 0),
    entry(KD_UNIT_NAME("Specific heat"), specificHeat, 0),
    entry(KD_UNIT_NAME("Thermal conductivity"), thermalConductivity, 0),
    entry(KD_UNIT_NAME("Heat transfer coefficient"), heatTransferCoefficient, 0),
    entry(KD_UNIT_NAME("Thermal expansion"), thermalExpansion, 0),
    entry(KD_UNIT_NAME("Heat flux"), heatFlux, 0),
    entry(KD_UNIT_NAME("Electric current"), electricCurrent, 0),
    entry(KD_UNIT_NAME("Voltage"), voltage, 0),
    entry(KD_UNIT_NAME("Resistance"), resistance, 1),
    entry(KD_UNIT_NAME("Mass transfer coefficient"), massTransferCoefficient, 1),
    entry(KD_UNIT_NAME("Mass fraction"), massFraction, 1),
    entry(KD_UNIT_NAME("Stress"), stress, 2),
    entry(KD_UNIT_NAME("Diffusion coefficient"), diffusionCoefficient, 1),
    entry(KD_UNIT_NAME("Information"), information, 0),
};

#undef KD_UNIT_NAME

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
