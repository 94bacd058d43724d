#include "formulacommands.h"

#include "shellsession.h"
#include "tablecommands.h"

#include <kdQCore/coExpressionSyntaxChecker>
#include <kdQCore/ncoExpressionValidator>

#include <QLocale>

#include <cmath>

namespace {

constexpr int blockSize = 65536; // points between two looks at Ctrl-C

QString errorText(const coExpression& formula)
{
    return QStringLiteral("%1 %2").arg(formula.errorString(), formula.errorDetails()).trimmed();
}

QStringList withoutAll(QStringList names, const QStringList& unwanted)
{
    for (const QString& name : unwanted)
        names.removeAll(name);
    return names;
}

/// With all digits, and safe behind any operator.
QString operandText(double value)
{
    const QString text = QString::number(value, 'g', QLocale::FloatingPointShortest);
    return value < 0.0 ? QStringLiteral("(%1)").arg(text) : text;
}

} // namespace

const ShellCommandGroup& FormulaCommands::group()
{
    using Entry = ShellCommandEntry;
    constexpr int anyNumber = ShellCommand::anyNumber;
    static const ShellCommandGroup group{
        "formula",
        "FormulaCommands",
        QT_TR_NOOP("Formulas of parameters and variables, checked and evaluated."),
        {
            {"check", "FORMULA", QT_TR_NOOP("Says what is wrong with a formula, or how it is understood."), 1,
             anyNumber, Entry::Query, check},
            {"variables", "FORMULA",
             QT_TR_NOOP("Lists the variables of a formula, with the values of parameters."), 1, anyNumber,
             Entry::Query, variables},
            {"evaluate", "FORMULA [over NAME from A to B [points N]]",
             QT_TR_NOOP("Shows the value of a formula, or its values while one variable runs."), 1, anyNumber,
             Entry::Query, evaluate},
            {"tabulate", "FORMULA over NAME from A to B [points N] [xunit UNIT] [yunit UNIT] as NEW",
             QT_TR_NOOP("Makes a table of a formula's values while one variable runs."), 5, anyNumber,
             Entry::ChangesTables, tabulate},
        }};
    return group;
}

bool FormulaCommands::read(const ShellCall& call, const QString& text, coExpression& formula)
{
    const coExpressionSyntaxChecker checker(text);
    formula = checker.expression();
    return formula.isValid() || call.fail(checker.getErrorMessage());
}

bool FormulaCommands::check(ShellCall& call)
{
    coExpression formula;
    QStringList messages;
    if (!read(call, call.textFrom(0), formula))
        return false;
    if (!ncoExpressionValidator::checkForUnresolvedFunctions(formula, &messages))
        return call.fail(messages.join(QLatin1Char(' ')));
    call.tell(coExpressionSyntaxChecker(formula.text()).getXmlComment());
    call.show(formula.toString());
    return true;
}

bool FormulaCommands::variables(ShellCall& call)
{
    coExpression formula;
    if (!read(call, call.textFrom(0), formula))
        return false;
    QHash<QString, double> values;
    QString unwanted; // a parameter without a value is shown as a variable is
    const QStringList names = ShellFormulas::variablesOf(formula);
    for (const QString& name : names) {
        ShellSession::I().parameters.evaluate({name}, values, unwanted);
        call.show(values.contains(name)
                      ? QStringLiteral("%1 = %2").arg(name, ShellCall::numberText(values.value(name)))
                      : name);
    }
    return true;
}

bool FormulaCommands::evaluate(ShellCall& call)
{
    Range range;
    coExpression formula;
    ShellParameters parameters(call, 1);
    if (!range.addTo(parameters).read() || !range.check(call) || !read(call, call.text(0), formula)
        || !bind(call, {range.variable}, formula))
        return false;
    if (range.variable.isEmpty()) {
        double value = 0.0;
        if (!formula.evaluate(&value))
            return call.fail(errorText(formula));
        call.show(ShellCall::numberText(value));
        return true;
    }
    kdDataTable table;
    if (!evaluateOver(call, range, formula, table))
        return false;
    TableCommands::showRows(call, table, table.rows());
    return true;
}

bool FormulaCommands::tabulate(ShellCall& call)
{
    Range range;
    QString xUnit;
    QString yUnit;
    QString name;
    coExpression formula;
    ShellParameters parameters(call, 1);
    range.addTo(parameters).text("xunit", xUnit).text("yunit", yUnit).text("as", name);
    if (!parameters.read())
        return false;
    if (range.variable.isEmpty() || name.isEmpty())
        return call.fail(
            tr("The table needs a variable that runs (over NAME) and a name of its own (as NEW)."));
    kdDataTable table;
    if (!range.check(call) || !read(call, call.text(0), formula) || !bind(call, {range.variable}, formula)
        || !evaluateOver(call, range, formula, table))
        return false;
    table.columnRef(1).setName(name);
    if ((!xUnit.isEmpty() && !TableCommands::setColumnUnit(call, table.columnRef(0), xUnit))
        || (!yUnit.isEmpty() && !TableCommands::setColumnUnit(call, table.columnRef(1), yUnit)))
        return false;
    ShellSession::I().tables.put(name, std::move(table));
    return true;
}

bool FormulaCommands::bind(const ShellCall& call, const QStringList& free, coExpression& formula)
{
    const ShellFormulas& parameters = ShellSession::I().parameters;
    QString text = formula.text();
    QHash<QString, double> values;
    QString error;
    if (!parameters.expand(free, text, error))
        return call.fail(error);
    formula = coExpression(text);
    if (!parameters.evaluate(withoutAll(ShellFormulas::variablesOf(formula), free), values, error))
        return call.fail(error);
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        formula.setVariable(value.key(), value.value());
    return true;
}

bool FormulaCommands::evaluateOver(const ShellCall& call, const Range& range, coExpression& formula,
                                   kdDataTable& table)
{
    const QVector<double> x = range.values();
    QVector<double> y(x.size());
    int variable = 0;
    while (variable < formula.nbVariables() && formula.variableName(variable) != range.variable)
        ++variable;
    const ShellOperation operation(call, tr("Evaluating the formula"));
    for (int begin = 0; begin < x.size(); begin += blockSize) {
        if (!call.goOn(static_cast<double>(begin) / x.size()))
            return false;
        int firstFailure = -1;
        if (!formula.evaluateAll(variable, x.constData() + begin, qMin(blockSize, x.size() - begin),
                                 y.data() + begin, &firstFailure))
            return call.fail(QStringLiteral("%1 = %2: %3")
                                 .arg(range.variable, ShellCall::numberText(x.at(begin + firstFailure)),
                                      errorText(formula)));
    }
    table = kdDataTable(kdUnitSystem::None, kdUnitSystem::None);
    table.columnRef(0).setName(range.variable);
    table.columnRef(0).setValues(x);
    table.columnRef(1).setName(tr("value"));
    table.columnRef(1).setValues(y);
    return true;
}

bool FormulaCommands::prepareForSolver(const ShellCall& call, const QStringList& variables, QString& text)
{
    const ShellFormulas& parameters = ShellSession::I().parameters;
    coExpression formula;
    QString error;
    if (!read(call, text, formula))
        return false;
    if (!parameters.expand(variables, text, error))
        return call.fail(error);
    formula = coExpression(text);
    const QStringList names = withoutAll(ShellFormulas::variablesOf(formula), variables);
    for (const QString& name : names)
        if (!parameters.contains(name))
            return call.fail(
                tr("'%1' in the formula is neither a variable of the table (%2) nor a parameter.")
                    .arg(name, variables.join(QLatin1String(", "))));
    QHash<QString, double> values;
    if (!parameters.evaluate(names, values, error))
        return call.fail(error);
    for (const QString& name : {QStringLiteral("pi"), QStringLiteral("e")}) // the solver may not know them
        coExpression(name).evaluate(&values[name]);
    QHash<QString, QString> texts;
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        texts.insert(value.key(), operandText(value.value()));
    if (!ShellFormulas::replace(texts, text, error))
        return call.fail(error);
    QStringList messages;
    if (!ncoExpressionValidator::checkForUnresolvedFunctions(formula, &messages))
        call.warn(messages.join(QLatin1Char(' ')));
    return true;
}

ShellParameters& FormulaCommands::Range::addEndsTo(ShellParameters& parameters)
{
    return parameters.text("over", variable).real("from", from).real("to", to);
}

ShellParameters& FormulaCommands::Range::addTo(ShellParameters& parameters)
{
    return addEndsTo(parameters).integer("points", points);
}

bool FormulaCommands::Range::check(const ShellCall& call) const
{
    constexpr int mostPoints = 10000000;
    if (points < 2 || points > mostPoints)
        return call.fail(tr("The number of points must be 2 to %1, not %2.")
                             .arg(QString::number(mostPoints), QString::number(points)));
    if (variable.isEmpty())
        return (std::isnan(from) && std::isnan(to))
            || call.fail(tr("The variable that runs is missing (over NAME)."));
    return (std::isfinite(to - from) && from != to)
        || call.fail(tr("'%1' needs two ends to run between (from A to B).").arg(variable));
}

QVector<double> FormulaCommands::Range::values() const
{
    QVector<double> values(points);
    for (int i = 0; i < points; ++i)
        values[i] = from + (to - from) * i / (points - 1);
    values.last() = to;
    return values;
}
