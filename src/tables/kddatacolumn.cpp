#include "kddatacolumn.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace {

constexpr double largest = std::numeric_limits<double>::max();

bool isNaN(double value)
{
    return std::isnan(value);
}

} // namespace

double kdDataColumn::value(int index) const
{
    return contains(index) ? m_values.at(index) : 0.0;
}

bool kdDataColumn::containsValue(double value) const
{
    return std::find(m_values.cbegin(), m_values.cend(), value) != m_values.cend();
}

void kdDataColumn::setValues(const QVector<double>& values)
{
    m_values = values;
    generateMinMax();
    invalidateMonotonicity();
}

void kdDataColumn::setValueAt(int index, double value)
{
    if (!contains(index))
        return;
    const double oldValue = std::exchange(m_values[index], value);
    replaceInExtremes(oldValue);
    widenExtremes(value);
    invalidateMonotonicity();
}

void kdDataColumn::appendValue(double value)
{
    m_values.append(value);
    if (isNaN(value)) {
        // A step to NaN leaves the monotonicity as it is, but lookups must know of the gap.
        const int order = m_order.load(std::memory_order_relaxed);
        if (order != unknownOrder)
            m_order.store(order | nanBit, std::memory_order_relaxed);
        return;
    }
    noteInserted(value);
    invalidateMonotonicity();
}

void kdDataColumn::insertValueAt(int index, double value)
{
    if (index < 0 || index > m_values.size())
        return;
    m_values.insert(index, value);
    noteInserted(value);
    invalidateMonotonicity();
}

void kdDataColumn::removeValueAt(int index)
{
    if (!contains(index))
        return;
    const double oldValue = m_values.takeAt(index);
    replaceInExtremes(oldValue);
    invalidateMonotonicity();
}

void kdDataColumn::removeValues(int first, int count)
{
    if (first < 0 || count <= 0 || first > m_values.size() - count)
        return;
    m_values.remove(first, count);
    generateMinMax();
    invalidateMonotonicity();
}

void kdDataColumn::clearValues()
{
    setValues(QVector<double>());
}

void kdDataColumn::scaleValues(double factor)
{
    for (double& value : m_values)
        value *= factor;
    generateMinMax();
    invalidateMonotonicity();
}

void kdDataColumn::sortValues()
{
    const auto numbersEnd =
        std::stable_partition(m_values.begin(), m_values.end(), [](double value) { return !isNaN(value); });
    std::stable_sort(m_values.begin(), numbersEnd);
    m_order.store(numbersEnd == m_values.end() ? Increasing : (Increasing | nanBit),
                  std::memory_order_relaxed);
}

void kdDataColumn::noteInserted(double value)
{
    if (m_values.size() == 1 && !isNaN(value)) {
        m_minimum.store(value, std::memory_order_relaxed);
        m_maximum.store(value, std::memory_order_relaxed);
    } else {
        widenExtremes(value);
    }
}

void kdDataColumn::widenExtremes(double value)
{
    if (value < minimum())
        m_minimum.store(value, std::memory_order_relaxed);
    if (value > maximum())
        m_maximum.store(value, std::memory_order_relaxed);
}

void kdDataColumn::replaceInExtremes(double oldValue)
{
    if (m_values.isEmpty() || oldValue == minimum() || oldValue == maximum())
        generateMinMax();
}

void kdDataColumn::generateMinMax() const
{
    double smallest = m_values.isEmpty() ? 0.0 : largest;
    double greatest = m_values.isEmpty() ? 0.0 : -largest; // not -0.0
    for (double value : m_values) {
        smallest = value < smallest ? value : smallest;
        greatest = value > greatest ? value : greatest;
    }
    m_minimum.store(smallest, std::memory_order_relaxed);
    m_maximum.store(greatest, std::memory_order_relaxed);
}

int kdDataColumn::indexOfMax() const
{
    generateMinMax();
    return m_values.indexOf(maximum());
}

int kdDataColumn::indexOfMin() const
{
    generateMinMax();
    return m_values.indexOf(minimum());
}

kdDataColumn::AbsMaxDetails kdDataColumn::getAbsMaxDetails() const
{
    generateMinMax();
    const double extreme = std::abs(maximum()) > std::abs(minimum()) ? maximum() : minimum();
    const double sign = extreme > 0.0 ? 1.0 : (extreme < 0.0 ? -1.0 : 0.0);
    return {std::abs(extreme), sign, m_values.indexOf(extreme)};
}

double kdDataColumn::minNonZeroValue() const
{
    double smallest = largest;
    for (double value : m_values)
        if (value != 0.0 && value < smallest)
            smallest = value;
    return smallest;
}

kdDataColumn::eMonotonicity kdDataColumn::monotonicityByPair(double first, double second)
{
    if (second > first)
        return Increasing;
    if (first > second)
        return Decreasing;
    return first == second ? Constant : Undefined;
}

kdDataColumn::eMonotonicity operator+(kdDataColumn::eMonotonicity first, kdDataColumn::eMonotonicity second)
{
    if (first == kdDataColumn::NotMonotonic || second == kdDataColumn::NotMonotonic)
        return kdDataColumn::NotMonotonic;
    if (first == kdDataColumn::Undefined || second == kdDataColumn::Undefined)
        return first == kdDataColumn::Undefined ? second : first;
    if (first == kdDataColumn::Constant || second == kdDataColumn::Constant)
        return first == kdDataColumn::Constant ? second : first;
    return first == second ? first : kdDataColumn::NotMonotonic;
}

void kdDataColumn::generateMonotonicity() const
{
    eMonotonicity result = m_values.size() < 2 ? Constant : Undefined;
    for (int i = 1; i < m_values.size() && result != NotMonotonic; ++i)
        result = result + monotonicityByPair(m_values.at(i - 1), m_values.at(i));
    const bool gaps = std::any_of(m_values.cbegin(), m_values.cend(), isNaN);
    m_order.store(gaps ? (result | nanBit) : result, std::memory_order_relaxed);
}

int kdDataColumn::determinedOrder() const
{
    generateMonotonicity();
    return m_order.load(std::memory_order_relaxed);
}

void kdDataColumn::invalidateMonotonicity()
{
    m_order.store(unknownOrder, std::memory_order_relaxed);
}

bool kdDataColumn::isValidXValForSumming(eMonotonicity monotonicity)
{
    return monotonicity == Constant || monotonicity == Increasing || monotonicity == Decreasing;
}

int kdDataColumn::indexOfRootValue(int startIndex, double value) const
{
    for (int i = std::max(startIndex, 0); i < m_values.size(); ++i) {
        const double here = m_values.at(i);
        const double next = m_values.value(i + 1, here);
        if (here == value || (here < value && value < next) || (next < value && value < here))
            return i;
    }
    return -1;
}
