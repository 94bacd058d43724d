#pragma once

#include <kdQCore/nSolver>
#include <kdqcore_export.h>

#include <QString>
#include <QVariant>

/// The choice of a matrix solver, with its three numberings.
///
/// The type's own code (nSolver::e_SolverType) lives in projects, the persistent id (typeToId()) in settings
/// and variants, and the deck id (typeToMarcDatFileId()) in the "solver" option of an input deck. The
/// numberings differ: never store one and read it back as another.
///
/// \code
/// const coMarcSolverType solver = coMarcSolverType::fromVariant(settings.value(key));
/// writer.writeCard(coFeSolverCard(solver));
/// \endcode
///
/// Conversions never fail: what is unknown becomes Pardiso parallel direct. A plain value; the static
/// accessors return shared constant instances and are thread-safe.
class KDQCORE_EXPORT coMarcSolverType {
public:
    /// Pardiso parallel direct, which is also what unknown input becomes.
    coMarcSolverType() = default;
    coMarcSolverType(nSolver::e_SolverType type) : m_type(type) { }

    static const coMarcSolverType& sparseDirect();
    static const coMarcSolverType& multifrontalDirect();
    static const coMarcSolverType& pardisoParallelDirect();
    static const coMarcSolverType& casiIterative();
    static const coMarcSolverType& iterativeSparse();
    static const coMarcSolverType& mumpsParallelDirect();
    static const coMarcSolverType& directProfile();
    static const coMarcSolverType& mixedDirectIterative();
    static const coMarcSolverType& automaticSolver();

    static coMarcSolverType fromSolverType(nSolver::e_SolverType type) { return coMarcSolverType(type); }

    bool isSparseDirect() const { return m_type == nSolver::SparseDirect; }
    bool isMultifrontalDirect() const { return m_type == nSolver::MultifrontalDirect; }
    bool isPardisoParallelDirect() const { return m_type == nSolver::PardisoParallelDirect; }
    bool isCasiIterative() const { return m_type == nSolver::CasiIterative; }
    bool isIterativeSparse() const { return m_type == nSolver::IterativeSparse; }
    bool isMumpsParallelDirect() const { return m_type == nSolver::MumpsParallelDirect; }
    bool isDirectProfile() const { return m_type == nSolver::DirectProfile; }
    bool isMixedDirectIterative() const { return m_type == nSolver::MixedDirectIterative; }
    bool isAutomaticSolver() const { return m_type == nSolver::AutomaticSolver; }

    nSolver::e_SolverType solverType() const { return m_type; }
    void setSolverType(nSolver::e_SolverType type) { m_type = type; }

    /// nSolver::solverName of the type.
    QString viewName() const;

    /// \name Persistent id
    /// The type's code, except that Automatic is -1.
    /// @{
    int typeToId() const { return typeToId(m_type); }
    static int typeToId(nSolver::e_SolverType type);
    static nSolver::e_SolverType typeFromId(int id);
    QVariant toVariant() const;
    /// By the integer that \a variant holds; a variant that is no number counts as 0 (sparse direct).
    static coMarcSolverType fromVariant(const QVariant& variant);
    /// @}

    /// \name Deck id
    /// Not one to one: a deck never asks for the sparse direct solver, which is written as Pardiso's 11 and
    /// so comes back as Pardiso. Unknown input is logged as a failed assertion.
    /// @{
    int typeToMarcDatFileId() const { return typeToMarcDatFileId(m_type); }
    static int typeToMarcDatFileId(nSolver::e_SolverType type);
    static nSolver::e_SolverType typeFromMarcDatFileId(int id);
    /// Whether a solver has this deck id. Ask first where the id comes from a file: an unknown one is logged
    /// as a failed assertion above.
    static bool isMarcDatFileId(int id);
    /// @}

    friend bool operator==(const coMarcSolverType& a, const coMarcSolverType& b)
    {
        return a.m_type == b.m_type;
    }
    friend bool operator!=(const coMarcSolverType& a, const coMarcSolverType& b)
    {
        return a.m_type != b.m_type;
    }

private:
    nSolver::e_SolverType m_type = nSolver::PardisoParallelDirect;
};
