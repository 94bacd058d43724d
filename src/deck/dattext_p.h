#pragma once

#include <QByteArray>
#include <QString>

#include <string>

class QTextCodec;

/// Texts on their way into a deck, as local 8-bit bytes without NULs.
namespace nDatText {

QByteArray toBytes(const char* text);
QByteArray toBytes(const std::string& text);
QByteArray toBytes(const QString& text);
QByteArray toLatin1Bytes(const QString& text);

/// One blank for each line break; CR LF is one.
QByteArray singleLine(QByteArray text);

bool isAscii(const QByteArray& text);

/// How many bytes from \a start on a piece of at most \a most bytes takes, so that no character is split.
/// Where the bytes are no local text at all, \a most.
int pieceLength(const QByteArray& text, int start, int most);

/// True where ASCII characters are encoded as themselves, whatever was encoded before them.
bool keepsAscii(const QTextCodec& codec);

} // namespace nDatText
