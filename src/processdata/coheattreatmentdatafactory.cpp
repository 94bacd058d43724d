#include "coheattreatmentdatafactory.h"

#include "cohtcasehardeningstageprop.h"

#include <QCoreApplication>

namespace nHeatTreatment {

namespace {

constexpr kdUnitSystem minutes(kdUnitSystem::Time, 2);
constexpr kdUnitSystem celsius(kdUnitSystem::Temperature, 1);
constexpr kdUnitSystem percent(kdUnitSystem::MassFraction, 1);

constexpr int structuralPasses = ThermalPass | StructuralPass;
constexpr int carbonPasses = DiffusionPass | ThermalPass;

struct StageRow {
    e_StageType type;
    const char* name;
    double minutes;
    double startCelsius;
    double endCelsius;
    double heatTransfer; ///< W/(m²·K)
    int passes;
    int increments;
};

struct CarbonRow {
    double timeStep;     ///< s
    double massTransfer; ///< m/s
    double potential;    ///< %
};

constexpr double endogas = 2e-7;

constexpr StageRow quenchTemper[] = {
    {Heating, QT_TRANSLATE_NOOP("nHeatTreatment", "Heating"), 90, 20, 850, 100, structuralPasses, 10},
    {Holding, QT_TRANSLATE_NOOP("nHeatTreatment", "Holding"), 30, 850, 850, 100, structuralPasses, 10},
    {Quenching, QT_TRANSLATE_NOOP("nHeatTreatment", "Quenching in oil"), 15, 60, 60, 1500, structuralPasses,
     1},
    {Tempering, QT_TRANSLATE_NOOP("nHeatTreatment", "Tempering"), 120, 600, 600, 100, structuralPasses, 10},
    {Cooling, QT_TRANSLATE_NOOP("nHeatTreatment", "Cooling in air"), 120, 20, 20, 30, structuralPasses, 10}};

constexpr StageRow stressRelief[] = {
    {Heating, QT_TRANSLATE_NOOP("nHeatTreatment", "Heating"), 168, 20, 580, 100, structuralPasses, 10},
    {StressReliefAnnealing, QT_TRANSLATE_NOOP("nHeatTreatment", "Stress relief annealing"), 60, 580, 580, 100,
     structuralPasses, 5},
    {Cooling, QT_TRANSLATE_NOOP("nHeatTreatment", "Cooling in the furnace"), 168, 580, 300, 100,
     structuralPasses, 10},
    {Cooling, QT_TRANSLATE_NOOP("nHeatTreatment", "Cooling in air"), 120, 20, 20, 30, structuralPasses, 10}};

constexpr StageRow caseHardening[] = {
    {Heating, QT_TRANSLATE_NOOP("nHeatTreatment", "Heating"), 90, 20, 930, 100, structuralPasses, 10},
    {Carburising, QT_TRANSLATE_NOOP("nHeatTreatment", "Carburising"), 180, 930, 930, 100, carbonPasses, 10},
    {Diffusion, QT_TRANSLATE_NOOP("nHeatTreatment", "Diffusion"), 120, 930, 930, 100, carbonPasses, 10},
    {Cooling, QT_TRANSLATE_NOOP("nHeatTreatment", "Cooling to hardening temperature"), 30, 930, 820, 100,
     carbonPasses, 10},
    {Holding, QT_TRANSLATE_NOOP("nHeatTreatment", "Holding"), 30, 820, 820, 100, carbonPasses, 10},
    {Quenching, QT_TRANSLATE_NOOP("nHeatTreatment", "Quenching in oil"), 15, 60, 60, 1500, structuralPasses,
     1},
    {Tempering, QT_TRANSLATE_NOOP("nHeatTreatment", "Tempering"), 120, 180, 180, 50, structuralPasses, 10},
    {Cooling, QT_TRANSLATE_NOOP("nHeatTreatment", "Cooling in air"), 60, 20, 20, 30, structuralPasses, 10}};

// Row by row those of caseHardening.
constexpr CarbonRow carbon[] = {{60, 0, 0},          {60, endogas, 1.05}, {60, endogas, 0.75},
                                {60, endogas, 0.75}, {60, endogas, 0.75}, {1, 0, 0},
                                {60, 0, 0},          {60, 0, 0}};

constexpr const char* whatsThis[] = {
    QT_TRANSLATE_NOOP("nHeatTreatment", "The furnace brings the part to temperature."),
    QT_TRANSLATE_NOOP("nHeatTreatment", "The part is held at temperature until it is warm throughout."),
    QT_TRANSLATE_NOOP("nHeatTreatment", "The part cools so fast that it hardens."),
    QT_TRANSLATE_NOOP("nHeatTreatment", "The hardened part is warmed, which makes it tough again."),
    QT_TRANSLATE_NOOP("nHeatTreatment", "The part creeps at temperature until its stresses are low."),
    QT_TRANSLATE_NOOP("nHeatTreatment", "The surface takes carbon up from the atmosphere."),
    QT_TRANSLATE_NOOP("nHeatTreatment", "Carbon moves inwards at a lower carbon potential."),
    QT_TRANSLATE_NOOP("nHeatTreatment", "The part cools slowly.")};

QString identifier(e_FieldOfApplication field, int index, e_StageType type)
{
    return QStringLiteral("%1.%2.%3")
        .arg(FieldOfApplicationEnumData.name(field), QString::number(index), StageTypeEnumData.name(type));
}

coHeatTreatmentStage::Information information(e_FieldOfApplication field, int index, const StageRow& row)
{
    coStageInformation information(index, row.type, QString::fromLatin1(row.name));
    information.setWhatsThis(QString::fromLatin1(whatsThis[row.type]));
    information.setOptimisationIdentifier(identifier(field, index, row.type));
    information.setTimeStepLengthUsed((row.passes & DiffusionPass) != 0);
    information.setDefaultAnalysisPasses(AnalysisPassFlags(row.passes));
    information.setDefaultIncrementsBetweenResults(row.increments);
    return coHeatTreatmentStage::Information::create(information);
}

coTableInput temperature(const StageRow& row)
{
    coTableInput input(kdUnitValue(row.endCelsius, celsius));
    if (row.startCelsius == row.endCelsius)
        return input;
    kdDataTable ramp(kdUnitSystem::Time, kdUnitSystem::Temperature);
    ramp.setName(QString::fromLatin1(row.name));
    ramp.setXName(QStringLiteral("time"));
    ramp.setYName(QStringLiteral("temperature"));
    ramp.setUnitX(minutes);
    ramp.setUnitY(celsius);
    ramp.addPoint(0.0, row.startCelsius);
    ramp.addPoint(row.minutes, row.endCelsius);
    input.setDataTable(std::move(ramp));
    input.setMode(coTableInput::UserDefinedTable);
    return input;
}

void fill(coHeatTreatmentStage& stage, const StageRow& row)
{
    const double reserve = stage.terminationRelation() == RisesAbove ? -10.0 : 10.0;
    stage.setDuration(kdUnitValue(row.minutes, minutes));
    stage.setTemperature(temperature(row));
    stage.setTerminationTemperature(kdUnitValue(row.endCelsius + reserve, celsius));
    stage.setHtcToEnv(coTableInput(kdUnitValue(row.heatTransfer, kdUnitSystem::HeatTransferCoefficient)));
}

template <typename Stage, std::size_t count>
QList<coHeatTreatmentData::StagePointer> create(e_FieldOfApplication field, const StageRow (&rows)[count])
{
    QList<coHeatTreatmentData::StagePointer> stages;
    for (const StageRow& row : rows) {
        const auto stage = QSharedPointer<Stage>::create(information(field, stages.size(), row));
        fill(*stage, row);
        stages.append(stage);
    }
    return stages;
}

QList<coHeatTreatmentData::StagePointer> createCaseHardening()
{
    const auto stages = create<coHtCaseHardeningStageProp>(CaseHardening, caseHardening);
    for (int i = 0; i < stages.size(); ++i) {
        const auto stage = stages.at(i).staticCast<coHtCaseHardeningStageProp>();
        stage->setTimeStepLength(kdUnitValue(carbon[i].timeStep, kdUnitSystem::Time));
        stage->setMassTransferCoefficient(
            coTableInput(kdUnitValue(carbon[i].massTransfer, kdUnitSystem::MassTransferCoefficient)));
        stage->setCarbonPotential(coTableInput(kdUnitValue(carbon[i].potential, percent)));
    }
    return stages;
}

} // namespace

void coHeatTreatmentDataFactory::setup(coHeatTreatmentData& data)
{
    switch (data.fieldOfApplication().value()) {
    case QuenchTemper:
        return data.setStages(create<coHeatTreatmentStage>(QuenchTemper, quenchTemper));
    case StressRelief:
        return data.setStages(create<coHeatTreatmentStage>(StressRelief, stressRelief));
    case CaseHardening:
        return data.setStages(createCaseHardening());
    default:
        return data.setStages({});
    }
}

} // namespace nHeatTreatment
