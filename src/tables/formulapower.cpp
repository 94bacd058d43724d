#include "formulapower.h"

#include <cmath>
#include <cstdint>
#include <cstring>

#ifdef __GLIBC__
namespace {

double errorOfSquare(double x, double square)
{
    const double shifted = 134217729.0 * x;
    const double high = shifted - (shifted - x);
    const double low = x - high;
    return ((high * high - square) + 2.0 * high * low) + low * low;
}

bool isSquareOfPow(double square, double error)
{
    std::uint64_t bits;
    std::memcpy(&bits, &square, sizeof bits);
    bits &= 0x7ff0000000000000u;
    double scale; // the power of two below; under a power of two itself the unit is half as large
    std::memcpy(&scale, &bits, sizeof scale);
    return std::fabs(error) <= 0.44 * 0x1p-52 * scale
        && (square != scale || std::fabs(error) <= 0.22 * 0x1p-52 * scale);
}

} // namespace

double nFormula::squareAsPow(double x, double two)
{
    const double square = x * x;
    const bool isMiddling = square > 1e-250 && square < 1e250;
    return isMiddling && isSquareOfPow(square, errorOfSquare(x, square)) ? square : std::pow(x, two);
}
#else
double nFormula::squareAsPow(double x, double two)
{
    return std::pow(x, two);
}
#endif
