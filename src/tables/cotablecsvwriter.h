#pragma once

#include "cocsvwriter.h"
#include "kddatatable.h"

/// Writes a table: its name and comment, the titles of its columns with their units, its rows.
///
/// A column whose dimension has a unit chosen (setUnitIndex()) is converted to it, any other keeps its own.
/// With coCSVWriter::TitleRow the file is one that kdDataTable::importFromTextStream() reads back, unless a
/// decimal comma meets commas as separators or a table of one column: there a comma may mean either.
///
/// \code
/// coTableCSVWriter writer(table);
/// writer.setUnitIndex(kdUnitSystem::Stress, 2); // MPa
/// writer.write(QStringLiteral("flow curve.csv"));
/// \endcode
///
/// The writer has a copy of the table, which shares the values; later changes of the table do not show.
class KDQCORE_EXPORT coTableCSVWriter : public coCSVWriter {
    Q_DECLARE_TR_FUNCTIONS(coTableCSVWriter)

public:
    explicit coTableCSVWriter(const kdDataTable& table);

    void writeAdditionalInformation(QTextStream& stream) const override;
    void writeColumnHeader(QTextStream& stream) const override;
    QList<QVariant> getTokens(int row) const override;
    int nbElements() const override;

private:
    kdUnitSystem unitOf(const kdDataColumn& column) const;

    kdDataTable m_table;
};
