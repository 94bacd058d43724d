#include "heatcommands.h"
#include "shellsession.h"
#include "tablecommands.h"

#include <kdQCore/coHtCaseHardeningStageProp>

namespace {

/// Text files do not say that "m/s" is mass transfer and "%" a mass fraction.
bool bringToDimension(kdDataColumn& column, kdUnitSystem::Dimension dimension)
{
    bool isKnown = column.getUnitSystem().dimension() == dimension;
    if (isKnown)
        return true;
    const kdUnitSystem unit = kdUnitSystem::fromSymbol(column.getUnitSystem().symbol(), dimension, &isKnown);
    if (isKnown)
        column.setUnit(unit);
    return isKnown;
}

} // namespace

bool HeatCommands::set(ShellCall& call)
{
    const ShellProcesses::Process original = find(call, call.text(0));
    if (original.isNull())
        return false;
    coHeatTreatmentData process(*original);
    const Stage stage = findStage(call, process, call.text(1));
    if (stage.isNull() || !changeStage(call, *stage))
        return false;
    ShellSession::I().processes.put(call.text(0), std::move(process));
    return true;
}

bool HeatCommands::changeStage(const ShellCall& call, coHeatTreatmentStage& stage)
{
    using Base = coHeatTreatmentStage;
    using Carbon = coHtCaseHardeningStageProp;
    ShellParameters parameters(call, 2);
    const auto quantity = [&](const char* name, auto& object, auto get, auto setter) {
        parameters.add(name, 2, [&call, &object, get, setter](int index) {
            kdUnitValue value = (object.*get)();
            const bool isRead = readQuantity(call, index, value);
            (object.*setter)(value);
            return isRead;
        });
    };
    const auto input = [&](const char* name, auto& object, auto get, auto setter) {
        parameters.add(name, 2, [&call, &object, get, setter](int index) {
            coTableInput value = (object.*get)();
            const bool isRead = readInput(call, index, value);
            (object.*setter)(value);
            return isRead;
        });
    };
    quantity("duration", stage, &Base::duration, &Base::setDuration);
    input("temperature", stage, &Base::temperature, &Base::setTemperature);
    input("htc", stage, &Base::htcToEnv, &Base::setHtcToEnv);
    if (auto* const carbon = dynamic_cast<Carbon*>(&stage)) {
        input("potential", *carbon, &Carbon::carbonPotential, &Carbon::setCarbonPotential);
        input("transfer", *carbon, &Carbon::massTransferCoefficient, &Carbon::setMassTransferCoefficient);
        quantity("timestep", *carbon, &Carbon::timeStepLength, &Carbon::setTimeStepLength);
    }
    int increments = stage.incrementsBetweenResults();
    bool isWhole = false;
    parameters.add("terminate", 3, [&](int index) { return readTermination(call, index, stage); })
        .flag("whole", isWhole)
        .add("passes", 1, [&](int index) { return readPasses(call, index, stage); })
        .integer("increments", increments);
    if (!parameters.read())
        return false;
    stage.setIncrementsBetweenResults(increments);
    stage.setUseTermination(stage.useTermination() && !isWhole);
    return true;
}

bool HeatCommands::readQuantity(const ShellCall& call, int index, kdUnitValue& value)
{
    double number = 0.0;
    if (!call.readReal(index, QStringLiteral("VALUE"), number))
        return false;
    bool isKnown = false;
    const kdUnitSystem unit = kdUnitSystem::fromSymbol(call.text(index + 1), value.dimension(), &isKnown);
    if (!isKnown)
        return call.fail(
            tr("'%1' is no unit of the quantity '%2'.")
                .arg(call.text(index + 1), kdUnitSystem::translatedDimensionName(value.dimension())));
    value = kdUnitValue(number, unit);
    return true;
}

bool HeatCommands::readInput(const ShellCall& call, int index, coTableInput& input)
{
    const bool isPredefined = call.is(index, "predefined");
    if (isPredefined || call.is(index, "project")) {
        input.setTableName(call.text(index + 1));
        input.setMode(isPredefined ? coTableInput::PredefinedTable : coTableInput::ProjectTable);
        return true;
    }
    if (call.is(index, "table"))
        return readTable(call, call.text(index + 1), input);
    kdUnitValue constant = input.constant();
    if (!readQuantity(call, index, constant))
        return false;
    input.setConstant(constant);
    input.setMode(coTableInput::Constant);
    return true;
}

bool HeatCommands::readTable(const ShellCall& call, const QString& name, coTableInput& input)
{
    const ShellTables::Table table = TableCommands::find(call, name);
    if (table.isNull())
        return false;
    const kdUnitSystem::Dimension dimension = input.constant().dimension();
    kdDataTable own(*table);
    if (!own.isXYDataTable() || !bringToDimension(own.columnRef(1), dimension))
        return call.fail(tr("Table '%1' has not two columns, the second in a unit of the quantity '%2'.")
                             .arg(name, kdUnitSystem::translatedDimensionName(dimension)));
    input.setDataTable(std::move(own));
    input.setMode(coTableInput::UserDefinedTable);
    return true;
}

bool HeatCommands::readPasses(const ShellCall& call, int index, coHeatTreatmentStage& stage)
{
    nHeatTreatment::AnalysisPassFlags passes;
    const QStringList names = call.text(index).split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString& name : names) {
        const coEnumData::Row* const row = nHeatTreatment::AnalysisPassFlagEnumData.find(name.trimmed());
        if (!row)
            return call.fail(
                tr("'%1' is no pass; possible are diffusion, thermal, structural and none.").arg(name));
        passes |= nHeatTreatment::e_AnalysisPassFlag(row->value);
    }
    stage.setAnalysisPasses(passes);
    return true;
}

bool HeatCommands::readTermination(const ShellCall& call, int index, coHeatTreatmentStage& stage)
{
    const bool isAbove = call.is(index, "above");
    if (!isAbove && !call.is(index, "below"))
        return call.fail(tr("'%1' is neither above nor below.").arg(call.text(index)));
    kdUnitValue temperature(0.0, kdUnitSystem::Temperature);
    if (!readQuantity(call, index + 1, temperature))
        return false;
    stage.setUseTermination(true);
    stage.setTerminationRelation(isAbove ? nHeatTreatment::RisesAbove : nHeatTreatment::FallsBelow);
    stage.setTerminationTemperature(temperature);
    return true;
}
