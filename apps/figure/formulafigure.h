#pragma once

#include "figure.h"

#include <kdQCore/coExpression>

/// Makes the curve of a formula while one of its variables runs.
///
/// The curve has as many points as it needs: where it bends, jumps or ends, they lie closer. Where the
/// formula fails or is not finite, the curve has a gap, whose edges are found as closely as a picture can
/// show.
namespace nFormulaFigure {

struct Range {
    QString variable;
    double from = 0.0;
    double to = 1.0;
    bool isLogarithmic = false; ///< the points are spread evenly on a logarithmic axis; both ends above 0
};

/// All other variables of the formula have their values already. The figure has neither titles nor units, as
/// a formula has none: the axis is named for the variable, the curve has the formula's text as its name.
/// False, with the formula's own error, where it fails throughout.
bool make(coExpression& formula, const Range& range, Figure& figure, QString& error);

} // namespace nFormulaFigure
