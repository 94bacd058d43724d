#include "unitconversion.h"

#include <cmath>
#include <numeric>

using nUnitCatalogue::Unit;

namespace {

constexpr double pi = 3.14159265358979323846;

// Every product here stays below 2^53 except for the horsepower's, which is rounded once.
double product(quint64 a, quint64 b)
{
    return static_cast<double>(a) * static_cast<double>(b);
}

} // namespace

UnitConversion::UnitConversion(const Unit& from, const Unit& to)
    : m_isShifted(from.shift != 0 || to.shift != 0)
{
    const quint64 above = std::gcd(from.numerator, to.numerator);
    const quint64 below = std::gcd(from.denominator, to.denominator);
    m_factor = product(from.numerator / above, to.denominator / below);
    m_divisor = product(from.denominator / below, to.numerator / above);
    if (m_isShifted) {
        const qint64 factor = 100 * static_cast<qint64>(m_factor);
        const qint64 divisor = 100 * static_cast<qint64>(m_divisor);
        const qint64 offset = (from.shift * factor - to.shift * divisor) / 100;
        const qint64 common = std::gcd(std::gcd(factor, divisor), offset);
        m_factor = static_cast<double>(factor / common);
        m_offset = static_cast<double>(offset / common);
        m_divisor = static_cast<double>(divisor / common);
    }
    if (from.piPower > to.piPower)
        m_factor *= pi;
    else if (from.piPower < to.piPower)
        m_divisor *= pi;
}

double UnitConversion::operator()(double value) const
{
    const double scaled = value * m_factor;
    // Where only the product overflows, an offset is far below one ulp.
    if (!std::isfinite(scaled) && std::isfinite(value))
        return value / m_divisor * m_factor;
    return (m_isShifted ? scaled + m_offset : scaled) / m_divisor;
}
