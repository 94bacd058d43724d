#include "nheattreatment.h"

#include <QCoreApplication>

namespace {

constexpr const char* context = "nHeatTreatment";
constexpr const char* userDefined = QT_TRANSLATE_NOOP("nHeatTreatment", "<user-defined>");

constexpr coEnumData::Row fields[] = {
    {nHeatTreatment::InvalidField, "Invalid", QT_TRANSLATE_NOOP("nHeatTreatment", "Invalid")},
    {nHeatTreatment::QuenchTemper, "QuenchTemper", QT_TRANSLATE_NOOP("nHeatTreatment", "Quench temper")},
    {nHeatTreatment::StressRelief, "WlStressRelief", QT_TRANSLATE_NOOP("nHeatTreatment", "Stress relief")},
    {nHeatTreatment::CaseHardening, "CaseHardening", QT_TRANSLATE_NOOP("nHeatTreatment", "Case hardening")}};

constexpr coEnumData::Row passes[] = {
    {nHeatTreatment::NoPass, "none", QT_TRANSLATE_NOOP("nHeatTreatment", "No pass")},
    {nHeatTreatment::DiffusionPass, "diffusion", QT_TRANSLATE_NOOP("nHeatTreatment", "Diffusion pass")},
    {nHeatTreatment::ThermalPass, "thermal", QT_TRANSLATE_NOOP("nHeatTreatment", "Thermal pass")},
    {nHeatTreatment::StructuralPass, "structural", QT_TRANSLATE_NOOP("nHeatTreatment", "Structural pass")}};

constexpr coEnumData::Row stageTypes[] = {
    {nHeatTreatment::Heating, "Heating", QT_TRANSLATE_NOOP("nHeatTreatment", "Heating")},
    {nHeatTreatment::Holding, "Holding", QT_TRANSLATE_NOOP("nHeatTreatment", "Holding")},
    {nHeatTreatment::Quenching, "Quenching", QT_TRANSLATE_NOOP("nHeatTreatment", "Quenching")},
    {nHeatTreatment::Tempering, "Tempering", QT_TRANSLATE_NOOP("nHeatTreatment", "Tempering")},
    {nHeatTreatment::StressReliefAnnealing, "StressReliefAnnealing",
     QT_TRANSLATE_NOOP("nHeatTreatment", "Stress relief annealing")},
    {nHeatTreatment::Carburising, "Carburising", QT_TRANSLATE_NOOP("nHeatTreatment", "Carburising")},
    {nHeatTreatment::Diffusion, "Diffusion", QT_TRANSLATE_NOOP("nHeatTreatment", "Diffusion")},
    {nHeatTreatment::Cooling, "Cooling", QT_TRANSLATE_NOOP("nHeatTreatment", "Cooling")}};

} // namespace

const coEnumData nHeatTreatment::FieldOfApplicationEnumData(context, fields);
const coEnumData nHeatTreatment::AnalysisPassFlagEnumData(context, passes);
const coEnumData nHeatTreatment::StageTypeEnumData(context, stageTypes);

nHeatTreatment::e_TerminationRelation nHeatTreatment::getTerminationRelationFromStage(e_StageType type)
{
    switch (type) {
    case Heating:
    case Holding:
    case Carburising:
        return RisesAbove;
    case Quenching:
    case Tempering:
    case StressReliefAnnealing:
    case Diffusion:
    case Cooling:
        return FallsBelow;
    }
    return NoRelation;
}

nHeatTreatment::e_HtProcessId nHeatTreatment::processId(e_StageType type)
{
    switch (type) {
    case Heating:
        return HeatingProcess;
    case Holding:
    case Tempering:
    case StressReliefAnnealing:
        return HoldingProcess;
    case Quenching:
        return QuenchingProcess;
    case Carburising:
    case Diffusion:
    case Cooling:
        break;
    }
    return OtherProcess;
}

QString nHeatTreatment::getUserDefinedTableName(bool translated)
{
    return translated ? QCoreApplication::translate(context, userDefined) : QString::fromLatin1(userDefined);
}
