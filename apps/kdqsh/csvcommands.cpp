#include "csvcommands.h"

#include "shelloutput.h"
#include "shellsession.h"
#include "tablecommands.h"

#include <kdQCore/coCSVSettings>
#include <kdQCore/coTableCSVWriter>

#include <QSettings>

namespace {

/// A table's file that names the shell as its origin.
class ShellCsvWriter : public coTableCSVWriter {
public:
    using coTableCSVWriter::coTableCSVWriter;

    QString productName() const override
    {
        return QStringLiteral("kdqsh %1").arg(QCoreApplication::applicationVersion());
    }
};

/// The user's settings, in the shell's own file.
class SettingsFile : public QSettings {
public:
    SettingsFile() : QSettings(ShellSession::I().settingsFile(), QSettings::IniFormat) { }
};

QString separatorWord(const QString& separator)
{
    if (separator == QLatin1String("\t"))
        return QStringLiteral("tab");
    return separator == QLatin1String(" ") ? QStringLiteral("blank") : separator;
}

/// Sets the unit of every dimension of the table that has one of this symbol.
bool setUnit(const kdDataTable& table, const QString& symbol, coCSVWriter& writer)
{
    bool isUsed = false;
    for (int i = 0; i < table.columns(); ++i) {
        bool isKnown = false;
        const kdUnitSystem::Dimension dimension = table.columnRef(i).getUnitSystem().dimension();
        const kdUnitSystem unit = kdUnitSystem::fromSymbol(symbol, dimension, &isKnown);
        if (isKnown)
            writer.setUnitIndex(dimension, unit.unitIndex());
        isUsed = isUsed || isKnown;
    }
    return isUsed;
}

} // namespace

const ShellCommandGroup& CsvCommands::group()
{
    using Entry = ShellCommandEntry;
    static const ShellCommandGroup group{
        "csv",
        "CsvCommands",
        QT_TR_NOOP("Tables as commented CSV files for spreadsheets and scripts."),
        {
            {"export",
             "NAME FILE [separator SEPARATOR] [decimal point|comma] [units UNIT,...] [prefix TEXT] "
             "[titles|bare] [protect] [mark]",
             QT_TR_NOOP("Writes a table as CSV; titles: one line of titles instead of comments; bare: rows "
                        "alone; protect: no text runs as a formula; mark: byte order mark."),
             2, ShellCommand::anyNumber, Entry::Query, exportTable},
            {"settings", "[separator SEPARATOR] [decimal point|comma]",
             QT_TR_NOOP("Shows the separators that CSV files get where nothing is said; stores others for "
                        "this and later runs."),
             0, 4, Entry::Query, settings},
        }};
    return group;
}

bool CsvCommands::exportTable(ShellCall& call)
{
    const ShellTables::Table table = TableCommands::find(call, call.text(0));
    if (table.isNull())
        return false;
    ShellCsvWriter writer(*table);
    if (!setForm(call, *table, writer))
        return false;
    const auto write = [&](const kdDataTable& values, QIODevice& device) {
        ShellCsvWriter form(values);
        static_cast<coCSVWriter&>(form) = writer;
        device.setTextModeEnabled(true);
        return form.write(&device);
    };
    if (!nShellOutput::write(call, call.text(1), *table, write))
        return false;
    call.tell(tr("Table '%1' written to '%2'.").arg(call.text(0), call.text(1)));
    return true;
}

bool CsvCommands::setForm(const ShellCall& call, const kdDataTable& table, coCSVWriter& writer)
{
    QString separator;
    QString decimal;
    QString units;
    QString prefix = writer.commentPrefix();
    bool hasTitles = false;
    bool isBare = false;
    bool protects = false;
    bool hasMark = false;
    if (!ShellParameters(call, 2)
             .text("separator", separator)
             .text("decimal", decimal)
             .text("units", units)
             .text("prefix", prefix)
             .flag("titles", hasTitles)
             .flag("bare", isBare)
             .flag("protect", protects)
             .flag("mark", hasMark)
             .read())
        return false;
    if (hasTitles && isBare)
        return call.fail(tr("'titles' and 'bare' exclude each other."));
    SettingsFile file;
    const coCSVSettings settings(file);
    int decimalSeparator = settings.decimalSeparator();
    if (!readDecimal(call, decimal, decimalSeparator) || !setUnits(call, table, units, writer))
        return false;
    writer.setDelimiter(separator.isEmpty() ? settings.fieldSeparator()
                                            : TableCommands::separator(separator));
    writer.setLocale(nCSV::localeForDecimalSeparator(decimalSeparator));
    writer.setCommentPrefix(prefix);
    if (hasTitles || isBare)
        writer.setHeader(isBare ? coCSVWriter::NoHeader : coCSVWriter::TitleRow);
    writer.setProtectTexts(protects);
    writer.setByteOrderMark(hasMark);
    return true;
}

bool CsvCommands::setUnits(const ShellCall& call, const kdDataTable& table, const QString& units,
                           coCSVWriter& writer)
{
    const QStringList symbols = units.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString& symbol : symbols)
        if (!setUnit(table, symbol.trimmed(), writer))
            return call.fail(
                tr("No column of table '%1' can be converted to '%2'.").arg(call.text(0), symbol.trimmed()));
    return true;
}

bool CsvCommands::readDecimal(const ShellCall& call, const QString& word, int& decimalSeparator)
{
    if (word == QLatin1String("point"))
        decimalSeparator = nCSV::DecimalPoint;
    else if (word == QLatin1String("comma"))
        decimalSeparator = nCSV::DecimalComma;
    else if (!word.isEmpty())
        return call.fail(tr("'%1' is no decimal mark; possible are point and comma.").arg(word));
    return true;
}

bool CsvCommands::settings(ShellCall& call)
{
    QString separator;
    QString decimal;
    if (!ShellParameters(call, 0).text("separator", separator).text("decimal", decimal).read())
        return false;
    SettingsFile file;
    coCSVSettings settings(file);
    int decimalSeparator = settings.decimalSeparator();
    if (!readDecimal(call, decimal, decimalSeparator))
        return false;
    if (!decimal.isEmpty())
        settings.setDecimalSeprator(decimalSeparator);
    if (!separator.isEmpty()) {
        const QString text = TableCommands::separator(separator);
        settings.setFieldSeparatorType(nCSV::separatorTypeFromString(text));
        settings.setFieldSeparator(text);
    }
    file.sync();
    if (file.status() != QSettings::NoError)
        return call.fail(tr("The settings '%1' cannot be read or written.").arg(file.fileName()));
    call.show(QStringLiteral("separator '%1' decimal %2")
                  .arg(separatorWord(settings.fieldSeparator()),
                       QLatin1String(decimalSeparator == nCSV::DecimalComma ? "comma" : "point")));
    return true;
}
