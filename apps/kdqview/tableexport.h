#pragma once

#include <QStringList>

class kdDataTable;

QT_BEGIN_NAMESPACE
class QIODevice;
QT_END_NAMESPACE

/// The forms in which a table can be written. All keep its comment: text and CSV as comment lines above the
/// rest, where the table has one.
namespace TableExport {

enum Form {
    Xml,  ///< everything the table holds
    Text, ///< values with dimensions, units and names of the columns, and every digit
    Csv   ///< a line of titles with units and the values, for spreadsheets, as the user's settings have it
};

/// By the ending of the file's name: "xml", "csv", text for all others.
Form formOf(const QString& path);
/// One for each form.
QStringList endings();

bool write(const kdDataTable& table, QIODevice& device, Form form);

} // namespace TableExport
