#include "kdqtest.h"

#include <kdQCore/kdUnitValue>

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <limits>

using Unit = kdUnitSystem;
using Value = kdUnitValue;

namespace {

const Unit millimetre(Unit::Length, 1);
const Unit inch(Unit::Length, 4);
const QString elementName = QStringLiteral("duration");

QString written(const Value& value)
{
    QString text;
    QXmlStreamWriter writer(&text);
    value.writeXML(writer, elementName);
    return text;
}

} // namespace

class TestKdUnitValue : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void conversions();
    void comparisons_data();
    void comparisons();
    void notANumberEqualsNothing();
    void equalValuesHashAlike();
    void texts_data();
    void texts();
    void roundTrip_data();
    void roundTrip();
    void readsOtherVersions_data();
    void readsOtherVersions();
    void refusesBadElements_data();
    void refusesBadElements();
    void readerStandsBehindTheElement();
};

void TestKdUnitValue::conversions()
{
    Value value(25.4, millimetre);
    QCOMPARE(value.toUnit(inch).value(), 1.0);
    QCOMPARE(value.toUnit(inch).unitSystem(), inch);
    QCOMPARE(value.toSIUnit().unitSystem(), Unit(Unit::Length));
    QCOMPARE(value.valueIn(inch), 1.0);
    QCOMPARE(value.valueIn(Unit(Unit::Mass)), 25.4);
    value.setUnitSystem(inch);
    QCOMPARE(value.value(), 25.4);
    value.setUnitSystem(Unit(Unit::Length, Unit::NoUnit));
    QCOMPARE(value.toSIUnit().unitSystem(), Unit(Unit::Length, Unit::NoUnit));
}

void TestKdUnitValue::comparisons_data()
{
    QTest::addColumn<Value>("a");
    QTest::addColumn<Value>("b");
    QTest::addColumn<int>("order"); // of a against b
    QTest::newRow("inch") << Value(25.4, millimetre) << Value(1, inch) << 0;
    QTest::newRow("zeros") << Value(0.0) << Value(-0.0) << 0;
    QTest::newRow("same number, other dimension")
        << Value(0, Unit(Unit::Mass)) << Value(0, Unit(Unit::Time)) << -1;
    QTest::newRow("no unit") << Value(5, Unit(Unit::Length, -1)) << Value(5, Unit(Unit::Length)) << -1;
    QTest::newRow("both without unit")
        << Value(5, Unit(Unit::Length, -1)) << Value(5, Unit(Unit::Length, 77)) << 0;
}

void TestKdUnitValue::comparisons()
{
    QFETCH(Value, a);
    QFETCH(Value, b);
    QFETCH(int, order);
    QCOMPARE(a == b, order == 0);
    QCOMPARE(a != b, order != 0);
    QCOMPARE(a < b, order < 0);
    QCOMPARE(a > b, order > 0);
    QCOMPARE(a <= b, order <= 0);
    QCOMPARE(a >= b, order >= 0);
    QCOMPARE(b<a, order> 0);
}

void TestKdUnitValue::notANumberEqualsNothing()
{
    const Value value(qQNaN(), millimetre);
    QVERIFY(!(value == value) && value != value && !(value < value) && !(value <= value)
            && !(value >= value));
}

void TestKdUnitValue::equalValuesHashAlike()
{
    QCOMPARE(qHash(Value(25.4, millimetre)), qHash(Value(1, inch)));
    QCOMPARE(qHash(Value(0.0)), qHash(Value(-0.0)));
    QVERIFY(qHash(Value(1, Unit(Unit::Mass))) != qHash(Value(1, Unit(Unit::Time))));
}

void TestKdUnitValue::texts_data()
{
    QTest::addColumn<Value>("value");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("german");
    QTest::newRow("length") << Value(12.5, millimetre) << "12.5 mm"
                            << "12,5 mm";
    QTest::newRow("temperature") << Value(-0.1, Unit(Unit::Temperature, 1)) << "-0.1 °C"
                                 << "-0,1 °C";
    QTest::newRow("angle") << Value(90, Unit(Unit::Angle, 1)) << "90°"
                           << "90°";
    QTest::newRow("number") << Value(0.1) << "0.1"
                            << "0,1";
    QTest::newRow("no unit") << Value(1, Unit(Unit::Length, -1)) << "1"
                             << "1";
}

void TestKdUnitValue::texts()
{
    QFETCH(Value, value);
    QTEST(value.toString(), "text");
    QTEST(value.toLocalizedString(QLocale(QLocale::German)), "german");
}

void TestKdUnitValue::roundTrip_data()
{
    QTest::addColumn<Value>("value");
    for (int number = 0; number < Unit::dimensionCount(); ++number) {
        const auto dimension = static_cast<Unit::Dimension>(number);
        for (int unit = Unit::NoUnit; unit < Unit::unitCount(dimension); ++unit)
            QTest::addRow("%d %d", number, unit) << Value(1.0 / 3.0, Unit(dimension, unit));
    }
    QTest::newRow("largest") << Value(std::numeric_limits<double>::max());
    QTest::newRow("infinite") << Value(-std::numeric_limits<double>::infinity());
}

void TestKdUnitValue::roundTrip()
{
    QFETCH(Value, value);
    QXmlStreamReader reader(written(value));
    Value read(42, inch);
    QVERIFY2(read.readXML(reader, elementName), qPrintable(reader.errorString()));
    QCOMPARE(read.unitSystem(), value.unitSystem());
    QVERIFY(!(read.value() < value.value()) && !(read.value() > value.value()));
}

void TestKdUnitValue::readsOtherVersions_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<Unit>("unit");
    const auto row = [](const char* attributes, const Unit& unit) {
        QTest::newRow(attributes) << QString::fromUtf8(attributes) << unit;
    };
    row("dimension='4' unit='mm' system='metric'", millimetre);
    row("dimension='13' unit='1/min'", Unit(Unit::Frequency, 2));
    row("dimension='4'", Unit(Unit::Length));
    row("dimension='4' unit=''", Unit(Unit::Length, Unit::NoUnit));
    row("dimension='4711' unit='mm'", millimetre);
    row("dimension='length' unit='um'", Unit(Unit::Length, 3));
    row("", Unit());
}

void TestKdUnitValue::readsOtherVersions()
{
    QFETCH(QString, attributes);
    QXmlStreamReader reader(QStringLiteral("<duration ") + attributes
                            + QStringLiteral("> 12.5\n<note>measured</note></duration>"));
    Value value;
    QVERIFY2(value.readXML(reader, elementName), qPrintable(reader.errorString()));
    QCOMPARE(value.value(), 12.5);
    QTEST(value.unitSystem(), "unit");
}

void TestKdUnitValue::refusesBadElements_data()
{
    QTest::addColumn<QString>("text");
    const auto row = [](const char* text) { QTest::newRow(text) << QString::fromUtf8(text); };
    row("<duration dimension='3' unit='s'>12,5</duration>");
    row("<duration dimension='3' unit='s'></duration>");
    row("<duration dimension='3' unit='mm'>1</duration>");
    row("<duration dimension='4711' unit='fortnight'>1</duration>");
    row("<length dimension='3' unit='s'>1 (not a duration)</length>");
    row("<duration dimension='3' unit='s'>1");
}

void TestKdUnitValue::refusesBadElements()
{
    QFETCH(QString, text);
    QXmlStreamReader reader(text);
    Value value(7, inch);
    QVERIFY(!value.readXML(reader, elementName));
    QVERIFY(reader.hasError());
    if (reader.error() == QXmlStreamReader::CustomError)
        QVERIFY2(reader.errorString().contains(elementName), qPrintable(reader.errorString()));
    QCOMPARE(value, Value(7, inch));
}

void TestKdUnitValue::readerStandsBehindTheElement()
{
    QXmlStreamReader reader(
        QStringLiteral("<stage>%1%2</stage>").arg(written(Value(1, inch)), written(Value(2, inch))));
    QVERIFY(reader.readNextStartElement());
    for (const double expected : {1.0, 2.0}) {
        QVERIFY(reader.readNextStartElement());
        Value value;
        QVERIFY(value.readXML(reader, elementName));
        QCOMPARE(value, Value(expected, inch));
    }
    QVERIFY(!reader.readNextStartElement());
    QVERIFY(!reader.hasError());
}

KDQ_TEST_MAIN(TestKdUnitValue)
#include "tst_kdunitvalue.moc"
