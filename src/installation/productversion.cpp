#include "productversion.h"

#include "kdbuildinfo_p.h"
#include "platform.h"

#include <QSysInfo>

namespace {

struct Row {
    const char* name;
    const char* version;
    int minorRelease;
};

// By product number.
constexpr Row rows[] = {
    {"Kaldoran", "2018", 1},
    {"Kaldoran Additive", "2018", 1},
    {"Kaldoran Demos", "2018", 1},
    {"Kaldoran Forming", "2018", 1},
    {"Kaldoran Job Editor", "2018", 1},
    {"Kaldoran Joining Optimizer", "2018", 1},
    {"Kaldoran Material", "2018", 1},
    {"Kaldoran Mesh", "2018", 1},
    {"Kaldoran Service", "2018", 1},
    {"Kaldoran Welding", "2018", 1},
    {"Kaldoran Monitor", "2018", 1},
    {"Kaldoran Remote", "2018", 1},
};
static_assert(sizeof(rows) / sizeof(rows[0]) == coProductType::Remote + 1);

QString platform()
{
    return nPlatform::systemName() + QString::number(int(QSysInfo::WordSize));
}

QString dotted(const QString& first, const QString& second)
{
    return QStringLiteral("%1.%2").arg(first, second);
}

QString spaced(const QString& first, const QString& second)
{
    return QStringLiteral("%1 %2").arg(first, second);
}

} // namespace

QString ProductVersion::productName() const
{
    return QString::fromLatin1(rows[m_type].name);
}

QString ProductVersion::productVersion() const
{
    return QString::fromLatin1(rows[m_type].version);
}

QString ProductVersion::fullVersion(bool withMinor) const
{
    return withMinor ? dotted(productVersion(), QString::number(rows[m_type].minorRelease))
                     : productVersion();
}

QString ProductVersion::fullRevisionVersion() const
{
    return dotted(fullVersion(true), QLatin1String(nBuildInfo::revisionNumber));
}

QString ProductVersion::fullRevisionOSVersion() const
{
    return dotted(fullRevisionVersion(), platform());
}

QString ProductVersion::fullRevisionOSVersionDate() const
{
    return spaced(fullRevisionOSVersion(), QLatin1String(nBuildInfo::buildDate));
}

QString ProductVersion::productNameAndVersion() const
{
    return spaced(productName(), productVersion());
}

QString ProductVersion::productNameAndFullVersion() const
{
    return spaced(productName(), fullVersion(true));
}

QString ProductVersion::productNameAndFullRevisionVersion() const
{
    return spaced(productName(), fullRevisionVersion());
}

QString ProductVersion::productNameAndFullRevisionOSVersion() const
{
    return spaced(productName(), fullRevisionOSVersion());
}

QString ProductVersion::productNameAndFullRevisionOSVersionTime() const
{
    return QStringLiteral("%1 - %2").arg(productNameAndFullRevisionOSVersion(),
                                         QLatin1String(nBuildInfo::buildTime));
}

QString ProductVersion::fullVersionAndSuffix() const
{
    return fullVersion(false) + suffix();
}

QString ProductVersion::suffix()
{
    return QStringLiteral(" (dev)");
}
