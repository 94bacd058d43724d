#include "coexpression_p.h"

coExpression::coExpression(const QString& text) : m_d(std::make_unique<coExpressionPrivate>(text)) { }

coExpression::coExpression(const coExpression& other) : m_d(std::make_unique<coExpressionPrivate>(*other.m_d))
{
}

coExpression& coExpression::operator=(const coExpression& other)
{
    if (this != &other)
        *m_d = *other.m_d;
    return *this;
}

coExpression::~coExpression() = default;

QString coExpression::text() const
{
    return m_d->m_text;
}

bool coExpression::isValid() const
{
    return m_d->m_tree != nullptr;
}

QString coExpression::errorString() const
{
    return m_d->errorString();
}

QString coExpression::errorDetails() const
{
    return m_d->errorDetails();
}

int coExpression::nbVariables() const
{
    return int(m_d->m_states.size());
}

QString coExpression::variableName(int i) const
{
    return isValid() ? m_d->m_tree->variables.value(i) : QString();
}

void coExpression::setVariable(int i, double value)
{
    if (std::size_t(i) < m_d->m_states.size())
        m_d->setVariable(std::size_t(i), value);
}

void coExpression::setVariable(const QString& name, double value)
{
    if (isValid())
        setVariable(m_d->m_tree->variables.indexOf(name), value);
}

bool coExpression::isVariableBuiltIn(int i) const
{
    return nFormula::builtInVariable(variableName(i)) != nullptr;
}

int coExpression::nbFunctions() const
{
    return int(m_d->m_functions.size());
}

QString coExpression::functionName(int i) const
{
    return isValid() ? m_d->m_tree->functions.value(i) : QString();
}

void coExpression::setFunction(int i, const Function& function, FunctionScope scope)
{
    if (i >= 0 && i < nbFunctions())
        m_d->setFunction(std::size_t(i), function, scope);
}

void coExpression::setFunction(const QString& name, const Function& function, FunctionScope scope)
{
    if (isValid())
        setFunction(m_d->m_tree->functions.indexOf(name), function, scope);
}

bool coExpression::isFunctionBuiltIn(int i) const
{
    return i >= 0 && i < nbFunctions() && m_d->m_functions[std::size_t(i)].builtIn;
}

coExpression::FunctionScope coExpression::functionScope(int i) const
{
    return i >= 0 && i < nbFunctions() ? m_d->m_functions[std::size_t(i)].scope : Pointwise;
}

QStringList coExpression::findUnresolvedVariables() const
{
    QStringList names;
    for (int i = 0; i < nbVariables(); ++i)
        if (m_d->m_states[std::size_t(i)] == coExpressionPrivate::Unset)
            names << variableName(i);
    return names;
}

QStringList coExpression::findUnresolvedFunctions() const
{
    QStringList names;
    for (int i = 0; i < nbFunctions(); ++i)
        if (!m_d->isResolved(std::size_t(i)))
            names << functionName(i);
    return names;
}

bool coExpression::evaluate(double* result)
{
    return m_d->evaluate(result);
}

bool coExpression::evaluateAll(int variable, const double* values, int count, double* results,
                               int* firstFailure)
{
    return m_d->evaluateAll(variable, values, count, results, firstFailure);
}

QString coExpression::toString() const
{
    return isValid() ? m_d->printed(m_d->m_tree->root()) : QString();
}

QString coExpression::getExpressionWithReplacedVariables(const QString& text) const
{
    if (!isValid())
        return QString();
    return nFormula::printed(*m_d->m_tree, m_d->m_tree->root(), [this, &text](quint32 variable) {
        return isVariableBuiltIn(int(variable)) ? variableName(int(variable)) : text;
    });
}
