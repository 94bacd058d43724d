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

bool nFormula::runBound(const FormulaInstruction& instruction, const FormulaBoundFunctions& functions,
                        std::vector<FormulaBoundCall>& calls, double argument)
{
    calls.push_back(callBound(functions[instruction.a], instruction.to, argument));
    return calls.back().error == 0 && std::isfinite(calls.back().value);
}
