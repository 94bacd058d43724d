#include "kdqtest.h"
#include "shelllineparser.h"

using Lines = QStringList;

class TestShellLineParser : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void statements_data();
    void statements();
    void refused_data();
    void refused();
    void quotedWordIsReadBack_data();
    void quotedWordIsReadBack();
};

/// "name|parameters@line" for each statement.
static QStringList described(const QVector<ShellStatement>& statements)
{
    QStringList result;
    for (const ShellStatement& statement : statements)
        result.append(QStringLiteral("%1|%2@%3")
                          .arg(statement.name, statement.parameters, QString::number(statement.line)));
    return result;
}

void TestShellLineParser::statements_data()
{
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<QStringList>("expected");

    const auto row = [](const char* name, const QStringList& lines, const QStringList& expected) {
        QTest::newRow(name) << lines << expected;
    };
    row("nothing", {QString(), QStringLiteral("   \t")}, {});
    row("one", {QStringLiteral("  table   list  ")}, {QStringLiteral("table|list@1")});
    row("two on a line", {QStringLiteral("undo;;quit ;")},
        {QStringLiteral("undo|@1"), QStringLiteral("quit|@1")});
    row("semicolon in quotes", {QStringLiteral("a ';' \";;\" ; b")},
        {QStringLiteral("a|';' \";;\"@1"), QStringLiteral("b|@1")});
    row("comments", {QStringLiteral("# all"), QStringLiteral("a b # rest; c"), QStringLiteral("a;# b")},
        {QStringLiteral("a|b@2"), QStringLiteral("a|@3")});
    row("hash within a word", {QStringLiteral("a b#1 'c # d'")}, {QStringLiteral("a|b#1 'c # d'@1")});
    row("apostrophe within a word", {QStringLiteral("title Young's modulus; b")},
        {QStringLiteral("title|Young's modulus@1"), QStringLiteral("b|@1")});
    row("quoted name", {QStringLiteral("'my command' x")}, {QStringLiteral("my command|x@1")});
    row("windows path", {QStringLiteral("open C:\\temp\\new.dat")},
        {QStringLiteral("open|C:\\temp\\new.dat@1")});
    row("continued",
        {QStringLiteral("a \\"), QStringLiteral(" b \\"), QStringLiteral("c; d"), QStringLiteral("e")},
        {QStringLiteral("a|b c@1"), QStringLiteral("d|@1"), QStringLiteral("e|@4")});
    row("continued, windows line end", {QStringLiteral("a \\\r"), QStringLiteral("b\r")},
        {QStringLiteral("a|b@1")});
    row("backslash before a comment is a word", {QStringLiteral("a \\ # x")}, {QStringLiteral("a|\\@1")});
    row("backslash at the end of a word", {QStringLiteral("a C:\\"), QStringLiteral("b")},
        {QStringLiteral("a|C:\\@1"), QStringLiteral("b|@2")});
}

void TestShellLineParser::statements()
{
    QFETCH(QStringList, lines);
    ShellLineParser parser;
    for (const QString& line : lines)
        QVERIFY2(parser.addLine(line), qPrintable(parser.errorText()));
    QVERIFY(!parser.finish());
    QTEST(described(parser.takeStatements()), "expected");
    QVERIFY(parser.takeStatements().isEmpty());
}

void TestShellLineParser::refused_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("error");

    QTest::newRow("open quote") << QStringLiteral("ok; a 'b")
                                << QStringLiteral("The quote ' in column 7 is not closed.");
    QTest::newRow("doubled quote at the end")
        << QStringLiteral("a \"b\"\"") << QStringLiteral("The quote \" in column 3 is not closed.");
    QTest::newRow("text after quote")
        << QStringLiteral("a 'b'c")
        << QStringLiteral("A blank is missing after the closing quote in column 5.");
}

void TestShellLineParser::refused()
{
    QFETCH(QString, line);
    ShellLineParser parser;
    QVERIFY(parser.addLine(QStringLiteral("first")));
    QVERIFY(!parser.addLine(line));
    QTEST(parser.errorText(), "error");
    QCOMPARE(parser.errorLine(), 2);
    QVERIFY(parser.addLine(QStringLiteral("third \\")));
    QVERIFY(parser.needsMoreLines());
    QVERIFY(parser.finish());
    QCOMPARE(described(parser.takeStatements()), QStringList{QStringLiteral("first|@1")});
}

void TestShellLineParser::quotedWordIsReadBack_data()
{
    QTest::addColumn<QString>("word");
    for (const char* word : {"", "plain", "two words", "#", "a#", ";", "a;b", "\"", "'", "it's", "a\"b c",
                             "\\", "\"\"", "' \"", "\xC3\xBC \xC2\xB0"})
        QTest::newRow(word) << QString::fromUtf8(word);
}

void TestShellLineParser::quotedWordIsReadBack()
{
    QFETCH(QString, word);
    QStringList words;
    QString error;
    const QString text = QStringLiteral("%1 next").arg(ShellLineParser::quoted(word));
    QVERIFY2(ShellLineParser::splitWords(text, words, error), qPrintable(error));
    QCOMPARE(words, (QStringList{word, QStringLiteral("next")}));
}

KDQ_TEST_MAIN(TestShellLineParser)
#include "tst_shelllineparser.moc"
