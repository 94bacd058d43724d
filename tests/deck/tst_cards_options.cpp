#include "expecteddeck.h"
#include "kdqtest.h"
#include "logcapture.h"

#include <kdQCore/cFeAutoLoadCard>
#include <kdQCore/cFePointCurrentCard>
#include <kdQCore/coFeAutoforgeCard>
#include <kdQCore/coFeParameterSectionTable>
#include <kdQCore/coFeSolverCard>
#include <kdQCore/cPointLoadCard>

#include <functional>
#include <memory>

using Card = std::shared_ptr<cFeAbstractDatCard>;
using Expectation = std::function<void(ExpectedDeck&)>;
Q_DECLARE_METATYPE(Card)
Q_DECLARE_METATYPE(Expectation)
Q_DECLARE_METATYPE(Layout)

namespace {

coFeSolverCard solver(nSolver::e_SolverType type, bool setEverything = false)
{
    coFeSolverCard card(type);
    if (!setEverything)
        return card;
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
    return card;
}

template <typename CardType>
void addRows(const char* name, const CardType& card, const Expectation& expected)
{
    for (const Layout& layout : layouts)
        QTest::addRow("%s, %s", name, layout.name)
            << Card(std::make_shared<CardType>(card)) << expected << layout;
}

/// The solver option with its first data line and the number after "optimize", 0 for none.
void addSolverRows(const char* name, const coFeSolverCard& card, std::initializer_list<int> dataLine,
                   int optimize, const Expectation& iterations = {})
{
    const QVector<int> fields(dataLine);
    addRows(name, card, [=](ExpectedDeck& deck) {
        deck.line("solver");
        for (int field : fields)
            deck.ints({field});
        deck.line();
        if (iterations)
            iterations(deck);
        if (optimize)
            deck.key("optimize").ints({optimize}).line();
    });
}

} // namespace

class TestOptionCards : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void layout_data()
    {
        QTest::addColumn<Card>("card");
        QTest::addColumn<Expectation>("expectation");
        QTest::addColumn<Layout>("layout");
        addSolverOptions();
        addProcessLines();
        addLoads();
    }

    void layout()
    {
        QFETCH(Card, card);
        QFETCH(Expectation, expectation);
        QFETCH(Layout, layout);
        ExpectedDeck expected(layout);
        expectation(expected);
        const Written written = write(*card, layout);
        QCOMPARE(written.deck, expected.deck());
        QVERIFY(written.result);
        const Written dryRun = write(*card, layout, false);
        QCOMPARE(dryRun.deck, QByteArray());
        QVERIFY(dryRun.result);
    }

    void goldenDeck()
    {
        coFeSolverCard card(coMarcSolverType::mixedDirectIterative());
        card.enableUsingUpperCaseKeywords();
        QCOMPARE(write(card, layouts[0]).deck,
                 QByteArray("SOLVER\n"
                            "   10    0    0    0    0    0    0    0\n"
                            " 1000    1    0\n"
                            "1.00000E-5\n"
                            "OPTIMIZE     11\n"));
        QCOMPARE(write(card, layouts[3]).deck,
                 QByteArray("SOLVER\n"
                            "10,0,0,0,0,0,0,0,\n"
                            "1000,1,0,\n"
                            "1.00000000000000E-5,\n"
                            "OPTIMIZE,11,\n"));
        QCOMPARE(
            write(coFeParameterSectionTable(), layouts[1]).deck,
            QByteArray(
                "table                        0         0         2         1         1         0         0 "
                "        1\n"));
    }

    void reproducibilityFollowsTheRigidModesFlag()
    {
        const QMap<int, QByteArray> fieldOfFlag{{0, "1"}, {1, "0"}, {2, "2"}, {3, "-1"}, {-1, "-1"}};
        for (auto it = fieldOfFlag.begin(); it != fieldOfFlag.end(); ++it) {
            coFeAutoforgeCard process;
            process.setRemoveRigidModesFlag(static_cast<coFeAutoforgeCard::e_RigidModesFlag>(it.key()));
            coFeSolverCard card(nSolver::PardisoParallelDirect);
            card.setIsConditionalNumericalReproducibilityEnabled(true);
            card.setAutoforgeField10Value(process.field10RemoveRigidModesFlag());
            QCOMPARE(write(card, layouts[2]).deck.split('\n').at(1).split(',').at(13), it.value());
        }
    }

    void nonSymmetricSystems()
    {
        QList<int> supporting;
        for (int id = -40; id < 200; ++id)
            if (coFeSolverCard::isSolverTypeSupportingSolvingNonSymmetricSystem(id))
                supporting.append(id);
        QCOMPARE(supporting, QList<int>({0, 8, 11, 12}));
        for (int id : {std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
            QVERIFY(!coFeSolverCard::isSolverTypeSupportingSolvingNonSymmetricSystem(id));
    }

    void solverComments()
    {
        const QList<QPair<int, QString>> expected{
            {0, QStringLiteral("Using pardiso direct sparse (11)")},
            {1, QStringLiteral("Using multifrontal direct sparse solver (8)")},
            {2, QStringLiteral("Using pardiso direct sparse (11)")},
            {3, QStringLiteral("Using an unknown solver (9)")},
            {4, QStringLiteral("Using sparse iterative solver (2)")},
            {5, QStringLiteral("Using MUMPs parallel direct (12)")},
            {6, QStringLiteral("Using profile direct solver (0)")},
            {7, QStringLiteral("Using mixed direct/iterative solver (10)")},
            {8, QStringLiteral("Using an unknown solver (-1)")},
        };
        for (const auto& [type, text] : expected) {
            LogCapture log;
            QCOMPARE(solver(static_cast<nSolver::e_SolverType>(type)).getSolverTypeUsingComment(), text);
            QCOMPARE(log.records().size(), text.contains(QStringLiteral("unknown")) ? 1 : 0);
            if (!log.records().isEmpty())
                QVERIFY(log.contains(kdLog::Fault, kdLog::FailedAssert, text));
        }
    }

    void autoLoadOnlyLogsWhatIsImplausible_data()
    {
        QTest::addColumn<int>("steps");
        QTest::addColumn<double>("time");
        QTest::addColumn<double>("distance");
        QTest::addColumn<QStringList>("texts");
        const QString time = QStringLiteral("Total time needs to be > 0.");
        const QString stroke = QStringLiteral("Total stroke needs to be > 0.");
        QTest::newRow("fine") << 1 << 1e-9 << 1e-9 << QStringList();
        QTest::newRow("no time") << 1 << 0.0 << 1.0 << QStringList{time};
        QTest::newRow("NaN time") << 1 << qQNaN() << 1.0 << QStringList{time};
        QTest::newRow("no steps") << 0 << 1.0 << 1.0 << QStringList{stroke};
        QTest::newRow("negative distance") << 1 << 1.0 << -1.0 << QStringList{stroke};
        QTest::newRow("nothing") << -1 << -1.0 << 0.0 << QStringList{time, stroke};
    }

    void autoLoadOnlyLogsWhatIsImplausible()
    {
        QFETCH(int, steps);
        QFETCH(double, time);
        QFETCH(double, distance);
        LogCapture log;
        const Written written = write(autoLoad(steps, time, distance), layouts[0]);
        QTEST(log.texts(), "texts");
        QVERIFY(written.result && written.deck.startsWith("auto load\n"));
        QCOMPARE(written.deck.contains("\ntime step\n1.00000E+0\n"), steps == 0);
    }

    void pointLoadSaysInTheDeckWhatIsMissing_data()
    {
        QTest::addColumn<QString>("component");
        QTest::addColumn<int>("body");
        QTest::addColumn<QString>("nodes");
        QTest::addColumn<QByteArray>("deck");
        const QByteArray die("$ Point load for component 'Die'.\n");
        QTest::newRow("nodes") << "Die" << 1 << QString()
                               << die
                + "$ Cannot write point load card for component 'Die': Name for list of nodes is "
                  "empty.\n";
        QTest::newRow("body") << QString() << -3 << "nodes"
                              << QByteArray("$ Cannot write point load card: Not valid body id -3.\n");
        QTest::newRow("both") << "Die" << -1 << QString()
                              << die
                + "$ Cannot write point load card for component 'Die': Name for list of nodes is "
                  "empty.\n"
                  "$ Cannot write point load card for component 'Die': Not valid body id -1.\n";
        QTest::newRow("place markers in the name")
            << "%1 %0" << -1 << "nodes"
            << QByteArray("$ Point load for component '%1 %0'.\n"
                          "$ Cannot write point load card for component '%1 %0': Not valid body id -1.\n");
    }

    void pointLoadSaysInTheDeckWhatIsMissing()
    {
        QFETCH(QString, component);
        QFETCH(int, body);
        QFETCH(QString, nodes);
        cPointLoadCard card;
        card.setComponentName(component);
        card.setComponentBodyId(body);
        card.setListOfNodesName(nodes);
        LogCapture log;
        const Written written = write(card, layouts[1]);
        QTEST(written.deck, "deck");
        QVERIFY(!written.result && !write(card, layouts[1], false).result);
        QCOMPARE(log.texts(), QStringList());
    }

    void pointLoadLabelsTellLoadsApart()
    {
        cPointLoadCard first = pointLoad(true);
        cPointLoadCard second = first;
        second.setComponentBodyId(1);
        QVERIFY(first.uniqueLabel() != second.uniqueLabel());
        second = first;
        second.setListOfNodesName(QStringLiteral("punch bottom"));
        QVERIFY(first.uniqueLabel() != second.uniqueLabel());
        second.setListOfNodesName(QStringLiteral("two\r\nlines"));
        QCOMPARE(write(second, layouts[0]).deck.count('\n'), 9);
    }

    void pointCurrentChecksItsPreconditions()
    {
        const QStringList texts{
            QStringLiteral("Missing unique label that is referenced by the LOADCASE option."),
            QStringLiteral("Either current value of table id must be set."),
            QStringLiteral("Missing control node.")};
        for (unsigned missing = 0; missing < 8; ++missing) {
            cFePointCurrentCard card;
            if (!(missing & 1U))
                card.setLabel(QStringLiteral("label"));
            if (!(missing & 2U))
                card.setTableId(0);
            if (!(missing & 4U))
                card.setControlNode(QStringLiteral("node"));
            QStringList expected;
            for (int i = 0; i < 3; ++i)
                if (missing & (1U << i))
                    expected.append(texts.at(i));
            LogCapture log;
            const Written written = write(card, layouts[0]);
            QCOMPARE(written.result, missing == 0);
            QCOMPARE(written.deck.isEmpty(), missing != 0);
            QCOMPARE(log.texts(), expected);
            for (const kdLog::Record& record : log.records())
                QVERIFY(record.severity == kdLog::Fault && record.tag == kdLog::FailedAssert);
        }
    }

    void pointCurrentIsWrittenInAmpere()
    {
        const auto reals = [](const kdUnitValue& current) {
            cFePointCurrentCard card = pointCurrent();
            card.setCurrent(current);
            return write(card, layouts[0]).deck.split('\n').value(3);
        };
        QCOMPARE(reals(kdUnitValue(2, kdUnitSystem::fromSymbol(QStringLiteral("mA")))),
                 QByteArray("2.00000E-30.00000E+00.00000E+0"));
        QCOMPARE(reals(kdUnitValue(3)), QByteArray("3.00000E+00.00000E+00.00000E+0"));
        LogCapture log;
        QCOMPARE(reals(kdUnitValue(2, kdUnitSystem(kdUnitSystem::Voltage))), QByteArray());
        QVERIFY(log.contains(
            kdLog::Fault, kdLog::FailedAssert,
            QStringLiteral("The current is given in 'V', which is not a unit of electric current.")));
    }

    void aRefusedPieceDoesNotStopTheCard()
    {
        cFePointCurrentCard card = pointCurrent();
        card.setLabel(QString(128, QLatin1Char('x')));
        const Written written = write(card, layouts[0]);
        QVERIFY(!written.result);
        QCOMPARE(written.deck.split('\n').value(6), QByteArray("node_1"));
    }

    void brokenStream_data()
    {
        QTest::addColumn<Card>("card");
        QTest::addColumn<bool>("result");
        const auto row = [](const char* name, auto card, bool result) {
            QTest::newRow(name) << Card(std::make_shared<decltype(card)>(card)) << result;
        };
        row("solver", coFeSolverCard(), false);
        row("point load", pointLoad(true), false);
        row("point current", pointCurrent(), false);
        row("process", coFeAutoforgeCard(), true);
        row("auto load", autoLoad(1, 1, 1), true);
        row("section", coFeParameterSectionTable(), true);
    }

    void brokenStream()
    {
        QFETCH(Card, card);
        QString deck;
        QTextStream stream(&deck);
        stream.setStatus(QTextStream::WriteFailed);
        CFEDatLineWriter writer;
        QTEST(writer.writeCard(*card), "result");
        writer.setFileHandler(&stream);
        QTEST(writer.writeCard(*card), "result");
        stream.flush();
        QCOMPARE(deck, QString());
        QVERIFY(!writer.flush());
    }

private:
    static void addSolverOptions()
    {
        using namespace nSolver;
        addSolverRows("sparse direct", solver(SparseDirect, true), {11, 1, 0, 0, 0, 0, 0, 0}, 11);
        addSolverRows("multifrontal", solver(MultifrontalDirect), {8, 0, 0, 0, 0, 0, 0, 0}, 11);
        addSolverRows("multifrontal with all", solver(MultifrontalDirect, true), {8, 1, 0, 1, 0, 0, 0, 0},
                      11);
        addSolverRows("pardiso", solver(PardisoParallelDirect), {11, 0, 0, 0, 0, 0, 0, 0}, 11);
        addSolverRows("pardiso with all", solver(PardisoParallelDirect, true),
                      {11, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 2, 1, 0}, 11);
        addSolverRows("casi", solver(CasiIterative, true), {9, 0, 0, 0, 0, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1},
                      11);
        addSolverRows("iterative sparse", solver(IterativeSparse, true), {2, 0, 0, 0, 0, 0, 0, 0}, 9,
                      [](ExpectedDeck& deck) {
                          deck.ints({250, 1, 5}).line().reals({1e-8}).line();
                      });
        addSolverRows("mumps", solver(MumpsParallelDirect, true), {12, 1, 0, 0, 0, 0, 0, 0}, 11);
        addSolverRows("direct profile", solver(DirectProfile, true), {0, 1, 0, 0, 0, 0, 0, 0}, 11);
        addSolverRows("mixed", solver(MixedDirectIterative), {10, 0, 0, 0, 0, 0, 0, 0}, 11,
                      [](ExpectedDeck& deck) {
                          deck.ints({1000, 1, 0}).line().reals({1e-5}).line();
                      });
        addSolverRows("automatic", solver(AutomaticSolver, true), {-1, 0, 0, 0, 0, 0, 0, 0}, 0);
    }

    static void addProcessLines()
    {
        addRows("process, defaults", coFeAutoforgeCard(), [](ExpectedDeck& deck) {
            deck.key("autoforge").ints({1, 0, 2, 0, 0, 0, 0, 0, 0, 14, 0, 0}).line();
        });
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
        addRows("process, all set", card, [](ExpectedDeck& deck) {
            deck.key("autoforge").ints({2, 3, 2, 9, 0, 21, 1, 4, 5, 15, 1, 6}).line();
        });
        addRows("table section", coFeParameterSectionTable(), [](ExpectedDeck& deck) {
            deck.key("table").ints({0, 0, 2, 1, 1, 0, 0, 1}).line();
        });
    }

    static void addLoads()
    {
        cFeAutoLoadCard load = autoLoad(100, 2.5, 0.125);
        load.setMaxForcedRemeshingNo(3);
        load.setCutBackStepNo(4);
        addRows("auto load", load, [](ExpectedDeck& deck) {
            deck.line("auto load").ints({100, 0, 10, 3, 4}).reals({2.5, 0.125}).line();
        });
        addRows("auto load, defaults", cFeAutoLoadCard(), [](ExpectedDeck& deck) {
            deck.line("auto load").ints({0, 0, 10, 1, 0}).reals({0, 0}).line();
            deck.line("time step").reals({1}).line();
        });
        for (bool is3D : {true, false}) {
            const cPointLoadCard card = pointLoad(is3D);
            addRows(is3D ? "point load 3-D" : "point load 2-D", card, [=](ExpectedDeck& deck) {
                deck.line("$ Point load for component 'Punch %1'.").line("$ from above").line("point load");
                deck.ints({1, 0, 0}).line().ints({1, 0, 0, 0, 0, 0});
                deck.line("ptld_" + card.uniqueLabel().toLatin1());
                is3D ? deck.reals({1.5, -2.5, 1234.5678}) : deck.reals({1234.5678, 1.5});
                deck.line();
                is3D ? deck.ints({0, 0, 0}) : deck.ints({0, 0});
                deck.line().ints({2}).line().line("punch top");
            });
        }
        addRows("point current", pointCurrent(), [](ExpectedDeck& deck) {
            deck.line("point current").ints({0, 0}).line().ints({1, 0, 0, 0, 0, 0}).word("weld").line();
            deck.reals({12500, 0, 0}).line().ints({7, 0, 0}).line().ints({2}).line().word("node_1").line();
        });
    }
};

KDQ_TEST_MAIN(TestOptionCards)
#include "tst_cards_options.moc"
