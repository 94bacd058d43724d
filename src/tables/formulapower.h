#pragma once

namespace nFormula {

/// Exactly the bits of std::pow(x, 2), mostly without calling it. \a two is 2.
///
/// The power function of glibc is good to less than 0.55 units in the last place. So it returns the rounded
/// product whenever the exact square lies within 0.44 units of it, which error-free multiplication tells (the
/// splitting of Veltkamp, the product of Dekker). That holds for seven of eight values; the others, and those
/// near the ends of the range, take the call. Of other libraries no such bound is known.
double squareAsPow(double x, double two);

} // namespace nFormula
