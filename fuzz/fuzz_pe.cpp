#include "versionresource_p.h"

#include <cstdlib>

/// Any bytes as a Windows executable: its headers, then every resource type of interest as a version
/// resource.
extern "C" int LLVMFuzzerTestOneInput(const uchar* data, size_t size)
{
    const ByteView file(data, static_cast<qint64>(size));
    const PeImage image(file);
    if (!image.isValid() && image.linkTimeStamp() != 0)
        abort();

    ByteView block;
    for (const quint32 type : {3U, 16U, 24U}) {
        if (image.findResource(type, block) != PeImage::Lookup::Found)
            continue;
        const VersionResource resource(block);
        const auto translations = resource.translations();
        if (translations && translations->u32(0))
            resource.text(*translations->u16(0), *translations->u16(2), QStringLiteral("FileVersion"));
    }

    // Bytes that are no executable may still be a version resource.
    const VersionResource resource(file);
    resource.translations();
    const auto text = resource.text(0x407, 0x4b0, QStringLiteral("FileVersion"));
    if (text && text->size() > file.size())
        abort();
    return 0;
}
