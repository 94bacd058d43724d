#pragma once

#include <QtGlobal>

#include <optional>

/// Bytes from outside, read as little-endian numbers; an access beyond the end yields nothing. Owns no
/// memory.
class ByteView {
public:
    ByteView() = default;
    ByteView(const uchar* data, qint64 size) : m_data(data), m_size(size) { }

    qint64 size() const { return m_size; }
    bool covers(qint64 offset, qint64 count) const;
    std::optional<quint16> u16(qint64 offset) const;
    std::optional<quint32> u32(qint64 offset) const;
    /// At most \a count bytes from \a offset on; empty beyond the end.
    ByteView mid(qint64 offset, qint64 count) const;

private:
    const uchar* m_data = nullptr;
    qint64 m_size = 0;
};

/// The headers and resources of a Windows executable (PE32 and PE32+), read from its bytes on any system.
/// Takes any bytes: nothing is believed that the bytes do not bear out.
class PeImage {
public:
    explicit PeImage(const ByteView& file);

    /// Whether DOS header and PE signature are right and the file header is whole.
    bool isValid() const { return m_fileHeader >= 0; }

    /// Seconds since 1970-01-01 UTC; 0 for an invalid image. Reproducible builds store a hash instead.
    quint32 linkTimeStamp() const;

    enum class Lookup {
        Found,
        Missing, ///< no such entry in the resource directory
        Damaged, ///< the directory names bytes that are not in the file
    };

    /// The resource of this type with id 1, else the first of the type; in the first language that it has.
    Lookup findResource(quint32 type, ByteView& resource) const;

private:
    qint64 optionalHeader() const { return m_fileHeader + 20; }
    std::optional<quint32> resourceDirectory() const;
    ByteView sectionFrom(quint32 virtualAddress) const;

    ByteView m_file;
    qint64 m_fileHeader = -1;
};
