// A million rows of four reals into a file: the writers beside the C library's fprintf, in turns. fprintf's
// 15 digits do not read back as the same numbers; its 17 digits do, as ours.

#include "duel.h"

#include <kdQCore/coCustomCSVWriter>
#include <kdQCore/coTableCSVWriter>
#include <kdQCore/nCSV>

#include <QTemporaryDir>

#include <cmath>
#include <cstdio>

namespace {

constexpr int rows = 1000000;
constexpr int columns = 4;

kdDataTable createTable()
{
    kdDataTable table;
    for (int i = 0; i < columns; ++i) {
        QVector<double> values(rows);
        for (int row = 0; row < rows; ++row)
            values[row] = i == 0 ? row * 0.01 : 20.0 + 345.0 * std::log10(8.0 * row / (100.0 * i) + 1.0);
        kdDataColumn column(i == 0 ? kdUnitSystem::Time : kdUnitSystem::Temperature);
        column.setValues(values);
        table.appendColumn(column);
    }
    return table;
}

void printTo(const QString& path, const kdDataTable& table)
{
    std::FILE* const file = std::fopen(qPrintable(path), "w");
    if (file == nullptr)
        return;
    for (int row = 0; row < rows; ++row)
        std::fprintf(file, "%.15g;%.15g;%.15g;%.15g\n", table.columnRef(0).value(row),
                     table.columnRef(1).value(row), table.columnRef(2).value(row),
                     table.columnRef(3).value(row));
    std::fclose(file);
}

void writeWith(const coCSVWriter& writer)
{
    if (!writer.write())
        std::printf("writing failed\n");
}

} // namespace

int main()
{
    const kdDataTable table = createTable();
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("rows.csv"));
    coTableCSVWriter tableWriter(table);
    coTableCSVWriter convertingWriter(table);
    coCustomCSVWriter customWriter({}, rows, [&table](int row) {
        return QList<QVariant>{table.columnRef(0).value(row), table.columnRef(1).value(row),
                               table.columnRef(2).value(row), table.columnRef(3).value(row)};
    });
    for (coCSVWriter* const writer :
         {static_cast<coCSVWriter*>(&tableWriter), static_cast<coCSVWriter*>(&convertingWriter),
          static_cast<coCSVWriter*>(&customWriter)})
        writer->setFileName(path);
    convertingWriter.setUnitIndex(kdUnitSystem::Temperature, 1); // degC
    convertingWriter.setLocale(nCSV::localeForDecimalSeparator(nCSV::DecimalComma));

    Duel duel("Write 1 000 000 rows of 4 reals into a file, per row", rows);
    duel.add("fprintf %.15g", [&] { printTo(path, table); });
    duel.add("coTableCSVWriter", [&] { writeWith(tableWriter); });
    duel.add("coTableCSVWriter, converted, decimal comma", [&] { writeWith(convertingWriter); });
    duel.add("coCustomCSVWriter", [&] { writeWith(customWriter); });
    duel.run(5);
    bool held = true;
    for (const char* const writer :
         {"coTableCSVWriter", "coTableCSVWriter, converted, decimal comma", "coCustomCSVWriter"})
        held = duel.demand(writer, "fprintf %.15g", 1.0) && held;
    return held ? 0 : 1;
}
