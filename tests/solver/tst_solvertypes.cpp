#include "kdqtest.h"
#include "logcapture.h"

#include <kdQCore/coMarcSolverType>
#include <kdQCore/coMatrixSolverSolutionProcedureType>

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

using namespace nSolver;
using Solver = coMarcSolverType;
using Procedure = coMatrixSolverSolutionProcedureType;

namespace {

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

e_SolverType code(int number)
{
    return static_cast<e_SolverType>(number);
}

} // namespace

class TestSolverTypes : public QObject {
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
            QVERIFY(Solver::fromVariant(QString::number(id)) == solver);
            QCOMPARE(Solver::typeToMarcDatFileId(code(type)), row.deckId);
            const int read = Solver::typeFromMarcDatFileId(row.deckId);
            QCOMPARE(read, solver.isSparseDirect() ? int(PardisoParallelDirect) : type);
            for (const Row& other : rows)
                QCOMPARE((solver.*other.test)(), &other == &row);
            ++type;
        }
        for (int id : {-2, 9, 42, 256})
            QVERIFY(Solver::fromVariant(id).isPardisoParallelDirect());
        QCOMPARE(log.texts(), QStringList());
    }

    void unknownDeckIdsBecomePardiso()
    {
        LogCapture log;
        QCOMPARE(Solver::typeFromMarcDatFileId(4), PardisoParallelDirect);
        QCOMPARE(Solver::typeFromMarcDatFileId(-2), PardisoParallelDirect);
        QCOMPARE(Solver::typeToMarcDatFileId(code(255)), 11);
        const QString read = S("unknown solver type - returning solver type for pardiso parallel direct.");
        const QString written =
            S("unknown solver type - returning solver Marc DAT id for pardiso parallel direct.");
        QCOMPARE(log.texts(), QStringList({read, read, written}));
        QVERIFY(log.contains(kdLog::Fault, kdLog::FailedAssert, read));
    }

    void namesAndChoices()
    {
        QCOMPARE(solverName(PardisoParallelDirect), S("Pardiso Direct Sparse"));
        QCOMPARE(solverName(code(9)), QString());
        QString forming;
        for (const bool isRestricted : {true, false})
            for (const e_SolverType type : solverTypesForForming(isRestricted))
                forming += QString::number(type);
        QCOMPARE(forming, S("821821547"));
        QCOMPARE(solverIdName(FiniteElement), S("kdMarc (Finite elements)"));
        QCOMPARE(solverIdName(static_cast<e_SolverId>(2)), QString());
        QCOMPARE(ddmIslandDetectionName(static_cast<e_DDMIslandDetection>(2)), S("Unknown"));
        QCOMPARE(ddmIslandDetectionName(DDMIslandContactDetection), S("Contact detection during DDM"));
        QCOMPARE(getOutsourceMeshArcFileName(S("Gesenk-Ä %1")), S("mesh_gesenk-ä %1.arc"));
        QCOMPARE(extensions(true).join(QLatin1Char(' ')), S(".cur .cnt .dat .info .log .out .sts .sum"));
    }

    void ddmMethods()
    {
        QString found;
        for (int number : {-1, 10, 11, 13, 14, 16, 17, 18}) {
            const auto method = static_cast<e_DDMMethod>(number);
            found += S("%1 %2").arg(number).arg(ddmMethodName(method))
                + (isDdmMethodValidForWelding(method) ? S(", welding") : QString())
                + (ddmMethodhasDirection(method) ? S(", direction\n") : S("\n"));
        }
        QCOMPARE(found,
                 S("-1 Unknown\n"
                   "10 Unknown\n"
                   "11 Metis best, welding\n"
                   "13 Metis node-based, welding\n"
                   "14 Vector, welding, direction\n"
                   "16 Angular, welding, direction\n"
                   "17 Recursive coordinate bisection, welding\n"
                   "18 Unknown\n"));
    }

    void procedures()
    {
        const Procedure fullK = Procedure::fromVariant(1);
        QCOMPARE(Procedure().viewName(), S("Solution procedure DI"));
        QCOMPARE(fullK.viewName(), S("Solution procedure FullK"));
        QCOMPARE(fullK.toVariant(), QVariant(1));
        for (int id : {-1, 0, 2, 257})
            QCOMPARE(Procedure::typeFromId(id), Procedure::SolutionProcedureDI);
        QString xml;
        QXmlStreamWriter writer(&xml);
        fullK.writeXML(writer);
        writer.writeEmptyElement(S("next"));
        QCOMPARE(xml, S("<matrix_solver_solution_procedure_type value=\"1\"/><next"));
    }

    // "own" stands for the element's name.
    void readProcedure_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::addColumn<int>("before");
        QTest::addColumn<int>("after");
        QTest::addColumn<QString>("failedElement");
        const QString own = Procedure::xmlElementName();
        const auto row = [&own](const char* name, const char* xml, int before, int after,
                                const QString& failed = QString()) {
            kdqRow(name, QString::fromLatin1(xml).replace(S("own"), own), before, after, failed);
        };
        row("attribute", R"(<own value="1"/>)", 0, 1);
        row("attribute wins over text", R"(<own value="0">1</own>)", 1, 0);
        row("text", "<own> 1 </own>", 0, 1);
        row("other element", R"(<procedure value="0">1</procedure>)", 0, 1);
        row("other integer", R"(<own value="7"/>)", 1, 0);
        row("no integer", R"(<own value="full"/>)", 1, 1, own);
        row("empty text", "<own/>", 1, 1, own);
        row("too large", R"(<own value="4294967297"/>)", 0, 0, own);
        row("child in the text", "<procedure><one/>1</procedure>", 0, 0, S("procedure"));
        row("cut off", "<own>", 1, 1, own);
    }

    void readProcedure()
    {
        QFETCH(QString, xml);
        QFETCH(int, before);
        QFETCH(QString, failedElement);
        QXmlStreamReader reader(xml);
        reader.readNextStartElement();
        Procedure procedure(Procedure::typeFromId(before));
        QCOMPARE(procedure.readXML(reader), failedElement.isEmpty());
        QTEST(procedure.typeToId(), "after");
        if (!failedElement.isEmpty())
            QCOMPARE(reader.errorString(),
                     S("Failed to read the value of the XML element: %1").arg(failedElement));
        else
            QVERIFY(reader.isEndElement() && !reader.hasError());
    }
};

KDQ_TEST_MAIN(TestSolverTypes)
#include "tst_solvertypes.moc"
