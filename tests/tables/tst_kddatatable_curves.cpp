#include "kdqtest.h"
#include "tabletest.h"

#include <cmath>
#include <functional>

using Change = std::function<bool(kdDataTable&)>;
Q_DECLARE_METATYPE(Change)

namespace {

bool near(double a, double b)
{
    return same(a, b) || std::abs(a - b) <= 1e-9 * (1.0 + std::abs(a));
}

bool near(const Points& a, const Points& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const QPointF& one, const QPointF& two) {
        return near(one.x(), two.x()) && near(one.y(), two.y());
    });
}

} // namespace

class TestCurves : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Changes of a curve in place: what comes out, and what is returned. A refused change leaves the curve
    // alone.
    void changes_data()
    {
        QTest::addColumn<Points>("before");
        QTest::addColumn<Change>("change");
        QTest::addColumn<bool>("returned");
        QTest::addColumn<Points>("after");
        const auto row = [](const char* name, const Points& before, const Change& change, bool returned,
                            const Points& after) {
            QTest::newRow(name) << before << change << returned << after;
        };
        const auto refused = [&row](const char* name, const Points& points, const Change& change) {
            row(name, points, change, false, points);
        };
        const auto does = [](void (kdDataTable::*sort)(bool), bool descending) {
            return [sort, descending](kdDataTable& t) {
                (t.*sort)(descending);
                return true;
            };
        };

        const Points mixed{{2, 5}, {NaN, 1}, {1, NaN}, {2, 4}, {3, 4}};
        row("sort by X", mixed, does(&kdDataTable::sortForXValues, false), true,
            {{1, NaN}, {2, 5}, {2, 4}, {3, 4}, {NaN, 1}});
        row("sort by X, descending", mixed, does(&kdDataTable::sortForXValues, true), true,
            {{3, 4}, {2, 5}, {2, 4}, {1, NaN}, {NaN, 1}});
        row("sort by Y", mixed, does(&kdDataTable::sortForYValues, false), true,
            {{NaN, 1}, {2, 4}, {3, 4}, {2, 5}, {1, NaN}});

        const auto scaled = [](double x, double y) {
            return [x, y](kdDataTable& t) {
                t.scaleXData(x);
                t.scaleYData(y);
                return t.column(0)->getMonotonicity() == kdDataColumn::Decreasing
                    && t.maxXValue().value() == -1.0 && t.minXValue().value() == -2.0
                    && t.maxYValue().value() == 18.0;
            };
        };
        row("scale", {{1, 5}, {2, 6}}, scaled(-1, 3), true, {{-1, 15}, {-2, 18}});

        const auto crop = [](int first, int last) {
            return [first, last](kdDataTable& t) { return t.cropDataTable(first, last); };
        };
        const Points four{{0, 1}, {1, 2}, {2, 3}, {3, 4}};
        row("crop", four, crop(1, 2), true, {{1, 2}, {2, 3}});
        refused("crop backwards", four, crop(2, 1));

        const auto beginning = [](bool useY) {
            return [useY](kdDataTable& t) { return t.removeMultipleXValuesAtBeginning(useY) == 2; };
        };
        const Points rests{{0, 1}, {0, 2}, {0, 2}, {1, 2}, {0, 5}};
        row("leading X", rests, beginning(false), true, {{0, 2}, {1, 2}, {0, 5}});
        refused("leading Y", rests, beginning(true));
        refused("leading NaN", {{NaN, 1}, {NaN, 1}}, beginning(false));

        const Change toZero = [](kdDataTable& t) { return t.moveAllXToZero(); };
        row("move to zero", {{5, 1}, {2, 2}}, toZero, true, {{0, 2}, {3, 1}});
        row("move to zero, negative", {{5, 1}, {-2, 2}}, toZero, false, {{-2, 2}, {5, 1}});

        const auto greaterZero = [](kdDataTable& t) { return t.allXGreaterZeroExceptFirst(); };
        const auto positive = [](kdDataTable& t) { return t.allXPositive(); };
        row("zero first", {{5, 1}, {0, 2}}, greaterZero, true, {{0, 2}, {5, 1}});
        row("zero not first", {{5, 1}, {1, 2}}, greaterZero, false, {{1, 2}, {5, 1}});
        row("X positive", {{5, 1}, {0, 2}}, positive, true, {{0, 2}, {5, 1}});
        row("X negative", {{5, 1}, {-1, 2}}, positive, false, {{-1, 2}, {5, 1}});

        const auto allY = [](kdDataTable& t) { return t.allYGreaterZero(); };
        row("Y greater zero", {{-1, 1}, {0, 2}}, allY, true, {{-1, 1}, {0, 2}});
        refused("a missing Y", {{0, 1}, {1, NaN}}, allY);

        const auto sampled = [](const Values& x) {
            return [x](kdDataTable& t) { return t.applySamplingPoints(column(x)); };
        };
        const Points slope{{0, 0}, {1, 10}, {3, 30}};
        row("resample", slope, sampled({2, -1, NaN, 5, 0.5}), true, {{2, 20}, {-1, 0}, {5, 30}, {0.5, 5}});
        row("resample a falling curve", {{3, 30}, {1, 10}, {0, 0}}, sampled({0.5, 2}), true,
            {{0.5, 5}, {2, 20}});
        refused("resample up and down", {{0, 0}, {1, 1}, {0, 2}}, sampled({0.5}));

        const auto appended = [](const Points& points) {
            return [points](kdDataTable& t) { return t.appendXYValue(curve(points)); };
        };
        row("append points", {{0, 1}}, appended({{2, 3}, {1, 1}}), true, {{0, 1}, {2, 3}, {1, 1}});
        row("append itself", {{0, 1}}, [](kdDataTable& t) { return t.appendXYValue(t); }, true,
            {{0, 1}, {0, 1}});
        refused("append three columns", {{0, 1}}, [](kdDataTable& t) {
            kdDataTable three(t);
            three.appendColumn(column({1}));
            return t.appendXYValue(three);
        });
    }

    void changes()
    {
        QFETCH(Points, before);
        QFETCH(Change, change);
        QFETCH(Points, after);
        kdDataTable table = curve(before);
        table.column(0)->getMonotonicity(); // a stale cache would show
        QTEST(change(table), "returned");
        QVERIFY(near(table.points(), after));
        kdDataTable fresh = curve(table.points());
        QCOMPARE(table.column(0)->getMonotonicity(), fresh.column(0)->getMonotonicity());
    }

    void canSum()
    {
        QVERIFY(curve({{1, 1}, {1, 1}, {2, 0}}).canSumOrSubtract());
        QVERIFY(!kdDataTable().canSumOrSubtract());
        for (const Points& points : {Points{{1, 1}, {1, 2}, {2, 0}}, Points{{1, 1}, {NaN, 2}}}) {
            kdDataTable table = curve(points);
            kdDataTable other = curve({{0, 1}});
            QVERIFY(!table.canSumOrSubtract());
            QVERIFY(!table.sumXY(other) && !other.subtractXY(table) && !table.average(other, other));
            QCOMPARE(other, curve({{0, 1}}));
            QVERIFY(near(table.points(), points));
        }
    }

    // Two curves, then their sum, difference, mean and cut; empty means refused.
    void combinations_data()
    {
        QTest::addColumn<QVector<Points>>("curves");
        const auto row = [](const char* name, const QVector<Points>& curves) {
            QTest::newRow(name) << curves;
        };
        row("overlap",
            {{{0, 0}, {2, 2}},
             {{1, 10}, {3, 30}},
             {{0, 10}, {1, 11}, {2, 22}, {3, 32}},
             {{0, -10}, {1, -9}, {2, -18}, {3, -28}},
             {{1, 5.5}, {2, 11}},
             {{1, 1}, {2, 2}}});
        row("apart",
            {{{0, 1}, {1, 2}},
             {{2, 5}, {3, 6}},
             {{0, 6}, {1, 7}, {2, 7}, {3, 8}},
             {{0, -4}, {1, -3}, {2, -3}, {3, -4}},
             {},
             {}});
        row("a falling one around a rising one",
            {{{4, 4}, {0, 0}},
             {{1, 10}, {2, 10}},
             {{4, 14}, {2, 12}, {1, 11}, {0, 10}},
             {{4, -6}, {2, -8}, {1, -9}, {0, -10}},
             {{2, 6}, {1, 5.5}},
             {{2, 2}, {1, 1}}});
        const Points slope{{0, 0}, {2, 2}};
        row("with nothing", {slope, {}, slope, slope, {}, {}});
        const Points rise{{0, 1}, {1, 2}}, level{{0, 0}, {1, 0}}, twice{{0, 2}, {1, 4}},
            step{{0, 1}, {0, 1}, {1, 2}};
        row("double points", {step, rise, twice, level, rise, step});
        row("missing X", {{{NaN, 7}, {0, 1}, {1, 2}}, rise, twice, level, rise, rise});
    }

    void combinations()
    {
        QFETCH(QVector<Points>, curves);
        const Points one = curves.value(0), sum = curves.value(2), difference = curves.value(3);
        const Points mean = curves.value(4), cut = curves.value(5);
        const kdDataTable other = curve(curves.value(1));
        kdDataTable added = curve(one);
        kdDataTable subtracted = curve(one);
        kdDataTable averaged = curve(one);
        kdDataTable part = curve(one);
        QVERIFY(added.sumXY(other));
        QVERIFY(near(added.points(), sum));
        QVERIFY(subtracted.subtractXY(other));
        QVERIFY(near(subtracted.points(), difference));
        QCOMPARE(averaged.average(other, averaged), !mean.isEmpty());
        QVERIFY(near(averaged.points(), mean.isEmpty() ? one : mean));
        QCOMPARE(part.getCutByOtherTable(other, part), !cut.isEmpty());
        QVERIFY(near(part.points(), cut.isEmpty() ? one : cut));
    }

    void combinesInItsOwnUnits()
    {
        kdDataTable metres = curve({{0, 1}, {0.3, 4}}, kdUnitSystem::Time, kdUnitSystem::Length);
        kdDataTable other(metres);
        other.toUnit(1, 1); // ms and mm: 0.3 s comes back with a rounding error
        QVERIFY(metres.sumXY(other));
        QVERIFY(near(metres.points(), {{0, 2}, {0.3, 8}}));
        QVERIFY(metres.appendXYValue(other));
        QVERIFY(near(metres.points(), {{0, 2}, {0.3, 8}, {0, 1}, {0.3, 4}}));
        kdDataTable kelvin = curve({{0, 1}}, kdUnitSystem::Time, kdUnitSystem::Temperature);
        QVERIFY(!kelvin.sumXY(other) && !kelvin.appendXYValue(other) && !other.average(kelvin, kelvin));
        QVERIFY(!other.getCutByOtherTable(curve({{0, 0}}, kdUnitSystem::Length), kelvin));
        QCOMPARE(kelvin.points(), (Points{{0, 1}}));
        kdDataColumn samples(kdUnitSystem::Time);
        samples.appendValue(0.15);
        QVERIFY(other.applySamplingPoints(samples));
        QVERIFY(near(other.points(), {{150, 2500}}));
        QVERIFY(!other.applySamplingPoints(*kelvin.column(1)));
    }

    void equalXKeepTheirOrder()
    {
        const Points step{{2, 5}, {1, 4}, {1, 3}, {0, 2}};
        kdDataTable cut;
        QVERIFY(curve(step).getCutByOtherTable(curve({{0, 0}, {2, 0}}), cut));
        QCOMPARE(cut.points(), step);
    }

    void combinesSeveralYColumns()
    {
        kdDataTable three = curve({{0, 1}, {1, 2}});
        QVERIFY(three.appendColumn(column({10, 20})));
        kdDataTable four(three);
        QVERIFY(four.appendColumn(column({0, 0})));
        QVERIFY(!four.sumXY(three));
        QVERIFY(four.sumXY(curve({{0, 5}}))); // for every column
        QCOMPARE(four.column(1)->values() + four.column(2)->values(), (Values{6, 7, 15, 25}));
        QVERIFY(three.subtractXY(three));
        QCOMPARE(three.column(2)->values(), (Values{0, 0}));
    }

    void removesZeroInTheGivenUnit()
    {
        kdDataTable table =
            curve({{0, 273.15}, {1, 0}, {2, NaN}, {3, 274}}, kdUnitSystem::Time, kdUnitSystem::Temperature);
        kdDataTable fahrenheit(table);
        QVERIFY(fahrenheit.yToUnit(2));
        QCOMPARE(fahrenheit.removePointsWithYValueZero(kdUnitSystem(kdUnitSystem::Temperature, 1)), 1);
        QCOMPARE(fahrenheit.column(0)->values(), (Values{1, 2, 3}));
        QCOMPARE(table.removePointsWithYValueZero(kdUnitSystem(kdUnitSystem::Temperature)), 1);
        QCOMPARE(table.column(0)->values(), (Values{0, 2, 3}));
        QCOMPARE(table.removePointsWithYValueZero(kdUnitSystem(kdUnitSystem::Length)), 0);
    }

    void spansNewMinAndMax()
    {
        const kdUnitSystem degrees(kdUnitSystem::Temperature, 1);
        kdDataTable table =
            curve({{0, 10}, {1, 20}, {2, NaN}, {3, 15}}, kdUnitSystem::Time, kdUnitSystem::Temperature);
        QVERIFY(table.adjustYValuesToNewMinMax(degrees, 0, 100));
        for (const double maximum : {-1.0, NaN, Infinity})
            QVERIFY(!table.adjustYValuesToNewMinMax(degrees, 0, maximum));
        QVERIFY(!table.adjustYValuesToNewMinMax(kdUnitSystem(kdUnitSystem::Mass), 0, 1));
        QVERIFY(near(table.points(), {{0, 273.15}, {1, 373.15}, {2, NaN}, {3, 323.15}}));
        QCOMPARE(table.maxYValue(), kdUnitValue(373.15, kdUnitSystem(kdUnitSystem::Temperature)));
        QVERIFY(!curve({{0, 1}, {1, 1}}).adjustYValuesToNewMinMax(kdUnitSystem(), 0, 1));
    }

    // Long enough for several blocks; equal X show whether the order of their points stays.
    void longTables()
    {
        std::mt19937 random(20);
        Points points(300000);
        for (int i = 0; i < points.size(); ++i)
            points[i] = {double(random() % 1000), double(i)};
        const kdDataTable before = curve(points);
        kdDataTable table(before);
        double done = 0.0;
        const auto goOn = [&done](double now) {
            const bool isOn = now >= done && now <= 1.0;
            done = now;
            return isOn;
        };
        QVERIFY(table.sortForXValues(false, goOn) && done > 0.5);
        std::stable_sort(points.begin(), points.end(),
                         [](const QPointF& a, const QPointF& b) { return a.x() < b.x(); });
        QCOMPARE(table.points(), points);
        for (int i = 0; i < points.size(); ++i)
            points[i].setX(i);
        const kdDataTable rising = curve(points);
        kdDataTable sum;
        done = 0.0;
        QVERIFY(rising.combine(kdDataTable::Sum, rising, sum, goOn) && done > 0.5);
        QCOMPARE(sum.points().last(), QPointF(299999, 2 * points.last().y()));

        const auto stop = [](double now) { return now < 0.5; };
        table = before;
        QVERIFY(!table.sortForXValues(true, stop) && table == before);
        for (const auto way : {kdDataTable::Sum, kdDataTable::Difference, kdDataTable::Average})
            QVERIFY(!rising.combine(way, rising, table, stop) && table == before);
    }

    void forthStroke()
    {
        const auto section = [](const Values& stroke) {
            kdDataTable table = curve({});
            for (double position : stroke)
                table.addPoint(table.rows(), position);
            QPair<int, int> found(99, 99);
            const bool isFound = table.getForthStrokeSection(found.first, found.second);
            return isFound == (found.first >= 0) ? found : QPair<int, int>(99, 99);
        };
        QCOMPARE(section({0, 1, 2, 1, 0}), qMakePair(0, 2));
        QCOMPARE(section({0, 0, 1, 1, 2, 2, 1}), qMakePair(1, 4)); // rests before, within, behind
        QCOMPARE(section({2, 1, 0, 3, 4, 0, 9}), qMakePair(2, 4)); // back first
        QCOMPARE(section({NaN, 1, 2, NaN, 3}), qMakePair(1, 2));
        QCOMPARE(section({3, 2, 2}), qMakePair(-1, -1));
    }
};

KDQ_TEST_MAIN(TestCurves)
#include "tst_kddatatable_curves.moc"
