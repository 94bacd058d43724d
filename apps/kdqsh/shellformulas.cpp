#include "shellformulas.h"

#include <QRegularExpression>

#include <algorithm>

namespace {
constexpr int longestFormula = 100000; // uses of uses may double the text every time
}

void ShellFormulas::put(const QString& name, const coExpression& formula)
{
    const int number = contains(name) ? m_definitions.value(name).number : ++m_lastNumber;
    set(name, Definition{formula, number});
}

void ShellFormulas::set(const QString& name, const std::optional<Definition>& definition)
{
    m_lastChange = {name, {}};
    if (contains(name)) {
        m_lastChange.before = m_definitions.take(name);
        countUses(m_lastChange.before->formula, -1);
    }
    if (definition) {
        countUses(definition->formula, 1);
        m_definitions.insert(name, *definition);
    }
}

void ShellFormulas::countUses(const coExpression& formula, int step)
{
    const QStringList names = variablesOf(formula);
    for (const QString& name : names)
        m_uses[name] += step;
}

QStringList ShellFormulas::sorted(QStringList names) const
{
    std::sort(names.begin(), names.end(), [this](const QString& a, const QString& b) {
        return m_definitions.constFind(a)->number < m_definitions.constFind(b)->number;
    });
    return names;
}

QStringList ShellFormulas::variablesOf(const coExpression& formula)
{
    QStringList names;
    for (int i = 0; i < formula.nbVariables(); ++i)
        if (!formula.isVariableBuiltIn(i))
            names.append(formula.variableName(i));
    return names;
}

QSet<QString> ShellFormulas::used(const QStringList& names, const QStringList& free) const
{
    const QSet<QString> unwanted(free.begin(), free.end());
    QSet<QString> used;
    QStringList pending = names;
    while (!pending.isEmpty()) {
        const QString name = pending.takeLast();
        if (unwanted.contains(name) || used.contains(name))
            continue;
        used.insert(name);
        pending += variablesOf(m_definitions.value(name).formula);
    }
    return used;
}

QStringList ShellFormulas::undefinedNames(const QStringList& names) const
{
    QStringList undefined;
    const QSet<QString> used = this->used(names, {});
    for (const QString& name : used)
        if (!contains(name))
            undefined.append(name);
    return undefined;
}

coExpressionOrder ShellFormulas::order(const QStringList& names, const QStringList& free) const
{
    QStringList defined;
    const QSet<QString> used = this->used(names, free);
    for (const QString& name : used)
        if (contains(name))
            defined.append(name);
    coExpressionOrder order;
    defined = sorted(defined);
    for (const QString& name : qAsConst(defined))
        order.add(name, m_definitions.value(name).formula);
    for (const QString& name : free)
        order.addKnownName(name);
    return order;
}

bool ShellFormulas::evaluate(const QStringList& names, QHash<QString, double>& values, QString& error) const
{
    coExpressionOrder used = order(names);
    if (used.evaluate(&values))
        return true;
    error = used.errorString();
    return false;
}

bool ShellFormulas::expand(const QStringList& free, QString& formula, QString& error) const
{
    coExpressionOrder used = order(variablesOf(coExpression(formula)), free);
    if (!used.sort()) {
        error = used.errorString();
        return false;
    }
    QHash<QString, QString> texts;
    const auto varies = [&](const QString& name) { return free.contains(name) || texts.contains(name); };
    const QStringList names = used.names();
    for (int i = 0; i < names.size(); ++i) {
        const coExpression expression = used.expression(i);
        const QStringList variables = variablesOf(expression);
        if (std::none_of(variables.begin(), variables.end(), varies))
            continue;
        QString text = expression.text();
        if (!replace(texts, text, error))
            return false;
        texts.insert(names.at(i), QStringLiteral("(%1)").arg(text));
    }
    return replace(texts, formula, error);
}

bool ShellFormulas::replace(const QHash<QString, QString>& texts, QString& formula, QString& error)
{
    // Quoted names and numbers are passed over, so that the e of 1e3 is no name; so are names of functions.
    static const QRegularExpression token(
        QStringLiteral(R"("[^"]*"|(?:[0-9]+\.?[0-9]*|\.[0-9]+)(?:[eE][+-]?[0-9]+)?)"
                       R"(|(?<name>[\p{L}_][\p{L}\p{M}\p{N}_]*+)(?!\s*\())"),
        QRegularExpression::UseUnicodePropertiesOption);
    QString result;
    int end = 0;
    for (auto match = token.globalMatch(formula); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        const auto text = texts.constFind(found.captured(QStringLiteral("name")));
        if (text == texts.constEnd())
            continue;
        result += formula.mid(end, found.capturedStart() - end) + *text;
        end = found.capturedEnd();
        if (result.size() > longestFormula) {
            error = tr("With the parameters that it uses, the formula is longer than %1 characters.")
                        .arg(longestFormula);
            return false;
        }
    }
    formula = result + formula.mid(end);
    return true;
}
