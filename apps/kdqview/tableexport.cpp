#include "tableexport.h"

#include "progressfile.h"

#include <kdQCore/coTableCSVWriter>
#include <kdQCore/kdDataTable>

#include <QCoreApplication>
#include <QDir>
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

qint64 TableExport::expectedSize(const kdDataTable& table)
{
    constexpr qint64 sizeOfRow = 25; // of its tags in XML
    constexpr qint64 sizeOfValue = 18;
    return table.rows() * (sizeOfRow + sizeOfValue * table.columns());
}

bool TableExport::writeFile(const QString& path, const kdReporterInterface& reporter, qint64 expectedSize,
                            const std::function<bool(QIODevice& device)>& content, QString& error)
{
    const QString name = QDir::toNativeSeparators(path);
    ProgressSaveFile file(path, reporter, expectedSize);
    reporter.startOperation(QCoreApplication::translate("TableExport", "Writing '%1'").arg(name));
    const bool isWritten = file.open(QIODevice::WriteOnly) && content(file) && file.commit();
    reporter.finishOperation(QString());
    if (!isWritten)
        error = QCoreApplication::translate("TableExport", "'%1' cannot be written: %2")
                    .arg(name, file.errorString());
    return isWritten;
}
