// Any bytes as the XML of a heat treatment, read over the stages of every field of application. The two
// readers agree, and what was read comes back the same.

#include <kdQCore/coHeatTreatmentDataFactory>
#include <kdQCore/kdLog>

#include <QStringList>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

using Reader = coHeatTreatmentData::Xml::Reader;

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

coHeatTreatmentData factoryMade(int field)
{
    static const std::vector<coHeatTreatmentData> processes = [] {
        std::vector<coHeatTreatmentData> result;
        for (const int made :
             {nHeatTreatment::QuenchTemper, nHeatTreatment::StressRelief, nHeatTreatment::CaseHardening}) {
            result.emplace_back(nHeatTreatment::e_FieldOfApplication(made));
            nHeatTreatment::coHeatTreatmentDataFactory::setup(result.back());
        }
        return result;
    }();
    return processes.at(std::size_t(field));
}

QByteArray written(const coHeatTreatmentData& data)
{
    QByteArray xml;
    QXmlStreamWriter writer(&xml);
    coHeatTreatmentData::Xml::Writer::writeXml(writer, data);
    require(!writer.hasError());
    return xml;
}

void readOver(int field, const QByteArray& bytes)
{
    coHeatTreatmentData data = factoryMade(field);
    QXmlStreamReader reader(bytes);
    QStringList unknownStages;
    const Reader::e_Result result = Reader::read(reader, data, &unknownStages);
    require((result == Reader::ReadError) == reader.hasError());
    require(result != Reader::ReadAll || unknownStages.isEmpty());

    coHeatTreatmentData again = factoryMade(field);
    QXmlStreamReader sameReader(bytes);
    require(Reader::readXml(sameReader, again) == (reader.hasError() && unknownStages.isEmpty()));
    const QByteArray xml = written(data);
    require(written(again) == xml);

    again = factoryMade(field);
    QXmlStreamReader writtenReader(xml);
    require(Reader::read(writtenReader, again) == Reader::ReadAll);
    require(written(again) == xml);
    data.temperatureOverTime();
    data.totalStageDuration();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    kdLog::setMinimumSeverity(kdLog::Critical);
    const QByteArray bytes(reinterpret_cast<const char*>(data), int(size));
    QXmlStreamReader reader(bytes);
    const int named = Reader::findField(reader);
    require(named == nHeatTreatment::InvalidField || !reader.hasError());
    for (const coEnumData::Row& row : nHeatTreatment::FieldOfApplicationEnumData)
        if (row.value != nHeatTreatment::InvalidField)
            readOver(row.value, bytes);
    return 0;
}
