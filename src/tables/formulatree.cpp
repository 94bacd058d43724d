#include "formulatree.h"

#include <QLocale>

#include <cmath>

namespace {

// What stands before, between and after the operands.
struct Form {
    const char* before;
    const char* between;
    const char* last;
    const char* after;
};

Form formOf(FormulaKind kind)
{
    static const Form forms[] = {
        {"-", "", "", ""}, // Negate
        {"(", " + ", "", ")"},       {"(", " - ", "", ")"},  {"(", " * ", "", ")"},   {"(", " / ", "", ")"},
        {"(", " == ", "", ")"},      {"(", " != ", "", ")"}, {"(", " < ", "", ")"},   {"(", " <= ", "", ")"},
        {"(", " > ", "", ")"},       {"(", " >= ", "", ")"}, {"(", " and ", "", ")"}, {"", " or ", "", ""},
        {"not ", "", "", ""},        {"(", "^", "", ")"},    {"(", "", "", ")"}, // Call, after its name
        {"if(", ") ", " else ", ""},
    };
    return forms[int(kind) - int(FormulaKind::Negate)];
}

// Either a text or, where that is null, a node still to be printed.
struct Piece {
    const char* text;
    quint32 node;
};

void pushOperands(const FormulaNode& node, std::vector<Piece>& pieces)
{
    const Form form = formOf(node.kind);
    const int operands = nFormula::operandCount(node.kind);
    pieces.push_back({form.after, 0});
    if (operands == 3) {
        pieces.push_back({nullptr, node.c});
        pieces.push_back({form.last, 0});
    }
    if (operands >= 2) {
        pieces.push_back({nullptr, node.b});
        pieces.push_back({form.between, 0});
    }
    pieces.push_back({nullptr, node.a});
    pieces.push_back({form.before, 0});
}

} // namespace

int nFormula::operandCount(FormulaKind kind)
{
    switch (kind) {
    case FormulaKind::Number:
    case FormulaKind::Variable:
        return 0;
    case FormulaKind::Negate:
    case FormulaKind::Not:
    case FormulaKind::Call:
        return 1;
    case FormulaKind::Conditional:
        return 3;
    default:
        return 2;
    }
}

QString nFormula::valueText(double value)
{
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
}

QString nFormula::literalText(double value)
{
    return std::isinf(value) ? QStringLiteral("1e999") : valueText(value);
}

QString nFormula::printed(const FormulaTree& tree, quint32 node,
                          const std::function<QString(quint32)>& variableText)
{
    QString text;
    std::vector<Piece> pieces{{nullptr, node}};
    while (!pieces.empty()) {
        const Piece piece = pieces.back();
        pieces.pop_back();
        if (piece.text) {
            text += QLatin1String(piece.text);
            continue;
        }
        const FormulaNode& next = tree.nodes[piece.node];
        if (next.kind == FormulaKind::Number) {
            text += literalText(next.number);
        } else if (next.kind == FormulaKind::Variable) {
            text += variableText(next.reference);
        } else {
            if (next.kind == FormulaKind::Call)
                text += tree.functions[int(next.reference)];
            pushOperands(next, pieces);
        }
    }
    return text;
}
