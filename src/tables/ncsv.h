#pragma once

#include <kdqcore_export.h>

#include <QLocale>
#include <QString>

/// The separators of CSV files and their texts.
///
/// CSV stands for a family of forms: fields are set apart by a semicolon where the decimal mark is a comma,
/// by a comma elsewhere, by tabs or blanks for plotting programs. Settings hold the numbers below.
///
/// \code
/// nCSV::separatorTypeFromString(QStringLiteral("|"));    // nCSV::CustomSeparator
/// nCSV::separatorFromType(nCSV::Comma);                  // ","
/// nCSV::localeForDecimalSeparator(nCSV::DecimalComma);   // writes 1234.5 as 1234,5
/// \endcode
///
/// Thread-safe: there is no state.
namespace nCSV {

/// The numbers are stored in settings.
enum e_FieldSeparator : int {
    NoSeparator = -1, ///< of an empty text
    Semicolon = 0,
    Comma = 1,
    CustomSeparator = 2, ///< any other text, which is stored beside the type
    Tabulator = 3,       ///< only chosen by number: as a text a tab is a custom separator
    Blank = 4
};

/// The numbers are stored in settings.
enum e_DecimalSeparator : int { DecimalPoint = 0, DecimalComma = 1 };

/// Never Tabulator.
KDQCORE_EXPORT e_FieldSeparator separatorTypeFromString(const QString& separator);

/// ";", "," or " " for the types that stand for one of these; a tab for every other number, so that even a
/// file of a later version's settings gives a line that can be taken apart.
KDQCORE_EXPORT QString separatorFromType(int type);

/// A locale with this decimal mark and without group separators; the point for every other number.
KDQCORE_EXPORT QLocale localeForDecimalSeparator(int decimalSeparator);

/// The locale with its group separator switched off and its other options as they were.
KDQCORE_EXPORT QLocale omitGroupSeparator(QLocale locale);

} // namespace nCSV
