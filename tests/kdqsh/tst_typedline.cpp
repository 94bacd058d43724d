#include "kdqtest.h"
#include "paintedline.h"
#include "typedline.h"

using nPlatform::ConsoleCell;
using nPlatform::ConsoleKey;

namespace {

/// Keys by signs: < > { } [ ] ! are Left, Right, Up, Down, Home, End, Delete; "^A" control characters, "~"
/// before a key that Ctrl or Alt modifies, a digit before one that is held down, "@" what is to be passed
/// over.
QList<ConsoleKey> keysOf(const QString& signs)
{
    QList<ConsoleKey> keys;
    ConsoleKey key;
    for (int i = 0; i < signs.size(); ++i) {
        const QChar sign = signs.at(i);
        const int kind = int(QStringLiteral("@?<>{}[]!").indexOf(sign)); // in the order of the enumeration
        key.isModified |= sign == QLatin1Char('~');
        key.count = sign.isDigit() ? sign.digitValue() : key.count;
        if (sign == QLatin1Char('~') || sign.isDigit())
            continue;
        key.kind = kind < 0 ? ConsoleKey::Character : ConsoleKey::Kind(kind);
        key.text = sign;
        if (sign == QLatin1Char('^'))
            key.text = QChar(signs.at(++i).unicode() ^ 64);
        else if (sign.isHighSurrogate())
            key.text += signs.at(++i);
        keys.append(std::exchange(key, ConsoleKey()));
    }
    return keys;
}

LineEditor::Completion completeWord(const QString& before)
{
    LineEditor::Completion result;
    result.begin = int(before.lastIndexOf(QLatin1Char(' '))) + 1;
    for (const char* word : {"load", "lock", "table"})
        if (QLatin1String(word).startsWith(before.mid(result.begin)))
            result.candidates.append(QLatin1String(word));
    result.text = result.candidates.size() == 1 ? QStringLiteral("table ") : QStringLiteral("lo");
    return result;
}

/// A full row ends at once, as in Windows' window, and behind the last row all of them move up.
class Window : public nPlatform::ConsoleWindow {
public:
    Window(int columns, int rows, int row)
        : m_columns(columns), m_at(row * columns), m_cells(columns * rows, QLatin1Char('.'))
    {
    }

    bool hasKeys() const override { return false; }
    ConsoleKey wait() override { return {}; }
    ConsoleCell size() const override { return {m_columns, int(m_cells.size()) / m_columns}; }
    ConsoleCell cursor() const override { return {m_at % m_columns, m_at / m_columns}; }
    void moveCursor(ConsoleCell cell) override { m_at = cell.row * m_columns + cell.column; }
    void write(const QString& text, bool) override
    {
        for (const QChar character : text)
            write(character);
    }
    void erase(ConsoleCell from, int cells) override
    {
        m_cells.replace(from.row * m_columns + from.column, cells, QString(cells, QLatin1Char('.')));
    }
    void resize(int columns)
    {
        m_cells = m_cells.leftJustified(columns * size().row, QLatin1Char('.')); // what was full goes on
        m_columns = columns;
    }
    /// The cursor is "|", rows end with "/".
    QString look() const
    {
        QString rows;
        for (int i = 0; i < m_cells.size(); ++i) {
            rows += i > 0 && i % m_columns == 0 ? QStringLiteral("/") : QString();
            rows += i == m_at ? QStringLiteral("|") : QString();
            rows += m_cells.at(i);
        }
        while (rows.endsWith(QLatin1Char('.')) || rows.endsWith(QLatin1Char('/')))
            rows.chop(1);
        return rows;
    }

private:
    void write(QChar character)
    {
        const int width = character >= QChar(0x1100) ? 2 : 1;
        const int left = m_columns - m_at % m_columns;
        if (character == QLatin1Char('\n') || width > left)
            m_at += left;
        if (character != QLatin1Char('\n')) {
            m_cells.replace(m_at, width, QString(character).leftJustified(width, QLatin1Char('_')));
            m_at += width;
        }
        if (m_at < m_cells.size())
            return;
        m_cells = m_cells.mid(m_columns) + QString(m_columns, QLatin1Char('.'));
        m_at -= m_columns;
    }

    int m_columns;
    int m_at;
    QString m_cells;
};

} // namespace

class TestTypedLine : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void keys_data();
    void keys();
    void painting_data();
    void painting();
};

void TestTypedLine::keys_data()
{
    QTest::addColumn<QString>("signs");
    QTest::addColumn<QString>("line"); // with "|" for the cursor
    const auto row = [](const char* signs, const char* line) {
        QTest::newRow(signs) << QString::fromUtf8(signs) << QString::fromUtf8(line);
    };
    row("bc[a]d", "abcd|");
    row("[<abc<<<<x>>!", "xab|");
    row("ab@c^B^Bx^Fy^Az^E^H", "zaxby|");
    row("3a<2!", "aa|");
    row("table show ~<~<x~>~>y", "xtable showy| ");
    row("one two.three^W^W", "one |");
    row("one two^A~d~!~b^Y", " two|");
    row("one two~<^K^Y^Y", "one twotwo|");
    row("one two~<~[x~]", "x|");
    row("one two^[", "|");
    row("a\xf0\x9f\x98\x80"
        "e\xcc\x81<<x",
        "ax|\xf0\x9f\x98\x80"
        "e\xcc\x81");
    row("a^Cb", "a| dropped");
    row("ab^A^D", "|b");
    row("^Z", "| ended");
    row("a^H^D", "| ended");

    row("new{{{x", "table listx|");
    row("new{{}}}x", "newx|");
    row("^P^P^N^M", "lock hold| entered");
    row("new^Rl", "?l: lock hold|");
    row("new^Rlo^R^Rxyz", "?lo: lock hold|");
    row("^Rt l@<x", "table lisx|t");
    row("^Rlo^H^H^R^R", "?: table list|");
    row("new^Rlo^[x", "newx|");
    row("^Rlo{", "table list|");

    row("ta^I", "table |");
    row("show l^I", "show lo|");
    row("lox<^I", "lo|x load  lock");
    row("tax<^Ill", "table ll|x");
}

void TestTypedLine::keys()
{
    QFETCH(QString, signs);
    const LineEditor::Completer completer = completeWord;
    TypedLine typed({QStringLiteral("table list"), QStringLiteral("lock hold")}, completer);
    TypedLine::State state = TypedLine::Typing;
    const QList<ConsoleKey> keys = keysOf(signs);
    for (const ConsoleKey& key : keys)
        if (state == TypedLine::Typing)
            state = typed.press(key);
    QString line = typed.text();
    line.insert(typed.cursor(), QLatin1Char('|'));
    const QString prompt = typed.prompt(QString());
    if (!prompt.isEmpty())
        line.prepend(QStringLiteral("?%1: ").arg(prompt.section(QLatin1Char('\''), 1, 1)));
    const QStringList ends{QString(), QLatin1Char(' ') + typed.choice(), QStringLiteral(" entered"),
                           QStringLiteral(" dropped"), QStringLiteral(" ended")};
    QTEST(line + ends.at(state), "line");
}

void TestTypedLine::painting_data()
{
    QTest::addColumn<int>("firstRow");
    QTest::addColumn<QString>("steps"); // lines one after the other, new widths, what is left below
    QTest::addColumn<QString>("look");  // of ten columns and four rows
    const auto row = [](const char* name, int firstRow, const char* steps, const char* look) {
        QTest::newRow(name) << firstRow << QString::fromUtf8(steps) << QString::fromUtf8(look);
    };
    row("cursor in the first row", 1, "ab|cdefghijkl", "........../>ab|cdefghi/jkl");
    row("moves up", 3, "abcdefghijkl| abcdefghijklmnopqrs|", "........../>abcdefghi/jklmnopqrs/|");
    row("shorter after it moved up", 3, "abcdefghijklm| ab|cd", "........../........../>ab|cd");
    row("wide at the edge", 3, "abcdefgh\xe4\xb8\xad|", "........../........../>abcdefgh./\xe4\xb8\xad_|");
    row("choice", 3, "l| +load lo|", "........../>l......../load....../>lo|");
    row("choice below two rows", 0, "ab|cdefghijk +load a|", ">abcdefghi/jk......../load....../>a|");
    row("narrower", 1, "abcde|f =5 abc|", "...../...../>abc|");
    row("wider", 0, "abcdefghij|k =20 abc|k", ">abc|k");
    row("choice below a full row", 0, "abcdefghi| +load a|", ">abcdefghi/load....../>a|");
    row("longer than the window", 0, "abcdefghijklmnopqrst|uvwxyzABCDEFGHI", ">nopqrst|uv/wxyzA");
}

void TestTypedLine::painting()
{
    QFETCH(int, firstRow);
    QFETCH(QString, steps);
    Window window(10, 4, firstRow);
    PaintedLine painted(window);
    const QStringList all = steps.split(QLatin1Char(' '));
    for (QString step : all) {
        if (step.startsWith(QLatin1Char('='))) {
            window.resize(step.mid(1).toInt());
            painted.follow();
        } else if (step.startsWith(QLatin1Char('+'))) {
            painted.leave(step.mid(1));
        } else {
            const int cursor = int(step.indexOf(QLatin1Char('|')));
            painted.paint(QStringLiteral(">"), false, step.remove(QLatin1Char('|')), cursor);
        }
    }
    QTEST(window.look(), "look");
}

KDQ_TEST_MAIN(TestTypedLine)
#include "tst_typedline.moc"
