#pragma once

#include <QString>
#include <QXmlStreamReader>

/// Values of text elements. The reader stands at the start of the element and afterwards at its end; child
/// elements are passed over.
namespace nXmlValues {

inline QString readText(QXmlStreamReader& reader)
{
    return reader.readElementText(QXmlStreamReader::SkipChildElements);
}

// These are false, and the value stays, where the text is none or the document is broken.

inline bool read(QXmlStreamReader& reader, int& value)
{
    bool isNumber = false;
    const int number = readText(reader).trimmed().toInt(&isNumber);
    if (isNumber && !reader.hasError())
        value = number;
    return isNumber && !reader.hasError();
}

inline bool read(QXmlStreamReader& reader, bool& value)
{
    const QString text = readText(reader).trimmed();
    const bool isTrue = text == QLatin1String("true");
    const bool isRead = !reader.hasError() && (isTrue || text == QLatin1String("false"));
    if (isRead)
        value = isTrue;
    return isRead;
}

} // namespace nXmlValues
