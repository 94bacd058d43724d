#include "kdqtest.h"
#include "logcapture.h"

#include <kdQCore/coMarcSolverType>

namespace {

using Accessor = const coMarcSolverType& (*)();
using Test = bool (coMarcSolverType::*)() const;

struct Row {
    const char* viewName;
    Accessor accessor;
    Test test;
    int id;
    int deckId;
    int typeOfDeckId;
};

// Indexed by the type's code.
const Row rows[] = {
    {"Sparse Direct Solver", &coMarcSolverType::sparseDirect, &coMarcSolverType::isSparseDirect, 0, 11, 2},
    {"Multifrontal Sparse", &coMarcSolverType::multifrontalDirect, &coMarcSolverType::isMultifrontalDirect, 1,
     8, 1},
    {"Pardiso Direct Sparse", &coMarcSolverType::pardisoParallelDirect,
     &coMarcSolverType::isPardisoParallelDirect, 2, 11, 2},
    {"CASI Iterative Solver", &coMarcSolverType::casiIterative, &coMarcSolverType::isCasiIterative, 3, 9, 3},
    {"Iterative Sparse", &coMarcSolverType::iterativeSparse, &coMarcSolverType::isIterativeSparse, 4, 2, 4},
    {"MUMPS Parallel Direct", &coMarcSolverType::mumpsParallelDirect,
     &coMarcSolverType::isMumpsParallelDirect, 5, 12, 5},
    {"Direct Profile", &coMarcSolverType::directProfile, &coMarcSolverType::isDirectProfile, 6, 0, 6},
    {"Mixed Direct/Iterative", &coMarcSolverType::mixedDirectIterative,
     &coMarcSolverType::isMixedDirectIterative, 7, 10, 7},
    {"Automatic", &coMarcSolverType::automaticSolver, &coMarcSolverType::isAutomaticSolver, -1, -1, 8},
};
const int unknownIds[] = {
    -2, 9, 42, 255, 256, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()};

nSolver::e_SolverType code(int number)
{
    return static_cast<nSolver::e_SolverType>(number);
}

} // namespace

class TestCoMarcSolverType : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void numberings_data()
    {
        QTest::addColumn<int>("type");
        for (int type = 0; type < 9; ++type)
            QTest::newRow(rows[type].viewName) << type;
    }

    void numberings()
    {
        QFETCH(int, type);
        const Row& row = rows[type];
        const coMarcSolverType& solver = row.accessor();
        LogCapture log;

        QCOMPARE(&solver, &row.accessor());
        QCOMPARE(int(solver.solverType()), type);
        QCOMPARE(solver.viewName(), QLatin1String(row.viewName));
        QCOMPARE(solver.typeToId(), row.id);
        QCOMPARE(solver.toVariant(), QVariant(row.id));
        QVERIFY(coMarcSolverType::fromVariant(row.id) == solver);
        QCOMPARE(coMarcSolverType::typeToMarcDatFileId(code(type)), row.deckId);
        QCOMPARE(int(coMarcSolverType::typeFromMarcDatFileId(row.deckId)), row.typeOfDeckId);
        QCOMPARE(log.texts(), QStringList());
        for (const Row& other : rows)
            QCOMPARE((solver.*other.test)(), &other == &row);
    }

    void variantsOfOtherTypes()
    {
        QVERIFY(coMarcSolverType::fromVariant(QStringLiteral("5")).isMumpsParallelDirect());
        QVERIFY(coMarcSolverType::fromVariant(QVariant()).isSparseDirect());
    }

    void unknownIdsBecomePardiso()
    {
        LogCapture log;
        for (int id : unknownIds) {
            QCOMPARE(coMarcSolverType::typeFromId(id), nSolver::PardisoParallelDirect);
            QVERIFY(coMarcSolverType::fromVariant(id).isPardisoParallelDirect());
        }
        QCOMPARE(coMarcSolverType::typeToId(code(9)), 2);
        QCOMPARE(log.texts(), QStringList());
    }

    void unknownDeckIdsAreLogged()
    {
        for (int id : {4, -2, 13, std::numeric_limits<int>::min()}) {
            LogCapture log;
            QCOMPARE(coMarcSolverType::typeFromMarcDatFileId(id), nSolver::PardisoParallelDirect);
            QVERIFY(log.contains(
                kdLog::Fault, kdLog::FailedAssert,
                QStringLiteral("unknown solver type - returning solver type for pardiso parallel direct.")));
        }
    }

    void unknownTypesAreLogged()
    {
        for (int type : {9, 31, 32, 255}) {
            LogCapture log;
            QCOMPARE(coMarcSolverType::typeToMarcDatFileId(code(type)), 11);
            QVERIFY(log.contains(
                kdLog::Fault, kdLog::FailedAssert,
                QStringLiteral(
                    "unknown solver type - returning solver Marc DAT id for pardiso parallel direct.")));
        }
    }
};

KDQ_TEST_MAIN(TestCoMarcSolverType)
#include "tst_comarcsolvertype.moc"
