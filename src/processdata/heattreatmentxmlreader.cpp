#include "coheattreatmentdata.h"
#include "copredeftableorconstant.h"
#include "stagexmlreader.h"

namespace {

using Reader = coHeatTreatmentData::Xml::Reader;

bool isEntered(const QStringRef& element)
{
    return element == QLatin1String("stages") || element == coHeatTreatmentData::Xml::xmlElementName();
}

bool correctDimension(kdDataColumn& column)
{
    const kdUnitSystem unit = column.getUnitSystem();
    const bool isPlainNumber = unit.dimension() == kdUnitSystem::None && unit.unitIndex() <= 0;
    if (unit.dimension() != kdUnitSystem::Velocity && !isPlainNumber)
        return false;
    bool isKnown = false;
    kdUnitSystem target =
        kdUnitSystem::fromSymbol(unit.symbol(), kdUnitSystem::MassTransferCoefficient, &isKnown);
    if (!isKnown) {
        column.toSIUnit();
        target = kdUnitSystem::MassTransferCoefficient;
    }
    column.setUnit(target);
    return true;
}

} // namespace

Reader::e_Result Reader::read(QXmlStreamReader& reader, coHeatTreatmentData& data, QStringList* unknownStages)
{
    QStringList unknown;
    const bool isWholeDocument = reader.tokenType() <= QXmlStreamReader::StartDocument;
    int depth = isWholeDocument ? 0 : 1;
    do {
        if (!reader.readNextStartElement())
            --depth;
        else if (isEntered(reader.name()))
            ++depth;
        else if (reader.name() != QLatin1String("stage"))
            reader.skipCurrentElement();
        else
            readStage(reader, data, unknown);
    } while (depth > 0);
    while (isWholeDocument && !reader.atEnd())
        reader.readNext();
    if (unknownStages)
        *unknownStages = unknown;
    if (reader.hasError())
        return ReadError;
    return unknown.isEmpty() ? ReadAll : UnknownStage;
}

bool Reader::readXml(QXmlStreamReader& reader, coHeatTreatmentData& data)
{
    QStringList unknown;
    return read(reader, data, &unknown) == ReadError && unknown.isEmpty();
}

void Reader::readStage(QXmlStreamReader& reader, coHeatTreatmentData& data, QStringList& unknownStages)
{
    const QString text = reader.attributes().value(QLatin1String("stage_index")).toString();
    bool isNumber = false;
    const int index = text.toInt(&isNumber);
    const StagePointer stage = isNumber ? data.getStage(index) : StagePointer();
    if (stage.isNull()) {
        unknownStages.append(text);
        reader.skipCurrentElement();
        return;
    }
    StageXmlReader stageReader(reader, *stage);
    if (stageReader.read())
        stageReader.applyTo(*stage);
}

nHeatTreatment::e_FieldOfApplication Reader::findField(QXmlStreamReader& reader)
{
    while (!reader.isStartElement() || reader.name() != xmlElementName()) {
        if (reader.readNext() == QXmlStreamReader::EndDocument)
            reader.raiseError(StageXmlReader::tr("The element '%1' is missing.").arg(xmlElementName()));
        if (reader.hasError())
            return nHeatTreatment::InvalidField;
    }
    const QString name = reader.attributes().value(QLatin1String("factoryName")).toString();
    const coEnumData::Row* const row = nHeatTreatment::FieldOfApplicationEnumData.find(name);
    return row ? nHeatTreatment::e_FieldOfApplication(row->value) : nHeatTreatment::InvalidField;
}

coTableInput::e_Mode Reader::tableInputMode(nHeatTreatment::e_Mode mode)
{
    return coPredefTableOrConstant::tableInputMode(mode);
}

void Reader::correctMassTransferCoefficientDimension(coTableInput& input)
{
    if (!input.hasDataTable())
        return;
    kdDataTable table(*input.dataTable());
    bool isChanged = false;
    for (int i = 1; i < table.columns(); ++i)
        isChanged = correctDimension(table.columnRef(i)) || isChanged;
    if (isChanged)
        input.setDataTable(std::move(table));
}
