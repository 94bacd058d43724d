#include "nsystem.h"

#include "peimage_p.h"
#include "platform.h"
#include "versionresource_p.h"

#include <QCoreApplication>
#include <QRegularExpression>

using nPlatform::DataFault;
using nPlatform::MappedFile;

namespace nSystem {

namespace nWin32 {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(nSystem)
};

ByteView bytesOf(const MappedFile& file)
{
    return ByteView(file.data(), file.size());
}

void requireMapped(const MappedFile& mapped, const QString& file)
{
    QString context;
    switch (mapped.failure()) {
    case MappedFile::Failure::None:
        return;
    case MappedFile::Failure::Open:
        context = Texts::tr("Failed to open file '%1'.");
        break;
    case MappedFile::Failure::CreateMapping:
        context = Texts::tr("Failed to create file mapping for '%1'.");
        break;
    case MappedFile::Failure::MapView:
        context = Texts::tr("Failed to map file '%1'.");
        break;
    }
    throw cWindowsError(context.arg(file), mapped.errorCode());
}

QString sizeFailure(const QString& file)
{
    return Texts::tr("Could not get size of version info of file '%1'.").arg(file);
}

/// Empty where the file itself holds no version resource.
std::optional<ByteView> versionBlock(const MappedFile& mapped, const QString& file)
{
    constexpr quint32 versionType = 16;
    if (mapped.failure() != MappedFile::Failure::None)
        throw cWindowsError(sizeFailure(file), mapped.errorCode());
    const PeImage image(bytesOf(mapped));
    if (!image.isValid())
        throw cWindowsError(sizeFailure(file), errorCodeOf(DataFault::BadExecutable));
    ByteView block;
    switch (image.findResource(versionType, block)) {
    case PeImage::Lookup::Found:
        break;
    case PeImage::Lookup::Missing:
        return std::nullopt;
    case PeImage::Lookup::Damaged:
        throw cWindowsError(Texts::tr("Could not get version info of file '%1'.").arg(file),
                            errorCodeOf(DataFault::ResourceMissing));
    }
    return block;
}

QString fileVersionText(const VersionResource& resource)
{
    const auto translations = resource.translations();
    if (!translations)
        throw cWindowsError(Texts::tr("Failed to query version info translation values."),
                            errorCodeOf(DataFault::ResourceMissing));
    const auto language = translations->u16(0);
    const auto codePage = translations->u16(2);
    if (!language || !codePage)
        throw cError(Texts::tr("Resource language unknown."));
    const auto text = resource.text(*language, *codePage, QStringLiteral("FileVersion"));
    if (!text)
        throw cWindowsError(Texts::tr("Failed to query version info value."),
                            errorCodeOf(DataFault::ResourceMissing));
    return *text;
}

} // namespace

QDateTime getLinkTimeStamp(const QString& file)
{
    const MappedFile mapped(file);
    requireMapped(mapped, file);
    const PeImage image(bytesOf(mapped));
    if (!image.isValid())
        throw cError(Texts::tr("File '%1' is not a valid Windows executable.").arg(file));
    return QDateTime::fromSecsSinceEpoch(image.linkTimeStamp(), Qt::UTC);
}

coVersionNumber getFileVersionFromStringFileInfo(const QString& file)
{
    static const QRegularExpression separators(QStringLiteral("\\s*[.,]\\s*"));
    const MappedFile mapped(file);
    const auto block = versionBlock(mapped, file);
    const QString text =
        block ? fileVersionText(VersionResource(*block)) : nPlatform::fileVersionBySystem(file);
    if (!block && text.isEmpty())
        throw cWindowsError(sizeFailure(file), errorCodeOf(DataFault::ResourceMissing));
    const QString numbers = text.trimmed().replace(separators, QStringLiteral("."));
    return coVersionNumber::fromString(numbers.section(QLatin1Char(' '), 0, 0));
}

} // namespace nWin32

} // namespace nSystem
