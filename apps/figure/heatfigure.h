#pragma once

#include "figure.h"

#include <kdQCore/coHeatTreatmentData>

#include <QStringList>

/// Makes a figure of a heat-treatment process: the temperature of the surroundings over the time of all
/// enabled stages, the stages by name, and on a second axis the carbon potential of the stages that exchange
/// carbon.
namespace nHeatFigure {

struct Options {
    QString timeUnit; ///< symbol; empty: s, min or h, by the length of the process
    QStringList
        yUnits; ///< symbols, each of temperature or of carbon potential, which else have the view units
};

/// False, and \a error says why, where no enabled stage takes time and has a temperature, or where a unit is
/// none of the quantity.
bool make(const coHeatTreatmentData& process, const Options& options, Figure& figure, QString& error);

} // namespace nHeatFigure
