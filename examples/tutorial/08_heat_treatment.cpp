// A heat treatment: made by the factory, changed, stored, read back, and turned into a curve.
#include <kdQCore/coHeatTreatmentDataFactory>

#include <QFile>
#include <QTextStream>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

bool save(const coHeatTreatmentData& process, const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QXmlStreamWriter writer(&file);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    coHeatTreatmentData::Xml::Writer::writeXml(writer, process);
    writer.writeEndDocument();
    return !writer.hasError() && file.flush();
}

bool load(coHeatTreatmentData& process, const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    QXmlStreamReader reader(&file);
    process.setFieldOfApplication(coHeatTreatmentData::Xml::Reader::findField(reader));
    nHeatTreatment::coHeatTreatmentDataFactory::setup(process); // the stages that the file fills
    return coHeatTreatmentData::Xml::Reader::read(reader, process)
        == coHeatTreatmentData::Xml::Reader::ReadAll;
}

int main()
{
    QTextStream out(stdout);
    coHeatTreatmentData process(nHeatTreatment::QuenchTemper);
    nHeatTreatment::coHeatTreatmentDataFactory::setup(process);

    const kdUnitSystem minutes = kdUnitSystem::fromSymbol("min", kdUnitSystem::Time);
    process.getStage(3)->setDuration(kdUnitValue(90, minutes));
    process.getStage(4)->setEnabled(false); // the cooling after tempering
    for (const auto& stage : process.stages())
        out << stage->index() << " " << stage->name() << ", " << stage->duration().toString()
            << (stage->isEnabled() ? "\n" : ", left out\n");
    out << "In all " << process.durationSumOfEnabledStages().valueIn(minutes) << " min\n";

    coHeatTreatmentData again;
    if (!save(process, "shaft.xml") || !load(again, "shaft.xml"))
        return 1;
    out << (again == process ? "Read back as written\n" : "Read back otherwise\n");

    kdDataTable furnace = again.temperatureOverTime();
    furnace.toUnit(minutes, kdUnitSystem::fromSymbol("degC"));
    out << "Furnace at 60 min: " << furnace.getInterpolDoubleValue(1, 60) << " "
        << furnace.yUnitSystem().symbol() << "\n";
    return 0;
}
