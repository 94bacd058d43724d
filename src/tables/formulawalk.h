#pragma once

#include "formularun.h"
#include "formulatree.h"

enum class FormulaError { None = -1, Evaluation = 0, DivisionByZero = 1, Domain = 2, Range = 3 };

struct FormulaFailure {
    FormulaError error = FormulaError::None;
    quint32 node = 0;
};

/// What a walk needs besides the tree; \a variables has a value for each variable.
struct FormulaBinding {
    const double* variables;
    const std::vector<FormulaFunction>& builtIn; ///< null: a bound function counts
    const FormulaBound& bound;                   ///< with the calls already made in this evaluation
};

namespace nFormula {

/// Evaluates node by node as the language is defined: errno cleared before and looked at after each. Slower
/// than run(), but it finds the failing node. \a values is working memory.
FormulaFailure walk(const FormulaTree& tree, const FormulaBinding& binding, std::vector<double>& values,
                    double& result);

} // namespace nFormula
