#include "coheattreatmentdata.h"
#include "stagetemperature.h"

#include <algorithm>

namespace {

constexpr double longestJump = 1e-3; // s

kdUnitValue inSeconds(double seconds)
{
    return {seconds, kdUnitSystem::Time};
}

/// Puts the stages' temperatures one behind the other.
class ProcessCurve {
public:
    void add(const coHeatTreatmentStage& stage)
    {
        const double duration = nStageTemperature::seconds(stage);
        if (duration > 0.0 && nStageTemperature::kelvinAt(stage, 0.0)) {
            addPoint(stage, m_table.isEmpty() ? 0.0 : std::min(longestJump, duration / 1000.0), 0.0);
            const QVector<double> corners = nStageTemperature::corners(stage);
            for (const double time : corners)
                addPoint(stage, time, time);
            addPoint(stage, duration, duration);
        }
        m_start += duration;
    }

    kdDataTable table() const { return m_table; }

private:
    // The first point of a stage stands a jump behind the time for which it holds.
    void addPoint(const coHeatTreatmentStage& stage, double time, double timeOfValue)
    {
        const double kelvin = *nStageTemperature::kelvinAt(stage, timeOfValue);
        const int last = m_table.rows() - 1;
        const bool continues = last >= 0 && timeOfValue == 0.0 && m_table.pointAt(last).x() == m_start
            && m_table.pointAt(last).y() == kelvin;
        if (!continues && (last < 0 || m_start + time > m_table.pointAt(last).x()))
            m_table.addPoint(m_start + time, kelvin);
    }

    kdDataTable m_table{kdUnitSystem::Time, kdUnitSystem::Temperature};
    double m_start = 0.0;
};

} // namespace

kdUnitValue coHeatTreatmentData::totalStageDuration() const
{
    double sum = 0.0;
    for (const StagePointer& stage : m_stages)
        sum += nStageTemperature::seconds(*stage);
    return inSeconds(sum);
}

kdUnitValue coHeatTreatmentData::durationSumOfEnabledStages() const
{
    double sum = 0.0;
    for (const StagePointer& stage : m_stages)
        sum += stage->isEnabled() ? nStageTemperature::seconds(*stage) : 0.0;
    return inSeconds(sum);
}

kdUnitValue coHeatTreatmentData::startTimeOfStage(int index) const
{
    double start = 0.0;
    for (const StagePointer& stage : m_stages) {
        if (stage->index() == index)
            return inSeconds(start);
        start += stage->isEnabled() ? nStageTemperature::seconds(*stage) : 0.0;
    }
    return {};
}

kdUnitValue coHeatTreatmentData::avgTempRateOfStage(int index) const
{
    const coHeatTreatmentStage* previous = nullptr;
    for (const StagePointer& stage : m_stages) {
        if (stage->index() == index)
            return stage->getAvgTempRate(previous);
        if (stage->isEnabled())
            previous = stage.data();
    }
    return {};
}

kdDataTable coHeatTreatmentData::temperatureOverTime() const
{
    ProcessCurve curve;
    for (const StagePointer& stage : m_stages)
        if (stage->isEnabled())
            curve.add(*stage);
    return curve.table();
}
