#pragma once

#include <kdQCore/kdUnitSystem>

#include <QString>
#include <QStringList>
#include <QStringView>
#include <QVector>

/// The lines of measured-data files: what kind they are, their fields, names and units.
namespace nMeasuredText {

/// Separates the fields of lines that are set apart by blanks.
constexpr QChar blanks = QLatin1Char(' ');

struct ColumnHeader {
    QString name;
    kdUnitSystem unit;
    bool hasUnit = false;
};

/// A separator of one or more characters; a single blank stands for any run of white space.
struct Separator {
    QString text;
    bool isBlank() const { return text == blanks; }
    /// Whether a comma inside a field can only be a decimal mark.
    bool leavesComma() const { return !text.contains(QLatin1Char(',')); }
};

/// Separator of a line of values: ';' where there is one, else the tab, else '|', else the comma, else
/// blanks.
Separator separatorOf(QStringView line);

/// Whether nothing but separators and white space is on the line.
bool isEmptyLine(QStringView line);

/// Whether the line begins with one of the usual comment marks.
bool isComment(QStringView line);

/// Trimmed fields, quotation marks taken off, empty fields at the end dropped. \a fields is filled anew.
void split(QStringView line, const Separator& separator, QVector<QStringView>& fields);

/// The names of a header line above \a columns columns of values. Names may hold blanks, brackets may hold
/// separators, and the header may be separated otherwise than the values; the split that gives one field for
/// each column is taken. Without such a split the fields by \a separator are returned.
QStringList headerFields(const QString& line, const Separator& separator, int columns);

/// Name and unit of "yield stress [MPa]", "yield stress (MPa)" or "yield stress / MPa". A text whose unit is
/// not known is the name as a whole.
ColumnHeader columnHeader(const QString& field);

/// The unit of a field that holds only a unit, in brackets or not.
bool readUnit(QStringView field, kdUnitSystem& unit);

} // namespace nMeasuredText
