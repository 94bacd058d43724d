#include "usageplace.h"

namespace {

bool isKeyword(const QString& word)
{
    return !word.isEmpty() && (word.at(0).isLower() || word.at(0).isDigit() || word == QLatin1String("="));
}

/// A usage line in words, each with its alternatives.
class Usage {
public:
    explicit Usage(const QString& text)
    {
        const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        for (QString word : words) {
            const bool begins = word.startsWith(QLatin1Char('['));
            m_fixed += m_fixed == m_words.size() && !begins ? 1 : 0;
            if (begins)
                m_groups.append(m_words.size());
            m_repeats = word.endsWith(QLatin1String("...")); // the last word tells
            for (const char mark : {'[', ']', '.', ','})
                word.remove(QLatin1Char(mark));
            m_words.append(word);
        }
    }

    UsagePlace placeBehind(const QStringList& typed) const
    {
        for (int i = typed.size() - 1; i >= 0; --i) {
            const int keyword = indexOf(typed.at(i));
            if (keyword < 0)
                continue;
            const int next = keyword + typed.size() - i;
            return next <= lastValueBehind(keyword) ? single(next, typed.at(i)) : options(typed);
        }
        return typed.size() < m_fixed ? single(typed.size(), QString()) : options(typed);
    }

private:
    bool isChoice(int index) const { return m_words.at(index).contains(QLatin1Char('|')); }
    QStringList alternatives(int index) const { return m_words.at(index).split(QLatin1Char('|')); }

    int indexOf(const QString& word) const
    {
        for (int i = 0; isKeyword(word) && i < m_words.size(); ++i)
            if (alternatives(i).contains(word))
                return i;
        return -1;
    }

    /// Of the values, or of a choice of words, that belong to a keyword.
    int lastValueBehind(int keyword) const
    {
        int last = keyword;
        while (last + 1 < m_words.size() && !m_groups.contains(last + 1)
               && (!isKeyword(m_words.at(last + 1)) || isChoice(last + 1) || last + 1 < m_fixed))
            ++last;
        return last;
    }

    void add(int index, UsagePlace& place) const
    {
        const QStringList words = alternatives(index);
        for (const QString& word : words)
            (isKeyword(word) ? place.keywords : place.values).append(word);
    }

    UsagePlace single(int index, const QString& keyword) const
    {
        UsagePlace place;
        place.after = index > 0 && !isChoice(index - 1) ? keyword : QString();
        add(index, place);
        return place;
    }

    /// What may be left out and has not been typed yet, and what may be repeated.
    UsagePlace options(const QStringList& typed) const
    {
        UsagePlace place;
        for (int i = m_fixed; i < m_words.size(); ++i)
            if (isKeyword(m_words.at(i)) ? m_groups.contains(i) || !isChoice(i)
                                         : m_groups.contains(i) && typed.size() == m_fixed)
                add(i, place);
        for (const QString& word : typed)
            place.keywords.removeAll(word);
        if (m_repeats && typed.size() >= m_fixed) {
            const int group = qMax(1, m_words.size() - m_fixed); // of one word where nothing is in brackets
            add(m_words.size() - group + (typed.size() - m_fixed) % group, place);
        }
        return place;
    }

    QStringList m_words;
    QVector<int> m_groups; ///< where brackets open
    int m_fixed = 0;       ///< words before the first bracket
    bool m_repeats = false;
};

} // namespace

UsagePlace UsagePlace::find(const QString& usage, const QStringList& typed)
{
    return Usage(usage).placeBehind(typed);
}
