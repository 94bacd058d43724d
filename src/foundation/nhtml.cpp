#include "nhtml.h"

#include "htmlentities_p.h"

#include <QHash>
#include <QVector>

#include <algorithm>

namespace nHtml {

namespace {

enum class Element {
    Inline,
    Block,
    LineBreak,
    Dropped,
    Hidden,
    OrderedList,
    BulletList,
    Item,
    Row,
    Cell,
    Preformatted
};

// Names that are tags wherever they stand. Those of HTML that are plain words too ("source", "input",
// "section") are missing: they count as tags only where something else shows it.
const QHash<QString, Element>& elements()
{
    static const QHash<QString, Element> table = [] {
        const QPair<Element, QString> groups[] = {
            {Element::Inline,
             QStringLiteral(
                 "a abbr acronym b bdi bdo big blink cite code col colgroup del dfn em font i img ins kbd "
                 "meta nobr noscript q rb rp rt rtc ruby s samp small span strike strong sub sup svg tt u "
                 "var wbr")},
            {Element::Block,
             QStringLiteral(
                 "address article aside blockquote body caption center dd details dialog div dl dt fieldset "
                 "figcaption figure footer form h1 h2 h3 h4 h5 h6 header hgroup hr html legend main nav "
                 "optgroup option p qt search section summary table tbody tfoot thead")},
            {Element::LineBreak, QStringLiteral("br")},
            {Element::Dropped, QStringLiteral("script style")},
            {Element::Hidden, QStringLiteral("head title")},
            {Element::OrderedList, QStringLiteral("ol")},
            {Element::BulletList, QStringLiteral("ul")},
            {Element::Item, QStringLiteral("li")},
            {Element::Row, QStringLiteral("tr")},
            {Element::Cell, QStringLiteral("td th")},
            {Element::Preformatted, QStringLiteral("pre")},
        };
        QHash<QString, Element> result;
        for (const auto& group : groups) {
            const QStringList names = group.second.split(QLatin1Char(' '));
            for (const QString& name : names)
                result.insert(name, group.first);
        }
        return result;
    }();
    return table;
}

bool isAsciiLetter(QChar c)
{
    return (c >= QLatin1Char('a') && c <= QLatin1Char('z'))
        || (c >= QLatin1Char('A') && c <= QLatin1Char('Z'));
}

bool isAsciiDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

bool isNameCharacter(QChar c)
{
    return isAsciiLetter(c) || isAsciiDigit(c) || c == QLatin1Char('-') || c == QLatin1Char('_')
        || c == QLatin1Char(':');
}

bool isBlank(QChar c)
{
    return c == QLatin1Char(' ')
        || (c >= QLatin1Char('\t') && c <= QLatin1Char('\r') && c != QLatin1Char('\v'));
}

/// The text that comes out: white space and line breaks wait until a character follows them.
class Output {
public:
    explicit Output(bool foldsBlanks) : m_foldsBlanks(foldsBlanks) { }

    void put(QChar c)
    {
        const bool skip = m_skipLineBreak && c == QLatin1Char('\n');
        m_skipLineBreak = false;
        if (skip)
            return;
        if (!m_foldsBlanks)
            m_text += c;
        else if (m_preformatted > 0)
            putPreformatted(c);
        else if (isBlank(c))
            m_blank = true;
        else
            putVisible(c);
    }

    /// A character that never folds.
    void putVisible(QChar c)
    {
        if (m_foldsBlanks)
            flush();
        m_text += c;
    }

    void breakLine()
    {
        ++m_breaks;
        m_blank = false;
    }

    void borderOfBlock()
    {
        m_breaks = std::max(m_breaks, 1);
        m_blank = false;
        m_tabs = 0;
    }

    void beginItem(const QString& marker)
    {
        borderOfBlock();
        m_marker = marker;
    }

    void endItem()
    {
        borderOfBlock();
        m_marker.clear();
    }

    void beginRow()
    {
        borderOfBlock();
        m_cells = 0;
    }

    void beginCell()
    {
        if (m_cells++ > 0)
            ++m_tabs;
        m_blank = false;
    }

    void beginPreformatted()
    {
        borderOfBlock();
        ++m_preformatted;
        m_skipLineBreak = true;
    }

    void endPreformatted()
    {
        borderOfBlock();
        m_preformatted = std::max(m_preformatted - 1, 0);
    }

    QString text() const { return m_text; }

private:
    void putPreformatted(QChar c)
    {
        if (c == QLatin1Char('\n'))
            breakLine();
        else if (c != QLatin1Char('\r'))
            putVisible(c);
    }

    void flush()
    {
        if (!m_text.isEmpty())
            m_text += QString(m_breaks, QLatin1Char('\n'));
        m_text += QString(m_tabs, QLatin1Char('\t')) + m_marker;
        const bool lineStarts = m_text.isEmpty() || m_breaks > 0 || m_tabs > 0 || !m_marker.isEmpty();
        if (m_blank && !lineStarts)
            m_text += QLatin1Char(' ');
        m_breaks = 0;
        m_tabs = 0;
        m_marker.clear();
        m_blank = false;
    }

    QString m_text;
    QString m_marker;
    int m_breaks = 0;
    int m_tabs = 0;
    int m_cells = 0;
    int m_preformatted = 0;
    bool m_blank = false;
    bool m_skipLineBreak = false;
    bool m_foldsBlanks;
};

struct Tag {
    QString name; ///< in lower case
    bool closing = false;
    bool empty = false; ///< ends with "/>"
    bool hasValues = false;
    int end = -1; ///< the position of ">"
};

class Converter {
public:
    enum class Mode { Markup, EntitiesOnly };

    Converter(const QString& text, Mode mode) : m_text(text), m_output(mode == Mode::Markup), m_mode(mode)
    {
        if (mode == Mode::Markup)
            findLandmarks();
    }

    QString run()
    {
        while (m_position < m_text.size())
            if (!takeMarkup() && !takeEntity())
                m_output.put(m_text.at(m_position++));
        return m_output.text();
    }

    bool sawMarkup() const { return m_sawMarkup; }

private:
    void findLandmarks();
    bool takeMarkup();
    bool takeEntity();
    bool takeComment();
    bool takeTag();
    Tag tagAt(int position);
    int endOfTag(int position);
    int scanTag(int position, bool quotesCount) const;
    bool isClosedAfter(const QString& name, int position) const;
    void apply(const Tag& tag);
    void applyList(const Tag& tag, Element element);
    void skipContentOf(const QString& name);
    QString nextMarker();

    QChar at(int position) const { return position < m_text.size() ? m_text.at(position) : QChar(); }
    int endOfName(int position) const;
    uint entityValue(QStringView name) const;

    const QString m_text;
    Output m_output;
    Mode m_mode;
    int m_position = 0;
    bool m_sawMarkup = false;
    QVector<int> m_lists; ///< the last number of each open ordered list, -1 for one with bullets
    QHash<QString, int> m_lastClosingTag;
    int m_lastGreater = -1;
    int m_lastCommentEnd = -1;
    qint64 m_wastedSteps = 0;
};

// Knowing where the last of each kind of end lies keeps vain searches from making the time quadratic.
void Converter::findLandmarks()
{
    m_lastGreater = m_text.lastIndexOf(QLatin1Char('>'));
    m_lastCommentEnd = m_text.lastIndexOf(QLatin1String("-->"));
    int position = m_text.indexOf(QLatin1String("</"));
    while (position >= 0) {
        const int end = endOfName(position + 2);
        m_lastClosingTag.insert(m_text.mid(position + 2, end - position - 2).toLower(), position);
        position = m_text.indexOf(QLatin1String("</"), end);
    }
}

int Converter::endOfName(int position) const
{
    while (position < m_text.size() && isNameCharacter(m_text.at(position)))
        ++position;
    return position;
}

bool Converter::isClosedAfter(const QString& name, int position) const
{
    return m_lastClosingTag.value(name, -1) > position;
}

bool Converter::takeMarkup()
{
    if (m_mode != Mode::Markup || m_text.at(m_position) != QLatin1Char('<') || m_position > m_lastGreater)
        return false;
    const bool taken = takeComment() || takeTag();
    m_sawMarkup = m_sawMarkup || taken;
    return taken;
}

bool Converter::takeComment()
{
    const QChar kind = at(m_position + 1);
    const QChar next = at(m_position + 2);
    if (m_text.midRef(m_position, 4) == QLatin1String("<!--")) {
        if (m_position > m_lastCommentEnd)
            return false;
        // "<!-->" is a whole comment: its end may share the dashes of its beginning.
        m_position = m_text.indexOf(QLatin1String("-->"), m_position + 2) + 3;
        return true;
    }
    const bool declaration = kind == QLatin1Char('!') && (isAsciiLetter(next) || next == QLatin1Char('['));
    const bool instruction = kind == QLatin1Char('?') && isAsciiLetter(next);
    if (!declaration && !instruction)
        return false;
    m_position = m_text.indexOf(QLatin1Char('>'), m_position) + 1;
    return true;
}

bool Converter::takeTag()
{
    const Tag tag = tagAt(m_position);
    if (tag.end < 0)
        return false;
    const bool looksLikeTag =
        tag.closing || tag.empty || tag.hasValues || isClosedAfter(tag.name, m_position);
    if (!looksLikeTag && !elements().contains(tag.name))
        return false;
    m_position = tag.end + 1;
    apply(tag);
    return true;
}

Tag Converter::tagAt(int position)
{
    Tag tag;
    tag.closing = at(position + 1) == QLatin1Char('/');
    const int nameBegin = position + (tag.closing ? 2 : 1);
    if (!isAsciiLetter(at(nameBegin)))
        return tag;
    const int nameEnd = endOfName(nameBegin);
    const QChar next = at(nameEnd);
    if (!isBlank(next) && next != QLatin1Char('/') && next != QLatin1Char('>'))
        return tag;
    tag.end = endOfTag(nameEnd);
    if (tag.end >= 0) {
        tag.name = m_text.mid(nameBegin, nameEnd - nameBegin).toLower();
        tag.empty = m_text.at(tag.end - 1) == QLatin1Char('/');
        tag.hasValues = m_text.midRef(nameEnd, tag.end - nameEnd).contains(QLatin1Char('='));
    }
    return tag;
}

int Converter::endOfTag(int position)
{
    // Contrived texts can make every "<" pass over the same quoted values in vain; then quotes stop counting.
    if (m_wastedSteps < 8 * qint64(m_text.size())) {
        const int end = scanTag(position, true);
        if (at(end) == QLatin1Char('>'))
            return end;
        m_wastedSteps += end - position;
        if (at(end) == QLatin1Char('<'))
            return -1;
    }
    // A quote that is never closed is taken for a slip, and the tag for ended at the next ">".
    const int end = scanTag(position, false);
    return at(end) == QLatin1Char('>') ? end : -1;
}

// The position of the first ">" or "<" outside of quoted values, else the length of the text.
int Converter::scanTag(int position, bool quotesCount) const
{
    QChar quote;
    bool valueBegins = false;
    for (int i = position; i < m_text.size(); ++i) {
        const QChar c = m_text.at(i);
        if (!quote.isNull())
            quote = c == quote ? QChar() : quote;
        else if (c == QLatin1Char('>') || c == QLatin1Char('<'))
            return i;
        else if (valueBegins && quotesCount && (c == QLatin1Char('"') || c == QLatin1Char('\'')))
            quote = c;
        valueBegins = c == QLatin1Char('=') || (valueBegins && isBlank(c));
    }
    return m_text.size();
}

void Converter::apply(const Tag& tag)
{
    const Element element = elements().value(tag.name, Element::Inline);
    switch (element) {
    case Element::Inline:
        break;
    case Element::LineBreak:
        m_output.breakLine();
        break;
    case Element::Block:
        m_output.borderOfBlock();
        break;
    case Element::Dropped:
    case Element::Hidden:
        if (!tag.closing && isClosedAfter(tag.name, m_position - 1))
            skipContentOf(tag.name);
        else if (!tag.closing && element == Element::Dropped)
            m_position = m_text.size();
        break;
    case Element::OrderedList:
    case Element::BulletList:
        applyList(tag, element);
        break;
    case Element::Item:
        tag.closing ? m_output.endItem() : m_output.beginItem(nextMarker());
        break;
    case Element::Row:
        m_output.beginRow();
        break;
    case Element::Cell:
        if (!tag.closing)
            m_output.beginCell();
        break;
    case Element::Preformatted:
        tag.closing ? m_output.endPreformatted() : m_output.beginPreformatted();
        break;
    }
}

void Converter::applyList(const Tag& tag, Element element)
{
    m_output.borderOfBlock();
    if (!tag.closing)
        m_lists.append(element == Element::OrderedList ? 0 : -1);
    else if (!m_lists.isEmpty())
        m_lists.removeLast();
}

QString Converter::nextMarker()
{
    if (m_lists.isEmpty() || m_lists.constLast() < 0)
        return QStringLiteral("- ");
    return QStringLiteral("%1. ").arg(++m_lists.last());
}

// The closing tag is known to follow; it is left for the main loop.
void Converter::skipContentOf(const QString& name)
{
    const QString opening = QStringLiteral("</") + name;
    m_position = m_text.indexOf(opening, m_position, Qt::CaseInsensitive);
    while (isNameCharacter(at(m_position + opening.size())))
        m_position = m_text.indexOf(opening, m_position + 1, Qt::CaseInsensitive);
}

bool Converter::takeEntity()
{
    constexpr int longestName = 10;
    if (m_text.at(m_position) != QLatin1Char('&'))
        return false;
    int end = m_position + 1;
    const bool numeric = at(end) == QLatin1Char('#');
    if (numeric)
        ++end;
    while ((numeric || end - m_position <= longestName) && (isAsciiLetter(at(end)) || isAsciiDigit(at(end))))
        ++end;
    const uint value = entityValue(QStringView(m_text).mid(m_position + 1, end - m_position - 1));
    if (at(end) != QLatin1Char(';') || value == 0)
        return false;
    m_position = end + 1;
    if (value == QChar::Nbsp) {
        m_output.putVisible(QLatin1Char(' '));
    } else if (QChar::requiresSurrogates(value)) {
        m_output.put(QChar(QChar::highSurrogate(value)));
        m_output.put(QChar(QChar::lowSurrogate(value)));
    } else {
        m_output.put(QChar(value));
    }
    return true;
}

uint Converter::entityValue(QStringView name) const
{
    if (!name.startsWith(QLatin1Char('#')))
        return namedEntity(name);
    QStringView digits = name.mid(1);
    const bool hexadecimal = digits.startsWith(QLatin1Char('x'), Qt::CaseInsensitive);
    if (hexadecimal)
        digits = digits.mid(1);
    const uint base = hexadecimal ? 16 : 10;
    uint number = 0;
    for (const QChar c : digits) {
        const uint digit = isAsciiDigit(c) ? c.unicode() - '0' : c.toLower().unicode() - 'a' + 10U;
        if (digit >= base)
            return 0;
        number = std::min<uint>(number * base + digit, QChar::LastValidCodePoint + 1);
    }
    return digits.isEmpty() ? 0 : numericEntity(number);
}

} // namespace

QString toPlainText(const QString& html)
{
    if (html.contains(QLatin1Char('<'))) {
        Converter converter(html, Converter::Mode::Markup);
        QString text = converter.run();
        if (converter.sawMarkup())
            return text;
    }
    if (!html.contains(QLatin1Char('&')))
        return html;
    return Converter(html, Converter::Mode::EntitiesOnly).run();
}

} // namespace nHtml
