#include "deckbuffer.h"
#include "kdqtest.h"
#include "logcapture.h"

#include <kdQCore/CFEDatLineWriter>

#include <QTextCodec>

#include <cmath>
#include <functional>
#include <limits>

using Operation = std::function<bool(CFEDatLineWriter&)>;
Q_DECLARE_METATYPE(Operation)

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

Operation sequence(const QList<Operation>& operations)
{
    return [operations](CFEDatLineWriter& writer) {
        bool ok = true;
        for (const Operation& operation : operations)
            ok = operation(writer) && ok;
        return ok;
    };
}

QList<int> numbersUpTo(int last)
{
    QList<int> result;
    for (int i = 1; i <= last; ++i)
        result.append(i);
    return result;
}

// The list rule item by item.
template <typename Value>
void listItemwise(DeckBuffer& deck, const QList<Value>& values, int perLine, int most)
{
    int count = 0;
    for (int i = 0; i < values.size(); ++i) {
        const bool continues = count + 1 < most && i + 1 < values.size() && (i + 1) % perLine != 0;
        deck.writer().writeInList(values.at(i), !continues, i + 1 < values.size());
        count = continues ? count + 1 : 0;
    }
}

} // namespace

class TestDatLineWriter : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8")); }

    void layout_data()
    {
        QTest::addColumn<Operation>("operation");
        QTest::addColumn<QByteArray>("fixedStandard");
        QTest::addColumn<QByteArray>("fixedExtended");
        QTest::addColumn<QByteArray>("freeStandard");
        QTest::addColumn<QByteArray>("freeExtended");
        const auto row = [](const char* name, const Operation& operation, const QByteArray& fixedStandard,
                            const QByteArray& fixedExtended, const QByteArray& freeStandard,
                            const QByteArray& freeExtended) {
            kdqRow(name, operation, fixedStandard, fixedExtended, freeStandard, freeExtended);
        };
        const auto same = [&row](const char* name, const QByteArray& text, const Operation& operation) {
            row(name, operation, text, text, text, text);
        };
        using W = CFEDatLineWriter;

        row(
            "ints", [](W& w) { return w.writeInt(7) && w.writeIntNTimes(-4, 3); }, "    7   -4   -4   -4",
            "         7        -4        -4        -4", "7,-4,-4,-4,", "7,-4,-4,-4,");
        same("nothing", "",
             sequence(
                 {[](W& w) { return w.writeIntNTimes(1, 0) && w.writeDoubleNTimes(1, -1); },
                  [](W& w) { return w.writeList(numbersUpTo(9), 0) && w.writeList(QList<int>(), 5); },
                  [](W& w) { return w.writeDoubleValues({1.0}, 0) && w.writeList(QList<double>(), 5); },
                  [](W& w) { return w.writeStringUnformatted("") && w.writeStringUnformatted(QString()); },
                  [](W& w) { return w.writeStringUnformatted(static_cast<const char*>(nullptr)); }}));
        row(
            "real", [](W& w) { return w.writeDouble(1.5, false); }, "1.50000E+0", "1.500000000000000E+0",
            "1.50000E+0,", "1.50000000000000E+0,");
        row(
            "negative, twice", [](W& w) { return w.writeDoubleNTimes(-1.5, 2); }, "-1.5000E+0-1.5000E+0",
            "-1.50000000000000E+0-1.50000000000000E+0", "-1.5000E+0,-1.5000E+0,",
            "-1.5000000000000E+0,-1.5000000000000E+0,");
        row(
            "blank first", [](W& w) { return w.writeDouble(1.5, true); }, " 1.5000E+0",
            " 1.50000000000000E+0", "1.50000E+0,", "1.50000000000000E+0,");
        row(
            "cut, not rounded", [](W& w) { return w.writeDoubleValue(1234.5678); }, "1.23456E+3",
            "1.234567800000000E+3", "1.23456E+3,", "1.23456780000000E+3,");
        row(
            "zeros", [](W& w) { return w.writeDoubleValue(0) && w.writeDoubleValue(-0.0); },
            "0.00000E+0-0.0000E+0", "0.000000000000000E+0-0.00000000000000E+0", "0.00000E+0,-0.0000E+0,",
            "0.00000000000000E+0,-0.0000000000000E+0,");
        row("not finite",
            sequence({[](W& w) { return w.writeDouble(infinity, true); },
                      [](W& w) { return w.writeDoubleValue(-infinity); },
                      [](W& w) { return w.writeDoubleValue(std::nan("")); }}),
            "       inf      -inf       nan", "                 inf                -inf                 nan",
            "       inf,      -inf,       nan,",
            "                inf,               -inf,                nan,");
        row("strings, the widths in bytes",
            sequence({[](W& w) { return w.writeString("AB", 5) && w.writeString(QString(), 3); },
                      [](W& w) { return w.writeString(QStringLiteral("Öl"), 5); }}),
            "   AB     Öl", "   AB     Öl", "AB,,Öl,", "AB,,Öl,");
        row(
            "key", [](W& w) { return w.writeParameterSectionKey(QStringLiteral("table")); }, "table     ",
            "table" + QByteArray(15, ' '), "table,", "table,");
        row("int in list",
            sequence({[](W& w) { return w.writeInList(5, true, true); },
                      [](W& w) { return w.writeInList(5, true, false); },
                      [](W& w) { return w.writeIntInList(5, false, true); }}),
            "    5 c\n    5\n    5", "         5 c\n         5\n         5", "5 c\n5,\n5,", "5 c\n5,\n5,");
        row("real in list",
            sequence({[](W& w) { return w.writeInList(2.0, true, true); },
                      [](W& w) { return w.writeDoubleInList(2.0, true, false); },
                      [](W& w) { return w.writeDoubleInList(2.0, false, false); }}),
            "2.00000E+0 c\n2.00000E+0\n2.00000E+0",
            "2.000000000000000E+0 c\n2.000000000000000E+0\n2.000000000000000E+0",
            "2.00000E+0 c\n2.00000E+0,\n2.00000E+0,",
            "2.00000000000000E+0 c\n2.00000000000000E+0,\n2.00000000000000E+0,");
        row(
            "entities", [](W& w) { return w.writeElement(7) && w.writeFeature(12) && w.writeNodal(-3); },
            "element    7\nfeature   12\nnodal   -3\n",
            "element         7\nfeature        12\nnodal        -3\n", "element,7,\nfeature,12,\nnodal,-3,\n",
            "element,7,\nfeature,12,\nnodal,-3,\n");
        row(
            "title", [](W& w) { return w.writeTitle(QStringLiteral("Prüfung\r\n1\n\n2")); },
            "titlePrüfung 1  2\n", "titlePrüfung 1  2\n", "title,Prüfung 1  2\n", "title,Prüfung 1  2\n");
        row(
            "loadcase", [](W& w) { return w.writeLoadcase(QStringLiteral(" job")); }, "loadcase job\n",
            "loadcase job\n", "loadcase, job\n", "loadcase, job\n");
        row("comment parts",
            sequence({[](W& w) { return w.writeCommentStart() && w.writeCommentPart(-12); },
                      [](W& w) { return w.writeCommentPart(1.5) && w.writeCommentPart("a\nb"); },
                      [](W& w) {
                          return w.writeCommentPart(std::string("ö"))
                              && w.writeCommentPart(QStringLiteral("ß"));
                      },
                      [](W& w) { return w.writeLineBreak(); }}),
            "$ -121.50000E+0a böß\n", "$ -121.500000000000000E+0a böß\n", "$ -121.50000E+0a böß\n",
            "$ -121.50000000000000E+0a böß\n");
        same("long single comment line", "$ " + QByteArray(400, 'x') + "\n",
             [](W& w) { return w.writeSingleCommentLine(QString(400, QLatin1Char('x'))); });
        same("keyword lines", "auto load\nsolver\n", [](W& w) {
            return w.writeKeywordLine("auto load") && w.writeKeywordLine(QStringLiteral("solver"));
        });
        same("free text keeps its line break", "a\nb c", [](W& w) {
            return w.writeStringUnformatted("a\nb") && w.writeStringUnformatted(std::string(" c"));
        });
        same("joined", "abn7-1xa1",
             sequence({[](W& w) { return w.writeStringCombiUnformatted("a", "b"); },
                       [](W& w) { return w.writeStringCombiUnformatted("n", 7); },
                       [](W& w) { return w.writeStringCombiUnformatted(-1, QStringLiteral("x")); },
                       [](W& w) { return w.writeStringCombiUnformatted(std::string("a"), 1); }}));
        same("joined outside Latin-1", "é?",
             [](W& w) { return w.writeStringCombiUnformatted(QStringLiteral("é"), QStringLiteral("€")); });
        same("NUL inside a text", "a b\nc d", [](W& w) {
            return w.writeKeywordLine(QStringLiteral("a") + QChar() + QStringLiteral("b"))
                && w.writeStringUnformatted(std::string("c\0d", 3));
        });
    }

    void layout()
    {
        QFETCH(Operation, operation);
        for (const datFormat format : {datFormat::fixed, datFormat::free})
            for (const datExtensionMode mode : {datExtensionMode::standard, datExtensionMode::extended}) {
                const QByteArray column = QByteArray(format == datFormat::fixed ? "fixed" : "free")
                    + (mode == datExtensionMode::standard ? "Standard" : "Extended");
                DeckBuffer deck(mode, format);
                QVERIFY(operation(deck.writer()));
                QCOMPARE(
                    deck.bytes(),
                    *static_cast<QByteArray*>(QTest::qData(column.constData(), qMetaTypeId<QByteArray>())));

                DeckBuffer dryRun(mode, format);
                dryRun.writer().setIsInWriteMode(false);
                QVERIFY(operation(dryRun.writer()));
                QCOMPARE(dryRun.bytes(), QByteArray());
            }
    }

    void listGroups_data()
    {
        QTest::addColumn<int>("perLine");
        kdqRow("tens", 10);
        kdqRow("single", 1);
        kdqRow("groups that lines break", 20);
        kdqRow("backwards", -7);
    }

    void listGroups()
    {
        QFETCH(int, perLine);
        QList<double> reals;
        for (const int number : numbersUpTo(75))
            reals.append(number / 8.0);
        for (const datFormat format : {datFormat::fixed, datFormat::free})
            for (const datExtensionMode mode : {datExtensionMode::standard, datExtensionMode::extended}) {
                const int mostInts = mode == datExtensionMode::standard ? 32 : 16;
                DeckBuffer lists(mode, format);
                DeckBuffer itemwise(mode, format);
                QVERIFY(lists.writer().writeList(numbersUpTo(75), perLine));
                listItemwise(itemwise, numbersUpTo(75), perLine, mostInts);
                QVERIFY(lists.writer().writeDoubleValues(reals, perLine));
                listItemwise(itemwise, reals, perLine, mostInts / 2);
                QCOMPARE(lists.bytes(), itemwise.bytes());
            }
    }

    void comments_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("deck");
        const QByteArray full(158, 'x');
        const auto bytes = [](const char* unit, int count) { return QByteArray(unit).repeated(count); };
        kdqRow("empty", QByteArray(), QByteArray("$ \n"));
        kdqRow("one line", full, "$ " + full + "\n$ \n");
        kdqRow("two lines", full + full, "$ " + full + "\n$ " + full + "\n$ \n");
        kdqRow("line break", QByteArray("a\r\nb\rc"), QByteArray("$ a b c\n"));
        kdqRow("two bytes across the cut", full.left(157) + "ö", "$ " + full.left(157) + "\n$ ö\n");
        kdqRow("three bytes", bytes("€", 60), "$ " + bytes("€", 52) + "\n$ " + bytes("€", 8) + "\n");
    }

    void comments()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, deck);
        DeckBuffer fromChars;
        QVERIFY(fromChars.writer().writeCommentLine(text.constData()));
        QCOMPARE(fromChars.bytes(), deck);
        DeckBuffer fromQString;
        QVERIFY(fromQString.writer().writeCommentLine(QString::fromLocal8Bit(text)));
        QCOMPARE(fromQString.bytes(), deck);
    }

    void commentsInAnotherLocalEncoding()
    {
        QTextCodec* const local = QTextCodec::codecForName("Shift_JIS"); // the second byte may be ASCII
        if (!local)
            QSKIP("This system does not know the encoding.");
        QTextCodec::setCodecForLocale(local);
        const QString text = QStringLiteral("a") + QStringLiteral("ソ").repeated(160);
        DeckBuffer deck;
        QVERIFY(deck.writer().writeCommentLine(text));
        QString read;
        QList<int> sizes;
        for (const QByteArray& line : deck.bytes().split('\n')) {
            sizes.append(line.size());
            read += local->toUnicode(line).mid(2);
        }
        QCOMPARE(sizes, QList<int>({159, 160, 8, 0}));
        QCOMPARE(read, text);
    }

    void refusals_data()
    {
        QTest::addColumn<Operation>("operation");
        QTest::addColumn<QByteArray>("refusedIn");
        using W = CFEDatLineWriter;
        const auto row = [](const char* name, const char* refusedIn, const Operation& operation) {
            kdqRow(name, operation, QByteArray(refusedIn));
        };
        row("longer than its width", "fixed", [](W& w) { return w.writeString("ABCDEFGHIJK", 10); });
        row("longer in bytes", "fixed", [](W& w) { return w.writeString(QStringLiteral("Öl"), 2); });
        row("widest", "", [](W& w) { return w.writeString("A", 126); });
        row("too wide", "fixed", [](W& w) { return w.writeString("A", 127); });
        row("longest text", "", [](W& w) { return w.writeString(std::string(127, 'a'), 0); });
        row("text too long", "fixed and free",
            [](W& w) { return w.writeString(QString(128, QLatin1Char('a')), 0); });
        row("joined too long", "fixed and free", [](W& w) {
            return w.writeStringCombiUnformatted(QString(1000, QLatin1Char('a')),
                                                 QString(24, QLatin1Char('b')));
        });
    }

    void refusals()
    {
        QFETCH(Operation, operation);
        QFETCH(QByteArray, refusedIn);
        for (const datFormat format : {datFormat::fixed, datFormat::free})
            for (const bool writeMode : {true, false}) {
                DeckBuffer deck(datExtensionMode::standard, format);
                deck.writer().setIsInWriteMode(writeMode);
                const bool isRefused = refusedIn.contains(format == datFormat::fixed ? "fixed" : "free");
                QCOMPARE(operation(deck.writer()), !isRefused);
                QCOMPARE(deck.bytes().isEmpty(), isRefused || !writeMode);
                QCOMPARE(deck.writer().getErrorCount(), 0);
            }
    }

    void defaultsAndLimits()
    {
        CFEDatLineWriter writer;
        char text[CFEDatLineWriter::doubleBufferSize];
        QCOMPARE(writer.formatDouble(1.5, false, text), 19);
        writer.setFormat(datFormat(2)); // any other code is free, but only code 1 narrows
        QCOMPARE(writer.formatDouble(1.5, false, text), 20);
    }

    void formatsAreStacked()
    {
        CFEDatLineWriter writer(datExtensionMode::standard, datFormat::fixed);
        const QList<datFormat> formats{datFormat::free, datFormat::free, datFormat::fixed};
        for (const datFormat format : formats)
            writer.pushFormat(format);
        for (const datFormat format : formats)
            QCOMPARE(writer.popFormat(), format);
        LogCapture log;
        writer.setFormat(datFormat::free);
        QCOMPARE(writer.popFormat(), datFormat::free);
        QCOMPARE(log.records().size(), 1);
        QCOMPARE(log.records().constFirst().tag, kdLog::FailedAssert);
    }

    void crop()
    {
        // The least that is kept, the largest that fits, what does not, and what is no number.
        QList<double> values{1e-120, 1e-99, 9.99e99, 1e100, 5e105, -5e105, -infinity};
        for (double& value : values)
            CFEDatLineWriter::cropDoubleValue(value);
        QCOMPARE(values, QList<double>({0.0, 1e-99, 9.99e99, 1e99, 5e99, -5e99, -infinity}));
        double nan = std::nan("");
        CFEDatLineWriter::cropDoubleValue(nan);
        QVERIFY(std::isnan(nan));
    }
};

KDQ_TEST_MAIN(TestDatLineWriter)
#include "tst_cfedatlinewriter.moc"
