#include "coipcgreetingmessage.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

void coIpcGreetingMessage::readXml(QXmlStreamReader& reader)
{
    while (reader.readNextStartElement()) {
        if (reader.name() == xmlProductIdElementName()) {
            const QVariant id = reader.readElementText();
            if (coProductType::isStoredId(id))
                m_program = coProductType::fromVariant(id);
        } else if (reader.name() == xmlProductVersionElementName()) {
            m_version = coVersionNumber::fromString(reader.readElementText());
        } else if (reader.name() == xmlPidElementName()) {
            m_pid = reader.readElementText().toLongLong();
        } else {
            reader.skipCurrentElement();
        }
    }
}

void coIpcGreetingMessage::writeXml(QXmlStreamWriter& writer) const
{
    writer.writeStartDocument();
    writer.writeStartElement(xmlRootElementName());
    writer.writeAttribute(xmlTypeAttributeName(), type());
    writer.writeTextElement(xmlProductIdElementName(), m_program.toVariant().toString());
    writer.writeTextElement(xmlProductVersionElementName(), m_version.toString(coVersionNumber::AllParts));
    writer.writeTextElement(xmlPidElementName(), QString::number(m_pid));
    writer.writeEndElement();
    writer.writeEndDocument();
}
