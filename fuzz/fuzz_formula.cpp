// Any bytes as a formula. What parses must print to a text that parses, and that print is stable unless the
// formula holds one of the ambiguous forms; evaluating, one by one and as a batch, ends with the same
// outcome.

#include <kdQCore/coExpression>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

bool isSame(double a, double b)
{
    return std::memcmp(&a, &b, sizeof a) == 0 || (std::isnan(a) && std::isnan(b));
}

bool isAmbiguous(const QString& printed)
{
    for (const char* form : {"or ", "not ", "if(", "(-"})
        if (printed.contains(QLatin1String(form)))
            return true;
    return false;
}

void bind(coExpression& expression)
{
    for (int i = 0; i < expression.nbVariables(); ++i)
        if (!expression.isVariableBuiltIn(i))
            expression.setVariable(i, 0.5 + i);
    for (int i = 0; i < expression.nbFunctions(); ++i)
        if (!expression.isFunctionBuiltIn(i))
            expression.setFunction(i, [](double x) { return x / 3; });
}

void requireSameOutcomes(coExpression expression)
{
    constexpr int count = 70;
    double values[count];
    double results[count];
    for (int i = 0; i < count; ++i)
        values[i] = (i - 7) * 0.25;
    int firstFailure = -1;
    expression.evaluateAll(0, values, count, results, &firstFailure);
    int expectedFailure = -1;
    for (int i = 0; i < count; ++i) {
        double value = std::nan("");
        expression.setVariable(0, values[i]);
        if (!expression.evaluate(&value)) {
            expectedFailure = expectedFailure < 0 ? i : expectedFailure;
            require(!expression.errorString().isEmpty() && !expression.errorDetails().isEmpty());
        }
        require(isSame(value, results[i]));
    }
    require(firstFailure == expectedFailure);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), int(size));
    coExpression expression(text);
    if (!expression.isValid()) {
        require(expression.errorDetails().startsWith(QLatin1String("Line ")));
        return 0;
    }
    const QString printed = expression.toString();
    const coExpression again(printed);
    require(isAmbiguous(printed) || (again.isValid() && again.toString() == printed));
    bind(expression);
    require(expression.findUnresolvedVariables().isEmpty() && expression.findUnresolvedFunctions().isEmpty());
    if (printed.size() < 2000)
        requireSameOutcomes(expression);
    else
        expression.evaluate(nullptr);
    return 0;
}
