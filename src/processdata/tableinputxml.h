#pragma once

#include "cotableinput.h"

/// The elements that hold one input of a stage. They bear one set of names in a stage itself and another in
/// a block of their own.
class TableInputXml {
public:
    /// "mode", "tableName", "fixed_value", "table"
    static const TableInputXml& block();
    /// "stage_htc_mode", "stage_htc_material", "stage_htc_fixed_value", "stage_htc_table"
    static const TableInputXml& heatTransfer();

    void write(QXmlStreamWriter& writer, const coTableInput& input) const;
    bool has(const QString& element) const;
    /// Reads the element at whose start the reader stands. False where that fails; the reader may already
    /// have an error then, or not.
    bool read(QXmlStreamReader& reader, const QString& element, coTableInput& input) const;

    /// Nothing is written for an input without a table.
    static void writeTable(QXmlStreamWriter& writer, const QString& element, const coTableInput& input);
    static bool readTable(QXmlStreamReader& reader, coTableInput& input);
    static bool readConstant(QXmlStreamReader& reader, const QString& element, coTableInput& input);

private:
    TableInputXml(const QString& mode, const QString& tableName, const QString& constant,
                  const QString& table)
        : m_mode(mode), m_tableName(tableName), m_constant(constant), m_table(table)
    {
    }

    QString m_mode;
    QString m_tableName;
    QString m_constant;
    QString m_table;
};
