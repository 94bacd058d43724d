#include "heatcommands.h"

#include "plotcommands.h"
#include "shellsession.h"

#include <kdQCore/coHeatTreatmentDataFactory>
#include <kdQCore/coHtCaseHardeningStageProp>
#include <kdQCore/coPredefTableOrConstant>

namespace {

QString text(const kdUnitValue& value)
{
    return QStringLiteral("%1 %2").arg(ShellCall::numberText(value.value()), value.unitSystem().symbol());
}

/// The names of the passes, separated by commas.
QString text(nHeatTreatment::AnalysisPassFlags passes)
{
    QStringList names;
    for (const coEnumData::Row& row : nHeatTreatment::AnalysisPassFlagEnumData)
        if ((int(passes) & row.value) != 0)
            names.append(QString::fromLatin1(row.name));
    return names.isEmpty() ? nHeatTreatment::AnalysisPassFlagEnumData.name(nHeatTreatment::NoPass)
                           : names.join(QLatin1Char(','));
}

struct Field {
    const char* word;
    nHeatTreatment::e_FieldOfApplication field;
};

constexpr Field fields[] = {{"quenchtemper", nHeatTreatment::QuenchTemper},
                            {"stressrelief", nHeatTreatment::StressRelief},
                            {"casehardening", nHeatTreatment::CaseHardening}};

} // namespace

const ShellCommandGroup& HeatCommands::group()
{
    using Entry = ShellCommandEntry;
    constexpr int anyNumber = ShellCommand::anyNumber;
    static const ShellCommandGroup group{
        "heat",
        "HeatCommands",
        QT_TR_NOOP("Heat treatments: the stages of a process, their settings and curves."),
        {
            {"new", "quenchtemper|stressrelief|casehardening as NAME",
             QT_TR_NOOP("Makes a process with the stages of its field of application."), 3, 3,
             Entry::ChangesProcesses, create},
            {"list", "[NAME]", QT_TR_NOOP("Lists the processes, or the stages of one."), 0, 1, Entry::Query,
             list},
            {"show", "NAME STAGE", QT_TR_NOOP("Shows all settings of a stage."), 2, 2, Entry::Query, show},
            {"set",
             "NAME STAGE [duration VALUE UNIT] [temperature INPUT] [htc INPUT] [potential INPUT] "
             "[transfer INPUT] [timestep VALUE UNIT] [terminate above|below VALUE UNIT] [whole] "
             "[passes PASS,...] [increments N]",
             QT_TR_NOOP("Changes settings of a stage. INPUT: VALUE UNIT, table TABLE, predefined NAME or "
                        "project NAME; whole: the stage does not end early; PASS: diffusion, thermal, "
                        "structural or none."),
             3, anyNumber, Entry::ChangesProcesses, set},
            {"enable", "NAME STAGE...", QT_TR_NOOP("Has stages take part in the process."), 2, anyNumber,
             Entry::ChangesProcesses, enable},
            {"disable", "NAME STAGE...", QT_TR_NOOP("Leaves stages out of the process."), 2, anyNumber,
             Entry::ChangesProcesses, disable},
            {"remove", "NAME", QT_TR_NOOP("Removes a process from the session."), 1, 1,
             Entry::ChangesProcesses, remove},
            {"save", "NAME FILE", QT_TR_NOOP("Writes a process as XML."), 2, 2, Entry::Query, save},
            {"load", "FILE [as NAME]", QT_TR_NOOP("Reads a process from its XML form."), 1, 3,
             Entry::ChangesProcesses, load},
            {"compare", "NAME OTHER",
             QT_TR_NOOP("Fails where two processes differ, and says in what stages."), 2, 2, Entry::Query,
             compare},
            {"curve", "NAME as TABLE [picture FILE]",
             QT_TR_NOOP("Makes a table of the temperature over the time of the whole process, and a picture "
                        "as 'plot heat' draws it."),
             3, 5, Entry::ChangesTables, curve},
            {"extract", "NAME STAGE temperature|htc|potential|transfer as TABLE",
             QT_TR_NOOP("Makes a table of the session of the table that a stage has."), 5, 5,
             Entry::ChangesTables, extract},
            {"predefined", "FOLDER", QT_TR_NOOP("Lists the predefined tables of a folder."), 1, 1,
             Entry::Query, predefined},
            {"collect", "NAME from FOLDER to FOLDER",
             QT_TR_NOOP("Copies the predefined tables that a process refers to into a project's folder."), 5,
             5, Entry::Query, collect},
        }};
    return group;
}

ShellProcesses::Process HeatCommands::find(const ShellCall& call, const QString& name)
{
    const ShellProcesses& processes = ShellSession::I().processes;
    ShellProcesses::Process process = processes.find(name);
    if (process.isNull())
        call.fail(processes.names().isEmpty() ? tr("There is no process '%1'; see 'heat new'.").arg(name)
                                              : tr("There is no process '%1', only %2.")
                                                    .arg(name, processes.names().join(QLatin1String(", "))));
    return process;
}

HeatCommands::Stage HeatCommands::findStage(const ShellCall& call, const coHeatTreatmentData& process,
                                            const QString& index)
{
    bool isNumber = false;
    const int number = index.toInt(&isNumber);
    Stage stage = isNumber ? process.getStage(number) : Stage();
    if (stage.isNull()) {
        QStringList numbers;
        const QList<int> indices = process.getStageIndices();
        for (const int possible : indices)
            numbers.append(QString::number(possible));
        call.fail(tr("There is no stage '%1', only %2.").arg(index, numbers.join(QLatin1String(", "))));
    }
    return stage;
}

bool HeatCommands::isAs(const ShellCall& call, int index)
{
    return call.is(index, "as") || call.fail(tr("'as' is missing before the new name."));
}

QString HeatCommands::text(const coTableInput& input)
{
    if (input.isConstant())
        return ::text(input.constant());
    const bool isUserDefined = coPredefTableOrConstant::isUserDefinedTable(input.mode());
    return isUserDefined && !input.hasDataTable()
        ? tr("no table")
        : coPredefTableOrConstant::getPredefinedTableName(input.mode(), input.tableName());
}

bool HeatCommands::create(ShellCall& call)
{
    for (const Field& field : fields) {
        if (!call.is(0, field.word))
            continue;
        if (!isAs(call, 1))
            return false;
        coHeatTreatmentData process(field.field);
        nHeatTreatment::coHeatTreatmentDataFactory::setup(process);
        ShellSession::I().processes.put(call.text(2), std::move(process));
        return true;
    }
    return call.fail(tr("'%1' is no field of application; possible are quenchtemper, stressrelief and "
                        "casehardening.")
                         .arg(call.text(0)));
}

bool HeatCommands::listProcesses(ShellCall& call)
{
    const ShellProcesses& processes = ShellSession::I().processes;
    const QStringList names = processes.names();
    for (const QString& name : names) {
        const ShellProcesses::Process process = processes.find(name);
        call.show(tr("Process '%1': %2, %3 stages, %4.")
                      .arg(name, process->fieldOfApplication().translatedDisplayName(),
                           QString::number(process->stages().size()),
                           ::text(process->durationSumOfEnabledStages())));
    }
    if (names.isEmpty())
        call.tell(tr("No processes."));
    return true;
}

bool HeatCommands::list(ShellCall& call)
{
    if (call.count() == 0)
        return listProcesses(call);
    const ShellProcesses::Process process = find(call, call.text(0));
    if (process.isNull())
        return false;
    QVector<QStringList> rows{
        {tr("stage"), tr("name"), tr("start"), tr("duration"), tr("temperature"), tr("rate"), tr("state")}};
    const QList<int> indices = process->getStageIndices();
    for (const int index : indices) {
        const Stage stage = process->getStage(index);
        const kdUnitSystem unit = stage->duration().unitSystem();
        const kdUnitValue rate = process->avgTempRateOfStage(index);
        rows.append({QString::number(index), stage->information()->translatedDisplayName(),
                     ::text(process->startTimeOfStage(index).toUnit(unit)), ::text(stage->duration()),
                     text(stage->temperature()),
                     ::text(rate.toUnit(kdUnitSystem(kdUnitSystem::TemperatureRate, 1))),
                     stage->isEnabled() ? tr("on") : tr("off")});
    }
    call.showAligned(rows);
    return true;
}

bool HeatCommands::show(ShellCall& call)
{
    const ShellProcesses::Process process = find(call, call.text(0));
    const Stage stage = process.isNull() ? Stage() : findStage(call, *process, call.text(1));
    if (stage.isNull())
        return false;
    const QStringList relations{QStringLiteral("above"), QStringLiteral("below")};
    call.show(QStringLiteral("%1: %2").arg(stage->information()->translatedDisplayName(),
                                           stage->information()->translatedWhatsThis()));
    call.show(QStringLiteral("duration %1").arg(::text(stage->duration())));
    call.show(QStringLiteral("temperature %1").arg(text(stage->temperature())));
    call.show(QStringLiteral("htc %1").arg(text(stage->htcToEnv())));
    call.show(stage->useTermination()
                  ? QStringLiteral("terminate %1 %2")
                        .arg(relations.value(stage->terminationRelation(), QStringLiteral("-")),
                             ::text(stage->terminationTemperature()))
                  : QStringLiteral("whole"));
    call.show(QStringLiteral("passes %1").arg(::text(stage->analysisPasses())));
    call.show(QStringLiteral("increments %1").arg(stage->incrementsBetweenResults()));
    if (const auto caseHardening = stage.dynamicCast<coHtCaseHardeningStageProp>())
        showCarbon(call, *caseHardening);
    return true;
}

void HeatCommands::showCarbon(const ShellCall& call, const coHtCaseHardeningStageProp& stage)
{
    call.show(QStringLiteral("potential %1").arg(text(stage.carbonPotential())));
    call.show(QStringLiteral("transfer %1").arg(text(stage.massTransferCoefficient())));
    call.show(QStringLiteral("timestep %1").arg(::text(stage.timeStepLength())));
}

bool HeatCommands::enableStages(ShellCall& call, bool isEnabled)
{
    const ShellProcesses::Process original = find(call, call.text(0));
    if (original.isNull())
        return false;
    coHeatTreatmentData process(*original);
    for (int i = 1; i < call.count(); ++i) {
        const Stage stage = findStage(call, process, call.text(i));
        if (stage.isNull())
            return false;
        stage->setEnabled(isEnabled);
    }
    ShellSession::I().processes.put(call.text(0), std::move(process));
    return true;
}

bool HeatCommands::enable(ShellCall& call)
{
    return enableStages(call, true);
}

bool HeatCommands::disable(ShellCall& call)
{
    return enableStages(call, false);
}

bool HeatCommands::remove(ShellCall& call)
{
    if (find(call, call.text(0)).isNull())
        return false;
    ShellSession::I().processes.remove(call.text(0));
    return true;
}

bool HeatCommands::curve(ShellCall& call)
{
    QString picture;
    const ShellProcesses::Process process = find(call, call.text(0));
    if (process.isNull() || !isAs(call, 1) || !ShellParameters(call, 3).text("picture", picture).read())
        return false;
    kdDataTable table = process->temperatureOverTime();
    if (table.isEmpty())
        return call.fail(
            tr("No enabled stage of process '%1' takes time and has a temperature.").arg(call.text(0)));
    table.setXName(QStringLiteral("time"));
    table.setYName(QStringLiteral("temperature"));
    table.toViewUnit();
    if (!picture.isEmpty() && !PlotCommands::drawProcess(call, call.text(0), picture))
        return false;
    ShellSession::I().tables.put(call.text(2), std::move(table));
    return true;
}

const coTableInput* HeatCommands::inputOf(const ShellCall& call, const coHeatTreatmentStage& stage,
                                          const QString& what)
{
    if (what == QLatin1String("temperature"))
        return &stage.temperature();
    if (what == QLatin1String("htc"))
        return &stage.htcToEnv();
    const auto* const caseHardening = dynamic_cast<const coHtCaseHardeningStageProp*>(&stage);
    if (caseHardening && what == QLatin1String("potential"))
        return &caseHardening->carbonPotential();
    if (caseHardening && what == QLatin1String("transfer"))
        return &caseHardening->massTransferCoefficient();
    call.fail(tr("The stage has no input '%1'.").arg(what));
    return nullptr;
}

bool HeatCommands::extract(ShellCall& call)
{
    const ShellProcesses::Process process = find(call, call.text(0));
    const Stage stage = process.isNull() ? Stage() : findStage(call, *process, call.text(1));
    const coTableInput* const input = stage.isNull() ? nullptr : inputOf(call, *stage, call.text(2));
    if (!input || !isAs(call, 3))
        return false;
    if (!input->hasDataTable())
        return call.fail(tr("Stage %1 has no table for '%2'.").arg(call.text(1), call.text(2)));
    ShellSession::I().tables.put(call.text(4), *input->dataTable());
    return true;
}
