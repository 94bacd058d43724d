#include "ipcpeer.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

void IpcTextMessage::readXml(QXmlStreamReader& reader)
{
    m_text = reader.readElementText();
}

void IpcTextMessage::writeXml(QXmlStreamWriter& writer) const
{
    writer.writeStartDocument();
    writer.writeStartElement(xmlRootElementName());
    writer.writeAttribute(xmlTypeAttributeName(), type());
    writer.writeCharacters(m_text);
    writer.writeEndElement();
    writer.writeEndDocument();
}

QSharedPointer<coIpcMessage> IpcPeer::createMessage(const QString& type) const
{
    if (type == IpcTextMessage::messageType())
        return QSharedPointer<IpcTextMessage>::create();
    return coIpcController::createMessage(type);
}

void IpcPeer::messageReceived(QSharedPointer<coIpcMessage> message)
{
    if (const auto text = message.dynamicCast<IpcTextMessage>()) {
        Q_EMIT signalTextReceived(text->text());
        return;
    }
    m_hasGreeted = true;
    Q_EMIT signalGreetingReceived();
}
