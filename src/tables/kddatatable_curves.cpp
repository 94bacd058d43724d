#include "curve.h"
#include "kddatatable.h"
#include "longwork.h"
#include "tableunits.h"

#include <algorithm>
#include <cmath>

namespace {

double sum(double a, double b)
{
    return a + b;
}

double difference(double a, double b)
{
    return a - b;
}

double mean(double a, double b)
{
    return a * 0.5 + b * 0.5;
}

std::vector<kdUnitSystem> yUnits(const kdDataTable& table)
{
    std::vector<kdUnitSystem> units;
    for (int i = 1; i < table.columns(); ++i)
        units.push_back(table.column(i)->getUnitSystem());
    return units;
}

bool falls(const kdDataTable& table)
{
    return table.column(0)->getMonotonicity() == kdDataColumn::Decreasing;
}

void keepRange(QVector<double>& ascending, double low, double high)
{
    ascending.erase(std::upper_bound(ascending.begin(), ascending.end(), high), ascending.end());
    ascending.erase(ascending.begin(), std::lower_bound(ascending.begin(), ascending.end(), low));
}

// Puts ascending columns into the table, in the direction that the table had.
void store(kdDataTable& table, std::vector<QVector<double>> columns, bool falling)
{
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (falling)
            std::reverse(columns[i].begin(), columns[i].end());
        table.column(int(i))->setValues(columns[i]);
    }
}

struct CurvePair {
    Curve mine;
    Curve theirs;

    // A single curve of the other table serves every one of this.
    double theirValue(int curve, double x) const
    {
        return theirs.valueAt(theirs.curves() == 1 ? 0 : curve, x);
    }

    bool load(const kdDataTable& table, const kdDataTable& other)
    {
        return table.canSumOrSubtract() && other.canSumOrSubtract()
            && mine.load(table, table.xUnitSystem(), {})
            && theirs.load(other, table.xUnitSystem(), yUnits(table))
            && (theirs.curves() == 1 || theirs.curves() == mine.curves());
    }

    std::vector<QVector<double>> combined(const QVector<double>& nodes, double (*operation)(double, double),
                                          LongWork& work) const
    {
        std::vector<QVector<double>> columns{nodes};
        for (int i = 0; i < mine.curves(); ++i) {
            QVector<double> values;
            values.reserve(nodes.size());
            for (auto x = nodes.cbegin(); x != nodes.cend() && work.step(); ++x)
                values.append(operation(mine.valueAt(i, *x), theirValue(i, *x)));
            columns.push_back(values);
        }
        return columns;
    }
};

double (*operationOf(kdDataTable::Combination combination))(double, double)
{
    if (combination == kdDataTable::Average)
        return mean;
    return combination == kdDataTable::Sum ? sum : difference;
}

} // namespace

bool kdDataTable::canSumOrSubtract() const
{
    if (columns() < 2 || m_columns[0]->size() != m_columns[1]->size()
        || !m_columns[0]->isValidXValForSumming())
        return false;
    const QVector<double>& x = m_columns[0]->values();
    const QVector<double>& y = m_columns[1]->values();
    for (int i = 1; i < x.size(); ++i)
        if (x.at(i) == x.at(i - 1) && !(y.at(i) == y.at(i - 1)))
            return false;
    return true;
}

bool kdDataTable::combine(Combination combination, const kdDataTable& other, kdDataTable& result,
                          const GoOn& goOn) const
{
    CurvePair pair;
    double low = 0.0;
    double high = 0.0;
    if (!pair.load(*this, other)
        || (combination == Average && !commonRange(pair.mine.x(), pair.theirs.x(), low, high)))
        return false;
    // The nodes are looked for once in the other curve, then evaluated in both.
    const double mostNodes = double(pair.mine.x().size()) + pair.theirs.x().size();
    LongWork work(goOn, pair.theirs.x().size() + mostNodes * pair.mine.curves());
    QVector<double> nodes = commonNodes(pair.mine.x(), pair.theirs.x(), work);
    if (combination == Average)
        keepRange(nodes, low, high);
    const std::vector<QVector<double>> columns = pair.combined(nodes, operationOf(combination), work);
    if (work.isStopped())
        return false;
    kdDataTable combined(*this);
    store(combined, columns, falls(*this) || (combination != Average && rows() < 2 && falls(other)));
    result = std::move(combined);
    return true;
}

bool kdDataTable::sumXY(const kdDataTable& table)
{
    return combine(Sum, table, *this, GoOn());
}

bool kdDataTable::subtractXY(const kdDataTable& table)
{
    return combine(Difference, table, *this, GoOn());
}

bool kdDataTable::average(const kdDataTable& other, kdDataTable& result) const
{
    return combine(Average, other, result, GoOn());
}

bool kdDataTable::getCutByOtherTable(const kdDataTable& other, kdDataTable& result) const
{
    Curve curve;
    Curve range;
    double low = 0.0;
    double high = 0.0;
    if (columns() < 1 || !m_columns[0]->isValidXValForSumming() || !curve.load(*this, xUnitSystem(), {})
        || !range.load(other, xUnitSystem(), {}) || !commonRange(curve.x(), range.x(), low, high))
        return false;
    const auto begin = std::lower_bound(curve.x().cbegin(), curve.x().cend(), low);
    const auto end = std::upper_bound(begin, curve.x().cend(), high);
    const bool cutLow = begin == curve.x().cend() || *begin != low;
    const bool cutHigh = low < high && (end == begin || *(end - 1) != high);
    const int first = int(begin - curve.x().cbegin());
    const int count = int(end - begin);

    std::vector<QVector<double>> cut;
    for (int i = -1; i < curve.curves(); ++i) {
        const auto at = [&curve, i](double x) { return i < 0 ? x : curve.valueAt(i, x); };
        QVector<double> values = (i < 0 ? curve.x() : curve.y(i)).mid(first, count);
        if (cutLow)
            values.prepend(at(low));
        if (cutHigh)
            values.append(at(high));
        cut.push_back(values);
    }
    kdDataTable table(*this);
    store(table, std::move(cut), falls(*this));
    result = std::move(table);
    return true;
}

bool kdDataTable::applySamplingPoints(const kdDataColumn& samplingPoints)
{
    Curve curve;
    QVector<double> nodes;
    if (columns() < 1 || !m_columns[0]->isValidXValForSumming()
        || !tableUnits::convert(samplingPoints, xUnitSystem(), nodes)
        || !curve.load(*this, xUnitSystem(), {}))
        return false;
    nodes.erase(std::remove_if(nodes.begin(), nodes.end(), [](double x) { return std::isnan(x); }),
                nodes.end());
    if (nodes.isEmpty() || curve.isEmpty())
        return false;
    std::vector<QVector<double>> columns{nodes};
    for (int i = 0; i < curve.curves(); ++i) {
        QVector<double> values;
        values.reserve(nodes.size());
        for (double x : qAsConst(nodes))
            values.append(curve.valueAt(i, x));
        columns.push_back(values);
    }
    store(*this, std::move(columns), false);
    return true;
}

bool kdDataTable::appendXYValue(const kdDataTable& table)
{
    QVector<double> x;
    QVector<double> y;
    if (!isXYDataTable() || !table.isXYDataTable() || !tableUnits::convert(*table.column(0), xUnitSystem(), x)
        || !tableUnits::convert(*table.column(1), yUnitSystem(), y))
        return false;
    m_columns[0]->setValues(m_columns[0]->values() + x);
    m_columns[1]->setValues(m_columns[1]->values() + y);
    return true;
}
