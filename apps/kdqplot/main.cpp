#include "chart.h"
#include "familyapplication.h"
#include "programhelp.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QLocale>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <QSaveFile>
#include <QTextStream>
#include <QTranslator>

#include <memory>

namespace {

enum ExitStatus { AllWell = 0, Failed = 1, WrongCommandLine = 2 };

class Plotter {
    Q_DECLARE_TR_FUNCTIONS(Plotter)

public:
    int run(const QStringList& arguments)
    {
        QCommandLineParser parser;
        const QCommandLineOption size(QStringLiteral("size"), tr("Width and height in pixels."),
                                      QStringLiteral("WxH"), QStringLiteral("800x500"));
        const QCommandLineOption scale(QStringLiteral("scale"), tr("Pixels of a PNG for each of these."),
                                       QStringLiteral("FACTOR"), QStringLiteral("1"));
        const QCommandLineOption help = parser.addHelpOption();
        const QCommandLineOption version = parser.addVersionOption();
        const QCommandLineOption manual = ProgramHelp::manualOption();
        parser.addOptions({size, scale, manual});
        ProgramHelp texts;
        texts.name = QStringLiteral("kdqplot");
        texts.purpose = QStringLiteral("pictures of curves as SVG and PNG, without a screen");
        texts.description = tr("Draws the picture that a description in JSON asks for.");
        texts.options = {size, scale, help, version, manual};
        texts.arguments = {{QStringLiteral("FIGURE"), tr("The description; - is standard input."), QString()},
                           {QStringLiteral("PICTURE"), tr("The file to write: .svg or .png."), QString()}};
        texts.describeTo(parser);
        if (!parser.parse(arguments))
            return say(parser.errorText(), WrongCommandLine);
        if (parser.isSet(help))
            return print(parser.helpText());
        if (parser.isSet(version))
            return print(QStringLiteral("kdqplot %1\n").arg(QCoreApplication::applicationVersion()));
        if (parser.isSet(manual))
            return print(texts.manualPage());
        if (parser.positionalArguments().size() != 2)
            return say(tr("A description and a picture are needed; see --help."), WrongCommandLine);
        if (!readFormat(parser.positionalArguments().at(1)) || !readSize(parser.value(size))
            || !readScale(parser.value(scale)))
            return say(m_error, WrongCommandLine);
        return draw(parser.positionalArguments().at(0), parser.positionalArguments().at(1));
    }

private:
    static int print(const QString& text)
    {
        QTextStream(stdout) << text;
        return AllWell;
    }

    static int say(const QString& text, ExitStatus status)
    {
        QTextStream(stderr) << "kdqplot: " << text << '\n';
        return status;
    }

    bool fail(const QString& text)
    {
        m_error = text;
        return false;
    }

    bool readFormat(const QString& path)
    {
        const bool isPng = path.endsWith(QLatin1String(".png"), Qt::CaseInsensitive);
        m_format = isPng ? nChart::Png : nChart::Svg;
        return isPng || path.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive)
            || fail(tr("'%1' ends neither in .svg nor in .png.").arg(path));
    }

    bool readSize(const QString& text)
    {
        static const QRegularExpression pattern(QStringLiteral("^(\\d{1,6})x(\\d{1,6})$"));
        const QRegularExpressionMatch match = pattern.match(text);
        m_size = {match.captured(1).toInt(), match.captured(2).toInt()};
        return match.hasMatch() || fail(tr("'%1' is no size such as 800x500.").arg(text));
    }

    bool readScale(const QString& text)
    {
        bool isNumber = false;
        m_scale = text.toDouble(&isNumber);
        return (isNumber && m_scale >= 0.1 && m_scale <= 20.0)
            || fail(tr("The scale must be 0.1 to 20, not '%1'.").arg(text));
    }

    bool read(const QString& path, QByteArray& bytes)
    {
        QFile file(path);
        if (path == QLatin1String("-") ? !file.open(stdin, QIODevice::ReadOnly)
                                       : !file.open(QIODevice::ReadOnly))
            return fail(tr("'%1' cannot be read: %2").arg(path, file.errorString()));
        bytes = file.readAll();
        return true;
    }

    bool readFigure(const QString& path, const QByteArray& json, Figure& figure)
    {
        if (Figure::fromJson(json, figure, m_error))
            m_error = figure.fault();
        if (!m_error.isEmpty() && path != QLatin1String("-"))
            m_error = QStringLiteral("'%1': %2").arg(path, m_error);
        return m_error.isEmpty();
    }

    bool write(const QString& path, const QByteArray& bytes)
    {
        QSaveFile file(path);
        return (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
            || fail(tr("'%1' cannot be written: %2").arg(path, file.errorString()));
    }

    int draw(const QString& input, const QString& output)
    {
        QByteArray json;
        Figure figure;
        QByteArray picture;
        const bool ok = read(input, json) && readFigure(input, json, figure)
            && !(picture = nChart::picture(figure, m_format, m_size, m_scale, m_error)).isEmpty()
            && write(output, picture);
        return ok ? int(AllWell) : say(m_error, Failed);
    }

    QString m_error;
    nChart::Format m_format = nChart::Svg;
    QSize m_size;
    double m_scale = 1.0;
};

/// Straight from the file: it is started for every picture, and shall not leave a debug log for each.
bool loadTexts(QTranslator& texts)
{
    const auto languages = FamilyApplication::userLanguages();
    if (languages.isEmpty())
        return false;
    const QString application = QCoreApplication::applicationDirPath();
    const QString file = QStringLiteral("kdqcore_") + kdQLanguage::code(languages.constFirst());
    return texts.load(file, application + QLatin1String("/translations"))
        || texts.load(file, application + QLatin1String("/../share/kdQCore/translations"));
}

} // namespace

int main(int argc, char** argv)
{
    std::unique_ptr<QCoreApplication> application;
    if (ProgramHelp::isTextWanted(argc, argv)) {
        application = std::make_unique<QCoreApplication>(argc, argv);
    } else {
        nChart::useNoScreen();
        QLoggingCategory::setFilterRules(
            QStringLiteral("*.warning=false")); // of a desktop that is not needed
        application = std::make_unique<QApplication>(argc, argv);
        QApplication::setFont(nChart::font(12)); // a picture is the same whatever fonts its user prefers
    }
    FamilyApplication::describe(QStringLiteral("kdqplot"));
    QTranslator texts;
    if (loadTexts(texts))
        QCoreApplication::installTranslator(&texts);
    return Plotter().run(QCoreApplication::arguments());
}
