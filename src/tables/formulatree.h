#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

/// The numbers are the kinds' order in the description of the language.
enum class FormulaKind : quint8 {
    Number = 1,
    Variable = 2,
    Negate = 3,
    Add = 4,
    Subtract = 5,
    Multiply = 6,
    Divide = 7,
    Equal = 8,
    NotEqual = 9,
    Less = 10,
    LessEqual = 11,
    Greater = 12,
    GreaterEqual = 13,
    And = 14,
    Or = 15,
    Not = 16,
    Power = 17,
    Call = 18,
    Conditional = 19
};

/// Children and parent are positions in FormulaTree::nodes.
struct FormulaNode {
    FormulaKind kind = FormulaKind::Number;
    quint32 a = 0;
    quint32 b = 0;
    quint32 c = 0;
    quint32 parent = 0;    ///< the root is its own parent
    quint32 reference = 0; ///< of a variable or a function, in the tree's lists of names
    double number = 0.0;
};

/// A parsed formula. It never changes after parsing, so any number of threads may share it.
///
/// The nodes lie in one array, children before their parents and in the order of the text; the root is the
/// last. So copying and destroying need no recursion, and the nodes below node n end just before n.
struct FormulaTree {
    std::vector<FormulaNode> nodes;
    QStringList variables; ///< in the order in which the text names them
    QStringList functions;

    quint32 root() const { return quint32(nodes.size() - 1); }
    bool isLeaf(quint32 node) const
    {
        return nodes[node].kind == FormulaKind::Number || nodes[node].kind == FormulaKind::Variable;
    }
};

namespace nFormula {

int operandCount(FormulaKind kind);

/// The fewest digits that read back as the same number.
QString valueText(double value);

/// The same; an infinite literal is written so that it reads back.
QString literalText(double value);

/// The printed form of a node and all below it, with the text that \a variableText gives for each variable.
QString printed(const FormulaTree& tree, quint32 node,
                const std::function<QString(quint32 variable)>& variableText);

} // namespace nFormula
