#include "progressfile.h"
#include "shellsession.h"
#include "tablecommands.h"

#include <kdQCore/kdException>

#include <QFileInfo>
#include <QXmlStreamReader>

namespace {

/// The name that a table read from the file in argument 0 gets; reports where "as" is not in its place.
bool newName(const ShellCall& call, QString& name)
{
    name = call.count() > 1 ? call.text(2) : QFileInfo(call.text(0)).completeBaseName();
    if (call.count() > 1 && (!call.is(1, "as") || name.isEmpty()))
        return call.fail(TableCommands::tr("'as' and a name are missing after the file."));
    return true;
}

bool openForReading(const ShellCall& call, QFile& file)
{
    if (file.open(QIODevice::ReadOnly))
        return true;
    return call.fail(TableCommands::tr("'%1' cannot be read: %2").arg(file.fileName(), file.errorString()));
}

} // namespace

QString TableCommands::separator(const QString& word)
{
    if (word.isEmpty())
        return QStringLiteral(";");
    if (word == QLatin1String("tab"))
        return QStringLiteral("\t");
    return word == QLatin1String("blank") ? QStringLiteral(" ") : word;
}

bool TableCommands::import(ShellCall& call)
{
    QString name;
    if (!newName(call, name))
        return false;
    ProgressFile file(ShellSession::I().inputPath(call.text(0)), call.reporter());
    if (!openForReading(call, file))
        return false;
    call.reporter().startOperation(tr("Reading '%1'").arg(call.text(0)));
    kdDataTable table;
    try {
        QTextStream stream(&file);
        stream.setCodec("UTF-8");
        kdDataTable::importFromTextStream(stream, table);
    } catch (const kdException& exception) {
        call.reporter().finishOperation(QString());
        return call.fail(QStringLiteral("'%1': %2").arg(call.text(0), exception.nonHTMLErrorMessage()));
    }
    ShellSession::I().tables.put(name, std::move(table));
    call.reporter().finishOperation(size(*ShellSession::I().tables.find(name)));
    return true;
}

bool TableCommands::load(ShellCall& call)
{
    QString name;
    if (!newName(call, name))
        return false;
    ProgressFile file(ShellSession::I().inputPath(call.text(0)), call.reporter());
    if (!openForReading(call, file))
        return false;
    call.reporter().startOperation(tr("Reading '%1'").arg(call.text(0)));
    kdDataTable table;
    QXmlStreamReader reader(&file);
    const bool isRead = table.readXML(reader, kdDataTable::xmlStartElement());
    if (!isRead || reader.hasError()) {
        call.reporter().finishOperation(QString());
        return call.fail(tr("'%1', line %2: %3")
                             .arg(call.text(0), QString::number(reader.lineNumber()), reader.errorString()));
    }
    if (call.count() == 1 && !table.name().isEmpty())
        name = table.name();
    ShellSession::I().tables.put(name, std::move(table));
    call.reporter().finishOperation(size(*ShellSession::I().tables.find(name)));
    return true;
}

bool TableCommands::exportTable(ShellCall& call)
{
    const ShellTables::Table table = find(call, call.text(1));
    if (table.isNull())
        return false;
    const bool isXml = call.is(0, "xml");
    if (!isXml && !call.is(0, "text"))
        return call.fail(tr("'%1' is no form of a table; possible are xml and text.").arg(call.text(0)));
    QFile file(call.text(2));
    if (!file.open(QIODevice::WriteOnly))
        return call.fail(tr("'%1' cannot be written: %2").arg(call.text(2), file.errorString()));
    const bool isWritten = isXml ? table->writeXML(file) : exportText(*table, file, separator(call.text(3)));
    if (!file.flush() || !isWritten)
        return call.fail(tr("'%1' cannot be written: %2").arg(call.text(2), file.errorString()));
    call.tell(tr("Table '%1' written to '%2'.").arg(call.text(1), call.text(2)));
    return true;
}

bool TableCommands::exportText(const kdDataTable& table, QFile& file, const QString& separator)
{
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    const bool isWritten = table.exportValuesToTextStream(stream, separator);
    stream.flush();
    return isWritten && stream.status() == QTextStream::Ok;
}
