#pragma once

#include <kdqcore_export.h>

#include <QMetaType>
#include <QString>

// The C library has macros named major() and minor() for device numbers. They are taken out of the way here,
// for good: their header is read first, so that no later include brings them back. Code that needs device
// numbers calls gnu_dev_major() and gnu_dev_minor().
#ifdef __has_include
#if __has_include(<sys/sysmacros.h>)
#include <sys/sysmacros.h>
#endif
#endif
#undef major
#undef minor

QT_BEGIN_NAMESPACE
class QDebug;
QT_END_NAMESPACE

/// A version of four numbers: major, minor, patch level, revision.
///
/// \code
/// const coVersionNumber version = coVersionNumber::fromString(QStringLiteral("2018.1"));
/// if (version >= coVersionNumber(2018, 0, 0, 0))
///     show(version.toString(coVersionNumber::MajorMinor)); // "2018.1"
/// \endcode
///
/// Versions compare number by number from the left. A small value type; all numbers are 0 by default.
class KDQCORE_EXPORT coVersionNumber {
public:
    /// How many of the numbers matter.
    enum e_Format : int { MajorOnly = 0, MajorMinor = 1, MajorMinorPatchLevel = 2, AllParts = 3 };

    constexpr coVersionNumber() = default;
    constexpr coVersionNumber(int major, int minor, int patchLevel, int revision)
        : m_major(major), m_minor(minor), m_patchLevel(patchLevel), m_revision(revision)
    {
    }
    /// See fromString().
    coVersionNumber(const QString& text); // NOLINT: version texts stand for versions

    /// Reads up to four decimal numbers between dots; what is missing or no number is 0, what follows the
    /// fourth is ignored. Never fails.
    static coVersionNumber fromString(const QString& text);

    constexpr int major() const { return m_major; }
    constexpr int minor() const { return m_minor; }
    constexpr int patchLevel() const { return m_patchLevel; }
    constexpr int revision() const { return m_revision; }

    void setMajor(int major) { m_major = major; }
    void setMinor(int minor) { m_minor = minor; }
    void setPatchLevel(int patchLevel) { m_patchLevel = patchLevel; }
    void setRevision(int revision) { m_revision = revision; }

    /// The numbers that matter, joined with dots; all four for an unknown format.
    QString toString(e_Format format = AllParts) const;

    /// A copy with 0 for the numbers that do not matter; the whole version for an unknown format.
    coVersionNumber shortend(e_Format format) const;

private:
    qint32 m_major = 0;
    qint32 m_minor = 0;
    qint32 m_patchLevel = 0;
    qint32 m_revision = 0;
};

KDQCORE_EXPORT bool operator==(const coVersionNumber& a, const coVersionNumber& b);
KDQCORE_EXPORT bool operator<(const coVersionNumber& a, const coVersionNumber& b);

inline bool operator!=(const coVersionNumber& a, const coVersionNumber& b)
{
    return !(a == b);
}

inline bool operator>(const coVersionNumber& a, const coVersionNumber& b)
{
    return b < a;
}

inline bool operator<=(const coVersionNumber& a, const coVersionNumber& b)
{
    return !(b < a);
}

inline bool operator>=(const coVersionNumber& a, const coVersionNumber& b)
{
    return !(a < b);
}

KDQCORE_EXPORT QDebug operator<<(QDebug debug, const coVersionNumber& version);

Q_DECLARE_TYPEINFO(coVersionNumber, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(coVersionNumber)
