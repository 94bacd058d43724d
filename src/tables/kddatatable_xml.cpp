#include "kddatatable.h"
#include "tablexmlreader.h"
#include "tablexmlwriter.h"

#include <QFileDevice>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace {

bool flush(QIODevice& device)
{
    auto* const file = qobject_cast<QFileDevice*>(&device);
    return !file || file->flush();
}

} // namespace

QString kdDataTable::xmlStartElement()
{
    return QStringLiteral("kdDataTable");
}

QString kdDataTable::tagNameForJES()
{
    return QStringLiteral("DataTable");
}

QString kdDataTable::toXml() const
{
    QString xml;
    QXmlStreamWriter writer(&xml);
    writeXML(writer);
    return xml;
}

kdDataTable kdDataTable::fromXml(const QString& xml, bool* ok)
{
    kdDataTable table;
    QXmlStreamReader reader(xml);
    bool isRead = table.readXML(reader);
    while (isRead && !reader.atEnd())
        reader.readNext();
    isRead = isRead && !reader.hasError();
    if (ok)
        *ok = isRead;
    if (!isRead)
        table = kdDataTable();
    return table;
}

bool kdDataTable::readXML(QXmlStreamReader& reader, const QString& startElement)
{
    TableXmlReader table(reader);
    if (!table.read(startElement))
        return false;
    std::vector<ColumnPointer> columns;
    columns.reserve(static_cast<std::size_t>(table.columns()));
    for (int i = 0; i < table.columns(); ++i)
        columns.push_back(table.createColumn(i));
    replaceColumns(std::move(columns));
    m_name = table.name();
    m_comment = table.comment();
    m_idTag = table.idTag();
    m_type = table.type();
    return true;
}

// The default columns stay the caller's choice as long as they exist.
void kdDataTable::replaceColumns(std::vector<ColumnPointer> columns)
{
    m_columns = std::move(columns);
    if (m_defaultXColumnIndex >= this->columns())
        m_defaultXColumnIndex = 0;
    if (m_defaultYColumnIndex >= this->columns())
        m_defaultYColumnIndex = 1;
}

bool kdDataTable::writeXML(QXmlStreamWriter& writer) const
{
    TableXmlWriter(writer, *this).write(xmlStartElement(), TableXmlWriter::SeparatedValues);
    return !writer.hasError();
}

bool kdDataTable::writeXML(QIODevice& device) const
{
    const bool wasOpen = device.isOpen();
    if (!wasOpen && !device.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    QXmlStreamWriter writer(&device);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    TableXmlWriter table(writer, *this);
    table.setRowDevice(device);
    const bool areRowsWritten = table.write(xmlStartElement(), TableXmlWriter::SeparatedValues);
    writer.writeEndDocument();
    const bool isWritten = areRowsWritten && flush(device) && !writer.hasError();
    if (!wasOpen)
        device.close();
    return isWritten;
}

bool kdDataTable::readXMLForJES(QXmlStreamReader& reader, const QString& startElement)
{
    return readXML(reader, startElement);
}

bool kdDataTable::writeXMLForJES(QXmlStreamWriter& writer) const
{
    TableXmlWriter(writer, *this).write(tagNameForJES(), TableXmlWriter::TerminatedValues);
    return !writer.hasError();
}
