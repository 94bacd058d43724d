#include "kdqtest.h"
#include "logcapture.h"

#include <kdQCore/coMarcSolverType>

namespace {

using Solver = coMarcSolverType;

struct Row {
    const Solver& (*accessor)();
    bool (Solver::*test)() const;
    int deckId;
};

// By the type's code.
const Row rows[] = {
    {Solver::sparseDirect, &Solver::isSparseDirect, 11},
    {Solver::multifrontalDirect, &Solver::isMultifrontalDirect, 8},
    {Solver::pardisoParallelDirect, &Solver::isPardisoParallelDirect, 11},
    {Solver::casiIterative, &Solver::isCasiIterative, 9},
    {Solver::iterativeSparse, &Solver::isIterativeSparse, 2},
    {Solver::mumpsParallelDirect, &Solver::isMumpsParallelDirect, 12},
    {Solver::directProfile, &Solver::isDirectProfile, 0},
    {Solver::mixedDirectIterative, &Solver::isMixedDirectIterative, 10},
    {Solver::automaticSolver, &Solver::isAutomaticSolver, -1},
};

nSolver::e_SolverType code(int number)
{
    return static_cast<nSolver::e_SolverType>(number);
}

} // namespace

class TestCoMarcSolverType : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void numberings()
    {
        LogCapture log;
        int type = 0;
        for (const Row& row : rows) {
            const Solver& solver = row.accessor();
            QCOMPARE(int(solver.solverType()), type);
            const int id = solver.isAutomaticSolver() ? -1 : type;
            QCOMPARE(solver.toVariant(), QVariant(id));
            QVERIFY(Solver::fromVariant(id) == solver);
            QCOMPARE(Solver::typeToMarcDatFileId(code(type)), row.deckId);
            const int read = Solver::typeFromMarcDatFileId(row.deckId);
            QCOMPARE(read, solver.isSparseDirect() ? int(nSolver::PardisoParallelDirect) : type);
            for (const Row& other : rows)
                QCOMPARE((solver.*other.test)(), &other == &row);
            ++type;
        }
        QCOMPARE(log.texts(), QStringList());
        QVERIFY(Solver::fromVariant(QStringLiteral("5")).isMumpsParallelDirect());
    }

    void unknownNumbersBecomePardiso()
    {
        LogCapture log;
        for (int id : {-2, 9, 42, 256})
            QVERIFY(Solver::fromVariant(id).isPardisoParallelDirect());
        QCOMPARE(log.texts(), QStringList());
        for (int id : {4, -2, std::numeric_limits<int>::min()})
            QCOMPARE(Solver::typeFromMarcDatFileId(id), nSolver::PardisoParallelDirect);
        QCOMPARE(log.records().size(), 3);
        QVERIFY(log.contains(
            kdLog::Fault, kdLog::FailedAssert,
            QStringLiteral("unknown solver type - returning solver type for pardiso parallel direct.")));
        QCOMPARE(Solver::typeToMarcDatFileId(code(255)), 11);
        QVERIFY(log.contains(
            kdLog::Fault, kdLog::FailedAssert,
            QStringLiteral(
                "unknown solver type - returning solver Marc DAT id for pardiso parallel direct.")));
    }
};

KDQ_TEST_MAIN(TestCoMarcSolverType)
#include "tst_comarcsolvertype.moc"
