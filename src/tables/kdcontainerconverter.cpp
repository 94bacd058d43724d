#include "kdcontainerconverter.h"

#include <algorithm>
#include <iterator>

namespace {

template <typename T>
QVariant toVariant(const T& value)
{
    return QVariant(value);
}

QVariant toVariant(const QList<QString>& texts)
{
    return QVariant(QStringList(texts));
}

template <typename T>
T fromVariant(const QVariant& value)
{
    return value.value<T>();
}

template <>
QList<QString> fromVariant<QList<QString>>(const QVariant& value)
{
    if (value.userType() == qMetaTypeId<QList<QString>>())
        return value.value<QList<QString>>(); // a type of its own, which toStringList() does not know
    return value.toStringList();
}

template <>
QStringList fromVariant<QStringList>(const QVariant& value)
{
    return fromVariant<QList<QString>>(value);
}

template <typename T>
void appendValues(const QList<QVariant>& source, QList<T>& target)
{
    target.reserve(target.size() + source.size());
    std::transform(source.cbegin(), source.cend(), std::back_inserter(target), fromVariant<T>);
}

template <typename T>
void appendVariants(const QList<T>& source, QList<QVariant>& target)
{
    target.reserve(target.size() + source.size());
    std::transform(source.cbegin(), source.cend(), std::back_inserter(target),
                   [](const T& value) { return toVariant(value); });
}

} // namespace

void kdContainerConverter::fromQVariant(const QList<QVariant>& source, QList<int>& target)
{
    appendValues(source, target);
}

void kdContainerConverter::fromQVariant(const QList<QVariant>& source, QList<double>& target)
{
    appendValues(source, target);
}

void kdContainerConverter::fromQVariant(const QList<QVariant>& source, QList<bool>& target)
{
    appendValues(source, target);
}

void kdContainerConverter::fromQVariant(const QList<QVariant>& source, QList<QString>& target)
{
    appendValues(source, target);
}

void kdContainerConverter::fromQVariant(const QList<QVariant>& source, QList<QList<QString>>& target)
{
    appendValues(source, target);
}

void kdContainerConverter::fromQVariant(const QList<QVariant>& source, QList<QStringList>& target)
{
    appendValues(source, target);
}

void kdContainerConverter::toQVariant(const QList<int>& source, QList<QVariant>& target)
{
    appendVariants(source, target);
}

void kdContainerConverter::toQVariant(const QList<double>& source, QList<QVariant>& target)
{
    appendVariants(source, target);
}

void kdContainerConverter::toQVariant(const QList<bool>& source, QList<QVariant>& target)
{
    appendVariants(source, target);
}

void kdContainerConverter::toQVariant(const QList<QString>& source, QList<QVariant>& target)
{
    appendVariants(source, target);
}

void kdContainerConverter::toQVariant(const QList<QList<QString>>& source, QList<QVariant>& target)
{
    appendVariants(source, target);
}

void kdContainerConverter::toQVariant(const QList<QStringList>& source, QList<QVariant>& target)
{
    appendVariants(source, target);
}

void kdContainerConverter::toQStringList(QStringList& target, const std::vector<std::string>& source)
{
    target.reserve(target.size() + int(source.size()));
    std::transform(source.begin(), source.end(), std::back_inserter(target), [](const std::string& text) {
        return QString::fromLocal8Bit(text.data(), int(text.size()));
    });
}
