#include "cocsvwriter.h"

#include "csvline.h"

#include <kdQCore/kdLog>

#include <QDateTime>
#include <QFile>
#include <QTextStream>

coCSVWriter::coCSVWriter(const QString& fileName) : m_fileName(fileName) { }
coCSVWriter::coCSVWriter(const coCSVWriter& other) = default;
coCSVWriter::coCSVWriter(coCSVWriter&& other) noexcept = default;
coCSVWriter& coCSVWriter::operator=(const coCSVWriter& other) = default;
coCSVWriter& coCSVWriter::operator=(coCSVWriter&& other) noexcept = default;
coCSVWriter::~coCSVWriter() = default;

bool coCSVWriter::write(QIODevice* device) const
{
    if (device == nullptr)
        return false;
    if (!device->isWritable() && (device->isOpen() || !device->open(QIODevice::WriteOnly | QIODevice::Text)))
        return false;
    QTextStream stream(device);
    stream.setCodec("UTF-8");
    stream.setGenerateByteOrderMark(m_hasByteOrderMark);
    stream.setLocale(locale());
    writeHeader(stream);
    const int rows = nbElements();
    for (int row = 0; row < rows && stream.status() == QTextStream::Ok; ++row)
        writeLine(stream, getTokens(row), m_protectsTexts);
    stream.flush();
    return stream.status() == QTextStream::Ok;
}

bool coCSVWriter::write(const QString& fileName) const
{
    QFile file(fileName);
    const bool isWritten = write(&file);
    if (!isWritten)
        KD_LOG(kdLog::Fault, kdLog::General,
               QStringLiteral("CSV file '%1' cannot be written: %2").arg(fileName, file.errorString()));
    return isWritten;
}

void coCSVWriter::writeAdditionalInformation(QTextStream&) const { }

void coCSVWriter::writeColumnHeader(QTextStream&) const { }

QString coCSVWriter::productName() const
{
    return QStringLiteral("Kaldoran");
}

void coCSVWriter::writeHeader(QTextStream& stream) const
{
    if (m_header == CommentedHeader) {
        writeCommonHeader(stream, productName());
        if (!unitIndices().isEmpty())
            writeComment(stream, tr("Units in this file"));
        for (auto i = unitIndices().cbegin(); i != unitIndices().cend(); ++i)
            writeUnitHeader(stream, i.key(), i.value());
        writeAdditionalInformation(stream);
    }
    if (m_header != NoHeader)
        writeColumnHeader(stream);
}

void coCSVWriter::writeCommonHeader(QTextStream& stream, const QString& productName) const
{
    if (!productName.isEmpty())
        writeComment(stream, tr("CSV file produced by ") + productName);
    const QDateTime now = QDateTime::currentDateTime();
    writeComment(stream, tr("Date of creation: ") + now.toString(QStringLiteral("dd.MM.yyyy hh:mm:ss")));
    stream << commentPrefix() << '\n';
}

void coCSVWriter::writeUnitHeader(QTextStream& stream, kdUnitSystem::Dimension dimension, int unitIndex) const
{
    const kdUnitSystem unit(dimension, unitIndex);
    writeComment(
        stream,
        QStringLiteral("%1: %2 [%3]")
            .arg(kdUnitSystem::translatedDimensionName(dimension), unit.translatedName(), unit.symbol()));
}

void coCSVWriter::writeLine(QTextStream& stream, const QList<QVariant>& tokens, bool protectTexts) const
{
    CsvLine line(*this, tokens.size());
    line.protectTexts(protectTexts);
    for (const QVariant& token : tokens)
        line.append(token);
    stream << line.finish();
}

void coCSVWriter::writeComment(QTextStream& stream, const QString& text) const
{
    QString line = text;
    for (const char lineBreak : {'\r', '\n'})
        line.replace(QLatin1Char(lineBreak), QLatin1Char(' '));
    if (!commentPrefix().isEmpty())
        stream << commentPrefix() << ' ';
    stream << line << '\n';
}

void coCSVWriter::writeTitles(QTextStream& stream, const QStringList& titles) const
{
    CsvLine line(*this, titles.size());
    line.protectTexts(m_protectsTexts);
    for (const QString& title : titles)
        line.appendText(title);
    const QString& cells = line.finish();
    if (m_header == TitleRow) {
        stream << cells;
    } else {
        stream << commentPrefix() << '\n';
        writeComment(stream, cells.chopped(1));
    }
}
