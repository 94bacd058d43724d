#include "shelllineparser.h"

#include <cstdint>
#include <cstdlib>

/// The parameters of every statement split into words, and the words survive being quoted and read again.
static void check(const ShellStatement& statement)
{
    QStringList words;
    QStringList again;
    QString error;
    if (!ShellLineParser::splitWords(statement.parameters, words, error))
        std::abort();
    QStringList quoted;
    for (const QString& word : words)
        quoted.append(ShellLineParser::quoted(word));
    if (!ShellLineParser::splitWords(quoted.join(QLatin1Char(' ')), again, error) || again != words)
        std::abort();
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    ShellLineParser parser;
    const QString script = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const QStringList lines = script.split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        const bool isRead = parser.addLine(line);
        if (!isRead && parser.errorText().isEmpty())
            std::abort();
        for (const ShellStatement& statement : parser.takeStatements())
            check(statement);
    }
    parser.finish();
    return 0;
}
