#include "kdqtest.h"
#include "tabletest.h"

#include <cmath>
#include <random>

using Rule = kdDataTable::e_InterpolationRuleOutsideInterval;
Q_DECLARE_METATYPE(Rule)

namespace {

double line(double x, double x1, double y1, double x2, double y2)
{
    return std::abs(x2 - x1) < 1e-20 ? (y1 + y2) * 0.5 : y1 + (x - x1) * (y2 - y1) / (x2 - x1);
}

// The rule as it is defined, from the first node to the last.
double sequential(const kdDataColumn& xs, const kdDataColumn& ys, double x, Rule rule)
{
    const int n = xs.size();
    if (n == 0 || n != ys.size())
        return 0.0;
    if (n == 1)
        return ys.value(0);
    const auto m = xs.getMonotonicity();
    const double first = xs.value(0);
    const double last = xs.value(n - 1);
    if (m == kdDataColumn::Decreasing ? x >= first : x <= first)
        return rule == kdDataTable::ZeroOutside && x != first ? 0.0 : ys.value(0);
    if (m == kdDataColumn::Decreasing ? x <= last : x >= last)
        return rule == kdDataTable::ZeroOutside && x != last ? 0.0 : ys.value(n - 1);
    double unanswered = 0.0;
    for (int i = 1; i < n; ++i) {
        const double from = xs.value(i - 1);
        const double to = xs.value(i);
        if (std::abs(x - from) < 1e-20)
            return ys.value(i - 1);
        if (std::abs(x - to) < 1e-20)
            return ys.value(i);
        const bool taken = m == kdDataColumn::Increasing ? (x < to || x == to)
            : m == kdDataColumn::Decreasing              ? (x > to || x == to)
                                                         : true;
        if (taken)
            return line(x, from, ys.value(i - 1), to, ys.value(i));
        unanswered = ys.value(i - 1);
    }
    return unanswered;
}

// Nodes and positions with many equal, near, huge and missing numbers.
struct NastyColumns {
    std::mt19937 random{31};

    unsigned below(unsigned limit) { return unsigned(random() % limit); }

    double number()
    {
        static const double special[] = {0.0, -0.0, 1e-20, -1e-20, 0.5e-20, 2.5e-20,  1e-300,   5e-324,
                                         1.0, -1.0, 1e300, -1e300, Largest, Infinity, -Infinity};
        const double choices[] = {special[below(std::size(special))], 1e-21 * int(below(60)),
                                  double(int(below(9)) - 4),
                                  std::ldexp(double(random()), int(below(20)) - 40)};
        return choices[below(std::size(choices))];
    }

    kdDataColumn nodes(int size, bool isSorted, unsigned oddsOfGap)
    {
        Values values;
        for (int i = 0; i < size; ++i)
            values.append(number());
        if (isSorted)
            std::sort(values.begin(), values.end());
        if (isSorted && below(2) == 0)
            std::reverse(values.begin(), values.end());
        if (below(oddsOfGap) == 0)
            values[int(below(unsigned(size)))] = NaN;
        kdDataColumn result;
        result.setValues(values);
        if (below(8) == 0)
            result.sortValues(); // rises for sure, even where all are equal
        return result;
    }

    double position(const kdDataColumn& xs)
    {
        const double node = xs.value(int(below(unsigned(xs.size()))));
        const double other = xs.value(int(below(unsigned(xs.size()))));
        const double choices[] = {node,
                                  std::nextafter(node, other),
                                  node + 1e-20,
                                  node - 0.9e-20,
                                  node * 0.5 + other * 0.5,
                                  node + (other - node) * 0.125,
                                  number(),
                                  NaN};
        return choices[below(std::size(choices))];
    }
};

} // namespace

class TestInterpolation : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void lookup()
    {
        const auto at = [](const Values& x, const Values& y, double position) {
            const kdDataColumn xs = column(x), ys = column(y);
            return Values{kdDataTable::getInterpolDoubleValue(xs, ys, position, kdDataTable::HoldEndValues),
                          kdDataTable::getInterpolDoubleValue(&xs, &ys, position, kdDataTable::ZeroOutside)};
        };
        QCOMPARE(at({}, {}, 1), (Values{0, 0}));
        QCOMPARE(at({1, 2}, {3}, 1), (Values{0, 0}));
        QCOMPARE(at({1}, {7}, 99), (Values{7, 7}));
        QCOMPARE(at({0, 1}, {5, 10}, -1e-300), (Values{5, 0}));
        QCOMPARE(at({2, 1, 0}, {5, 10, 30}, -1), (Values{30, 0}));
        QCOMPARE(at({0, 1, 1, 2}, {0, 10, 20, 30}, 1), (Values{10, 10}));  // a step
        QCOMPARE(at({0, 1, -5, 9}, {0, 10, 99, 99}, 4), (Values{40, 40})); // the first segment
        QCOMPARE(at({1, 1}, {4, 8}, 2), (Values{8, 0}));
        QCOMPARE(at({0, 1, 2}, {5, 10, 30}, NaN), (Values{10, 10}));
        QVERIFY(same(at({1, NaN, 3}, {4, 8, 9}, 2), {NaN, NaN}));
    }

    void linearInterpolation()
    {
        QCOMPARE(kdDataTable::linearInterpolation(1, 0, 0, 4, 8), 2.0);
        QCOMPARE(kdDataTable::linearInterpolation(5, 1, 10, 1, 20), 15.0);
        QCOMPARE(kdDataTable::linearInterpolation(0, 0, 10, 0.9e-20, 20), 15.0);
        QCOMPARE(kdDataTable::linearInterpolation(0, 0, 10, 1.1e-20, 20), 10.0);
    }

    void memberFormTakesColumnZeroAsX()
    {
        kdDataTable table = curve({{0, 0}, {1, 10}});
        QVERIFY(table.appendColumn(column({5, 7})));
        QCOMPARE(table.getInterpolDoubleValue(1, 0.5, kdDataTable::HoldEndValues), 5.0);
        QCOMPARE(table.getInterpolDoubleValue(2, 0.5), 6.0);
        QCOMPARE(table.getInterpolDoubleValue(1, 7, kdDataTable::ZeroOutside), 0.0);
        for (int outside : {-1, 3})
            QCOMPARE(table.getInterpolDoubleValue(outside, 0.5), 0.0);
        QCOMPARE(kdDataTable().getInterpolDoubleValue(0, 0.5), 0.0);
    }

    void equalsTheSequentialRule()
    {
        NastyColumns nasty;
        for (int round = 0; round < 20000; ++round) {
            const int size = 1 + int(nasty.below(round % 10 ? 12 : 100));
            const kdDataColumn xs = nasty.nodes(size, nasty.below(4) != 0, 3);
            const kdDataColumn ys = nasty.nodes(size, false, 4);
            for (int lookup = 0; lookup < 100; ++lookup) {
                const double x = nasty.position(xs);
                const Rule rule = Rule(nasty.below(2));
                const double found = kdDataTable::getInterpolDoubleValue(xs, ys, x, rule);
                const double expected = sequential(xs, ys, x, rule);
                const bool identical = same(found, expected)
                    && (found != found || std::signbit(found) == std::signbit(expected));
                if (!identical)
                    qDebug() << "round" << round << "x" << x << "nodes" << xs.values() << ys.values();
                QVERIFY(identical);
            }
        }
    }

    // Each round begins with caches that no thread has filled.
    void constLookupsFromSeveralThreads()
    {
        for (int round = 0; round < 200; ++round) {
            kdDataColumn xs;
            xs.setValues({0, 1, 2, 3});
            kdDataTable table;
            QVERIFY(table.appendColumn(xs) && table.appendColumn(xs));
            Values sums{0, 0};
            kdqInThreads(2, [&shared = std::as_const(table), sum = sums.data()](int thread) {
                for (double x = 0.0; x < 3.0; x += 0.25)
                    sum[thread] += shared.getInterpolDoubleValue(1, x) + shared.indexOfYMax()
                        + shared.maxYValue().value();
            });
            QCOMPARE(sums, Values(2, 16.5 + 12 * 6.0));
        }
    }
};

KDQ_TEST_MAIN(TestInterpolation)
#include "tst_interpolation.moc"
