#pragma once

#include "coheattreatmentstage.h"

/// A stage of case hardening: beside the heat it exchanges carbon with the atmosphere.
///
/// The carbon that enters is the mass-transfer coefficient times the difference between the potential of the
/// atmosphere and the carbon content of the surface.
class KDQCORE_EXPORT coHtCaseHardeningStageProp : public coHeatTreatmentStage {
public:
    explicit coHtCaseHardeningStageProp(const Information& information = Information());

    std::unique_ptr<coHeatTreatmentStage> clone() const override;
    bool ensureTableCopiedToProject(coPredefinedTableListModel* model) const override;

    /// Of the diffusion pass.
    kdUnitValue timeStepLength() const { return m_timeStepLength; }
    void setTimeStepLength(const kdUnitValue& length) { m_timeStepLength = length; }
    /// 0 m/s at first: the surface is tight. As a table, over temperature.
    const coTableInput& massTransferCoefficient() const { return m_massTransferCoefficient; }
    void setMassTransferCoefficient(const coTableInput& coefficient)
    {
        m_massTransferCoefficient = coefficient;
    }
    /// Of the atmosphere. As a table, over the time since the stage began.
    const coTableInput& carbonPotential() const { return m_carbonPotential; }
    void setCarbonPotential(const coTableInput& potential) { m_carbonPotential = potential; }

protected:
    bool isEqual(const coHeatTreatmentStage& other) const override;

private:
    kdUnitValue m_timeStepLength{1.0, kdUnitSystem::Time};
    coTableInput m_massTransferCoefficient{kdUnitValue(0.0, kdUnitSystem::MassTransferCoefficient)};
    coTableInput m_carbonPotential{kdUnitValue(0.0, kdUnitSystem::MassFraction)};
};
