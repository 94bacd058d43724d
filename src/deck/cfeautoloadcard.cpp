#include "cfeautoloadcard.h"

#include "cardlines.h"

#include <kdQCore/kdLog>

bool cFeAutoLoadCard::write(CFEDatLineWriter& writer) const
{
    logImplausibleValues();
    CardLines lines(writer);
    lines.keywordLine("auto load");
    lines.ints({m_timeSteps, 0, 10, m_maxForcedRemeshingNo, m_cutBackStepNo})
        .reals({m_totalTime, m_totalTravelDist})
        .end();
    if (m_timeSteps == 0)
        lines.keywordLine("time step").reals({1.0}).end();
    return true;
}

cFeAutoLoadCard::~cFeAutoLoadCard() = default;

void cFeAutoLoadCard::logImplausibleValues() const
{
    // Negated so that NaN is found too.
    if (!(m_totalTime > 0))
        KD_LOG(kdLog::Fault, kdLog::WriteDat, QStringLiteral("Total time needs to be > 0."));
    if (m_timeSteps <= 0 || !(m_totalTravelDist > 0))
        KD_LOG(kdLog::Fault, kdLog::WriteDat, QStringLiteral("Total stroke needs to be > 0."));
}
