#pragma once

#include <QString>
#include <QXmlStreamWriter>

class kdDataTable;

/// Writes a table as an element of XML. The form for the job editor ends every value of a row with a
/// semicolon.
class TableXmlWriter {
public:
    enum ValueEnd { SeparatedValues, TerminatedValues };

    TableXmlWriter(QXmlStreamWriter& writer, const kdDataTable& table) : m_writer(writer), m_table(table) { }

    void write(const QString& element, ValueEnd valueEnd);

private:
    void writeHead();
    void writeColumn(int index);
    void writeRows(ValueEnd valueEnd);
    void writeText(const QString& element, const QString& text);

    QXmlStreamWriter& m_writer;
    const kdDataTable& m_table;
};
