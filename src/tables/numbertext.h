#pragma once

#include <QString>
#include <QStringView>

/// Numbers in files. Always in C notation: QCoreApplication calls setlocale, after which the C library's own
/// functions follow the user's decimal mark.
namespace nNumberText {

/// Room that the longest text of a double needs, with some to spare.
constexpr int capacity = 32;

inline bool isBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

/// Writes the text of QString::number(value, 'g', 16) and returns its end; \a out has room for `capacity`
/// bytes.
char* writeRounded(char* out, double value);

/// Writes the shortest text that reads back as the same double and returns its end.
char* writeShortest(char* out, double value);
char* writeShortest(char* out, float value);

/// Reads the whole of [first, last), blanks around it and a plus sign allowed; "nan" and "inf" are numbers.
/// False for anything else, and for a number too large for a double; one too small becomes zero.
bool read(const char* first, const char* last, double& value);

/// The same for text as people write it: a decimal comma, the exponent letter of Fortran (1.5D+03) and the
/// minus sign of typesetters. A point and a comma in one number are refused: one of them groups digits.
bool readTyped(QStringView text, double& value, bool decimalComma);

/// What readTyped() understands, in C notation and with the digits as they were.
QString plain(QStringView text, bool decimalComma);

} // namespace nNumberText
