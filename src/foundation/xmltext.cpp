#include "xmltext_p.h"

#include <QXmlStreamWriter>

namespace {

bool isAllowedInXml(ushort c)
{
    return c >= 0x20 ? c < 0xfffe : (c == '\t' || c == '\n' || c == '\r');
}

} // namespace

QString textAllowedInXml(QString text)
{
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate())
            ++i;
        else if (c.isSurrogate() || !isAllowedInXml(c.unicode()))
            text[i] = QChar(QChar::ReplacementCharacter);
    }
    return text;
}

// A carriage return in plain form is read as a line feed.
void writeXmlText(QXmlStreamWriter& writer, const QString& element, const QString& text)
{
    writer.writeStartElement(element);
    const QString allowed = textAllowedInXml(text);
    int start = 0;
    for (int end; (end = allowed.indexOf(QLatin1Char('\r'), start)) >= 0; start = end + 1) {
        writer.writeCharacters(allowed.mid(start, end - start));
        writer.writeEntityReference(QStringLiteral("#13"));
    }
    writer.writeCharacters(allowed.mid(start));
    writer.writeEndElement();
}
