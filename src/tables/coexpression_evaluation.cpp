#include "coexpression_p.h"
#include "formulaparse.h"

#include <algorithm>
#include <cmath>
#include <limits>

coExpressionPrivate::coExpressionPrivate(const QString& text) : m_text(text)
{
    FormulaParse parse(text);
    m_tree = parse.run();
    if (!m_tree) {
        m_errorString = tr("Syntax error.");
        m_errorDetails = parse.errorDetails();
        return;
    }
    resolveBuiltIns();
}

void coExpressionPrivate::resolveBuiltIns()
{
    for (const QString& name : m_tree->functions) {
        const FormulaFunction builtIn = nFormula::builtInFunction(name);
        m_functions.push_back({builtIn, coExpression::Pointwise});
        m_builtIn.push_back(builtIn);
        m_unresolved += builtIn ? 0 : 1;
    }
    m_bound.functions.resize(m_functions.size());
    m_program = std::make_shared<const FormulaProgram>(nFormula::compiled(*m_tree, m_builtIn));
    m_slots = m_program->slots;
    m_infinite = int(m_program->hasInfiniteLiteral);
    m_states.resize(std::size_t(m_tree->variables.size()), Unset);
    m_unresolved += m_tree->variables.size();
    countObstacles();
    for (std::size_t i = 0; i < m_states.size(); ++i)
        if (const double* value = nFormula::builtInVariable(m_tree->variables.at(int(i))))
            setVariable(i, *value);
}

void coExpressionPrivate::changeVariable(std::size_t i, double value, VariableState state)
{
    m_unresolved += int(state == Unset) - int(m_states[i] == Unset);
    m_infinite += int(state == Infinite) - int(m_states[i] == Infinite);
    m_states[i] = state;
    m_slots[i] = value;
    countObstacles();
}

void coExpressionPrivate::setFunction(std::size_t i, const coExpression::Function& function,
                                      coExpression::FunctionScope scope)
{
    m_unresolved += isResolved(i) ? 1 : 0;
    m_bound.functions[i] = function;
    m_functions[i].scope = function && !m_functions[i].builtIn ? scope : coExpression::Pointwise;
    m_unresolved -= function ? 1 : 0;
    countObstacles();
    if (m_builtIn[i]) {
        m_builtIn[i] = nullptr;
        // The slots are the same: literals and temporaries do not depend on who provides a function.
        m_program = std::make_shared<const FormulaProgram>(nFormula::compiled(*m_tree, m_builtIn));
    }
}

bool coExpressionPrivate::evaluateCarefully(double* result)
{
    if (!m_tree)
        return false;
    const bool wasTried = m_obstacles == 0;
    m_failure.error = FormulaError::None;
    m_errorString.clear();
    m_hasFailed = false;
    countObstacles();
    if (m_unresolved > 0)
        return failUnresolved();
    if (!wasTried && m_obstacles == 0)
        return evaluate(result);
    if (!wasTried)
        m_bound.calls.clear();
    const FormulaBinding binding{m_slots.data(), m_builtIn, m_bound};
    double value = 0.0;
    m_failure = nFormula::walk(*m_tree, binding, m_walkValues, value);
    if (m_failure.error == FormulaError::None) {
        if (result)
            *result = value;
        return true;
    }
    m_hasFailed = true;
    countObstacles();
    m_failedVariables.assign(m_slots.begin(), m_slots.begin() + m_tree->variables.size());
    return false;
}

bool coExpressionPrivate::failUnresolved()
{
    QStringList names;
    for (std::size_t i = 0; i < m_states.size(); ++i)
        if (m_states[i] == Unset)
            names << m_tree->variables.at(int(i));
    QString text = tr("Undefined variable(s): %1.");
    if (names.isEmpty()) {
        text = tr("Undefined function(s): %1.");
        for (std::size_t i = 0; i < m_functions.size(); ++i)
            if (!isResolved(i))
                names << m_tree->functions.at(int(i));
    }
    m_errorString = text.arg(names.join(QStringLiteral(", ")));
    m_hasFailed = true;
    countObstacles();
    return false;
}

QString coExpressionPrivate::errorString() const
{
    switch (m_failure.error) {
    case FormulaError::None:
        return m_errorString;
    case FormulaError::Evaluation:
        return tr("Evaluation error.");
    case FormulaError::DivisionByZero:
        return tr("Division by zero.");
    case FormulaError::Domain:
        return tr("Domain error.");
    case FormulaError::Range:
        return tr("Range error.");
    }
    return QString();
}

QString coExpressionPrivate::errorDetails() const
{
    if (m_failure.error == FormulaError::None)
        return m_errorDetails;
    const QString values = nFormula::printed(*m_tree, m_failure.node, [this](quint32 variable) {
        return nFormula::valueText(m_failedVariables[variable]);
    });
    return tr("In expression:\n %1\nwhich evaluates to:\n %2").arg(printed(m_failure.node), values);
}

QString coExpressionPrivate::printed(quint32 node) const
{
    return nFormula::printed(*m_tree, node,
                             [this](quint32 variable) { return m_tree->variables.at(int(variable)); });
}

// The first failure of a batch, kept while the rest is evaluated.
struct coExpressionPrivate::FirstFailure {
    int index = -1;
    FormulaFailure failure;
    std::vector<double> variables;
    QString errorString;
};

bool coExpressionPrivate::evaluateAll(int variable, const double* values, int count, double* results,
                                      int* firstFailure)
{
    FirstFailure first;
    const bool isNamed = variable >= 0 && variable < int(m_states.size());
    const std::size_t slot = isNamed ? std::size_t(variable) : 0;
    const VariableState stateBefore = isNamed ? m_states[slot] : Unset;
    const double before = isNamed ? m_slots[slot] : 0.0;
    int i = 0;
    if (isNamed) {
        setVariable(slot, 0.0);
        if (count >= nFormula::laneCount && m_unresolved + m_infinite == 0 && nFormula::hasLanes(*m_program))
            i = evaluateBlocks(slot, values, count, results, first);
    }
    for (; i < count; ++i) {
        if (isNamed)
            setVariable(slot, values[i]);
        evaluateOne(i, results, first);
    }
    if (isNamed)
        changeVariable(slot, before, stateBefore);
    if (firstFailure)
        *firstFailure = first.index;
    if (m_tree) {
        m_failure = first.failure;
        m_failedVariables.swap(first.variables);
        m_errorString = first.errorString;
        m_hasFailed = first.index >= 0;
        countObstacles();
    }
    return first.index < 0;
}

// Returns how many values that were; the rest fills no block.
int coExpressionPrivate::evaluateBlocks(std::size_t variable, const double* values, int count,
                                        double* results, FirstFailure& first)
{
    std::vector<double> lanes(m_slots.size() * nFormula::laneCount);
    for (std::size_t lane = 0; lane < lanes.size(); ++lane)
        lanes[lane] = m_slots[lane / nFormula::laneCount];
    int i = 0;
    for (; count - i >= nFormula::laneCount; i += nFormula::laneCount) {
        std::copy_n(values + i, nFormula::laneCount, lanes.data() + variable * nFormula::laneCount);
        evaluateBlock(variable, i, lanes, results, first);
    }
    return i;
}

void coExpressionPrivate::evaluateBlock(std::size_t variable, int index, std::vector<double>& lanes,
                                        double* results, FirstFailure& first)
{
    double blockResults[nFormula::laneCount];
    bool isUsual[nFormula::laneCount];
    nFormula::runLanes(*m_program, lanes.data(), blockResults, isUsual);
    const double* const values = lanes.data() + variable * nFormula::laneCount;
    for (int i = 0; i < nFormula::laneCount; ++i) {
        if (isUsual[i] && !std::isinf(values[i])) {
            results[index + i] = blockResults[i];
        } else {
            setVariable(variable, values[i]);
            evaluateOne(index + i, results, first);
        }
    }
}

void coExpressionPrivate::evaluateOne(int index, double* results, FirstFailure& first)
{
    double result = 0.0;
    if (evaluate(&result)) {
        results[index] = result;
        return;
    }
    results[index] = std::numeric_limits<double>::quiet_NaN();
    if (first.index < 0)
        first = {index, m_failure, m_failedVariables, m_errorString};
}
