#include "formulafunctions.h"

#include <QHash>

#include <cmath>

namespace {

// Not every C library's round() is right just below one half, where adding one half rounds up to one.
double roundHalfAway(double x)
{
    const double whole = std::trunc(x);
    return std::abs(x - whole) >= 0.5 ? whole + std::copysign(1.0, x) : whole;
}

constexpr double pi = 3.141592653589793;
constexpr double e = 2.718281828459045;

double toRadians(double x)
{
    return x / 180 * pi;
}

double toDegrees(double x)
{
    return x * 180 / pi;
}

QHash<QString, FormulaFunction> createFunctions()
{
    QHash<QString, FormulaFunction> functions;
    functions[QStringLiteral("sin")] = [](double x) { return std::sin(toRadians(x)); };
    functions[QStringLiteral("cos")] = [](double x) { return std::cos(toRadians(x)); };
    functions[QStringLiteral("tan")] = [](double x) { return std::tan(toRadians(x)); };
    functions[QStringLiteral("asin")] = [](double x) { return std::asin(x) * (180 / pi); };
    functions[QStringLiteral("acos")] = [](double x) { return std::acos(x) * (180 / pi); };
    functions[QStringLiteral("atan")] = [](double x) { return std::atan(x) * (180 / pi); };
    functions[QStringLiteral("sinh")] = [](double x) { return std::sinh(x); };
    functions[QStringLiteral("cosh")] = [](double x) { return std::cosh(x); };
    functions[QStringLiteral("tanh")] = [](double x) { return std::tanh(x); };
    functions[QStringLiteral("ln")] = [](double x) { return std::log(x); };
    functions[QStringLiteral("lg")] = [](double x) { return std::log10(x); };
    functions[QStringLiteral("sqrt")] = [](double x) { return std::sqrt(x); };
    functions[QStringLiteral("floor")] = [](double x) { return std::floor(x); };
    functions[QStringLiteral("ceil")] = [](double x) { return std::ceil(x); };
    functions[QStringLiteral("abs")] = [](double x) { return std::fabs(x); };
    functions[QStringLiteral("round")] = roundHalfAway;
    functions[QStringLiteral("rad")] = toRadians;
    functions[QStringLiteral("deg")] = toDegrees;
    return functions;
}

} // namespace

const double* nFormula::builtInVariable(const QString& name)
{
    if (name == QLatin1String("pi"))
        return &pi;
    return name == QLatin1String("e") ? &e : nullptr;
}

FormulaFunction nFormula::builtInFunction(const QString& name)
{
    static const QHash<QString, FormulaFunction> functions = createFunctions();
    return functions.value(name);
}
