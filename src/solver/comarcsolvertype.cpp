#include "comarcsolvertype.h"

#include <kdQCore/kdLog>

#include <algorithm>
#include <iterator>

namespace {

constexpr int deckIds[] = {11, 8, 11, 9, 2, 12, 0, 10, -1};

const coMarcSolverType& sharedInstance(nSolver::e_SolverType type)
{
    static const coMarcSolverType instances[] = {
        nSolver::SparseDirect,  nSolver::MultifrontalDirect,   nSolver::PardisoParallelDirect,
        nSolver::CasiIterative, nSolver::IterativeSparse,      nSolver::MumpsParallelDirect,
        nSolver::DirectProfile, nSolver::MixedDirectIterative, nSolver::AutomaticSolver,
    };
    return instances[type];
}

} // namespace

const coMarcSolverType& coMarcSolverType::sparseDirect()
{
    return sharedInstance(nSolver::SparseDirect);
}

const coMarcSolverType& coMarcSolverType::multifrontalDirect()
{
    return sharedInstance(nSolver::MultifrontalDirect);
}

const coMarcSolverType& coMarcSolverType::pardisoParallelDirect()
{
    return sharedInstance(nSolver::PardisoParallelDirect);
}

const coMarcSolverType& coMarcSolverType::casiIterative()
{
    return sharedInstance(nSolver::CasiIterative);
}

const coMarcSolverType& coMarcSolverType::iterativeSparse()
{
    return sharedInstance(nSolver::IterativeSparse);
}

const coMarcSolverType& coMarcSolverType::mumpsParallelDirect()
{
    return sharedInstance(nSolver::MumpsParallelDirect);
}

const coMarcSolverType& coMarcSolverType::directProfile()
{
    return sharedInstance(nSolver::DirectProfile);
}

const coMarcSolverType& coMarcSolverType::mixedDirectIterative()
{
    return sharedInstance(nSolver::MixedDirectIterative);
}

const coMarcSolverType& coMarcSolverType::automaticSolver()
{
    return sharedInstance(nSolver::AutomaticSolver);
}

QString coMarcSolverType::viewName() const
{
    return nSolver::solverName(m_type);
}

int coMarcSolverType::typeToId(nSolver::e_SolverType type)
{
    if (type == nSolver::AutomaticSolver)
        return -1;
    return type < nSolver::AutomaticSolver ? type : nSolver::PardisoParallelDirect;
}

nSolver::e_SolverType coMarcSolverType::typeFromId(int id)
{
    if (id == -1)
        return nSolver::AutomaticSolver;
    if (id < nSolver::SparseDirect || id > nSolver::MixedDirectIterative)
        return nSolver::PardisoParallelDirect;
    return static_cast<nSolver::e_SolverType>(id);
}

QVariant coMarcSolverType::toVariant() const
{
    return typeToId();
}

coMarcSolverType coMarcSolverType::fromVariant(const QVariant& variant)
{
    return typeFromId(variant.toInt());
}

int coMarcSolverType::typeToMarcDatFileId(nSolver::e_SolverType type)
{
    if (type <= nSolver::AutomaticSolver)
        return deckIds[type];
    KD_LOG_FAILED_ASSERT(
        QStringLiteral("unknown solver type - returning solver Marc DAT id for pardiso parallel direct."));
    return deckIds[nSolver::PardisoParallelDirect];
}

nSolver::e_SolverType coMarcSolverType::typeFromMarcDatFileId(int id)
{
    // Sparse direct shares Pardiso's deck id and must not be found for it.
    for (int type = nSolver::MultifrontalDirect; type <= nSolver::AutomaticSolver; ++type)
        if (deckIds[type] == id)
            return static_cast<nSolver::e_SolverType>(type);
    KD_LOG_FAILED_ASSERT(
        QStringLiteral("unknown solver type - returning solver type for pardiso parallel direct."));
    return nSolver::PardisoParallelDirect;
}

bool coMarcSolverType::isMarcDatFileId(int id)
{
    return std::find(std::begin(deckIds), std::end(deckIds), id) != std::end(deckIds);
}
