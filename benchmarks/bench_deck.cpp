#include "duel.h"
#include "reals.h"

#include <kdQCore/CFEDatLineWriter>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTextStream>

#include <cstdlib>

namespace {

constexpr int perLine = 8;

bool endsLine(int i, int size)
{
    return (i + 1) % perLine == 0 || i + 1 == size;
}

void writeWithPrintf(const QString& path, const QList<double>& values)
{
    std::FILE* const file = std::fopen(QFile::encodeName(path).constData(), "wb");
    for (int i = 0; i < values.size(); ++i) {
        std::fprintf(file, "%20.13E", values.at(i));
        if (endsLine(i, values.size()))
            std::fputs(i + 1 < values.size() ? " c\n" : "\n", file);
    }
    std::fclose(file);
}

void writeNaive(const QString& path, const QList<double>& values)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return;
    QTextStream stream(&file);
    for (int i = 0; i < values.size(); ++i) {
        char text[128];
        stream << QLatin1String(text, reals::formatNaive(values.at(i), 20, text));
        if (endsLine(i, values.size()))
            stream << QLatin1String(i + 1 < values.size() ? " c\n" : "\n");
    }
}

// With a writer on a stream of the caller's.
template <typename Write>
void writeThroughStream(const QString& path, Write write)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        std::abort();
    QTextStream stream(&file);
    CFEDatLineWriter writer(CFEDatLineWriter::extended, CFEDatLineWriter::fixed);
    writer.setFileHandler(&stream);
    if (!write(writer) || !writer.flush())
        std::abort();
}

bool writeItemwise(CFEDatLineWriter& writer, const QList<double>& values)
{
    bool ok = true;
    for (int i = 0; i < values.size(); ++i)
        ok = writer.writeDoubleInList(values.at(i), endsLine(i, values.size()), i + 1 < values.size()) && ok;
    return ok;
}

void writeRaw(const QString& path, qint64 size)
{
    static const QByteArray block(1024 * 1024, '1');
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        std::abort();
    for (qint64 written = 0; written < size; written += block.size())
        file.write(block.constData(), std::min(size - written, qint64(block.size())));
}

bool compare(const QString& path, const QList<double>& values, qint64 bytes)
{
    const std::string ours = "writeDoubleValues, caller's QTextStream";
    const std::string print = "fprintf \"%20.13E\" for each field";
    Duel duel("10 million reals, 20 columns, 8 a line", values.size());
    duel.add(print, [&] { writeWithPrintf(path, values); });
    duel.add("QTextStream, snprintf \"%20.20E\" and cut", [&] { writeNaive(path, values); });
    duel.add("writeDoubleInList for each field", [&] {
        writeThroughStream(path, [&](CFEDatLineWriter& writer) { return writeItemwise(writer, values); });
    });
    duel.add(ours, [&] {
        writeThroughStream(
            path, [&](CFEDatLineWriter& writer) { return writer.writeDoubleValues(values, perLine); });
    });
    duel.add("the same bytes, nothing formatted (limit)", [&] { writeRaw(path, bytes); });
    duel.run(3);
    return duel.demand(ours, print, 7.0);
}

// Memory where the system offers it as a folder: a disk would be measured instead of the writers.
QString folderInMemory()
{
    const QString shared = QStringLiteral("/dev/shm");
    return (QFileInfo(shared).isWritable() ? shared : QDir::tempPath())
        + QStringLiteral("/bench_deck-XXXXXX");
}

} // namespace

int main(int argc, char** argv)
{
    const QTemporaryDir folder(argc > 1 ? QFile::decodeName(argv[1]) + QStringLiteral("/bench_deck-XXXXXX")
                                        : folderInMemory());
    if (!folder.isValid())
        return 2;
    std::printf("Writing into %s\n", qPrintable(folder.path()));
    const QString path = folder.filePath(QStringLiteral("bench.dat"));
    const std::vector<double> source = reals::uniform(10000000);
    QList<double> values;
    values.reserve(static_cast<int>(source.size()));
    for (const double value : source)
        values.append(value);

    const double before = peakMemory();
    writeThroughStream(path,
                       [&](CFEDatLineWriter& writer) { return writer.writeDoubleValues(values, perLine); });
    std::printf("Peak memory: %.1f MiB with the values, %.1f MiB after writing them\n", before, peakMemory());
    return compare(path, values, QFile(path).size()) ? 0 : 1;
}
