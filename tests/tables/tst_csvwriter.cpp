#include "kdqtest.h"
#include "logcapture.h"
#include "tabletest.h"

#include <kdQCore/coCustomCSVWriter>
#include <kdQCore/coTableCSVWriter>
#include <kdQCore/kdUnitValue>
#include <kdQCore/nCSV>

#include <QBuffer>
#include <QProcess>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTextStream>

#include <cmath>
#include <limits>

namespace {

using Row = QList<QVariant>;
using Rows = QList<Row>;

coCustomCSVWriter writerOf(const Rows& rows, const QStringList& titles = {})
{
    return {titles, rows.size(), [rows](int row) { return rows.at(row); }};
}

QString written(const coCSVWriter& writer)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly); // not as text: line ends as written, on every system
    return writer.write(&buffer) ? QString::fromUtf8(buffer.data()) : S("write() failed");
}

QVariant in(kdUnitSystem::Dimension dimension, int unit, double value)
{
    return QVariant::fromValue(kdUnitValue(value, kdUnitSystem(dimension, unit)));
}

kdDataTable forging()
{
    kdDataTable table(kdUnitSystem::Time, kdUnitSystem::Temperature);
    table.addPoint(0.0, 293.15);
    table.addPoint(90.0, 1473.25);
    table.setName(S("forging"));
    table.setComment(S("first\nsecond"));
    table.setXName(S("time"));
    table.columnRef(1).setTitle(S("die; upper"));
    return table;
}

/// Takes so many bytes and then no more, as a full disk does.
class FullDevice : public QIODevice {
public:
    explicit FullDevice(qint64 room) : m_room(room) { }

protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char*, qint64 size) override
    {
        m_room -= size;
        return m_room >= 0 ? size : -1;
    }

private:
    qint64 m_room;
};

/// Reads a file with Python's csv module: texts and the bits of numbers by turns.
constexpr char readerScript[] = R"(
import csv, struct, sys
path, delimiter, mark = sys.argv[1:]
with open(path, newline="", encoding="utf-8") as file:
    for row in csv.reader(file, delimiter=delimiter, strict=True):
        for index, cell in enumerate(row):
            if index % 2:
                cell = struct.pack(">d", float(cell.replace(mark, "."))).hex()
            sys.stdout.buffer.write(cell.encode("utf-8") + b"\x1f")
        sys.stdout.buffer.write(b"\x1e")
)";

QString bits(double value)
{
    quint64 number;
    std::memcpy(&number, &value, sizeof number);
    return QString::number(number, 16).rightJustified(16, QLatin1Char('0'));
}

/// Texts and numbers by turns; finite numbers of all magnitudes.
Rows hardRows(const QString& delimiter)
{
    const QStringList texts{S("plain"), S("a\"b"),     S("\"\""),       S("a\nb"),          S("a\r\nb"),
                            S("\r"),    S(" a "),      delimiter,       S("a") + delimiter, QString(),
                            S("#5"),    S("Größe µm"), S("a;b,c\td|e"), S("=1+1"),          S("'")};
    QRandomGenerator random(20240607);
    Rows rows;
    for (const QString& text : texts)
        rows.append(Row{text, 1234.5, text, -1e-300});
    while (rows.size() < 500) {
        const quint64 number = random.generate64();
        const double value = doubleOf(number);
        const double decimal = random.bounded(100000) / 1000.0;
        if (std::isfinite(value))
            rows.append(Row{texts.at(int(number % quint64(texts.size()))), value, S("x"), decimal});
    }
    return rows;
}

} // namespace

/// CSV files: the bytes of cells, lines and headers, and whether other programs read them.
class TestCsvWriter : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void lines_data()
    {
        QTest::addColumn<Row>("tokens");
        QTest::addColumn<QString>("delimiter");
        QTest::addColumn<int>("mark"); // of decimals
        QTest::addColumn<bool>("protects");
        QTest::addColumn<QString>("line");

        const auto row = [](const char* name, const Row& tokens, const QString& line,
                            const QString& delimiter, int mark = nCSV::DecimalPoint, bool protects = false) {
            QTest::newRow(name) << tokens << delimiter << mark << protects << line;
        };
        const QString semicolon = S(";");
        const Row numbers{1234567.5, 0.1, 1e-300, -2.0, 1.0 / 3.0};
        row("reals with comma", numbers, S("1234567,5;0,1;1e-300;-2;0,3333333333333333"), semicolon,
            nCSV::DecimalComma);
        row("other numbers", {-7, 0.1f, std::numeric_limits<qulonglong>::max(), true},
            S("-7;0.1;18446744073709551615;true"), semicolon);
        row("no numbers", {NaN, -Infinity, QVariant()}, S("nan;-inf;"), semicolon);
        row("chosen unit, own unit", {in(kdUnitSystem::Length, 1, 12.5), in(kdUnitSystem::Time, 3, 0.5)},
            S("0.0125;0.5"), semicolon);
        row("dates and lists", {QDate(2024, 2, 29), QTime(12, 30), QVariantList{1}},
            S("2024-02-29;12:30:00.000;"), semicolon);
        row("long separator, a part of it at the end", {S("a|"), S("b")}, S("\"a|\"||b"), S("||"));
        row("separator of a number", {105.0, 2.0}, S("\"105\"02"), S("0"));
        row("no comment", {S("#1"), S("#2")}, S("\"#1\";#2"), semicolon);
        row("one empty cell", {QString()}, S("\"\""), semicolon);
        const Row formulas{S("=1+1"), S("+a"), S("-a"), S("@a"), S(" =a"), S("-5.5"), S("+"), -5.5, S("a=")};
        row("formulas protected", formulas, S("'=1+1;'+a;'-a;'@a;' =a;-5.5;'+;-5.5;a="), semicolon,
            nCSV::DecimalPoint, true);
        row("formula that needs quotes", {S("=a;b")}, S("\"'=a;b\""), semicolon, nCSV::DecimalPoint, true);
        row("number with comma in a text", {S("-5,5"), S("-5,5,5"), S("-inf")}, S("-5,5;'-5,5,5;'-inf"),
            semicolon, nCSV::DecimalComma, true);
    }

    void lines()
    {
        QFETCH(Row, tokens);
        QFETCH(QString, delimiter);
        QFETCH(int, mark);
        QFETCH(bool, protects);
        coCustomCSVWriter writer = writerOf({tokens});
        writer.setDelimiter(delimiter);
        writer.setLocale(nCSV::localeForDecimalSeparator(mark));
        writer.setUnitIndex(kdUnitSystem::Length, 0);
        QString text;
        QTextStream stream(&text);
        writer.writeLine(stream, tokens, protects);
        QFETCH(QString, line);
        QCOMPARE(text, line + QLatin1Char('\n'));

        writer.setHeader(coCSVWriter::NoHeader);
        writer.setProtectTexts(protects);
        QCOMPARE(written(writer), text);
    }

    void header()
    {
        coCustomCSVWriter writer = writerOf({{1, 2.0}}, {S("a;b"), S("c\nd")});
        writer.setUnitIndices({{kdUnitSystem::Temperature, 1}, {kdUnitSystem::Length, 1}});
        writer.setCommentPrefix(S("//"));
        QString text = written(writer);
        text.replace(QRegularExpression(S("\\d\\d\\.\\d\\d\\.\\d{4} \\d\\d:\\d\\d:\\d\\d")), S("DATE"));
        QCOMPARE(text,
                 S("// CSV file produced by Kaldoran\n// Date of creation: DATE\n//\n// Units in this file\n"
                   "// Length: millimetre [mm]\n// Temperature: degree Celsius [°C]\n//\n"
                   "// \"a;b\";\"c d\"\n1;2\n"));
    }

    void tables()
    {
        coTableCSVWriter writer(forging());
        writer.setUnitIndices({{kdUnitSystem::Time, 2}, {kdUnitSystem::Length, 0}});
        const QStringList lines = written(writer).split(QLatin1Char('\n'));
        QCOMPARE(
            QStringList(lines.mid(3)).join(QLatin1Char('\n')),
            S("# Units in this file\n# Time: minute [min]\n# Length: metre [m]\n# Table: forging\n# first "
              "second\n"
              "#\n# time [min];\"die; upper [K]\"\n0;293.15\n1.5;1473.25\n"));
    }

    void failures()
    {
        QTemporaryDir folder;
        coTableCSVWriter writer(forging());
        QVERIFY(!writer.write(nullptr));
        LogCapture log;
        const QString missing = folder.filePath(S("none/a.csv"));
        QVERIFY(!writer.write(missing));
        QCOMPARE(log.texts().size(), 1);
        QVERIFY2(log.texts().constFirst().startsWith(S("CSV file '%1' cannot be written: ").arg(missing)),
                 qPrintable(log.texts().constFirst()));

        writer.setFileName(folder.filePath(S("a.csv")));
        QVERIFY(writer.write());
        QVERIFY(kdqContentOf(writer.fileName()).contains("1473.25"));
        QFile file(writer.fileName());
        QVERIFY(file.open(QIODevice::ReadOnly) && !writer.write(&file)); // open, but not for this

        const coCustomCSVWriter rowWriter = writerOf(hardRows(S(";")));
        const int size = written(rowWriter).toUtf8().size();
        for (const int room : {0, 100, size - 1, size}) {
            FullDevice device(room);
            QVERIFY(device.open(QIODevice::WriteOnly));
            QCOMPARE(rowWriter.write(&device), room == size);
        }
    }

    void pythonReadsBack()
    {
        const QString python = QStandardPaths::findExecutable(S("python3"));
        if (python.isEmpty())
            QSKIP("no python3");
        for (const QString& delimiter : {S(";"), S(","), S("\t"), S(" "), S("|")}) {
            for (const int mark : {nCSV::DecimalPoint, nCSV::DecimalComma}) {
                const Rows rows = hardRows(delimiter);
                coCustomCSVWriter writer = writerOf(rows);
                writer.setDelimiter(delimiter);
                writer.setLocale(nCSV::localeForDecimalSeparator(mark));
                writer.setHeader(coCSVWriter::NoHeader);
                QTemporaryDir folder;
                QFile file(folder.filePath(S("a.csv")));
                QVERIFY(
                    file.open(QIODevice::WriteOnly)); // not as text: line breaks in cells stay as they are
                QVERIFY(writer.write(&file));

                QProcess process;
                process.start(python,
                              {S("-c"), QString::fromLatin1(readerScript), file.fileName(), delimiter,
                               mark == nCSV::DecimalComma ? S(",") : S(".")});
                QVERIFY(process.waitForFinished());
                QCOMPARE(process.readAllStandardError(), QByteArray());
                QString expected;
                for (const Row& row : rows) {
                    for (int i = 0; i < row.size(); ++i)
                        expected += (i % 2 ? bits(row.at(i).toDouble()) : row.at(i).toString()) + QChar(0x1f);
                    expected += QChar(0x1e);
                }
                QCOMPARE(QString::fromUtf8(process.readAllStandardOutput()), expected);
            }
        }
    }
};

KDQ_TEST_MAIN(TestCsvWriter)
#include "tst_csvwriter.moc"
