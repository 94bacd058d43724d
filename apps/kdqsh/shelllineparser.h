#pragma once

#include <QCoreApplication>
#include <QStringList>
#include <QVector>

/// One command as it was typed, without comment and separator.
struct ShellStatement {
    QString name;       ///< the first word, unquoted
    QString parameters; ///< the rest as typed, quotes included
    int line = 0;       ///< where it starts, counted from 1
};

/// What has been typed so far of a statement, for completion.
struct ShellTyped {
    QStringList words;      ///< that are complete
    QString last;           ///< the word at the end, unquoted, which may go on; empty behind a blank
    int lastBegin = 0;      ///< where it begins, with its quote
    QChar quote;            ///< that opened the last word; null without
    bool isComment = false; ///< nothing that is read any more
};

/// Turns the lines of a script into statements.
///
/// - Statements are separated by line ends and by ";".
/// - Words are separated by blanks. A word that begins with " or ' reaches to the next such quote and may
/// hold
///   blanks, ";" and "#"; a doubled quote inside it stands for the quote itself. There are no escapes, so
///   that Windows paths can be written as they are, and a quote within a word ("Young's") is an ordinary
///   character.
/// - "#" at the start of a word opens a comment that reaches to the end of the line.
/// - A single "\" as the last word of a line continues the statement on the next one.
///
/// \code
/// ShellLineParser parser;
/// if (!parser.addLine(QStringLiteral("table import 'my curve.csv' as curve; table list # all")))
///     report(parser.errorText());
/// for (const ShellStatement& statement : parser.takeStatements())
///     run(statement);
/// \endcode
///
/// A line that cannot be read is refused whole. Any text is safe input.
class ShellLineParser {
    Q_DECLARE_TR_FUNCTIONS(ShellLineParser)

public:
    /// The words of \a text, in which ";" has no meaning outside quotes other than to end a word. False where
    /// a quote is not closed; \a error then says so.
    static bool splitWords(const QString& text, QStringList& words, QString& error);

    /// \a word in a spelling that is read as exactly this one word; it must hold no line break.
    static QString quoted(const QString& word);

    /// The last statement of \a text, whose last quote may be open.
    static ShellTyped typed(const QString& text);

    bool addLine(const QString& line);
    bool needsMoreLines() const { return m_isContinued; }
    /// True where input ended within a continued statement, which is then dropped.
    bool finish();
    /// Forgets a continued statement.
    void drop();
    QString errorText() const { return m_errorText; }
    int errorLine() const { return m_firstLine; }

    QVector<ShellStatement> takeStatements();

private:
    bool parse(const QString& text);

    QVector<ShellStatement> m_statements;
    QString m_pending;
    QString m_errorText;
    int m_lineNumber = 0;
    int m_firstLine = 0;
    bool m_isContinued = false;
};
