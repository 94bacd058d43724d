#include "documentkinds.h"

#include "heatfigure.h"
#include "heatfile.h"

#include <kdQCore/coHtCaseHardeningStageProp>

#include <QLocale>

#include <algorithm>

TableDocument::TableDocument(const QString& path, kdDataTable table) : Document(path)
{
    addSheet(std::move(table), TableModel::Editable);
}

QString TableDocument::summary() const
{
    return tr("table, rows: %1").arg(sheet(0)->rowCount());
}

bool TableDocument::write(QIODevice& device, const QString& path) const
{
    return TableExport::write(sheet(0)->table(), device, TableExport::formOf(path));
}

HeatDocument::HeatDocument(const QString& path, const coHeatTreatmentData& process)
    : Document(path), m_process(process)
{
    addSheet(processTemperature(), TableModel::ReadOnly);
    const auto& stages = m_process.stages();
    for (const auto& stage : stages) {
        addStageTable({stage->index(), Temperature}, stage->temperature());
        addStageTable({stage->index(), HeatTransfer}, stage->htcToEnv());
        if (const auto hardening = stage.dynamicCast<coHtCaseHardeningStageProp>()) {
            addStageTable({stage->index(), MassTransfer}, hardening->massTransferCoefficient());
            addStageTable({stage->index(), CarbonPotential}, hardening->carbonPotential());
        }
    }
}

kdDataTable HeatDocument::processTemperature() const
{
    kdDataTable table = m_process.temperatureOverTime();
    table.yToViewUnit();
    Figure figure; // knows which unit of time suits the length of the process
    QString error;
    if (nHeatFigure::make(m_process, nHeatFigure::Options(), figure, error))
        table.xToUnit(kdUnitSystem::fromSymbol(figure.x.unit, kdUnitSystem::Time));
    return table;
}

void HeatDocument::addStageTable(const StageTable& place, const coTableInput& input)
{
    if (input.isConstant() || !input.hasDataTable())
        return;
    kdDataTable table = *input.dataTable();
    table.toViewUnit();
    const TableModel& model = addSheet(std::move(table), TableModel::Editable);
    m_stageTables.append(place);
    connect(&model, &TableModel::signalTableChanged, this,
            [this, place, &model] { takeOver(place, model.table()); });
}

void HeatDocument::takeOver(const StageTable& place, const kdDataTable& table)
{
    const auto changed = [&table](coTableInput input) {
        input.setDataTable(table);
        return input;
    };
    const coHeatTreatmentData::StagePointer stage = m_process.getStage(place.stage);
    const auto hardening = stage.dynamicCast<coHtCaseHardeningStageProp>();
    switch (place.quantity) {
    case Temperature:
        stage->setTemperature(changed(stage->temperature()));
        break;
    case HeatTransfer:
        stage->setHtcToEnv(changed(stage->htcToEnv()));
        break;
    case MassTransfer:
        hardening->setMassTransferCoefficient(changed(hardening->massTransferCoefficient()));
        break;
    case CarbonPotential:
        hardening->setCarbonPotential(changed(hardening->carbonPotential()));
        break;
    }
    sheet(0)->setTable(processTemperature());
}

QString HeatDocument::summary() const
{
    return tr("heat treatment, stages: %1").arg(m_process.stages().size());
}

QString HeatDocument::quantityText(Quantity quantity)
{
    switch (quantity) {
    case Temperature:
        return tr("temperature");
    case HeatTransfer:
        return tr("heat transfer");
    case MassTransfer:
        return tr("mass transfer");
    case CarbonPotential:
        return tr("carbon potential");
    }
    return QString();
}

QString HeatDocument::sheetName(int index) const
{
    if (index < 1 || index > m_stageTables.size())
        return tr("Temperature of the process");
    const StageTable& place = m_stageTables.at(index - 1);
    return QStringLiteral("%1. %2: %3")
        .arg(QString::number(place.stage),
             m_process.getStage(place.stage)->information()->translatedDisplayName(),
             quantityText(place.quantity));
}

/// In the unit that the table of the process has.
QString HeatDocument::timeText(const kdUnitValue& time) const
{
    constexpr int digits = 4;
    const kdUnitSystem unit = sheet(0)->table().xUnitSystem();
    return QStringLiteral("%1 %2").arg(QLocale().toString(time.valueIn(unit), 'g', digits), unit.symbol());
}

Outline HeatDocument::outline() const
{
    Outline outline{{tr("stage"), tr("name"), tr("starts"), tr("duration")}, {}};
    const auto& stages = m_process.stages();
    for (const auto& stage : stages) {
        Outline::Row row;
        row.cells << QString::number(stage->index()) << stage->information()->translatedDisplayName()
                  << timeText(m_process.startTimeOfStage(stage->index())) << timeText(stage->duration());
        const auto first =
            std::find_if(m_stageTables.begin(), m_stageTables.end(),
                         [&stage](const StageTable& place) { return place.stage == stage->index(); });
        row.sheet = first != m_stageTables.end() ? int(first - m_stageTables.begin()) + 1 : -1;
        outline.rows.append(row);
    }
    return outline;
}

bool HeatDocument::makeFigure(int index, const QVector<int>& columns, Figure& figure, QString& error) const
{
    if (index != 0)
        return Document::makeFigure(index, columns, figure, error);
    if (!nHeatFigure::make(m_process, nHeatFigure::Options(), figure, error))
        return false;
    figure.title = sheetName(index);
    error = figure.fault();
    return error.isEmpty();
}

bool HeatDocument::write(QIODevice& device, const QString&) const
{
    return HeatFile::write(device, m_process);
}

DeckDocument::DeckDocument(const QString& path) : Document(path) { }

void DeckDocument::addOption(qint64 line, qint64 lines, const QString& text, int sheet)
{
    m_options.append({{QString::number(line), QString::number(lines), text}, sheet});
}

QString DeckDocument::summary() const
{
    return tr("deck, options: %1, tables: %2")
        .arg(QString::number(m_options.size()), QString::number(sheetCount()));
}

Outline DeckDocument::outline() const
{
    return {{tr("line"), tr("lines"), tr("option")}, m_options};
}

bool DeckDocument::write(QIODevice&, const QString&) const
{
    return false;
}
