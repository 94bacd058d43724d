#pragma once

#include "figure.h"

#include <kdQCore/kdDataTable>

#include <QSharedPointer>
#include <QStringList>

/// Makes a figure of tables.
///
/// \code
/// nTableFigure::Source source;
/// source.table = curve;               // all of its visible columns
/// nTableFigure::Options options;
/// options.inViewUnits = true;
/// if (!nTableFigure::make({source}, options, figure, error))
///     show(error);
/// \endcode
namespace nTableFigure {

struct Source {
    QSharedPointer<const kdDataTable> table;
    int x = -1;         ///< column of the x axis; -1: the table's default
    QVector<int> y;     ///< columns of the curves; empty: all visible ones but x
    QVector<int> right; ///< those that get the right axis although their dimension has one on the left
};

struct Options {
    bool inViewUnits = false; ///< else in the unit of the first column of each axis
    QString xUnit;            ///< symbol; goes before inViewUnits
    QStringList yUnits;       ///< symbols; each is for the first y axis of which it is a unit
    Figure::Curve::Form form = Figure::Curve::Lines;
};

/// The columns on x must have one dimension; each dimension of those on y gets an axis, two in all. False,
/// and \a error says why, where that is not so or a unit fits none of the axes.
bool make(const QVector<Source>& sources, const Options& options, Figure& figure, QString& error);

} // namespace nTableFigure
