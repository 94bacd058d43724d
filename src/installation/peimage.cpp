#include "peimage_p.h"

#include <algorithm>

namespace {

constexpr quint16 dosMagic = 0x5a4d;    // "MZ"
constexpr quint32 peSignature = 0x4550; // "PE", two NUL bytes
constexpr quint16 pe32Magic = 0x10b;
constexpr quint16 pe32PlusMagic = 0x20b;
constexpr qint64 dosHeaderSize = 64;
constexpr qint64 fileHeaderSize = 20;
constexpr qint64 sectionHeaderSize = 40;
constexpr quint32 subdirectoryBit = 0x80000000U;

/// Where an entry of a resource directory leads to; without \a id the first entry is taken.
std::optional<quint32> entryTarget(const ByteView& resources, quint32 directory, std::optional<quint32> id)
{
    const auto namedCount = resources.u16(qint64(directory) + 12);
    const auto idCount = resources.u16(qint64(directory) + 14);
    if (!namedCount || !idCount)
        return std::nullopt;
    const int count = *namedCount + *idCount;
    for (int i = 0; i < count; ++i) {
        const qint64 entry = qint64(directory) + 16 + 8 * qint64(i);
        const auto name = resources.u32(entry);
        if (!name)
            return std::nullopt;
        if (!id || *id == *name)
            return resources.u32(entry + 4);
    }
    return std::nullopt;
}

std::optional<quint32> subdirectory(const ByteView& resources, quint32 directory, std::optional<quint32> id)
{
    const auto target = entryTarget(resources, directory, id);
    if (!target || !(*target & subdirectoryBit))
        return std::nullopt;
    return *target & ~subdirectoryBit;
}

} // namespace

bool ByteView::covers(qint64 offset, qint64 count) const
{
    return offset >= 0 && count >= 0 && offset <= m_size && count <= m_size - offset;
}

std::optional<quint16> ByteView::u16(qint64 offset) const
{
    if (!covers(offset, 2))
        return std::nullopt;
    return static_cast<quint16>(m_data[offset] | (m_data[offset + 1] << 8));
}

std::optional<quint32> ByteView::u32(qint64 offset) const
{
    const auto low = u16(offset);
    const auto high = u16(offset + 2);
    if (!low || !high)
        return std::nullopt;
    return quint32(*low) | (quint32(*high) << 16);
}

ByteView ByteView::mid(qint64 offset, qint64 count) const
{
    if (!covers(offset, 0) || count <= 0)
        return ByteView();
    return ByteView(m_data + offset, std::min(count, m_size - offset));
}

PeImage::PeImage(const ByteView& file) : m_file(file)
{
    if (!file.covers(0, dosHeaderSize) || file.u16(0) != dosMagic)
        return;
    const qint64 signature = file.u32(dosHeaderSize - 4).value_or(0);
    if (file.u32(signature) == peSignature && file.covers(signature + 4, fileHeaderSize))
        m_fileHeader = signature + 4;
}

quint32 PeImage::linkTimeStamp() const
{
    return isValid() ? m_file.u32(m_fileHeader + 4).value_or(0) : 0;
}

std::optional<quint32> PeImage::resourceDirectory() const
{
    constexpr quint32 resourceEntry = 2;
    const auto magic = m_file.u16(optionalHeader());
    if (magic != pe32Magic && magic != pe32PlusMagic)
        return std::nullopt;
    const qint64 directories = optionalHeader() + (magic == pe32Magic ? 96 : 112);
    if (m_file.u32(directories - 4).value_or(0) <= resourceEntry)
        return std::nullopt;
    return m_file.u32(directories + 8 * resourceEntry);
}

// What the file holds from a virtual address to the end of its section.
ByteView PeImage::sectionFrom(quint32 virtualAddress) const
{
    const int count = m_file.u16(m_fileHeader + 2).value_or(0);
    const qint64 sections = optionalHeader() + m_file.u16(m_fileHeader + 16).value_or(0);
    for (int i = 0; i < count; ++i) {
        const qint64 header = sections + i * sectionHeaderSize;
        if (!m_file.covers(header, sectionHeaderSize))
            break;
        const qint64 distance = qint64(virtualAddress) - *m_file.u32(header + 12);
        const qint64 sizeInFile = *m_file.u32(header + 16);
        const qint64 offsetInFile = *m_file.u32(header + 20);
        if (distance >= 0 && distance < sizeInFile)
            return m_file.mid(offsetInFile + distance, sizeInFile - distance);
    }
    return ByteView();
}

PeImage::Lookup PeImage::findResource(quint32 type, ByteView& resource) const
{
    const auto root = isValid() ? resourceDirectory() : std::nullopt;
    if (!root)
        return Lookup::Missing;
    // The tree has exactly three levels - type, name, language - so no loop in it can hold us.
    const ByteView resources = sectionFrom(*root);
    const auto names = subdirectory(resources, 0, type);
    if (!names)
        return Lookup::Missing;
    auto languages = subdirectory(resources, *names, 1);
    if (!languages)
        languages = subdirectory(resources, *names, std::nullopt);
    const auto leaf = languages ? entryTarget(resources, *languages, std::nullopt) : std::nullopt;
    if (!leaf || (*leaf & subdirectoryBit))
        return Lookup::Missing;
    const auto address = resources.u32(*leaf);
    const auto size = resources.u32(qint64(*leaf) + 4);
    if (!address || !size)
        return Lookup::Damaged;
    resource = sectionFrom(*address).mid(0, *size);
    return resource.size() == *size && *size > 0 ? Lookup::Found : Lookup::Damaged;
}
