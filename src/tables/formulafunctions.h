#pragma once

#include <QString>

using FormulaFunction = double (*)(double);

namespace nFormula {

/// Null where no variable of this name is built in.
const double* builtInVariable(const QString& name);

/// Null where no function of this name is built in. Angles are in degrees.
FormulaFunction builtInFunction(const QString& name);

} // namespace nFormula
