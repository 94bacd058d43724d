#include "kdqtest.h"
#include "shelllineparser.h"

/// "name|parameters@line" for each statement.
static QString described(const QVector<ShellStatement>& statements)
{
    QStringList result;
    for (const ShellStatement& statement : statements)
        result.append(QStringLiteral("%1|%2@%3")
                          .arg(statement.name, statement.parameters, QString::number(statement.line)));
    return result.join(QLatin1Char('\n'));
}

class TestShellLineParser : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void statements_data()
    {
        QTest::addColumn<QString>("lines");
        QTest::addColumn<QString>("expected");

        kdqRow("nothing", "\n   \t", "");
        kdqRow("one", "  table   list  ", "table|list@1");
        kdqRow("two on a line", "undo;;quit ;", "undo|@1\nquit|@1");
        kdqRow("semicolon in quotes", "a ';' \";;\" ; b", "a|';' \";;\"@1\nb|@1");
        kdqRow("comments", "# all\na b # rest; c\na;# b", "a|b@2\na|@3");
        kdqRow("hash within a word", "a b#1 'c # d'", "a|b#1 'c # d'@1");
        kdqRow("apostrophe within a word", "title Young's modulus; b", "title|Young's modulus@1\nb|@1");
        kdqRow("quoted name", "'my command' x", "my command|x@1");
        kdqRow("windows path", "open C:\\temp\\new.dat", "open|C:\\temp\\new.dat@1");
        kdqRow("continued", "a \\\n b \\\nc; d\ne", "a|b c@1\nd|@1\ne|@4");
        kdqRow("continued, windows line end", "a \\\r\nb\r", "a|b@1");
        kdqRow("backslash before a comment is a word", "a \\ # x", "a|\\@1");
        kdqRow("backslash at the end of a word", "a C:\\\nb", "a|C:\\@1\nb|@2");
    }

    void statements()
    {
        QFETCH(QString, lines);
        ShellLineParser parser;
        for (const QString& line : lines.split(QLatin1Char('\n')))
            QVERIFY2(parser.addLine(line), qPrintable(parser.errorText()));
        QVERIFY(!parser.finish());
        QTEST(described(parser.takeStatements()), "expected");
        QVERIFY(parser.takeStatements().isEmpty());
    }

    void refused_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("error");

        kdqRow("open quote", "ok; a 'b", "The quote ' in column 7 is not closed.");
        kdqRow("doubled quote at the end", "a \"b\"\"", "The quote \" in column 3 is not closed.");
        kdqRow("text after quote", "a 'b'c", "A blank is missing after the closing quote in column 5.");
    }

    void refused()
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
        QCOMPARE(described(parser.takeStatements()), QStringLiteral("first|@1"));
    }

    void quotedWordIsReadBack_data()
    {
        QTest::addColumn<QString>("word");
        for (const char* word : {"", "plain", "two words", "#", "a#", ";", "a;b", "\"", "'", "it's", "a\"b c",
                                 "\\", "\"\"", "' \"", "\xC3\xBC \xC2\xB0"})
            kdqRow(word, QString::fromUtf8(word));
    }

    void quotedWordIsReadBack()
    {
        QFETCH(QString, word);
        QStringList words;
        QString error;
        const QString text = QStringLiteral("%1 next").arg(ShellLineParser::quoted(word));
        QVERIFY2(ShellLineParser::splitWords(text, words, error), qPrintable(error));
        QCOMPARE(words, (QStringList{word, QStringLiteral("next")}));
    }
};

KDQ_TEST_MAIN(TestShellLineParser)
#include "tst_shelllineparser.moc"
