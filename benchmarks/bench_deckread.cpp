// Reading decks: 10 million reals in fields of 20 columns beside the C library's and Qt's readers, and the
// check of decks of 200 MB beside reading their lines. The files lie in memory where the system offers that,
// and are read by each candidate from their beginning.

#include "duel.h"

#include <kdQCore/coDeckCheck>
#include <kdQCore/coDeckFields>
#include <kdQCore/coDeckScanner>
#include <kdQCore/coFeDataTableCard>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr int reals = 10000000;
constexpr qint64 checkedBytes = 200000000;

double real(int i)
{
    return std::ldexp(std::sin(i + 0.5), i % 60 - 30);
}

void require(bool condition)
{
    if (condition)
        return;
    std::fprintf(stderr, "the candidates do not read the same\n");
    std::exit(2);
}

void writeReals(const QString& path)
{
    QFile file(path);
    require(file.open(QIODevice::WriteOnly));
    QTextStream stream(&file);
    CFEDatLineWriter writer(CFEDatLineWriter::extended, CFEDatLineWriter::fixed);
    writer.setFileHandler(&stream);
    for (int i = 0; i < reals; ++i) {
        writer.writeDouble(real(i), true); // QTextStream cannot take adjoining fields apart
        if (i % 8 == 7)
            writer.writeStringUnformatted(i + 1 < reals ? " c\n" : "\n");
    }
}

struct Layout {
    const char* name;
    CFEDatLineWriter::datExtensionMode mode;
    CFEDatLineWriter::datFormat format;
};

constexpr Layout layouts[] = {
    {"extended fixed", CFEDatLineWriter::extended, CFEDatLineWriter::fixed},
    {"extended free", CFEDatLineWriter::extended, CFEDatLineWriter::free},
    {"standard fixed", CFEDatLineWriter::standard, CFEDatLineWriter::fixed},
    {"standard free", CFEDatLineWriter::standard, CFEDatLineWriter::free},
};

/// Tables point by point and as grids, as decks hold them.
void writeTables(const QString& path, const Layout& layout)
{
    QFile file(path);
    require(file.open(QIODevice::WriteOnly));
    QTextStream stream(&file);
    CFEDatLineWriter writer(layout.mode, layout.format);
    writer.setFileHandler(&stream);
    using Variable = coFeTableCard::IndependentVarUsingValues;
    constexpr int points = 10000;
    const auto type = static_cast<nMarc::e_TableVariableType>(12);
    for (int id = 1; file.size() < checkedBytes; ++id) {
        QList<double> x;
        QList<double> y;
        for (int i = 0; i < points; ++i) {
            x.append(i * 0.1);
            y.append(real(i + id));
        }
        const QString name = QStringLiteral("table_%1").arg(id);
        coFeDataTableCard card(name, id, Variable(type, id % 2 == 0 ? x : x.mid(0, points / 100)));
        card.setOwnValues(y);
        if (id % 2 != 0)
            card.coFeTableCard::setIndependentVariable2(Variable(type, x.mid(0, 100)));
        require(writer.writeCard(card));
        writer.flush();
    }
}

double sumOfScanner(const QString& path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    coDeckScanner scanner(file);
    double sum = 0.0;
    double value = 0.0;
    while (scanner.next()) {
        coDeckFields fields(scanner.line(), CFEDatLineWriter::extended);
        while (!fields.atEnd() && fields.readReal(value))
            sum += value;
    }
    return sum;
}

double sumOfScanf(const QString& path)
{
    std::FILE* const file = std::fopen(QFile::encodeName(path).constData(), "r");
    double sum = 0.0;
    double value = 0.0;
    char end = 0;
    while (std::fscanf(file, "%20lf", &value) == 1) {
        sum += value;
        if (std::fscanf(file, " %1[c]", &end) < 0) // the continuation mark
            break;
    }
    std::fclose(file);
    return sum;
}

double sumOfTextStream(const QString& path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    QTextStream stream(&file);
    double sum = 0.0;
    double value = 0.0;
    QString mark;
    for (int i = 1; i <= reals; ++i) {
        stream >> value;
        sum += value;
        if (i % 8 == 0 && i < reals)
            stream >> mark;
    }
    return sum;
}

double sumOfFromChars(const QByteArray& bytes)
{
    double sum = 0.0;
    double value = 0.0;
    for (const char* line = bytes.begin(); line != bytes.end(); ++line) {
        for (int i = 0; i < 8; ++i, line += 20) {
            std::from_chars(*line == ' ' ? line + 1 : line, line + 20, value);
            sum += value;
        }
        while (*line != '\n')
            ++line;
    }
    return sum;
}

qint64 bytesOfLines(const QString& path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    char line[1024];
    qint64 sum = 0;
    qint64 size = 0;
    while ((size = file.readLine(line, sizeof line)) > 0)
        sum += size;
    return sum;
}

bool check(const QString& path, const Layout& layout)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    coDeckCheck deckCheck(layout.mode);
    return deckCheck.run(file);
}

bool runChecks(const QString& path, const Layout& layout)
{
    writeTables(path, layout);
    const qint64 size = QFileInfo(path).size();
    Duel checking(std::string("Check a deck of 200 MB, ") + layout.name + ", per kB", double(size) / 1000.0);
    checking.add("QFile::readLine", [&] { require(bytesOfLines(path) == size); });
    checking.add("coDeckCheck", [&] { require(check(path, layout)); });
    checking.run(5);
    return checking.demand("coDeckCheck", "QFile::readLine", 1.0 / 3.0);
}

} // namespace

int main()
{
    const QString memory = QStringLiteral("/dev/shm");
    const QTemporaryDir folder(
        QDir(QDir(memory).exists() ? memory : QDir::tempPath()).filePath(QStringLiteral("decks-XXXXXX")));
    const QString realsPath = folder.filePath(QStringLiteral("reals.dat"));
    const QString tablesPath = folder.filePath(QStringLiteral("tables.dat"));
    writeReals(realsPath);
    QFile file(realsPath);
    require(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();

    const double sum = sumOfFromChars(bytes);
    Duel reading("Read 10 000 000 reals in fields of 20 columns, per real", reals);
    reading.add("fscanf %20lf", [&] { require(sumOfScanf(realsPath) == sum); });
    reading.add("QTextStream >>", [&] { require(sumOfTextStream(realsPath) == sum); });
    reading.add("from_chars over memory, the limit", [&] { require(sumOfFromChars(bytes) == sum); });
    reading.add("coDeckScanner, coDeckFields", [&] { require(sumOfScanner(realsPath) == sum); });
    reading.run(3);
    bool held = reading.demand("coDeckScanner, coDeckFields", "fscanf %20lf", 5.0);
    held = reading.demand("coDeckScanner, coDeckFields", "QTextStream >>", 3.0) && held;

    for (const Layout& layout : layouts)
        held = runChecks(tablesPath, layout) && held;
    return held ? 0 : 1;
}
