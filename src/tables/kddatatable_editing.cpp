#include "kddatatable.h"
#include "longwork.h"
#include "tableunits.h"

#include <algorithm>
#include <cmath>

namespace {

// Rounding that a conversion of units may leave, relative to the number.
constexpr double conversionRounding = 1e-12;

/// Stable, in short steps: blocks are sorted, then merged until one is left.
template <typename Before>
bool sort(QVector<QPointF>& points, Before before, const kdDataTable::GoOn& goOn)
{
    constexpr int block = 1 << 16;
    const int size = points.size();
    const auto at = [&points](qint64 index) {
        return points.begin() + int(qMin<qint64>(index, points.size()));
    };
    int rounds = 1;
    for (qint64 width = block; width < size; width *= 2)
        ++rounds;
    LongWork work(goOn, double(size) * rounds);
    for (qint64 first = 0; first < size && work.step(block); first += block)
        std::stable_sort(at(first), at(first + block), before);
    for (qint64 width = block; width < size; width *= 2)
        for (qint64 first = 0; first < size && work.step(2 * width); first += 2 * width)
            std::inplace_merge(at(first), at(first + width), at(first + 2 * width), before);
    return !work.isStopped();
}

} // namespace

bool kdDataTable::canSortXYData() const
{
    return isXYDataTable() && rows() > 0;
}

bool kdDataTable::sortPoints(bool byX, bool descending, const GoOn& goOn)
{
    if (!canSortXYData())
        return true;
    const auto key = [byX](const QPointF& point) { return byX ? point.x() : point.y(); };
    const auto before = [key, descending](const QPointF& first, const QPointF& second) {
        const double a = key(first);
        const double b = key(second);
        return !std::isnan(a) && (std::isnan(b) || (descending ? a > b : a < b));
    };
    QVector<QPointF> sorted = points();
    if (!sort(sorted, before, goOn))
        return false;
    setPoints(sorted);
    return true;
}

void kdDataTable::sortForXValues(bool descending)
{
    sortPoints(true, descending);
}

bool kdDataTable::sortForXValues(bool descending, const GoOn& goOn)
{
    return sortPoints(true, descending, goOn);
}

void kdDataTable::sortForYValues(bool descending)
{
    sortPoints(false, descending);
}

void kdDataTable::scaleXData(double factor)
{
    if (kdDataColumn* x = column(0))
        x->scaleValues(factor);
}

void kdDataTable::scaleYData(double factor)
{
    for (int i = 1; i < columns(); ++i)
        column(i)->scaleValues(factor);
}

void kdDataTable::keepRows(const QVector<int>& rows)
{
    for (const ColumnPointer& column : m_columns) {
        QVector<double> kept;
        kept.reserve(rows.size());
        for (int row : rows)
            kept.append(column->value(row));
        column->setValues(kept);
    }
}

int kdDataTable::removePointsWithYValueZero(const kdUnitSystem& unitSystem)
{
    double zero = 0.0;
    if (!isXYDataTable() || !tableUnits::convert(0.0, unitSystem, yUnitSystem(), zero))
        return 0;
    const int oldRows = rows();
    QVector<int> kept;
    for (int row = 0; row < oldRows; ++row)
        if (!(std::abs(m_columns[1]->value(row) - zero) <= std::abs(zero) * conversionRounding))
            kept.append(row);
    if (kept.size() < oldRows)
        keepRows(kept);
    return oldRows - kept.size();
}

bool kdDataTable::adjustYValuesToNewMinMax(const kdUnitSystem& unitSystem, double minimum, double maximum)
{
    double low = 0.0;
    double high = 0.0;
    if (!isXYDataTable() || !tableUnits::convert(minimum, unitSystem, yUnitSystem(), low)
        || !tableUnits::convert(maximum, unitSystem, yUnitSystem(), high))
        return false;
    kdDataColumn& y = *m_columns[1];
    y.generateMinMax();
    const double oldLow = y.minimum();
    const double oldHigh = y.maximum();
    if (!(oldLow < oldHigh) || !(low <= high) || !std::isfinite(low) || !std::isfinite(high)
        || !std::isfinite(oldHigh - oldLow))
        return false;
    QVector<double> values = y.values();
    for (double& value : values) {
        const double share = (value - oldLow) / (oldHigh - oldLow);
        value = low * (1.0 - share) + high * share; // exact at both ends
    }
    y.setValues(values);
    return true;
}

bool kdDataTable::cropDataTable(int first, int last)
{
    if (first < 0 || first > last || last >= rows())
        return false;
    for (const ColumnPointer& column : m_columns)
        column->setValues(column->values().mid(first, last - first + 1));
    return true;
}

int kdDataTable::removeMultipleXValuesAtBeginning(bool useY)
{
    if (columns() < 2)
        return 0;
    const kdDataColumn& judged = *m_columns[useY ? 1 : 0];
    int last = 0;
    while (last + 1 < judged.size() && judged.value(last + 1) == judged.value(0))
        ++last;
    for (const ColumnPointer& column : m_columns) {
        column->removeValues(0, last);
        column->invalidateMonotonicity();
    }
    return last;
}

bool kdDataTable::getForthStrokeSection(int& first, int& last) const
{
    first = -1;
    last = -1;
    if (!isXYDataTable())
        return false;
    const QVector<double>& y = m_columns[1]->values();
    const auto rises = [&y](int row) { return y.at(row) > y.at(row - 1); };
    int row = 1;
    while (row < y.size() && !rises(row))
        ++row;
    if (row >= y.size())
        return false;
    first = row - 1;
    for (; row < y.size() && y.at(row) >= y.at(row - 1); ++row)
        if (rises(row))
            last = row;
    return true;
}

bool kdDataTable::moveAllXToZero()
{
    sortForXValues();
    const kdDataColumn* x = column(0);
    if (!x || x->isEmpty() || !(x->value(0) >= 0.0))
        return false;
    QVector<double> values = x->values();
    const double start = values.constFirst();
    for (double& value : values)
        value -= start;
    column(0)->setValues(values);
    return true;
}

bool kdDataTable::allXGreaterZeroExceptFirst()
{
    sortForXValues();
    return rows() > 0 && m_columns[0]->value(0) == 0.0;
}

bool kdDataTable::allXPositive()
{
    sortForXValues();
    return rows() == 0 || !(m_columns[0]->value(0) < 0.0);
}

bool kdDataTable::allYGreaterZero() const
{
    return std::all_of(m_columns.begin() + std::min(1, columns()), m_columns.end(),
                       [](const ColumnPointer& column) {
                           return std::all_of(column->values().begin(), column->values().end(),
                                              [](double value) { return value > 0.0; });
                       });
}
