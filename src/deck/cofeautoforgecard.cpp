#include "cofeautoforgecard.h"

#include "cardlines.h"

bool coFeAutoforgeCard::write(CFEDatLineWriter& writer) const
{
    CardLines(writer)
        .sectionKey("autoforge")
        .ints({m_is3d ? 2 : 1, m_materialModel, 2, int(m_optionalLicenseFeatures), 0, m_specificProcType,
               m_suppressHeatGeneration ? 1 : 0, m_kinFileFlag, m_removeRigidModesFlag, m_kaldoranVersion,
               m_skipHeatTransferConvergenceCheck ? 0 : 1, m_contactTolFlag})
        .end();
    return true;
}

coFeAutoforgeCard::~coFeAutoforgeCard() = default;
