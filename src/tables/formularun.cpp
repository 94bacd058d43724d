#include "formularun.h"

#include "formulapower.h"

#include <cmath>
#include <limits>

namespace {

constexpr double largest = std::numeric_limits<double>::max();
constexpr double unusual = std::numeric_limits<double>::quiet_NaN();

// False for NaN too.
inline bool isFinite(double value)
{
    return std::fabs(value) <= largest;
}

// The mathematical library of the system sets errno, if it does so at all, where the result is not finite or
// has become too small for all its digits. So the result alone tells whether errno must be looked at.
inline bool isUsual(double value)
{
    const double magnitude = std::fabs(value);
    return magnitude <= largest && (magnitude >= std::numeric_limits<double>::min() || magnitude == 0.0);
}

inline bool isUsualPower(double value)
{
    const double magnitude = std::fabs(value);
    return magnitude <= largest && magnitude >= std::numeric_limits<double>::min();
}

} // namespace

// The processor foresees the way through a program far better where each instruction jumps to the next by
// itself; compilers without labels as values get a switch.
// NOLINTBEGIN(bugprone-macro-parentheses): the macros are labels and jumps, no expressions
#ifdef __GNUC__
#pragma GCC diagnostic ignored "-Wpedantic"
#define FORMULA_LABEL(name) &&name,
#define OP(name) name
#define DISPATCH goto* labels[int(c->op)]
#else
#define OP(name) case FormulaOp::name
#define DISPATCH break
#endif
#define NEXT \
    ++c;     \
    DISPATCH
#define NEXT_IF(condition) \
    if (!(condition))      \
        return unusual;    \
    NEXT
#define JUMP_IF(condition)         \
    c += (condition) ? c->to : 1u; \
    DISPATCH

// NOLINTEND(bugprone-macro-parentheses)
// clang-format off
// NOLINTNEXTLINE(readability-function-size): one short case an instruction
double nFormula::run(const FormulaProgram& program, double* slots, FormulaBound& bound)
{
    const FormulaInstruction* c = program.code.data();
    const double* const s = slots;
    double r = 0.0; // its address must not be taken: it would leave its register
#ifdef __GNUC__
    static const void* const labels[] = {FORMULA_OPS(FORMULA_LABEL)};
    DISPATCH;
    {{
#else
    for (;;) {
        switch (c->op) {
#endif
    OP(Halt):
        return r;
    OP(Load):
        r = s[c->a];
        NEXT;
    OP(Store):
        slots[c->a] = r;
        NEXT;
    OP(Negate):
        r = -r;
        NEXT;
    OP(Not):
        r = r == 0.0;
        NEXT;
    OP(Truth):
        r = r != 0.0;
        NEXT;
    OP(Add):
        r = r + s[c->a];
        NEXT_IF(isFinite(r));
    OP(Subtract):
        r = r - s[c->a];
        NEXT_IF(isFinite(r));
    OP(From):
        r = s[c->a] - r;
        NEXT_IF(isFinite(r));
    OP(Multiply):
        r = r * s[c->a];
        NEXT_IF(isFinite(r));
    OP(Divide):
        r = r / s[c->a];
        NEXT_IF(isFinite(r));
    OP(Into):
        r = s[c->a] / r;
        NEXT_IF(isFinite(r));
    OP(Power):
        r = std::pow(r, s[c->a]);
        NEXT_IF(isUsualPower(r));
    OP(Square):
        r = squareAsPow(r, s[c->a]);
        NEXT_IF(isUsualPower(r));
    OP(Raise):
        r = std::pow(s[c->a], r);
        NEXT_IF(isUsualPower(r));
    OP(AddSlots):
        r = s[c->a] + s[c->b];
        NEXT_IF(isFinite(r));
    OP(SubtractSlots):
        r = s[c->a] - s[c->b];
        NEXT_IF(isFinite(r));
    OP(MultiplySlots):
        r = s[c->a] * s[c->b];
        NEXT_IF(isFinite(r));
    OP(DivideSlots):
        r = s[c->a] / s[c->b];
        NEXT_IF(isFinite(r));
    OP(PowerSlots):
        r = std::pow(s[c->a], s[c->b]);
        NEXT_IF(isUsualPower(r));
    OP(MultiplyAdd):
        r = s[c->a] * r; // an infinite product leaves no finite sum
        r = s[c->b] + r;
        NEXT_IF(isFinite(r));
    OP(Horner): {
        const double x = s[c->a];
        std::size_t k = c->to;
        const double* const sums = s + (c->b + 1 - k);
        do {
            r = x * r;
            r = sums[--k] + r;
        } while (k > 0);
    }
        NEXT_IF(isFinite(r));
    OP(Equal):
        r = r == s[c->a];
        NEXT;
    OP(NotEqual):
        r = r != s[c->a];
        NEXT;
    OP(Less):
        r = r < s[c->a];
        NEXT;
    OP(LessEqual):
        r = r <= s[c->a];
        NEXT;
    OP(Greater):
        r = r > s[c->a];
        NEXT;
    OP(GreaterEqual):
        r = r >= s[c->a];
        NEXT;
    OP(Root):
        if (!(r >= 0.0)) // a domain error goes the long way
            return unusual;
        r = std::sqrt(r);
        NEXT;
    OP(Call):
        r = c->function(r);
        NEXT_IF(isUsual(r));
    OP(CallSlot):
        r = c->function(s[c->a]);
        NEXT_IF(isUsual(r));
    OP(ForgetCalls):
        bound.calls.clear();
        NEXT;
    OP(CallBound):
        if (!runBound(*c, bound, r))
            return unusual;
        r = bound.calls.back().value;
        NEXT;
    OP(Jump):
        JUMP_IF(true);
    OP(IfNot):
        JUMP_IF(r == 0.0);
    OP(If):
        JUMP_IF(r != 0.0);
    OP(IfNotLess):
        JUMP_IF(!(s[c->a] < s[c->b]));
    OP(IfNotLessEqual):
        JUMP_IF(!(s[c->a] <= s[c->b]));
    OP(IfNotGreater):
        JUMP_IF(!(s[c->a] > s[c->b]));
    OP(IfNotGreaterEqual):
        JUMP_IF(!(s[c->a] >= s[c->b]));
    }}
}
// clang-format on
