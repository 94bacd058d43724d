// Tables: how to fill, look up, combine, convert and store them.
#include <kdQCore/coTableCSVWriter>
#include <kdQCore/kdDataTable>
#include <kdQCore/nCSV>

#include <QFile>
#include <QTextStream>

QTextStream out(stdout);

kdDataTable heating()
{
    kdDataTable curve(kdUnitSystem::Time, kdUnitSystem::Temperature); // s, K
    curve.setName("heating");
    curve.addPoint(0, 300);
    curve.addPoint(600, 900);
    curve.addUvPoint(kdUnitValue(20, kdUnitSystem::fromSymbol("min", kdUnitSystem::Time)),
                     kdUnitValue(726.85, kdUnitSystem::fromSymbol("degC")));
    return curve;
}

void lookUp(const kdDataTable& curve)
{
    out << "inside: " << curve.getInterpolDoubleValue(1, 300) << "\n";
    out << "outside: " << curve.getInterpolDoubleValue(1, 9999) << " or "
        << curve.getInterpolDoubleValue(1, 9999, kdDataTable::ZeroOutside) << "\n";
}

void severalColumns()
{
    kdDataTable steel;
    steel.setName("steel");
    kdDataColumn temperature(kdUnitSystem::Temperature, kdDataColumn::UsageX, "temperature");
    kdDataColumn density(kdUnitSystem::Density, kdDataColumn::UsageY, "density");
    temperature.setValues({300, 800});
    density.setValues({7850, 7700});
    if (!steel.appendColumn(temperature) || !steel.appendColumn(density))
        return; // columns of one table are of one length

    const int column = steel.getDataColumnIndexByName("density");
    out << "density at 550 K: " << steel.getInterpolDoubleValue(column, 550) << "\n";
}

void combine(kdDataTable curve)
{
    kdDataTable offset(kdUnitSystem::Time, kdUnitSystem::Temperature);
    offset.addPoint(0, 10);
    offset.addPoint(1200, 20);
    if (curve.sumXY(offset)) // at the x values of both
        for (const QPointF& point : curve)
            out << point.x() << " " << point.y() << "\n";
}

bool storeAndLoad(const kdDataTable& curve)
{
    QFile file("heating.xml");
    if (!curve.writeXML(file)) // opens and closes it
        return false;
    if (!file.open(QIODevice::ReadOnly))
        return false;
    bool ok = false;
    const kdDataTable again = kdDataTable::fromXml(QString::fromUtf8(file.readAll()), &ok);
    out << "read back: " << (ok && again == curve ? "the same" : "another one") << "\n";
    return ok;
}

bool forSpreadsheets(const kdDataTable& curve)
{
    coTableCSVWriter writer(curve);
    writer.setHeader(coCSVWriter::TitleRow);
    writer.setDelimiter(';');
    writer.setLocale(nCSV::localeForDecimalSeparator(nCSV::DecimalComma));
    writer.setUnitIndex(kdUnitSystem::Temperature, 1); // degC
    return writer.write("heating.csv");
}

int main()
{
    const kdDataTable curve = heating();
    lookUp(curve);
    severalColumns();
    combine(curve);
    return storeAndLoad(curve) && forSpreadsheets(curve) ? 0 : 1;
}
