#include "formularun.h"

#include <cerrno>
#include <cmath>
#include <limits>

FormulaBoundCall nFormula::callBound(const std::function<double(double)>& function, quint32 node,
                                     double argument)
{
    errno = 0;
    try {
        const double value = function(argument);
        const int error = errno;
        errno = 0;
        return {node, value, error};
    } catch (...) {
        errno = 0;
        return {node, std::numeric_limits<double>::quiet_NaN(), -1};
    }
}

bool nFormula::runBound(const FormulaInstruction& instruction, FormulaBound& bound, double argument)
{
    bound.calls.push_back(callBound(bound.functions[instruction.a], instruction.to, argument));
    return bound.calls.back().error == 0 && std::isfinite(bound.calls.back().value);
}
