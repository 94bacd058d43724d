#include "kdqtest.h"

#include <kdQCore/kdUnitSystem>

#include <algorithm>
#include <clocale>
#include <cmath>
#include <limits>
#include <memory>
#include <udunits2.h>

namespace {

// What each unit of the catalogue is, in UDUNITS' own terms: by dimension number, then in catalogue order.
const QVector<QByteArrayList> definitions = {
    {"1", "percent"},
    {"kilogram", "gram", "tonne", "pound"},
    {"radian", "arc_degree"},
    {"second", "millisecond", "minute", "hour"},
    {"meter", "millimeter", "centimeter", "micrometer", "international_inch", "international_foot"},
    {"meter2", "millimeter2", "centimeter2", "international_inch2"},
    {"meter3", "millimeter3", "centimeter3", "liter", "international_inch3"},
    {"meter/second", "millimeter/second", "millimeter/minute", "meter/minute", "international_inch/second"},
    {"meter/second2", "millimeter/second2"},
    {"radian/second", "revolution/minute", "arc_degree/second"},
    {"kelvin", "degree_Celsius", "degree_Fahrenheit"},
    {"kelvin", "degree_Rankine"},
    {"kelvin/second", "kelvin/minute", "kelvin/hour"},
    {"hertz", "kilohertz", "1/minute"},
    {"1/second", "1/minute"},
    {"newton", "kilonewton", "meganewton", "pound_force"},
    {"newton.meter", "newton.millimeter", "kilonewton.meter"},
    {"joule", "kilojoule", "megajoule", "kilowatt.hour"},
    {"watt", "kilowatt", "megawatt",
     "550 international_foot.pound_force/second"}, // "horsepower" is rounded there
    {"kilogram/meter3", "gram/centimeter3", "tonne/millimeter3"},
    {"joule/(kilogram.kelvin)", "joule/(gram.kelvin)", "kilojoule/(kilogram.kelvin)"},
    {"watt/(meter.kelvin)", "milliwatt/(millimeter.kelvin)"},
    {"watt/(meter2.kelvin)", "milliwatt/(millimeter2.kelvin)"},
    {"1/kelvin", "micrometer/(meter.kelvin)"},
    {"watt/meter2", "watt/millimeter2"},
    {"ampere", "kiloampere", "milliampere"},
    {"volt", "kilovolt", "millivolt"},
    {"ohm", "milliohm", "microohm"},
    {"meter/second", "millimeter/second", "centimeter/second"},
    {"kilogram/kilogram", "percent"},
    {"pascal", "kilopascal", "megapascal", "gigapascal", "newton/millimeter2",
     "pound_force/international_inch2", "1000 pound_force/international_inch2"},
    {"meter2/second", "millimeter2/second", "centimeter2/second"},
    {"1", "1024", "1048576", "1073741824"},
};

template <typename T, void (*release)(T*)>
struct Releaser {
    void operator()(T* object) const { release(object); }
};

using System = std::unique_ptr<ut_system, Releaser<ut_system, ut_free_system>>;
using Unit = std::unique_ptr<ut_unit, Releaser<ut_unit, ut_free>>;
using Converter = std::unique_ptr<cv_converter, Releaser<cv_converter, cv_free>>;

} // namespace

class TestUdunits : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyPairOfUnits_data();
    void everyPairOfUnits();

private:
    Unit unit(const QByteArray& definition) const
    {
        return Unit(ut_parse(m_system.get(), definition.constData(), UT_UTF8));
    }

    System m_system;
};

void TestUdunits::initTestCase()
{
    std::setlocale(LC_NUMERIC, "C"); // UDUNITS reads its own file with the user's decimal mark
    ut_set_error_message_handler(ut_ignore);
    m_system.reset(ut_read_xml(nullptr));
    QVERIFY(m_system);
    QCOMPARE(definitions.size(), kdUnitSystem::dimensionCount());
}

void TestUdunits::everyPairOfUnits_data()
{
    QTest::addColumn<kdUnitSystem>("from");
    QTest::addColumn<kdUnitSystem>("to");
    for (int number = 0; number < definitions.size(); ++number) {
        const auto dimension = static_cast<kdUnitSystem::Dimension>(number);
        QCOMPARE(definitions.at(number).size(), kdUnitSystem::unitCount(dimension));
        for (int from = 0; from < kdUnitSystem::unitCount(dimension); ++from)
            for (int to = 0; to < kdUnitSystem::unitCount(dimension); ++to)
                QTest::addRow("%d: %s to %s", number, qPrintable(kdUnitSystem(dimension, from).symbol()),
                              qPrintable(kdUnitSystem(dimension, to).symbol()))
                    << kdUnitSystem(dimension, from) << kdUnitSystem(dimension, to);
    }
}

// The two compute in different steps: each may be some roundings off, a rounding of the largest number on the
// way where a zero is shifted.
void TestUdunits::everyPairOfUnits()
{
    QFETCH(kdUnitSystem, from);
    QFETCH(kdUnitSystem, to);
    const Unit source = unit(definitions.at(from.dimension()).at(from.unitIndex()));
    const Unit target = unit(definitions.at(to.dimension()).at(to.unitIndex()));
    QVERIFY(source && target);
    const Converter converter(ut_get_converter(source.get(), target.get()));
    QVERIFY(converter);
    constexpr double roundings = 4;
    for (const double value :
         {0.0, 1.0, -1.0, 0.1, 1234.5, -273.15, 6.02214076e23, -1.602176634e-19, 355.0}) {
        const double expected = cv_convert_double(converter.get(), value);
        const double converted = from.convert(value, to);
        const double scale = from.dimension() == kdUnitSystem::Temperature
            ? std::max({std::abs(expected), std::abs(value), 459.67})
            : std::abs(expected);
        QVERIFY2(std::abs(converted - expected) <= roundings * std::numeric_limits<double>::epsilon() * scale,
                 qPrintable(QStringLiteral("%1: %2, not %3")
                                .arg(value, 0, 'g', 17)
                                .arg(converted, 0, 'g', 17)
                                .arg(expected, 0, 'g', 17)));
        const double back = to.convert(converted, from);
        QVERIFY(std::abs(back - value)
                <= roundings * std::numeric_limits<double>::epsilon() * std::max(scale, std::abs(value)));
    }
}

KDQ_TEST_MAIN(TestUdunits)
#include "tst_udunits.moc"
