#include "heatcommands.h"
#include "heatfile.h"
#include "progressfile.h"
#include "shelloutput.h"
#include "shellsession.h"

#include <kdQCore/coHtCaseHardeningStageProp>
#include <kdQCore/coPredefinedTableListModel>

#include <QFileInfo>

namespace {

/// Of the file, roughly: the rows of long tables are most of it.
qint64 expectedSize(const coHeatTreatmentData& process)
{
    constexpr qint64 sizeOfRow = 80;
    constexpr qint64 sizeOfStage = 4000;
    qint64 size = 0;
    const auto add = [&size](const coTableInput& input) {
        size += !input.isConstant() && input.hasDataTable() ? input.dataTable()->rows() * sizeOfRow : 0;
    };
    const QList<coHeatTreatmentData::StagePointer>& stages = process.stages();
    for (const coHeatTreatmentData::StagePointer& stage : stages) {
        size += sizeOfStage;
        add(stage->temperature());
        add(stage->htcToEnv());
        if (const auto hardening = stage.dynamicCast<coHtCaseHardeningStageProp>()) {
            add(hardening->massTransferCoefficient());
            add(hardening->carbonPotential());
        }
    }
    return size;
}

} // namespace

bool HeatCommands::save(ShellCall& call)
{
    const ShellProcesses::Process process = find(call, call.text(0));
    if (process.isNull())
        return false;
    if (!nShellOutput::write(call, call.text(1), expectedSize(*process),
                             [&](QIODevice& device) { return HeatFile::write(device, *process); }))
        return false;
    call.tell(tr("Process '%1' written to '%2'.").arg(call.text(0), call.text(1)));
    return true;
}

bool HeatCommands::load(ShellCall& call)
{
    const QString name = call.count() > 1 ? call.text(2) : QFileInfo(call.text(0)).completeBaseName();
    if ((call.count() > 1 && !isAs(call, 1)) || name.isEmpty())
        return call.hasFailed() ? false : call.fail(tr("A name is missing after the file."));
    ProgressFile file(ShellSession::I().inputPath(call.text(0)), call.reporter(), call.stopCondition());
    if (!file.open(QIODevice::ReadOnly))
        return call.fail(tr("'%1' cannot be read: %2").arg(file.fileName(), file.errorString()));
    const ShellOperation operation(call, tr("Reading '%1'").arg(call.text(0)));
    coHeatTreatmentData process;
    QString error;
    if (!HeatFile::read(file, call.text(0), process, error))
        return call.fail(error);
    if (call.isStopped())
        return false;
    ShellSession::I().processes.put(name, std::move(process));
    return true;
}

bool HeatCommands::compare(ShellCall& call)
{
    const ShellProcesses::Process first = find(call, call.text(0));
    const ShellProcesses::Process second = first.isNull() ? first : find(call, call.text(1));
    if (second.isNull())
        return false;
    if (*first == *second) {
        call.show(tr("The processes are equal."));
        return true;
    }
    QStringList different;
    const QList<int> indices = first->getStageIndices();
    for (const int index : indices) {
        const Stage other = second->getStage(index);
        if (other.isNull() || *first->getStage(index) != *other)
            different.append(QString::number(index));
    }
    return call.fail(
        first->fieldOfApplication() != second->fieldOfApplication()
            ? tr("The processes belong to different fields of application.")
            : tr("The processes differ in the stages %1.").arg(different.join(QLatin1String(", "))));
}

bool HeatCommands::predefined(ShellCall& call)
{
    const coPredefinedTableListModel model(ShellSession::I().inputPath(call.text(0)));
    for (int row = 0; row < model.rowCount(); ++row)
        call.show(model.index(row).data().toString());
    if (model.rowCount() == 0)
        call.tell(tr("No tables."));
    return true;
}

bool HeatCommands::collect(ShellCall& call)
{
    const ShellProcesses::Process process = find(call, call.text(0));
    if (process.isNull())
        return false;
    if (!call.is(1, "from") || !call.is(3, "to"))
        return call.fail(tr("The folders are named by 'from FOLDER to FOLDER'."));
    coPredefinedTableListModel model(ShellSession::I().inputPath(call.text(2)));
    model.setProjectFolder(call.text(4));
    return process->ensureTableCopiedToProject(&model) || call.fail(model.errorText());
}
