#include "codisplayname.h"

#include "cointernalname.h"
#include "coobjectname.h"

#include <algorithm>

coDisplayNameList::coDisplayNameList(const QList<coDisplayName>& names) : QList<coDisplayName>(names) { }

coDisplayNameList::coDisplayNameList(const coDisplayName& name)
{
    append(name);
}

coDisplayNameList::coDisplayNameList(const QList<QString>& names)
{
    reserve(names.size());
    for (const QString& name : names)
        append(name);
}

coDisplayNameList::coDisplayNameList(const QList<coObjectName>& names)
{
    reserve(names.size());
    for (const coObjectName& name : names)
        append(name.displayName());
}

QString coDisplayNameList::join(const QString& separator) const
{
    return toStringList().join(separator);
}

void coDisplayNameList::sort(Qt::CaseSensitivity caseSensitivity)
{
    std::sort(begin(), end(), [caseSensitivity](const QString& a, const QString& b) {
        return a.compare(b, caseSensitivity) < 0;
    });
}

QStringList coDisplayNameList::toStringList() const
{
    QStringList result;
    result.reserve(size());
    for (const coDisplayName& name : *this)
        result.append(name);
    return result;
}

coDisplayNameList coDisplayNameList::operator+(const QList<coDisplayName>& names) const
{
    coDisplayNameList result = *this;
    return result << names;
}

coDisplayNameList& coDisplayNameList::operator<<(const coDisplayName& name)
{
    append(name);
    return *this;
}

coDisplayNameList& coDisplayNameList::operator<<(const QList<coDisplayName>& names)
{
    append(names);
    return *this;
}

coInternalNameList::coInternalNameList(const QList<coInternalName>& names) : QList<coInternalName>(names) { }

coInternalNameList::coInternalNameList(const QList<coObjectName>& names)
{
    reserve(names.size());
    for (const coObjectName& name : names)
        append(name.internalName());
}
