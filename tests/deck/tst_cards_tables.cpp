#include "kdqtest.h"
#include "logcapture.h"
#include "writtencard.h"

#include <kdQCore/coFeTableCardUsingFormula>
#include <kdQCore/nMarc>

namespace {

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
    void formula()
    {
        coFeTableCardUsingFormula card(QStringLiteral("k\nof T"), 9,
                                       coFeTableCardBase::IndependentVarBase(type(12)));
        LogCapture log;
        QVERIFY(!write(card, freeStandard).result);
        QCOMPARE(log.texts(), QStringList(QStringLiteral("Table k\nof T (Id=9) has no formula.")));
        card.setFormula(QStringLiteral("54-0.0333*v1,\nmax"));
        QCOMPARE(write(card, freeStandard).deck,
                 QByteArray("table,k of T\n9,1,0,0,3,\n12,0,2,\n54-0.0333*v1, max\n"));
        card.setIndependentVariable2(Variable(type(1), false, Values{1, 2, 3}));
        const Written written = write(card, freeStandard);
        QCOMPARE(written.deck, QByteArray("table,k of T\n9,2,0,0,3,\n12,0,2,1,0,2,\n54-0.0333*v1, max\n"));
        QVERIFY(written.result);
        QVERIFY(!CFEDatLineWriter().writeCard(card));
    }

    void nothingToWrite()
    {
        LogCapture log;
        const Values none;
        for (const Values* y : {static_cast<const Values*>(nullptr), &none}) {
            const Written written = write(pointTable(twoPoints, y), fixedStandard);
            QVERIFY(!written.result && written.deck.isEmpty());
        }
        const QString text = QStringLiteral("Table yield stress (Id=3) has no y values.");
        QCOMPARE(log.texts(), QStringList({text, text}));
    }

    void pointsThatDoNotFit_data()
    {
        QTest::addColumn<Values>("x");
        QTest::addColumn<Values>("y");
        QTest::addColumn<int>("points");
        QTest::addColumn<QStringList>("log");
        const QString three = QStringLiteral("Number of y values of table yield stress (Id=3) should be 3.");
        const QString descends =
            QStringLiteral("The x values of table yield stress (Id=3) descend after value 2.");
        kdqRow("equal neighbours", Values{0, 1, 1, 2}, Values{1, 2, 3, 4}, 4, QStringList());
        kdqRow("descending", Values{0, 2, 1}, Values{1, 2, 3}, 3, QStringList{descends});
        kdqRow("y too many", Values{0, 1, 2}, Values{1, 2, 3, 4}, 3, QStringList{three});
        kdqRow("both", Values{0, 2, 1}, Values{1, 2}, 2, QStringList{three, descends});
    }

    void pointsThatDoNotFit()
    {
        QFETCH(Values, x);
        QFETCH(Values, y);
        QFETCH(int, points);
        QFETCH(QStringList, log);
        LogCapture capture;
        const Written written = write(pointTable(x, &y), freeStandard);
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
        kdqRow("one missing", grid1, grid2, 5, 6);
        kdqRow("equal values count once", Values{0, 0, 1, 1}, Values{5, 5}, 8, 2);
        kdqRow("what descends is dropped", Values{0, 1, 0.5, 2}, Values{3}, 4, 2);
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
        QVERIFY(!write(card, fixedExtended, false).result);
        const Written written = write(card, fixedExtended);
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
        const Written written = write(card, freeStandard);
        QVERIFY(!written.result);
        QCOMPARE(written.deck, QByteArray("table,yield stress\n3,2,0,0,-1,\n12,3,2,1,2,2,\n"));
    }

    void variablesWithoutTypeOrValues()
    {
        coFeTableCard card(QStringLiteral("t"), 1, Variable(type(0), twoPoints));
        card.setValues(&twoStresses);
        const Written written = write(card, freeStandard);
        QVERIFY(!written.result);
        QCOMPARE(written.deck.count('\n'), 4);

        LogCapture log;
        card = pointTable(grid1, &sixValues);
        card.setIndependentVariable2(Variable(type(0), grid2));
        QVERIFY(!write(card, freeStandard).result);
        card.coFeTableCardBase::setIndependentVariable2(coFeTableCardBase::IndependentVarBase(type(4)));
        QVERIFY(!write(card, fixedStandard).result);
        const QString noType =
            QStringLiteral("The second independent variable of table yield stress (Id=3) has no type.");
        const QString noValues =
            QStringLiteral("Number of y values of table yield stress (Id=3) should be 0.");
        QCOMPARE(log.texts(), QStringList({noType, noType, noValues}));
    }

    void distinctValues_data()
    {
        QTest::addColumn<Values>("values");
        QTest::addColumn<Values>("distinct");
        const double eps = 2.220446049250313e-16;
        kdqRow("none", Values(), Values());
        kdqRow("run of equals", Values{1, 1, 1, 2, 2}, Values{1, 2});
        kdqRow("relative above 1", Values{1000, 1000 + 1.2e-13, 1000 + 3e-13}, Values{1000, 1000 + 3e-13});
        kdqRow("absolute below 1", Values{0, eps / 2, eps}, Values{0, eps});
        kdqRow("descent ends it", Values{1, 3, 2, 4}, Values{1, 3});
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

    void packedNumbers()
    {
        using nMarc::packedNumber;
        QCOMPARE(packedNumber({3, 1, 2}), 123);
        QCOMPARE(packedNumber({12, 5, -1, 2}), 25); // only digits count
        QCOMPARE(packedNumber({1, 1, 1, 1, 1, 1, 1, 1, 1, 9}), 1111111119);
        QCOMPARE(packedNumber({9, 9, 9, 9, 9, 9, 9, 9, 9, 9}), 0); // beyond int
    }
};

KDQ_TEST_MAIN(TestTableCards)
#include "tst_cards_tables.moc"
