#include "coheattreatmentstage.h"

#include "stagetemperature.h"

#include <tuple>
#include <typeinfo>

namespace {

coHeatTreatmentStage::Information neverNull(const coHeatTreatmentStage::Information& information)
{
    static const auto unfilled = coHeatTreatmentStage::Information::create();
    return information.isNull() ? unfilled : information;
}

} // namespace

coHeatTreatmentStage::coHeatTreatmentStage(const Information& information)
    : m_information(neverNull(information)),
      m_terminationRelation(nHeatTreatment::getTerminationRelationFromStage(m_information->type())),
      m_analysisPasses(m_information->defaultAnalysisPasses()),
      m_incrementsBetweenResults(m_information->defaultIncrementsBetweenResults())
{
}

coHeatTreatmentStage::~coHeatTreatmentStage() = default;

std::unique_ptr<coHeatTreatmentStage> coHeatTreatmentStage::clone() const
{
    return std::make_unique<coHeatTreatmentStage>(*this);
}

bool coHeatTreatmentStage::ensureTableCopiedToProject(coPredefinedTableListModel* model) const
{
    const bool isTemperatureCopied = m_temperature.ensureTableCopiedToProject(model);
    return m_htcToEnv.ensureTableCopiedToProject(model) && isTemperatureCopied;
}

kdUnitValue coHeatTreatmentStage::getAvgTempRate(const coHeatTreatmentStage* previous) const
{
    const double duration = nStageTemperature::seconds(*this);
    const std::optional<double> end = nStageTemperature::kelvinAtEnd(*this);
    if (duration <= 0.0 || !end)
        return {};
    std::optional<double> start = nStageTemperature::kelvinAt(*this, 0.0);
    if (m_temperature.isConstant() && previous)
        start = nStageTemperature::kelvinAtEnd(*previous);
    return {(*end - start.value_or(*end)) / duration, kdUnitSystem::TemperatureRate};
}

bool operator==(const coHeatTreatmentStage& a, const coHeatTreatmentStage& b)
{
    return typeid(a) == typeid(b) && a.isEqual(b);
}

bool coHeatTreatmentStage::isEqual(const coHeatTreatmentStage& other) const
{
    const auto fields = [](const coHeatTreatmentStage& s) {
        return std::tie(*s.m_information, s.m_isEnabled, s.m_useTermination, s.m_duration,
                        s.m_terminationRelation, s.m_terminationTemperature, s.m_temperature, s.m_htcToEnv,
                        s.m_analysisPasses, s.m_incrementsBetweenResults);
    };
    return fields(*this) == fields(other);
}
