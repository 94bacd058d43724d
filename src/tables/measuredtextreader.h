#pragma once

#include "measuredtextfields.h"

#include <QCoreApplication>
#include <QList>
#include <QStringList>
#include <QTextStream>

#include <vector>

/// Reads a text file of measured values: see kdDataTable::importFromTextStream for what it takes.
///
/// Throws kdTypedException<QPair<int,int>> with the line of the text and the field in it, both counted
/// from 1. Time and memory grow with the text that is there.
class MeasuredTextReader {
    Q_DECLARE_TR_FUNCTIONS(kdDataTable)

public:
    explicit MeasuredTextReader(QTextStream& stream);

    /// Has read() append the fields of the values' lines to \a rows, in C notation.
    void collectTexts(QList<QStringList>* rows) { m_texts = rows; }

    void read();

    const QVector<nMeasuredText::ColumnHeader>& headers() const { return m_headers; } ///< one for each column
    const QList<QStringList>& headerRows() const
    {
        return m_headerRows;
    } ///< fields of the header lines as read
    int columns() const { return m_headers.size(); }
    int rows() const { return m_rows; }
    double value(int row, int column) const;

private:
    struct TextRow {
        QString text;
        int line;
    };

    void readLines(const QString& text);
    void readLine(const QString& line);
    bool readDescription(const QString& line);
    bool readUnitRow(const QString& line);
    bool takeAsHeader(const QString& line);
    bool isHeader(const QString& line);
    void readDataRow(const QString& line);
    void readValues();
    void collectFields();
    void finishHeader(int columns);
    QStringList headerFields(const TextRow& row, int columns);
    void takeTitlesFromComment(int columns);
    [[noreturn]] void fail(int column, const QString& message) const;
    [[noreturn]] void failCount(const QString& message) const;

    QTextStream& m_stream;
    int m_line = 0;
    int m_rows = 0;
    bool m_described = false;
    bool m_hasData = false;
    nMeasuredText::Separator m_separator;
    QVector<TextRow> m_textRows; // names, then units
    QString m_lastComment;
    QVector<nMeasuredText::ColumnHeader> m_headers;
    QList<QStringList> m_headerRows;
    QList<QStringList>* m_texts = nullptr;
    QVector<QStringView> m_fields; // of the line at hand
    std::vector<double> m_values;  // row by row
};
