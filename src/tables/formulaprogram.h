#pragma once

#include "formulafunctions.h"
#include "formulatree.h"

#include <vector>

// Each instruction once, in the order of the codes. "Slot" is an element of FormulaProgram::slots: a
// variable, a literal or a temporary; r is the running value.
//   Load              r = a            Store    a = r
//   Add ... Power     r = r op a       From, Into, Raise: subtract, divide and power with the slot first
//   AddSlots ...      r = a op b       MultiplyAdd      r = b + a * r
//   Horner            "to" times MultiplyAdd with b, b - 1, ...
//   Square            pow(r, a), where the slot is the literal 2
//   Truth             r = r != 0       Equal ...        r = r op a
//   CallSlot          r = f(a)         CallBound        a function of the caller's, number a
//   ForgetCalls       of the caller's functions, made in the evaluation before
//   IfNot, If         jump where r is 0, or is not      IfNotLess ...    jump where a < b is false, and so on
// clang-format off
#define FORMULA_OPS(X)                                                                            \
    X(Halt) X(Load) X(Store) X(Negate) X(Not) X(Truth)                                            \
    X(Add) X(Subtract) X(From) X(Multiply) X(Divide) X(Into) X(Power) X(Square) X(Raise)          \
    X(AddSlots) X(SubtractSlots) X(MultiplySlots) X(DivideSlots) X(PowerSlots)                    \
    X(MultiplyAdd) X(Horner)                                                                      \
    X(Equal) X(NotEqual) X(Less) X(LessEqual) X(Greater) X(GreaterEqual)                          \
    X(Root) X(Call) X(CallSlot) X(ForgetCalls) X(CallBound)                                       \
    X(Jump) X(IfNot) X(If) X(IfNotLess) X(IfNotLessEqual) X(IfNotGreater) X(IfNotGreaterEqual)
// clang-format on

#define FORMULA_ENUMERATOR(name) name,
enum class FormulaOp : quint8 { FORMULA_OPS(FORMULA_ENUMERATOR) };
#undef FORMULA_ENUMERATOR

struct FormulaInstruction {
    FormulaOp op = FormulaOp::Halt;
    quint32 a = 0;
    quint32 b = 0;
    quint32 to = 0; ///< of a jump: how far; of a bound call: its node; of Horner: how many
    FormulaFunction function = nullptr;
};

/// A formula as flat code with one accumulator. Leaves cost no instruction, the frequent pairs "leaf + leaf *
/// running" and "compare and jump" are one.
struct FormulaProgram {
    std::vector<FormulaInstruction> code;
    std::vector<double> slots; ///< as they are before the first evaluation; the variables come first
    bool callsBound = false;
    bool jumps = false;
    bool hasInfiniteLiteral = false; ///< which fails where it is used
};

namespace nFormula {

/// \a functions: for each function of the tree the built-in one, or null for the caller's.
FormulaProgram compiled(const FormulaTree& tree, const std::vector<FormulaFunction>& functions);

} // namespace nFormula
