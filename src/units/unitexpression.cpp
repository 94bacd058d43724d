#include "unitexpression.h"

#include <QHash>
#include <QMap>
#include <QStringList>
#include <QVector>

#include <utility>

namespace {

struct Spelling {
    const char* atom;
    const char* words; ///< in lower case; upper and lower case do not matter
};

constexpr Spelling spellings[] = {
    {"kg", "kg kgs kilogram kilograms kilogramme kilogrammes"},
    {"g", "gram grams gramme grammes"},
    {"t", "tonne tonnes"},
    {"lb", "lb lbs lbm pound pounds"},
    {"rad", "rad rads radian radians"},
    {"deg", "deg degs degree degrees"},
    {"s", "sec secs second seconds"},
    {"ms", "msec msecs millisecond milliseconds"},
    {"min", "min mins minute minutes"},
    {"h", "hr hrs hour hours"},
    {"m", "metre metres meter meters"},
    {"mm", "millimetre millimetres millimeter millimeters"},
    {"cm", "centimetre centimetres centimeter centimeters"},
    {"um", "micrometre micrometres micrometer micrometers micron microns"},
    {"in", "in inch inches"},
    {"ft", "ft foot feet"},
    {"l", "l litre litres liter liters"},
    {"K", "degk kelvin kelvins"},
    {"degC", "degc celsius centigrade"},
    {"degF", "degf fahrenheit"},
    {"Hz", "hz hertz"},
    {"kHz", "khz kilohertz"},
    {"N", "newton newtons"},
    {"lbf", "lbf"},
    {"J", "joule joules"},
    {"W", "watt watts"},
    {"hp", "hp horsepower"},
    {"A", "amp amps ampere amperes"},
    {"V", "volt volts"},
    {"Ohm", "ohm ohms"},
    {"Pa", "pascal pascals"},
    {"psi", "psi"},
    {"ksi", "ksi"},
    {"B", "byte bytes"},
    {"%", "percent pct"},
};

// The units whose case matters, or whose spelling is needed to tell "kgK" from one unit.
constexpr const char* prefixedAtoms[] = {"kN",  "MN",  "kJ",  "MJ",  "kWh", "kW",   "MW",
                                         "mW",  "kA",  "mA",  "kV",  "mV",  "mOhm", "uOhm",
                                         "kPa", "MPa", "GPa", "KiB", "MiB", "GiB"};

struct AtomNames {
    QHash<QString, QString> byWord;
    QStringList atoms;
};

AtomNames buildAtomNames()
{
    AtomNames names;
    for (const Spelling& spelling : spellings) {
        names.atoms.append(QString::fromLatin1(spelling.atom));
        const QStringList words = QString::fromLatin1(spelling.words).split(QLatin1Char(' '));
        for (const QString& word : words)
            names.byWord.insert(word, names.atoms.constLast());
    }
    for (const char* atom : prefixedAtoms)
        names.atoms.append(QString::fromLatin1(atom));
    return names;
}

const AtomNames& atomNames()
{
    static const AtomNames built = buildAtomNames();
    return built;
}

// "Mpa" and "KN" are meant as MPa and kN, but an initial m or M is never taken for the other.
bool isSlipOfCase(const QString& typed, const QString& atom)
{
    const bool sameInitial =
        typed.at(0) == atom.at(0) || (typed.at(0) == QLatin1Char('K') && atom.at(0) == QLatin1Char('k'));
    return sameInitial && typed.size() > 1 && typed.compare(atom, Qt::CaseInsensitive) == 0;
}

/// The catalogue's spelling; empty for an unknown unit.
QString knownAtom(const QString& typed)
{
    const AtomNames& names = atomNames();
    if (names.atoms.contains(typed))
        return typed;
    const auto word = names.byWord.constFind(typed.toLower());
    if (word != names.byWord.constEnd())
        return *word;
    for (const QString& atom : names.atoms)
        if (isSlipOfCase(typed, atom))
            return atom;
    return {};
}

/// The unit or the units that a run of letters means: "kgK" is kg and K, "millikelvin" being no unit here.
QStringList atomsOf(const QString& typed)
{
    const QString atom = knownAtom(typed);
    if (!atom.isEmpty())
        return {atom};
    for (const QString& suffix : {QStringLiteral("degC"), QStringLiteral("K")}) {
        const QString rest = typed.endsWith(suffix) ? knownAtom(typed.chopped(suffix.size())) : QString();
        if (!rest.isEmpty())
            return {rest, suffix};
    }
    return {typed};
}

QString plainText(QChar c)
{
    switch (c.unicode()) {
    case 0x00B7: // middle dot
    case 0x00D7: // multiplication sign
    case 0x2219: // bullet operator
    case 0x22C5:
        return QStringLiteral("*"); // dot operator
    case 0x00B2:
        return QStringLiteral("2");
    case 0x00B3:
        return QStringLiteral("3");
    case 0x00B9:
        return QStringLiteral("1");
    case 0x207B: // superscript minus
    case 0x2212:
        return QStringLiteral("-"); // minus sign
    case 0x2215:
        return QStringLiteral("/"); // division slash
    case 0x00B5:                    // micro sign
    case 0x03BC:
        return QStringLiteral("u"); // Greek mu
    case 0x03A9:                    // Greek omega
    case 0x2126:
        return QStringLiteral("Ohm"); // ohm sign
    case 0x00B0:                      // degree sign
    case 0x00BA:
        return QStringLiteral("deg"); // ordinal indicator, its neighbour on keyboards
    case 0x2103:
        return QStringLiteral("degC");
    case 0x2109:
        return QStringLiteral("degF");
    default:
        return c.isSpace() ? QStringLiteral(" ") : QString(c);
    }
}

QString plainText(const QString& text)
{
    QString result;
    for (const QChar c : text)
        result += plainText(c);
    return result.remove(QStringLiteral("**"));
}

bool isDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

bool isUnitLetter(QChar c)
{
    return c.isLetter() || c == QLatin1Char('%');
}

class Parser {
public:
    Parser(const QString& text, bool isLenient) : m_text(text), m_isLenient(isLenient) { }

    QString key();

private:
    bool readNext();
    bool readFactor();
    int readExponent();
    void add(const QString& atom, int exponent);
    bool closeGroup();
    bool skipHyphen();
    void openGroup();
    int sign() const { return m_isLenient ? m_lenientSign : m_groupSigns.constLast() * m_nextSign; }
    bool atEnd() const { return m_position >= m_text.size(); }
    QChar current() const { return atEnd() ? QChar() : m_text.at(m_position); }
    QString side(int sign, bool isCompound) const;

    const QString m_text;
    const bool m_isLenient;
    int m_position = 0;
    int m_nextSign = 1;
    bool m_hasFactor = false;
    int m_lenientSign = 1;
    QVector<int> m_groupSigns{1};
    QMap<std::pair<int, QString>, int> m_exponents; ///< by side of the fraction line (1 or -1) and unit
};

QString Parser::key()
{
    while (!atEnd())
        if (!readNext())
            return {};
    if (!m_hasFactor || m_groupSigns.size() != 1 || m_nextSign != 1)
        return {};
    const bool isCompound = m_exponents.size() > 1 || m_exponents.contains({-1, QStringLiteral("degC")});
    return side(1, isCompound) + QLatin1Char('/') + side(-1, isCompound);
}

bool Parser::readNext()
{
    switch (current().unicode()) {
    case ' ':
    case '*':
        ++m_position;
        return true;
    case '/':
        m_nextSign = m_lenientSign = -1;
        ++m_position;
        return true;
    case '(':
        openGroup();
        return true;
    case ')':
        return closeGroup();
    case '-':
        return skipHyphen();
    default:
        return readFactor();
    }
}

// "N-m" is a product.
bool Parser::skipHyphen()
{
    ++m_position;
    return m_position > 1 && isUnitLetter(current());
}

void Parser::openGroup()
{
    m_groupSigns.append(m_groupSigns.constLast() * m_nextSign);
    m_nextSign = 1;
    ++m_position;
}

bool Parser::closeGroup()
{
    if (m_groupSigns.size() == 1 || m_nextSign != 1)
        return false;
    m_groupSigns.removeLast();
    ++m_position;
    return true;
}

bool Parser::readFactor()
{
    const int start = m_position;
    const bool isNumber = isDigit(current());
    while (!atEnd() && (isNumber ? isDigit(current()) : isUnitLetter(current())))
        ++m_position;
    const QString typed = m_text.mid(start, m_position - start);
    if (typed.isEmpty())
        return false;
    m_hasFactor = true;
    const int factorSign = sign();
    m_nextSign = 1;
    const QStringList atoms = isNumber ? QStringList{typed} : atomsOf(typed);
    for (int i = 0; i < atoms.size(); ++i)
        add(atoms.at(i), factorSign * (i + 1 < atoms.size() ? 1 : readExponent()));
    return true;
}

int Parser::readExponent()
{
    const int start = m_position + (current() == QLatin1Char('^') ? 1 : 0);
    const int digits = start + (start < m_text.size() && m_text.at(start) == QLatin1Char('-') ? 1 : 0);
    int end = digits;
    while (end < m_text.size() && end < digits + 2 && isDigit(m_text.at(end)))
        ++end;
    if (end == digits)
        return 1;
    const int exponent = m_text.midRef(start, end - start).toInt();
    m_position = end;
    return exponent;
}

void Parser::add(const QString& atom, int exponent)
{
    if (atom == QLatin1String("1") || exponent == 0)
        return;
    m_exponents[{exponent > 0 ? 1 : -1, atom}] += qAbs(exponent);
}

QString Parser::side(int sign, bool isCompound) const
{
    QMap<QString, int> powers;
    for (auto it = m_exponents.cbegin(); it != m_exponents.cend(); ++it) {
        const bool isSpan = isCompound && it.key().second == QLatin1String("degC");
        if (it.key().first == sign)
            powers[isSpan ? QStringLiteral("K") : it.key().second] += it.value();
    }
    QStringList texts;
    for (auto it = powers.cbegin(); it != powers.cend(); ++it)
        texts.append(it.key() + QString::number(it.value()));
    return texts.join(QLatin1Char(' '));
}

QString keyOf(const QString& text, bool isLenient)
{
    constexpr int longest = 64;
    if (text.size() > longest)
        return {};
    if (text.trimmed() == QLatin1String("-"))
        return QStringLiteral("/");
    return Parser(plainText(text).trimmed(), isLenient).key();
}

} // namespace

QString nUnitExpression::key(const QString& text)
{
    return keyOf(text, false);
}

QString nUnitExpression::lenientKey(const QString& text)
{
    return keyOf(text, true);
}
