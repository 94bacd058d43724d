#include "coenumdata.h"

#include <QCoreApplication>

#include <algorithm>

const coEnumData::Row* coEnumData::find(int value) const
{
    const Row* const row = std::find_if(begin(), end(), [value](const Row& r) { return r.value == value; });
    return row != end() ? row : nullptr;
}

const coEnumData::Row* coEnumData::find(const QString& name) const
{
    const Row* const row =
        std::find_if(begin(), end(), [&name](const Row& r) { return name == QLatin1String(r.name); });
    return row != end() ? row : nullptr;
}

QString coEnumData::name(int value) const
{
    const Row* const row = find(value);
    return row ? QString::fromLatin1(row->name) : QString();
}

QString coEnumData::displayName(int value) const
{
    const Row* const row = find(value);
    return row ? QString::fromUtf8(row->displayName) : QString();
}

QString coEnumData::translatedDisplayName(int value) const
{
    const Row* const row = find(value);
    return row ? QCoreApplication::translate(m_context, row->displayName) : QString();
}
