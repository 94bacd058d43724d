#include "kdqtest.h"

#include <kdQCore/coExpression>

#include <cerrno>
#include <cmath>
#include <random>
#include <stdexcept>

namespace {

// Binds x, y, z to 2, 3, 5 and f to a function that doubles.
coExpression bound(const QString& text)
{
    coExpression expression(text);
    expression.setVariable(QStringLiteral("x"), 2.0);
    expression.setVariable(QStringLiteral("y"), 3.0);
    expression.setVariable(QStringLiteral("z"), 5.0);
    expression.setFunction(QStringLiteral("f"), [](double value) { return 2.0 * value; });
    return expression;
}

/// A row of four texts, named as the first.
void row(const char* text, const char* second, const char* third, const char* fourth)
{
    QTest::newRow(text) << QStringList{QString::fromUtf8(text), QString::fromUtf8(second),
                                       QString::fromUtf8(third), QString::fromUtf8(fourth)};
}

QString repeated(const char* text, int count)
{
    return QString::fromUtf8(text).repeated(count);
}

} // namespace

/// What the random formulas of tst_coexpression_reference do not reach.
class TestExpression : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void evaluatesAndPrints_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("printed");
        QTest::addColumn<double>("value");
        const auto row = [](const char* text, const char* printed, double value) {
            QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(printed) << value;
        };
        row(".5", "0.5", .5);
        row("1E+3", "1000", 1e3);
        row("1e-400", "0", 0);
        row("x\n\t+ y", "(x + y)", 5);
        row("x\302\240*\342\200\257y", "(x * y)", 6); // no-break spaces
        row("x and\302\240not\342\200\203y", "(x and not y)", 0);
        row("+x-+y", "(x - y)", -1);
        row("f(\"x\")", "f(x)", 4);
        row("round(0.49999999999999994)", "round(0.49999999999999994)", 0);
        row("\303\244*y", "(\303\244 * y)", 21); // a letter beyond ASCII
        row("_x1", "_x1", 11);
    }

    void evaluatesAndPrints()
    {
        QFETCH(QString, text);
        coExpression expression = bound(text);
        expression.setVariable(QString::fromUtf8("\303\244"), 7.0);
        expression.setVariable(QStringLiteral("_x1"), 11.0);
        QVERIFY2(expression.isValid(), qPrintable(expression.errorDetails()));
        double value = 0.0;
        QVERIFY2(expression.evaluate(&value), qPrintable(expression.errorDetails()));
        QTEST(value, "value");
        QTEST(expression.toString(), "printed");
        QCOMPARE(expression.errorString() + expression.errorDetails(), QString());
        QCOMPARE(expression.text(), text);
    }

    void syntaxErrors_data()
    {
        QTest::addColumn<QStringList>("texts");
        const char* const operand = "a number, a name, a function, a sign, \"not\", \"if\" or \"(\"";
        const char* const after = "an operator or the end of the formula";
        const char* const inside = "an operator or \")\"";
        row("", "Line 1, column 1", "the end of the formula", operand);
        row("1 + * 2", "Line 1, column 5", "'*'", operand);
        row("x\n + 2 y", "Line 2, column 6", "'y'", after);
        row("2e", "Line 1, column 2", "'e'", after);
        row("(1", "Line 1, column 3", "the end of the formula", inside);
        row("\"x\"", "Line 1, column 1", "'\"x\"'", operand);
        row("f(\"if\")", "Line 1, column 3", "'\"if\"'", operand);
        row("if(1) 2", "Line 1, column 8", "the end of the formula", "an operator or \"else\"");
        row("if 1 2 else 3", "Line 1, column 4", "'1'", "\"(\"");
        row("\303\244\303\266 $", "Line 1, column 4", "'$'", after); // columns are characters
        row("x\302\262", "Line 1, column 2", "'\302\262'", after);   // superscript two
        row("a < b < c", "Line 1, column 7", "'<'",
            "an operator other than a comparison (comparisons do not chain) or the end of the formula");
        row("1 \x07", "Line 1, column 3", "'U+0007'", after);
    }

    void syntaxErrors()
    {
        QFETCH(QStringList, texts);
        const QString text = texts.at(0), where = texts.at(1), found = texts.at(2), expected = texts.at(3);
        coExpression expression(text);
        QVERIFY(!expression.isValid());
        for (int i = 0; i < 2; ++i) {
            QCOMPARE(expression.errorString(), QStringLiteral("Syntax error."));
            QCOMPARE(expression.errorDetails(),
                     QStringLiteral("%1: found %2, expected %3.").arg(where, found, expected));
            double value = 17.0;
            QVERIFY(!expression.evaluate(&value)); // keeps the texts
            QCOMPARE(value, 17.0);
        }
        QCOMPARE(expression.nbVariables() + expression.nbFunctions(), 0);
        QCOMPARE(expression.toString() + expression.getExpressionWithReplacedVariables(text), QString());
    }

    void textsThatAreNoTexts()
    {
        QString loneSurrogate = QStringLiteral("1 ? 2 : 3");
        loneSurrogate[2] = QChar(0xd800);
        QVERIFY(!coExpression(loneSurrogate).isValid());
        QVERIFY(!coExpression(QString(QLatin1String("1\0+1", 4))).isValid());
        QVERIFY(coExpression(QString::fromUtf8("\360\235\221\245 + 1")).isValid()); // a mathematical x
    }

    void failures_data()
    {
        QTest::addColumn<QStringList>("texts");
        row("nan/x", "Division by zero.", "(nan / x)", "(nan / 2)");
        row("1 + x / (y - 3) * z", "Division by zero.", "(x / (y - 3))", "(2 / (3 - 3))");
        row("sqrt(x - y) + 1/0", "Domain error.", "sqrt((x - y))", "sqrt((2 - 3))");
        row("pi/(x-2)", "Division by zero.", "(pi / (x - 2))", "(3.141592653589793 / (2 - 2))");
        row("g(1)", "Evaluation error.", "g(1)", "g(1)");
        row("h(1)", "Evaluation error.", "h(1)", "h(1)");
        row("tooLarge(x)", "Range error.", "tooLarge(x)", "tooLarge(2)");
        row("outside(x)", "Domain error.", "outside(x)", "outside(2)");
    }

    void failures()
    {
        QFETCH(QStringList, texts);
        const QString text = texts.at(0), error = texts.at(1), node = texts.at(2), values = texts.at(3);
        coExpression expression = bound(text);
        expression.setVariable(QStringLiteral("nan"), std::nan(""));
        expression.setFunction(QStringLiteral("g"), [](double) -> double { throw std::runtime_error("g"); });
        expression.setFunction(QStringLiteral("h"), [](double x) { return errno = EINTR, x; });
        expression.setFunction(QStringLiteral("tooLarge"), [](double x) { return errno = ERANGE, x; });
        expression.setFunction(QStringLiteral("outside"), [](double x) { return errno = EDOM, x; });
        double value = 17.0;
        errno = EDOM; // must not matter
        QVERIFY(!expression.evaluate(&value));
        QCOMPARE(value, 17.0);
        expression.setVariable(QStringLiteral("x"), 100.0); // the texts tell of the evaluation
        QCOMPARE(expression.errorString(), error);
        QCOMPARE(expression.errorDetails(),
                 QStringLiteral("In expression:\n %1\nwhich evaluates to:\n %2").arg(node, values));
        const coExpression copy(expression);
        QCOMPARE(copy.errorDetails(), expression.errorDetails());
    }

    void unresolvedNames()
    {
        coExpression expression(QStringLiteral("b + f(a) + sin(b) * pi - g(e)"));
        QVERIFY(!expression.evaluate(nullptr));
        QCOMPARE(expression.errorString(), QStringLiteral("Undefined variable(s): b, a."));
        QCOMPARE(expression.errorDetails(), QString());
        expression.setVariable(QStringLiteral("b"), std::nan(""));
        expression.setVariable(QStringLiteral("a"), 1.0);
        QVERIFY(!expression.evaluate(nullptr));
        QCOMPARE(expression.errorString(), QStringLiteral("Undefined function(s): f, g."));
        expression.setFunction(QStringLiteral("f"), [](double x) { return x; });
        expression.setFunction(QStringLiteral("g"), [](double x) { return x; });
        QVERIFY(expression.evaluate(nullptr));
        QCOMPARE(expression.errorString(), QString());
        expression.setFunction(QStringLiteral("sin"), nullptr);
        QCOMPARE(expression.findUnresolvedFunctions(), QStringList{QStringLiteral("sin")});
    }

    void tablesOfNames()
    {
        coExpression expression(QStringLiteral("g(f(pi)) + x * g(x) + e"));
        QString names;
        for (int i = -1; i <= expression.nbVariables(); ++i)
            names += expression.variableName(i) + expression.functionName(i) + QLatin1Char(' ');
        QCOMPARE(names, QStringLiteral(" pig xf e  "));
        QVERIFY(expression.isVariableBuiltIn(0) && !expression.isVariableBuiltIn(1));
        for (const int outside : {-1, 3}) {
            expression.setVariable(outside, 1.0);
            expression.setFunction(outside, [](double x) { return x; });
            QVERIFY(!expression.isVariableBuiltIn(outside) && !expression.isFunctionBuiltIn(outside));
        }
        QCOMPARE(expression.findUnresolvedVariables(), QStringList{QStringLiteral("x")});
    }

    void builtInsMayBeReplaced()
    {
        coExpression expression(S("sqrt(e)"));
        expression.setVariable(S("e"), 7.0);
        expression.setFunction(S("sqrt"), [](double x) { return -x; });
        double value = 0.0;
        QVERIFY(expression.evaluate(&value) && value == -7.0);
    }

    // Whatever goes wrong around it, and however often the evaluation has to look again.
    void callsTheCallersFunctionOnce_data()
    {
        QTest::addColumn<int>("calls");
        QTest::addColumn<bool>("succeeds");
        QTest::newRow("f(1) / 0") << 1 << false;
        QTest::newRow("f(1) + n * f(2)") << 2 << true;
        QTest::newRow("f(f(1)) + 10^400 + f(1)") << 2 << false;
        QTest::newRow("10^-400 + f(1)") << 0 << false; // the earlier failure sets only errno
        QTest::newRow("1e999 + f(1)") << 0 << false;
        QTest::newRow("dirty(1) + f(1)") << 1 << false;
    }

    void callsTheCallersFunctionOnce()
    {
        coExpression expression(QString::fromLatin1(QTest::currentDataTag()));
        int calls = 0;
        expression.setFunction(QStringLiteral("f"), [&calls](double x) { return ++calls, x; });
        expression.setFunction(QStringLiteral("dirty"),
                               [&calls](double x) { return ++calls, errno = EDOM, x; });
        expression.setVariable(QStringLiteral("n"), std::nan(""));
        QTEST(expression.evaluate(nullptr), "succeeds");
        QTEST(calls, "calls");
        calls = 0;
        expression.evaluate(nullptr); // nothing is left of the first evaluation
        QTEST(calls, "calls");
    }

    // The evaluation may take short cuts, but its results are those of the power function to the last bit.
    void squaresAreThoseOfPow()
    {
        coExpression expression(QStringLiteral("x^2"));
        const volatile double two = 2.0; // for a literal the compiler would take the product itself
        std::mt19937_64 random(20260801);
        for (int i = 0; i < 300000; ++i) {
            const double mantissa =
                i % 3 == 0 ? double(random() % 100000) / 1000 : 1.0 + double(random() >> 12) * 0x1p-52;
            const double x = std::ldexp(-mantissa, i % 5 == 0 ? int(random() % 1000) - 500 : 0);
            double value = 0.0;
            expression.setVariable(0, x);
            const double expected = std::pow(x, two);
            QCOMPARE(expression.evaluate(&value), expected != 0.0 || x == 0.0);
            QVERIFY2(value == expected, qPrintable(QString::number(x, 'g', 17)));
        }
    }

    void replacedVariables()
    {
        const coExpression expression(QStringLiteral("if(x > 0 or y) sin(x * pi)^2 else x"));
        QCOMPARE(expression.getExpressionWithReplacedVariables(QStringLiteral("%1%2")),
                 QStringLiteral("if((%1%2 > 0) or %1%2) (sin((%1%2 * pi))^2) else %1%2"));
    }

    void threadsEvaluateCopies()
    {
        const coExpression shared = bound(QStringLiteral("if(x > 50) 1/(x-75) else f(x)^2 + sin(x)"));
        std::vector<double> sums(4, 0.0);
        kdqInThreads(4, [&](int thread) {
            coExpression own(shared);
            for (int i = 0; i < 2000; ++i) {
                double value = 0.0;
                own.setVariable(0, i % 100);
                if (own.evaluate(&value))
                    sums[std::size_t(thread)] += value;
                else if (own.errorDetails().contains(QLatin1String("(75 - 75)")))
                    sums[std::size_t(thread)] += 1e9; // so that the failures can be told from the values
            }
        });
        QCOMPARE(int(sums.front() / 1e9), 20);
        QCOMPARE(sums, std::vector<double>(4, sums.front()));
    }

    void largeTexts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("isValid");
        QTest::addColumn<double>("value");
        QTest::newRow("100 000 terms") << QStringLiteral("1") + repeated("+x", 99999) << true << 199999.0;
        QTest::newRow("sums nested to the right")
            << repeated("(x*1+", 20000) + QStringLiteral("x") + repeated(")", 20000) << true << 40002.0;
        QTest::newRow("powers") << repeated("x^", 30000) + QStringLiteral("0") << false << 0.0;
        QTest::newRow("calls") << repeated("abs(", 20000) + QStringLiteral("x") + repeated(")", 20000) << true
                               << 2.0;
        QTest::newRow("conditions") << repeated("x<0?1:", 16000) + QStringLiteral("x") << true << 2.0;
        QTest::newRow("more than the parser holds") << repeated("(", 1100000) << false << 0.0;
    }

    void largeTexts()
    {
        QFETCH(QString, text);
        QFETCH(bool, isValid);
        coExpression expression = bound(text);
        const bool isPower = text.contains(QLatin1Char('^'));
        QCOMPARE(expression.isValid(), isValid || isPower);
        double value = 0.0;
        QCOMPARE(expression.evaluate(&value), isValid);
        QTEST(value, "value");
        const coExpression again(expression.toString());
        QCOMPARE(again.toString(), expression.toString());
        QVERIFY(isValid || !expression.errorDetails().isEmpty());
    }
};

KDQ_TEST_MAIN(TestExpression)
#include "tst_coexpression.moc"
