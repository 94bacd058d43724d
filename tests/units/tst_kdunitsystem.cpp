#include "kdqtest.h"

#include <kdQCore/kdUnitSystem>
#include <kdQCore/kdUnitValue>

#include <cmath>
#include <limits>
#include <thread>

class TestKdUnitSystem : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { kdUnitSystem::resetViewUnits(); }
    void findsTypedSymbols_data();
    void findsTypedSymbols();
    void refusesOtherTexts_data();
    void refusesOtherTexts();
    void everySymbolAndNameIsFoundAgain();
    void givesShortDecimalsExactly_data();
    void givesShortDecimalsExactly();
    void leavesWhatCannotBeConverted();
    void arraysEqualSingleValues();
    void invalidNumbersAreHarmless();
    void viewUnitsAreSetAndReset();
    void viewUnitsAreSetFromAnyThread();
    void dimensionNames();
};

namespace {

kdUnitSystem::Dimension dimensionOf(int number)
{
    return static_cast<kdUnitSystem::Dimension>(number);
}

kdUnitSystem unitOf(const char* symbol, int dimension)
{
    for (int i = 0; i < kdUnitSystem::unitCount(dimensionOf(dimension)); ++i)
        if (kdUnitSystem(dimensionOf(dimension), i).symbol() == QString::fromUtf8(symbol))
            return {dimensionOf(dimension), i};
    return {dimensionOf(dimension), kdUnitSystem::NoUnit};
}

} // namespace

void TestKdUnitSystem::findsTypedSymbols_data()
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

void TestKdUnitSystem::findsTypedSymbols()
{
    QFETCH(QString, typed);
    QFETCH(int, dimension);
    bool ok = false;
    const kdUnitSystem unit = dimension < 0 ? kdUnitSystem::fromSymbol(typed, &ok)
                                            : kdUnitSystem::fromSymbol(typed, dimensionOf(dimension), &ok);
    QVERIFY(ok);
    QTEST(int(unit.dimension()), "foundDimension");
    QTEST(unit.symbol(), "symbol");
}

void TestKdUnitSystem::refusesOtherTexts_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("dimension");
    const auto row = [](const char* typed, int dimension) {
        QTest::addRow("'%.20s' in %d", typed, dimension) << QString::fromUtf8(typed) << dimension;
    };
    for (const char* typed :
         {"", " ", "furlong", "mJ", "Mm", "W/", "/s/", "W/(m K", "W/m K)", "()", "m^", "m^999999999999",
          "m--2", "-m", "°°", "N/mm²;", "\xF0\x9F\x98\x80", "--", "m^-"})
        row(typed, -1);
    row("mm", kdUnitSystem::Mass);
    row("mm", 33);
    row("mm", -7);
    QTest::newRow("endless") << QString(100000, QLatin1Char('(')) << -1;
}

void TestKdUnitSystem::refusesOtherTexts()
{
    QFETCH(QString, typed);
    QFETCH(int, dimension);
    bool ok = true;
    if (dimension == -1) {
        QCOMPARE(kdUnitSystem::fromSymbol(typed, &ok), kdUnitSystem());
        QVERIFY(!ok);
    }
    ok = true;
    const kdUnitSystem inDimension = kdUnitSystem::fromSymbol(typed, dimensionOf(dimension), &ok);
    QVERIFY(!ok);
    QCOMPARE(inDimension, kdUnitSystem(dimensionOf(dimension), -1));
}

void TestKdUnitSystem::everySymbolAndNameIsFoundAgain()
{
    for (int number = 0; number < kdUnitSystem::dimensionCount(); ++number) {
        for (int i = 0; i < kdUnitSystem::unitCount(dimensionOf(number)); ++i) {
            const kdUnitSystem unit(dimensionOf(number), i);
            QCOMPARE(kdUnitSystem::fromSymbol(unit.symbol(), unit.dimension()), unit);
            QCOMPARE(kdUnitSystem::fromSymbol(unit.name().toUpper(), unit.dimension()), unit);
            QCOMPARE(kdUnitSystem::fromSymbol(unit.symbol()).symbol(), unit.symbol());
        }
    }
}

void TestKdUnitSystem::givesShortDecimalsExactly_data()
{
    QTest::addColumn<int>("dimension");
    QTest::addColumn<QString>("from");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("to");
    QTest::addColumn<double>("expected");
    const auto row = [](int dimension, const char* from, double value, const char* to, double expected) {
        QTest::addRow("%g %s to %s", value, from, to)
            << dimension << QString::fromUtf8(from) << value << QString::fromUtf8(to) << expected;
    };
    row(10, "K", 300, "°C", 26.85);
    row(10, "°C", 20, "K", 293.15);
    row(10, "°F", 212, "°C", 100);
    row(10, "K", 0, "°F", -459.67);
    row(11, "°F", 9, "K", 5);
    row(4, "in", 1, "mm", 25.4);
    row(9, "1/min", 60, "°/s", 360);
    row(30, "ksi", 1, "psi", 1000);
    row(18, "hp", 1, "W", 745.69987158227022);
    row(3, "h", 0.1, "min", 6);
}

void TestKdUnitSystem::givesShortDecimalsExactly()
{
    QFETCH(int, dimension);
    QFETCH(QString, from);
    QFETCH(double, value);
    QFETCH(QString, to);
    QFETCH(double, expected);
    const kdUnitSystem source = unitOf(from.toUtf8().constData(), dimension);
    const kdUnitSystem target = unitOf(to.toUtf8().constData(), dimension);
    QVERIFY(source.canConvertTo(target));
    const double converted = source.convert(value, target);
    QVERIFY2(converted >= expected && converted <= expected, qPrintable(QString::number(converted, 'g', 17)));
}

void TestKdUnitSystem::leavesWhatCannotBeConverted()
{
    const kdUnitSystem millimetre(kdUnitSystem::Length, 1);
    for (const kdUnitSystem& other :
         {kdUnitSystem(kdUnitSystem::Mass), kdUnitSystem(kdUnitSystem::Length, -1),
          kdUnitSystem(kdUnitSystem::Length, 6), kdUnitSystem(dimensionOf(999))}) {
        QVERIFY(!millimetre.canConvertTo(other));
        QCOMPARE(millimetre.convert(12.5, other), 12.5);
        QCOMPARE(other.convert(12.5, millimetre), 12.5);
        QCOMPARE(kdUnitValue(12.5, millimetre).toUnit(other).unitSystem(), millimetre);
    }
    QVERIFY(std::signbit(millimetre.convert(-0.0, millimetre)));
}

void TestKdUnitSystem::arraysEqualSingleValues()
{
    const kdUnitSystem fahrenheit(kdUnitSystem::Temperature, 2);
    const kdUnitSystem kelvin(kdUnitSystem::Temperature);
    QVector<double> values;
    for (int i = -1000; i < 1000; ++i)
        values.append(i * 0.37);
    QVector<double> converted = values;
    fahrenheit.convert(converted.data(), converted.size(), kelvin);
    for (int i = 0; i < values.size(); ++i)
        QCOMPARE(converted.at(i), fahrenheit.convert(values.at(i), kelvin));
    fahrenheit.convert(nullptr, 0, kelvin);
    fahrenheit.convert(converted.data(), -5, kelvin);
    QCOMPARE(converted.constFirst(), fahrenheit.convert(values.constFirst(), kelvin));
}

void TestKdUnitSystem::invalidNumbersAreHarmless()
{
    for (const int dimension : {-1, 33, std::numeric_limits<int>::max()}) {
        for (const int index : {-1, 0, 5}) {
            const kdUnitSystem unit(dimensionOf(dimension), index);
            QVERIFY(!unit.isValid());
            QVERIFY(unit.symbol().isEmpty() && unit.name().isEmpty() && unit.translatedName().isEmpty());
            QVERIFY(!kdUnitSystem::viewUnit(unit.dimension()).isValid());
            QVERIFY(!kdUnitSystem::siUnit(unit.dimension()).isValid());
            kdUnitSystem::setViewUnit(unit.dimension(), index);
            QCOMPARE(kdUnitValue(3.5, unit).toString(), QStringLiteral("3.5"));
        }
    }
}

void TestKdUnitSystem::viewUnitsAreSetAndReset()
{
    kdUnitSystem::setViewUnit(kdUnitSystem::Length, 4);
    kdUnitSystem::setViewUnit(kdUnitSystem::Length, 6);
    kdUnitSystem::setViewUnit(kdUnitSystem::Length, -1);
    QCOMPARE(kdUnitValue(25.4, unitOf("mm", 4)).toViewUnit().toString(), QStringLiteral("1 in"));
    kdUnitSystem::resetViewUnits();
    QCOMPARE(kdUnitSystem::viewUnit(kdUnitSystem::Length).symbol(), QStringLiteral("mm"));
}

void TestKdUnitSystem::viewUnitsAreSetFromAnyThread()
{
    const auto work = [](int unit) {
        for (int i = 0; i < 2000; ++i) {
            kdUnitSystem::setViewUnit(kdUnitSystem::Stress, unit);
            if (!kdUnitSystem::viewUnit(kdUnitSystem::Stress).isValid())
                return false;
            if (kdUnitSystem::fromSymbol(QStringLiteral("N/mm^2")).unitIndex() != 4)
                return false;
        }
        return true;
    };
    bool first = false;
    std::thread other([&] { first = work(2); });
    const bool second = work(4);
    other.join();
    QVERIFY(first && second);
    const int last = kdUnitSystem::viewUnit(kdUnitSystem::Stress).unitIndex();
    QVERIFY(last == 2 || last == 4);
}

void TestKdUnitSystem::dimensionNames()
{
    for (int number = 0; number < kdUnitSystem::dimensionCount(); ++number) {
        bool ok = false;
        const QString name = kdUnitSystem::dimensionName(dimensionOf(number));
        QCOMPARE(int(kdUnitSystem::dimensionFromName(name.toUpper(), &ok)), number);
        QVERIFY(ok);
    }
    bool ok = false;
    kdUnitSystem::dimensionFromName(QStringLiteral("Luck"), &ok);
    QVERIFY(!ok);
}

KDQ_TEST_MAIN(TestKdUnitSystem)
#include "tst_kdunitsystem.moc"
