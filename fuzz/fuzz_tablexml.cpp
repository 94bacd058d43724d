// Any bytes as table XML, in both dialects. What is read must come back the same from what is written for it,
// and a document that is refused must leave the table alone.

#include <kdQCore/kdDataTable>

#include <QBuffer>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

QByteArray written(const kdDataTable& table)
{
    QBuffer device;
    device.open(QIODevice::WriteOnly);
    require(table.writeXML(device));
    return device.data();
}

bool read(const QByteArray& xml, const QString& element, kdDataTable& table)
{
    QXmlStreamReader reader(xml);
    const bool isRead = table.readXML(reader, element);
    require(isRead != reader.hasError());
    return isRead;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const kdDataTable untouched = kdDataTable::fromXml(
        QStringLiteral("<kdDataTable name='untouched'><columndata/><row>1</row><row>2</row></kdDataTable>"));
    const QByteArray bytes(reinterpret_cast<const char*>(data), int(size));
    kdDataTable table = untouched;
    if (!read(bytes, kdDataTable::xmlStartElement(), table)) {
        require(table == untouched);
        read(bytes, kdDataTable::tagNameForJES(), table);
    }
    const QByteArray xml = written(table);
    kdDataTable again;
    require(read(xml, kdDataTable::xmlStartElement(), again));
    require(written(again) == xml);

    QByteArray jobEditorXml;
    QXmlStreamWriter writer(&jobEditorXml);
    require(table.writeXMLForJES(writer));
    require(read(jobEditorXml, kdDataTable::tagNameForJES(), again));
    require(written(again) == xml);
    return 0;
}
