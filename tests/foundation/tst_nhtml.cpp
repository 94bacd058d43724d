#include "kdqtest.h"

#include <kdQCore/nHtml>

using nHtml::toPlainText;

class TestNHtml : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void textWithoutMarkupStaysAsItIs()
    {
        for (const char* bytes :
             {"", "  two  blanks\n\nand lines\t", "a < b and c > d", "a & b", "AT&T; &bogus; &#; &#x; &#12a;",
              "?a=1&copy=2&lt", "copy <source> <target>", "<joe@example.org>", "<!", "<!-- open",
              "vector<vector<int>>", "100%1 Gr\xc3\xb6\xc3\x9f\x65", "<b class=\""}) {
            const QString text = QString::fromUtf8(bytes);
            QCOMPARE(toPlainText(text), text);
        }
    }

    void markup_data()
    {
        QTest::addColumn<QString>("html");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* name, const char* html, const char* text) {
            QTest::newRow(name) << QString::fromUtf8(html) << QString::fromUtf8(text);
        };
        row("inline", "File <b>x</b><i>y</i> <A HREF='a>b'>link</A>", "File xy link");
        row("line break", "a<br>b<BR/>c<br />d", "a\nb\nc\nd");
        row("unclosed paragraphs", "<p>a<p>b", "a\nb");
        row("break at the end of a block", "<p>a<br></p><p>b", "a\nb");
        row("headings and divisions", "<h1>T</h1><div>a<div>b</div></div>c", "T\na\nb\nc");
        row("bullets", "<ul><li>a</li><li>b</li></ul>c", "- a\n- b\nc");
        row("numbers", "<ol><li>a<li>b<ul><li>c</ul><li>d</ol>", "1. a\n2. b\n- c\n3. d");
        row("table", "<table><tr><th>a</th><th>b</th></tr>\n<tr><td>1</td> <td>2</td></tr></table>",
            "a\tb\n1\t2");
        row("white space folds", "<p> a \n\t b  <b> c </b> d </p>", "a b c d");
        row("preformatted", "x<pre>\n a  b\n\n  c</pre> y", "x\n a  b\n\n  c\ny");
        row("comment", "a<!-- <b> > -- -->b<!---->c<!-->d", "abcd");
        row("head", "<html><head><title>t</title><style>p{}</style></head><body>a</body></html>", "a");
        row("script", "a<script>if (a<b) \"</b>\" </scripted></script>b", "ab");
        row("unclosed quote", "<a href=\"x>link</a> on", "link on");
        row("unknown but closed", "<kd:note x='1'>a</kd:note> <unit/>b", "a b");
        row("numbers as entities", "&#65;&#x42;&#X63;&#8364;&#128;&#x1F600;",
            "ABc\xe2\x82\xac\xe2\x82\xac\xf0\x9f\x98\x80");
        row("numbers that are no characters", "&#0;&#xD800;&#x110000;&#99999999999999999999;",
            "\xef\xbf\xbd\xef\xbf\xbd\xef\xbf\xbd\xef\xbf\xbd");
        row("hard blanks", "<b>a&nbsp;&nbsp;b &nbsp;</b>", "a  b  ");
    }

    void markup()
    {
        QFETCH(QString, html);
        QTEST(toPlainText(html), "text");
    }

    void everyNameThatPythonKnows()
    {
        QProcess python;
        python.start(QStringLiteral("python3"),
                     {QStringLiteral("-c"),
                      QStringLiteral("from html.entities import name2codepoint as n\n"
                                     "for k in n: print(k, n[k])")});
        if (!python.waitForFinished() || python.exitCode() != 0)
            QSKIP("needs python3");
        const QList<QByteArray> lines = python.readAll().trimmed().split('\n');
        QVERIFY(lines.size() > 250);
        for (const QByteArray& line : lines) {
            const QList<QByteArray> fields = line.split(' ');
            const uint codePoint = fields[1].toUInt();
            const QChar expected(codePoint == 0xa0 ? uint(' ') : codePoint);
            QCOMPARE(toPlainText(QLatin1Char('&') + QString::fromLatin1(fields[0]) + QLatin1Char(';')),
                     QString(expected));
        }
    }

    // Quadratic time would run into the limit of the test.
    void contrivedTextTakesLinearTime()
    {
        for (const char* unit :
             {"<a ", "</a", "<!--", "<a =\"'='", "<ol><li>", "&#1", "<script></scripted>"}) {
            const QString html = QString::fromLatin1(unit).repeated(60000) + QStringLiteral("' <' >-->");
            QVERIFY2(toPlainText(html).size() <= html.size() + 16 * 60000, unit);
        }
    }
};

KDQ_TEST_MAIN(TestNHtml)
#include "tst_nhtml.moc"
