#pragma once

#include "kddatacolumn.h"

/// Lookups on bare arrays, for columns and for curves under construction.
namespace interpolation {

/// Nodes of a curve; x and y have the same number of values.
struct Nodes {
    const double* x;
    const double* y;
    int size;
    kdDataColumn::eMonotonicity monotonicity; ///< of x
    bool sorted; ///< x holds no NaN, so that it is as ordered as its monotonicity says
};

double linear(double x, double x1, double y1, double x2, double y2);

/// \a zeroOutside: 0 instead of the end values outside the nodes.
double lookUp(const Nodes& nodes, double x, bool zeroOutside);

} // namespace interpolation
