#include "parametercommands.h"

#include "shellsession.h"

namespace {

/// Parameters, and what they use, in the order of their use; what is not defined yet counts as known.
bool sort(const ShellFormulas& parameters, const QStringList& names, coExpressionOrder& order)
{
    order = parameters.order(names, parameters.undefinedNames(names));
    return order.sort();
}

bool sortAlone(const QString& name, const coExpression& formula, coExpressionOrder& order)
{
    order.add(name, formula);
    const QStringList variables = ShellFormulas::variablesOf(formula);
    for (const QString& variable : variables)
        if (variable != name)
            order.addKnownName(variable);
    return order.sort();
}

QString equation(const QString& name, const QString& right)
{
    return QStringLiteral("%1 = %2").arg(name, right);
}

} // namespace

const ShellCommandGroup& ParameterCommands::group()
{
    using Entry = ShellCommandEntry;
    static const ShellCommandGroup group{
        "parameter",
        "ParameterCommands",
        QT_TR_NOOP("Named formulas that use each other, for formulas and decks."),
        {
            {"define", "NAME = FORMULA", QT_TR_NOOP("Defines a parameter, or defines it anew."), 1,
             ShellCommand::anyNumber, Entry::ChangesParameters, define},
            {"list", "", QT_TR_NOOP("Lists the parameters, each behind those that it uses."), 0, 0,
             Entry::Query, list},
            {"value", "[NAME]", QT_TR_NOOP("Shows the value of one parameter, or of all."), 0, 1,
             Entry::Query, value},
            {"remove", "NAME", QT_TR_NOOP("Removes a parameter from the session."), 1, 1,
             Entry::ChangesParameters, remove},
        }};
    return group;
}

bool ParameterCommands::define(ShellCall& call)
{
    const QString text = call.textFrom(0);
    const int equals = text.indexOf(QLatin1Char('='));
    if (equals < 0)
        return call.fail(tr("'=' is missing between name and formula."));
    ShellFormulas& parameters = ShellSession::I().parameters;
    const QString name = text.left(equals).trimmed();
    const coExpression formula(text.mid(equals + 1).trimmed());
    const bool isUsed = parameters.isUsed(name); // else it can close no circle but its own
    parameters.put(name, formula);
    coExpressionOrder order;
    if (isUsed ? sort(parameters, {name}, order) : sortAlone(name, formula, order))
        return true;
    parameters.revert(parameters.lastChange());
    return call.fail(order.errorString());
}

bool ParameterCommands::list(ShellCall& call)
{
    const ShellFormulas& parameters = ShellSession::I().parameters;
    coExpressionOrder order;
    if (!sort(parameters, parameters.names(), order))
        return call.fail(order.errorString());
    const QStringList names = order.names();
    for (int i = 0; i < names.size(); ++i)
        call.show(equation(names.at(i), order.expression(i).text()));
    if (names.isEmpty())
        call.tell(tr("No parameters."));
    return true;
}

bool ParameterCommands::value(ShellCall& call)
{
    const ShellFormulas& parameters = ShellSession::I().parameters;
    const bool isOne = call.count() > 0;
    if (isOne && !exists(call, call.text(0)))
        return false;
    coExpressionOrder order = parameters.order(isOne ? QStringList(call.text(0)) : parameters.names());
    QHash<QString, double> values;
    if (!order.evaluate(&values))
        return call.fail(order.errorString());
    const QStringList names = isOne ? QStringList() : order.names();
    for (const QString& name : names)
        call.show(equation(name, ShellCall::numberText(values.value(name))));
    if (isOne)
        call.show(ShellCall::numberText(values.value(call.text(0))));
    return true;
}

bool ParameterCommands::remove(ShellCall& call)
{
    if (!exists(call, call.text(0)))
        return false;
    ShellSession::I().parameters.remove(call.text(0));
    return true;
}

bool ParameterCommands::exists(const ShellCall& call, const QString& name)
{
    const ShellFormulas& parameters = ShellSession::I().parameters;
    const QStringList names = parameters.names();
    if (parameters.contains(name))
        return true;
    return call.fail(
        names.isEmpty()
            ? tr("There is no parameter '%1'; none has been defined yet.").arg(name)
            : tr("There is no parameter '%1', only %2.").arg(name, names.join(QLatin1String(", "))));
}
