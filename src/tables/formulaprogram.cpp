#include "formulaprogram.h"

#include <algorithm>
#include <cmath>

namespace {

// Works through a list of tasks instead of calling itself, as formulas may be deeper than the stack.
class Compiler {
public:
    Compiler(const FormulaTree& tree, const std::vector<FormulaFunction>& functions)
        : m_tree(tree), m_functions(functions)
    {
        const auto literals =
            std::count_if(tree.nodes.begin(), tree.nodes.end(),
                          [](const FormulaNode& node) { return node.kind == FormulaKind::Number; });
        m_program.slots.resize(std::size_t(tree.variables.size()));
        m_program.slots.reserve(m_program.slots.size() + std::size_t(literals));
        m_firstTemporary = quint32(tree.variables.size() + literals);
        m_program.callsBound = std::count(functions.begin(), functions.end(), nullptr) > 0;
    }

    FormulaProgram run()
    {
        if (m_program.callsBound)
            emit({FormulaOp::ForgetCalls});
        visit(m_tree.root());
        while (!m_tasks.empty()) {
            const Task task = m_tasks.back();
            m_tasks.pop_back();
            perform(task);
        }
        emit({FormulaOp::Halt});
        m_program.slots.resize(m_firstTemporary + m_mostTemporaries);
        return std::move(m_program);
    }

private:
    enum class Action { Visit, Emit, Store, Combine, Branch, Else, Land };

    struct Task {
        Action action;
        FormulaInstruction instruction;
        quint32 node;
    };

    struct BinaryOps {
        FormulaOp slots; // Halt: there is none
        FormulaOp runningFirst;
        FormulaOp slotFirst;
    };

    void emit(const FormulaInstruction& instruction)
    {
        if (instruction.op != FormulaOp::MultiplyAdd || !extendPolynomial(instruction))
            m_program.code.push_back(instruction);
    }

    // 1+x*(2+x*(3+... takes its literals from slots that lie side by side.
    bool extendPolynomial(const FormulaInstruction& next)
    {
        if (m_program.code.empty() || m_lastTarget == m_program.code.size())
            return false;
        FormulaInstruction& last = m_program.code.back();
        const bool isPolynomial = last.op == FormulaOp::Horner;
        if ((!isPolynomial && last.op != FormulaOp::MultiplyAdd) || last.a != next.a
            || last.b != next.b + (isPolynomial ? last.to : 1))
            return false;
        last.to = isPolynomial ? last.to + 1 : 2;
        last.op = FormulaOp::Horner;
        return true;
    }

    void later(Action action, const FormulaInstruction& instruction = {})
    {
        m_tasks.push_back({action, instruction, 0});
    }
    void visit(quint32 node) { m_tasks.push_back({Action::Visit, {}, node}); }

    void perform(const Task& task)
    {
        switch (task.action) {
        case Action::Visit:
            enter(task.node);
            break;
        case Action::Emit:
            emit(task.instruction);
            break;
        case Action::Store:
            emit({FormulaOp::Store, m_firstTemporary + m_temporaries});
            m_mostTemporaries = std::max(m_mostTemporaries, ++m_temporaries);
            break;
        case Action::Combine:
            emit({task.instruction.op, m_firstTemporary + --m_temporaries});
            break;
        case Action::Branch:
            branch(task.instruction);
            break;
        case Action::Else: {
            const std::size_t condition = m_openJumps.back();
            m_openJumps.pop_back();
            branch({FormulaOp::Jump});
            land(condition);
            break;
        }
        case Action::Land:
            land(m_openJumps.back());
            m_openJumps.pop_back();
            break;
        }
    }

    void land(std::size_t jump)
    {
        m_lastTarget = m_program.code.size();
        m_program.code[jump].to = quint32(m_lastTarget - jump);
    }

    void branch(const FormulaInstruction& instruction)
    {
        m_program.jumps = true;
        m_openJumps.push_back(m_program.code.size());
        emit(instruction);
    }

    quint32 slotOf(quint32 leaf)
    {
        const FormulaNode& node = m_tree.nodes[leaf];
        if (node.kind == FormulaKind::Variable)
            return node.reference;
        m_program.hasInfiniteLiteral = m_program.hasInfiniteLiteral || std::isinf(node.number);
        m_program.slots.push_back(node.number);
        return quint32(m_program.slots.size() - 1);
    }

    static BinaryOps binaryOps(FormulaKind kind)
    {
        using Op = FormulaOp;
        static const BinaryOps table[] = {
            {Op::AddSlots, Op::Add, Op::Add},
            {Op::SubtractSlots, Op::Subtract, Op::From},
            {Op::MultiplySlots, Op::Multiply, Op::Multiply},
            {Op::DivideSlots, Op::Divide, Op::Into},
            {Op::Halt, Op::Equal, Op::Equal},
            {Op::Halt, Op::NotEqual, Op::NotEqual},
            {Op::Halt, Op::Less, Op::Greater},
            {Op::Halt, Op::LessEqual, Op::GreaterEqual},
            {Op::Halt, Op::Greater, Op::Less},
            {Op::Halt, Op::GreaterEqual, Op::LessEqual},
        };
        if (kind == FormulaKind::Power)
            return {Op::PowerSlots, Op::Power, Op::Raise};
        return table[int(kind) - int(FormulaKind::Add)];
    }

    void enter(quint32 index)
    {
        const FormulaNode& node = m_tree.nodes[index];
        switch (node.kind) {
        case FormulaKind::Number:
        case FormulaKind::Variable:
            emit({FormulaOp::Load, slotOf(index)});
            break;
        case FormulaKind::Negate:
            later(Action::Emit, {FormulaOp::Negate});
            visit(node.a);
            break;
        case FormulaKind::Not:
            later(Action::Emit, {FormulaOp::Not});
            visit(node.a);
            break;
        case FormulaKind::And:
        case FormulaKind::Or:
            enterLogical(node);
            break;
        case FormulaKind::Call:
            enterCall(index, node);
            break;
        case FormulaKind::Conditional:
            enterConditional(node);
            break;
        default:
            if (node.kind != FormulaKind::Add || !enterMultiplyAdd(node))
                enterBinary(node, binaryOps(node.kind));
            break;
        }
    }

    void enterBinary(const FormulaNode& node, const BinaryOps& ops)
    {
        const FormulaNode& second = m_tree.nodes[node.b];
        if (node.kind == FormulaKind::Power && second.kind == FormulaKind::Number && second.number == 2.0) {
            later(Action::Emit, {FormulaOp::Square, slotOf(node.b)});
            visit(node.a);
            return;
        }
        if (m_tree.isLeaf(node.b)) {
            const bool areSlots = m_tree.isLeaf(node.a) && ops.slots != FormulaOp::Halt;
            if (areSlots) {
                const quint32 a = slotOf(node.a);
                emit({ops.slots, a, slotOf(node.b)});
                return;
            }
            later(Action::Emit, {ops.runningFirst, slotOf(node.b)});
            visit(node.a);
        } else if (m_tree.isLeaf(node.a)) {
            later(Action::Emit, {ops.slotFirst, slotOf(node.a)});
            visit(node.b);
        } else {
            later(Action::Combine, {ops.slotFirst});
            visit(node.b);
            later(Action::Store);
            visit(node.a);
        }
    }

    // A leaf plus the product of a leaf and something longer.
    bool enterMultiplyAdd(const FormulaNode& node)
    {
        const quint32 sum = m_tree.isLeaf(node.a) ? node.a : node.b;
        const FormulaNode& product = m_tree.nodes[sum == node.a ? node.b : node.a];
        if (!m_tree.isLeaf(sum) || product.kind != FormulaKind::Multiply
            || m_tree.isLeaf(product.a) == m_tree.isLeaf(product.b))
            return false;
        const quint32 factor = m_tree.isLeaf(product.a) ? product.a : product.b;
        const quint32 factorSlot = slotOf(factor);
        later(Action::Emit, {FormulaOp::MultiplyAdd, factorSlot, slotOf(sum)});
        visit(factor == product.a ? product.b : product.a);
        return true;
    }

    void enterLogical(const FormulaNode& node)
    {
        later(Action::Land);
        later(Action::Emit, {FormulaOp::Truth});
        visit(node.b);
        later(Action::Branch, {node.kind == FormulaKind::And ? FormulaOp::IfNot : FormulaOp::If});
        later(Action::Emit, {FormulaOp::Truth});
        visit(node.a);
    }

    void enterCall(quint32 index, const FormulaNode& node)
    {
        const FormulaFunction function = m_functions[node.reference];
        static const FormulaFunction root = nFormula::builtInFunction(QStringLiteral("sqrt"));
        if (!function) {
            later(Action::Emit, {FormulaOp::CallBound, node.reference, 0, index});
        } else if (function == root) {
            later(Action::Emit, {FormulaOp::Root});
        } else {
            if (m_tree.isLeaf(node.a)) {
                emit({FormulaOp::CallSlot, slotOf(node.a), 0, index, function});
                return;
            }
            later(Action::Emit, {FormulaOp::Call, 0, 0, index, function});
        }
        visit(node.a);
    }

    void enterConditional(const FormulaNode& node)
    {
        later(Action::Land);
        visit(node.c);
        later(Action::Else);
        visit(node.b);
        const FormulaNode& condition = m_tree.nodes[node.a];
        const bool isComparison =
            condition.kind >= FormulaKind::Less && condition.kind <= FormulaKind::GreaterEqual;
        if (isComparison && m_tree.isLeaf(condition.a) && m_tree.isLeaf(condition.b)) {
            const int op = int(FormulaOp::IfNotLess) + int(condition.kind) - int(FormulaKind::Less);
            const quint32 a = slotOf(condition.a);
            branch({FormulaOp(op), a, slotOf(condition.b)});
        } else {
            later(Action::Branch, {FormulaOp::IfNot});
            visit(node.a);
        }
    }

    const FormulaTree& m_tree;
    const std::vector<FormulaFunction>& m_functions;
    FormulaProgram m_program;
    std::vector<Task> m_tasks;
    std::vector<std::size_t> m_openJumps;
    std::size_t m_lastTarget = 0; ///< of a jump: what comes there must stay an instruction of its own
    quint32 m_firstTemporary = 0;
    quint32 m_temporaries = 0;
    quint32 m_mostTemporaries = 0;
};

} // namespace

FormulaProgram nFormula::compiled(const FormulaTree& tree, const std::vector<FormulaFunction>& functions)
{
    return Compiler(tree, functions).run();
}
