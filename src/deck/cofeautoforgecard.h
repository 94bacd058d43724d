#pragma once

#include "cfeabstractdatcard.h"
#include "nmarc.h"

/// The process parameter line: what kind of process the deck simulates and which variants of the solver's
/// process features it uses.
///
/// \code
/// coFeAutoforgeCard card;
/// card.setIs3d(true);
/// card.setRemoveRigidModesFlag(rigidModes);
/// solverCard.setAutoforgeField10Value(card.field10RemoveRigidModesFlag());
/// writer.writeCard(card);
/// \endcode
///
/// Material models, process types and flags are the solver's codes and are passed through.
/// Not thread-safe. Owns all its data.
class KDQCORE_EXPORT coFeAutoforgeCard : public cFeAbstractDatCard {
public:
    /// Any int is a legal value of these.
    enum e_KinFileFlag : int { KinFileDefault = 0 };
    enum e_RigidModesFlag : int { RigidModesDefault = 0 };
    enum e_KaldoranVersion : int { KaldoranVersion14 = 14 };

    /// Always returns true: a piece that could not be written shows in the writer's next operation and in its
    /// flush().
    bool write(CFEDatLineWriter& writer) const override;
    ~coFeAutoforgeCard() override;

    bool is3d() const { return m_is3d; }
    void setIs3d(bool is3d) { m_is3d = is3d; }

    int materialModel() const { return m_materialModel; }
    void setMaterialModel(int materialModel) { m_materialModel = materialModel; }

    QFlags<nMarc::e_LicFlag> optionalLicenseFeatures() const { return m_optionalLicenseFeatures; }
    void setOptionalLicenseFeatures(QFlags<nMarc::e_LicFlag> features)
    {
        m_optionalLicenseFeatures = features;
    }

    int specificProcType() const { return m_specificProcType; }
    void setSpecificProcType(int type) { m_specificProcType = type; }

    bool suppressHeatGeneration() const { return m_suppressHeatGeneration; }
    void setSuppressHeatGeneration(bool suppress) { m_suppressHeatGeneration = suppress; }

    e_KinFileFlag kinFileFlag() const { return m_kinFileFlag; }
    void setKinFileFlag(e_KinFileFlag flag) { m_kinFileFlag = flag; }

    /// The line's tenth field where the key counts as the first; coFeSolverCard takes it too.
    e_RigidModesFlag field10RemoveRigidModesFlag() const { return m_removeRigidModesFlag; }
    void setRemoveRigidModesFlag(e_RigidModesFlag flag) { m_removeRigidModesFlag = flag; }

    e_KaldoranVersion kaldoranVersion() const { return m_kaldoranVersion; }
    void setKaldoranVersion(e_KaldoranVersion version) { m_kaldoranVersion = version; }

    bool skipHeatTransferConvergenceCheck() const { return m_skipHeatTransferConvergenceCheck; }
    void setSkipHeatTransferConvergenceCheck(bool skip) { m_skipHeatTransferConvergenceCheck = skip; }

    nMarc::e_AutoForgeContactToleranceFlag contactTolFlag() const { return m_contactTolFlag; }
    void setContactTolFlag(nMarc::e_AutoForgeContactToleranceFlag flag) { m_contactTolFlag = flag; }

private:
    bool m_is3d = false;
    int m_materialModel = 0;
    QFlags<nMarc::e_LicFlag> m_optionalLicenseFeatures;
    int m_specificProcType = 0;
    bool m_suppressHeatGeneration = false;
    e_KinFileFlag m_kinFileFlag = KinFileDefault;
    e_RigidModesFlag m_removeRigidModesFlag = RigidModesDefault;
    e_KaldoranVersion m_kaldoranVersion = KaldoranVersion14;
    bool m_skipHeatTransferConvergenceCheck = true;
    nMarc::e_AutoForgeContactToleranceFlag m_contactTolFlag = nMarc::DefaultContactTolerance;
};
