#include "codeckcompare.h"

#include "codeckreader.h"
#include "decknumber_p.h"
#include "deckwords_p.h"

#include <QHash>
#include <QIODevice>

#include <algorithm>
#include <cmath>

bool coDeckCompare::run(QIODevice& first, const coDeckLayout& firstLayout, QIODevice& second,
                        const coDeckLayout& secondLayout)
{
    m_differences.clear();
    m_errorText.clear();
    Deck a{&first, firstLayout, {}};
    Deck b{&second, secondLayout, {}};
    if (!readOptions(a) || !readOptions(b))
        return false;
    const QVector<int> partners = match(a, b);
    QVector<bool> isMatched(b.options.size(), false);
    for (int i = 0; i < a.options.size(); ++i) {
        const coDeckOption& option = a.options.at(i);
        if (partners.at(i) < 0) {
            m_differences.append(
                {Difference::OnlyInFirst, option.text(), option.firstLine, 0, {}, {}, 1, 0.0});
            continue;
        }
        isMatched[partners.at(i)] = true;
        compareOption(a, option, b, b.options.at(partners.at(i)));
    }
    findMoved(a, b, partners);
    for (int i = 0; i < b.options.size(); ++i) {
        const coDeckOption& option = b.options.at(i);
        if (!isMatched.at(i))
            m_differences.append(
                {Difference::OnlyInSecond, option.text(), 0, option.firstLine, {}, {}, 1, 0.0});
    }
    return m_differences.isEmpty();
}

bool coDeckCompare::readOptions(Deck& deck)
{
    coDeckReader reader(*deck.device, deck.layout, coDeckReader::NoCards);
    coDeckOption option;
    while (reader.next(option))
        if (option.kind != coDeckOption::Comments)
            deck.options.append(option);
    m_errorText = reader.errorText();
    return !reader.hasFailed();
}

/// For each option of the first deck its partner in the second, or -1.
QVector<int> coDeckCompare::match(const Deck& first, const Deck& second)
{
    QHash<QString, QVector<int>> places;
    for (int i = second.options.size() - 1; i >= 0; --i)
        places[second.options.at(i).text()].append(i);
    QVector<int> result;
    result.reserve(first.options.size());
    for (const coDeckOption& option : first.options) {
        const auto found = places.find(option.text());
        result.append(found == places.end() || found->isEmpty() ? -1 : found->takeLast());
    }
    return result;
}

/// All but a longest run of partners that ascends stand elsewhere.
void coDeckCompare::findMoved(const Deck& first, const Deck& second, const QVector<int>& partners)
{
    QVector<int> ends; // of the best run of each length, as indices of the first
    QVector<int> previous(partners.size(), -1);
    for (int i = 0; i < partners.size(); ++i) {
        if (partners.at(i) < 0)
            continue;
        const auto place = std::lower_bound(ends.begin(), ends.end(), partners.at(i),
                                            [&](int end, int partner) { return partners.at(end) < partner; });
        previous[i] = place == ends.begin() ? -1 : *(place - 1);
        if (place == ends.end())
            ends.append(i);
        else
            *place = i;
    }
    QVector<bool> isInRun(partners.size(), false);
    for (int i = ends.isEmpty() ? -1 : ends.constLast(); i >= 0; i = previous.at(i))
        isInRun[i] = true;
    for (int i = 0; i < partners.size(); ++i) {
        if (partners.at(i) < 0 || isInRun.at(i))
            continue;
        const coDeckOption& option = first.options.at(i);
        m_differences.append({Difference::Moved,
                              option.text(),
                              option.firstLine,
                              second.options.at(partners.at(i)).firstLine,
                              {},
                              {},
                              1,
                              0.0});
    }
}

void coDeckCompare::compareOption(const Deck& first, const coDeckOption& a, const Deck& second,
                                  const coDeckOption& b)
{
    DeckWords words(*first.device, a, first.layout.mode());
    DeckWords otherWords(*second.device, b, second.layout.mode());
    Difference difference;
    difference.option = a.text();
    difference.count = 0;
    while (true) {
        DeckWord word;
        DeckWord other;
        const bool hasWord = words.next(word);
        const bool hasOther = otherWords.next(other);
        if (!hasWord && !hasOther)
            break;
        double relative = 0.0;
        if (hasWord && hasOther && isSame(word.text, other.text, relative))
            continue;
        difference.largestRelative = std::max(difference.largestRelative, relative);
        if (difference.count++ > 0)
            continue;
        difference.firstLine = hasWord ? word.line : a.firstLine + a.lines - 1;
        difference.secondLine = hasOther ? other.line : b.firstLine + b.lines - 1;
        difference.first = QString::fromLocal8Bit(word.text);
        difference.second = QString::fromLocal8Bit(other.text);
    }
    if (difference.count > 0)
        m_differences.append(difference);
}

bool coDeckCompare::isSame(const QByteArray& a, const QByteArray& b, double& relative) const
{
    if (a == b)
        return true;
    int wholeA = 0;
    int wholeB = 0;
    const bool isWhole =
        nDeckNumber::readInt(a.begin(), a.end(), wholeA) && nDeckNumber::readInt(b.begin(), b.end(), wholeB);
    if (isWhole)
        return wholeA == wholeB;
    double valueA = 0.0;
    double valueB = 0.0;
    if (!nDeckNumber::readReal(a.begin(), a.end(), valueA)
        || !nDeckNumber::readReal(b.begin(), b.end(), valueB))
        return false;
    if (valueA == valueB || (std::isnan(valueA) && std::isnan(valueB)))
        return true;
    const double scale = std::max(std::fabs(valueA), std::fabs(valueB));
    const double distance = std::fabs(valueA - valueB);
    if (!std::isfinite(scale))
        relative = 2.0;
    else if (std::isfinite(distance))
        relative = distance / scale;
    else // of two large values of unlike sign
        relative = std::fabs(valueA / scale - valueB / scale);
    return relative <= m_tolerance;
}

QString coDeckCompare::report() const
{
    QString result;
    for (const Difference& difference : m_differences) {
        const QString first = QString::number(difference.firstLine);
        const QString second = QString::number(difference.secondLine);
        result += difference.option + QLatin1String(": ");
        switch (difference.kind) {
        case Difference::OnlyInFirst:
            result += tr("only in the first deck, line %1").arg(first);
            break;
        case Difference::OnlyInSecond:
            result += tr("only in the second deck, line %1").arg(second);
            break;
        case Difference::Moved:
            result += tr("at another place: line %1, line %2").arg(first, second);
            break;
        case Difference::Changed:
            result += tr("words that differ: %1, the first:").arg(difference.count);
            if (difference.largestRelative > 0.0)
                result += tr(" (numbers by up to %1, relatively)")
                              .arg(QString::number(difference.largestRelative, 'g', 3));
            result += QLatin1String("\n- ") + tr("line %1: %2").arg(first, difference.first);
            result += QLatin1String("\n+ ") + tr("line %1: %2").arg(second, difference.second);
            break;
        }
        result += QLatin1Char('\n');
    }
    return result;
}
