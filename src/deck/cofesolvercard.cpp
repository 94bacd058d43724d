#include "cofesolvercard.h"

#include "cardlines.h"

#include <kdQCore/kdLog>

namespace {

// One bit for each deck solver id.
constexpr unsigned solversForNonSymmetricSystems = 6401;
constexpr unsigned solversWithOptimisation = 7941;

bool isIn(unsigned mask, int deckSolverId)
{
    return deckSolverId >= 0 && deckSolverId < 32 && ((mask >> deckSolverId) & 1U) != 0;
}

} // namespace

coFeSolverCard::coFeSolverCard(const coMarcSolverType& solverType) : m_solverType(solverType) { }

coFeSolverCard::~coFeSolverCard() = default;

bool coFeSolverCard::write(CFEDatLineWriter& writer) const
{
    const int deckSolverId = m_solverType.typeToMarcDatFileId();
    CardLines lines(writer);
    lines.keywordLine(m_isUpperCase ? "SOLVER" : "solver");
    lines.add(writeDataLine(writer, deckSolverId));
    if (m_solverType.isIterativeSparse() || m_solverType.isMixedDirectIterative())
        lines.add(writeIterationLines(writer));
    if (hasOptimisation(deckSolverId))
        lines.add(writeOptimisation(writer));
    return lines.ok();
}

bool coFeSolverCard::isSolverTypeSupportingSolvingNonSymmetricSystem(int deckSolverId)
{
    return isIn(solversForNonSymmetricSystems, deckSolverId);
}

bool coFeSolverCard::hasOptimisation(int deckSolverId)
{
    return isIn(solversWithOptimisation, deckSolverId);
}

QString coFeSolverCard::getSolverTypeUsingComment() const
{
    const int deckSolverId = m_solverType.typeToMarcDatFileId();
    switch (deckSolverId) {
    case 0:
        return QStringLiteral("Using profile direct solver (0)");
    case 2:
        return QStringLiteral("Using sparse iterative solver (2)");
    case 8:
        return QStringLiteral("Using multifrontal direct sparse solver (8)");
    case 10:
        return QStringLiteral("Using mixed direct/iterative solver (10)");
    case 11:
        return QStringLiteral("Using pardiso direct sparse (11)");
    case 12:
        return QStringLiteral("Using MUMPs parallel direct (12)");
    default:
        break;
    }
    QString text = QStringLiteral("Using an unknown solver (%1)").arg(deckSolverId);
    KD_LOG_FAILED_ASSERT(text);
    return text;
}

bool coFeSolverCard::writeDataLine(CFEDatLineWriter& writer, int deckSolverId) const
{
    const bool isNonSymmetric =
        m_isNonSymmetricSystem && isSolverTypeSupportingSolvingNonSymmetricSystem(deckSolverId);
    const bool isFullK = m_isSolutionProcedureFullK && m_solverType.isMultifrontalDirect();
    CardLines lines(writer);
    lines.ints({deckSolverId, isNonSymmetric ? 1 : 0, 0, isFullK ? 1 : 0, 0,
                m_solverType.isCasiIterative() ? 2 : 0, 0, 0});
    if (m_solverType.isCasiIterative())
        lines.ints({0, 0, 0, 0, 0, 0, 0, 1});
    else if (m_solverType.isPardisoParallelDirect() && m_isReproducibilityEnabled)
        lines.ints({0, 0, 0, 0, 0, reproducibilityRigidModesField(), 1, 0});
    return lines.end().ok();
}

bool coFeSolverCard::writeIterationLines(CFEDatLineWriter& writer) const
{
    return CardLines(writer)
        .ints({m_maxIterations, 1, m_solverType.isIterativeSparse() ? 5 : 0})
        .end()
        .reals({m_tolerance})
        .end()
        .ok();
}

bool coFeSolverCard::writeOptimisation(CFEDatLineWriter& writer) const
{
    return CardLines(writer)
        .sectionKey(m_isUpperCase ? "OPTIMIZE" : "optimize")
        .ints({m_solverType.isIterativeSparse() ? 9 : 11})
        .end()
        .ok();
}

int coFeSolverCard::reproducibilityRigidModesField() const
{
    switch (m_autoforgeField10Value) {
    case 0:
        return 1;
    case 1:
        return 0;
    case 2:
        return 2;
    default:
        return -1;
    }
}
