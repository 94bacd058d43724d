#include "kdqtest.h"
#include "logcapture.h"
#include "writtencard.h"

#include <kdQCore/cFeAutoLoadCard>
#include <kdQCore/cFePointCurrentCard>
#include <kdQCore/coFeAutoforgeCard>
#include <kdQCore/coFeSolverCard>
#include <kdQCore/cPointLoadCard>

namespace {

coFeSolverCard solver(int type)
{
    coFeSolverCard card(static_cast<nSolver::e_SolverType>(type));
    card.setIsNonSymmetricSystem(true);
    card.setIsSolutionProcedureFullK(true);
    card.setIsConditionalNumericalReproducibilityEnabled(true);
    card.setAutoforgeField10Value(2);
    card.setMaxIterations(250);
    card.setTolerance(1e-8);
    return card;
}

cFePointCurrentCard pointCurrent()
{
    cFePointCurrentCard card;
    card.setLabel(QStringLiteral("weld"));
    card.setCurrent(kdUnitValue(12.5, kdUnitSystem::fromSymbol(QStringLiteral("kA"))));
    card.setControlNode(QStringLiteral("node_1"));
    card.setTableId(7);
    return card;
}

} // namespace

class TestOptionCards : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void solvers_data()
    {
        QTest::addColumn<QByteArray>("fields");
        QTest::addColumn<QByteArray>("end");
        const QByteArray optimisation = "optimize,11,\n";
        QTest::newRow("0") << QByteArray("11,1,0,0,0,0,0,0") << optimisation;
        QTest::newRow("1") << QByteArray("8,1,0,1,0,0,0,0") << optimisation;
        QTest::newRow("2") << QByteArray("11,1,0,0,0,0,0,0,0,0,0,0,0,2,1,0") << optimisation;
        QTest::newRow("3") << QByteArray("9,0,0,0,0,2,0,0,0,0,0,0,0,0,0,1") << optimisation;
        QTest::newRow("4") << QByteArray("2,0,0,0,0,0,0,0")
                           << QByteArray("250,1,5,\n1.00000E-8,\noptimize,9,\n");
        QTest::newRow("5") << QByteArray("12,1,0,0,0,0,0,0") << optimisation;
        QTest::newRow("6") << QByteArray("0,1,0,0,0,0,0,0") << optimisation;
        QTest::newRow("7") << QByteArray("10,0,0,0,0,0,0,0") << "250,1,0,\n1.00000E-8,\n" + optimisation;
        QTest::newRow("8") << QByteArray("-1,0,0,0,0,0,0,0") << QByteArray();
    }

    /// With every flag set, whether the solver knows it or not.
    void solvers()
    {
        QFETCH(QByteArray, fields);
        QFETCH(QByteArray, end);
        const coFeSolverCard card = solver(QByteArray(QTest::currentDataTag()).toInt());
        QCOMPARE(write(card, freeStandard).deck, "solver\n" + fields + ",\n" + end);
        QVERIFY(!CFEDatLineWriter().writeCard(card));
    }

    void defaults()
    {
        QCOMPARE(write(coFeAutoforgeCard(), freeStandard).deck,
                 QByteArray("autoforge,1,0,2,0,0,0,0,0,0,14,0,0,\n"));
        QCOMPARE(write(cFeAutoLoadCard(), freeStandard).deck,
                 QByteArray("auto load\n0,0,10,1,0,0.00000E+0,0.00000E+0,\ntime step\n1.00000E+0,\n"));
        QCOMPARE(write(coFeSolverCard(nSolver::PardisoParallelDirect), freeStandard).deck,
                 QByteArray("solver\n11,0,0,0,0,0,0,0,\noptimize,11,\n"));
        QVERIFY(CFEDatLineWriter().writeCard(coFeAutoforgeCard()));
    }

    void reproducibilityFollowsTheRigidModesFlag()
    {
        const QMap<int, QByteArray> fieldOfFlag{{0, "1"}, {1, "0"}, {2, "2"}, {3, "-1"}};
        for (auto it = fieldOfFlag.begin(); it != fieldOfFlag.end(); ++it) {
            coFeAutoforgeCard flagged;
            flagged.setRemoveRigidModesFlag(static_cast<coFeAutoforgeCard::e_RigidModesFlag>(it.key()));
            coFeSolverCard card = solver(nSolver::PardisoParallelDirect);
            card.setAutoforgeField10Value(flagged.field10RemoveRigidModesFlag());
            QCOMPARE(write(card, freeStandard).deck.split('\n').at(1).split(',').at(13), it.value());
        }
    }

    void solverComments()
    {
        LogCapture log;
        QCOMPARE(solver(0).getSolverTypeUsingComment(), QStringLiteral("Using pardiso direct sparse (11)"));
        QCOMPARE(log.texts(), QStringList());
        const QString unknown = QStringLiteral("Using an unknown solver (-1)");
        QCOMPARE(solver(8).getSolverTypeUsingComment(), unknown);
        QVERIFY(log.contains(kdLog::Fault, kdLog::FailedAssert, unknown));
    }

    void autoLoadOnlyLogsWhatIsImplausible_data()
    {
        QTest::addColumn<int>("steps");
        QTest::addColumn<double>("time");
        QTest::addColumn<QStringList>("texts");
        const QString time = QStringLiteral("Total time needs to be > 0.");
        const QString stroke = QStringLiteral("Total stroke needs to be > 0.");
        QTest::newRow("fine") << 1 << 1e-9 << QStringList();
        QTest::newRow("NaN time") << 1 << qQNaN() << QStringList{time};
        QTest::newRow("nothing") << -1 << 0.0 << QStringList{time, stroke};
    }

    void autoLoadOnlyLogsWhatIsImplausible()
    {
        QFETCH(int, steps);
        QFETCH(double, time);
        LogCapture log;
        cFeAutoLoadCard card;
        card.setTimeSteps(steps);
        card.setTotalTime(time);
        card.setTotalTravelDist(1e-9);
        const Written written = write(card, fixedStandard);
        QTEST(log.texts(), "texts");
        QVERIFY(written.result && written.deck.startsWith("auto load\n"));
    }

    void pointLoadSaysInTheDeckWhatIsMissing()
    {
        cPointLoadCard card;
        card.setComponentName(QStringLiteral("%1 %0"));
        card.setComponentBodyId(-1);
        LogCapture log;
        const Written written = write(card, fixedExtended);
        QCOMPARE(written.deck,
                 QByteArray("$ Point load for component '%1 %0'.\n"
                            "$ Cannot write point load card for component '%1 %0': Name for list of nodes is "
                            "empty.\n"
                            "$ Cannot write point load card for component '%1 %0': Not valid body id -1.\n"));
        QVERIFY(!written.result && !write(card, fixedExtended, false).result);
        QCOMPARE(log.texts(), QStringList());
    }

    void pointLoadLabelsTellLoadsApart()
    {
        cPointLoadCard first;
        first.setComponentBodyId(0);
        first.setListOfNodesName(QStringLiteral("punch top"));
        cPointLoadCard second = first;
        second.setComponentBodyId(1);
        QVERIFY(first.uniqueLabel() != second.uniqueLabel());
        second = first;
        second.setListOfNodesName(QStringLiteral("two\r\nlines"));
        QVERIFY(first.uniqueLabel() != second.uniqueLabel());
        QCOMPARE(write(second, fixedStandard).deck.count('\n'), 7);
    }

    void pointCurrentChecksItsPreconditions()
    {
        LogCapture log;
        cFePointCurrentCard card;
        QVERIFY(!write(card, fixedStandard).result);
        card.setTableId(0);
        card.setControlNode(QStringLiteral("node"));
        QCOMPARE(write(card, fixedStandard).deck, QByteArray());
        const QString label =
            QStringLiteral("Missing unique label that is referenced by the LOADCASE option.");
        QCOMPARE(log.texts(),
                 QStringList({label, QStringLiteral("Either current value of table id must be set."),
                              QStringLiteral("Missing control node."), label}));
        QVERIFY(log.contains(kdLog::Fault, kdLog::FailedAssert, label));
    }

    void pointCurrentIsWrittenInAmpere()
    {
        cFePointCurrentCard card = pointCurrent();
        card.setCurrent(kdUnitValue(3));
        QCOMPARE(write(card, fixedStandard).deck.split('\n').value(3),
                 QByteArray("3.00000E+00.00000E+00.00000E+0"));
        LogCapture log;
        card.setCurrent(kdUnitValue(2, kdUnitSystem(kdUnitSystem::Voltage)));
        QCOMPARE(write(card, fixedStandard).deck, QByteArray());
        QVERIFY(log.contains(
            kdLog::Fault, kdLog::FailedAssert,
            QStringLiteral("The current is given in 'V', which is not a unit of electric current.")));
    }

    void aRefusedPieceDoesNotStopTheCard()
    {
        cFePointCurrentCard card = pointCurrent();
        card.setLabel(QString(128, QLatin1Char('x')));
        const Written written = write(card, fixedStandard);
        QVERIFY(!written.result);
        QCOMPARE(written.deck.split('\n').value(6), QByteArray("node_1"));
    }
};

KDQ_TEST_MAIN(TestOptionCards)
#include "tst_cards_options.moc"
