#pragma once

#include "formulatree.h"

#include <QByteArray>
#include <QCoreApplication>

#include <memory>
#include <string_view>
#include <unordered_map>
#include <utility>

/// What a token means to the reader of an error text. One token stands for each group that always comes
/// together.
enum class FormulaToken { End, Operand, Operator, Comparison, Open, Close, Else, Colon, Other };

/// The scanner's and the parser's common state for one text.
class FormulaParse {
public:
    explicit FormulaParse(const QString& text);

    /// Null where the text does not parse; errorDetails() then says why.
    std::unique_ptr<FormulaTree> run();
    QString errorDetails() const { return m_errorDetails; }

    /// \name For the scanner
    /// @{
    void advance(std::size_t length)
    {
        m_tokenBegin = m_tokenEnd;
        m_tokenEnd += length;
    }
    /// Gives back all but the first \a length bytes of the token.
    void shorten(std::size_t length) { m_tokenEnd = m_tokenBegin + length; }
    /// Of the UTF-8 bytes: how many at the front make a name; 0 where they do not begin one.
    static std::size_t nameLength(const char* bytes, std::size_t size);
    static std::size_t characterLength(const char* bytes, std::size_t size);
    static double number(const char* bytes, std::size_t size);
    /// The name of \a size bytes that begins \a skipped bytes into the token.
    quint32 name(std::size_t skipped, std::size_t size);
    /// @}

    /// \name For the parser
    /// @{
    quint32 addNumber(double value);
    quint32 addVariable(quint32 name);
    quint32 addFunction(quint32 name);
    quint32 addCall(quint32 function, quint32 argument);
    quint32 add(FormulaKind kind, quint32 a, quint32 b = 0, quint32 c = 0);
    void tooDeep();
    void syntaxError(FormulaToken found, const std::vector<FormulaToken>& expected);
    /// @}

private:
    struct Name {
        std::string_view text;
        int variable = -1;
        int function = -1;
    };

    std::pair<int, int> lineAndColumn() const;

    QByteArray m_text; // UTF-8, as the scanner reads it
    std::size_t m_tokenBegin = 0;
    std::size_t m_tokenEnd = 0;
    std::vector<Name> m_names;
    std::unordered_map<std::string_view, quint32> m_nameIndex;
    std::unique_ptr<FormulaTree> m_tree;
    QString m_errorDetails;
};
