#pragma once

/// Ends of an axis and its ticks, which are round numbers: the multiples of the step between the ends.
///
/// The values that the axis must show are finite and in order; equal ones get room around them.
struct AxisTicks {
    double from = 0.0;
    double to = 1.0;
    double step = 0.2;

    /// Ends at the next ticks, with at most some \a steps steps.
    static AxisTicks around(double lowest, double highest, int steps);
    /// The same, but ends at a value itself where the next tick would leave much of the axis empty.
    static AxisTicks closeTo(double lowest, double highest, int steps);
    /// Exactly as many steps, for a second axis that shares the grid of the first.
    static AxisTicks withSteps(double lowest, double highest, int steps);

    double firstTick() const;
    /// Between the ends, where these are ticks.
    int steps() const;
    /// Digits behind the decimal mark that the ticks need.
    int decimals() const;
    /// Whether the ticks are better written with an exponent.
    bool needsExponent() const;
};
