// A formula that a user typed, checked, evaluated, and made into a table.
#include <kdQCore/coExpression>
#include <kdQCore/kdDataTable>

#include <QTextStream>

int main()
{
    QTextStream out(stdout);

    const coExpression wrong("54 - 0.0333*(T - 273.15");
    out << wrong.errorString() << " " << wrong.errorDetails() << "\n";

    coExpression conductivity("54 - 0.0333*(T - T0)");
    out << "Variables without a value: " << conductivity.findUnresolvedVariables().join(", ") << "\n";
    conductivity.setVariable("T0", 273.15);

    kdDataTable table(kdUnitSystem::Temperature, kdUnitSystem::ThermalConductivity);
    table.setName("conductivity");
    for (double kelvin = 300; kelvin <= 1000; kelvin += 350) {
        conductivity.setVariable("T", kelvin);
        double value = 0;
        if (!conductivity.evaluate(&value)) {
            out << conductivity.errorString() << " " << conductivity.errorDetails() << "\n";
            return 1;
        }
        table.addPoint(kelvin, value);
    }
    for (const QPointF& point : table)
        out << point.x() << " K: " << point.y() << " " << table.yUnitSystem().symbol() << "\n";
    return 0;
}
