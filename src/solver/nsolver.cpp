#include "nsolver.h"

#include <QCoreApplication>

namespace nSolver {

namespace {

const char* const solverNames[] = {
    QT_TRANSLATE_NOOP("nSolver", "Sparse Direct Solver"),
    QT_TRANSLATE_NOOP("nSolver", "Multifrontal Sparse"),
    QT_TRANSLATE_NOOP("nSolver", "Pardiso Direct Sparse"),
    QT_TRANSLATE_NOOP("nSolver", "CASI Iterative Solver"),
    QT_TRANSLATE_NOOP("nSolver", "Iterative Sparse"),
    QT_TRANSLATE_NOOP("nSolver", "MUMPS Parallel Direct"),
    QT_TRANSLATE_NOOP("nSolver", "Direct Profile"),
    QT_TRANSLATE_NOOP("nSolver", "Mixed Direct/Iterative"),
    QT_TRANSLATE_NOOP("nSolver", "Automatic"),
};

const char* const ddmMethodNames[] = {
    QT_TRANSLATE_NOOP("nSolver", "Metis best"),
    QT_TRANSLATE_NOOP("nSolver", "Metis element-based"),
    QT_TRANSLATE_NOOP("nSolver", "Metis node-based"),
    QT_TRANSLATE_NOOP("nSolver", "Vector"),
    QT_TRANSLATE_NOOP("nSolver", "Radial"),
    QT_TRANSLATE_NOOP("nSolver", "Angular"),
    QT_TRANSLATE_NOOP("nSolver", "Recursive coordinate bisection"),
};

QString translated(const char* text)
{
    return QCoreApplication::translate("nSolver", text);
}

QString unknownName()
{
    return translated(QT_TRANSLATE_NOOP("nSolver", "Unknown"));
}

} // namespace

QString solverName(e_SolverType type)
{
    return type <= AutomaticSolver ? translated(solverNames[type]) : QString();
}

QString solverNameSparseDirect()
{
    return solverName(SparseDirect);
}

QString solverNameMultifrontalDirect()
{
    return solverName(MultifrontalDirect);
}

QString solverNamePardisoParallelDirect()
{
    return solverName(PardisoParallelDirect);
}

QString solverNameCasiIterative()
{
    return solverName(CasiIterative);
}

QString solverNameIterativeSparse()
{
    return solverName(IterativeSparse);
}

QString solverNameMumpsParallelDirect()
{
    return solverName(MumpsParallelDirect);
}

QString solverNameDirectProfile()
{
    return solverName(DirectProfile);
}

QString solverNameMixedDirectIterative()
{
    return solverName(MixedDirectIterative);
}

QString solverNameAutomatic()
{
    return solverName(AutomaticSolver);
}

QString solverIdName(e_SolverId id)
{
    switch (id) {
    case FiniteVolume:
        return translated(QT_TRANSLATE_NOOP("nSolver", "kdDytran (Finite volume)"));
    case FiniteElement:
        return translated(QT_TRANSLATE_NOOP("nSolver", "kdMarc (Finite elements)"));
    }
    return QString();
}

QList<e_SolverType> solverTypes()
{
    return {AutomaticSolver, PardisoParallelDirect, MultifrontalDirect, MumpsParallelDirect, IterativeSparse,
            SparseDirect,    CasiIterative,         DirectProfile,      MixedDirectIterative};
}

QList<e_SolverType> solverTypesForWelding()
{
    return {PardisoParallelDirect, MultifrontalDirect, MumpsParallelDirect, IterativeSparse};
}

QList<e_SolverType> solverTypesForAdditive()
{
    return {PardisoParallelDirect, MumpsParallelDirect, IterativeSparse};
}

QList<e_SolverType> solverTypesForForming(bool restricted)
{
    QList<e_SolverType> result{AutomaticSolver, PardisoParallelDirect, MultifrontalDirect};
    if (!restricted)
        result << MumpsParallelDirect << IterativeSparse << MixedDirectIterative;
    return result;
}

double defaultToleranceForSolver()
{
    return 1e-5;
}

double defaultToleranceForAutomaticSolver()
{
    return 1e-8;
}

QString ddmMethodName(e_DDMMethod method)
{
    if (method < DDMMetisBest || method > DDMRecursiveCoordinateBisection)
        return unknownName();
    return translated(ddmMethodNames[method - DDMMetisBest]);
}

bool ddmMethodhasDirection(e_DDMMethod method)
{
    return method >= DDMVector && method <= DDMAngular;
}

bool isDdmMethodValidForWelding(e_DDMMethod method)
{
    return method >= DDMMetisBest && method <= DDMRecursiveCoordinateBisection;
}

e_DDMMethod defaultDdmMethodWelding()
{
    return DDMRecursiveCoordinateBisection;
}

e_DDMMethod defaultDdmMethodForming()
{
    return DDMMetisBest;
}

e_DDMMethod defaultDdmMethodAdditive()
{
    return DDMVector;
}

e_DDMRotationAxis defaultDdmRotationAxisWelding()
{
    return DDMRotationAxisX;
}

e_DDMRotationAxis defaultDdmRotationAxisForming()
{
    return DDMRotationAxisZ;
}

QString ddmIslandDetectionName(e_DDMIslandDetection method)
{
    switch (method) {
    case DDMIslandAttemptRemoval:
        return translated(QT_TRANSLATE_NOOP("nSolver", "Attempt removal"));
    case DDMIslandContactDetection:
        return translated(QT_TRANSLATE_NOOP("nSolver", "Contact detection during DDM"));
    }
    return unknownName();
}

e_DDMIslandDetection defaultIslandDetectionMethod()
{
    return DDMIslandAttemptRemoval;
}

QString guiInfoFileSuffix()
{
    return QStringLiteral("_gui");
}

QString cleanBatchNameKaldoranForming()
{
    return QStringLiteral("cleankd.bat");
}

QString runBatchNameKaldoranForming()
{
    return QStringLiteral("runkd.bat");
}

QString runBatchNameKaldoranWelding()
{
    return QStringLiteral("run.bat");
}

QString runBatchNameKaldoranAm()
{
    return QStringLiteral("run.bat");
}

QString kdMarcRunBatchFileName()
{
    return QStringLiteral("run_kdMarc.bat");
}

QString outsourceArcMeshPrefix()
{
    return QStringLiteral("MESH_");
}

QString getOutsourceMeshArcFileName(const QString& name)
{
    return QString(outsourceArcMeshPrefix() + name + QLatin1String(".ARC")).toLower();
}

QString initialFlowMeshArcFileName()
{
    return QStringLiteral("initialFlowMesh.arc");
}

QStringList extensions(bool withDot)
{
    const QString start = withDot ? QStringLiteral(".") : QString();
    QStringList result;
    for (const char* extension : {"cur", "cnt", "dat", "info", "log", "out", "sts", "sum"})
        result.append(start + QLatin1String(extension));
    return result;
}

} // namespace nSolver
