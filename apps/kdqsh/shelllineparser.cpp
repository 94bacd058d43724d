#include "shelllineparser.h"

#include <utility>

namespace {

struct Token {
    enum Kind { Word, Separator, End, OpenQuote, TextAfterQuote };

    Kind kind = End;
    QString text;
    int begin = 0;
    int end = 0;
    bool isQuoted = false;
};

bool endsWord(QChar c)
{
    return c.isSpace() || c == QLatin1Char(';');
}

bool isQuote(QChar c)
{
    return c == QLatin1Char('"') || c == QLatin1Char('\'');
}

Token quotedWord(const QString& line, Token token)
{
    const QChar quote = line.at(token.begin);
    token.isQuoted = true;
    int i = token.begin + 1;
    for (; i < line.size(); ++i) {
        if (line.at(i) != quote) {
            token.text.append(line.at(i));
        } else if (i + 1 < line.size() && line.at(i + 1) == quote) {
            token.text.append(quote);
            ++i;
        } else {
            break;
        }
    }
    token.end = i + 1;
    if (i >= line.size())
        token.kind = Token::OpenQuote;
    else if (token.end < line.size() && !endsWord(line.at(token.end)))
        token.kind = Token::TextAfterQuote;
    return token;
}

Token nextToken(const QString& line, int from)
{
    Token token;
    while (from < line.size() && line.at(from).isSpace())
        ++from;
    token.begin = token.end = from;
    if (from >= line.size() || line.at(from) == QLatin1Char('#'))
        return token;
    token.kind = Token::Word;
    if (line.at(from) == QLatin1Char(';')) {
        token.kind = Token::Separator;
        ++token.end;
        return token;
    }
    if (isQuote(line.at(from)))
        return quotedWord(line, token);
    while (token.end < line.size() && !endsWord(line.at(token.end)))
        ++token.end;
    token.text = line.mid(token.begin, token.end - token.begin);
    return token;
}

bool isFault(const Token& token)
{
    return token.kind == Token::OpenQuote || token.kind == Token::TextAfterQuote;
}

QString faultText(const QString& line, const Token& token)
{
    if (token.kind == Token::OpenQuote)
        return ShellLineParser::tr("The quote %1 in column %2 is not closed.")
            .arg(QString(line.at(token.begin)), QString::number(token.begin + 1));
    return ShellLineParser::tr("A blank is missing after the closing quote in column %1.").arg(token.end);
}

} // namespace

bool ShellLineParser::splitWords(const QString& text, QStringList& words, QString& error)
{
    words.clear();
    for (Token token = nextToken(text, 0); token.kind != Token::End; token = nextToken(text, token.end)) {
        if (isFault(token)) {
            error = faultText(text, token);
            return false;
        }
        if (token.kind == Token::Word)
            words.append(token.text);
    }
    return true;
}

QString ShellLineParser::quoted(const QString& word)
{
    bool isPlain = !word.isEmpty() && !isQuote(word.at(0)) && word.at(0) != QLatin1Char('#')
        && word != QLatin1String("\\");
    for (const QChar c : word)
        isPlain = isPlain && !endsWord(c);
    if (isPlain)
        return word;
    QString inner = word;
    inner.replace(QLatin1Char('"'), QLatin1String("\"\""));
    return QLatin1Char('"') + inner + QLatin1Char('"');
}

ShellTyped ShellLineParser::typed(const QString& text)
{
    ShellTyped typed;
    for (int from = 0;;) {
        const Token token = nextToken(text, from);
        from = token.end;
        typed.lastBegin = token.begin;
        if (token.kind == Token::Separator) {
            typed.words.clear();
        } else if (token.kind == Token::End) {
            typed.isComment = token.begin < text.size();
            return typed;
        } else if (token.end >= text.size()) {
            typed.last = token.text;
            if (token.isQuoted)
                typed.quote = text.at(token.begin);
            return typed;
        } else {
            typed.words.append(token.text);
        }
    }
}

bool ShellLineParser::addLine(const QString& line)
{
    ++m_lineNumber;
    if (!m_isContinued)
        m_firstLine = m_lineNumber;
    const QString text = std::exchange(m_pending, QString()) + line;
    m_isContinued = false;
    return parse(text);
}

bool ShellLineParser::parse(const QString& text)
{
    QVector<ShellStatement> statements;
    ShellStatement current;
    int parametersBegin = -1;
    const auto closeStatement = [&](int end) {
        if (parametersBegin >= 0) {
            current.parameters = text.mid(parametersBegin, end - parametersBegin).trimmed();
            statements.append(current);
        }
        parametersBegin = -1;
    };

    for (int from = 0;;) {
        const Token token = nextToken(text, from);
        from = token.end;
        if (isFault(token)) {
            m_errorText = faultText(text, token);
            return false;
        }
        if (token.kind == Token::Word && !token.isQuoted && token.text == QLatin1String("\\")
            && nextToken(text, from).begin >= text.size()) {
            m_isContinued = true;
            m_pending = text.left(token.begin);
            return true;
        }
        if (token.kind == Token::Word && parametersBegin < 0) {
            current.name = token.text;
            current.line = m_firstLine;
            parametersBegin = token.end;
        } else if (token.kind != Token::Word) {
            closeStatement(token.begin);
        }
        if (token.kind == Token::End)
            break;
    }
    m_statements += statements;
    return true;
}

void ShellLineParser::drop()
{
    m_isContinued = false;
    m_pending.clear();
}

bool ShellLineParser::finish()
{
    if (!m_isContinued)
        return false;
    drop();
    m_errorText = tr("The input ends within a continued line.");
    return true;
}

QVector<ShellStatement> ShellLineParser::takeStatements()
{
    return std::exchange(m_statements, {});
}
