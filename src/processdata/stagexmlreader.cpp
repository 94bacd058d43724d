#include "stagexmlreader.h"

#include "coheattreatmentdata.h"
#include "tableinputxml.h"
#include "xmlvalues.h"

#include <kdQCore/kdLog>

namespace {

coTableInput withoutTable(coTableInput input)
{
    input.removeDataTable();
    return input;
}

} // namespace

StageXmlReader::StageXmlReader(QXmlStreamReader& reader, const coHeatTreatmentStage& stage)
    : m_reader(reader), m_stage(stage.clone()),
      m_caseHardening(dynamic_cast<coHtCaseHardeningStageProp*>(m_stage.get())),
      m_temperature(withoutTable(stage.temperature())), m_htcToEnv(withoutTable(stage.htcToEnv()))
{
    if (m_caseHardening) {
        m_massTransferCoefficient = withoutTable(m_caseHardening->massTransferCoefficient());
        m_carbonPotential = withoutTable(m_caseHardening->carbonPotential());
    }
}

bool StageXmlReader::read()
{
    while (m_reader.readNextStartElement()) {
        const QString element = m_reader.name().toString();
        if (!readElement(element))
            raiseStageError(element);
    }
    return !m_reader.hasError();
}

void StageXmlReader::applyTo(coHeatTreatmentStage& stage) const
{
    m_stage->setTemperature(m_temperature);
    m_stage->setHtcToEnv(m_htcToEnv);
    if (!m_caseHardening) {
        stage = *m_stage;
        return;
    }
    m_caseHardening->setMassTransferCoefficient(m_massTransferCoefficient);
    m_caseHardening->setCarbonPotential(m_carbonPotential);
    static_cast<coHtCaseHardeningStageProp&>(stage) = *m_caseHardening;
}

// The element "name" is skipped: the name belongs to the description that all stages of a kind share.
bool StageXmlReader::readElement(const QString& element)
{
    using Stage = coHeatTreatmentStage;
    const auto is = [&element](const char* name) { return element == QLatin1String(name); };
    if (is("stage_enabled"))
        return readBool(&Stage::setEnabled);
    if (is("stage_duration"))
        return readUnitValue(element, &Stage::setDuration);
    if (is("stage_use_fixed_temp"))
        return readTemperatureKind();
    if (is("stage_fixed_temp"))
        return TableInputXml::readConstant(m_reader, element, m_temperature);
    if (is("stage_temp_table"))
        return TableInputXml::readTable(m_reader, m_temperature);
    if (is("stage_use_termination_temp"))
        return readBool(&Stage::setUseTermination);
    if (is("stage_termination_temp"))
        return readUnitValue(element, &Stage::setTerminationTemperature);
    if (is("stage_termination_rel"))
        return readTerminationRelation();
    if (TableInputXml::heatTransfer().has(element))
        return TableInputXml::heatTransfer().read(m_reader, element, m_htcToEnv);
    if (is("analysis_passes"))
        return readPasses();
    if (is("nb_result_steps"))
        return readIncrements();
    return readCaseHardeningElement(element);
}

bool StageXmlReader::readCaseHardeningElement(const QString& element)
{
    if (m_caseHardening && element == QLatin1String("stage_timeStepLength"))
        return readTimeStepLength(element);
    if (m_caseHardening && element == QLatin1String("massTransferCoeff"))
        return readMassTransfer();
    if (m_caseHardening && element == QLatin1String("potential"))
        return readPotential();
    m_reader.skipCurrentElement();
    return true;
}

bool StageXmlReader::readBool(void (coHeatTreatmentStage::*set)(bool))
{
    bool value = false;
    const bool isRead = nXmlValues::read(m_reader, value);
    (m_stage.get()->*set)(value);
    return isRead;
}

bool StageXmlReader::readUnitValue(const QString& element,
                                   void (coHeatTreatmentStage::*set)(const kdUnitValue&))
{
    kdUnitValue value;
    const bool isRead = value.readXML(m_reader, element);
    (m_stage.get()->*set)(value);
    return isRead;
}

bool StageXmlReader::readTemperatureKind()
{
    bool isConstant = false;
    const bool isRead = nXmlValues::read(m_reader, isConstant);
    m_temperature.setMode(isConstant ? coTableInput::Constant : coTableInput::UserDefinedTable);
    return isRead;
}

bool StageXmlReader::readTerminationRelation()
{
    int relation = 0;
    const bool isRead = nXmlValues::read(m_reader, relation);
    m_stage->setTerminationRelation(nHeatTreatment::e_TerminationRelation(relation));
    return isRead;
}

bool StageXmlReader::readIncrements()
{
    int increments = 0;
    const bool isRead = nXmlValues::read(m_reader, increments);
    m_stage->setIncrementsBetweenResults(increments);
    return isRead;
}

bool StageXmlReader::readTimeStepLength(const QString& element)
{
    kdUnitValue length;
    const bool isRead = length.readXML(m_reader, element);
    m_caseHardening->setTimeStepLength(length);
    return isRead;
}

bool StageXmlReader::readPasses()
{
    nHeatTreatment::AnalysisPassFlags passes;
    while (m_reader.readNextStartElement()) {
        if (m_reader.name() != QLatin1String("pass"))
            m_reader.skipCurrentElement();
        else if (!readPass(passes))
            raiseStageError(QStringLiteral("pass"));
    }
    m_stage->setAnalysisPasses(passes);
    return true;
}

bool StageXmlReader::readPass(nHeatTreatment::AnalysisPassFlags& passes)
{
    const QString name = nXmlValues::readText(m_reader).trimmed();
    const coEnumData::Row* const row = nHeatTreatment::AnalysisPassFlagEnumData.find(name);
    if (row)
        passes |= nHeatTreatment::e_AnalysisPassFlag(row->value);
    return row != nullptr;
}

bool StageXmlReader::readMassTransfer()
{
    readBlock(m_massTransferCoefficient);
    coHeatTreatmentData::Xml::Reader::correctMassTransferCoefficientDimension(m_massTransferCoefficient);
    return true;
}

bool StageXmlReader::readPotential()
{
    const QString material = m_reader.attributes().value(QLatin1String("material")).toString();
    if (material == QLatin1String("carbon"))
        readBlock(m_carbonPotential);
    else
        m_reader.raiseError(tr("Unsupported potential material '%1' is read for stage %2.")
                                .arg(material, QString::number(m_stage->index())));
    return true;
}

void StageXmlReader::readBlock(coTableInput& input)
{
    input.removeDataTable();
    while (m_reader.readNextStartElement()) {
        const QString element = m_reader.name().toString();
        if (!TableInputXml::block().has(element))
            m_reader.skipCurrentElement();
        else if (!TableInputXml::block().read(m_reader, element, input))
            raiseStageError(element);
    }
}

// What the value's own reader said is too long-winded for the error, but it helps to mend the file.
void StageXmlReader::raiseStageError(const QString& element)
{
    const bool isBroken = m_reader.hasError() && m_reader.error() != QXmlStreamReader::CustomError;
    if (isBroken)
        return;
    if (m_reader.hasError())
        KD_LOG(kdLog::Notice, kdLog::General,
               QStringLiteral("Line %1: %2")
                   .arg(QString::number(m_reader.lineNumber()), m_reader.errorString()));
    m_reader.raiseError(tr("Failed to read the value of the XML element %1 of stage %2.")
                            .arg(element, QString::number(m_stage->index())));
}
