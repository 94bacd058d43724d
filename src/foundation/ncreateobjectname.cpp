#include "ncreateobjectname.h"

#include <QCoreApplication>

#include <algorithm>
#include <vector>

namespace {

constexpr QLatin1Char hyphen('-');

bool isDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

int limitOf(bool internal)
{
    return internal ? coObjectName::maxInternalLength() : coObjectName::maxLength();
}

QStringRef cut(const QString& text, int length)
{
    length = qBound(0, length, text.size());
    if (length > 0 && length < text.size() && text.at(length).isLowSurrogate()
        && text.at(length - 1).isHighSurrogate())
        --length;
    return text.leftRef(length);
}

bool contains(const QStringList& taken, const QString& name)
{
    return taken.contains(name, Qt::CaseInsensitive);
}

// Names that differ in their counter alone.
struct CountedName {
    QString base; // cut where the whole would be longer than the limit
    QChar separator;
    QString tail;
    int limit;

    QStringRef baseOf(int digits) const { return cut(base, limit - 1 - digits - tail.size()); }

    QString text(qint64 counter) const
    {
        const QString digits = QString::number(counter);
        return baseOf(digits.size()) + separator + digits + tail;
    }

    // 0 for a name of another form; text() never makes a counter with leading zeros.
    qint64 counterOf(const QString& name) const
    {
        constexpr int mostDigits = 18;
        const int end = name.size() - tail.size();
        int start = end;
        while (start > 0 && end - start < mostDigits && isDigit(name.at(start - 1)))
            --start;
        const bool isCounted =
            start > 0 && start < end && name.at(start) != QLatin1Char('0') && name.at(start - 1) == separator;
        const QStringRef ownBase = isCounted ? name.leftRef(start - 1) : QStringRef();
        if (!isCounted || ownBase.compare(baseOf(end - start), Qt::CaseInsensitive) != 0
            || !name.endsWith(tail, Qt::CaseInsensitive))
            return 0;
        return name.midRef(start, end - start).toLongLong();
    }

    // One of taken.size() + 1 counters in a row is free: one pass over the names marks those that are not.
    QString firstFree(qint64 first, const QStringList& taken) const
    {
        std::vector<bool> isTaken(std::size_t(taken.size()) + 1);
        for (const QString& name : taken) {
            const qint64 counter = counterOf(name);
            if (counter >= first && counter - first < taken.size())
                isTaken[std::size_t(counter - first)] = true;
        }
        return text(first + (std::find(isTaken.begin(), isTaken.end(), false) - isTaken.begin()));
    }
};

QString withValidCharacters(QString internal)
{
    for (int i = 0; i < internal.size(); ++i)
        if (!coObjectName::isValidInternalName(internal.at(i)) && (i == 0 || internal.at(i) != hyphen))
            internal[i] = i == 0 ? QLatin1Char('0') : hyphen;
    return internal;
}

} // namespace

namespace nCreateObjectName {

coObjectName createUniqueName(const coDisplayName& display, const coInternalName& internal,
                              const coTakenNames& takenNames)
{
    return {createUniqueDisplayName(display, internal, takenNames),
            createUniqueInternalName(internal, takenNames)};
}

coDisplayName createUniqueDisplayName(const coDisplayName& display, const coInternalName& internal,
                                      const coTakenNames& takenNames)
{
    const QString given =
        display.isEmpty() ? QCoreApplication::translate("nCreateObjectName", "Name") : QString(display);
    const QString name = cut(given, coObjectName::maxLength()).toString();
    if (!contains(takenNames.displayNames(), name))
        return name;
    QString prefix = internal;
    chopCounter(prefix);
    const QString counted = prefix.isEmpty() ? QString() : getNamePrefixWithCounter(name, prefix);
    if (!counted.isEmpty()) {
        const int counter = counted.midRef(prefix.size() + 1).toInt();
        const CountedName form{prefix, counted.at(prefix.size()), name.mid(counted.size()),
                               coObjectName::maxLength()};
        const QString candidate = form.firstFree(qMax(counter, 1), takenNames.displayNames());
        if (candidate.size() <= coObjectName::maxLength())
            return candidate;
    }
    return ensureUniqueCounter(name, takenNames, false);
}

coInternalName createUniqueInternalName(const coInternalName& internal, const coTakenNames& takenNames)
{
    const QString name =
        internal.isEmpty() ? QCoreApplication::translate("nCreateObjectName", "Object") : QString(internal);
    return ensureUniqueCounter(withValidCharacters(name.left(coObjectName::maxInternalLength())), takenNames,
                               true);
}

coInternalName createUniqueInternalNameFromDisplayName(const coDisplayName& display,
                                                       const coInternalName& internal,
                                                       const coTakenNames& takenNames)
{
    const int limit = coObjectName::maxInternalLength();
    if (coObjectName::isValidInternalName(display))
        return ensureUniqueCounter(display.left(limit), takenNames, true);
    QString base = internal.isEmpty() ? QStringLiteral("Obj") : withValidCharacters(internal.left(limit));
    const QString characters = getValidDisplayNameCharacters(display);
    const int room = limit - base.size() - 1;
    if (!characters.isEmpty() && room > 0)
        base += hyphen + characters.left(room);
    return ensureUniqueCounter(base, takenNames, true);
}

QString getNamePrefixWithCounter(const QString& name, const QString& prefix)
{
    const int separator = prefix.size();
    if (!name.startsWith(prefix) || separator >= name.size() || name.at(separator).isLetterOrNumber()
        || name.at(separator).isSurrogate())
        return {};
    int end = separator + 1;
    while (end < name.size() && isDigit(name.at(end)))
        ++end;
    bool isInteger = false;
    name.midRef(separator + 1, end - separator - 1).toInt(&isInteger);
    return isInteger ? name.left(end) : QString();
}

QStringList getNamePrefixesWithCounters(const coTakenNames& names, const QString& prefix)
{
    QStringList result;
    for (const QString& name : names.displayNames()) {
        const QString counted = getNamePrefixWithCounter(name, prefix);
        if (!counted.isEmpty())
            result.append(counted);
    }
    return result;
}

QString ensureUniqueCounter(const QString& name, const coTakenNames& takenNames, bool internal, bool force)
{
    const QStringList& taken = internal ? takenNames.internalNames() : takenNames.displayNames();
    if (!force && !contains(taken, name))
        return name;
    QString base = name;
    const int counter = chopCounter(base);
    const int first = counter >= 1 ? counter : (force ? 1 : 2);
    return CountedName{base, hyphen, QString(), limitOf(internal)}.firstFree(first, taken);
}

QString getValidDisplayNameCharacters(const QString& display)
{
    return QString(display).remove(coObjectName::negatedFollowUpCharsNameRegExp());
}

int chopCounter(QString& name)
{
    const int last = name.lastIndexOf(hyphen);
    const QStringRef digits = name.midRef(last + 1);
    bool isInteger = last >= 0 && std::all_of(digits.begin(), digits.end(), isDigit);
    const int counter = isInteger ? digits.toInt(&isInteger) : -1;
    if (!isInteger)
        return -1;
    name.truncate(last);
    return counter;
}

} // namespace nCreateObjectName
