#pragma once

#include <QStringList>

#include <functional>

class kdDataTable;
class kdReporterInterface;

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

/// Of a file of the table, roughly, in bytes.
qint64 expectedSize(const kdDataTable& table);

/// Replaces the file, or leaves it as it was; shows how much of \a expectedSize has been written. False where
/// that fails, \a error says why.
bool writeFile(const QString& path, const kdReporterInterface& reporter, qint64 expectedSize,
               const std::function<bool(QIODevice& device)>& content, QString& error);

} // namespace TableExport
