#pragma once

#include "coobjectname.h"

#include <initializer_list>

/// The names that new ones must differ from. Any list of names becomes one, so callers of nCreateObjectName
/// pass the list that they have.
///
/// \code
/// coTakenNames taken(objectNames);
/// const coObjectName name = nCreateObjectName::createUniqueName(display, internal, taken);
/// taken.append(name);
/// \endcode
///
/// Plain texts, and names of one kind alone, are taken both as display and as internal names. A value type.
class KDQCORE_EXPORT coTakenNames {
public:
    coTakenNames();
    coTakenNames(const QList<coObjectName>& names);   // NOLINT: see the class
    coTakenNames(const QList<coDisplayName>& names);  // NOLINT
    coTakenNames(const QList<coInternalName>& names); // NOLINT
    coTakenNames(const QList<QString>& names);        // NOLINT
    coTakenNames(std::initializer_list<coObjectName> names);
    coTakenNames(std::initializer_list<QString> names);

    void append(const coObjectName& name);

    const QStringList& displayNames() const { return m_displayNames; }
    const QStringList& internalNames() const { return m_internalNames; }

private:
    QStringList m_displayNames;
    QStringList m_internalNames;
};
