#include "shelldeck.h"

ShellDeck::~ShellDeck()
{
    if (isOpen())
        close();
}

bool ShellDeck::open(const QString& path, CFEDatLineWriter::datFormat format,
                     CFEDatLineWriter::datExtensionMode mode)
{
    m_file.setFileName(path);
    if (!m_file.open(QIODevice::WriteOnly)) {
        m_errorText = tr("The deck '%1' cannot be opened for writing: %2").arg(path, m_file.errorString());
        return false;
    }
    m_stream = std::make_unique<QTextStream>(&m_file);
    m_writer = std::make_unique<CFEDatLineWriter>(mode, format);
    m_writer->setFileHandler(m_stream.get());
    return true;
}

bool ShellDeck::flush()
{
    if (m_writer->flush())
        return true;
    m_errorText = tr("The deck '%1' cannot be written: %2").arg(path(), m_file.errorString());
    return false;
}

bool ShellDeck::close()
{
    const bool isWritten = flush();
    m_writer.reset();
    m_stream.reset();
    m_file.close();
    if (isWritten && m_file.error() != QFileDevice::NoError) {
        m_errorText = tr("The deck '%1' cannot be written: %2").arg(path(), m_file.errorString());
        return false;
    }
    return isWritten;
}

bool ShellDeck::goBackTo(const Mark& mark)
{
    if (!flush() || m_file.isSequential() || !m_file.resize(mark.size) || !m_file.seek(mark.size))
        return false;
    m_writer->setFormat(mark.format);
    return true;
}
