#include "formulawalk.h"

#include <cerrno>
#include <cmath>

namespace {

// As children lie before their parents, evaluating is one run through the nodes with a stack of values, in
// which the short circuits and the conditional skip nodes.
class Walk {
public:
    Walk(const FormulaTree& tree, const FormulaBinding& binding, std::vector<double>& values)
        : m_tree(tree), m_binding(binding), m_values(values)
    {
        m_values.clear();
    }

    FormulaFailure run(double& result)
    {
        for (quint32 index = 0; index < m_tree.nodes.size(); ++index) {
            m_error = 0;
            const double value = compute(index);
            const FormulaError error = judge(index, value);
            if (error != FormulaError::None)
                return {error, index};
            leave(index, value);
        }
        result = m_values.back();
        return {};
    }

private:
    double pop()
    {
        const double value = m_values.back();
        m_values.pop_back();
        return value;
    }

    double compute(quint32 index)
    {
        const FormulaNode& node = m_tree.nodes[index];
        switch (node.kind) {
        case FormulaKind::Number:
            return node.number;
        case FormulaKind::Variable:
            return m_binding.variables[node.reference];
        case FormulaKind::Negate:
            return -pop();
        case FormulaKind::Not:
            return pop() == 0.0;
        case FormulaKind::And: // the first operand has been looked at
        case FormulaKind::Or:
            return pop() != 0.0;
        case FormulaKind::Conditional:
            return pop();
        case FormulaKind::Call:
            return call(index, node.reference, pop());
        default: {
            const double b = pop();
            return binary(node.kind, pop(), b);
        }
        }
    }

    double binary(FormulaKind kind, double a, double b)
    {
        switch (kind) {
        case FormulaKind::Add:
            return a + b;
        case FormulaKind::Subtract:
            return a - b;
        case FormulaKind::Multiply:
            return a * b;
        case FormulaKind::Divide:
            return a / b;
        case FormulaKind::Equal:
            return a == b;
        case FormulaKind::NotEqual:
            return a != b;
        case FormulaKind::Less:
            return a < b;
        case FormulaKind::LessEqual:
            return a <= b;
        case FormulaKind::Greater:
            return a > b;
        case FormulaKind::GreaterEqual:
            return a >= b;
        default:
            return power(a, b);
        }
    }

    // Not every library sets errno; NaN as an argument is no error, whatever the library says.
    double power(double a, double b)
    {
        errno = 0;
        const double value = std::pow(a, b);
        if (std::isnan(a) || std::isnan(b))
            return value;
        m_error = errno;
        if (m_error == 0 && std::isnan(value))
            m_error = EDOM;
        else if (m_error == 0 && value == 0.0 && a != 0.0)
            m_error = ERANGE;
        return value;
    }

    double call(quint32 index, quint32 reference, double argument)
    {
        if (const FormulaFunction function = m_binding.builtIn[reference]) {
            errno = 0;
            const double value = function(argument);
            if (!std::isnan(argument))
                m_error = errno == 0 && std::isnan(value) ? EDOM : errno;
            return value;
        }
        const FormulaBound& bound = m_binding.bound;
        const bool wasCalled = m_nextCall < bound.calls.size() && bound.calls[m_nextCall].node == index;
        const FormulaBoundCall made = wasCalled
            ? bound.calls[m_nextCall++]
            : nFormula::callBound(bound.functions[reference], index, argument);
        m_error = made.error;
        return made.value;
    }

    FormulaError judge(quint32 index, double value) const
    {
        if (m_tree.nodes[index].kind == FormulaKind::Divide && !std::isfinite(value))
            return FormulaError::DivisionByZero;
        if (m_error == 0)
            return std::isinf(value) ? FormulaError::Range : FormulaError::None;
        if (m_error == EDOM)
            return FormulaError::Domain;
        return m_error == ERANGE ? FormulaError::Range : FormulaError::Evaluation;
    }

    // Hands the value of a node to its parent and goes to the node after which evaluation continues.
    void leave(quint32& index, double value)
    {
        while (index != m_tree.root()) {
            const quint32 parentIndex = m_tree.nodes[index].parent;
            const FormulaNode& parent = m_tree.nodes[parentIndex];
            const bool isFirst = parent.a == index;
            if (isFirst && parent.kind == FormulaKind::Conditional) {
                index = value != 0.0 ? index : parent.b;
                return;
            }
            if (isFirst && (parent.kind == FormulaKind::And || parent.kind == FormulaKind::Or)) {
                const bool isDecided = (value != 0.0) == (parent.kind == FormulaKind::Or);
                if (!isDecided)
                    return;
                value = parent.kind == FormulaKind::Or;
                index = parentIndex;
            } else if (parent.kind == FormulaKind::Conditional && parent.b == index) {
                index = parentIndex;
            } else {
                break;
            }
        }
        m_values.push_back(value);
    }

    const FormulaTree& m_tree;
    const FormulaBinding& m_binding;
    std::vector<double>& m_values;
    std::size_t m_nextCall = 0;
    int m_error = 0;
};

} // namespace

FormulaFailure nFormula::walk(const FormulaTree& tree, const FormulaBinding& binding,
                              std::vector<double>& values, double& result)
{
    return Walk(tree, binding, values).run(result);
}
