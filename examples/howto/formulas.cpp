// Formulas: own functions, many values at once, formulas that use each other.
#include <kdQCore/coExpression>
#include <kdQCore/coExpressionOrder>

#include <QTextStream>

QTextStream out(stdout);

void ownFunction()
{
    coExpression flow("k * plastic(strain)^n");
    flow.setFunction("plastic", [](double strain) { return strain < 0.002 ? 0.0 : strain - 0.002; });
    flow.setVariable("k", 530);
    flow.setVariable("n", 0.26);
    flow.setVariable("strain", 0.102);
    double value = 0;
    if (flow.evaluate(&value))
        out << value << " MPa\n";
}

void manyValues()
{
    coExpression formula("100 / (x - 2)");
    const double x[] = {1, 2, 3};
    double y[3];
    int firstFailure = -1;
    if (!formula.evaluateAll(0, x, 3, y, &firstFailure)) // variable 0 is x
        out << "x[" << firstFailure << "]: " << formula.errorString() << " " << formula.errorDetails()
            << "\n";
    out << y[0] << " " << y[1] << " " << y[2] << "\n";
}

void ordered()
{
    coExpressionOrder parameters;
    parameters.add("power", "voltage * current"); // in any order
    parameters.add("voltage", "24 + t / 10");
    parameters.add("current", "180");
    parameters.addKnownName("t");
    QHash<QString, double> values{{"t", 5.0}};
    if (parameters.evaluate(&values))
        out << parameters.names().join(", ") << ": " << values["power"] << " W\n";

    coExpressionOrder circle;
    circle.add("a", "b + 1");
    circle.add("b", "a - 1");
    if (!circle.sort())
        out << circle.errorString() << "\n";
}

int main()
{
    ownFunction();
    manyValues();
    ordered();
    return 0;
}
