#include "cotakennames.h"

namespace {

template <typename Names>
QStringList texts(const Names& names)
{
    QStringList result;
    result.reserve(names.size());
    for (const QString& name : names)
        result.append(name);
    return result;
}

} // namespace

coTakenNames::coTakenNames() = default;

coTakenNames::coTakenNames(const QList<coObjectName>& names)
{
    m_displayNames.reserve(names.size());
    m_internalNames.reserve(names.size());
    for (const coObjectName& name : names)
        append(name);
}

coTakenNames::coTakenNames(const QList<coDisplayName>& names)
    : m_displayNames(texts(names)), m_internalNames(m_displayNames)
{
}

coTakenNames::coTakenNames(const QList<coInternalName>& names)
    : m_displayNames(texts(names)), m_internalNames(m_displayNames)
{
}

coTakenNames::coTakenNames(const QList<QString>& names) : m_displayNames(names), m_internalNames(names) { }

coTakenNames::coTakenNames(std::initializer_list<coObjectName> names)
    : coTakenNames(QList<coObjectName>(names))
{
}

coTakenNames::coTakenNames(std::initializer_list<QString> names) : coTakenNames(QList<QString>(names)) { }

void coTakenNames::append(const coObjectName& name)
{
    m_displayNames.append(name.displayName());
    m_internalNames.append(name.internalName());
}
