#include "kdqtest.h"
#include "writtencard.h"

#include <kdQCore/coFeDataTableCard>
#include <kdQCore/kdDataColumn>
#include <kdQCore/kdDataTable>
#include <kdQCore/kdUnitSystem>

Q_DECLARE_METATYPE(kdDataTable)

namespace {

kdUnitSystem unit(const char* symbol)
{
    return kdUnitSystem::fromSymbol(QString::fromUtf8(symbol));
}

kdDataColumn column(const char* symbol, const QVector<double>& values)
{
    kdDataColumn result;
    result.setUnit(unit(symbol));
    result.setValues(values);
    return result;
}

kdDataTable table(const QList<kdDataColumn>& columns)
{
    kdDataTable result;
    result.setName(QStringLiteral("steel"));
    for (const kdDataColumn& column : columns)
        result.appendColumn(column);
    return result;
}

coFeDataTableCard emptyCard()
{
    return coFeDataTableCard(QStringLiteral("steel"), 1, Variable(type(12), false, {}));
}

const kdDataTable yieldStress = table({column("degC", {20, 400}), column("MPa", {355, 100})});
const kdDataTable flowCurves =
    table({column("%", {0, 1}), column("MPa", {0, 210}), column("MPa", {0, 189}), column("MPa", {0, 150})});

} // namespace

class TestDataTableCard : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pointsInSI()
    {
        coFeDataTableCard card = emptyCard();
        QVERIFY(!write(card, fixedStandard).result);
        QVERIFY2(card.setTable(yieldStress), qPrintable(card.errorText()));
        const Written written = write(card, fixedStandard);
        QCOMPARE(written.deck,
                 QByteArray("tablesteel\n"
                            "    1    1    0    0    2\n"
                            "   12    2    1\n"
                            "2.93149E+23.55000E+8\n"
                            "6.73149E+21.00000E+8\n"));
        QVERIFY(written.result);
    }

    void gridInChosenUnits()
    {
        coFeDataTableCard card = emptyCard();
        const Variable temperature(type(5), {20, 200, 300});
        QVERIFY2(card.setGrid(flowCurves, temperature, unit("-"), unit("MPa")), qPrintable(card.errorText()));
        const Written written = write(card, freeStandard);
        QCOMPARE(written.deck,
                 QByteArray("table,steel\n"
                            "1,2,0,0,0,\n"
                            "12,2,1,5,3,2,\n"
                            "0.00000E+0,1.00000E-2,\n"
                            "2.00000E+1,2.00000E+2,3.00000E+2,\n"
                            "0.00000E+0,2.10000E+2 c\n"
                            "0.00000E+0,1.89000E+2 c\n"
                            "0.00000E+0,1.50000E+2,\n"));
        QVERIFY(written.result);
        QVERIFY(card.setTable(yieldStress));
        QCOMPARE(card.nIndependentVars(), 1);
        QVERIFY(write(card, freeStandard).result);
    }

    void copiesOwnTheirValuesAndVariables()
    {
        auto original = std::make_unique<coFeDataTableCard>(emptyCard());
        QVERIFY(original->setGrid(flowCurves, Variable(type(5), {20, 200, 300}), unit("-"), unit("MPa")));
        const QByteArray deck = write(*original, fixedStandard).deck;
        const coFeDataTableCard copy(*original);
        coFeDataTableCard assigned = emptyCard();
        assigned = *original;
        assigned = *&assigned;
        QVERIFY(original->setGrid(flowCurves, Variable(type(5), {30, 40, 50})));
        original.reset();
        QCOMPARE(write(copy, fixedStandard).deck, deck);
        QCOMPARE(write(assigned, fixedStandard).deck, deck);
        assigned = emptyCard();
        QCOMPARE(assigned.nIndependentVars(), 1);
    }

    void tablesThatDoNotFit_data()
    {
        QTest::addColumn<kdDataTable>("table");
        QTest::addColumn<Values>("temperatures"); // none: no grid
        QTest::addColumn<QString>("reason");
        const auto row = [](const char* name, const kdDataTable& table, const Values& temperatures,
                            const char* reason) {
            kdqRow(name, table, temperatures, QString::fromLatin1(reason));
        };
        row("no columns", table({}), {}, "it is no XY table (an X and a Y column); number of columns: 0.");
        row("empty", table({column("s", {}), column("K", {})}), {}, "it has no rows.");
        row("descending", table({column("min", {0, 3, 2}), column("K", {1, 2, 3})}), {},
            "x must not descend, but 120 in row 3 follows 180.");
        row("NaN in x", table({column("s", {0, qQNaN()}), column("K", {1, 2})}), {},
            "value 2 of column 1 is no finite number.");
        row("overflow in SI", table({column("s", {0}), column("GPa", {1e300})}), {},
            "value 1 of column 2 is no finite number.");
        row("too few values", flowCurves, {20},
            "it has 4 columns, but the grid needs one for x and one for each of 1 values of the second "
            "variable.");
        row("equal x", table({column("-", {1, 1}), column("MPa", {0, 0})}), {20},
            "x must ascend, but value 2 is 1 after 1.");
        row("equal second", flowCurves, {20, 20, 30},
            "the second variable must ascend, but value 2 is 20 after 20.");
        row("NaN second", flowCurves, {qQNaN(), 20, 30},
            "value 1 of the second variable is no finite number.");
    }

    void tablesThatDoNotFit()
    {
        QFETCH(kdDataTable, table);
        QFETCH(Values, temperatures);
        QFETCH(QString, reason);
        coFeDataTableCard card = emptyCard();
        QVERIFY(card.setTable(yieldStress));
        const QByteArray before = write(card, fixedExtended).deck;
        QVERIFY(!(temperatures.isEmpty() ? card.setTable(table)
                                         : card.setGrid(table, Variable(type(5), temperatures))));
        QCOMPARE(card.errorText(), QStringLiteral("Table 'steel' does not fit the card: ") + reason);
        QCOMPARE(write(card, fixedExtended).deck, before);
        QVERIFY(card.setTable(yieldStress));
        QCOMPARE(card.errorText(), QString());
    }

    void unitsThatDoNotFit()
    {
        coFeDataTableCard card = emptyCard();
        QVERIFY(!card.setTable(yieldStress, unit("K"), unit("mm")));
        QCOMPARE(card.errorText(),
                 QStringLiteral("Table 'steel' does not fit the card: column 2 is in 'MPa', which cannot be "
                                "converted to 'mm'."));
        kdDataColumn unitless = column("K", {7});
        unitless.setUnitIndex(-1);
        QVERIFY(card.setTable(table({unitless, unitless})));
        QCOMPARE(*card.values(), Values{7});
    }
};

KDQ_TEST_MAIN(TestDataTableCard)
#include "tst_cards_datatable.moc"
