#pragma once

#include <QByteArray>
#include <QString>
#include <QtEndian>

#include <initializer_list>

/// Writes the smallest Windows executable that has headers and a version resource, byte by byte.
namespace PeBuilder {

inline QByteArray u16(int value)
{
    QByteArray bytes(2, '\0');
    qToLittleEndian(static_cast<quint16>(value), bytes.data());
    return bytes;
}

inline QByteArray u32(quint32 value)
{
    QByteArray bytes(4, '\0');
    qToLittleEndian(value, bytes.data());
    return bytes;
}

inline QByteArray utf16(const QString& text)
{
    QByteArray bytes;
    for (const QChar c : text)
        bytes += u16(c.unicode());
    return bytes + u16(0);
}

inline void align(QByteArray& bytes)
{
    while (bytes.size() % 4 != 0)
        bytes += '\0';
}

/// A node of the version resource; \a valueLength counts characters for texts (type 1) and bytes otherwise.
inline QByteArray node(const char* key, int type, int valueLength, const QByteArray& value,
                       std::initializer_list<QByteArray> children = {})
{
    QByteArray bytes = u16(0) + u16(valueLength) + u16(type) + utf16(QString::fromLatin1(key));
    align(bytes);
    bytes += value;
    for (const QByteArray& child : children) {
        align(bytes);
        bytes += child;
    }
    return bytes.replace(0, 2, u16(bytes.size()));
}

inline QByteArray text(const char* key, const QString& value)
{
    return node(key, 1, value.size() + 1, utf16(value));
}

inline QByteArray translations(const QByteArray& pairs)
{
    return node("VarFileInfo", 1, 0, {}, {node("Translation", 0, pairs.size(), pairs)});
}

inline QByteArray strings(const char* table, const QString& version)
{
    return node("StringFileInfo", 1, 0, {},
                {node(table, 1, 0, {},
                      {text("CompanyName", QStringLiteral("Größe & Co")), text("FileVersion", version)})});
}

inline QByteArray versionInfo(std::initializer_list<QByteArray> children)
{
    return node("VS_VERSION_INFO", 0, 52, QByteArray(52, '\x11'), children);
}

inline QByteArray usualVersionInfo(const QString& version)
{
    return versionInfo({strings("040704b0", version), translations(u16(0x407) + u16(0x4b0))});
}

constexpr quint32 sectionAddress = 0x5000;
constexpr int directorySize = 3 * 24 + 16;

/// The resource section: three directories of one entry each, the leaf, the data.
inline QByteArray resourceSection(const QByteArray& versionInfo)
{
    const auto directory = [](quint32 id, quint32 target) {
        return QByteArray(12, '\0') + u16(0) + u16(1) + u32(id) + u32(target);
    };
    constexpr quint32 subdirectory = 0x80000000U;
    return directory(16, subdirectory | 24) + directory(1, subdirectory | 48) + directory(0x407, 72)
        + u32(sectionAddress + directorySize) + u32(static_cast<quint32>(versionInfo.size()))
        + QByteArray(8, '\0') + versionInfo;
}

constexpr int peOffset = 128;

/// Where the resource section lies in the file.
inline int sectionOffset(bool pe32Plus = true)
{
    return peOffset + 24 + (pe32Plus ? 240 : 224) + 40;
}

inline QByteArray image(const QByteArray& versionInfo, bool pe32Plus = true, quint32 timeStamp = 1700000000)
{
    const int optionalSize = pe32Plus ? 240 : 224;
    QByteArray optional = u16(pe32Plus ? 0x20b : 0x10b);
    optional += QByteArray(optionalSize - 16 * 8 - 4 - optional.size(), '\0') + u32(16)
        + QByteArray(2 * 8, '\0') + u32(sectionAddress);
    optional += QByteArray(optionalSize - optional.size(), '\0');

    const QByteArray section = resourceSection(versionInfo);
    const auto sectionSize = static_cast<quint32>(section.size());
    QByteArray bytes = QByteArray("MZ") + QByteArray(58, '\0') + u32(peOffset);
    bytes += QByteArray(peOffset - bytes.size(), '\x90');
    bytes += QByteArray("PE\0\0", 4) + u16(0x8664) + u16(1) + u32(timeStamp) + QByteArray(8, '\0')
        + u16(optionalSize) + u16(0x22) + optional;
    bytes += QByteArray(".rsrc\0\0\0", 8) + u32(sectionSize) + u32(sectionAddress) + u32(sectionSize)
        + u32(static_cast<quint32>(sectionOffset(pe32Plus))) + QByteArray(16, '\0');
    return bytes + section;
}

} // namespace PeBuilder
