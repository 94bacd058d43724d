#include "curve.h"

#include "interpolation.h"
#include "kddatatable.h"
#include "longwork.h"
#include "tableunits.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

constexpr double conversionRounding = 1e-14; // relative

// x itself where it is a node or far from all nodes, else the node that differs from it by rounding only.
double snapped(const QVector<double>& sorted, double x)
{
    const double margin = std::isfinite(x) ? std::abs(x) * conversionRounding : 0.0;
    const auto next = std::lower_bound(sorted.cbegin(), sorted.cend(), x - margin);
    const bool found = next != sorted.cend() && *next <= x + margin;
    return found && !std::binary_search(next, sorted.cend(), x) ? *next : x;
}

QVector<double> picked(const QVector<double>& values, const std::vector<int>& rows)
{
    QVector<double> result;
    result.reserve(static_cast<int>(rows.size()));
    for (int row : rows)
        result.append(values.value(row));
    return result;
}

} // namespace

bool Curve::load(const kdDataTable& table, const kdUnitSystem& xUnit, const std::vector<kdUnitSystem>& yUnits)
{
    if (table.columns() < 1 || !tableUnits::convert(*table.column(0), xUnit, m_x))
        return false;
    m_y.resize(std::size_t(table.columns() - 1));
    for (std::size_t i = 0; i < m_y.size(); ++i) {
        const kdDataColumn& column = *table.column(int(i) + 1);
        const kdUnitSystem unit =
            yUnits.empty() ? column.getUnitSystem() : yUnits[std::min(i, yUnits.size() - 1)];
        if (!tableUnits::convert(column, unit, m_y[i]))
            return false;
    }
    putInOrder();
    return true;
}

void Curve::putInOrder()
{
    std::vector<int> rows(std::size_t(m_x.size()));
    std::iota(rows.begin(), rows.end(), 0);
    rows.erase(std::remove_if(rows.begin(), rows.end(), [this](int row) { return std::isnan(m_x.at(row)); }),
               rows.end());
    // Turned before it is sorted, so that the steps of a falling curve keep their order.
    if (!rows.empty() && m_x.at(rows.front()) > m_x.at(rows.back()))
        std::reverse(rows.begin(), rows.end());
    const auto before = [this](int a, int b) { return m_x.at(a) < m_x.at(b); };
    if (!std::is_sorted(rows.begin(), rows.end(), before))
        std::stable_sort(rows.begin(), rows.end(), before);
    m_x = picked(m_x, rows);
    for (QVector<double>& values : m_y)
        values = picked(values, rows);
}

double Curve::valueAt(int curve, double x) const
{
    const interpolation::Nodes nodes{m_x.constData(), y(curve).constData(), m_x.size(),
                                     kdDataColumn::Increasing, true};
    return interpolation::lookUp(nodes, x, false);
}

QVector<double> commonNodes(const QVector<double>& first, const QVector<double>& second, LongWork& work)
{
    QVector<double> result = first;
    for (auto x = second.cbegin(); x != second.cend() && work.step(); ++x)
        result.append(snapped(first, *x));
    std::inplace_merge(result.begin(), result.begin() + first.size(), result.end());
    result.erase(std::unique(result.begin(), result.end()), result.end());
    return result;
}

bool commonRange(const QVector<double>& first, const QVector<double>& second, double& low, double& high)
{
    if (first.isEmpty() || second.isEmpty())
        return false;
    low = snapped(first, std::max(first.constFirst(), second.constFirst()));
    high = snapped(first, std::min(first.constLast(), second.constLast()));
    return low <= high;
}
