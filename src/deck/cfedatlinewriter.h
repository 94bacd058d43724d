#pragma once

#include <kdqcore_export.h>

#include <QCoreApplication>
#include <QList>
#include <QString>

#include <cstddef>
#include <cstdio>
#include <memory>
#include <string>

class cFeAbstractDatCard;
class QTextStream;
class StdioDevice;

#ifdef __clang__ // says that the enumerator "free" shadows the C library's function
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wshadow"
#endif

/// Writes the lines of a solver input deck: keyword lines, fields, lists over continuation lines, comments.
///
/// The solver reads two layouts, fixed columns and free (comma-separated) fields, each in standard and in
/// extended widths. The writer knows both, so that callers and cards only say what they write:
///
/// \code
/// QFile file(QStringLiteral("job.dat"));
/// if (!file.open(QIODevice::WriteOnly))
///     return false;
/// QTextStream stream(&file);
/// CFEDatLineWriter writer(CFEDatLineWriter::extended, CFEDatLineWriter::fixed);
/// writer.setFileHandler(&stream);
/// bool ok = writer.writeTitle(QStringLiteral("Plate in the standard fire"));
/// ok = writer.writeList(QList<double>{20.0, 400.0, 700.0}, 8) && ok;
/// ok = writer.flush() && ok;
/// \endcode
///
/// Nothing is thrown. A write operation returns false when there is no stream, or when the stream's status is
/// not QTextStream::Ok before or after a piece; it goes on after a failed piece and returns the AND of all
/// pieces. An empty text has nothing to write and counts as written. A stream buffers: a full disk shows at
/// the latest in flush(), whose result belongs to the answer whether the deck is good.
///
/// Texts: char and std::string texts are local 8-bit, QString texts are converted to it; they reach the file
/// once encoded by the stream's codec (by default the local one). Widths and lengths count local bytes. In
/// names, titles, keys, fields and comments a line break becomes one blank, since it would start a new deck
/// line. A NUL becomes a blank in every text. A null char pointer is an empty text. Numbers never depend on
/// the locale.
///
/// Not thread-safe: one writer, its stream included, belongs to one thread at a time. A caller's stream stays
/// the caller's and must outlive the writer; a stream made for a FILE* is the writer's, the FILE* stays the
/// caller's.
class KDQCORE_EXPORT CFEDatLineWriter {
    Q_DECLARE_TR_FUNCTIONS(CFEDatLineWriter) // tr and trUtf8

public:
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_CLANG("-Wshadow") // the enumerator and the C function of this name do not meet
    /// The layout. Any code but 0 is treated as free; only code 1 narrows extended reals to 19 columns.
    enum datFormat : int {
        fixed = 0, ///< fixed columns, no separators
        free = 1   ///< a comma after each field
    };
    QT_WARNING_POP

    /// The field widths. Any code but 0 is treated as extended.
    enum datExtensionMode : int {
        standard = 0, ///< integers 5 wide, reals 10
        extended = 1  ///< integers 10 wide, reals 20
    };

    /// Room that formatDouble() needs, in bytes.
    static constexpr int doubleBufferSize = 32;

    /// Columns of a line: no list line holds more fields than fit.
    static constexpr int maxLineWidth = 160;

    /// Write mode on, error count 0, no stream.
    CFEDatLineWriter(datExtensionMode mode, datFormat format);
    CFEDatLineWriter();
    ~CFEDatLineWriter();
    Q_DISABLE_COPY(CFEDatLineWriter)

    /// Writes to a stdio file from now on, through a stream that the writer makes and owns. The file stays
    /// the caller's: before closing it, call flush(), after which the writer leaves the file alone until the
    /// next write, or setFileHandler(nullptr), or destroy the writer, which both flush. Null leaves the
    /// writer without a stream.
    void setFileHandler(std::FILE* file);
    void setFileHandler(std::nullptr_t);

    /// Writes to the caller's stream from now on. A stream made earlier for a FILE* is flushed and kept until
    /// the next FILE* is set or the writer ends.
    void setFileHandler(QTextStream* stream);

    /// The last FILE* that was set; null if there was none.
    std::FILE* getFileHandler() const { return m_file; }

    void setFormat(datFormat format) { m_format = format; }
    datFormat getFormat() const { return m_format; }
    datExtensionMode getExtensionMode() const { return m_extensionMode; }

    /// Saves the current format and makes \a format current.
    void pushFormat(datFormat format);

    /// Makes the format saved last current again and returns it. Without a saved format the caller is at
    /// fault: a failed assertion is logged, the current format stays and is returned.
    datFormat popFormat();

    /// Off makes a dry run: every write operation touches no stream and returns true, except that texts and
    /// widths that would be refused are refused all the same.
    void setIsInWriteMode(bool on) { m_isInWriteMode = on; }
    bool isInWriteMode() const { return m_isInWriteMode; }

    /// A counter kept for the callers; no write operation changes it.
    int getErrorCount() const { return m_errorCount; }
    void resetErrorCount() { m_errorCount = 0; }

    /// Hands everything to the operating system: stream, its file device, FILE*. Returns whether all is well:
    /// false as soon as anything written before was lost, and without a stream unless write mode is off.
    bool flush();

    /// Lets the card write itself here and returns its result.
    bool writeCard(const cFeAbstractDatCard& card);

    /// \name Limits
    /// What a deck may hold: magnitudes below 1e100 and not below 1e-99 (or 0), exponents below 100.
    /// @{
    static constexpr double MAX_COORD_VALUE() { return 1e100; }
    static constexpr double MIN_COORD_VALUE() { return 1e-99; }
    static constexpr int MAX_DATFILE_EXP() { return 100; }
    /// @}

    /// Brings a value into the range that a deck can hold: below 1e-99 in magnitude (denormals too) it
    /// becomes 0.0, from 1e100 on it is divided by the power of ten that takes it below. Infinities and NaN
    /// stay as they are. Write operations do not apply it; callers do before writing coordinates.
    static void cropDoubleValue(double& value);

    /// Columns of an integer field: 5 or 10.
    int getMaxWidthForInt() const { return m_extensionMode == standard ? 5 : 10; }
    /// Columns of a real field, its comma included where extended: 10 or 20.
    int getMaxWidthForDouble() const { return m_extensionMode == standard ? 10 : 20; }

    /// How many fields of a width a list line holds at most; none for widths below 1.
    static constexpr int getMaxNumberOfItemsPerLine(int fieldWidth)
    {
        return fieldWidth > 0 ? maxLineWidth / fieldWidth : 0;
    }
    /// The same for a type of values, int or double: 32 or 16 integers, 16 or 8 reals.
    template <typename Value>
    int getMaxNumberOfItemsPerLine() const
    {
        return getMaxNumberOfItemsPerLine(widthFor(Value()));
    }
    int getMaxNumberOfItemsPerLineForInt() const { return getMaxNumberOfItemsPerLine<int>(); }
    int getMaxNumberOfItemsPerLineForDouble() const { return getMaxNumberOfItemsPerLine<double>(); }

    /// Prints a real as every real of a deck is printed, into \a buffer of at least doubleBufferSize bytes,
    /// ends it with NUL and returns its length W: 10 in standard mode, 20 in extended mode, 19 in extended
    /// free format. The text is that of 20 decimals in exponent form, correctly rounded, without the
    /// exponent's leading zeros, then cut to W columns: 1234.5678 gives "1.23456E+3". With \a leadingBlank a
    /// blank comes first and the text is that of 19 decimals. Infinities and NaN are right-justified: " inf".
    int formatDouble(double value, bool leadingBlank, char* buffer) const;

    /// \name Single fields
    /// @{

    /// Fixed: right-aligned in 5 or 10 columns; a longer number takes more. Free: the number and a comma.
    bool writeInt(int value);
    /// The field \a count times; stops at the first failure. A count below 1 writes nothing and is true.
    bool writeIntNTimes(int value, int count);

    /// \a leadingBlank matters only in fixed format.
    bool writeDouble(double value, bool leadingBlank = false);
    bool writeDoubleValue(double value);
    bool writeDoubleNTimes(double value, int count);

    /// Fixed: right-aligned in \a width columns, as it is for a width of 0 or less. Free: the text and a
    /// comma. Refused, in a dry run too: texts over 127 bytes; in fixed format also widths over 126 and a
    /// text longer than its width.
    bool writeString(const char* text, int width = 0);
    bool writeString(const std::string& text, int width = 0);
    bool writeString(const QString& text, int width = 0);

    /// Fixed: left-aligned in 10 or 20 columns; a longer key takes more. Free: the key and a comma. Keys over
    /// 127 bytes are refused.
    bool writeParameterSectionKey(const QString& key);
    bool writeParameterSectionKey(const char* key);
    bool writeParameterSectionKey(const std::string& key);
    /// @}

    /// \name Lists and line ends
    /// @{

    /// One item of a list. \a endOfLine ends its line, with the continuation mark " c" where \a continued.
    bool writeIntInList(int value, bool endOfLine, bool continued);
    bool writeDoubleInList(double value, bool endOfLine, bool continued);
    bool writeInList(int value, bool endOfLine, bool continued);
    bool writeInList(double value, bool endOfLine, bool continued);

    /// The whole list. A line ends after the most items that fit, after every item whose number, counted from
    /// the list's start, is a multiple of \a perLine, and after the last; all lines but the last bear the
    /// continuation mark. A \a perLine of 0 or an empty list writes nothing; a negative one counts as its
    /// magnitude. Takes constant memory, however long the list.
    bool writeList(const QList<int>& values, int perLine);
    bool writeList(const QList<double>& values, int perLine);
    bool writeDoubleValues(const QList<double>& values, int perLine);

    bool writeLineBreak();
    /// @}

    /// \name Comments
    /// @{
    bool writeCommentStart(); ///< "$ "
    bool writeCommentPart(int value);
    bool writeCommentPart(double value);
    bool writeCommentPart(const char* text);
    bool writeCommentPart(const std::string& text);
    bool writeCommentPart(const QString& text);

    /// One line, however long the text is.
    bool writeSingleCommentLine(const QString& text);
    bool writeSingleCommentLine(const char* text);
    bool writeSingleCommentLine(const std::string& text);

    /// As many lines of at most 160 bytes as the text needs: it is cut after every 158 bytes, or just before
    /// where that would split a character of several bytes. A text that ends with a full line is followed by
    /// an empty "$ ".
    bool writeCommentLine(const char* text);
    bool writeCommentLine(const std::string& text);
    bool writeCommentLine(const QString& text);
    /// @}

    /// \name Keyword lines and free text
    /// @{

    /// The text as it is, then the line end.
    bool writeKeywordLine(const char* text);
    bool writeKeywordLine(const std::string& text);
    bool writeKeywordLine(const QString& text);

    /// The text as it is, line breaks included.
    bool writeStringUnformatted(const char* text);
    bool writeStringUnformatted(const std::string& text);
    bool writeStringUnformatted(const QString& text);

    /// Both pieces joined. Characters of QString pieces outside Latin-1 become '?'. More than 1023 bytes are
    /// refused, in a dry run too.
    bool writeStringCombiUnformatted(const char* first, const char* second);
    bool writeStringCombiUnformatted(const std::string& first, const std::string& second);
    bool writeStringCombiUnformatted(const QString& first, const QString& second);
    bool writeStringCombiUnformatted(const char* first, int second);
    bool writeStringCombiUnformatted(const std::string& first, int second);
    bool writeStringCombiUnformatted(const QString& first, int second);
    bool writeStringCombiUnformatted(int first, const char* second);
    bool writeStringCombiUnformatted(int first, const std::string& second);
    bool writeStringCombiUnformatted(int first, const QString& second);

    /// The keyword as a string field of width 0, the number as an integer field, the line end.
    bool writeElement(int n);
    bool writeFeature(int n);
    bool writeNodal(int n);

    /// The keyword as a string field of width 0, at once followed by the text, as the solver reads it; the
    /// line end.
    bool writeLoadcase(const QString& name);
    bool writeLoadcase(const char* name);
    bool writeLoadcase(const std::string& name);
    bool writeTitle(const QString& text);
    bool writeTitle(const char* text);
    bool writeTitle(const std::string& text);
    /// @}

    /// The text with one blank for each line break and each NUL, as names are written. For cards that put a
    /// name through writeStringUnformatted.
    static QString singleLine(const QString& text);

private:
    int widthFor(int) const { return getMaxWidthForInt(); }
    int widthFor(double) const { return getMaxWidthForDouble(); }
    bool isFixed() const { return m_format == fixed; }

    bool writeIntFixedField(int value);
    bool writeIntFreeField(int value);
    bool writeDoubleFixedField(double value, bool leadingBlank);
    bool writeDoubleFreeField(double value);
    bool writeStringFixedField(const QByteArray& text, int width);
    bool writeStringFreeField(const QByteArray& text);

    bool writeField(const QByteArray& text, int width);
    bool writeKey(const QByteArray& key);
    bool writeKeywordAndNumber(const char* keyword, int n);
    bool writeKeywordAndText(const char* keyword, const QByteArray& text);
    bool writeCommentLines(const QByteArray& text);
    bool writeJoined(const QByteArray& first, const QByteArray& second);
    bool writeJoinedLatin1(const QByteArray& first, const QByteArray& second);

    char* formatInt(int value, char* out) const;
    char* formatReal(double value, char* out) const;
    char* formatItem(int value, bool bare, char* out) const;
    char* formatItem(double value, bool bare, char* out) const;
    template <typename Value>
    char* formatInList(Value value, bool endOfLine, bool continued, char* out) const;
    template <typename Value>
    bool writeItems(const QList<Value>& values, int perLine);

    bool isStreamGood() const;
    bool canBypassStream() const;
    bool put(const char* latin1, std::ptrdiff_t length);
    bool putText(const QByteArray& local);
    bool writeThrough(const char* bytes, std::ptrdiff_t length);

    bool m_isInWriteMode = true;
    int m_errorCount = 0;
    datFormat m_format;
    datExtensionMode m_extensionMode;
    QList<datFormat> m_formatStack;
    QTextStream* m_stream = nullptr;
    std::FILE* m_file = nullptr;
    std::unique_ptr<StdioDevice> m_ownDevice; // outlives the stream on it
    std::unique_ptr<QTextStream> m_ownStream;
};

#ifdef __clang__
#pragma clang diagnostic pop
#endif

using datFormat = CFEDatLineWriter::datFormat;
using datExtensionMode = CFEDatLineWriter::datExtensionMode;
