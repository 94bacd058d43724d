// Lookups at random X in a rising column: the table against the rule carried out node by node.

#include "duel.h"

#include <kdQCore/kdDataTable>

#include <cmath>
#include <random>

namespace {

struct Curve {
    kdDataColumn x;
    kdDataColumn y;
    std::vector<double> positions;

    Curve(int points, std::size_t lookups)
    {
        std::mt19937_64 random(7);
        std::uniform_real_distribution<double> step(0.5, 1.5);
        QVector<double> nodes;
        QVector<double> values;
        double node = 0.0;
        for (int i = 0; i < points; ++i) {
            nodes.append(node);
            values.append(std::sin(node));
            node += step(random);
        }
        x.setValues(nodes);
        y.setValues(values);
        std::uniform_real_distribution<double> anywhere(x.minimum(), x.maximum());
        for (std::size_t i = 0; i < lookups; ++i)
            positions.push_back(anywhere(random));
    }
};

double nodeByNode(const double* xs, const double* ys, int size, double x)
{
    if (x <= xs[0])
        return ys[0];
    if (x >= xs[size - 1])
        return ys[size - 1];
    for (int i = 1; i < size; ++i) {
        if (std::abs(x - xs[i - 1]) < 1e-20)
            return ys[i - 1];
        if (std::abs(x - xs[i]) < 1e-20)
            return ys[i];
        if (x < xs[i] || x == xs[i])
            return kdDataTable::linearInterpolation(x, xs[i - 1], ys[i - 1], xs[i], ys[i]);
    }
    return ys[size - 2];
}

bool measure(int points, std::size_t lookups, double bar)
{
    const Curve curve(points, lookups);
    volatile double sink = 0.0; // keeps the work
    Duel duel("Lookup in " + std::to_string(points) + " points", double(lookups));
    duel.add("node by node", [&curve, &sink, points] {
        double sum = 0.0;
        for (double x : curve.positions)
            sum += nodeByNode(curve.x.values().constData(), curve.y.values().constData(), points, x);
        sink = sum;
    });
    duel.add("kdDataTable", [&curve, &sink] {
        double sum = 0.0;
        for (double x : curve.positions)
            sum += kdDataTable::getInterpolDoubleValue(curve.x, curve.y, x, kdDataTable::HoldEndValues);
        sink = sum;
    });
    duel.run(9);
    return duel.demand("kdDataTable", "node by node", bar);
}

} // namespace

int main()
{
    bool held = measure(10, 2000000, 0.9);
    held = measure(100, 500000, 1.7) && held;
    held = measure(10000, 20000, 50.0) && held;
    held = measure(1000000, 1000, 2500.0) && held;
    return held ? 0 : 1;
}
