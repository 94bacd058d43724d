#include "kdqtest.h"
#include "tabletest.h"

#include <cmath>
#include <functional>
#include <random>

using Column = kdDataColumn;
using Change = std::function<void(kdDataColumn&)>;
Q_DECLARE_METATYPE(Change)

class TestKdDataColumn : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Values, extremes and size after a change; the extremes are those of the rules for single changes.
    void changes_data()
    {
        QTest::addColumn<Values>("before");
        QTest::addColumn<Change>("change");
        QTest::addColumn<Values>("after");
        QTest::addColumn<double>("minimum");
        QTest::addColumn<double>("maximum");
        const auto row = [](const char* name, const Values& before, const Change& change, const Values& after,
                            double minimum, double maximum) {
            QTest::newRow(name) << before << change << after << minimum << maximum;
        };
        const auto append = [](double v) { return [v](Column& c) { c.appendValue(v); }; };
        const auto insert = [](int i, double v) { return [i, v](Column& c) { c.insertValueAt(i, v); }; };
        const auto set = [](int i, double v) { return [i, v](Column& c) { c.setValueAt(i, v); }; };
        const auto remove = [](int i) { return [i](Column& c) { c.removeValueAt(i); }; };
        const auto cut = [](int i, int count) { return [i, count](Column& c) { c.removeValues(i, count); }; };
        const auto scale = [](double factor) { return [factor](Column& c) { c.scaleValues(factor); }; };
        const Change sort = [](Column& c) { c.sortValues(); };
        const Change determine = [](Column& c) { c.generateMinMax(); };
        row("append infinity first", {}, append(Infinity), {Infinity}, Infinity, Infinity);
        row("append NaN", {1, 2}, append(NaN), {1, 2, NaN}, 1, 2);
        row("append after NaN", {NaN}, append(5), {NaN, 5}, 0, 5);
        row("insert NaN", {1, 2}, insert(1, NaN), {1, NaN, 2}, 1, 2);
        row("insert above range", {1}, insert(2, 9), {1}, 1, 1);
        row("set extreme to NaN", {1, 2, 3}, set(0, NaN), {NaN, 2, 3}, 2, 3);
        row("set all to NaN", {1}, set(0, NaN), {NaN}, Largest, -Largest);
        row("set above range", {1}, set(1, 9), {1}, 1, 1);
        row("remove above range", {4}, remove(1), {4}, 4, 4);
        row("remove a stretch", {1, 2, 3, 4}, cut(2, 2), {1, 2}, 1, 2);
        row("remove too long a stretch", {1, 2}, cut(1, 2), {1, 2}, 1, 2);
        row("scale negatively", {1, -2, NaN}, scale(-2), {-2, 4, NaN}, -2, 4);
        row("sort", {3, NaN, 1, Infinity}, sort, {1, 3, Infinity, NaN}, 1, Infinity);
        row("only NaN, determined anew", {NaN}, determine, {NaN}, Largest, -Largest);
        row("NaN first, determined anew", {NaN, 5}, determine, {NaN, 5}, 5, 5);
    }

    void changes()
    {
        QFETCH(Values, before);
        QFETCH(Change, change);
        QFETCH(Values, after);
        Column subject = column(before);
        change(subject);
        QVERIFY(same(subject.values(), after));
        QTEST(subject.minimum(), "minimum");
        QTEST(subject.maximum(), "maximum");
        QVERIFY(!subject.isEmpty() || !std::signbit(subject.maximum())); // "-0" is no text for users
    }

    // Whatever is done to a column, what it remembers is what a fresh look at its values gives.
    void cachesFollowRandomChanges()
    {
        std::mt19937 random(20);
        Column subject;
        for (int step = 0; step < 20000; ++step) {
            const int index = subject.isEmpty() ? 0 : int(random() % unsigned(subject.size()));
            const double value = int(random() % 7) - 3;
            const unsigned action = unsigned(random() % (subject.size() > 5 ? 5 : 3));
            if (action == 0)
                subject.appendValue(value);
            else if (action == 1)
                subject.insertValueAt(index, value);
            else if (action == 2)
                subject.setValueAt(index, value);
            else
                subject.removeValueAt(index);
            Column fresh;
            fresh.setValues(subject.values());
            QCOMPARE(subject.minimum(), fresh.minimum());
            QCOMPARE(subject.maximum(), fresh.maximum());
            QCOMPARE(subject.getMonotonicity(), fresh.getMonotonicity());
        }
    }

    void readsOutsideAsZero()
    {
        for (int index : {-1, 2, INT_MAX, INT_MIN})
            QCOMPARE(column({1, 2}).value(index), 0.0);
    }

    void aNaNEqualsNothing()
    {
        const Column one = column({1, NaN});
        QVERIFY(!one.containsValue(NaN));
        QVERIFY(one != Column(one)); // shares the values' memory, which must not count
    }

    void monotonicity()
    {
        const auto is = [](const Values& values, Column::eMonotonicity expected, bool hasGaps,
                           bool isSummable) {
            const Column subject = column(values);
            return subject.getMonotonicity() == expected && subject.hasNaN() == hasGaps
                && subject.isValidXValForSumming() == isSummable;
        };
        QVERIFY(is({}, Column::Constant, false, true));
        QVERIFY(is({0.0, -0.0}, Column::Constant, false, true));
        QVERIFY(is({1, 1, 2, 2}, Column::Increasing, false, true));
        QVERIFY(is({2, 2, 1}, Column::Decreasing, false, true));
        QVERIFY(is({1, 2, 1}, Column::NotMonotonic, false, false));
        QVERIFY(is({NaN, 1, 2}, Column::Increasing, true, true));
        QVERIFY(is({1, 2, NaN, 0}, Column::Increasing, true, true)); // the gap hides the fall
        QVERIFY(is({1, 2, 1, NaN}, Column::NotMonotonic, true, false));
        QVERIFY(is({1, NaN, 2}, Column::Undefined, true, false));
    }

    void extremes()
    {
        // Indices of minimum and maximum; the largest magnitude, its sign and index; the least but zero.
        const auto of = [](const Values& values) {
            const Column subject = column(values);
            const Column::AbsMaxDetails most = subject.getAbsMaxDetails();
            return Values{double(subject.indexOfMin()), double(subject.indexOfMax()), most.value, most.sign,
                          double(most.index),           subject.minNonZeroValue()};
        };
        QCOMPARE(of({}), (Values{-1, -1, 0, 0, -1, Largest}));
        QCOMPARE(of({-1, -3, 0}), (Values{1, 2, 3, -1, 1, -3}));
        QCOMPARE(of({3, -3, 3}), (Values{1, 0, 3, -1, 1, -3}));
        QCOMPARE(of({NaN, 2, 5}), (Values{1, 2, 5, 1, 2, 2}));
        QCOMPARE(of({-Infinity}), (Values{0, -1, Infinity, -1, 0, -Infinity}));
    }

    void roots()
    {
        const Column wave = column({0, 2, -2, 2});
        QCOMPARE(wave.indexOfRootValue(0, 1.0), 0); // rising
        QCOMPARE(wave.indexOfRootValue(1, 1.0), 1); // falling
        QCOMPARE(wave.indexOfRootValue(0, 2.0), 1); // hit at the node
        QCOMPARE(wave.indexOfRootValue(-7, 0.0), 0);
        QCOMPARE(wave.indexOfRootValue(3, 1.0), -1);
        QCOMPARE(column({0, NaN, 2}).indexOfRootValue(0, 1.0), -1); // a gap hides the crossing
    }

    void comparison_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<bool>("equal");
        const auto row = [](const char* name, bool equal, const Change& change) {
            QTest::newRow(name) << change << equal;
        };
        row("nothing", true, [](Column&) {});
        row("colour", true, [](Column& c) { c.setRGBColor(1, 2, 3); });
        row("zero with sign", true, [](Column& c) { c.setValueAt(0, -0.0); });
        row("unit", false, [](Column& c) { c.setUnitIndex(1); });
        row("type", false, [](Column& c) { c.setType(Column::Type(77)); });
        row("usage", false, [](Column& c) { c.setUsage(Column::UsageY); });
        row("title", false, [](Column& c) { c.setTitle(QStringLiteral("t")); });
        row("name", false, [](Column& c) { c.setName(QStringLiteral("n")); });
        row("value", false, [](Column& c) { c.setValueAt(1, 8); });
        row("copied into it", true, [](Column& c) { Column(c).getCopy(c); });
    }

    void comparison()
    {
        QFETCH(Change, change);
        QFETCH(bool, equal);
        Column one(kdUnitSystem::Length, Column::UsageX);
        one.setValues({0, 1});
        Column two(one);
        change(two);
        QCOMPARE(one == two, equal);
        QCOMPARE(one != two, !equal);
        QCOMPARE(qHash(one, 3) == qHash(two, 3), equal);
    }

    void copyHasEverything()
    {
        Column one(kdUnitSystem::Length, Column::UsageX, QStringLiteral("name"));
        one.setValues({3, 1});
        one.setId(4);
        one.setRGBColor(10, 20, 30);
        one.setVisible(false);
        const QScopedPointer<Column> two(one.getCopy());
        QCOMPARE(*two, one);
        one.setValueAt(0, 100); // leaves the copy alone
        QCOMPARE(two->values(), (Values{3, 1}));
        QCOMPARE(two->maximum(), 3.0);
        QCOMPARE(two->getId(), 4);
        QCOMPARE(two->red() + two->green() + two->blue(), 60);
        QVERIFY(two->hasRGBColor() && !two->isVisible());
        two->clear();
        QCOMPARE(*two, Column());
        QVERIFY(!two->hasRGBColor() && two->isVisible() && two->getId() == -1);
    }

    void convertsUnits()
    {
        Column kelvin(kdUnitSystem::Temperature);
        kelvin.setValues({273.15, 373.15, NaN});
        QVERIFY(kelvin.toUnit(1));
        QVERIFY(same(kelvin.values(), {0, 100, NaN}));
        QCOMPARE(kelvin.maximum(), 100.0);
        QVERIFY(kelvin.toSIUnit());
        QCOMPARE(kelvin.value(0), 273.15);
        QVERIFY(kelvin.toViewUnit());
        QVERIFY(!kelvin.toUnit(kdUnitSystem(kdUnitSystem::Length)));
        QVERIFY(!kelvin.toUnit(kdUnitSystem(kdUnitSystem::Temperature, 9)) && !kelvin.toUnitIndex(-1));
        kelvin.setUnitIndex(-1);
        QVERIFY(!kelvin.toSIUnit());
        QCOMPARE(kelvin.maximum(), 100.0);
    }
};

KDQ_TEST_MAIN(TestKdDataColumn)
#include "tst_kddatacolumn.moc"
