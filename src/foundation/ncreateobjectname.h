#pragma once

#include "coobjectname.h"
#include "cotakennames.h"

/// Valid and unique names for objects.
///
/// \code
/// coTakenNames taken({QStringLiteral("Table"), QStringLiteral("Table-2")});
/// nCreateObjectName::createUniqueDisplayName(QStringLiteral("table"), coInternalName(), taken); // "table-3"
/// \endcode
///
/// A name that is free stays as it is; one that is taken gets a counter behind a hyphen, the first that makes
/// it free. Letter case makes no difference between names. Every call takes time linear in the taken names;
/// for thousands of names use coUniqueNameGenerator. No cut ever splits a surrogate pair, so a name may be
/// one code unit shorter than its limit.
///
/// Thread-safe.
namespace nCreateObjectName {

/// createUniqueDisplayName() and createUniqueInternalName().
KDQCORE_EXPORT coObjectName createUniqueName(const coDisplayName& display, const coInternalName& internal,
                                             const coTakenNames& takenNames);

/// An empty name becomes the translated "Name"; a long one is cut to coObjectName::maxLength().
///
/// A copy counts on where the original's counter stands: where \a display is taken and begins with the
/// internal name (its own counter apart) and a counter, as getNamePrefixWithCounter() finds it, that counter
/// is replaced by the first higher one that is free. So the copy of "Table-3" is "Table-4", and the copy of
/// "Table-3 upper side", with the internal name "Table-3" or "Table", is "Table-4 upper side".
KDQCORE_EXPORT coDisplayName createUniqueDisplayName(const coDisplayName& display,
                                                     const coInternalName& internal,
                                                     const coTakenNames& takenNames);

/// An empty name becomes the translated "Object"; a long one is cut to coObjectName::maxInternalLength(). A
/// first character that may not stand there becomes "0", every other one "-".
KDQCORE_EXPORT coInternalName createUniqueInternalName(const coInternalName& internal,
                                                       const coTakenNames& takenNames);

/// A display name that is a valid internal name serves as one, cut where it is too long. Otherwise the
/// internal name, or "Obj", is followed by a hyphen and as many valid characters of the display name as there
/// is room for. Characters that \a internal may not hold are replaced as by createUniqueInternalName().
KDQCORE_EXPORT coInternalName createUniqueInternalNameFromDisplayName(const coDisplayName& display,
                                                                      const coInternalName& internal,
                                                                      const coTakenNames& takenNames);

/// The start of \a name that consists of \a prefix, one separator (neither letter nor digit) and a number;
/// empty where the name does not begin so. Here letter case matters.
KDQCORE_EXPORT QString getNamePrefixWithCounter(const QString& name, const QString& prefix);
/// Those starts of the display names that are not empty, in their order.
KDQCORE_EXPORT QStringList getNamePrefixesWithCounters(const coTakenNames& names, const QString& prefix);

/// Makes \a name free among the internal or the display names. With \a force it gets a counter even where it
/// is free. A counter that it has is the first that is tried; otherwise 1 with \a force, else 2. The text in
/// front is cut so that the limit of the kind of name holds; a free name is not cut.
KDQCORE_EXPORT QString ensureUniqueCounter(const QString& name, const coTakenNames& takenNames, bool internal,
                                           bool force = false);

/// The characters of \a display that an internal name may hold behind its first: ASCII letters and digits,
/// and hyphens.
KDQCORE_EXPORT QString getValidDisplayNameCharacters(const QString& display);

/// Cuts a counter, the digits behind the last hyphen, and the hyphen off \a name and returns it; -1, with the
/// name unchanged, where there is none that fits an int.
KDQCORE_EXPORT int chopCounter(QString& name);

} // namespace nCreateObjectName
