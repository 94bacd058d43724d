// Tables of a million points as XML: the library beside the plain way with Qt's stream classes, in turns, and
// the memory that the reader needs at its peak.

#include "duel.h"

#include <kdQCore/kdDataTable>

#include <QBuffer>
#include <QFile>
#include <QTemporaryFile>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <cmath>
#include <cstdio>
#include <functional>
#include <vector>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

constexpr int points = 1000000;

kdDataTable createCurve()
{
    QVector<QPointF> curve(points);
    for (int i = 0; i < points; ++i)
        curve[i] = QPointF(i * 0.01, 20.0 + 345.0 * std::log10(8.0 * i / 6000.0 + 1.0));
    kdDataTable table(kdUnitSystem::Time, kdUnitSystem::Temperature);
    table.setPoints(curve);
    return table;
}

void writePlain(QIODevice& device, const kdDataTable& table)
{
    QXmlStreamWriter writer(&device);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeStartElement(QStringLiteral("kdDataTable"));
    for (int i = 0; i < table.columns(); ++i)
        writer.writeEmptyElement(QStringLiteral("columndata"));
    for (int i = 0; i < table.rows(); ++i) {
        QStringList values;
        for (int k = 0; k < table.columns(); ++k)
            values.append(QString::number(table.column(k)->value(i), 'g', 16));
        writer.writeStartElement(QStringLiteral("row"));
        writer.writeAttribute(QStringLiteral("nb"), QString::number(i + 1));
        writer.writeCharacters(values.join(QLatin1Char(';')));
        writer.writeEndElement();
    }
    writer.writeEndElement();
    writer.writeEndDocument();
}

double readPlain(QIODevice& device)
{
    QXmlStreamReader reader(&device);
    std::vector<QVector<double>> columns;
    reader.readNextStartElement();
    while (reader.readNextStartElement()) {
        if (reader.name() == QLatin1String("row")) {
            const QStringList values = reader.readElementText().split(QLatin1Char(';'));
            for (std::size_t k = 0; k < columns.size(); ++k)
                columns[k].append(values.at(int(k)).toDouble());
        } else {
            if (reader.name() == QLatin1String("columndata"))
                columns.emplace_back();
            reader.skipCurrentElement();
        }
    }
    return columns[1].constLast();
}

double readOurs(QIODevice& device)
{
    QXmlStreamReader reader(&device);
    kdDataTable table;
    if (!table.readXML(reader))
        std::printf("reading failed: %s\n", qPrintable(reader.errorString()));
    return table.pointAt(table.rows() - 1).y();
}

void onBuffer(QByteArray& bytes, QIODevice::OpenMode mode, const std::function<void(QIODevice&)>& function)
{
    QBuffer buffer(&bytes);
    buffer.open(mode);
    function(buffer);
}

// Lets the system count the peak anew.
bool resetPeakMemory()
{
#ifdef __GLIBC__
    malloc_trim(0);
#endif
    QFile reset(QStringLiteral("/proc/self/clear_refs"));
    return reset.open(QIODevice::WriteOnly) && reset.write("5") == 1;
}

bool holdsMemory(const kdDataTable& table)
{
    QTemporaryFile file;
    if (!file.open() || !table.writeXML(file) || !file.seek(0) || !resetPeakMemory())
        return false;
    const double before = peakMemory();
    readOurs(file);
    const double grown = (peakMemory() - before) * 1024 * 1024;
    const double held = double(points) * 2 * sizeof(double);
    std::printf("Reader's peak memory: %.1f MB, %.2f times the %.0f MB of the values (to hold: below 4)\n",
                grown / 1e6, grown / held, held / 1e6);
    return grown < 4 * held;
}

bool holdsWriting(const kdDataTable& table, QByteArray& bytes)
{
    const auto writeWith = [&bytes](const std::function<void(QIODevice&)>& write) {
        return [&bytes, write] { onBuffer(bytes, QIODevice::WriteOnly | QIODevice::Truncate, write); };
    };
    Duel duel("Write a table of 1 000 000 rows and 2 columns, per row", points);
    duel.add("QXmlStreamWriter", writeWith([&table](QIODevice& device) { writePlain(device, table); }));
    duel.add("writeXML(QXmlStreamWriter&)", writeWith([&table](QIODevice& device) {
                 QXmlStreamWriter writer(&device);
                 writer.setAutoFormatting(true);
                 table.writeXML(writer);
             }));
    duel.add("writeXML(QIODevice&)", writeWith([&table](QIODevice& device) { table.writeXML(device); }));
    duel.run(5);
    const bool held = duel.demand("writeXML(QXmlStreamWriter&)", "QXmlStreamWriter", 1.35);
    return duel.demand("writeXML(QIODevice&)", "QXmlStreamWriter", 1.35) && held;
}

bool holdsReading(QByteArray& bytes)
{
    volatile double sink = 0.0; // keeps the work
    const auto readWith = [&bytes, &sink](double (*read)(QIODevice&)) {
        return [&bytes, &sink, read] {
            onBuffer(bytes, QIODevice::ReadOnly, [&sink, read](QIODevice& device) { sink = read(device); });
        };
    };
    Duel duel("Read a table of 1 000 000 rows and 2 columns, per row", points);
    duel.add("QXmlStreamReader", readWith(readPlain));
    duel.add("readXML", readWith(readOurs));
    duel.run(5);
    return duel.demand("readXML", "QXmlStreamReader", 1.4);
}

} // namespace

int main()
{
    const kdDataTable table = createCurve();
    bool held = holdsMemory(table);
    QByteArray bytes;
    bytes.reserve(100 * points);
    held = holdsWriting(table, bytes) && held;
    held = holdsReading(bytes) && held;
    return held ? 0 : 1;
}
