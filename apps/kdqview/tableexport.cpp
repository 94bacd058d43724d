#include "tableexport.h"

#include <kdQCore/coTableCSVWriter>
#include <kdQCore/kdDataTable>

#include <QFileInfo>
#include <QTextStream>

namespace {

QStringList commentLines(const kdDataTable& table)
{
    return table.comment().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

class CsvWriter : public coTableCSVWriter {
public:
    explicit CsvWriter(const kdDataTable& table)
        : coTableCSVWriter(table), m_comments(commentLines(table)) { }

    void writeColumnHeader(QTextStream& stream) const override
    {
        for (const QString& comment : m_comments)
            writeComment(stream, comment);
        coTableCSVWriter::writeColumnHeader(stream);
    }

private:
    QStringList m_comments;
};

bool writeText(const kdDataTable& table, QIODevice& device)
{
    QTextStream stream(&device);
    stream.setCodec("UTF-8");
    const QStringList comments = commentLines(table);
    for (const QString& comment : comments)
        stream << "# " << comment << '\n';
    const bool isWritten = table.exportValuesToTextStream(stream);
    stream.flush();
    return isWritten && stream.status() == QTextStream::Ok;
}

bool writeCsv(const kdDataTable& table, QIODevice& device)
{
    CsvWriter writer(table);
    writer.initFromSettings();
    writer.setHeader(coCSVWriter::TitleRow);
    return writer.write(&device);
}

} // namespace

TableExport::Form TableExport::formOf(const QString& path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix == QLatin1String("xml"))
        return Xml;
    return suffix == QLatin1String("csv") ? Csv : Text;
}

QStringList TableExport::endings()
{
    return {QStringLiteral("xml"), QStringLiteral("txt"), QStringLiteral("csv")};
}

bool TableExport::write(const kdDataTable& table, QIODevice& device, Form form)
{
    switch (form) {
    case Xml:
        return table.writeXML(device);
    case Text:
        return writeText(table, device);
    case Csv:
        return writeCsv(table, device);
    }
    return false;
}
