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

} // namespace

class TestKdUnitValue : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void comparisons()
    {
        struct Row {
            Value a;
            Value b;
            int order; // of a against b
        };
        for (const Row& row :
             {Row{Value(25.4, millimetre), Value(1, inch), 0}, Row{Value(0.0), Value(-0.0), 0},
              Row{Value(0, Unit(Unit::Mass)), Value(0, Unit(Unit::Time)), -1},
              Row{Value(5, Unit(Unit::Length, -1)), Value(5, Unit(Unit::Length)), -1},
              Row{Value(5, Unit(Unit::Length, -1)), Value(5, Unit(Unit::Length, 77)), 0}}) {
            const Value& a = row.a;
            const Value& b = row.b;
            QVERIFY((a == b) == (row.order == 0) && (a != b) == (row.order != 0));
            QVERIFY((a < b) == (row.order < 0) && (a > b) == (row.order > 0) && !(b < a));
            QVERIFY(a <= b && (a >= b) == (row.order == 0));
            QVERIFY(row.order != 0 || qHash(a) == qHash(b));
        }
        QVERIFY(qHash(Value(1, Unit(Unit::Mass))) != qHash(Value(1, Unit(Unit::Time))));
        const Value none(qQNaN(), millimetre);
        QVERIFY(!(none == none) && none != none && !(none < none) && !(none <= none) && !(none >= none));
    }

    void texts()
    {
        struct Row {
            Value value;
            const char* text;
            const char* german;
        };
        for (const Row& row :
             {Row{Value(12.5, millimetre), "12.5 mm", "12,5 mm"},
              Row{Value(-0.1, Unit(Unit::Temperature, 1)), "-0.1 °C", "-0,1 °C"},
              Row{Value(90, Unit(Unit::Angle, 1)), "90°", "90°"}, Row{Value(0.1), "0.1", "0,1"},
              Row{Value(1, Unit(Unit::Length, -1)), "1", "1"}}) {
            QCOMPARE(row.value.toString(), QString::fromUtf8(row.text));
            QCOMPARE(row.value.toLocalizedString(QLocale(QLocale::German)), QString::fromUtf8(row.german));
        }
    }

    void roundTrip()
    {
        QVector<Value> values{Value(std::numeric_limits<double>::max()),
                              Value(-std::numeric_limits<double>::infinity())};
        for (int number = 0; number < Unit::dimensionCount(); ++number) {
            const auto dimension = static_cast<Unit::Dimension>(number);
            for (int unit = Unit::NoUnit; unit < Unit::unitCount(dimension); ++unit)
                values.append(Value(1.0 / 3.0, Unit(dimension, unit)));
        }
        QString text;
        QXmlStreamWriter writer(&text);
        writer.writeStartElement(S("stage"));
        for (const Value& value : qAsConst(values))
            value.writeXML(writer, elementName);
        writer.writeEndElement();

        QXmlStreamReader reader(text);
        QVERIFY(reader.readNextStartElement());
        for (const Value& value : qAsConst(values)) {
            Value read(42, inch);
            QVERIFY2(reader.readNextStartElement() && read.readXML(reader, elementName),
                     qPrintable(reader.errorString()));
            QCOMPARE(read.unitSystem(), value.unitSystem());
            QVERIFY(!(read.value() < value.value()) && !(read.value() > value.value()));
        }
        QVERIFY(!reader.readNextStartElement() && !reader.hasError()); // stands behind the last one
    }

    void readsOtherVersions()
    {
        const QVector<QPair<const char*, Unit>> rows{
            {"dimension='4' unit='mm' system='metric'", millimetre},
            {"dimension='13' unit='1/min'", Unit(Unit::Frequency, 2)},
            {"dimension='4'", Unit(Unit::Length)},
            {"dimension='4' unit=''", Unit(Unit::Length, Unit::NoUnit)},
            {"dimension='4711' unit='mm'", millimetre},
            {"dimension='length' unit='um'", Unit(Unit::Length, 3)},
            {"", Unit()}};
        for (const auto& row : rows) {
            QXmlStreamReader reader(QStringLiteral("<duration %1> 12.5\n<note>measured</note></duration>")
                                        .arg(QLatin1String(row.first)));
            Value value;
            QVERIFY2(value.readXML(reader, elementName), row.first);
            QCOMPARE(value.value(), 12.5);
            QCOMPARE(value.unitSystem(), row.second);
        }
    }

    void refusesBadElements()
    {
        for (const char* text : {"<duration dimension='3' unit='s'>12,5</duration>",
                                 "<duration dimension='3' unit='s'></duration>",
                                 "<duration dimension='3' unit='mm'>1</duration>",
                                 "<duration dimension='4711' unit='fortnight'>1</duration>",
                                 "<length dimension='3' unit='s'>1 (not a duration)</length>",
                                 "<duration dimension='3' unit='s'>1"}) {
            QXmlStreamReader reader{QLatin1String(text)};
            Value value(7, inch);
            QVERIFY2(!value.readXML(reader, elementName), text);
            QVERIFY(reader.hasError());
            if (reader.error() == QXmlStreamReader::CustomError)
                QVERIFY2(reader.errorString().contains(elementName), qPrintable(reader.errorString()));
            QCOMPARE(value, Value(7, inch));
        }
    }
};

KDQ_TEST_MAIN(TestKdUnitValue)
#include "tst_kdunitvalue.moc"
