#include "interpolation.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace interpolation {

namespace {

// Nodes that are nearer to x than this count as hit.
constexpr double nearness = 1e-20;

double onSegment(const Nodes& nodes, int end, double x)
{
    return linear(x, nodes.x[end - 1], nodes.y[end - 1], nodes.x[end], nodes.y[end]);
}

// The rule itself: takes the first segment that fits. With hits() false everywhere, the last one but one
// answers.
template <typename Hits>
double scan(const Nodes& nodes, double x, Hits hits)
{
    for (int i = 1; i < nodes.size; ++i) {
        if (std::abs(x - nodes.x[i - 1]) < nearness)
            return nodes.y[i - 1];
        if (std::abs(x - nodes.x[i]) < nearness)
            return nodes.y[i];
        if (hits(nodes.x[i]))
            return onSegment(nodes, i, x);
    }
    return nodes.y[nodes.size - 2];
}

// First node that does not lie before x. No branch depends on the data, since a wrong guess costs more than a
// few comparisons; and the last nodes are counted, since the steps of a bisection wait for each other.
template <typename Before>
int firstNotBefore(const Nodes& nodes, double x, Before before)
{
    constexpr int countable = 16;
    const double* base = nodes.x;
    int left = nodes.size;
    while (left > countable) {
        const int half = left / 2;
        base += before(base[half - 1], x) ? half : 0;
        left -= half;
    }
    int count = 0;
    for (int i = 0; i < left; ++i)
        count += before(base[i], x) ? 1 : 0;
    return static_cast<int>(base - nodes.x) + count;
}

// What scan() gives, for x strictly inside the range of sorted nodes.
template <typename Before>
double search(const Nodes& nodes, double x, Before before)
{
    int end = firstNotBefore(nodes, x, before);
    if (std::abs(x - nodes.x[end - 1]) < nearness) {
        const double* hit = std::partition_point(
            nodes.x, nodes.x + end, [x](double node) { return !(std::abs(x - node) < nearness); });
        return nodes.y[hit - nodes.x];
    }
    return std::abs(x - nodes.x[end]) < nearness ? nodes.y[end] : onSegment(nodes, end, x);
}

double inside(const Nodes& nodes, double x)
{
    switch (nodes.monotonicity) {
    case kdDataColumn::Increasing:
        if (nodes.sorted && !std::isnan(x))
            return search(nodes, x, std::less<double>());
        return scan(nodes, x, [x](double node) { return x <= node; });
    case kdDataColumn::Decreasing:
        if (nodes.sorted && !std::isnan(x))
            return search(nodes, x, std::greater<double>());
        return scan(nodes, x, [x](double node) { return x >= node; });
    default:
        return scan(nodes, x, [](double) { return true; });
    }
}

} // namespace

double linear(double x, double x1, double y1, double x2, double y2)
{
    if (std::abs(x2 - x1) < nearness)
        return (y1 + y2) * 0.5;
    return y1 + (x - x1) * (y2 - y1) / (x2 - x1);
}

double lookUp(const Nodes& nodes, double x, bool zeroOutside)
{
    if (nodes.size == 0)
        return 0.0;
    if (nodes.size == 1)
        return nodes.y[0];
    const bool falling = nodes.monotonicity == kdDataColumn::Decreasing;
    const double first = nodes.x[0];
    const double last = nodes.x[nodes.size - 1];
    if (falling ? x >= first : x <= first)
        return zeroOutside && x != first ? 0.0 : nodes.y[0];
    if (falling ? x <= last : x >= last)
        return zeroOutside && x != last ? 0.0 : nodes.y[nodes.size - 1];
    return inside(nodes, x);
}

} // namespace interpolation
