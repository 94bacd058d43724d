#include "formulaparse.h"

#include "formulaparser.hpp"
#include "formulatexts.h"
#include "numbertext.h"

#include <algorithm>
#include <limits>

int coexprlex_init_extra(FormulaParse* extra, yyscan_t* scanner);
int coexprlex_destroy(yyscan_t scanner);
struct yy_buffer_state* coexpr_scan_bytes(const char* bytes, int size, yyscan_t scanner);

namespace {

constexpr uint replacementCharacter = 0xfffd;

// QString::toUtf8 would make half a surrogate pair a question mark, which is an operator. To the scanner all
// bytes beyond ASCII may belong to a name, so a blank beyond ASCII would hide the keyword in front of it.
QString scannable(QString text)
{
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i).unicode() > 0x7f && text.at(i).isSpace())
            text[i] = QLatin1Char(' ');
        else if (text.at(i).isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate())
            ++i;
        else if (text.at(i).isSurrogate())
            text[i] = QChar(replacementCharacter);
    }
    return text;
}

bool isContinuation(char byte)
{
    return (uchar(byte) & 0xc0) == 0x80;
}

// The text is valid UTF-8: QString made it.
uint codePoint(const char* bytes, std::size_t length)
{
    static constexpr uchar leadBits[] = {0x7f, 0x7f, 0x1f, 0x0f, 0x07};
    uint code = uchar(*bytes) & leadBits[length];
    for (std::size_t i = 1; i < length; ++i)
        code = code << 6 | (uchar(bytes[i]) & 0x3f);
    return code;
}

bool isNamePart(uint code, bool isFirst)
{
    if (code == '_' || QChar::isLetter(code))
        return true;
    return !isFirst && (QChar::isDigit(code) || QChar::isMark(code));
}

QString printable(const QString& token)
{
    constexpr int longest = 40;
    if (token.size() > longest)
        return printable(token.left(longest - 3)) + QStringLiteral("...");
    const QVector<uint> codes = token.toUcs4();
    if (codes.size() == 1 && !QChar::isPrint(codes.first()))
        return QStringLiteral("U+%1").arg(codes.first(), 4, 16, QLatin1Char('0')).toUpper();
    return token;
}

QStringList expectedTexts(const std::vector<FormulaToken>& expected)
{
    const auto has = [&expected](FormulaToken token) {
        return std::find(expected.begin(), expected.end(), token) != expected.end();
    };
    QStringList texts;
    if (has(FormulaToken::Operand))
        texts << FormulaTexts::tr("a number, a name, a function, a sign, \"not\", \"if\"")
              << QStringLiteral("\"(\"");
    else if (has(FormulaToken::Open) && !has(FormulaToken::Operator)) // else it would call the name before it
        texts << QStringLiteral("\"(\"");
    if (has(FormulaToken::Operator))
        texts << (has(FormulaToken::Comparison)
                      ? FormulaTexts::tr("an operator")
                      : FormulaTexts::tr("an operator other than a comparison (comparisons do not chain)"));
    if (has(FormulaToken::Close))
        texts << QStringLiteral("\")\"");
    if (has(FormulaToken::Else))
        texts << QStringLiteral("\"else\"");
    if (has(FormulaToken::Colon))
        texts << QStringLiteral("\":\"");
    if (has(FormulaToken::End))
        texts << FormulaTexts::tr("the end of the formula");
    return texts;
}

} // namespace

FormulaParse::FormulaParse(const QString& text)
    : m_text(scannable(text).toUtf8()), m_tree(std::make_unique<FormulaTree>())
{
}

std::unique_ptr<FormulaTree> FormulaParse::run()
{
    yyscan_t scanner = nullptr;
    if (coexprlex_init_extra(this, &scanner) != 0)
        throw std::bad_alloc();
    const std::unique_ptr<void, int (*)(yyscan_t)> owner(scanner, coexprlex_destroy);
    coexpr_scan_bytes(m_text.constData(), m_text.size(), scanner);
    if (coexprparse(scanner, *this) != 0)
        return nullptr;
    m_tree->nodes.back().parent = m_tree->root();
    return std::move(m_tree);
}

std::size_t FormulaParse::characterLength(const char* bytes, std::size_t size)
{
    std::size_t length = 1;
    while (length < size && isContinuation(bytes[length]))
        ++length;
    return length;
}

std::size_t FormulaParse::nameLength(const char* bytes, std::size_t size)
{
    std::size_t length = 0;
    while (length < size) {
        if (uchar(bytes[length]) < 0x80) { // the scanner's pattern lets only letters, digits and _ pass
            ++length;
            continue;
        }
        const std::size_t character = characterLength(bytes + length, size - length);
        if (!isNamePart(codePoint(bytes + length, character), length == 0))
            break;
        length += character;
    }
    return length;
}

double FormulaParse::number(const char* bytes, std::size_t size)
{
    double value = 0.0;
    if (!nNumberText::read(bytes, bytes + size, value))
        value = std::numeric_limits<double>::infinity(); // fails when it is evaluated
    return value;
}

quint32 FormulaParse::name(std::size_t skipped, std::size_t size)
{
    const std::string_view text(m_text.constData() + m_tokenBegin + skipped, size);
    const auto found = m_nameIndex.emplace(text, quint32(m_names.size()));
    if (found.second)
        m_names.push_back({text});
    return found.first->second;
}

quint32 FormulaParse::addNumber(double value)
{
    const quint32 node = add(FormulaKind::Number, 0);
    m_tree->nodes[node].number = value;
    return node;
}

quint32 FormulaParse::addVariable(quint32 name)
{
    Name& entry = m_names[name];
    if (entry.variable < 0) {
        entry.variable = m_tree->variables.size();
        m_tree->variables << QString::fromUtf8(entry.text.data(), int(entry.text.size()));
    }
    const quint32 node = add(FormulaKind::Variable, 0);
    m_tree->nodes[node].reference = quint32(entry.variable);
    return node;
}

quint32 FormulaParse::addFunction(quint32 name)
{
    Name& entry = m_names[name];
    if (entry.function < 0) {
        entry.function = m_tree->functions.size();
        m_tree->functions << QString::fromUtf8(entry.text.data(), int(entry.text.size()));
    }
    return quint32(entry.function);
}

quint32 FormulaParse::addCall(quint32 function, quint32 argument)
{
    const quint32 node = add(FormulaKind::Call, argument);
    m_tree->nodes[node].reference = function;
    return node;
}

quint32 FormulaParse::add(FormulaKind kind, quint32 a, quint32 b, quint32 c)
{
    std::vector<FormulaNode>& nodes = m_tree->nodes;
    const quint32 node = quint32(nodes.size());
    nodes.emplace_back();
    nodes[node].kind = kind;
    nodes[node].a = a;
    nodes[node].b = b;
    nodes[node].c = c;
    const quint32 children[] = {a, b, c};
    for (int i = 0; i < nFormula::operandCount(kind); ++i)
        nodes[children[i]].parent = node;
    return node;
}

std::pair<int, int> FormulaParse::lineAndColumn() const
{
    int line = 1;
    int column = 1;
    for (std::size_t i = 0; i < m_tokenBegin; ++i) {
        const char byte = m_text.at(int(i));
        if (byte == '\n') {
            ++line;
            column = 1;
        } else if (!isContinuation(byte)) {
            ++column;
        }
    }
    return {line, column};
}

void FormulaParse::tooDeep()
{
    const auto [line, column] = lineAndColumn();
    m_errorDetails = FormulaTexts::tr("Line %1, column %2: the formula is nested too deeply.")
                         .arg(QString::number(line), QString::number(column));
}

void FormulaParse::syntaxError(FormulaToken found, const std::vector<FormulaToken>& expected)
{
    if (found == FormulaToken::End)
        m_tokenBegin = m_tokenEnd;
    const auto [line, column] = lineAndColumn();
    const QByteArray token = m_text.mid(int(m_tokenBegin), int(m_tokenEnd - m_tokenBegin));
    const QString foundText = found == FormulaToken::End
        ? FormulaTexts::tr("the end of the formula")
        : QStringLiteral("'%1'").arg(printable(QString::fromUtf8(token)));
    QStringList texts = expectedTexts(expected);
    const QString last = texts.takeLast();
    const QString alternatives =
        texts.isEmpty() ? last : FormulaTexts::tr("%1 or %2").arg(texts.join(QStringLiteral(", ")), last);
    m_errorDetails = FormulaTexts::tr("Line %1, column %2: found %3, expected %4.")
                         .arg(QString::number(line), QString::number(column), foundText, alternatives);
}
