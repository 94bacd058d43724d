#include "kdqtest.h"

#include <kdQCore/nHtml>

using nHtml::toPlainText;

class TestNHtml : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void unchanged_data()
    {
        QTest::addColumn<QString>("text");
        const char* const texts[] = {
            "",
            "  two  blanks\n\nand lines\t",
            "a < b and c > d",
            "a<b",
            "if x <y",
            "1<2>0",
            "a & b",
            "AT&T; &bogus; &#; &#x; &#12a;",
            "?a=1&copy=2&lt",
            "copy <source> <target>",
            "<joe@example.org>",
            "<<<>>>",
            "</",
            "<",
            "<!",
            "&",
            "&#99999",
            "</>",
            "< b>",
            "<!-- open",
            "vector<vector<int>>",
            "<1>",
            "100%1 Gr\xc3\xb6\xc3\x9f\x65",
            "<b",
            "<b class=\"",
        };
        for (const char* text : texts)
            QTest::newRow(QByteArray(text).simplified().constData()) << QString::fromUtf8(text);
    }

    void unchanged()
    {
        QFETCH(QString, text);
        QCOMPARE(toPlainText(text), text);
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
        row("two line breaks", "a<br><br>b", "a\n\nb");
        row("paragraphs", "<p>a</p>\n<p>b</p>\n", "a\nb");
        row("unclosed paragraphs", "<p>a<p>b", "a\nb");
        row("break at the end of a block", "<p>a<br></p><p>b", "a\nb");
        row("headings and divisions", "<h1>T</h1><div>a<div>b</div></div>c", "T\na\nb\nc");
        row("bullets", "<ul><li>a</li><li>b</li></ul>c", "- a\n- b\nc");
        row("numbers", "<ol><li>a<li>b<ul><li>c</ul><li>d</ol>", "1. a\n2. b\n- c\n3. d");
        row("paragraph in an item", "<ul><li> <p> a </p></li></ul>", "- a");
        row("empty item", "<ul><li></li><li>b</li></ul>", "- b");
        row("table", "<table><tr><th>a</th><th>b</th></tr>\n<tr><td>1</td> <td>2</td></tr></table>",
            "a\tb\n1\t2");
        row("white space folds", "<p> a \n\t b  <b> c </b> d </p>", "a b c d");
        row("preformatted", "x<pre>\n a  b\n\n  c</pre> y", "x\n a  b\n\n  c\ny");
        row("carriage returns", "<pre>a\r\nb</pre>\r\nc", "a\nb\nc");
        row("comment", "a<!-- <b> > -- -->b<!---->c<!-->d", "abcd");
        row("document type and instructions", "<?xml version='1.0'?><!DOCTYPE html><html>a</html>", "a");
        row("head", "<html><head><title>t</title><style>p{}</style></head><body>a</body></html>", "a");
        row("script", "a<script>if (a<b) \"</b>\" </scripted></script>b", "ab");
        row("empty script", "a<script></script>b", "ab");
        row("unclosed script", "a<STYLE>b <p>c", "a");
        row("unclosed head", "<head><title>a<p>b", "a\nb");
        row("greater in a value", "a<p title=\"x > y\">b", "a\nb");
        row("quote in text", "<p>5\" pipe isn't</p> a", "5\" pipe isn't\na");
        row("unclosed quote", "<a href=\"x>link</a> on", "link on");
        row("unknown but closed", "<kd:note x='1'>a</kd:note> <unit/>b", "a b");
        row("rare tag with a value", "<source src='x'>a", "a");
        row("placeholder beside markup", "<b>copy</b> <file>", "copy <file>");
        row("less than beside markup", "<b>a</b> < b <i", "a < b <i");
        row("closing tags only", "</b>a</p>b</foo></ul></pre>", "a\nb");
        row("spaces before the end", "<b >a</b >", "a");
        row("entities", "&lt;b&gt; &amp;amp; &quot;&apos;", "<b> &amp; \"'");
        row("entities keep the white space", "a  &auml;\n&Auml;&szlig;  ", "a  \xc3\xa4\n\xc3\x84\xc3\x9f  ");
        row("numbers as entities", "&#65;&#x42;&#X63;&#8364;&#128;&#x1F600;",
            "ABc\xe2\x82\xac\xe2\x82\xac\xf0\x9f\x98\x80");
        row("numbers that are no characters", "&#0;&#xD800;&#x110000;&#99999999999999999999;",
            "\xef\xbf\xbd\xef\xbf\xbd\xef\xbf\xbd\xef\xbf\xbd");
        row("hard blanks", "<b>a&nbsp;&nbsp;b &nbsp;</b>", "a  b  ");
    }

    void markup()
    {
        QFETCH(QString, html);
        QFETCH(QString, text);
        QCOMPARE(toPlainText(html), text);
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

    void contrivedTextTakesLinearTime_data()
    {
        QTest::addColumn<QString>("unit");
        QTest::addColumn<QString>("end");
        const char* const units[] = {"<",   "<a ",       "</",      "</a",      "<!--",
                                     "<!a", "<a =\"'='", "<title>", "<ol><li>", "<pre>",
                                     "&#1", "&a",        "<td>",    "<br>",     "<script></scripted>",
                                     "<x",  "<a b='"};
        for (const char* unit : units) {
            QTest::addRow("%s", unit) << QString::fromLatin1(unit) << QString();
            QTest::addRow("%s and an end", unit) << QString::fromLatin1(unit) << QStringLiteral("' <' >-->");
        }
    }

    // Quadratic time would run into the limit of the test.
    void contrivedTextTakesLinearTime()
    {
        QFETCH(QString, unit);
        QFETCH(QString, end);
        const QString html = unit.repeated(60000) + end;
        QVERIFY(toPlainText(html).size() <= html.size() + 16 * 60000);
    }
};

KDQ_TEST_MAIN(TestNHtml)
#include "tst_nhtml.moc"
