#include "axisticks.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double roundSteps[] = {1.0, 2.0, 2.5, 5.0, 10.0};
constexpr double slack = 1e-6; // of a step: rounding does not cost another one

/// The smallest round number that is not below \a step, up to its rounding.
double roundStep(double step)
{
    const double decade = std::pow(10.0, std::floor(std::log10(step)));
    for (const double round : roundSteps)
        if (round * decade >= step * (1.0 - 1e-9))
            return round * decade;
    return 10.0 * decade;
}

void widen(double& lowest, double& highest)
{
    const double size = std::max(std::abs(lowest), std::abs(highest));
    if (highest - lowest > 1e-9 * size)
        return;
    const double room = size > 1e-290 ? size / 10.0 : 1.0;
    lowest -= room;
    highest += room;
}

AxisTicks ticks(double lowest, double highest, double step)
{
    return {std::floor(lowest / step + slack) * step, std::ceil(highest / step - slack) * step, step};
}

} // namespace

AxisTicks AxisTicks::around(double lowest, double highest, int steps)
{
    widen(lowest, highest);
    return ticks(lowest, highest, roundStep((highest - lowest) / steps));
}

AxisTicks AxisTicks::closeTo(double lowest, double highest, int steps)
{
    constexpr double bearable = 0.03; // of the axis
    AxisTicks result = around(lowest, highest, steps);
    widen(lowest, highest);
    if (lowest - result.from > bearable * (highest - lowest))
        result.from = lowest;
    if (result.to - highest > bearable * (highest - lowest))
        result.to = highest;
    return result;
}

AxisTicks AxisTicks::withSteps(double lowest, double highest, int steps)
{
    widen(lowest, highest);
    double step = roundStep((highest - lowest) / steps);
    AxisTicks result = ticks(lowest, highest, step);
    while (result.steps() > steps) {
        step = roundStep(step * 1.01);
        result = ticks(lowest, highest, step);
    }
    const double room = step * (steps - result.steps());
    if (result.to <= 0.0)
        result.from -= room;
    else
        result.to += room;
    return result;
}

double AxisTicks::firstTick() const
{
    return std::ceil(from / step - slack) * step;
}

int AxisTicks::steps() const
{
    return int(std::lround((to - from) / step));
}

int AxisTicks::decimals() const
{
    constexpr int most = 12;
    int digits = 0;
    double scaled = step;
    while (digits < most && std::abs(scaled - std::round(scaled)) > slack * scaled) {
        ++digits;
        scaled *= 10.0;
    }
    return digits;
}

bool AxisTicks::needsExponent() const
{
    const double size = std::max(std::abs(from), std::abs(to));
    return size >= 1e6 || size < 1e-3;
}
