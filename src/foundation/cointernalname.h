#pragma once

#include <kdqcore_export.h>

#include <QList>
#include <QMetaType>
#include <QString>

class coDisplayName;
class coObjectName;

/// The short name of an object in decks, file names and references. A string with a type of its own, so that
/// it cannot be passed where a display name is meant; see coObjectName, whose rules it does not check.
class coInternalName : public QString {
public:
    coInternalName() = default;
    coInternalName(const QString& name) : QString(name) { } // NOLINT: plain texts may become names
    /// \a length below 0 takes the characters up to the first NUL.
    coInternalName(const QChar* name, int length) : QString(name, length) { }
    /// The same for UTF-8; \a length counts bytes.
    coInternalName(const char* name, int length) : QString(QString::fromUtf8(name, length)) { }
    coInternalName(const coDisplayName&) = delete;
};

Q_DECLARE_TYPEINFO(coInternalName, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(coInternalName)

/// A list of internal names.
//
// Its members are exported one by one: exporting the class would export the container as well.
class coInternalNameList : public QList<coInternalName> {
public:
    using QList<coInternalName>::QList;
    coInternalNameList() = default;
    KDQCORE_EXPORT coInternalNameList(const QList<coInternalName>& names); // NOLINT: the same list
    KDQCORE_EXPORT
    coInternalNameList(const QList<coObjectName>& names); // NOLINT: the internal names of these
};

Q_DECLARE_METATYPE(coInternalNameList)
