#pragma once

#include "formulaprogram.h"

#include <functional>
#include <vector>

/// What a caller's function returned in this evaluation. It is called once: whoever looks at the evaluation
/// again takes the value from here.
struct FormulaBoundCall {
    quint32 node;
    double value;
    int error; ///< errno after the call; -1 where it threw
};

/// The caller's functions and what they returned.
struct FormulaBound {
    std::vector<std::function<double(double)>> functions; ///< empty ones are not bound
    std::vector<FormulaBoundCall> calls;                  ///< of the running evaluation
};

namespace nFormula {

/// One pass over the program. NaN where anything is unusual: a value that is not finite, or one after which
/// errno might be set. The pass then says nothing about the formula: walk the tree.
double run(const FormulaProgram& program, double* slots, FormulaBound& bound);

/// For run(): appends to the calls; false where the call failed.
bool runBound(const FormulaInstruction& instruction, FormulaBound& bound, double argument);

FormulaBoundCall callBound(const std::function<double(double)>& function, quint32 node, double argument);

/// Evaluations that one pass over runLanes() makes.
constexpr int laneCount = 64;

/// Whether the lanes serve this program: it has no jumps and calls nothing of the caller's.
bool hasLanes(const FormulaProgram& program);

/// As run(), for laneCount sets of values at once. \a slots holds laneCount values for each slot of the
/// program. isUsual tells for each lane whether its result counts.
void runLanes(const FormulaProgram& program, double* slots, double* results, bool* isUsual);

} // namespace nFormula
