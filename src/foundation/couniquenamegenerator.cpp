#include "couniquenamegenerator.h"

#include <QCoreApplication>

namespace {

// Folds as comparisons without letter case do, character by character; QString::toCaseFolded() makes two of
// some.
QString folded(const QString& text)
{
    QString result;
    result.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const bool isPair =
            text.at(i).isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        if (!isPair) {
            result += text.at(i).toCaseFolded();
            continue;
        }
        const uint character = QChar::toCaseFolded(QChar::surrogateToUcs4(text.at(i), text.at(i + 1)));
        result += QChar(QChar::highSurrogate(character));
        result += QChar(QChar::lowSurrogate(character));
        ++i;
    }
    return result;
}

} // namespace

coUniqueNameGenerator::coUniqueNameGenerator(QChar separator) : m_separator(separator) { }

void coUniqueNameGenerator::reserve(const coTakenNames& names)
{
    for (const QString& name : names.displayNames())
        m_taken.insert(folded(name));
    for (const QString& name : names.internalNames())
        m_taken.insert(folded(name));
}

QString coUniqueNameGenerator::next(const QString& base)
{
    if (base.isEmpty())
        return next(QCoreApplication::translate("nCreateObjectName", "Name"));
    const QString separator = m_separator.isNull() ? QString() : QString(m_separator);
    const QString foldedBase = folded(base);
    const QString foldedStart = foldedBase + folded(separator);
    qint64& counter = m_counters[foldedBase];
    for (;;) {
        const QString number = QString::number(++counter);
        const int before = m_taken.size();
        m_taken.insert(foldedStart + number);
        if (m_taken.size() > before)
            return base + separator + number;
    }
}
