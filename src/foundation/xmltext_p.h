#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QXmlStreamWriter;
QT_END_NAMESPACE

/// The text as XML can hold it: control characters and halves of surrogate pairs, which have no form there,
/// not even an escaped one, become U+FFFD.
QString textAllowedInXml(QString text);

/// Writes an element of text that is read back the same, as far as XML can hold it.
void writeXmlText(QXmlStreamWriter& writer, const QString& element, const QString& text);
