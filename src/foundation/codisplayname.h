#pragma once

#include <kdqcore_export.h>

#include <QList>
#include <QMetaType>
#include <QStringList>

class coInternalName;
class coObjectName;

/// The free name of an object, as users see it. A string with a type of its own, so that it cannot be passed
/// where an internal name is meant; see coObjectName.
class coDisplayName : public QString {
public:
    coDisplayName() = default;
    coDisplayName(const QString& name) : QString(name) { } // NOLINT: plain texts may become names
    /// \a length below 0 takes the characters up to the first NUL.
    coDisplayName(const QChar* name, int length) : QString(name, length) { }
    /// The same for UTF-8; \a length counts bytes.
    coDisplayName(const char* name, int length) : QString(QString::fromUtf8(name, length)) { }
    coDisplayName(const coInternalName&) = delete;
};

Q_DECLARE_TYPEINFO(coDisplayName, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(coDisplayName)

/// A list of display names, with the comforts of a QStringList.
//
// Its members are exported one by one: exporting the class would export the container as well.
class coDisplayNameList : public QList<coDisplayName> {
public:
    using QList<coDisplayName>::QList;
    coDisplayNameList() = default;
    KDQCORE_EXPORT coDisplayNameList(const QList<coDisplayName>& names); // NOLINT: the same list
    KDQCORE_EXPORT explicit coDisplayNameList(const coDisplayName& name);
    KDQCORE_EXPORT explicit coDisplayNameList(const QList<QString>& names);
    KDQCORE_EXPORT explicit coDisplayNameList(const QList<coObjectName>& names);

    KDQCORE_EXPORT QString join(const QString& separator) const;
    KDQCORE_EXPORT void sort(Qt::CaseSensitivity caseSensitivity = Qt::CaseSensitive);
    KDQCORE_EXPORT QStringList toStringList() const;

    KDQCORE_EXPORT coDisplayNameList operator+(const QList<coDisplayName>& names) const;
    KDQCORE_EXPORT coDisplayNameList& operator<<(const coDisplayName& name);
    KDQCORE_EXPORT coDisplayNameList& operator<<(const QList<coDisplayName>& names);
};

Q_DECLARE_METATYPE(coDisplayNameList)
