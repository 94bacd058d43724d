#include "cfedatlinewriter.h"

#include "cfeabstractdatcard.h"
#include "dattext_p.h"
#include "stdiodevice_p.h"

#include <kdQCore/kdLog>

#include <QFileDevice>
#include <QTextCodec>
#include <QTextStream>

#include <algorithm>
#include <cmath>

namespace {

constexpr int longestFieldText = 127;
constexpr int widestField = 126;

// A caller's stream may pad what is put into it; a deck's fields are laid out already.
class PlainOutput {
public:
    explicit PlainOutput(QTextStream& stream) : m_stream(stream), m_fieldWidth(stream.fieldWidth())
    {
        if (m_fieldWidth != 0)
            m_stream.setFieldWidth(0);
    }
    ~PlainOutput()
    {
        if (m_fieldWidth != 0)
            m_stream.setFieldWidth(m_fieldWidth);
    }
    Q_DISABLE_COPY(PlainOutput)

private:
    QTextStream& m_stream;
    int m_fieldWidth;
};

const QTextCodec* codecOf(const QTextStream& stream)
{
    return stream.codec() ? stream.codec() : QTextCodec::codecForLocale();
}

// A file remembers its last error, whatever it was about.
bool isWriteError(QFileDevice::FileError error)
{
    return error == QFileDevice::WriteError || error == QFileDevice::ResourceError
        || error == QFileDevice::FatalError;
}

bool flushDevice(QIODevice* device)
{
    if (auto* stdio = dynamic_cast<StdioDevice*>(device))
        return stdio->flush();
    auto* file = qobject_cast<QFileDevice*>(device);
    return !file || (file->flush() && !isWriteError(file->error()));
}

} // namespace

cFeAbstractDatCard::~cFeAbstractDatCard() = default;

CFEDatLineWriter::CFEDatLineWriter(datExtensionMode mode, datFormat format)
    : m_format(format), m_extensionMode(mode)
{
}

CFEDatLineWriter::CFEDatLineWriter() : CFEDatLineWriter(extended, free) { }

CFEDatLineWriter::~CFEDatLineWriter() = default;

void CFEDatLineWriter::setFileHandler(std::FILE* file)
{
    m_ownStream.reset();
    m_ownDevice.reset();
    m_file = file;
    if (file) {
        m_ownDevice = std::make_unique<StdioDevice>(file);
        m_ownStream = std::make_unique<QTextStream>(m_ownDevice.get());
    }
    m_stream = m_ownStream.get();
}

void CFEDatLineWriter::setFileHandler(std::nullptr_t)
{
    setFileHandler(static_cast<std::FILE*>(nullptr));
}

void CFEDatLineWriter::setFileHandler(QTextStream* stream)
{
    if (m_ownStream) {
        m_ownStream->flush();
        m_ownDevice->flushPending();
    }
    m_stream = stream;
}

void CFEDatLineWriter::pushFormat(datFormat format)
{
    m_formatStack.append(m_format);
    m_format = format;
}

CFEDatLineWriter::datFormat CFEDatLineWriter::popFormat()
{
    if (m_formatStack.isEmpty())
        KD_LOG_FAILED_ASSERT(QStringLiteral("No deck format was saved that could be restored."));
    else
        m_format = m_formatStack.takeLast();
    return m_format;
}

bool CFEDatLineWriter::flush()
{
    if (!m_stream)
        return !m_isInWriteMode;
    m_stream->flush();
    if (!flushDevice(m_stream->device()))
        m_stream->setStatus(QTextStream::WriteFailed);
    return isStreamGood();
}

bool CFEDatLineWriter::writeCard(const cFeAbstractDatCard& card)
{
    return card.write(*this);
}

void CFEDatLineWriter::cropDoubleValue(double& value)
{
    const double magnitude = std::fabs(value);
    if (magnitude < MIN_COORD_VALUE()) {
        value = 0.0;
    } else if (magnitude >= MAX_COORD_VALUE() && std::isfinite(value)) {
        const int excess = static_cast<int>(std::log10(magnitude) + 1.0) - MAX_DATFILE_EXP();
        if (excess >= 1)
            value /= std::pow(10.0, excess);
    }
}

QString CFEDatLineWriter::singleLine(const QString& text)
{
    QString result = text;
    result.replace(QLatin1String("\r\n"), QLatin1String(" "));
    for (QChar& c : result)
        if (c == QLatin1Char('\n') || c == QLatin1Char('\r') || c.isNull())
            c = QLatin1Char(' ');
    return result;
}

bool CFEDatLineWriter::isStreamGood() const
{
    return m_stream && m_stream->status() == QTextStream::Ok && (m_stream->device() || m_stream->string());
}

bool CFEDatLineWriter::canBypassStream() const
{
    return m_stream->device() && !m_stream->generateByteOrderMark()
        && nDatText::keepsAscii(*codecOf(*m_stream));
}

bool CFEDatLineWriter::put(const char* latin1, std::ptrdiff_t length)
{
    if (!m_isInWriteMode || length == 0)
        return true;
    if (!isStreamGood())
        return false;
    const PlainOutput plain(*m_stream);
    *m_stream << QLatin1String(latin1, static_cast<int>(length));
    return m_stream->status() == QTextStream::Ok;
}

bool CFEDatLineWriter::putText(const QByteArray& local)
{
    if (nDatText::isAscii(local))
        return put(local.constData(), local.size());
    if (!m_isInWriteMode)
        return true;
    if (!isStreamGood())
        return false;
    const QString text = QString::fromLocal8Bit(local.constData(), local.size());
    const bool isLocalText = text.toLocal8Bit() == local;
    if (!isLocalText && canBypassStream() && codecOf(*m_stream) == QTextCodec::codecForLocale())
        return writeThrough(local.constData(), local.size());
    const PlainOutput plain(*m_stream);
    *m_stream << text;
    return m_stream->status() == QTextStream::Ok;
}

bool CFEDatLineWriter::writeThrough(const char* bytes, std::ptrdiff_t length)
{
    m_stream->flush();
    if (m_stream->status() != QTextStream::Ok)
        return false;
    QIODevice* const device = m_stream->device();
    if (device->write(bytes, length) != length || !flushDevice(device))
        m_stream->setStatus(QTextStream::WriteFailed);
    return m_stream->status() == QTextStream::Ok;
}

bool CFEDatLineWriter::writeIntFixedField(int value)
{
    char text[doubleBufferSize];
    return put(text, formatItem(value, true, text) - text);
}

bool CFEDatLineWriter::writeIntFreeField(int value)
{
    char text[doubleBufferSize];
    return put(text, formatItem(value, false, text) - text);
}

bool CFEDatLineWriter::writeInt(int value)
{
    return isFixed() ? writeIntFixedField(value) : writeIntFreeField(value);
}

bool CFEDatLineWriter::writeIntNTimes(int value, int count)
{
    for (int i = 0; i < count; ++i)
        if (!writeInt(value))
            return false;
    return true;
}

bool CFEDatLineWriter::writeDoubleFixedField(double value, bool leadingBlank)
{
    char text[doubleBufferSize];
    return put(text, formatDouble(value, leadingBlank, text));
}

bool CFEDatLineWriter::writeDoubleFreeField(double value)
{
    char text[2 * doubleBufferSize];
    return put(text, formatItem(value, false, text) - text);
}

bool CFEDatLineWriter::writeDouble(double value, bool leadingBlank)
{
    return isFixed() ? writeDoubleFixedField(value, leadingBlank) : writeDoubleFreeField(value);
}

bool CFEDatLineWriter::writeDoubleValue(double value)
{
    return writeDouble(value, false);
}

bool CFEDatLineWriter::writeDoubleNTimes(double value, int count)
{
    for (int i = 0; i < count; ++i)
        if (!writeDoubleValue(value))
            return false;
    return true;
}

bool CFEDatLineWriter::writeStringFixedField(const QByteArray& text, int width)
{
    if (width > widestField || (width > 0 && text.size() > width))
        return false;
    return putText(text.rightJustified(std::max(width, 0)));
}

bool CFEDatLineWriter::writeStringFreeField(const QByteArray& text)
{
    return putText(text + ',');
}

bool CFEDatLineWriter::writeField(const QByteArray& text, int width)
{
    const QByteArray field = nDatText::singleLine(text);
    if (field.size() > longestFieldText)
        return false;
    return isFixed() ? writeStringFixedField(field, width) : writeStringFreeField(field);
}

bool CFEDatLineWriter::writeString(const char* text, int width)
{
    return writeField(nDatText::toBytes(text), width);
}

bool CFEDatLineWriter::writeString(const std::string& text, int width)
{
    return writeField(nDatText::toBytes(text), width);
}

bool CFEDatLineWriter::writeString(const QString& text, int width)
{
    return writeField(nDatText::toBytes(text), width);
}

bool CFEDatLineWriter::writeKey(const QByteArray& key)
{
    const QByteArray field = nDatText::singleLine(key);
    if (field.size() > longestFieldText)
        return false;
    return isFixed() ? putText(field.leftJustified(getMaxWidthForDouble())) : writeStringFreeField(field);
}

bool CFEDatLineWriter::writeParameterSectionKey(const QString& key)
{
    return writeKey(nDatText::toBytes(key));
}

bool CFEDatLineWriter::writeParameterSectionKey(const char* key)
{
    return writeKey(nDatText::toBytes(key));
}

bool CFEDatLineWriter::writeParameterSectionKey(const std::string& key)
{
    return writeKey(nDatText::toBytes(key));
}

bool CFEDatLineWriter::writeLineBreak()
{
    return put("\n", 1);
}
