#include "kdqtest.h"

#include <kdQCore/nSolver>

using namespace nSolver;

namespace {

QList<int> codes(const QList<e_SolverType>& types)
{
    QList<int> result;
    for (e_SolverType type : types)
        result.append(type);
    return result;
}

} // namespace

class TestNSolver : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void namesOfSingleSolvers()
    {
        QString (*const names[])() = {
            solverNameSparseDirect,  solverNameMultifrontalDirect,   solverNamePardisoParallelDirect,
            solverNameCasiIterative, solverNameIterativeSparse,      solverNameMumpsParallelDirect,
            solverNameDirectProfile, solverNameMixedDirectIterative, solverNameAutomatic};
        for (int type = 0; type < 9; ++type)
            QCOMPARE(names[type](), solverName(static_cast<e_SolverType>(type)));
        for (int type : {9, 127, 255})
            QCOMPARE(solverName(static_cast<e_SolverType>(type)), QString());
        QCOMPARE(solverIdName(static_cast<e_SolverId>(0)), QStringLiteral("kdDytran (Finite volume)"));
        QCOMPARE(solverIdName(static_cast<e_SolverId>(1)), QStringLiteral("kdMarc (Finite elements)"));
        QCOMPARE(solverIdName(static_cast<e_SolverId>(2)), QString());
        QCOMPARE(sizeof(e_SolverType), size_t(1));
    }

    void choiceLists()
    {
        QCOMPARE(codes(solverTypes()), QList<int>({8, 2, 1, 5, 4, 0, 3, 6, 7}));
        QCOMPARE(codes(solverTypesForWelding()), QList<int>({2, 1, 5, 4}));
        QCOMPARE(codes(solverTypesForAdditive()), QList<int>({2, 5, 4}));
        QCOMPARE(codes(solverTypesForForming(true)), QList<int>({8, 2, 1}));
        QCOMPARE(codes(solverTypesForForming(false)), QList<int>({8, 2, 1, 5, 4, 7}));
    }

    void ddmMethods_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("known");
        QTest::addColumn<bool>("hasDirection");
        const char* const names[] = {
            "Metis best", "Metis element-based",           "Metis node-based", "Vector", "Radial",
            "Angular",    "Recursive coordinate bisection"};
        for (int i = 0; i < 7; ++i)
            QTest::newRow(names[i]) << 11 + i << QString::fromLatin1(names[i]) << true << (i >= 3 && i <= 5);
        for (int code : {std::numeric_limits<int>::min(), -1, 0, 10, 18, 43, std::numeric_limits<int>::max()})
            QTest::addRow("%d", code) << code << QStringLiteral("Unknown") << false << false;
    }

    void ddmMethods()
    {
        QFETCH(int, code);
        const auto method = static_cast<e_DDMMethod>(code);
        QTEST(ddmMethodName(method), "name");
        QTEST(isDdmMethodValidForWelding(method), "known");
        QTEST(ddmMethodhasDirection(method), "hasDirection");
    }

    void islandDetection()
    {
        const QStringList names{QStringLiteral("Unknown"), QStringLiteral("Attempt removal"),
                                QStringLiteral("Unknown"), QStringLiteral("Contact detection during DDM"),
                                QStringLiteral("Unknown")};
        for (int code = 0; code < names.size(); ++code)
            QCOMPARE(ddmIslandDetectionName(static_cast<e_DDMIslandDetection>(code)), names.at(code));
    }

    void defaults()
    {
        QCOMPARE(int(defaultDdmMethodWelding()), 17);
        QCOMPARE(int(defaultDdmMethodForming()), 11);
        QCOMPARE(int(defaultDdmMethodAdditive()), 14);
        QCOMPARE(int(defaultDdmRotationAxisWelding()), 1);
        QCOMPARE(int(defaultDdmRotationAxisForming()), 3);
        QCOMPARE(int(defaultIslandDetectionMethod()), 1);
        QCOMPARE(defaultToleranceForSolver(), 1e-5);
        QCOMPARE(defaultToleranceForAutomaticSolver(), 1e-8);
    }

    void fileNames()
    {
        QCOMPARE(
            QStringList({guiInfoFileSuffix(), cleanBatchNameKaldoranForming(), runBatchNameKaldoranForming(),
                         runBatchNameKaldoranWelding(), runBatchNameKaldoranAm(), kdMarcRunBatchFileName(),
                         outsourceArcMeshPrefix(), initialFlowMeshArcFileName()})
                .join(QLatin1Char(' ')),
            QStringLiteral(
                "_gui cleankd.bat runkd.bat run.bat run.bat run_kdMarc.bat MESH_ initialFlowMesh.arc"));
        QCOMPARE(getOutsourceMeshArcFileName(QStringLiteral("Die")), QStringLiteral("mesh_die.arc"));
        QCOMPARE(getOutsourceMeshArcFileName(QString::fromUtf8("Gesenk-Ä %1")),
                 QString::fromUtf8("mesh_gesenk-ä %1.arc"));
        QCOMPARE(extensions(false).join(QLatin1Char(' ')),
                 QStringLiteral("cur cnt dat info log out sts sum"));
        QCOMPARE(extensions(true).join(QLatin1Char(' ')),
                 QStringLiteral(".cur .cnt .dat .info .log .out .sts .sum"));
    }
};

KDQ_TEST_MAIN(TestNSolver)
#include "tst_nsolver.moc"
