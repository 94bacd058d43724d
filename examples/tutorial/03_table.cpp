// A table read from a file, looked up, converted, and stored as XML.
#include <kdQCore/kdDataTable>
#include <kdQCore/kdTypedException>

#include <QFile>
#include <QTextStream>

int main(int argc, char** argv)
{
    QTextStream out(stdout);
    QFile file(argc > 1 ? argv[1] : "yield_stress.csv");
    if (!file.open(QIODevice::ReadOnly)) {
        out << file.fileName() << ": " << file.errorString() << "\n";
        return 1;
    }

    kdDataTable table;
    QTextStream text(&file);
    try {
        kdDataTable::importFromTextStream(text, table);
    } catch (const kdTypedException<QPair<int, int>>& failure) { // line and field, counted from 1
        out << file.fileName() << ":" << failure.payload().first << ": " << failure.getErrorMessage() << "\n";
        return 1;
    }
    table.setName("yield_stress");

    const double before = table.getInterpolDoubleValue(1, 550);
    out << "At 550 " << table.xUnitSystem().symbol() << ": " << before << " " << table.yUnitSystem().symbol()
        << "\n";
    table.toSIUnit();
    const double after = table.getInterpolDoubleValue(1, 823.15);
    out << "At 823.15 " << table.xUnitSystem().symbol() << ": " << after << " "
        << table.yUnitSystem().symbol() << "\n";

    QFile xml("yield_stress.xml");
    return table.writeXML(xml) ? 0 : 1;
}
