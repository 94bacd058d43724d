#include "expecteddeck.h"
#include "kdqtest.h"
#include "logcapture.h"

#include <kdQCore/coFeTableCard>
#include <kdQCore/coFeTableCardUsingFormula>
#include <kdQCore/nMarc>

#include <limits>

using Values = QList<double>;
using Variable = coFeTableCard::IndependentVarUsingValues;
Q_DECLARE_METATYPE(Layout)

namespace {

nMarc::e_TableVariableType type(int code)
{
    return static_cast<nMarc::e_TableVariableType>(code);
}

nMarc::e_TableReadMethod method(int code)
{
    return static_cast<nMarc::e_TableReadMethod>(code);
}

coFeTableCard pointTable(const Values& x, const Values* y)
{
    coFeTableCard card(QStringLiteral("yield stress"), 3, Variable(type(12), x));
    card.setValues(y);
    return card;
}

coFeTableCard gridTable(const Values& x1, const Values& x2, const Values* y)
{
    coFeTableCard card(QStringLiteral("flow"), 4, Variable(type(5), x1, false));
    card.setIndependentVariable2(Variable(type(12), x2));
    card.setValues(y);
    return card;
}

const Values twoPoints{293.15, 673.15};
const Values twoStresses{355e6, -0.5};
const Values grid1{0, 0.1, 0.2};
const Values grid2{20, 400};
const Values sixValues{1, 2, 3, 4, 5, 6};

} // namespace

class TestTableCards : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void goldenPoints_data()
    {
        QTest::addColumn<int>("layout");
        QTest::addColumn<QByteArray>("deck");
        QTest::newRow("fixed standard") << 0
                                        << QByteArray("tableyield stress\n"
                                                      "    3    1    0    0    2\n"
                                                      "   12    2    2\n"
                                                      "2.93149E+23.55000E+8\n"
                                                      "6.73149E+2-5.0000E-1\n");
        QTest::newRow("free extended") << 3
                                       << QByteArray("table,yield stress\n"
                                                     "3,1,0,0,2,\n"
                                                     "12,2,2,\n"
                                                     "2.93149999999999E+2,3.55000000000000E+8,\n"
                                                     "6.73149999999999E+2,-5.0000000000000E-1,\n");
    }

    void goldenPoints()
    {
        QFETCH(int, layout);
        QFETCH(QByteArray, deck);
        const Written written = write(pointTable(twoPoints, &twoStresses), layouts[layout]);
        QCOMPARE(written.deck, deck);
        QVERIFY(written.result);
    }

    void goldenGrid_data()
    {
        QTest::addColumn<int>("layout");
        QTest::addColumn<int>("readMethod");
        QTest::addColumn<QByteArray>("deck");
        QTest::newRow("fixed, row by row") << 0 << 0
                                           << QByteArray("tableflow\n"
                                                         "    4    2    0    0    0\n"
                                                         "    5    3    1   12    2    2\n"
                                                         "0.00000E+01.00000E-12.00000E-1\n"
                                                         "2.00000E+14.00000E+2\n"
                                                         "1.00000E+02.00000E+03.00000E+0 c\n"
                                                         "4.00000E+05.00000E+06.00000E+0\n");
        QTest::newRow("free, value by value")
            << 3 << 1
            << QByteArray("table,flow\n"
                          "4,2,0,0,1,\n"
                          "5,3,1,12,2,2,\n"
                          "0.00000000000000E+0,1.00000000000000E-1,2.00000000000000E-1,\n"
                          "2.00000000000000E+1,4.00000000000000E+2,\n"
                          "1.00000000000000E+0 c\n"
                          "2.00000000000000E+0 c\n"
                          "3.00000000000000E+0 c\n"
                          "4.00000000000000E+0 c\n"
                          "5.00000000000000E+0 c\n"
                          "6.00000000000000E+0,\n");
    }

    void goldenGrid()
    {
        QFETCH(int, layout);
        QFETCH(int, readMethod);
        coFeTableCard card = gridTable(grid1, grid2, &sixValues);
        card.setDefaultReadMethodForMoreThan1IndependentVar(method(readMethod));
        const Written written = write(card, layouts[layout]);
        QTEST(written.deck, "deck");
        QVERIFY(written.result);
        QVERIFY(write(card, layouts[layout], false).result);
    }

    void formula_data()
    {
        QTest::addColumn<Layout>("layout");
        for (const Layout& layout : layouts)
            QTest::newRow(layout.name) << layout;
    }

    void formula()
    {
        QFETCH(Layout, layout);
        coFeTableCardUsingFormula card(QStringLiteral("k\nof T"), 9,
                                       coFeTableCardBase::IndependentVarBase(type(12)));
        card.setFormula(QStringLiteral("54-0.0333*v1,\nmax"));
        ExpectedDeck one(layout);
        one.word("table")
            .line("k of T")
            .ints({9, 1, 0, 0, 3})
            .line()
            .ints({12, 0, 2})
            .line()
            .line("54-0.0333*v1, max");
        QCOMPARE(write(card, layout).deck, one.deck());

        card.setIndependentVariable2(Variable(type(1), false, Values{1, 2, 3}));
        ExpectedDeck two(layout);
        two.word("table").line("k of T").ints({9, 2, 0, 0, 3}).line().ints({12, 0, 2, 1, 0, 2}).line();
        two.line("54-0.0333*v1, max");
        const Written written = write(card, layout);
        QCOMPARE(written.deck, two.deck());
        QVERIFY(written.result);
        QCOMPARE(card.getReadMethod(), nMarc::ReadFormula);
    }

    void nothingToWrite()
    {
        LogCapture log;
        const Values none;
        const coFeTableCardUsingFormula formula(QStringLiteral("t"), 1, type(1));
        for (const Written& written :
             {write(pointTable(twoPoints, nullptr), layouts[0]),
              write(pointTable(twoPoints, &none), layouts[0]), write(formula, layouts[0])}) {
            QCOMPARE(written.deck, QByteArray());
            QVERIFY(!written.result);
        }
        QCOMPARE(log.texts(),
                 QStringList({QStringLiteral("Table yield stress (Id=3) has no y values."),
                              QStringLiteral("Table yield stress (Id=3) has no y values."),
                              QStringLiteral("Table t (Id=1) has no formula.")}));
    }

    void pointsThatDoNotFit_data()
    {
        QTest::addColumn<Values>("x");
        QTest::addColumn<Values>("y");
        QTest::addColumn<int>("points");
        QTest::addColumn<QStringList>("log");
        const QString three = QStringLiteral("Number of y values of table yield stress (Id=3) should be 3.");
        const QString none = QStringLiteral("Number of y values of table yield stress (Id=3) should be 0.");
        const QString descends =
            QStringLiteral("The x values of table yield stress (Id=3) descend after value 2.");
        QTest::newRow("equal neighbours") << Values{0, 1, 1, 2} << Values{1, 2, 3, 4} << 4 << QStringList();
        QTest::newRow("descending") << Values{0, 2, 1} << Values{1, 2, 3} << 3 << QStringList{descends};
        QTest::newRow("y too few") << Values{0, 1, 2} << Values{1, 2} << 2 << QStringList{three};
        QTest::newRow("y too many") << Values{0, 1, 2} << Values{1, 2, 3, 4} << 3 << QStringList{three};
        QTest::newRow("no x") << Values() << Values{1} << 0 << QStringList{none};
        QTest::newRow("one point") << Values{5} << Values{1} << 1 << QStringList();
        QTest::newRow("both") << Values{0, 2, 1} << Values{1, 2} << 2 << QStringList{three, descends};
        QTest::newRow("NaN") << Values{0, qQNaN(), 1} << Values{1, 2, 3} << 3 << QStringList();
    }

    void pointsThatDoNotFit()
    {
        QFETCH(Values, x);
        QFETCH(Values, y);
        QFETCH(int, points);
        QFETCH(QStringList, log);
        LogCapture capture;
        const Written written = write(pointTable(x, &y), layouts[2]);
        const QList<QByteArray> lines = written.deck.split('\n');
        QCOMPARE(lines.value(2), QByteArray("12,") + QByteArray::number(points) + ",2,");
        QCOMPARE(lines.size(), 3 + points + 1);
        QCOMPARE(written.result, log.isEmpty());
        QCOMPARE(capture.texts(), log);
    }

    void gridsThatDoNotFit_data()
    {
        QTest::addColumn<Values>("x1");
        QTest::addColumn<Values>("x2");
        QTest::addColumn<int>("values");
        QTest::addColumn<int>("required");
        QTest::newRow("one missing") << grid1 << grid2 << 5 << 6;
        QTest::newRow("one too many") << grid1 << grid2 << 7 << 6;
        QTest::newRow("equal values count once") << Values{0, 0, 1, 1} << Values{5, 5} << 8 << 2;
        QTest::newRow("what descends is dropped") << Values{0, 1, 0.5, 2} << Values{3} << 4 << 2;
        QTest::newRow("no second values") << grid1 << Values() << 3 << 0;
        QTest::newRow("no first values") << Values() << grid2 << 2 << 0;
    }

    void gridsThatDoNotFit()
    {
        QFETCH(Values, x1);
        QFETCH(Values, x2);
        QFETCH(int, values);
        QFETCH(int, required);
        Values y;
        for (int i = 0; i < values; ++i)
            y.append(i);
        LogCapture log;
        const coFeTableCard card = gridTable(x1, x2, &y);
        QCOMPARE(card.requiredNumberOfVariableDependentValues(), required);
        QVERIFY(!write(card, layouts[1], false).result);
        const Written written = write(card, layouts[1]);
        QVERIFY(!written.result && written.deck.startsWith("tableflow\n"));
        const QString text =
            QStringLiteral("Number of y values of table flow (Id=4) should be %1.").arg(required);
        QCOMPARE(log.texts(), QStringList({text, text}));
        QVERIFY(log.contains(kdLog::Fault, kdLog::WriteDat, text));
    }

    void readMethods()
    {
        coFeTableCard card = pointTable(grid1, &sixValues);
        card.setDefaultReadMethodForMoreThan1IndependentVar(nMarc::ReadGridValueByValue);
        QCOMPARE(card.getReadMethod(), nMarc::ReadPoints);
        card.setIndependentVariable2(Variable(type(1), grid2));
        QCOMPARE(int(card.getReadMethod()), 1);
        for (int ignored : {2, 3, 99}) {
            card.setDefaultReadMethodForMoreThan1IndependentVar(method(ignored));
            QCOMPARE(int(card.getReadMethod()), 1);
        }
        card.setDefaultReadMethodForMoreThan1IndependentVar(method(-1));
        const Written written = write(card, layouts[2]);
        QVERIFY(!written.result);
        QCOMPARE(written.deck, QByteArray("table,yield stress\n3,2,0,0,-1,\n12,3,2,1,2,2,\n"));
    }

    void blocksOnTheirOwn()
    {
        using Base = coFeTableCardBase;
        const auto text = [](const auto& block, bool expectedResult) {
            QString deck;
            QTextStream stream(&deck);
            CFEDatLineWriter writer;
            writer.setFileHandler(&stream);
            const bool result = block.write(writer);
            stream.flush();
            return result == expectedResult ? deck : QStringLiteral("wrong result");
        };
        QCOMPARE(text(Base::Block1(QStringLiteral("a\r\nb")), true), QStringLiteral("table,a b\n"));
        QCOMPARE(text(Base::Block2(1, 1, method(2)), true), QStringLiteral("1,1,0,0,2,\n"));
        QCOMPARE(text(Base::Block2(1, 2, method(2)), true), QStringLiteral("1,2,0,0,0,\n"));
        QCOMPARE(text(Base::Block2(1, 0, method(3)), true), QStringLiteral("1,0,0,0,3,\n"));
        QCOMPARE(text(Base::Block3::Data(), true), QStringLiteral("0,0,2,"));
        QCOMPARE(text(Base::Block3(Base::Block3::Data(), Base::Block3::Data(type(3))), false), QString());
        QCOMPARE(text(Base::Block3(Base::Block3::Data(type(3), 4, false)), true), QStringLiteral("3,4,1,\n"));
    }

    void variablesWithoutAType()
    {
        coFeTableCard card(QStringLiteral("t"), 1, Variable(type(0), twoPoints));
        card.setValues(&twoStresses);
        Written written = write(card, layouts[2]);
        QVERIFY(!written.result);
        QCOMPARE(written.deck.count('\n'), 4);

        LogCapture log;
        card = coFeTableCard(QStringLiteral("t"), 1, Variable(type(2), grid1));
        card.setIndependentVariable2(Variable(type(0), grid2));
        card.setValues(&sixValues);
        QVERIFY(!write(card, layouts[2]).result);
        QCOMPARE(
            log.texts(),
            QStringList(QStringLiteral("The second independent variable of table t (Id=1) has no type.")));
    }

    void distinctValues_data()
    {
        QTest::addColumn<Values>("values");
        QTest::addColumn<Values>("distinct");
        const double eps = 2.220446049250313e-16;
        QTest::newRow("none") << Values() << Values();
        QTest::newRow("first is always taken") << Values{-5} << Values{-5};
        QTest::newRow("run of equals") << Values{1, 1, 1, 2, 2} << Values{1, 2};
        QTest::newRow("relative above 1")
            << Values{1000, 1000 + 1.2e-13, 1000 + 3e-13} << Values{1000, 1000 + 3e-13};
        QTest::newRow("absolute below 1") << Values{0, eps / 2, eps} << Values{0, eps};
        QTest::newRow("smaller by a hair") << Values{0.5, 0.5 - eps / 2, 1} << Values{0.5, 1};
        QTest::newRow("descent ends it") << Values{1, 3, 2, 4} << Values{1, 3};
        QTest::newRow("largest") << Values{-1e308, 1e308, 1e308} << Values{-1e308, 1e308};
    }

    void distinctValues()
    {
        QFETCH(Values, values);
        Variable variable(type(1), values);
        QCOMPARE(variable.distinctValues(), Values());
        variable.makeValuesDistinct();
        QTEST(variable.distinctValues(), "distinct");
        variable.makeValuesDistinct();
        QTEST(variable.distinctValues(), "distinct");
    }

    void variablesAreOwnedAndCopied()
    {
        coFeTableCard card = gridTable(grid1, grid2, &sixValues);
        card.setIndependentVariable2(Variable(type(2), grid2));
        const QByteArray deck = write(card, layouts[0]).deck;
        coFeTableCard copy(card);
        coFeTableCard assigned = pointTable(twoPoints, &twoStresses);
        assigned = copy;
        assigned = *&assigned;
        card.setIndependentVariable2(Variable(type(9), grid2));
        copy = card;
        QVERIFY(write(copy, layouts[0]).deck != deck);
        QCOMPARE(write(assigned, layouts[0]).deck, deck);
        assigned = pointTable(twoPoints, &twoStresses);
        QCOMPARE(assigned.nIndependentVars(), 1);
    }

    void aVariable2WithoutValuesIsNoGrid()
    {
        LogCapture log;
        coFeTableCard card = pointTable(grid1, &sixValues);
        static_cast<coFeTableCardBase&>(card).setIndependentVariable2(
            coFeTableCardBase::IndependentVarBase(type(4)));
        QCOMPARE(card.requiredNumberOfVariableDependentValues(), 0);
        QVERIFY(!write(card, layouts[0]).result);
    }

    void brokenStream()
    {
        CFEDatLineWriter writer;
        coFeTableCardUsingFormula formula(QStringLiteral("t"), 1, type(1));
        formula.setFormula(QStringLiteral("v1"));
        QVERIFY(!writer.writeCard(formula));
        QVERIFY(!writer.writeCard(pointTable(twoPoints, &twoStresses)));
        QVERIFY(!writer.writeCard(gridTable(grid1, grid2, &sixValues)));
    }

    void packedNumbers_data()
    {
        QTest::addColumn<QList<int>>("digits");
        QTest::addColumn<int>("number");
        QTest::newRow("sorted") << QList<int>{3, 1, 2} << 123;
        QTest::newRow("twice") << QList<int>{1, 1} << 11;
        QTest::newRow("others are skipped") << QList<int>{12, 5, -1, 2} << 25;
        QTest::newRow("none") << QList<int>() << 0;
        QTest::newRow("none left") << QList<int>{10, std::numeric_limits<int>::min()} << 0;
        QTest::newRow("zeros lead") << QList<int>{7, 0, 0} << 7;
        QTest::newRow("largest") << QList<int>{1, 1, 1, 1, 1, 1, 1, 1, 1, 9} << 1111111119;
        QTest::newRow("beyond int") << QList<int>{9, 9, 9, 9, 9, 9, 9, 9, 9, 9} << 0;
        QTest::newRow("far beyond") << QVector<int>(1000, 9).toList() << 0;
    }

    void packedNumbers()
    {
        QFETCH(QList<int>, digits);
        QTEST(nMarc::packedNumber(digits), "number");
    }
};

KDQ_TEST_MAIN(TestTableCards)
#include "tst_cards_tables.moc"
