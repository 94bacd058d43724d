#include "kdqtest.h"

#include <kdQCore/coExpressionOrder>
#include <kdQCore/coExpressionSyntaxChecker>
#include <kdQCore/ncoExpressionValidator>

namespace {

/// Of formulas such as "a=b+1; b=2".
coExpressionOrder orderOf(const QString& formulas)
{
    coExpressionOrder order;
    const QStringList parts = formulas.split(S("; "), Qt::SkipEmptyParts);
    for (const QString& part : parts)
        order.add(part.section(QLatin1Char('='), 0, 0), part.section(QLatin1Char('='), 1));
    return order;
}

} // namespace

/// Everything about formulas that is not their evaluation: messages, rules of usage, order of definition.
class TestExpressionChecks : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void syntaxChecker()
    {
        const coExpressionSyntaxChecker valid(S("x + 1"));
        QCOMPARE(valid.getXmlComment(), S("Math expression syntax is valid."));
        const coExpressionSyntaxChecker copy(valid);
        QCOMPARE(copy.expression().toString(), S("(x + 1)"));

        const coExpressionSyntaxChecker wrong(S("%1 --"));
        const QString details = S("Line 1, column 1: found '%', expected a number, a name, a "
                                  "function, a sign, \"not\", \"if\" or \"(\".");
        QCOMPARE(wrong.getXmlComment(), S("Math expression syntax is not valid: Syntax error., ") + details);
        QCOMPARE(wrong.getErrorMessage(), S("Math expression '%1 --': Syntax error., ") + details);
    }

    // A comment must not hold two hyphens.
    void commentsFitIntoXml()
    {
        for (const char* text : {"1 -- * 2", "a --", "1 $-- 2", "\"--\""})
            QVERIFY2(!coExpressionSyntaxChecker(QString::fromLatin1(text))
                          .getXmlComment()
                          .contains(QLatin1String("--")),
                     text);
    }

    void unresolvedFunctions()
    {
        coExpression expression(S("f(sin(x)) + h(x)"));
        QStringList messages{S("before")};
        QVERIFY(!ncoExpressionValidator::checkForUnresolvedFunctions(expression, &messages));
        QCOMPARE(messages.mid(1), QStringList{S("The formula contains unknown functions: f, h")});
        QVERIFY(!ncoExpressionValidator::checkForUnresolvedFunctions(expression, nullptr));
    }

    void spaceDomainFunctions_data()
    {
        QTest::addColumn<int>("first"); // of the three messages; all behind it follow
        QTest::newRow("max(\"x\")") << 3;
        QTest::newRow("sin(x) + point(x) * y") << 3; // none across the domain
        QTest::newRow("max(1)") << 2;
        QTest::newRow("max(sin(x))") << 2;
        QTest::newRow("max(x * y)") << 1;
        QTest::newRow("max(x) + min(y)") << 0;
    }

    void spaceDomainFunctions()
    {
        const QStringList all{
            S("The formula contains more than one function across the entire space domain but only "
              "one function is supported to be used in the formula."),
            S("If a function across the entire space domain like max is used, then only one "
              "variable is supported to be used in the formula."),
            S("If a function across the entire space domain like max is used, then no other "
              "operations are supported to be used in the formula.")};
        QFETCH(int, first);
        const QString text = QString::fromLatin1(QTest::currentDataTag());
        coExpression expression(text);
        const auto same = [](double x) { return x; };
        expression.setFunction(S("max"), same);
        expression.setFunction(S("min"), same, coExpression::SpaceDomain);
        expression.setFunction(S("point"), same, coExpression::Pointwise);
        QStringList messages;
        QCOMPARE(ncoExpressionValidator::checkForValidSpaceDomainFctUsage(text, expression, &messages),
                 first > 2);
        QCOMPARE(messages, all.mid(first));
    }

    void orders_data()
    {
        QTest::addColumn<QString>("formulas");
        QTest::addColumn<QString>("names");
        QTest::addColumn<int>("failure");
        QTest::addColumn<QString>("error");
        const auto row = [](const char* formulas, const char* names, int failure = 0,
                            const char* error = "") {
            QTest::newRow(formulas) << QString::fromLatin1(formulas) << QString::fromLatin1(names) << failure
                                    << QString::fromLatin1(error);
        };
        row("", "");
        row("a=b+c; b=c*2; c=known", "c b a");
        row("a=1; d=b+c; b=a; c=a; f=d", "a b c d f"); // a diamond
        row("z=1; s=a; a=b+z; b=c; c=a", "", coExpressionOrder::Circle,
            "The formulas use each other in a circle: a -> b -> c -> a.");
        row("area=width*height; width=2", "", coExpressionOrder::UndefinedName,
            "The formula of 'area' uses 'height', which is not defined.");
        row("a=1; b=2; a=3", "", coExpressionOrder::DuplicateName, "'a' is defined twice.");
        row("known=3", "", coExpressionOrder::DuplicateName, "'known' is defined twice.");
        row("2a=3", "", coExpressionOrder::InvalidName, "'2a' cannot be the name of a formula.");
        row("pi=3", "", coExpressionOrder::InvalidName, "'pi' cannot be the name of a formula.");
        row("a=1+", "", coExpressionOrder::InvalidFormula,
            "The formula of 'a' cannot be read: Syntax error. Line 1, column 3: found the end of the "
            "formula, "
            "expected a number, a name, a function, a sign, \"not\", \"if\" or \"(\".");
    }

    void orders()
    {
        QFETCH(QString, formulas);
        coExpressionOrder order = orderOf(formulas);
        order.addKnownName(S("known"));
        QFETCH(int, failure);
        QCOMPARE(order.sort(), failure == coExpressionOrder::NoFailure);
        QCOMPARE(int(order.failure()), failure);
        QTEST(order.names().join(QLatin1Char(' ')), "names");
        QTEST(order.errorString(), "error");
        QVERIFY(order.names().isEmpty() || order.expression(0).isValid());
        QVERIFY(!order.expression(order.size()).isValid());
    }

    void tellsPartsOfFailures()
    {
        coExpressionOrder circle = orderOf(S("s=a; a=b; b=a"));
        QVERIFY(!circle.sort());
        QCOMPARE(circle.circle(), (QStringList{S("a"), S("b")}));
        coExpressionOrder undefined = orderOf(S("s=a; a=b"));
        QVERIFY(!undefined.sort());
        QCOMPARE(undefined.failedName() + undefined.undefinedName(), S("ab"));
        undefined.add(S("b"), S("1"));
        QVERIFY(undefined.sort());
        QCOMPARE(undefined.failedName() + undefined.errorString(), QString());
    }

    void evaluatesInOrder()
    {
        coExpressionOrder order = orderOf(S("power=voltage*180; voltage=24+t/10; heat=power/(t-7)"));
        order.addKnownName(S("t"));
        QHash<QString, double> values{{S("t"), 5.0}};
        QVERIFY2(order.evaluate(&values), qPrintable(order.errorString()));
        QCOMPARE(values.value(S("heat")), 24.5 * 180 / -2);
        values[S("t")] = 7.0;
        QVERIFY(!order.evaluate(&values));
        QCOMPARE(order.failedName(), S("heat"));
        QVERIFY(order.errorString().contains(QLatin1String("Division by zero.")));
        QCOMPARE(values.value(S("power")), 24.7 * 180);
        values.clear();
        QVERIFY(!order.evaluate(&values));
        QVERIFY(order.errorString().contains(QLatin1String("Undefined variable(s): t.")));
    }

    void longChains()
    {
        constexpr int length = 20000;
        coExpressionOrder order;
        for (int i = 0; i < length; ++i)
            order.add(S("v%1").arg(i), S("v%1 + 1").arg(i + 1));
        order.add(S("v%1").arg(length), S("0"));
        QHash<QString, double> values;
        QVERIFY(order.evaluate(&values));
        QCOMPARE(values.value(S("v0")), double(length));
    }
};

KDQ_TEST_MAIN(TestExpressionChecks)
#include "tst_coexpression_checks.moc"
