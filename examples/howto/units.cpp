// Units: how to take numbers in, keep them, show them, and store them.
#include <kdQCore/kdUnitValue>

#include <QTextStream>
#include <QXmlStreamWriter>

QTextStream out(stdout);

/// A number and a unit as a user typed them.
bool takeIn(const QString& number, const QString& symbol, kdUnitSystem::Dimension wanted, kdUnitValue& value)
{
    bool isNumber = false;
    bool isUnit = false;
    const double typed = number.toDouble(&isNumber);
    const kdUnitSystem unit = kdUnitSystem::fromSymbol(symbol, wanted, &isUnit);
    if (isNumber && isUnit)
        value = kdUnitValue(typed, unit);
    return isNumber && isUnit;
}

void show(const kdUnitValue& value)
{
    out << value.toString() << " | " << value.toSIUnit().toString() << " | "
        << value.toViewUnit().toLocalizedString(QLocale(QLocale::German)) << "\n";
}

void convertMany()
{
    const kdUnitSystem celsius = kdUnitSystem::fromSymbol("degC");
    double values[] = {20, 100, 1200};
    celsius.convert(values, 3, kdUnitSystem::siUnit(kdUnitSystem::Temperature));
    out << values[0] << " " << values[1] << " " << values[2] << "\n";
}

void difference()
{
    const kdUnitSystem point = kdUnitSystem::fromSymbol("degF", kdUnitSystem::Temperature);
    const kdUnitSystem span = kdUnitSystem::fromSymbol("degF", kdUnitSystem::TemperatureDifference);
    out << kdUnitValue(90, point).toSIUnit().toString() << ", " << kdUnitValue(90, span).toSIUnit().toString()
        << "\n";
}

void listUnits(kdUnitSystem::Dimension dimension)
{
    out << kdUnitSystem::dimensionName(dimension) << ":";
    for (int i = 0; i < kdUnitSystem::unitCount(dimension); ++i)
        out << " " << kdUnitSystem(dimension, i).symbol();
    out << "\n";
}

int main()
{
    kdUnitValue pressure;
    if (takeIn("2.5", "N/mm2", kdUnitSystem::Stress, pressure))
        show(pressure);
    out << (takeIn("2.5", "kg", kdUnitSystem::Stress, pressure) ? "taken\n" : "kg is no unit of stress\n");

    kdUnitSystem::setViewUnit(kdUnitSystem::Stress, 1); // kPa, from now on in all of the process
    show(pressure);
    convertMany();
    difference();
    listUnits(kdUnitSystem::Stress);

    QString xml;
    QXmlStreamWriter writer(&xml);
    pressure.writeXML(writer, "pressure");
    out << xml << "\n";
    return 0;
}
