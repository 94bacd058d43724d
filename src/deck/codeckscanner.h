#pragma once

#include <kdqcore_export.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

class QIODevice;

/// One line of a deck as coDeckScanner finds it. The bytes are the scanner's and last until its next line.
struct coDeckLine {
    enum Kind {
        Blank,
        Comment, ///< begins with "$"
        Keyword, ///< begins with a letter: an option's keyword, or one of its names
        Data     ///< begins with a number
    };

    Kind kind = Blank;
    const char* begin = nullptr;
    const char* end = nullptr;         ///< without line end
    const char* endOfFields = nullptr; ///< before the continuation mark of a continued line, else end
    qint64 number = 0;                 ///< counted from 1
    qint64 offset = 0;                 ///< of the first byte in the deck
    qint64 size = 0;                   ///< in bytes, line end included
    bool isCut = false;                ///< too long to be kept whole: \a end is not its end

    int length() const { return static_cast<int>(end - begin); }
    QByteArray bytes() const { return QByteArray(begin, length()); }
    /// Whether the next line goes on with this one's record.
    bool isContinued() const { return endOfFields != end; }
    /// Whether fields are separated by commas.
    bool isFree() const;
};

/// Reads the lines of an input deck one by one, from any device, in constant memory however large the deck.
///
/// Lines end with LF or CR LF; the last may lack its end. Of a line of more than longestLine bytes the
/// beginning is kept and the rest passed over.
///
/// \code
/// coDeckScanner scanner(file);
/// while (scanner.next())
///     if (scanner.line().kind == coDeckLine::Keyword)
///         show(scanner.line().number, QString::fromLocal8Bit(scanner.line().bytes()));
/// \endcode
///
/// Not thread-safe. The device stays the caller's, must be open for reading and outlive the scanner.
class KDQCORE_EXPORT coDeckScanner {
    Q_DECLARE_TR_FUNCTIONS(coDeckScanner)

public:
    static constexpr int longestLine = 64 * 1024;

    explicit coDeckScanner(QIODevice& deck);
    /// Only the next \a most bytes; needs no more memory than those.
    coDeckScanner(QIODevice& deck, qint64 most);
    Q_DISABLE_COPY(coDeckScanner)

    /// Goes to the next line; false at the end of the deck and when reading fails.
    bool next();
    const coDeckLine& line() const { return m_line; }

    /// Whether the device failed, and what it said.
    bool hasFailed() const { return !m_errorText.isEmpty(); }
    QString errorText() const { return m_errorText; }

private:
    bool fill();
    bool readLongLine();
    void take(const char* begin, const char* end, qint64 size);

    QIODevice& m_deck;
    qint64 m_left; ///< bytes still to be read
    QByteArray m_buffer;
    QByteArray m_longLine;
    int m_begin = 0; ///< of what is not yet read, in the buffer
    int m_end = 0;
    coDeckLine m_line;
    QString m_errorText;
};
