#pragma once

#include <kdqcore_export.h>

#include <QList>
#include <QString>
#include <QStringList>

/// Names, choice lists, defaults and file names around the matrix solvers.
///
/// An application offers one of the choice lists to its user, shows each entry by solverName(), and stores
/// and writes the choice through coMarcSolverType, which converts between the numberings:
///
/// \code
/// for (nSolver::e_SolverType type : nSolver::solverTypesForWelding())
///     comboBox->addItem(nSolver::solverName(type), coMarcSolverType(type).toVariant());
/// \endcode
///
/// Every function takes any number for its enumeration, cast from outside or not, and has an answer for it.
/// Texts for users are translated in the context "nSolver". Thread-safe.
namespace nSolver {

/// The matrix solvers, as projects store them.
enum e_SolverType : unsigned char {
    SparseDirect = 0,
    MultifrontalDirect = 1,
    PardisoParallelDirect = 2,
    CasiIterative = 3,
    IterativeSparse = 4,
    MumpsParallelDirect = 5,
    DirectProfile = 6,
    MixedDirectIterative = 7,
    AutomaticSolver = 8 ///< the solver chooses by the size and kind of the model
};

/// The solver product.
enum e_SolverId : int { FiniteVolume = 0, FiniteElement = 1 };

/// How the model is cut into domains for a parallel run.
enum e_DDMMethod : int {
    DDMMetisBest = 11,
    DDMMetisElementBased = 12,
    DDMMetisNodeBased = 13,
    DDMVector = 14,
    DDMRadial = 15,
    DDMAngular = 16,
    DDMRecursiveCoordinateBisection = 17
};

/// The axis of the radial and angular methods; the number counts the global axes from 1.
enum e_DDMRotationAxis : int { DDMRotationAxisX = 1, DDMRotationAxisY = 2, DDMRotationAxisZ = 3 };

/// What happens to a domain that falls into unconnected pieces.
enum e_DDMIslandDetection : int { DDMIslandAttemptRemoval = 1, DDMIslandContactDetection = 3 };

/// \name Display names
/// Empty for a code that is not in the enumeration.
/// @{
KDQCORE_EXPORT QString solverName(e_SolverType type);
KDQCORE_EXPORT QString solverNameSparseDirect();
KDQCORE_EXPORT QString solverNameMultifrontalDirect();
KDQCORE_EXPORT QString solverNamePardisoParallelDirect();
KDQCORE_EXPORT QString solverNameCasiIterative();
KDQCORE_EXPORT QString solverNameIterativeSparse();
KDQCORE_EXPORT QString solverNameMumpsParallelDirect();
KDQCORE_EXPORT QString solverNameDirectProfile();
KDQCORE_EXPORT QString solverNameMixedDirectIterative();
KDQCORE_EXPORT QString solverNameAutomatic();
KDQCORE_EXPORT QString solverIdName(e_SolverId id);
/// @}

/// \name Choice lists
/// In the order shown to the user.
/// @{
KDQCORE_EXPORT QList<e_SolverType> solverTypes();
KDQCORE_EXPORT QList<e_SolverType> solverTypesForWelding();
KDQCORE_EXPORT QList<e_SolverType> solverTypesForAdditive();
/// \a restricted leaves only the solvers that every forming process can use.
KDQCORE_EXPORT QList<e_SolverType> solverTypesForForming(bool restricted);
/// @}

/// Relative convergence tolerance of the iterative solvers.
KDQCORE_EXPORT double defaultToleranceForSolver();
/// The same where the solver is chosen automatically.
KDQCORE_EXPORT double defaultToleranceForAutomaticSolver();

/// \name Domain decomposition
/// A name is "Unknown" for a code that is not in the enumeration.
/// @{
KDQCORE_EXPORT QString ddmMethodName(e_DDMMethod method);
/// True for the methods that cut along a direction or around an axis, which the user has to give.
KDQCORE_EXPORT bool ddmMethodhasDirection(e_DDMMethod method);
KDQCORE_EXPORT bool isDdmMethodValidForWelding(e_DDMMethod method);
KDQCORE_EXPORT e_DDMMethod defaultDdmMethodWelding();
KDQCORE_EXPORT e_DDMMethod defaultDdmMethodForming();
KDQCORE_EXPORT e_DDMMethod defaultDdmMethodAdditive();
KDQCORE_EXPORT e_DDMRotationAxis defaultDdmRotationAxisWelding();
KDQCORE_EXPORT e_DDMRotationAxis defaultDdmRotationAxisForming();
KDQCORE_EXPORT QString ddmIslandDetectionName(e_DDMIslandDetection method);
KDQCORE_EXPORT e_DDMIslandDetection defaultIslandDetectionMethod();
/// @}

/// \name File names
/// @{
/// Ends the base name of the file in which a run leaves what the user interface shows about it.
KDQCORE_EXPORT QString guiInfoFileSuffix();
KDQCORE_EXPORT QString cleanBatchNameKaldoranForming();
KDQCORE_EXPORT QString runBatchNameKaldoranForming();
KDQCORE_EXPORT QString runBatchNameKaldoranWelding();
KDQCORE_EXPORT QString runBatchNameKaldoranAm();
KDQCORE_EXPORT QString kdMarcRunBatchFileName();
KDQCORE_EXPORT QString outsourceArcMeshPrefix();
/// File of the mesh of component \a name, all in lower case: "mesh_die.arc" for "Die".
KDQCORE_EXPORT QString getOutsourceMeshArcFileName(const QString& name);
KDQCORE_EXPORT QString initialFlowMeshArcFileName();
/// Extensions of the files that belong to one run of the solver, "dat" or ".dat" and so on.
KDQCORE_EXPORT QStringList extensions(bool withDot);
/// @}

} // namespace nSolver
