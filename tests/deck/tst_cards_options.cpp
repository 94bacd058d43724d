#include "kdqtest.h"
#include "logcapture.h"
#include "writtencard.h"

#include <kdQCore/cFeAutoLoadCard>
#include <kdQCore/cFePointCurrentCard>
#include <kdQCore/coFeAutoforgeCard>
#include <kdQCore/coFeParameterSectionTable>
#include <kdQCore/coFeSolverCard>
#include <kdQCore/cPointLoadCard>

#include <memory>

using Card = std::shared_ptr<cFeAbstractDatCard>;
Q_DECLARE_METATYPE(Card)

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

cPointLoadCard pointLoad(bool is3D)
{
    cPointLoadCard card;
    card.setIs3DProcess(is3D);
    card.setForceX(1.5);
    card.setForceY(-2.5);
    card.setForceZ(1234.5678);
    card.setComponentBodyId(0);
    card.setComponentName(QStringLiteral("Punch %1"));
    card.setCommentText(QStringLiteral("from above"));
    card.setListOfNodesName(QStringLiteral("punch top"));
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

cFeAutoLoadCard autoLoad(int steps, double time, double distance)
{
    cFeAutoLoadCard card;
    card.setTimeSteps(steps);
    card.setTotalTime(time);
    card.setTotalTravelDist(distance);
    card.setMaxForcedRemeshingNo(3);
    card.setCutBackStepNo(4);
    return card;
}

coFeAutoforgeCard process()
{
    coFeAutoforgeCard card;
    card.setIs3d(true);
    card.setMaterialModel(3);
    card.setOptionalLicenseFeatures(static_cast<nMarc::e_LicFlag>(1) | static_cast<nMarc::e_LicFlag>(8));
    card.setSpecificProcType(21);
    card.setSuppressHeatGeneration(true);
    card.setKinFileFlag(static_cast<coFeAutoforgeCard::e_KinFileFlag>(4));
    card.setRemoveRigidModesFlag(static_cast<coFeAutoforgeCard::e_RigidModesFlag>(5));
    card.setKaldoranVersion(static_cast<coFeAutoforgeCard::e_KaldoranVersion>(15));
    card.setSkipHeatTransferConvergenceCheck(false);
    card.setContactTolFlag(static_cast<nMarc::e_AutoForgeContactToleranceFlag>(6));
    return card;
}

} // namespace

class TestOptionCards : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void layout_data()
    {
        QTest::addColumn<Card>("card");
        QTest::addColumn<QByteArray>("deck");     // free, standard
        QTest::addColumn<bool>("returnsFailure"); // of the stream
        const auto row = [](const char* name, auto card, const QByteArray& deck, bool returnsFailure = true) {
            QTest::newRow(name) << Card(std::make_shared<decltype(card)>(card)) << deck << returnsFailure;
        };
        const auto solverRow = [&row](int type, const QByteArray& fields, const QByteArray& end) {
            const QByteArray name = "solver " + QByteArray::number(type);
            row(name.constData(), solver(type), "solver\n" + fields + ",\n" + end);
        };
        solverRow(0, "11,1,0,0,0,0,0,0", "optimize,11,\n");
        solverRow(1, "8,1,0,1,0,0,0,0", "optimize,11,\n");
        solverRow(2, "11,1,0,0,0,0,0,0,0,0,0,0,0,2,1,0", "optimize,11,\n");
        solverRow(3, "9,0,0,0,0,2,0,0,0,0,0,0,0,0,0,1", "optimize,11,\n");
        solverRow(4, "2,0,0,0,0,0,0,0", "250,1,5,\n1.00000E-8,\noptimize,9,\n");
        solverRow(5, "12,1,0,0,0,0,0,0", "optimize,11,\n");
        solverRow(6, "0,1,0,0,0,0,0,0", "optimize,11,\n");
        solverRow(7, "10,0,0,0,0,0,0,0", "250,1,0,\n1.00000E-8,\noptimize,11,\n");
        solverRow(8, "-1,0,0,0,0,0,0,0", "");
        row("pardiso, defaults", coFeSolverCard(nSolver::PardisoParallelDirect),
            "solver\n11,0,0,0,0,0,0,0,\noptimize,11,\n");
        row("table section", coFeParameterSectionTable(), "table,0,0,2,1,1,0,0,1,\n", false);
        row("process, defaults", coFeAutoforgeCard(), "autoforge,1,0,2,0,0,0,0,0,0,14,0,0,\n", false);
        row("process, all set", process(), "autoforge,2,3,2,9,0,21,1,4,5,15,1,6,\n", false);
        row("auto load", autoLoad(100, 2.5, 0.125), "auto load\n100,0,10,3,4,2.50000E+0,1.25000E-1,\n",
            false);
        row("auto load, defaults", cFeAutoLoadCard(),
            "auto load\n0,0,10,1,0,0.00000E+0,0.00000E+0,\ntime step\n1.00000E+0,\n", false);
        const QByteArray loadStart =
            "$ Point load for component 'Punch %1'.\n$ from above\npoint load\n1,0,0,\n1,0,0,0,0,0,ptld_";
        row("point load 3-D", pointLoad(true),
            loadStart + pointLoad(true).uniqueLabel().toLatin1()
                + "\n1.50000E+0,-2.5000E+0,1.23456E+3,\n0,0,0,\n2,\npunch top\n");
        row("point load 2-D", pointLoad(false),
            loadStart + pointLoad(false).uniqueLabel().toLatin1()
                + "\n1.23456E+3,1.50000E+0,\n0,0,\n2,\npunch top\n");
        row("point current", pointCurrent(),
            "point current\n0,0,\n1,0,0,0,0,0,weld,\n1.25000E+4,0.00000E+0,0.00000E+0,\n7,0,0,\n2,\nnode_1,"
            "\n");
    }

    void layout()
    {
        QFETCH(Card, card);
        const Written written = write(*card, freeStandard);
        QTEST(written.deck, "deck");
        QVERIFY(written.result);
        const Written dryRun = write(*card, freeStandard, false);
        QCOMPARE(dryRun.deck, QByteArray());
        QVERIFY(dryRun.result);
        CFEDatLineWriter withoutStream;
        QTEST(!withoutStream.writeCard(*card), "returnsFailure");
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
        const Written written = write(autoLoad(steps, time, 1e-9), fixedStandard);
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
        const cPointLoadCard first = pointLoad(true);
        cPointLoadCard second = first;
        second.setComponentBodyId(1);
        QVERIFY(first.uniqueLabel() != second.uniqueLabel());
        second = first;
        second.setListOfNodesName(QStringLiteral("two\r\nlines"));
        QVERIFY(first.uniqueLabel() != second.uniqueLabel());
        QCOMPARE(write(second, fixedStandard).deck.count('\n'), 9);
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
