#include "kdqtest.h"
#include "tabletest.h"

#include <QBuffer>
#include <QFile>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <cmath>

namespace {

kdDataColumn column(const kdUnitSystem& unit, const QString& name, const QVector<double>& values)
{
    kdDataColumn result;
    result.setUnit(unit);
    result.setName(name);
    result.setValues(values);
    return result;
}

kdDataTable flowCurve()
{
    kdDataTable table;
    table.setName(QStringLiteral("flow curve"));
    table.setComment(QStringLiteral("S355, <20 °C> & \"rolled\"\r\nline 2\rline 3\ttab "));
    table.setIdTag(QStringLiteral("{42}"));
    table.setType(kdDataTable::TypeFlowCurve);
    kdDataColumn strain = column(kdUnitSystem(kdUnitSystem::None, 0), QStringLiteral("ε"), {0, 0.002, 0.15});
    strain.setUsage(kdDataColumn::UsageX);
    strain.setTitle(QStringLiteral("Plastic\nstrain; \"true\""));
    kdDataColumn stress =
        column(kdUnitSystem(kdUnitSystem::Stress, 2), QStringLiteral("σ"), {355, 357.5, -1e-300});
    stress.setUsage(kdDataColumn::UsageY);
    table.appendColumn(strain);
    table.appendColumn(stress);
    return table;
}

QString xml(const QByteArray& columnsAndRows)
{
    return QString::fromUtf8("<kdDataTable name='t'>" + columnsAndRows + "</kdDataTable>");
}

const QByteArray twoColumns = "<columndata/><columndata/>";

QByteArray writtenToDevice(const kdDataTable& table)
{
    QBuffer device;
    device.open(QIODevice::WriteOnly);
    return table.writeXML(device) ? device.data() : QByteArray();
}

QByteArray writtenForJes(const kdDataTable& table)
{
    QByteArray result;
    QXmlStreamWriter writer(&result);
    return table.writeXMLForJES(writer) ? result : QByteArray();
}

bool readFromXml(const QByteArray& text, kdDataTable& table)
{
    QXmlStreamReader reader(text);
    return table.readXML(reader);
}

} // namespace

class TestTableXml : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void roundTrip()
    {
        for (const kdDataTable& table : {flowCurve(), kdDataTable()}) {
            kdDataTable result;
            QVERIFY(readFromXml(writtenToDevice(table), result));
            QVERIFY(result == table && result.type() == table.type());
            QXmlStreamReader reader(writtenForJes(table));
            QVERIFY(result.readXMLForJES(reader));
            QVERIFY(result == table && result.type() == table.type());
        }
    }

    // A device gets the bytes that a writer with automatic formatting gives it.
    void deviceAndWriterAgree()
    {
        for (const int rows : {0, 1, 20000}) { // the last in several blocks
            kdDataTable table;
            table.setComment(QStringLiteral("ε > 0"));
            for (int i = 0; i < 3; ++i)
                table.appendColumn(column(kdUnitSystem(), QString(), QVector<double>(rows, 1.0 / (i + 3))));
            QByteArray expected;
            QXmlStreamWriter writer(&expected);
            writer.setAutoFormatting(true);
            writer.writeStartDocument();
            QVERIFY(table.writeXML(writer));
            writer.writeEndDocument();
            QCOMPARE(writtenToDevice(table), expected);
        }
    }

    // Special values and random bits: the text of each is that of QString::number, and reads back as it does.
    void values()
    {
        QVector<double> values{-0.0, 5e-324, 1e15, 1e16, 1e-5, Infinity, -Infinity, NaN};
        values << -4239147494527480.5 << 5.9604644775390625e-08 << 999999999999999.95; // ties
        QRandomGenerator random(20240607);
        while (values.size() < 40000) {
            const double value = doubleOf(random.generate64());
            values << (std::isnan(value) ? 0.1 * values.size() : value);
            values << random.bounded(1e16) / (quint64(1) << random.bounded(30));
        }
        kdDataTable table;
        table.appendColumn(column(kdUnitSystem(), QString(), values));
        const QByteArray text = writtenToDevice(table);
        kdDataTable result;
        QVERIFY(readFromXml(text, result));
        int position = 0;
        for (int i = 0; i < values.size(); ++i) {
            const QString number = QString::number(values.at(i), 'g', 16);
            position =
                text.indexOf("nb=\"" + QByteArray::number(i + 1) + "\">" + number.toLatin1(), position);
            QVERIFY2(position > 0, qPrintable(number));
            QCOMPARE(QString::number(result.columnRef(0).value(i), 'g', 16), number);
        }
    }

    void layout()
    {
        kdDataTable table = flowCurve();
        table.setComment(QStringLiteral("<\u03b5>"));
        table.cropDataTable(1, 2);
        const QString head = QStringLiteral(
            "name=\"flow curve\" type=\"1\" columns=\"2\" rows=\"2\">"
            "<name>flow curve</name><idTag>{42}</idTag><comment>&lt;\u03b5&gt;</comment><type>1</type>"
            "<columns>2</columns><rows>2</rows>"
            "<columndata title=\"Plastic&#10;strain; &quot;true&quot;\" type=\"0\" datatype=\"1\" "
            "fffunit=\"0\" unit_symbol=\"-\" usage=\"1\" dimension=\"0\"><name>\u03b5</name></columndata>"
            "<columndata title=\"\" type=\"7\" datatype=\"1\" fffunit=\"2\" unit_symbol=\"MPa\" "
            "usage=\"2\" dimension=\"30\"><name>\u03c3</name></columndata>");
        const QRegularExpression version(QStringLiteral(" version=\"[0-9.]+\">"));
        QCOMPARE(table.toXml().replace(version, QStringLiteral(">")),
                 QLatin1String("<kdDataTable ") + head
                     + QLatin1String("<row nb=\"1\">0.002;357.5</row><row nb=\"2\">0.15;-1e-300</row>"
                                     "</kdDataTable>"));
        QCOMPARE(QString::fromUtf8(writtenForJes(table)).replace(version, QStringLiteral(">")),
                 QLatin1String("<DataTable ") + head
                     + QLatin1String("<row nb=\"1\">0.002;357.5;</row><row nb=\"2\">0.15;-1e-300;</row>"
                                     "</DataTable>"));
    }

    // Whatever the catalogue holds, and pairs that it does not hold.
    void everyUnitReturns()
    {
        kdDataTable table;
        for (int number = 0; number < kdUnitSystem::dimensionCount() + 2; ++number) {
            const auto dimension = kdUnitSystem::Dimension(number);
            for (int unit = -1; unit <= kdUnitSystem::unitCount(dimension); ++unit)
                table.appendColumn(column(kdUnitSystem(dimension, unit), QString::number(unit), {1.0}));
        }
        table.column(3)->setType(kdDataColumn::Type(77));
        table.column(3)->setUsage(kdDataColumn::Usage(-5));
        kdDataTable result;
        QVERIFY(readFromXml(writtenToDevice(table), result));
        QVERIFY(result == table);
    }

    void textsThatXmlCannotHold()
    {
        const QString replacement(QChar(QChar::ReplacementCharacter));
        kdDataTable table(kdUnitSystem::Time, kdUnitSystem::Length);
        table.setName(QLatin1String("a\x01") + QChar(0xd800) + QChar(0xfffe) + QChar(0));
        table.setComment(QString(QChar(0xdc00)) + QString::fromUtf8("\xf0\x9f\x94\xa5"));
        table.setXName(QStringLiteral("]]>&#0;"));
        kdDataTable result;
        QVERIFY(readFromXml(writtenToDevice(table), result));
        QCOMPARE(result.name(), QLatin1Char('a') + replacement.repeated(4));
        QCOMPARE(result.comment(), replacement + QString::fromUtf8("\xf0\x9f\x94\xa5"));
        QCOMPARE(result.column(0)->name(), table.column(0)->name());
        QVERIFY(kdDataTable::fromXml(table.toXml()) == result);
    }

    void unitOfForeignColumns()
    {
        const auto unit = [](const char* attributes) {
            const kdDataTable table =
                kdDataTable::fromXml(xml("<columndata " + QByteArray(attributes) + "/>"));
            const kdUnitSystem system = table.columnRef(0).getUnitSystem();
            return qMakePair(int(system.dimension()), system.unitIndex());
        };
        QCOMPARE(unit("type='8' fffunit='2' unit_symbol='min'"), qMakePair(3, 2));
        QCOMPARE(unit("type='9' fffunit='0' unit_symbol='°C'"), qMakePair(10, 1)); // another order of units
        QCOMPARE(unit("type='0' fffunit='3' unit_symbol='MPa'"), qMakePair(30, 2));
        QCOMPARE(unit("type='7' fffunit='1' unit_symbol='mm' dimension='4'"), qMakePair(4, 1));
        QCOMPARE(unit("fffunit='0' unit_symbol='ft' dimension='4'"), qMakePair(4, 5));
        QCOMPARE(unit("fffunit='1' unit_symbol='furlong'"), qMakePair(0, 1));
        QCOMPARE(unit("fffunit='7' dimension='99'"), qMakePair(99, 7)); // of a later version
        QCOMPARE(unit("unit_symbol='Pa' dimension='99'"), qMakePair(30, 0));
    }

    void tolerated()
    {
        const QByteArray contents[] = {"<row>1;2</row><row>3;4</row>" + twoColumns,
                                       twoColumns + "<row>\n 1 ; +2;\n</row><row>3;4;</row>",
                                       "<x><row>9</row></x>" + twoColumns
                                           + "<row>1<y>8</y>;2</row><row>3;4</row>",
                                       twoColumns + "<row>1<!-- ;7 -->;<![CDATA[2]]></row><row>&#51;;4</row>",
                                       "<columns>900000000</columns><rows>2000000000</rows>" + twoColumns
                                           + "<row nb='7'>1;2</row><row nb='7'>3;4</row>"};
        for (const QByteArray& content : contents) {
            const kdDataTable table = kdDataTable::fromXml(xml(content));
            QVERIFY2(table.points() == (QVector<QPointF>{{1, 2}, {3, 4}}), content.constData());
        }
    }

    void broken_data()
    {
        QTest::addColumn<QString>("document");
        QTest::addColumn<QString>("error");
        QTest::newRow("too many values") << xml(twoColumns + "<row>1;2</row><row>1;2;3</row>")
                                         << "row 2 of 't' has 3 values, the table has 2 columns";
        QTest::newRow("too few values, first row") << xml(twoColumns + "<row>1</row><row>1;2</row>")
                                                   << "row 1 of 't' has 1 value, the table has 2 columns";
        QTest::newRow("no number") << xml(twoColumns + "<row>1;2</row><row>1;a2</row>")
                                   << "row 2, column 2: 'a2' is not a number";
        QTest::newRow("too large") << xml("<columndata/><row>1e999</row>")
                                   << "row 1, column 1: '1e999' is not a number";
        QTest::newRow("column type") << xml("<columndata type='length'/>")
                                     << "'length' is not a whole number";
        QTest::newRow("unit of another dimension")
            << xml("<columndata/><columndata dimension='4' unit_symbol='MPa'/>")
            << "column 2 has the unit 'MPa', which its dimension does not know";
        QTest::newRow("cut off") << xml(twoColumns).left(40) << "Premature end of document.";
        QTest::newRow("other element") << "<table/>"
                                       << "the element 'kdDataTable' is missing";
    }
    void broken()
    {
        QFETCH(QString, document);
        kdDataTable table = flowCurve();
        QXmlStreamReader reader(document);
        QVERIFY(!table.readXML(reader));
        QTEST(reader.errorString(), "error");
        QVERIFY(table == flowCurve());
        bool ok = true;
        QVERIFY(kdDataTable::fromXml(document, &ok) == kdDataTable());
        QVERIFY(!ok);
        ok = true;
        kdDataTable::fromXml(flowCurve().toXml() + QLatin1String("<x/>"), &ok); // garbage behind the table
        QVERIFY(!ok);
    }

    void insideALargerDocument()
    {
        QString document;
        QXmlStreamWriter writer(&document);
        writer.writeStartElement(QStringLiteral("project"));
        QVERIFY(flowCurve().writeXML(writer) && flowCurve().writeXMLForJES(writer));
        writer.writeEmptyElement(QStringLiteral("after"));
        writer.writeEndElement();

        QXmlStreamReader reader(document);
        QVERIFY(reader.readNextStartElement());
        kdDataTable table;
        QVERIFY(table.readXML(reader)); // stands before the element
        QVERIFY(reader.isEndElement() && reader.name() == kdDataTable::xmlStartElement());
        QVERIFY(reader.readNextStartElement() && table.readXMLForJES(reader)); // stands on it
        QVERIFY(reader.readNextStartElement());
        QCOMPARE(reader.name().toString(), QStringLiteral("after"));
        QVERIFY(!table.readXML(reader)); // and finds none in here
        QVERIFY(table == flowCurve());
    }

    void otherAttributesStay()
    {
        kdDataTable table = flowCurve();
        table.setEditable(false);
        table.setDefaultXColumnIndex(1);
        QVERIFY(readFromXml(writtenToDevice(flowCurve()), table));
        QVERIFY(!table.isEditable() && table.defaultXColumnIndex() == 1);
        QVERIFY(readFromXml(xml("<columndata/>").toUtf8(), table) && table.defaultXColumnIndex() == 0);
    }

    void devicesThatRefuse()
    {
        QFile full(QStringLiteral("/dev/full"));
        if (!full.exists())
            QSKIP("This system has no device that is always full.");
        QVERIFY(!flowCurve().writeXML(full));
        QVERIFY(!full.isOpen());
        QFile noFolder(QStringLiteral("/no such folder/table.xml"));
        QVERIFY(!flowCurve().writeXML(noFolder));
    }
};

KDQ_TEST_MAIN(TestTableXml)
#include "tst_tablexml.moc"
