#include "stagetemperature.h"

#include "coheattreatmentstage.h"

#include <algorithm>
#include <cmath>

double nStageTemperature::seconds(const coHeatTreatmentStage& stage)
{
    const double duration = stage.duration().valueIn(kdUnitSystem::Time);
    return std::isfinite(duration) && duration > 0.0 ? duration : 0.0;
}

std::optional<double> nStageTemperature::kelvinAt(const coHeatTreatmentStage& stage, double seconds)
{
    const coTableInput& temperature = stage.temperature();
    if (temperature.isConstant())
        return temperature.constant().valueIn(kdUnitSystem::Temperature);
    const auto table = temperature.dataTable();
    if (table.isNull() || !table->isXYDataTable() || table->isEmpty())
        return std::nullopt;
    const double x = kdUnitValue(seconds, kdUnitSystem::Time).valueIn(table->xUnitSystem());
    return table->yUnitSystem().convert(table->getInterpolDoubleValue(1, x), kdUnitSystem::Temperature);
}

std::optional<double> nStageTemperature::kelvinAtEnd(const coHeatTreatmentStage& stage)
{
    return kelvinAt(stage, seconds(stage));
}

QVector<double> nStageTemperature::corners(const coHeatTreatmentStage& stage)
{
    QVector<double> times;
    const auto table = stage.temperature().dataTable();
    if (stage.temperature().isConstant() || table.isNull() || !table->isXYDataTable())
        return times;
    const double duration = seconds(stage);
    for (const double x : table->columnRef(0).values()) {
        const double time = table->xUnitSystem().convert(x, kdUnitSystem::Time);
        if (time > 0.0 && time < duration)
            times.append(time);
    }
    std::sort(times.begin(), times.end());
    times.erase(std::unique(times.begin(), times.end()), times.end());
    return times;
}
