#include "kdqtest.h"

#include <kdQCore/kdUnitSystem>
#include <kdQCore/kdUnitValue>

#include <cmath>
#include <limits>
#include <thread>

using Unit = kdUnitSystem;

namespace {

Unit::Dimension dimensionOf(int number)
{
    return static_cast<Unit::Dimension>(number);
}

Unit unitOf(const char* symbol, int dimension)
{
    for (int i = 0; i < Unit::unitCount(dimensionOf(dimension)); ++i)
        if (Unit(dimensionOf(dimension), i).symbol() == QString::fromUtf8(symbol))
            return {dimensionOf(dimension), i};
    return {dimensionOf(dimension), Unit::NoUnit};
}

} // namespace

class TestKdUnitSystem : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { Unit::resetViewUnits(); }

    void findsTypedSymbols_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("dimension"); // -1: any
        QTest::addColumn<int>("foundDimension");
        QTest::addColumn<QString>("symbol");

        const auto row = [](const char* typed, int dimension, int found, const char* symbol) {
            QTest::addRow("%s in %d", typed, dimension)
                << QString::fromUtf8(typed) << dimension << found << QString::fromUtf8(symbol);
        };
        const auto any = [&row](const char* typed, int found, const char* symbol) {
            row(typed, -1, found, symbol);
        };
        row("kg/kg", 29, 29, "kg/kg");
        any("kg / kg", 29, "kg/kg");
        any("um", 4, "µm");
        any("\xCE\xBCm", 4, "µm");
        any("mm**2", 5, "mm²");
        any("square millimetre", 5, "mm²");
        any("dm³", 6, "l");
        any("º", 2, "°");
        any("m·s⁻²", 8, "m/s²");
        any("rpm", 9, "1/min");
        row("1/min", 9, 9, "1/min");
        row("1/min", 13, 13, "1/min");
        row("1/s", 13, 13, "Hz");
        any("deg C", 10, "°C");
        any("℃", 10, "°C");
        any("° F", 10, "°F");
        row("°C", 11, 11, "K");
        any("°C/s", 12, "K/s");
        any("N*m", 16, "N·m");
        row("Nm", 17, 17, "J");
        any("g/cm3", 19, "g/cm³");
        any("J/kgK", 20, "J/(kg·K)");
        any("kJ kg^-1 K^-1", 20, "kJ/(kg·K)");
        any("W/m*K", 21, "W/(m·K)");
        any("1/°C", 23, "1/K");
        any("um/(m K)", 23, "µm/(m·K)");
        any("1e-6/K", 23, "µm/(m·K)");
        any("\xE2\x84\xA6", 27, "Ω"); // the ohm sign, not the Greek letter
        any("N/mm2", 30, "N/mm²");
        any("Mpa", 30, "MPa");
        any("m/s", 7, "m/s");
    }

    void findsTypedSymbols()
    {
        QFETCH(QString, typed);
        QFETCH(int, dimension);
        bool ok = false;
        const Unit unit = dimension < 0 ? Unit::fromSymbol(typed, &ok)
                                        : Unit::fromSymbol(typed, dimensionOf(dimension), &ok);
        QVERIFY(ok);
        QTEST(int(unit.dimension()), "foundDimension");
        QTEST(unit.symbol(), "symbol");
    }

    void refusesOtherTexts()
    {
        QStringList texts{QString(100000, QLatin1Char('('))};
        for (const char* text :
             {"", " ", "furlong", "mJ", "Mm", "W/", "/s/", "W/(m K", "W/m K)", "()", "m^", "m^999999999999",
              "m--2", "-m", "°°", "N/mm²;", "\xF0\x9F\x98\x80", "--", "m^-"})
            texts.append(QString::fromUtf8(text));
        for (const QString& text : texts) {
            bool ok = true;
            QCOMPARE(Unit::fromSymbol(text, &ok), Unit());
            QVERIFY2(!ok, qPrintable(text.left(20)));
        }
        for (const int dimension : {int(Unit::Mass), 33, -7}) {
            bool ok = true;
            QCOMPARE(Unit::fromSymbol(QStringLiteral("mm"), dimensionOf(dimension), &ok),
                     Unit(dimensionOf(dimension), -1));
            QVERIFY(!ok);
        }
    }

    void everySymbolAndNameIsFoundAgain()
    {
        for (int number = 0; number < Unit::dimensionCount(); ++number) {
            QCOMPARE(int(Unit::dimensionFromName(Unit::dimensionName(dimensionOf(number)).toUpper())),
                     number);
            for (int i = 0; i < Unit::unitCount(dimensionOf(number)); ++i) {
                const Unit unit(dimensionOf(number), i);
                QCOMPARE(Unit::fromSymbol(unit.symbol(), unit.dimension()), unit);
                QCOMPARE(Unit::fromSymbol(unit.name().toUpper(), unit.dimension()), unit);
                QCOMPARE(Unit::fromSymbol(unit.symbol()).symbol(), unit.symbol());
            }
        }
        bool ok = true;
        Unit::dimensionFromName(QStringLiteral("Luck"), &ok);
        QVERIFY(!ok);
    }

    void givesShortDecimalsExactly()
    {
        struct Row {
            int dimension;
            const char* from;
            double value;
            const char* to;
            double expected;
        };
        for (const Row& row :
             {Row{10, "K", 300, "°C", 26.85}, Row{10, "°C", 20, "K", 293.15}, Row{10, "°F", 212, "°C", 100},
              Row{10, "K", 0, "°F", -459.67}, Row{11, "°F", 9, "K", 5}, Row{4, "in", 1, "mm", 25.4},
              Row{9, "1/min", 60, "°/s", 360}, Row{30, "ksi", 1, "psi", 1000},
              Row{18, "hp", 1, "W", 745.69987158227022}, Row{3, "h", 0.1, "min", 6}}) {
            const Unit target = unitOf(row.to, row.dimension);
            QVERIFY(unitOf(row.from, row.dimension).canConvertTo(target));
            const double converted = unitOf(row.from, row.dimension).convert(row.value, target);
            QVERIFY2(converted >= row.expected && converted <= row.expected,
                     qPrintable(QStringLiteral("%1 %2").arg(converted, 0, 'g', 17).arg(target.symbol())));
        }
    }

    void leavesWhatCannotBeConverted()
    {
        const Unit millimetre(Unit::Length, 1);
        for (const Unit& other :
             {Unit(Unit::Mass), Unit(Unit::Length, -1), Unit(Unit::Length, 6), Unit(dimensionOf(999))}) {
            QVERIFY(!millimetre.canConvertTo(other));
            QCOMPARE(millimetre.convert(12.5, other), 12.5);
            QCOMPARE(other.convert(12.5, millimetre), 12.5);
            QCOMPARE(kdUnitValue(12.5, millimetre).toUnit(other).unitSystem(), millimetre);
        }
        QVERIFY(std::signbit(millimetre.convert(-0.0, millimetre)));
    }

    void arraysEqualSingleValues()
    {
        const Unit fahrenheit(Unit::Temperature, 2);
        const Unit kelvin(Unit::Temperature);
        QVector<double> values;
        for (int i = -1000; i < 1000; ++i)
            values.append(i * 0.37);
        QVector<double> converted = values;
        fahrenheit.convert(converted.data(), converted.size(), kelvin);
        fahrenheit.convert(nullptr, 0, kelvin);
        fahrenheit.convert(converted.data(), -5, kelvin);
        for (int i = 0; i < values.size(); ++i)
            QCOMPARE(converted.at(i), fahrenheit.convert(values.at(i), kelvin));
    }

    void invalidNumbersAreHarmless()
    {
        for (const int dimension : {-1, 33, std::numeric_limits<int>::max()}) {
            for (const int index : {-1, 0, 5}) {
                const Unit unit(dimensionOf(dimension), index);
                QVERIFY(!unit.isValid());
                QVERIFY(unit.symbol().isEmpty() && unit.name().isEmpty() && unit.translatedName().isEmpty());
                QVERIFY(!Unit::viewUnit(unit.dimension()).isValid());
                QVERIFY(!Unit::siUnit(unit.dimension()).isValid());
                Unit::setViewUnit(unit.dimension(), index);
                QCOMPARE(kdUnitValue(3.5, unit).toString(), QStringLiteral("3.5"));
            }
        }
    }

    void viewUnitsAreSetAndReset()
    {
        for (const int index : {4, 6, -1}) // the last two are no units
            Unit::setViewUnit(Unit::Length, index);
        QCOMPARE(kdUnitValue(25.4, unitOf("mm", 4)).toViewUnit().toString(), QStringLiteral("1 in"));
        Unit::resetViewUnits();
        QCOMPARE(Unit::viewUnit(Unit::Length).symbol(), QStringLiteral("mm"));
    }

    void viewUnitsAreSetFromAnyThread()
    {
        const auto work = [](int unit) {
            for (int i = 0; i < 2000; ++i) {
                Unit::setViewUnit(Unit::Stress, unit);
                if (!Unit::viewUnit(Unit::Stress).isValid()
                    || Unit::fromSymbol(QStringLiteral("N/mm^2")).unitIndex() != 4)
                    return false;
            }
            return true;
        };
        bool first = false;
        std::thread other([&] { first = work(2); });
        const bool second = work(4);
        other.join();
        QVERIFY(first && second);
        const int last = Unit::viewUnit(Unit::Stress).unitIndex();
        QVERIFY(last == 2 || last == 4);
    }
};

KDQ_TEST_MAIN(TestKdUnitSystem)
#include "tst_kdunitsystem.moc"
