#include "kdqtest.h"
#include "logcapture.h"
#include "tabletest.h"

#include <functional>

using Change = std::function<void(kdDataTable&)>;
Q_DECLARE_METATYPE(Change)

namespace {

const QString refusal = QStringLiteral("invalid column, not added!");

// Tells how many of its kind live.
class CountedColumn : public kdDataColumn {
public:
    explicit CountedColumn(const Values& values = {})
    {
        setValues(values);
        ++alive;
    }
    CountedColumn(const CountedColumn& other) : kdDataColumn(other) { ++alive; }
    CountedColumn& operator=(const CountedColumn& other) = default;
    ~CountedColumn() override { --alive; }
    kdDataColumn* getCopy() const override { return new CountedColumn(*this); }

    static int alive;
};

int CountedColumn::alive = 0;

kdDataTable countedTable(int columns)
{
    kdDataTable table;
    for (int i = 0; i < columns; ++i)
        table.append(new CountedColumn({1.0 * i, 2.0 * i}));
    return table;
}

kdUnitValue seconds(double value)
{
    return kdUnitValue(value, kdUnitSystem(kdUnitSystem::Time));
}

kdUnitValue celsius(double value)
{
    return kdUnitValue(value, kdUnitSystem(kdUnitSystem::Temperature, 1));
}

} // namespace

class TestKdDataTable : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QCOMPARE(CountedColumn::alive, 0); }

    void xyTable()
    {
        for (int x = 0; x < 3; ++x) {
            for (int y = 0; y < 3; ++y) {
                kdDataTable table = countedTable(2);
                table.column(0)->setUsage(kdDataColumn::Usage(x));
                table.column(1)->setUsage(kdDataColumn::Usage(y));
                QCOMPARE(table.isXYDataTable(), x != 2 && y != 1);
            }
        }
        for (const int columns : {0, 1, 2, 3}) {
            kdDataTable table = countedTable(columns);
            if (columns == 2)
                table.column(0)->setUsage(kdDataColumn::UsageY);
            QVERIFY(!table.isXYDataTable() && !table.canSortXYData());
            QVERIFY(table.begin() == table.end() && table.points().isEmpty());
            const kdDataTable before(table);
            QVERIFY(!table.addPoint(1, 2) && !table.setPoints({{1, 2}}) && !table.insertPoint(0, 1, 2));
            QVERIFY(!table.setPointAt(0, 1, 2) && !table.removePointAt(0)
                    && !table.addUvPoint(seconds(1), seconds(1)));
            table.sortForXValues();
            QCOMPARE(table, before);
        }
    }

    // --- Ownership ---

    void tableOwnsItsColumns()
    {
        kdDataTable table = countedTable(3);
        QCOMPARE(CountedColumn::alive, 3);
        {
            kdDataTable copy(table);
            copy.column(0)->setValueAt(0, 99);
            QVERIFY(copy != table);
            copy = table;
            const kdDataTable& self = copy;
            copy = self;
            QCOMPARE(copy, table);
            kdDataTable moved(std::move(copy));
            QCOMPARE(CountedColumn::alive, 6);
            QSharedPointer<kdDataTable> shared;
            moved.getCopy(shared);
            QCOMPARE(*shared, table);
        }
        QCOMPARE(CountedColumn::alive, 3);
        QVERIFY(table.removeAt(1) && table.remove(table.column(1)));
        QVERIFY(!table.removeAt(1) && !table.removeAt(-1) && !table.remove(nullptr));
        QCOMPARE(CountedColumn::alive, 1);
        table.clearColumns();
        QCOMPARE(CountedColumn::alive, 0);
    }

    void refusedColumnsStayWithTheCaller()
    {
        kdDataTable table = countedTable(1);
        LogCapture log;
        CountedColumn tooLong({1, 2, 3});
        QVERIFY(!table.append(&tooLong));
        QVERIFY(!table.appendColumn(tooLong));
        QVERIFY(!table.append(nullptr));
        QVERIFY(!table.append(table.column(0)));
        QVERIFY(!table.append(curve({{0, 0}})));
        QCOMPARE(log.records().size(), 5);
        for (const kdLog::Record& record : log.records())
            QCOMPARE(record.text, refusal);
        QVERIFY(log.contains(kdLog::Fault, kdLog::FailedAssert, refusal));
        QCOMPARE(table.columns(), 1);
        QCOMPARE(CountedColumn::alive, 2);
    }

    void appends()
    {
        kdDataTable table(kdUnitSystem::Time, kdUnitSystem::Length);
        QVERIFY(table.appendColumn(CountedColumn({1, 2}))); // column 0 is empty still
        kdDataTable counted = countedTable(2);
        QVERIFY(counted.append(counted) && counted.append(curve({{5, 6}, {7, 8}})));
        QCOMPARE(*counted.column(3), *counted.column(1));
        QCOMPARE(counted.column(5)->values(), (Values{6, 8}));
    }

    void replacesColumns()
    {
        kdDataTable table = countedTable(2);
        QVERIFY(table.replaceDataColumnAt(1, new CountedColumn({8, 9})));
        QVERIFY(table.replaceColumn(table.column(0), new CountedColumn({6, 7})));
        QVERIFY(table.replaceColumn(0, CountedColumn({2, 3})));
        QVERIFY(table.replaceColumn(0, new CountedColumn({4, 5}))); // 0 is an index, no null pointer
        QVERIFY(table.replaceDataColumnAt(0, table.column(0)));
        QCOMPARE(table.points(), (Points{{4, 8}, {5, 9}}));

        LogCapture log;
        CountedColumn refused({1});
        QVERIFY(!table.replaceDataColumnAt(2, &refused) && !table.replaceDataColumnAt(0, &refused));
        QVERIFY(!table.replaceColumn(0, refused) && !table.replaceDataColumnAt(0, nullptr));
        QVERIFY(!table.replaceDataColumnAt(0, table.column(1)));
        QCOMPARE(CountedColumn::alive, 3);

        kdDataTable empty(kdUnitSystem::Time, kdUnitSystem::Length); // takes its columns one by one
        QVERIFY(empty.replaceDataColumnAt(0, new CountedColumn({1, 2})));
        QVERIFY(empty.replaceDataColumnAt(1, new CountedColumn({3, 4})));
    }

    void setsXYColumns()
    {
        kdDataTable table = countedTable(3);
        QVERIFY(table.setXYData(new CountedColumn({1, 2, 3}), new CountedColumn({4, 5, 6})));
        QCOMPARE(CountedColumn::alive, 2);
        QVERIFY(table.setXYData(table.column(1), table.column(0)));
        QCOMPARE(table.points(), (Points{{4, 1}, {5, 2}, {6, 3}}));

        LogCapture log;
        CountedColumn shorter({1});
        for (kdDataColumn* unfit :
             {static_cast<kdDataColumn*>(&shorter), table.column(0), static_cast<kdDataColumn*>(nullptr)})
            QVERIFY(!table.setXYData(table.column(0), unfit));
        QCOMPARE(log.texts().count(refusal), 3);
        QCOMPARE(table.rows(), 3);
    }

    void copiesTwoColumns()
    {
        kdDataTable table = countedTable(3);
        table.setType(kdDataTable::TypeFlowCurve);
        kdDataTable copy;
        QVERIFY(table.getCopy(copy, 2, 1));
        QCOMPARE(copy.type(), kdDataTable::TypeFlowCurve);
        QCOMPARE(copy.points(), (Points{{2, 1}, {4, 2}}));
        QVERIFY(!table.getCopy(copy, 0, 3) && !table.getCopy(copy, -1, 0));
        QCOMPARE(copy.columns(), 2);
        QVERIFY(table.getCopy(table, 1, 0));
        QCOMPARE(table.points(), (Points{{1, 0}, {2, 0}}));
    }

    void findsColumns()
    {
        kdDataTable table = curve({});
        table.setYName(QStringLiteral("force"));
        table.column(1)->setTitle(QStringLiteral("Force [kN]"));
        table.column(1)->setId(42);
        QCOMPARE(table.getDataColumnIndexByName(QStringLiteral("force")), 1);
        QCOMPARE(table.getDataColumnIndexByName(QStringLiteral("Force")), -1);
        QCOMPARE(table.getDataColumnByTitle(QStringLiteral("Force [kN]")), table.column(1));
        QVERIFY(table.columnForID(42) == table.column(1) && !table.columnForID(7));
    }

    void referenceToNoColumnIsHarmless()
    {
        kdDataTable table = curve({{1, 2}});
        QCOMPARE(&table.columnRef(1), table.column(1));
        LogCapture log;
        table.columnRef(2).appendValue(5);
        QCOMPARE(table.columnRef(-1).size(), 0);
        QCOMPARE(std::as_const(table).columnRef(7).value(0), 0.0);
        QCOMPARE(log.records().size(), 3);
        QCOMPARE(table, curve({{1, 2}}));
    }

    // --- Attributes ---

    void comparison_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<bool>("equal");
        QTest::addColumn<bool>("equalContent");
        const auto row = [](const char* name, bool equal, bool content, const Change& change) {
            QTest::newRow(name) << change << equal << content;
        };
        row("nothing", true, true, [](kdDataTable&) {});
        row("type", true, true, [](kdDataTable& t) { t.setType(kdDataTable::TypeFlowCurve); });
        row("name", false, true, [](kdDataTable& t) { t.setName(QStringLiteral("n")); });
        row("editable", false, true, [](kdDataTable& t) { t.setEditable(false); });
        row("default Y", false, true, [](kdDataTable& t) { t.setDefaultYColumnIndex(0); });
        row("defaults out of range", true, true, [](kdDataTable& t) {
            t.setDefaultXColumnIndex(2);
            t.setDefaultYColumnIndex(-1);
        });
        row("value", false, false, [](kdDataTable& t) { t.setPointAt(0, 1, 9); });
    }

    void comparison()
    {
        QFETCH(Change, change);
        QFETCH(bool, equal);
        const kdDataTable one = curve({{1, 2}});
        kdDataTable two(one);
        change(two);
        QCOMPARE(one == two, equal);
        QCOMPARE(one != two, !equal);
        QCOMPARE(qHash(one) == qHash(two), equal);
        QTEST(one.equalsContent(two), "equalContent");
        kdDataTable copy;
        two.getCopy(copy);
        QVERIFY(copy == two && copy.type() == two.type() && copy.colorId() == two.colorId());
        copy.clear();
        QVERIFY(copy == kdDataTable() && !copy.hasPreferedColor());
    }

    // --- Points ---

    void pointsComeAndGo()
    {
        kdDataTable table = curve({{0, 1}, {2, 3}});
        QVERIFY(table.insertPoint(1, {1, 2}) && table.insertPoint(3, 5, 6));
        QVERIFY(table.setPointAt(0, {-1, 0}) && table.removePointAt(2));
        QCOMPARE(table.points(), (Points{{-1, 0}, {1, 2}, {5, 6}}));
        for (int outside : {-1, 3}) {
            QVERIFY(!table.setPointAt(outside, 9, 9) && !table.removePointAt(outside));
            QCOMPARE(table.pointAt(outside), QPointF());
        }
        QVERIFY(!table.insertPoint(-1, 9, 9) && !table.insertPoint(4, 9, 9));
        QCOMPARE(table.maxXValue().value(), 5.0);
        table.clearXYColumnValues();
        QCOMPARE(table.rows(), 0);
        QCOMPARE(table.columns(), 2);
    }

    void iteratorWalksTheRows()
    {
        const kdDataTable table = curve({{0, 5}, {1, 6}, {2, 7}});
        QCOMPARE(Points(table.begin(), table.end()), table.points());
        QCOMPARE((table.end() - 1)->y(), 7.0);
        QCOMPARE(table.begin()[1], QPointF(1, 6));
        const auto found = std::lower_bound(table.begin(), table.end(), 0.5,
                                            [](const QPointF& point, double x) { return point.x() < x; });
        QCOMPARE(found - table.begin(), 1);
    }

    void pointsWithUnits()
    {
        kdDataTable table(kdUnitSystem::Time, kdUnitSystem::Temperature);
        QVERIFY(table.addUvPoint(kdUnitValue(1, kdUnitSystem(kdUnitSystem::Time, 2)), celsius(0))); // minutes
        QCOMPARE(table.pointAt(0), QPointF(60, 273.15));
        QVERIFY(table.setUvPointAt(0, kdDataTable::UvPoint(seconds(5), celsius(100))));
        QCOMPARE(table.uvPointAt(0).first, seconds(5));
        QVERIFY(!table.addUvPoint(celsius(5), celsius(5)) && !table.setUvPointAt(0, celsius(5), celsius(5)));
        QVERIFY(!table.setUvPointAt(1, seconds(5), celsius(5)));
        QVERIFY(table.addUvPoint(kdUnitValue(7), kdUnitValue(8))); // without units: taken as they are
        QCOMPARE(table.points(), (Points{{5, 373.15}, {7, 8}}));
        QCOMPARE(table.uvPointAt(2).first, kdUnitValue());
    }

    void xyData()
    {
        kdDataTable table(kdUnitSystem::Length, kdUnitSystem::Temperature);
        const Points given{{1, 0}, {2, 100}};
        QVERIFY(table.setXYData(given, 0, 1));
        Points points;
        int unitX = 7;
        int unitY = 7;
        QVERIFY(table.getXYData(points, unitX, unitY));
        QCOMPARE(points, given);
        QCOMPARE(unitY, 1);
        QVERIFY(table.getXYData(points, unitX, unitY, true)); // mm and degC
        QCOMPARE(points, (Points{{1000, 0}, {2000, 100}}));
        Values x;
        Values y;
        QVERIFY(table.getXYAxisData(x, y));
        QCOMPARE(x + y, (Values{1, 2, 0, 100}));

        kdDataTable fresh;
        QVERIFY(!fresh.getXYData(points, unitX, unitY) && !fresh.getXYAxisData(x, y));
        QVERIFY(fresh.setXYData(given, -1, -1) && fresh.points() == given);
        QVERIFY(!countedTable(3).setXYData(given, 0, 0));
    }

    // --- Units and values ---

    void convertsUnits()
    {
        kdDataTable table = curve({{1, 273.15}}, kdUnitSystem::Length, kdUnitSystem::Temperature);
        QVERIFY(table.appendColumn(*table.column(1)));
        table.toViewUnit();
        QCOMPARE(table.column(0)->value(0), 1000.0);
        QCOMPARE(table.column(2)->value(0), 0.0);
        table.toSIUnit();
        table.toUnit(1, 2);
        QCOMPARE(table.column(0)->value(0), 1000.0);
        QCOMPARE(table.column(1)->value(0), 32.0); // Fahrenheit
        QCOMPARE(table.column(2)->value(0), 273.15);
        QVERIFY(table.allYToUnit(kdUnitSystem(kdUnitSystem::Temperature, 1)));
        QCOMPARE(table.column(1)->value(0) + table.column(2)->value(0), 0.0);
        QVERIFY(table.allYToUnit(0) && !table.allYToUnit(3));
        QVERIFY(!table.xToUnit(kdUnitSystem(kdUnitSystem::Temperature, 1)) && !table.yToUnit(77));
        QVERIFY(table.xToUnit(2) && table.yToViewUnit() && table.xToViewUnit());
        table.setUnitX(0); // without converting
        QCOMPARE(table.minXValue(), kdUnitValue(1000, kdUnitSystem(kdUnitSystem::Length, 0)));
        int unit = 9;
        QVERIFY(!kdDataTable().unitX(unit));
        QCOMPARE(unit, -1);
    }

    void values()
    {
        const kdDataTable table = curve({{1, 5}, {3, -7}, {2, 5}}, kdUnitSystem::Time, kdUnitSystem::Length);
        QCOMPARE(table.maxXValue(), seconds(3));
        QCOMPARE(table.minYValue().value(), -7.0);
        QCOMPARE(table.indexOfYMax(), 0);
        QCOMPARE(table.columnAverage(1), 1.0);
        QCOMPARE(curve({{0, 1}, {0, NaN}, {0, 3}}).columnAverage(1), 2.0);
        QCOMPARE(curve({{0, NaN}}).columnAverage(1), 0.0);
        QCOMPARE(kdDataTable().maxYValue(), kdUnitValue());
        QVERIFY(curve(Points(100, QPointF(1, 2))).memoryFootprint() > table.memoryFootprint() + 97 * 16);
    }
};

KDQ_TEST_MAIN(TestKdDataTable)
#include "tst_kddatatable.moc"
