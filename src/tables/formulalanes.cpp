#include "formulapower.h"
#include "formularun.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

// Larger programs would leave the processor's nearest memory, and take too much of it.
constexpr std::size_t mostSlots = 256;

// The lanes of the running value. `doubt` turns NaN for good where a value was not finite.
struct Lanes {
    double r[nFormula::laneCount];
    double doubt[nFormula::laneCount];

    template <typename Operation>
    void set(Operation operation)
    {
        for (int i = 0; i < nFormula::laneCount; ++i)
            r[i] = operation(i);
    }

    template <typename Operation>
    void setChecked(Operation operation)
    {
        for (int i = 0; i < nFormula::laneCount; ++i) {
            const double value = operation(i);
            r[i] = value;
            doubt[i] += value * 0.0;
        }
    }

    // Where the library might set errno; see run().
    template <typename Operation>
    void call(Operation operation)
    {
        for (int i = 0; i < nFormula::laneCount; ++i) {
            const double value = operation(i);
            const bool isSmall = std::fabs(value) < std::numeric_limits<double>::min() && value != 0.0;
            r[i] = value;
            doubt[i] += isSmall ? std::numeric_limits<double>::quiet_NaN() : value * 0.0;
        }
    }

    void raise(const double* base, const double* exponent)
    {
        for (int i = 0; i < nFormula::laneCount; ++i) {
            const double value = std::pow(base[i], exponent[i]);
            const bool isSmall = std::fabs(value) < std::numeric_limits<double>::min();
            r[i] = value;
            doubt[i] += isSmall ? std::numeric_limits<double>::quiet_NaN() : value * 0.0;
        }
    }
};

// NOLINTNEXTLINE(readability-function-size): one short case an instruction
void step(const FormulaInstruction& c, double* slots, Lanes& lanes)
{
    double* const a = slots + std::size_t(c.a) * nFormula::laneCount;
    const double* b = slots + std::size_t(c.b) * nFormula::laneCount;
    const double* const r = lanes.r;
    switch (c.op) {
    case FormulaOp::Load:
        return lanes.set([=](int i) { return a[i]; });
    case FormulaOp::Store:
        std::copy(r, r + nFormula::laneCount, a);
        return;
    case FormulaOp::Negate:
        return lanes.set([=](int i) { return -r[i]; });
    case FormulaOp::Not:
        return lanes.set([=](int i) { return r[i] == 0.0 ? 1.0 : 0.0; });
    case FormulaOp::Truth:
        return lanes.set([=](int i) { return r[i] != 0.0 ? 1.0 : 0.0; });
    case FormulaOp::Add:
        return lanes.setChecked([=](int i) { return r[i] + a[i]; });
    case FormulaOp::Subtract:
        return lanes.setChecked([=](int i) { return r[i] - a[i]; });
    case FormulaOp::From:
        return lanes.setChecked([=](int i) { return a[i] - r[i]; });
    case FormulaOp::Multiply:
        return lanes.setChecked([=](int i) { return r[i] * a[i]; });
    case FormulaOp::Divide:
        return lanes.setChecked([=](int i) { return r[i] / a[i]; });
    case FormulaOp::Into:
        return lanes.setChecked([=](int i) { return a[i] / r[i]; });
    case FormulaOp::AddSlots:
        return lanes.setChecked([=](int i) { return a[i] + b[i]; });
    case FormulaOp::SubtractSlots:
        return lanes.setChecked([=](int i) { return a[i] - b[i]; });
    case FormulaOp::MultiplySlots:
        return lanes.setChecked([=](int i) { return a[i] * b[i]; });
    case FormulaOp::DivideSlots:
        return lanes.setChecked([=](int i) { return a[i] / b[i]; });
    case FormulaOp::Horner:
        for (quint32 k = 0; k + 1 < c.to; ++k) {
            const double* const sum = b - std::size_t(k) * nFormula::laneCount;
            lanes.set([=](int i) {
                const double product = a[i] * r[i];
                return sum[i] + product;
            });
        }
        b -= std::size_t(c.to - 1) * nFormula::laneCount;
        [[fallthrough]];
    case FormulaOp::MultiplyAdd:
        return lanes.setChecked([=](int i) {
            const double product = a[i] * r[i];
            return b[i] + product;
        });
    case FormulaOp::Power:
        return lanes.raise(r, a);
    case FormulaOp::Square:
        return lanes.call([=](int i) {
            const double value = nFormula::squareAsPow(r[i], a[i]);
            return value == 0.0 ? std::numeric_limits<double>::quiet_NaN() : value;
        });
    case FormulaOp::Raise:
        return lanes.raise(a, r);
    case FormulaOp::PowerSlots:
        return lanes.raise(a, b);
    case FormulaOp::Equal:
        return lanes.set([=](int i) { return r[i] == a[i] ? 1.0 : 0.0; });
    case FormulaOp::NotEqual:
        return lanes.set([=](int i) { return r[i] != a[i] ? 1.0 : 0.0; });
    case FormulaOp::Less:
        return lanes.set([=](int i) { return r[i] < a[i] ? 1.0 : 0.0; });
    case FormulaOp::LessEqual:
        return lanes.set([=](int i) { return r[i] <= a[i] ? 1.0 : 0.0; });
    case FormulaOp::Greater:
        return lanes.set([=](int i) { return r[i] > a[i] ? 1.0 : 0.0; });
    case FormulaOp::GreaterEqual:
        return lanes.set([=](int i) { return r[i] >= a[i] ? 1.0 : 0.0; });
    case FormulaOp::Root:
        return lanes.setChecked([=](int i) { return std::sqrt(r[i]); });
    case FormulaOp::Call:
        return lanes.call([=](int i) { return c.function(r[i]); });
    case FormulaOp::CallSlot:
        return lanes.call([=](int i) { return c.function(a[i]); });
    default: // the programs have no jumps and call nothing of the caller's
        return;
    }
}

} // namespace

bool nFormula::hasLanes(const FormulaProgram& program)
{
    return !program.jumps && !program.callsBound && program.slots.size() <= mostSlots;
}

void nFormula::runLanes(const FormulaProgram& program, double* slots, double* results, bool* isUsual)
{
    Lanes lanes;
    std::fill_n(lanes.doubt, laneCount, 0.0);
    for (const FormulaInstruction& instruction : program.code)
        step(instruction, slots, lanes);
    std::copy(lanes.r, lanes.r + laneCount, results);
    for (int i = 0; i < laneCount; ++i)
        isUsual[i] = !std::isnan(lanes.doubt[i]);
}
