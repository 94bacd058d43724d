#pragma once

#include <QCommandLineOption>
#include <QList>
#include <QString>
#include <QVector>

QT_BEGIN_NAMESPACE
class QCommandLineParser;
QT_END_NAMESPACE

/// What a program of the family says of itself: one source for its help and its manual page.
struct ProgramHelp {
    struct Argument {
        QString name;
        QString description;
        QString syntax; ///< as it stands in the usage line: "[files...]"
    };

    QString name;
    QString purpose; ///< for the head of the page, a few words without a full stop
    QString description;
    QList<QCommandLineOption> options;
    QVector<Argument> arguments;

    /// "--manual", which writes the page to standard output.
    static QCommandLineOption manualOption();
    /// Whether the program is asked for help, version or manual alone, which need no screen.
    static bool isTextWanted(int argc, char** argv);

    /// All but the options, which the parser's own may be among.
    void describeTo(QCommandLineParser& parser) const;
    /// The page in mdoc. Its date is that of SOURCE_DATE_EPOCH where this variable is set, else today.
    QString manualPage() const;
};

/// Pieces of a page in mdoc.
namespace nManual {

QString section(const char* title);
/// Words behind a macro, none of which is taken for another.
QString plain(const QString& text);
/// A text with each sentence on lines of its own, none of them long.
QString sentences(const QString& text);

} // namespace nManual
