#include "coheattreatmentdata.h"
#include "cohtcasehardeningstageprop.h"
#include "copredeftableorconstant.h"
#include "tableinputxml.h"
#include "xmltext_p.h"

#include <QXmlStreamWriter>

namespace {

QString text(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

void writeTemperature(QXmlStreamWriter& writer, const coTableInput& temperature)
{
    writer.writeTextElement(QStringLiteral("stage_use_fixed_temp"), text(temperature.isConstant()));
    temperature.constant().writeXML(writer, QStringLiteral("stage_fixed_temp"));
    TableInputXml::writeTable(writer, QStringLiteral("stage_temp_table"), temperature);
}

void writeTermination(QXmlStreamWriter& writer, const coHeatTreatmentStage& stage)
{
    writer.writeTextElement(QStringLiteral("stage_use_termination_temp"), text(stage.useTermination()));
    stage.terminationTemperature().writeXML(writer, QStringLiteral("stage_termination_temp"));
    writer.writeTextElement(QStringLiteral("stage_termination_rel"),
                            QString::number(stage.terminationRelation()));
}

void writePasses(QXmlStreamWriter& writer, nHeatTreatment::AnalysisPassFlags passes)
{
    writer.writeStartElement(QStringLiteral("analysis_passes"));
    for (const coEnumData::Row& row : nHeatTreatment::AnalysisPassFlagEnumData)
        if ((int(passes) & row.value) != 0)
            writer.writeTextElement(QStringLiteral("pass"), QString::fromLatin1(row.name));
    writer.writeEndElement();
}

void writeCaseHardening(QXmlStreamWriter& writer, const coHtCaseHardeningStageProp& stage)
{
    stage.timeStepLength().writeXML(writer, QStringLiteral("stage_timeStepLength"));
    writer.writeStartElement(QStringLiteral("massTransferCoeff"));
    coHeatTreatmentData::Xml::Writer::writeXmlCaseHardeningProp(writer, stage.massTransferCoefficient());
    writer.writeEndElement();
    writer.writeStartElement(QStringLiteral("potential"));
    writer.writeAttribute(QStringLiteral("material"), QStringLiteral("carbon"));
    coHeatTreatmentData::Xml::Writer::writeXmlCaseHardeningProp(writer, stage.carbonPotential());
    writer.writeEndElement();
}

void writeStage(QXmlStreamWriter& writer, const coHeatTreatmentStage& stage)
{
    writer.writeStartElement(QStringLiteral("stage"));
    writer.writeAttribute(QStringLiteral("stage_index"), QString::number(stage.index()));
    writer.writeTextElement(QStringLiteral("stage_enabled"), text(stage.isEnabled()));
    writeXmlText(writer, QStringLiteral("name"), stage.name());
    stage.duration().writeXML(writer, QStringLiteral("stage_duration"));
    writeTemperature(writer, stage.temperature());
    writeTermination(writer, stage);
    TableInputXml::heatTransfer().write(writer, stage.htcToEnv());
    writePasses(writer, stage.analysisPasses());
    writer.writeTextElement(QStringLiteral("nb_result_steps"),
                            QString::number(stage.incrementsBetweenResults()));
    if (const auto* const caseHardening = dynamic_cast<const coHtCaseHardeningStageProp*>(&stage))
        writeCaseHardening(writer, *caseHardening);
    writer.writeEndElement();
}

} // namespace

QString coHeatTreatmentData::Xml::xmlElementName()
{
    return QStringLiteral("coHeatTreatmentData");
}

void coHeatTreatmentData::Xml::Writer::writeXml(QXmlStreamWriter& writer, const coHeatTreatmentData& data)
{
    writer.writeStartElement(xmlElementName());
    writer.writeAttribute(QStringLiteral("factoryName"), data.fieldOfApplication().name());
    writer.writeStartElement(QStringLiteral("stages"));
    const QList<int> indices = data.getStageIndices();
    for (const int index : indices)
        writeStage(writer, *data.getStage(index));
    writer.writeEndElement();
    writer.writeEndElement();
}

void coHeatTreatmentData::Xml::Writer::writeXmlCaseHardeningProp(QXmlStreamWriter& writer,
                                                                 const coTableInput& input)
{
    TableInputXml::block().write(writer, input);
}

nHeatTreatment::e_Mode coHeatTreatmentData::Xml::Writer::htMode(coTableInput::e_Mode mode)
{
    return coPredefTableOrConstant::htMode(mode);
}
