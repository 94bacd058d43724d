#include "cohtcasehardeningstageprop.h"

coHtCaseHardeningStageProp::coHtCaseHardeningStageProp(const Information& information)
    : coHeatTreatmentStage(information)
{
}

std::unique_ptr<coHeatTreatmentStage> coHtCaseHardeningStageProp::clone() const
{
    return std::make_unique<coHtCaseHardeningStageProp>(*this);
}

bool coHtCaseHardeningStageProp::ensureTableCopiedToProject(coPredefinedTableListModel* model) const
{
    const bool areOthersCopied = coHeatTreatmentStage::ensureTableCopiedToProject(model);
    const bool isCoefficientCopied = m_massTransferCoefficient.ensureTableCopiedToProject(model);
    return m_carbonPotential.ensureTableCopiedToProject(model) && isCoefficientCopied && areOthersCopied;
}

bool coHtCaseHardeningStageProp::isEqual(const coHeatTreatmentStage& other) const
{
    const auto& stage = static_cast<const coHtCaseHardeningStageProp&>(other);
    return coHeatTreatmentStage::isEqual(other) && m_timeStepLength == stage.m_timeStepLength
        && m_massTransferCoefficient == stage.m_massTransferCoefficient
        && m_carbonPotential == stage.m_carbonPotential;
}
