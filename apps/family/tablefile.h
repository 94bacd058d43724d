#pragma once

#include <kdQCore/kdDataTable>

QT_BEGIN_NAMESPACE
class QIODevice;
QT_END_NAMESPACE

/// Files of tables.
namespace nTableFile {

/// Reads the text of a table (UTF-8, see kdDataTable::importFromTextStream()). False, with \a error for the
/// user (\a name stands for the file in it), where it is none.
bool readText(QIODevice& device, const QString& name, kdDataTable& table, QString& error);

} // namespace nTableFile
