// Formulas with one variable set anew for each evaluation, beside a recursive walk that looks at errno at
// every node, and beside muParser. Ours and the walk give the same bits, the sine in degrees.

#include "duel.h"

#include <kdQCore/coExpression>

#include <array>
#include <cerrno>
#include <cmath>
#include <memory>
#include <muParser.h>
#include <string>
#include <vector>

namespace {

constexpr double pi = 3.141592653589793;
constexpr int evaluations = 200000;

double sinDegrees(double x)
{
    return std::sin(x / 180 * pi);
}

double squareRoot(double x)
{
    return std::sqrt(x);
}

// The rule of errors taken literally.
struct Node {
    enum Kind { Number, Variable, Negate, Add, Subtract, Multiply, Divide, Greater, Power, Call, If };

    Kind kind = Number;
    double number = 0.0;
    int variable = 0;
    double (*function)(double) = nullptr;
    std::unique_ptr<Node> a, b, c;
};

using NodePointer = std::unique_ptr<Node>;

struct Failure {
    int code;
    const Node* node;
};

double walk(const Node& n, const double* variables)
{
    errno = 0;
    double r = 0.0;
    switch (n.kind) {
    case Node::Number:
        r = n.number;
        break;
    case Node::Variable:
        r = variables[n.variable];
        break;
    case Node::Negate:
        r = -walk(*n.a, variables);
        break;
    case Node::Add:
        r = walk(*n.a, variables);
        r = r + walk(*n.b, variables);
        break;
    case Node::Subtract:
        r = walk(*n.a, variables);
        r = r - walk(*n.b, variables);
        break;
    case Node::Multiply:
        r = walk(*n.a, variables);
        r = r * walk(*n.b, variables);
        break;
    case Node::Divide:
        r = walk(*n.a, variables);
        r = r / walk(*n.b, variables);
        if (!std::isfinite(r))
            throw Failure{1, &n};
        break;
    case Node::Greater:
        r = walk(*n.a, variables);
        r = r > walk(*n.b, variables);
        break;
    case Node::Power: {
        const double base = walk(*n.a, variables);
        const double exponent = walk(*n.b, variables);
        errno = 0;
        r = std::pow(base, exponent);
        break;
    }
    case Node::Call: {
        const double x = walk(*n.a, variables);
        errno = 0;
        r = n.function(x);
        break;
    }
    case Node::If:
        r = walk(*n.a, variables) != 0.0 ? walk(*n.b, variables) : walk(*n.c, variables);
        break;
    }
    if (errno == 0) {
        if (std::isinf(r))
            throw Failure{3, &n};
    } else {
        throw Failure{errno == EDOM ? 2 : errno == ERANGE ? 3 : 0, &n};
    }
    return r;
}

NodePointer make(Node::Kind kind, NodePointer a, NodePointer b = nullptr, NodePointer c = nullptr)
{
    auto node = std::make_unique<Node>();
    node->kind = kind;
    node->a = std::move(a);
    node->b = std::move(b);
    node->c = std::move(c);
    return node;
}

NodePointer number(double value)
{
    auto node = std::make_unique<Node>();
    node->number = value;
    return node;
}

NodePointer call(double (*function)(double), NodePointer argument)
{
    NodePointer node = make(Node::Call, std::move(argument));
    node->function = function;
    return node;
}

enum Variable { X, A, B };

using Values = std::array<double, 3>;

constexpr Values values = {1.0, 2.5, 3.25};

NodePointer variable(Variable index)
{
    auto node = std::make_unique<Node>();
    node->kind = Node::Variable;
    node->variable = index;
    return node;
}

NodePointer polynomial()
{
    NodePointer node = number(8);
    for (int i = 7; i >= 1; --i)
        node = make(Node::Add, number(i), make(Node::Multiply, variable(X), std::move(node)));
    return node;
}

NodePointer powers()
{
    using N = Node;
    return make(N::Add,
                make(N::Subtract,
                     make(N::Add, make(N::Multiply, variable(A), make(N::Power, variable(X), number(3))),
                          make(N::Multiply, variable(B), make(N::Power, variable(X), number(2)))),
                     make(N::Divide, variable(X), variable(A))),
                variable(B));
}

NodePointer decay()
{
    using N = Node;
    NodePointer exponent = make(N::Divide, make(N::Negate, variable(X)), variable(B));
    NodePointer fall = make(N::Power, number(2.718281828459045), std::move(exponent));
    return make(N::Add, make(N::Multiply, variable(A), make(N::Subtract, number(1), std::move(fall))),
                call(squareRoot, variable(X)));
}

struct Case {
    const char* name;
    const char* ours;
    const char* peer;
    NodePointer (*tree)();
    bool hasSmallPower;
    double barAgainstWalk;
};

const Case cases[] = {
    {"a*sin(x)+b", "a*sin(x)+b", "a*sin(x)+b",
     []() {
         return make(Node::Add, make(Node::Multiply, variable(A), call(sinDegrees, variable(X))),
                     variable(B));
     },
     false, 1.8},
    {"if(x>0) x^2 else 0", "if(x>0) x^2 else 0", "x>0 ? x^2 : 0",
     []() {
         return make(Node::If, make(Node::Greater, variable(X), number(0)),
                     make(Node::Power, variable(X), number(2)), number(0));
     },
     true, 1.8},
    {"polynomial of 29 nodes", "1+x*(2+x*(3+x*(4+x*(5+x*(6+x*(7+x*8))))))",
     "1+x*(2+x*(3+x*(4+x*(5+x*(6+x*(7+x*8))))))", polynomial, false, 9.0},
    {"a*(1-e^(-x/b))+sqrt(x)", "a*(1-2.718281828459045^(-x/b))+sqrt(x)",
     "a*(1-2.718281828459045^(-x/b))+sqrt(x)", decay, false, 1.8},
    {"a*x^3+b*x^2-x/a+b", "a*x^3+b*x^2-x/a+b", "a*x^3+b*x^2-x/a+b", powers, true, 1.8},
};

double argument(int i)
{
    return 0.25 + 0.001 * (i % 4096);
}

coExpression ours(const char* text)
{
    coExpression expression(QString::fromLatin1(text));
    expression.setVariable(QStringLiteral("x"), values[X]);
    expression.setVariable(QStringLiteral("a"), values[A]);
    expression.setVariable(QStringLiteral("b"), values[B]);
    return expression;
}

int indexOf(const coExpression& expression, const QString& name)
{
    int i = 0;
    while (expression.variableName(i) != name)
        ++i;
    return i;
}

void prepare(mu::Parser& parser, Values& variables, const char* text)
{
    parser.DefineVar("x", &variables[X]);
    parser.DefineVar("a", &variables[A]);
    parser.DefineVar("b", &variables[B]);
    parser.SetExpr(text);
}

bool holdsEvaluation(const Case& c)
{
    Values treeValues = values;
    Values peerValues = values;
    const NodePointer tree = c.tree();
    coExpression expression = ours(c.ours);
    const int x = indexOf(expression, QStringLiteral("x"));
    mu::Parser parser;
    prepare(parser, peerValues, c.peer);
    parser.DefineFun("sin", sinDegrees);

    std::vector<double> walked(evaluations);
    std::vector<double> evaluated(evaluations);
    std::vector<double> arguments(evaluations);
    std::vector<double> batch(evaluations);
    volatile double sink = 0.0; // keeps the work
    for (int i = 0; i < evaluations; ++i)
        arguments[std::size_t(i)] = argument(i);
    Duel duel(c.name, evaluations);
    duel.add("recursive walk, errno at every node", [&] {
        for (int i = 0; i < evaluations; ++i) {
            treeValues[X] = arguments[std::size_t(i)];
            walked[std::size_t(i)] = walk(*tree, treeValues.data());
        }
    });
    duel.add("muParser", [&] {
        double sum = 0.0;
        for (int i = 0; i < evaluations; ++i) {
            peerValues[X] = arguments[std::size_t(i)];
            sum += parser.Eval();
        }
        sink = sum;
    });
    duel.add("evaluate", [&] {
        for (int i = 0; i < evaluations; ++i) {
            expression.setVariable(x, arguments[std::size_t(i)]);
            expression.evaluate(&evaluated[std::size_t(i)]);
        }
    });
    duel.add("evaluateAll", [&] { expression.evaluateAll(x, arguments.data(), evaluations, batch.data()); });
    duel.run(15);
    bool held = duel.demand("evaluate", "recursive walk, errno at every node", c.barAgainstWalk);
    if (!c.hasSmallPower)
        held = duel.demand("evaluate", "muParser", 1.1) && held;
    if (c.tree == polynomial)
        held = duel.demand("evaluateAll", "evaluate", 2.0) && held;
    const bool isSame = walked == evaluated && walked == batch;
    if (!isSame)
        std::printf("  LOW  the results differ\n");
    return held && isSame;
}

bool holdsParsing(const Case& c)
{
    constexpr int texts = 2000;
    Values variables = values;
    mu::Parser parser;
    prepare(parser, variables, c.peer);
    const QString text = QString::fromLatin1(c.ours);
    int valid = 0;
    volatile double sink = 0.0; // muParser parses when it first evaluates
    Duel duel(std::string("Parse ") + c.name, texts);
    duel.add("muParser", [&] {
        for (int i = 0; i < texts; ++i) {
            parser.SetExpr(c.peer);
            sink = parser.Eval();
        }
    });
    duel.add("coExpression", [&] {
        for (int i = 0; i < texts; ++i)
            valid += coExpression(text).isValid() ? 1 : 0;
    });
    duel.run(15);
    return duel.demand("coExpression", "muParser", 1.0) && valid == texts * 16;
}

void showFailures()
{
    coExpression expression = ours("a*(1-2.718281828459045^(-x/b))+sqrt(x)");
    const int x = indexOf(expression, QStringLiteral("x"));
    Values variables = values;
    const NodePointer tree = decay();
    int failures = 0;
    Duel duel("A failing evaluation: the square root of a negative number", evaluations);
    duel.add("recursive walk that throws", [&] {
        for (int i = 0; i < evaluations; ++i) {
            variables[X] = -argument(i);
            try {
                walk(*tree, variables.data());
            } catch (const Failure&) {
                ++failures;
            }
        }
    });
    duel.add("evaluate", [&] {
        for (int i = 0; i < evaluations; ++i) {
            expression.setVariable(x, -argument(i));
            failures += expression.evaluate(nullptr) ? 0 : 1;
        }
    });
    duel.add("evaluate, and asking for the texts", [&] {
        for (int i = 0; i < evaluations; ++i) {
            expression.setVariable(x, -argument(i));
            if (!expression.evaluate(nullptr))
                failures += expression.errorString().isEmpty() + expression.errorDetails().isEmpty();
        }
    });
    duel.run(3);
}

} // namespace

int main()
{
    bool held = true;
    for (const Case& c : cases)
        held = holdsEvaluation(c) && held;
    for (const Case& c : cases)
        held = holdsParsing(c) && held;
    showFailures();
    return held ? 0 : 1;
}
