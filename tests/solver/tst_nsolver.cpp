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
    void names()
    {
        QCOMPARE(solverName(PardisoParallelDirect), solverNamePardisoParallelDirect());
        QCOMPARE(solverName(static_cast<e_SolverType>(9)), QString());
        QCOMPARE(solverIdName(static_cast<e_SolverId>(1)), QStringLiteral("kdMarc (Finite elements)"));
        QCOMPARE(solverIdName(static_cast<e_SolverId>(2)), QString());
        QCOMPARE(ddmIslandDetectionName(static_cast<e_DDMIslandDetection>(2)), QStringLiteral("Unknown"));
        QCOMPARE(ddmIslandDetectionName(static_cast<e_DDMIslandDetection>(3)),
                 QStringLiteral("Contact detection during DDM"));
    }

    void choiceLists()
    {
        QCOMPARE(codes(solverTypesForForming(true)), QList<int>({8, 2, 1}));
        QCOMPARE(codes(solverTypesForForming(false)), QList<int>({8, 2, 1, 5, 4, 7}));
    }

    void ddmMethods_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("known");
        QTest::addColumn<bool>("hasDirection");
        for (int code : {10, 18, -1})
            QTest::addRow("%d", code) << code << QStringLiteral("Unknown") << false << false;
        QTest::newRow("first") << 11 << QStringLiteral("Metis best") << true << false;
        QTest::newRow("first with a direction") << 14 << QStringLiteral("Vector") << true << true;
        QTest::newRow("last with a direction") << 16 << QStringLiteral("Angular") << true << true;
        QTest::newRow("last") << 17 << QStringLiteral("Recursive coordinate bisection") << true << false;
    }

    void ddmMethods()
    {
        QFETCH(int, code);
        const auto method = static_cast<e_DDMMethod>(code);
        QTEST(ddmMethodName(method), "name");
        QTEST(isDdmMethodValidForWelding(method), "known");
        QTEST(ddmMethodhasDirection(method), "hasDirection");
    }

    void fileNames()
    {
        QCOMPARE(getOutsourceMeshArcFileName(QStringLiteral("Die")), QStringLiteral("mesh_die.arc"));
        QCOMPARE(getOutsourceMeshArcFileName(QString::fromUtf8("Gesenk-Ä %1")),
                 QString::fromUtf8("mesh_gesenk-ä %1.arc"));
        QCOMPARE(extensions(true).join(QLatin1Char(' ')),
                 QStringLiteral(".cur .cnt .dat .info .log .out .sts .sum"));
    }
};

KDQ_TEST_MAIN(TestNSolver)
#include "tst_nsolver.moc"
