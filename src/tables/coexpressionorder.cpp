#include "coexpressionorder.h"

namespace {

enum State { Unseen, Open, Done };

bool isName(const QString& text)
{
    const coExpression expression(text);
    return expression.nbVariables() == 1 && expression.variableName(0) == text
        && !expression.isVariableBuiltIn(0);
}

} // namespace

void coExpressionOrder::add(const QString& name, const QString& formula)
{
    add(name, coExpression(formula));
}

void coExpressionOrder::add(const QString& name, const coExpression& formula)
{
    m_formulas.append({name, formula});
    m_isSorted = false;
}

void coExpressionOrder::addKnownName(const QString& name)
{
    m_knownNames.append(name);
    m_isSorted = false;
}

QStringList coExpressionOrder::names() const
{
    QStringList names;
    for (const int formula : m_order)
        names << m_formulas.at(formula).name;
    return names;
}

coExpression coExpressionOrder::expression(int i) const
{
    return i >= 0 && i < m_order.size() ? m_formulas.at(m_order.at(i)).expression : coExpression();
}

bool coExpressionOrder::sort()
{
    clearFailure();
    m_index.clear();
    m_order.clear();
    m_isSorted = false;
    QVector<QVector<int>> uses;
    if (!collectNames() || !findUses(uses))
        return false;
    QVector<int> state(m_formulas.size(), Unseen);
    m_order.reserve(m_formulas.size());
    for (int i = 0; i < m_formulas.size(); ++i) {
        if (state.at(i) == Unseen && !visit(i, uses, state)) {
            m_order.clear();
            return false;
        }
    }
    m_isSorted = true;
    return true;
}

bool coExpressionOrder::collectNames()
{
    for (const QString& name : qAsConst(m_knownNames))
        m_index.insert(name, -1);
    m_index.reserve(m_index.size() + m_formulas.size());
    for (int i = 0; i < m_formulas.size(); ++i) {
        const Formula& formula = m_formulas.at(i);
        if (!isName(formula.name))
            return fail(InvalidName, formula.name,
                        tr("'%1' cannot be the name of a formula.").arg(formula.name));
        if (m_index.contains(formula.name))
            return fail(DuplicateName, formula.name, tr("'%1' is defined twice.").arg(formula.name));
        if (!formula.expression.isValid())
            return fail(
                InvalidFormula, formula.name,
                tr("The formula of '%1' cannot be read: %2 %3")
                    .arg(formula.name, formula.expression.errorString(), formula.expression.errorDetails()));
        m_index.insert(formula.name, i);
    }
    return true;
}

// For each formula the formulas that it uses, in the order in which it names them.
bool coExpressionOrder::findUses(QVector<QVector<int>>& uses)
{
    uses.resize(m_formulas.size());
    for (int i = 0; i < m_formulas.size(); ++i) {
        const coExpression& expression = m_formulas.at(i).expression;
        for (int variable = 0; variable < expression.nbVariables(); ++variable) {
            const QString name = expression.variableName(variable);
            const auto used = m_index.constFind(name);
            if (used == m_index.constEnd() && !expression.isVariableBuiltIn(variable)) {
                m_undefinedName = name;
                return fail(UndefinedName, m_formulas.at(i).name,
                            tr("The formula of '%1' uses '%2', which is not defined.")
                                .arg(m_formulas.at(i).name, name));
            }
            if (used != m_index.constEnd() && *used >= 0)
                uses[i].append(*used);
        }
    }
    return true;
}

// A path instead of recursion: chains may be longer than the stack.
bool coExpressionOrder::visit(int formula, const QVector<QVector<int>>& uses, QVector<int>& state)
{
    QVector<int> path{formula};
    QVector<int> nextUse{0};
    state[formula] = Open;
    while (!path.isEmpty()) {
        const int current = path.last();
        if (nextUse.last() == uses.at(current).size()) {
            state[current] = Done;
            m_order.append(current);
            path.removeLast();
            nextUse.removeLast();
            continue;
        }
        const int used = uses.at(current).at(nextUse.last()++);
        if (state.at(used) == Open)
            return failCircle(path, used);
        if (state.at(used) == Unseen) {
            state[used] = Open;
            path.append(used);
            nextUse.append(0);
        }
    }
    return true;
}

bool coExpressionOrder::failCircle(const QVector<int>& path, int member)
{
    for (int i = path.indexOf(member); i < path.size(); ++i)
        m_circle << m_formulas.at(path.at(i)).name;
    const QString text = (m_circle + m_circle.mid(0, 1)).join(QStringLiteral(" -> "));
    return fail(Circle, m_circle.first(), tr("The formulas use each other in a circle: %1.").arg(text));
}

bool coExpressionOrder::evaluate(QHash<QString, double>* values)
{
    if (!m_isSorted && !sort())
        return false;
    clearFailure();
    for (const int i : qAsConst(m_order)) {
        const QString& name = m_formulas.at(i).name;
        coExpression expression =
            m_formulas.at(i).expression; // a copy, so that no value of this time remains
        for (int variable = 0; variable < expression.nbVariables(); ++variable) {
            const auto value = values->constFind(expression.variableName(variable));
            if (value != values->constEnd())
                expression.setVariable(variable, *value);
        }
        double result = 0.0;
        if (!expression.evaluate(&result))
            return fail(FailedEvaluation, name,
                        tr("The formula of '%1' failed: %2 %3")
                            .arg(name, expression.errorString(), expression.errorDetails()));
        values->insert(name, result);
    }
    return true;
}

bool coExpressionOrder::fail(Failure failure, const QString& name, const QString& text)
{
    m_failure = failure;
    m_failedName = name;
    m_errorString = text;
    return false;
}

void coExpressionOrder::clearFailure()
{
    m_failure = NoFailure;
    m_errorString.clear();
    m_failedName.clear();
    m_undefinedName.clear();
    m_circle.clear();
}
