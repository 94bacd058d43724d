#pragma once

#include "kddatacolumn.h"

#include <QVector>

#include <vector>

class kdDataTable;
class LongWork;

/// The curves of a table made ready for combination: X ascending and without NaN, in given units.
class Curve {
public:
    /// Empty \a yUnits keep the units of the columns. False where a unit does not fit.
    bool load(const kdDataTable& table, const kdUnitSystem& xUnit, const std::vector<kdUnitSystem>& yUnits);

    bool isEmpty() const { return m_x.isEmpty(); }
    const QVector<double>& x() const { return m_x; }
    const QVector<double>& y(int curve) const { return m_y[std::size_t(curve)]; }
    int curves() const { return static_cast<int>(m_y.size()); }
    double valueAt(int curve, double x) const; ///< end values outside

private:
    void putInOrder();

    QVector<double> m_x;
    std::vector<QVector<double>> m_y;
};

/// All X of both, ascending, each once. Where two differ by the rounding of a conversion only, that of \a
/// first stands for both. Incomplete where \a work was stopped.
QVector<double> commonNodes(const QVector<double>& first, const QVector<double>& second, LongWork& work);

/// The overlap of both, ends likewise; false where they do not meet.
bool commonRange(const QVector<double>& first, const QVector<double>& second, double& low, double& high);
