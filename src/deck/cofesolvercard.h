#pragma once

#include "cfeabstractdatcard.h"

#include <kdQCore/coMarcSolverType>
#include <kdQCore/nSolver>

#include <QString>

/// The solver option: which matrix solver the run uses and how, with the bandwidth optimisation that suits
/// it.
///
/// \code
/// const coFeSolverCard card(coMarcSolverType::pardisoParallelDirect());
/// writer.writeCommentLine(card.getSolverTypeUsingComment());
/// writer.writeCard(card);
/// \endcode
///
/// Flags that a solver does not know are not written for it, so they may be set regardless of the solver.
/// Not thread-safe. Owns all its data.
class KDQCORE_EXPORT coFeSolverCard : public cFeAbstractDatCard {
public:
    explicit coFeSolverCard(const coMarcSolverType& solverType = coMarcSolverType());

    bool write(CFEDatLineWriter& writer) const override;
    ~coFeSolverCard() override;

    coMarcSolverType solverType() const { return m_solverType; }
    void setSolverType(const coMarcSolverType& solverType) { m_solverType = solverType; }

    bool isUsingUpperCaseKeywordsEnabled() const { return m_isUpperCase; }
    void enableUsingUpperCaseKeywords(bool enable = true) { m_isUpperCase = enable; }

    bool isNonSymmetricSystem() const { return m_isNonSymmetricSystem; }
    void setIsNonSymmetricSystem(bool isNonSymmetric) { m_isNonSymmetricSystem = isNonSymmetric; }

    /// Written for the multifrontal direct solver only.
    bool isSolutionProcedureFullK() const { return m_isSolutionProcedureFullK; }
    void setIsSolutionProcedureFullK(bool isFullK) { m_isSolutionProcedureFullK = isFullK; }

    /// The same results from run to run on any number of threads. Written for Pardiso only.
    bool isConditionalNumericalReproducibilityEnabled() const { return m_isReproducibilityEnabled; }
    void setIsConditionalNumericalReproducibilityEnabled(bool isEnabled)
    {
        m_isReproducibilityEnabled = isEnabled;
    }

    /// The remove-rigid-modes flag of the deck's coFeAutoforgeCard (its field 10), -1 without one. Written,
    /// translated, together with the reproducibility.
    int autoforgeField10Value() const { return m_autoforgeField10Value; }
    void setAutoforgeField10Value(int value) { m_autoforgeField10Value = value; }

    /// Iterations and tolerance of the iterative sparse and the mixed solver.
    int maxIterations() const { return m_maxIterations; }
    void setMaxIterations(int maxIterations) { m_maxIterations = maxIterations; }
    double tolerance() const { return m_tolerance; }
    void setTolerance(double tolerance) { m_tolerance = tolerance; }

    /// By deck solver id; false for an id that no solver has.
    static bool isSolverTypeSupportingSolvingNonSymmetricSystem(int deckSolverId);

    /// Whether the option ends with an optimisation line.
    static bool hasOptimisation(int deckSolverId);

    /// Text for a comment above the card, in English in every language of the user: decks are compared. A
    /// solver without a text of its own (CASI, automatic) is called unknown and logged as a failed assertion.
    QString getSolverTypeUsingComment() const;

private:
    bool writeDataLine(CFEDatLineWriter& writer, int deckSolverId) const;
    bool writeIterationLines(CFEDatLineWriter& writer) const;
    bool writeOptimisation(CFEDatLineWriter& writer) const;
    int reproducibilityRigidModesField() const;

    coMarcSolverType m_solverType;
    bool m_isUpperCase = false;
    bool m_isNonSymmetricSystem = false;
    bool m_isSolutionProcedureFullK = false;
    bool m_isReproducibilityEnabled = false;
    int m_autoforgeField10Value = -1;
    int m_maxIterations = 1000;
    double m_tolerance = nSolver::defaultToleranceForSolver();
};
