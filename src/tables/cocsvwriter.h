#pragma once

#include "cocsvbase.h"

#include <QCoreApplication>
#include <QList>
#include <QStringList>
#include <QVariant>

QT_BEGIN_NAMESPACE
class QIODevice;
class QTextStream;
QT_END_NAMESPACE

/// Writes commented CSV files in UTF-8: a header that tells where and when the file was made and in which
/// units, the titles of the columns, and one line a row.
///
/// Derived classes provide titles and rows. For rows that are computed elsewhere there is coCustomCSVWriter,
/// for tables coTableCSVWriter.
///
/// \code
/// coTableCSVWriter writer(table);
/// writer.initFromSettings();
/// if (!writer.write(QStringLiteral("flow curve.csv")))
///     ... // the log tells why
/// \endcode
///
/// Numbers have the fewest digits that read back as the same number. A cell is quoted only where it would
/// break the line otherwise (RFC 4180), also where a decimal comma meets a comma as separator. Lines end with
/// "\n"; a file that the writer itself opens has the line ends of the system.
///
/// Several threads may write with one object at the same time, each to a device of its own.
class KDQCORE_EXPORT coCSVWriter : public coCSVBase {
    Q_DECLARE_TR_FUNCTIONS(coCSVWriter)

public:
    /// What stands above the rows.
    enum Header {
        CommentedHeader, ///< everything, each line behind the comment prefix
        TitleRow,        ///< the titles as a line of cells: for programs that know no comments
        NoHeader
    };

    explicit coCSVWriter(const QString& fileName = QString());
    coCSVWriter(const coCSVWriter& other);
    coCSVWriter(coCSVWriter&& other) noexcept;
    coCSVWriter& operator=(const coCSVWriter& other);
    coCSVWriter& operator=(coCSVWriter&& other) noexcept;
    virtual ~coCSVWriter();

    /// Where write() without a target goes.
    QString fileName() const { return m_fileName; }
    void setFileName(const QString& fileName) { m_fileName = fileName; }

    Header header() const { return m_header; }
    void setHeader(Header header) { m_header = header; }

    /// Whether the file begins with a byte order mark, by which some spreadsheet programs know UTF-8; false
    /// at first.
    bool hasByteOrderMark() const { return m_hasByteOrderMark; }
    void setByteOrderMark(bool hasMark) { m_hasByteOrderMark = hasMark; }

    /// Whether texts that a spreadsheet program would run as a formula (= + - @ in front) get an apostrophe
    /// in front, which keeps them texts; false at first. Numbers stay as they are.
    bool protectsTexts() const { return m_protectsTexts; }
    void setProtectTexts(bool protects) { m_protectsTexts = protects; }

    /// False where there is no device, where it cannot be opened or written. A device that is not open is
    /// opened as text and stays open; one that is open for reading only is refused.
    bool write(QIODevice* device) const;
    /// Replaces the file. The log tells why that failed.
    bool write(const QString& fileName) const;
    bool write() const { return write(m_fileName); }

    // What derived classes provide, in the order of the file.

    /// More comment lines behind the units; none by default. Only asked for with the commented header.
    virtual void writeAdditionalInformation(QTextStream& stream) const;
    /// Nothing by default; see writeTitles(). Not asked for without header.
    virtual void writeColumnHeader(QTextStream& stream) const;
    /// The cells of a row, counted from 0. Numbers are written as numbers, a kdUnitValue in the unit chosen
    /// for its dimension (its own where none is), everything else as QVariant::toString() has it.
    virtual QList<QVariant> getTokens(int row) const = 0;
    virtual int nbElements() const = 0; ///< number of rows
    /// Named in the header; "Kaldoran" by default. The line is left out where it is empty.
    virtual QString productName() const;

    /// Product, date and time, and a comment line that holds nothing.
    void writeCommonHeader(QTextStream& stream, const QString& productName) const;
    /// A comment line for the unit of one dimension: "# Length: millimetre [mm]".
    void writeUnitHeader(QTextStream& stream, kdUnitSystem::Dimension dimension, int unitIndex) const;
    /// One line of cells; \a protectTexts as in setProtectTexts().
    void writeLine(QTextStream& stream, const QList<QVariant>& tokens, bool protectTexts = false) const;

protected:
    /// A comment line; line breaks in \a text become blanks.
    void writeComment(QTextStream& stream, const QString& text) const;
    /// The titles as the kind of header asks for: as comments behind a line that holds nothing, or as cells.
    void writeTitles(QTextStream& stream, const QStringList& titles) const;

private:
    void writeHeader(QTextStream& stream) const;

    QString m_fileName;
    Header m_header = CommentedHeader;
    bool m_hasByteOrderMark = false;
    bool m_protectsTexts = false;
};
