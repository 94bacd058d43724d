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

using FormulaBoundFunctions = std::vector<std::function<double(double)>>;

namespace nFormula {

/// One pass over the program. False where anything is unusual: a value that is not finite, or one after which
/// errno might be set. The pass then says nothing about the formula: walk the tree.
bool run(const FormulaProgram& program, double* slots, const FormulaBoundFunctions& functions,
         std::vector<FormulaBoundCall>& calls, double& result);

/// For run(): appends to \a calls; false where the call failed.
bool runBound(const FormulaInstruction& instruction, const FormulaBoundFunctions& functions,
              std::vector<FormulaBoundCall>& calls, double argument);

FormulaBoundCall callBound(const std::function<double(double)>& function, quint32 node, double argument);

/// Evaluations that one pass over runLanes() makes.
constexpr int laneCount = 64;

/// Whether the lanes serve this program: it has no jumps and calls nothing of the caller's.
bool hasLanes(const FormulaProgram& program);

/// As run(), for laneCount sets of values at once. \a slots holds laneCount values for each slot of the
/// program. isUsual tells for each lane whether its result counts.
void runLanes(const FormulaProgram& program, double* slots, double* results, bool* isUsual);

} // namespace nFormula
