#include "kdqtest.h"

#include <kdQCore/kdUnitSystem>
#include <kdQCore/kdUnitValue>

#include <atomic>
#include <cmath>
#include <limits>

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

    void findsTypedSymbols()
    {
        struct Row {
            const char* typed;
            int dimension;
            int found;
            const char* symbol;
        };
        constexpr int any = -1; // dimension; what follows is found
        for (const Row& row : {Row{"kg/kg", 29, 29, "kg/kg"},
                               Row{"kg / kg", any, 29, "kg/kg"},
                               Row{"um", any, 4, "µm"},
                               Row{"\xCE\xBCm", any, 4, "µm"},
                               Row{"mm**2", any, 5, "mm²"},
                               Row{"square millimetre", any, 5, "mm²"},
                               Row{"dm³", any, 6, "l"},
                               Row{"º", any, 2, "°"},
                               Row{"m·s⁻²", any, 8, "m/s²"},
                               Row{"rpm", any, 9, "1/min"},
                               Row{"1/min", 9, 9, "1/min"},
                               Row{"1/min", 13, 13, "1/min"},
                               Row{"1/s", 13, 13, "Hz"},
                               Row{"deg C", any, 10, "°C"},
                               Row{"℃", any, 10, "°C"},
                               Row{"° F", any, 10, "°F"},
                               Row{"°C", 11, 11, "K"},
                               Row{"°C/s", any, 12, "K/s"},
                               Row{"N*m", any, 16, "N·m"},
                               Row{"Nm", 17, 17, "J"},
                               Row{"g/cm3", any, 19, "g/cm³"},
                               Row{"J/kgK", any, 20, "J/(kg·K)"},
                               Row{"kJ kg^-1 K^-1", any, 20, "kJ/(kg·K)"},
                               Row{"W/m*K", any, 21, "W/(m·K)"},
                               Row{"1/°C", any, 23, "1/K"},
                               Row{"um/(m K)", any, 23, "µm/(m·K)"},
                               Row{"1e-6/K", any, 23, "µm/(m·K)"},
                               Row{"\xE2\x84\xA6", any, 27, "Ω"},
                               Row{"N/mm2", any, 30, "N/mm²"},
                               Row{"Mpa", any, 30, "MPa"},
                               Row{"m/s", any, 7, "m/s"}}) {
            const QString typed = QString::fromUtf8(row.typed);
            bool ok = false;
            const Unit unit = row.dimension == any ? Unit::fromSymbol(typed, &ok)
                                                   : Unit::fromSymbol(typed, dimensionOf(row.dimension), &ok);
            QVERIFY2(ok, row.typed);
            QCOMPARE(S("%1: %2 of %3").arg(typed, unit.symbol()).arg(unit.dimension()),
                     S("%1: %2 of %3").arg(typed, QString::fromUtf8(row.symbol)).arg(row.found));
        }
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
        double values[] = {1, 2};
        millimetre.convert(values, -1, Unit(Unit::Length));
        millimetre.convert(values, 1, Unit(Unit::Length));
        QCOMPARE(values[0] + values[1], 2.001);
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
        const kdUnitValue value(25.4, unitOf("mm", 4));
        QCOMPARE(value.toViewUnit().toString(), S("1 in"));
        QCOMPARE(value.toSIUnit().toString(), S("0.0254 m"));
        Unit::resetViewUnits();
        QCOMPARE(Unit::viewUnit(Unit::Length).symbol(), QStringLiteral("mm"));
    }

    void viewUnitsAreSetFromAnyThread()
    {
        std::atomic<int> faults{0};
        kdqInThreads(2, [&faults](int thread) {
            for (int i = 0; i < 2000; ++i) {
                Unit::setViewUnit(Unit::Stress, 2 + 2 * thread);
                const int index = Unit::viewUnit(Unit::Stress).unitIndex();
                faults += (index != 2 && index != 4) || Unit::fromSymbol(S("N/mm^2")).unitIndex() != 4;
            }
        });
        QCOMPARE(faults.load(), 0);
    }
};

KDQ_TEST_MAIN(TestKdUnitSystem)
#include "tst_kdunitsystem.moc"
