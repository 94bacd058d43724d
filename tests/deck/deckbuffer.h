#pragma once

#include <kdQCore/CFEDatLineWriter>

#include <QByteArray>
#include <QTextStream>

/// A writer on a stream in memory.
class DeckBuffer {
public:
    explicit DeckBuffer(datExtensionMode mode = datExtensionMode::standard,
                        datFormat format = datFormat::fixed)
        : m_stream(&m_bytes, QIODevice::WriteOnly), m_writer(mode, format)
    {
        m_writer.setFileHandler(&m_stream);
    }

    CFEDatLineWriter& writer() { return m_writer; }
    QTextStream& stream() { return m_stream; }

    const QByteArray& bytes()
    {
        m_stream.flush();
        return m_bytes;
    }

private:
    QByteArray m_bytes;
    QTextStream m_stream;
    CFEDatLineWriter m_writer;
};
