#include "progressfile.h"
#include "shelloutput.h"
#include "shellsession.h"
#include "tablecommands.h"
#include "tablefile.h"

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

bool keep(const ShellCall& call, ShellOperation& operation, const QString& name, kdDataTable&& table)
{
    if (call.isStopped())
        return false;
    ShellTables& tables = ShellSession::I().tables;
    tables.put(name, std::move(table));
    operation.setOutcome(TableCommands::size(*tables.find(name)));
    return true;
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
    ProgressFile file(ShellSession::I().inputPath(call.text(0)), call.reporter(), call.stopCondition());
    if (!openForReading(call, file))
        return false;
    ShellOperation operation(call, tr("Reading '%1'").arg(call.text(0)));
    kdDataTable table;
    QString error;
    if (!nTableFile::readText(file, call.text(0), table, error))
        return call.fail(error);
    return keep(call, operation, name, std::move(table));
}

bool TableCommands::load(ShellCall& call)
{
    QString name;
    if (!newName(call, name))
        return false;
    ProgressFile file(ShellSession::I().inputPath(call.text(0)), call.reporter(), call.stopCondition());
    if (!openForReading(call, file))
        return false;
    ShellOperation operation(call, tr("Reading '%1'").arg(call.text(0)));
    kdDataTable table;
    QXmlStreamReader reader(&file);
    const bool isRead = table.readXML(reader, kdDataTable::xmlStartElement());
    if (!isRead || reader.hasError())
        return call.fail(tr("'%1', line %2: %3")
                             .arg(call.text(0), QString::number(reader.lineNumber()), reader.errorString()));
    if (call.count() == 1 && !table.name().isEmpty())
        name = table.name();
    return keep(call, operation, name, std::move(table));
}

bool TableCommands::exportTable(ShellCall& call)
{
    const ShellTables::Table table = find(call, call.text(1));
    if (table.isNull())
        return false;
    const bool isXml = call.is(0, "xml");
    if (!isXml && !call.is(0, "text"))
        return call.fail(tr("'%1' is no form of a table; possible are xml and text.").arg(call.text(0)));
    const auto write = [&](const kdDataTable& values, QIODevice& device) {
        return isXml ? values.writeXML(device) : exportText(values, device, separator(call.text(3)));
    };
    if (!nShellOutput::write(call, call.text(2), *table, write))
        return false;
    call.tell(tr("Table '%1' written to '%2'.").arg(call.text(1), call.text(2)));
    return true;
}

bool TableCommands::exportText(const kdDataTable& table, QIODevice& device, const QString& separator)
{
    QTextStream stream(&device);
    stream.setCodec("UTF-8");
    const bool isWritten = table.exportValuesToTextStream(stream, separator);
    stream.flush();
    return isWritten && stream.status() == QTextStream::Ok;
}
