#pragma once

#include "kddatacolumn.h"
#include "kddatatable.h"

#include <QCoreApplication>
#include <QXmlStreamReader>

#include <memory>
#include <string>
#include <vector>

/// Reads what TableXmlWriter writes, in both forms. Gathers everything before a table is touched.
class TableXmlReader {
    Q_DECLARE_TR_FUNCTIONS(kdDataTable)

public:
    explicit TableXmlReader(QXmlStreamReader& reader) : m_reader(reader) { }

    /// False with an error on the stream reader where the element is missing or does not hold a table.
    bool read(const QString& element);

    QString name() const { return m_name; }
    QString idTag() const { return m_idTag; }
    QString comment() const { return m_comment; }
    kdDataTable::Type type() const { return kdDataTable::Type(m_type); }
    int columns() const { return int(m_columns.size()); }
    std::unique_ptr<kdDataColumn> createColumn(int index) const;

private:
    bool findElement(const QString& element);
    void readElement();
    void readColumn();
    void readRow();
    void collectText();
    void readValues();
    void checkRow(int values);
    void checkRows();
    void failRow(int row, int values, int columns);
    QString readText();
    int toInt(const QString& text, int absent);
    int toInt(const QXmlStreamAttributes& attributes, const char* name, int absent);
    kdUnitSystem readUnit(const QXmlStreamAttributes& attributes, int type);

    QXmlStreamReader& m_reader;
    QString m_name;
    QString m_idTag;
    QString m_comment;
    int m_type = 0;
    std::vector<kdDataColumn> m_columns; // without values
    std::string m_rowText;
    std::vector<double> m_values; // row by row
    int m_rows = 0;
    int m_rowWidth = 0;
};
