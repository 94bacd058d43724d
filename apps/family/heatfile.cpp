#include "heatfile.h"

#include <kdQCore/coHeatTreatmentDataFactory>

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

using Xml = coHeatTreatmentData::Xml;

bool HeatFile::read(QIODevice& device, const QString& name, coHeatTreatmentData& process, QString& error)
{
    QXmlStreamReader reader(&device);
    process = coHeatTreatmentData(Xml::Reader::findField(reader));
    nHeatTreatment::coHeatTreatmentDataFactory::setup(process);
    if (!reader.hasError() && !process.fieldOfApplication().isValid()) {
        error = tr("'%1' names no field of application that is known.").arg(name);
        return false;
    }
    QStringList unknownStages;
    switch (Xml::Reader::read(reader, process, &unknownStages)) {
    case Xml::Reader::ReadAll:
        return true;
    case Xml::Reader::UnknownStage:
        error = tr("'%1' has stages that the process does not know: %2.")
                    .arg(name, unknownStages.join(QLatin1String(", ")));
        break;
    case Xml::Reader::ReadError:
        error = tr("'%1', line %2: %3").arg(name, QString::number(reader.lineNumber()), reader.errorString());
        break;
    }
    return false;
}

bool HeatFile::write(QIODevice& device, const coHeatTreatmentData& process)
{
    QXmlStreamWriter writer(&device);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    Xml::Writer::writeXml(writer, process);
    writer.writeEndDocument();
    return !writer.hasError();
}
