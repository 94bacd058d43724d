#pragma once

#include <QVector>

#include <optional>

class coHeatTreatmentStage;

/// The temperature of a stage's surroundings over the time since it began, in K and s.
namespace nStageTemperature {

/// Duration of the stage; 0 where it is no positive finite number.
double seconds(const coHeatTreatmentStage& stage);

/// Nothing where the stage takes its temperature from a table that it does not have.
std::optional<double> kelvinAt(const coHeatTreatmentStage& stage, double seconds);
std::optional<double> kelvinAtEnd(const coHeatTreatmentStage& stage);

/// The times within the stage, rising, at which the temperature has a corner.
QVector<double> corners(const coHeatTreatmentStage& stage);

} // namespace nStageTemperature
