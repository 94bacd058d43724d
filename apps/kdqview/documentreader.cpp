#include "documentreader.h"

#include "documentkinds.h"
#include "heatfile.h"
#include "tablefile.h"

#include <kdQCore/coDeckReader>
#include <kdQCore/coFeDataTableCard>

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QXmlStreamReader>

namespace {

/// So much of a file tells what it is.
constexpr qint64 beginningSize = 64 * 1024;

QString nameOf(const QFile& file)
{
    return QFileInfo(file).fileName();
}

/// The name of the first element; empty for what is no XML.
QString rootElement(const QByteArray& beginning)
{
    QXmlStreamReader reader(beginning);
    return reader.readNextStartElement() ? reader.name().toString() : QString();
}

/// Whether one of the first options is one that decks have. Tables of measured values have none of them.
bool looksLikeDeck(const QByteArray& beginning)
{
    QBuffer buffer;
    buffer.setData(beginning);
    buffer.open(QIODevice::ReadOnly);
    coDeckReader reader(buffer, coDeckLayout::find(buffer), coDeckReader::NoCards);
    coDeckOption option;
    while (reader.next(option))
        if (option.kind != coDeckOption::Comments && option.kind != coDeckOption::Other)
            return true;
    return false;
}

/// Whether kdDataTable skips the line as a comment. What follows "%" may also be a row of units.
bool isComment(const QByteArray& line)
{
    return line.startsWith('#') || line.startsWith("//") || line.startsWith('!') || line.startsWith('$')
        || line.startsWith('*') || line.startsWith("% ");
}

QString commentText(QByteArray line)
{
    while (isComment(line))
        line = line.mid(line.startsWith("//") ? 2 : 1).trimmed();
    return QString::fromUtf8(line);
}

} // namespace

DocumentReader::DocumentReader(const kdReporterInterface& reporter, ProgressFile::StopCondition isStopped)
    : m_reporter(reporter), m_isStopped(std::move(isStopped))
{
}

QSharedPointer<Document> DocumentReader::read(const QString& path)
{
    m_errorText.clear();
    ProgressFile file(path, m_reporter, m_isStopped);
    if (QFileInfo(path).isDir() || !file.open(QIODevice::ReadOnly))
        return fail(tr("'%1' cannot be read: %2")
                        .arg(QDir::toNativeSeparators(path),
                             QFileInfo(path).isDir() ? tr("it is a folder.") : file.errorString()));
    m_reporter.startOperation(tr("Reading '%1'").arg(nameOf(file)));
    Result document = readAny(file);
    if (m_isStopped())
        document = fail(tr("Reading '%1' was stopped.").arg(nameOf(file)));
    m_reporter.finishOperation(QString());
    return document;
}

QSharedPointer<Document> DocumentReader::readAny(QFile& file)
{
    const QByteArray beginning = file.peek(beginningSize);
    if (beginning.trimmed().isEmpty())
        return fail(tr("'%1' is empty.").arg(nameOf(file)));
    if (beginning.trimmed().startsWith('<') || beginning.startsWith("\xef\xbb\xbf<"))
        return readXml(file);
    const QString suffix = QFileInfo(file).suffix().toLower();
    const bool isText = suffix == QLatin1String("csv") || suffix == QLatin1String("txt");
    return !isText && looksLikeDeck(beginning) ? readDeck(file) : readText(file);
}

QSharedPointer<Document> DocumentReader::readXml(QFile& file)
{
    const QString element = rootElement(file.peek(beginningSize));
    if (element == coHeatTreatmentData::Xml::xmlElementName())
        return readHeatTreatment(file);
    return readTableXml(file, element);
}

QSharedPointer<Document> DocumentReader::readTableXml(QFile& file, const QString& element)
{
    kdDataTable table;
    QXmlStreamReader reader(&file);
    const bool isJes = element == kdDataTable::tagNameForJES();
    if (isJes ? table.readXMLForJES(reader) : table.readXML(reader))
        return tableDocument(file, std::move(table));
    return fail(tr("'%1', line %2: %3")
                    .arg(nameOf(file), QString::number(reader.lineNumber()), reader.errorString()));
}

QSharedPointer<Document> DocumentReader::readHeatTreatment(QFile& file)
{
    coHeatTreatmentData process;
    QString error;
    if (!HeatFile::read(file, nameOf(file), process, error))
        return fail(error);
    return QSharedPointer<HeatDocument>::create(file.fileName(), process);
}

QSharedPointer<Document> DocumentReader::readDeck(QFile& file)
{
    const auto document = QSharedPointer<DeckDocument>::create(file.fileName());
    coDeckReader reader(file, coDeckLayout::find(file), coDeckReader::Cards,
                        [this](const coDeckFinding& finding) { m_reporter.message(finding.toString(), 0); });
    coDeckOption option;
    while (reader.next(option)) {
        if (option.kind == coDeckOption::Comments)
            continue;
        int sheet = -1;
        if (const auto card = option.card.dynamicCast<coFeDataTableCard>()) {
            kdDataTable table = card->toTable();
            table.setName(card->tableName().isEmpty() ? QString::number(card->tableId()) : card->tableName());
            sheet = document->sheetCount();
            document->addTable(table);
        }
        document->addOption(option.firstLine, option.lines, option.text(), sheet);
    }
    return reader.hasFailed() ? fail(reader.errorText()) : document;
}

QSharedPointer<Document> DocumentReader::readText(QFile& file)
{
    kdDataTable table;
    QString error;
    if (!nTableFile::readText(file, nameOf(file), table, error))
        return fail(error);
    if (table.columns() == 0)
        return fail(tr("'%1' holds no table.").arg(nameOf(file)));
    table.setComment(readComments(file));
    return tableDocument(file, std::move(table));
}

/// Those above the first values or names, which saving keeps; tells of others, which it does not.
QString DocumentReader::readComments(QFile& file)
{
    QStringList comments;
    bool isAbove = true;
    file.seek(0);
    while (!file.atEnd() && !m_isStopped()) {
        const QByteArray line = file.readLine().trimmed();
        const bool isDescription = line.startsWith("#dimension=");
        if (isAbove && isComment(line) && !isDescription)
            comments.append(commentText(line));
        isAbove = isAbove && (line.isEmpty() || isComment(line));
        if (!isAbove && isComment(line)) {
            m_reporter.message(
                tr("'%1' has comments between its values: saving leaves them out.").arg(nameOf(file)), 0);
            break;
        }
    }
    return comments.join(QLatin1Char('\n'));
}

QSharedPointer<Document> DocumentReader::tableDocument(const QFile& file, kdDataTable table) const
{
    if (table.name().isEmpty())
        table.setName(QFileInfo(file).completeBaseName());
    return QSharedPointer<TableDocument>::create(file.fileName(), std::move(table));
}

QSharedPointer<Document> DocumentReader::fail(const QString& errorText)
{
    m_errorText = errorText;
    return {};
}
