#include "programhelp.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>

#include <algorithm>

namespace {

/// A text that roff prints as it is.
QString escaped(QString text)
{
    return text.replace(QLatin1Char('\\'), QLatin1String("\\e"))
        .replace(QLatin1Char('"'), QLatin1String("\\(dq"))
        .replace(QLatin1Char('\''), QLatin1String("\\(aq"))
        .replace(QLatin1Char('-'), QLatin1String("\\-"));
}

QString optionList(const QList<QCommandLineOption>& options)
{
    QString text = QStringLiteral(".Bl -tag -width Ds\n");
    for (const QCommandLineOption& option : options) {
        QStringList flags;
        for (const QString& name : option.names())
            flags.append(QStringLiteral("Fl %1%2").arg(QLatin1String(name.size() > 1 ? "\\-" : ""), name));
        text += QLatin1String(".It ") + flags.join(QLatin1String(" , "));
        if (!option.valueName().isEmpty())
            text += QLatin1String(" Ar ") + option.valueName();
        text += QLatin1Char('\n') + nManual::sentences(option.description());
    }
    return text + QLatin1String(".El\n");
}

QString argumentList(const QVector<ProgramHelp::Argument>& arguments)
{
    QString text = QStringLiteral(".Bl -tag -width Ds\n");
    for (const ProgramHelp::Argument& argument : arguments)
        text += QStringLiteral(".It Ar %1\n").arg(nManual::plain(argument.name))
            + nManual::sentences(argument.description);
    return text + QLatin1String(".El\n");
}

QString date()
{
    bool isGiven = false;
    const qint64 seconds = qEnvironmentVariable("SOURCE_DATE_EPOCH").toLongLong(&isGiven);
    const QDateTime time =
        isGiven ? QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC) : QDateTime::currentDateTime();
    return QLocale::c().toString(time.date(), QStringLiteral("MMMM d, yyyy"));
}

} // namespace

QString nManual::plain(const QString& text)
{
    QStringList words = text.simplified().split(QLatin1Char(' '));
    for (QString& word : words)
        word = QLatin1String("\\&") + escaped(word);
    return words.join(QLatin1Char(' '));
}

QString nManual::sentences(const QString& text)
{
    constexpr int longestLine = 78;
    QString lines;
    int length = 0;
    const QStringList words = escaped(text.simplified()).split(QLatin1Char(' '));
    for (const QString& word : words) {
        const bool isNewLine = lines.endsWith(QLatin1Char('.')) || length + word.size() > longestLine;
        if (!lines.isEmpty())
            lines += QLatin1Char(isNewLine ? '\n' : ' ');
        length = (isNewLine ? 0 : length + 1) + static_cast<int>(word.size());
        lines += word;
    }
    return lines + QLatin1Char('\n');
}

QString nManual::section(const char* title)
{
    return QStringLiteral(".Sh %1\n").arg(QLatin1String(title));
}

QCommandLineOption ProgramHelp::manualOption()
{
    return {
        QStringLiteral("manual"),
        QCoreApplication::translate("ProgramHelp", "Writes the manual page to standard output, in mdoc.")};
}

bool ProgramHelp::isTextWanted(int argc, char** argv)
{
    const auto isTextOption = [](const char* argument) {
        const char* const options[] = {"--help", "-h", "--version", "-v", "--manual"};
        return std::any_of(std::begin(options), std::end(options),
                           [argument](const char* option) { return qstrcmp(argument, option) == 0; });
    };
    return std::any_of(argv, argv + argc, isTextOption);
}

void ProgramHelp::describeTo(QCommandLineParser& parser) const
{
    parser.setApplicationDescription(description);
    for (const Argument& argument : arguments)
        parser.addPositionalArgument(argument.name, argument.description, argument.syntax);
}

QString ProgramHelp::manualPage() const
{
    QString synopsis = QStringLiteral(".Nm\n.Op Ar options\n");
    for (const Argument& argument : arguments) {
        const bool isOptional = argument.syntax.startsWith(QLatin1Char('['));
        const bool isRepeated = argument.syntax.contains(QLatin1String("..."));
        synopsis += QStringLiteral(".%1 %2%3\n")
                        .arg(QLatin1String(isOptional ? "Op Ar" : "Ar"), argument.name,
                             QLatin1String(isRepeated ? " ..." : ""));
    }
    return QStringLiteral(".Dd %1\n.Dt %2 1\n.Os\n").arg(date(), name.toUpper()) + nManual::section("NAME")
        + QStringLiteral(".Nm %1\n.Nd %2\n").arg(name, purpose) + nManual::section("SYNOPSIS") + synopsis
        + nManual::section("DESCRIPTION") + nManual::sentences(description) + argumentList(arguments)
        + nManual::section("OPTIONS") + optionList(options);
}
