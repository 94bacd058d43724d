#pragma once

#include "cocsvbase.h"

#include <QVariant>

/// Builds one line of a CSV file, cell by cell.
///
/// A cell that would break the line is quoted as RFC 4180 says: one that holds the separator, a quote or a
/// line break, a first cell that would pass for a comment, and an empty cell that stands alone.
class CsvLine {
public:
    CsvLine(const coCSVBase& form, int cells);

    /// A text that a spreadsheet would run as a formula gets an apostrophe in front.
    void protectTexts(bool protects) { m_protectsTexts = protects; }

    void append(const QVariant& token);
    void appendText(const QString& text);

    /// The whole line with its end; nothing can be appended afterwards.
    const QString& finish();

private:
    void appendNumber(double value);
    void appendDigits(char* first, char* last);
    void appendCell(QStringView cell);
    bool breaksLine(QStringView cell) const;
    bool runsAsFormula(const QString& text) const;

    const coCSVBase& m_form;
    const QString m_delimiter;
    const QString m_commentPrefix;
    const bool m_hasDecimalComma;
    bool m_protectsTexts = false;
    int m_cells = 0;
    QString m_text;
};
