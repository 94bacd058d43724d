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

    System m_system;

    Converter converter(const QByteArray& from, const QByteArray& to) const
    {
        const Unit source(ut_parse(m_system.get(), from.constData(), UT_UTF8));
        const Unit target(ut_parse(m_system.get(), to.constData(), UT_UTF8));
        return Converter(source && target ? ut_get_converter(source.get(), target.get()) : nullptr);
    }

    // The two compute in different steps: each may be some roundings off, a rounding of the largest number on
    // the way where a zero is shifted.
    static void compare(const kdUnitSystem& from, const kdUnitSystem& to, const cv_converter* converter)
    {
        constexpr double tolerance = 4 * std::numeric_limits<double>::epsilon();
        for (const double value :
             {0.0, 1.0, -1.0, 0.1, 1234.5, -273.15, 6.02214076e23, -1.602176634e-19, 355.0}) {
            const double expected = cv_convert_double(converter, value);
            const double converted = from.convert(value, to);
            const double scale = from.dimension() == kdUnitSystem::Temperature
                ? std::max({std::abs(expected), std::abs(value), 459.67})
                : std::abs(expected);
            QVERIFY2(std::abs(converted - expected) <= tolerance * scale,
                     qPrintable(QStringLiteral("%1 %2 are %3 %4, not %5")
                                    .arg(QString::number(value), from.symbol(),
                                         QString::number(converted, 'g', 17), to.symbol(),
                                         QString::number(expected, 'g', 17))));
            QVERIFY(std::abs(to.convert(converted, from) - value)
                    <= tolerance * std::max(scale, std::abs(value)));
        }
    }

private Q_SLOTS:
    void initTestCase()
    {
        std::setlocale(LC_NUMERIC, "C"); // UDUNITS reads its own file with the user's decimal mark
        ut_set_error_message_handler(ut_ignore);
        m_system.reset(ut_read_xml(nullptr));
        QVERIFY(m_system);
    }

    void everyPairOfUnits()
    {
        QCOMPARE(definitions.size(), kdUnitSystem::dimensionCount());
        for (int number = 0; number < definitions.size(); ++number) {
            const auto dimension = static_cast<kdUnitSystem::Dimension>(number);
            const QByteArrayList& units = definitions.at(number);
            QCOMPARE(units.size(), kdUnitSystem::unitCount(dimension));
            for (int from = 0; from < units.size(); ++from)
                for (int to = 0; to < units.size(); ++to) {
                    const Converter reference = converter(units.at(from), units.at(to));
                    QVERIFY2(reference, units.at(from).constData());
                    compare(kdUnitSystem(dimension, from), kdUnitSystem(dimension, to), reference.get());
                    if (QTest::currentTestFailed())
                        return;
                }
        }
    }
};

KDQ_TEST_MAIN(TestUdunits)
#include "tst_udunits.moc"
