#include "kddatatable.h"
#include "tableunits.h"

bool kdDataTable::isXYDataTable() const
{
    if (columns() != 2)
        return false;
    const kdDataColumn::Usage x = m_columns[0]->getUsage();
    const kdDataColumn::Usage y = m_columns[1]->getUsage();
    return (x == kdDataColumn::UsageUnspecified || x == kdDataColumn::UsageX)
        && (y == kdDataColumn::UsageUnspecified || y == kdDataColumn::UsageY);
}

kdDataTable::PointIterator kdDataTable::begin() const
{
    return isXYDataTable() ? PointIterator(column(0), column(1), 0) : PointIterator();
}

kdDataTable::PointIterator kdDataTable::end() const
{
    return isXYDataTable() ? begin() + rows() : begin();
}

QVector<QPointF> kdDataTable::points() const
{
    QVector<QPointF> result;
    result.reserve(end() - begin());
    for (const QPointF& point : *this)
        result.append(point);
    return result;
}

QPointF kdDataTable::pointAt(int index) const
{
    return isXYDataTable() ? begin()[index] : QPointF();
}

bool kdDataTable::setPointAt(int index, const QPointF& point)
{
    if (!isXYDataTable() || index < 0 || index >= rows())
        return false;
    m_columns[0]->setValueAt(index, point.x());
    m_columns[1]->setValueAt(index, point.y());
    return true;
}

bool kdDataTable::addPoint(const QPointF& point)
{
    if (!isXYDataTable())
        return false;
    m_columns[0]->appendValue(point.x());
    m_columns[1]->appendValue(point.y());
    return true;
}

bool kdDataTable::insertPoint(int index, const QPointF& point)
{
    if (!isXYDataTable() || index < 0 || index > rows())
        return false;
    m_columns[0]->insertValueAt(index, point.x());
    m_columns[1]->insertValueAt(index, point.y());
    return true;
}

bool kdDataTable::removePointAt(int index)
{
    if (!isXYDataTable() || index < 0 || index >= rows())
        return false;
    m_columns[0]->removeValueAt(index);
    m_columns[1]->removeValueAt(index);
    return true;
}

bool kdDataTable::setPoints(const QVector<QPointF>& points)
{
    if (!isXYDataTable())
        return false;
    QVector<double> x;
    QVector<double> y;
    x.reserve(points.size());
    y.reserve(points.size());
    for (const QPointF& point : points) {
        x.append(point.x());
        y.append(point.y());
    }
    m_columns[0]->setValues(x);
    m_columns[1]->setValues(y);
    return true;
}

void kdDataTable::clearXYColumnValues()
{
    setPoints(QVector<QPointF>());
}

kdDataTable::UvPoint kdDataTable::uvPointAt(int index) const
{
    if (!isXYDataTable() || index < 0 || index >= rows())
        return UvPoint();
    const QPointF point = pointAt(index);
    return UvPoint(kdUnitValue(point.x(), xUnitSystem()), kdUnitValue(point.y(), yUnitSystem()));
}

bool kdDataTable::inColumnUnits(const UvPoint& point, QPointF& converted) const
{
    return isXYDataTable() && tableUnits::convert(point.first, xUnitSystem(), converted.rx())
        && tableUnits::convert(point.second, yUnitSystem(), converted.ry());
}

bool kdDataTable::setUvPointAt(int index, const UvPoint& point)
{
    QPointF converted;
    return inColumnUnits(point, converted) && setPointAt(index, converted);
}

bool kdDataTable::setUvPointAt(int index, const kdUnitValue& x, const kdUnitValue& y)
{
    return setUvPointAt(index, UvPoint(x, y));
}

bool kdDataTable::addUvPoint(const UvPoint& point)
{
    QPointF converted;
    return inColumnUnits(point, converted) && addPoint(converted);
}

bool kdDataTable::addUvPoint(const kdUnitValue& x, const kdUnitValue& y)
{
    return addUvPoint(UvPoint(x, y));
}

bool kdDataTable::getXYData(QVector<QPointF>& points, int& unitX, int& unitY, bool inViewUnits) const
{
    if (!isXYDataTable())
        return false;
    if (inViewUnits) {
        kdDataTable converted(*this);
        converted.toViewUnit();
        return converted.getXYData(points, unitX, unitY);
    }
    points = this->points();
    unitX = m_columns[0]->getUnitIndex();
    unitY = m_columns[1]->getUnitIndex();
    return true;
}

bool kdDataTable::getXYAxisData(QVector<double>& x, QVector<double>& y) const
{
    if (!isXYDataTable())
        return false;
    x = m_columns[0]->values();
    y = m_columns[1]->values();
    return true;
}

bool kdDataTable::getXYAxisData(QList<double>& x, QList<double>& y) const
{
    if (!isXYDataTable())
        return false;
    x = m_columns[0]->values().toList();
    y = m_columns[1]->values().toList();
    return true;
}

bool kdDataTable::setXYData(const QVector<QPointF>& points, int unitX, int unitY)
{
    if (m_columns.empty())
        setXYData(new kdDataColumn, new kdDataColumn);
    if (!setPoints(points))
        return false;
    setUnitX(unitX);
    setUnitY(unitY);
    return true;
}
