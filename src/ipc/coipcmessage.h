#pragma once

#include <kdqcore_export.h>

#include <QString>

QT_BEGIN_NAMESPACE
class QXmlStreamReader;
class QXmlStreamWriter;
QT_END_NAMESPACE

/// A message between two processes of the family: an XML document that a coIpcController carries.
///
/// Applications derive their own messages and create them in coIpcController::createMessage():
///
/// \code
/// class JobStateMessage : public coIpcMessage {
/// public:
///     static QString messageType() { return QStringLiteral("JobState"); }
///     QString type() const override { return messageType(); }
///
///     void readXml(QXmlStreamReader& reader) override { m_state = reader.readElementText(); }
///
///     void writeXml(QXmlStreamWriter& writer) const override
///     {
///         writer.writeStartDocument();
///         writer.writeStartElement(xmlRootElementName());
///         writer.writeAttribute(xmlTypeAttributeName(), type());
///         writer.writeCharacters(m_state);
///         writer.writeEndElement();
///         writer.writeEndDocument();
///     }
/// };
/// \endcode
///
/// Keep messages small: see the one-read rule of coIpcController.
class KDQCORE_EXPORT coIpcMessage {
public:
    virtual ~coIpcMessage();

    /// Reads the content. The reader stands at the root element, whose attributes can still be asked for.
    /// What cannot be used is raised on the reader, and the message is dropped.
    virtual void readXml(QXmlStreamReader& reader) = 0;

    /// Writes the whole document: the root element, its attribute with type(), the content.
    virtual void writeXml(QXmlStreamWriter& writer) const = 0;

    /// The name that tells the other side which class reads the message; never empty.
    virtual QString type() const = 0;

    static QString xmlRootElementName() { return QStringLiteral("Message"); }
    static QString xmlTypeAttributeName() { return QStringLiteral("type"); }

protected:
    coIpcMessage() = default;
    coIpcMessage(const coIpcMessage&) = default;
    coIpcMessage(coIpcMessage&&) = default;
    coIpcMessage& operator=(const coIpcMessage&) = default;
    coIpcMessage& operator=(coIpcMessage&&) = default;
};
