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
    /// With every flag set, whether the solver knows it or not.
    void solvers()
    {
        QByteArray decks;
        for (int type = 0; type < 9; ++type)
            decks += write(solver(type), freeStandard).deck;
        QCOMPARE(decks,
                 QByteArray("solver\n11,1,0,0,0,0,0,0,\noptimize,11,\n"
                            "solver\n8,1,0,1,0,0,0,0,\noptimize,11,\n"
                            "solver\n11,1,0,0,0,0,0,0,0,0,0,0,0,2,1,0,\noptimize,11,\n"
                            "solver\n9,0,0,0,0,2,0,0,0,0,0,0,0,0,0,1,\noptimize,11,\n"
                            "solver\n2,0,0,0,0,0,0,0,\n250,1,5,\n1.00000E-8,\noptimize,9,\n"
                            "solver\n12,1,0,0,0,0,0,0,\noptimize,11,\n"
                            "solver\n0,1,0,0,0,0,0,0,\noptimize,11,\n"
                            "solver\n10,0,0,0,0,0,0,0,\n250,1,0,\n1.00000E-8,\noptimize,11,\n"
                            "solver\n-1,0,0,0,0,0,0,0,\n"));
        QVERIFY(!CFEDatLineWriter().writeCard(solver(0)));
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
        QList<QByteArray> fields;
        for (int flag = 0; flag < 4; ++flag) {
            coFeAutoforgeCard flagged;
            flagged.setRemoveRigidModesFlag(static_cast<coFeAutoforgeCard::e_RigidModesFlag>(flag));
            coFeSolverCard card = solver(nSolver::PardisoParallelDirect);
            card.setAutoforgeField10Value(flagged.field10RemoveRigidModesFlag());
            fields.append(write(card, freeStandard).deck.split('\n').at(1).split(',').at(13));
        }
        QCOMPARE(fields, QList<QByteArray>({"1", "0", "2", "-1"}));
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

    void autoLoadOnlyLogsWhatIsImplausible()
    {
        const QString time = QStringLiteral("Total time needs to be > 0.");
        const QString stroke = QStringLiteral("Total stroke needs to be > 0.");
        const auto logged = [](int steps, double totalTime) {
            LogCapture log;
            cFeAutoLoadCard card;
            card.setTimeSteps(steps);
            card.setTotalTime(totalTime);
            card.setTotalTravelDist(1e-9);
            const Written written = write(card, fixedStandard);
            return written.result && written.deck.startsWith("auto load\n")
                ? log.texts()
                : QStringList{QStringLiteral("not written")};
        };
        QCOMPARE(logged(1, 1e-9), QStringList());
        QCOMPARE(logged(1, qQNaN()), QStringList{time});
        QCOMPARE(logged(-1, 0.0), QStringList({time, stroke}));
    }

    void pointLoadSaysInTheDeckWhatIsMissing()
    {
        cPointLoadCard card;
        card.setComponentName(QStringLiteral("%1 %0"));
        card.setComponentBodyId(-1);
        LogCapture log;
        const Written written = write(card, fixedExtended);
        QCOMPARE(
            written.deck,
            QByteArray(
                "$ Point load for component '%1 %0'.\n"
                "$ Cannot write point load card for component '%1 %0': Name for list of nodes is empty.\n"
                "$ Cannot write point load card for component '%1 %0': Not valid body id -1.\n"));
        QVERIFY(!written.result && !write(card, fixedExtended, false).result);
        QCOMPARE(log.texts(), QStringList());
    }

    void pointLoadLabelsTellLoadsApart()
    {
        cPointLoadCard card;
        QStringList labels;
        for (const char* list : {"punch top", "two\r\nlines"})
            for (const int body : {0, 1}) {
                card.setComponentBodyId(body);
                card.setListOfNodesName(QString::fromLatin1(list));
                labels.append(card.uniqueLabel());
            }
        QCOMPARE(labels.removeDuplicates(), 0);
        QCOMPARE(write(card, fixedStandard).deck.count('\n'), 7);
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
