#include "interpolation.h"
#include "kddatatable.h"

#include <cmath>

namespace {

kdUnitValue extreme(const kdDataColumn* column, double (kdDataColumn::*which)() const)
{
    return column ? kdUnitValue((column->*which)(), column->getUnitSystem()) : kdUnitValue();
}

} // namespace

kdUnitValue kdDataTable::maxXValue() const
{
    return extreme(column(0), &kdDataColumn::maximum);
}

kdUnitValue kdDataTable::minXValue() const
{
    return extreme(column(0), &kdDataColumn::minimum);
}

kdUnitValue kdDataTable::maxYValue() const
{
    return extreme(column(1), &kdDataColumn::maximum);
}

kdUnitValue kdDataTable::minYValue() const
{
    return extreme(column(1), &kdDataColumn::minimum);
}

int kdDataTable::indexOfYMax() const
{
    return column(1) ? column(1)->indexOfMax() : -1;
}

int kdDataTable::indexOfYMin() const
{
    return column(1) ? column(1)->indexOfMin() : -1;
}

double kdDataTable::columnAverage(int index) const
{
    const kdDataColumn* source = column(index);
    if (!source)
        return 0.0;
    long double sum = 0.0L;
    int count = 0;
    for (double value : source->values()) {
        if (std::isnan(value))
            continue;
        sum += value;
        ++count;
    }
    return count ? static_cast<double>(sum / count) : 0.0;
}

double kdDataTable::linearInterpolation(double x, double x1, double y1, double x2, double y2)
{
    return interpolation::linear(x, x1, y1, x2, y2);
}

double kdDataTable::getInterpolDoubleValue(const kdDataColumn& xColumn, const kdDataColumn& yColumn, double x,
                                           e_InterpolationRuleOutsideInterval rule)
{
    if (xColumn.size() != yColumn.size())
        return 0.0;
    if (xColumn.size() < 2)
        return yColumn.value(0); // without asking for the order, which would be kept
    const interpolation::Nodes nodes{xColumn.values().constData(), yColumn.values().constData(),
                                     xColumn.size(), xColumn.getMonotonicity(), !xColumn.hasNaN()};
    return interpolation::lookUp(nodes, x, rule == ZeroOutside);
}

double kdDataTable::getInterpolDoubleValue(const kdDataColumn* xColumn, const kdDataColumn* yColumn, double x,
                                           e_InterpolationRuleOutsideInterval rule)
{
    return xColumn && yColumn ? getInterpolDoubleValue(*xColumn, *yColumn, x, rule) : 0.0;
}

double kdDataTable::getInterpolDoubleValue(int yColumn, double x,
                                           e_InterpolationRuleOutsideInterval rule) const
{
    return getInterpolDoubleValue(column(0), column(yColumn), x, rule);
}
