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
QByteArray listItemwise(DeckBuffer& deck, const QList<Value>& values, int perLine, int most)
{
    int count = 0;
    for (int i = 0; i < values.size(); ++i) {
        const bool continues = count + 1 < most && i + 1 < values.size() && (i + 1) % perLine != 0;
        deck.writer().writeInList(values.at(i), !continues, i + 1 < values.size());
        count = continues ? count + 1 : 0;
    }
    return deck.bytes();
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
            QTest::newRow(name) << operation << fixedStandard << fixedExtended << freeStandard
                                << freeExtended;
        };
        const auto same = [&row](const char* name, const QByteArray& text, const Operation& operation) {
            row(name, operation, text, text, text, text);
        };
        using W = CFEDatLineWriter;

        row(
            "int", [](W& w) { return w.writeInt(7); }, "    7", "         7", "7,", "7,");
        row(
            "int 3 times", [](W& w) { return w.writeIntNTimes(-4, 3); }, "   -4   -4   -4",
            "        -4        -4        -4", "-4,-4,-4,", "-4,-4,-4,");
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
        row(
            "not finite", [](W& w) { return w.writeDouble(infinity, true) && w.writeDoubleValue(-infinity); },
            "       inf      -inf", QByteArray(17, ' ') + "inf" + QByteArray(16, ' ') + "-inf",
            "       inf,      -inf,", QByteArray(16, ' ') + "inf," + QByteArray(15, ' ') + "-inf,");
        row(
            "not a number", [](W& w) { return w.writeDoubleValue(std::nan("")); }, "       nan",
            QByteArray(17, ' ') + "nan", "       nan,", QByteArray(16, ' ') + "nan,");
        row(
            "string", [](W& w) { return w.writeString("AB", 5); }, "   AB", "   AB", "AB,", "AB,");
        row(
            "empty string", [](W& w) { return w.writeString(QString(), 3); }, "   ", "   ", ",", ",");
        row(
            "width in bytes", [](W& w) { return w.writeString(QStringLiteral("Öl"), 5); }, "  Öl", "  Öl",
            "Öl,", "Öl,");
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
        QTest::newRow("tens") << 10;
        QTest::newRow("single") << 1;
        QTest::newRow("groups that lines break") << 20;
        QTest::newRow("backwards") << -7;
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
                DeckBuffer ints(mode, format);
                DeckBuffer intsItemwise(mode, format);
                QVERIFY(ints.writer().writeList(numbersUpTo(75), perLine));
                QCOMPARE(ints.bytes(), listItemwise(intsItemwise, numbersUpTo(75), perLine, mostInts));
                DeckBuffer values(mode, format);
                DeckBuffer valuesItemwise(mode, format);
                QVERIFY(values.writer().writeDoubleValues(reals, perLine));
                QCOMPARE(values.bytes(), listItemwise(valuesItemwise, reals, perLine, mostInts / 2));
            }
    }

    void comments_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("deck");
        const QByteArray full(158, 'x');
        const auto bytes = [](const char* unit, int count) { return QByteArray(unit).repeated(count); };
        QTest::newRow("empty") << QByteArray() << QByteArray("$ \n");
        QTest::newRow("one line") << full << "$ " + full + "\n$ \n";
        QTest::newRow("two lines") << full + full << "$ " + full + "\n$ " + full + "\n$ \n";
        QTest::newRow("line break") << QByteArray("a\r\nb\rc") << QByteArray("$ a b c\n");
        QTest::newRow("two bytes across the cut") << full.left(157) + "ö"
                                                  << "$ " + full.left(157) + "\n$ ö\n";
        QTest::newRow("three bytes") << bytes("€", 60)
                                     << "$ " + bytes("€", 52) + "\n$ " + bytes("€", 8) + "\n";
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

    void commentsInOtherLocalEncodings_data()
    {
        QTest::addColumn<QByteArray>("codec");
        QTest::addColumn<QString>("unit");
        QTest::newRow("two bytes, the second may be ASCII")
            << QByteArray("Shift_JIS") << QStringLiteral("ソ");
        // Some builds of Qt cannot read characters beyond the 16-bit ones in this encoding.
        QTest::newRow("four bytes") << QByteArray("GB18030") << QStringLiteral("Ä");
    }

    void commentsInOtherLocalEncodings()
    {
        QFETCH(QByteArray, codec);
        QFETCH(QString, unit);
        QTextCodec* const local = QTextCodec::codecForName(codec);
        if (!local)
            QSKIP("This system does not know the encoding.");
        QTextCodec::setCodecForLocale(local);
        const QString text = QStringLiteral("a") + unit.repeated(160);
        DeckBuffer deck;
        QVERIFY(deck.writer().writeCommentLine(text));
        QList<QByteArray> lines = deck.bytes().split('\n');
        QVERIFY(lines.takeLast().isEmpty());
        QCOMPARE(lines.constFirst().size(), 159);
        QString read;
        for (const QByteArray& line : qAsConst(lines)) {
            QVERIFY(line.size() <= 160);
            read += local->toUnicode(line).mid(2);
        }
        QCOMPARE(read, text);
    }

    void refusals_data()
    {
        QTest::addColumn<Operation>("operation");
        QTest::addColumn<bool>("inFixed");
        QTest::addColumn<bool>("inFree");
        using W = CFEDatLineWriter;
        const auto row = [](const char* name, bool inFixed, bool inFree, const Operation& operation) {
            QTest::newRow(name) << operation << inFixed << inFree;
        };
        row("longer than its width", true, false, [](W& w) { return w.writeString("ABCDEFGHIJK", 10); });
        row("longer in bytes", true, false, [](W& w) { return w.writeString(QStringLiteral("Öl"), 2); });
        row("widest", false, false, [](W& w) { return w.writeString("A", 126); });
        row("too wide", true, false, [](W& w) { return w.writeString("A", 127); });
        row("longest text", false, false, [](W& w) { return w.writeString(std::string(127, 'a'), 0); });
        row("text too long", true, true,
            [](W& w) { return w.writeString(QString(128, QLatin1Char('a')), 0); });
        row("joined too long", true, true, [](W& w) {
            return w.writeStringCombiUnformatted(QString(1000, QLatin1Char('a')),
                                                 QString(24, QLatin1Char('b')));
        });
    }

    void refusals()
    {
        QFETCH(Operation, operation);
        for (const datFormat format : {datFormat::fixed, datFormat::free})
            for (const bool writeMode : {true, false}) {
                DeckBuffer deck(datExtensionMode::standard, format);
                deck.writer().setIsInWriteMode(writeMode);
                const bool isRefused = *static_cast<bool*>(
                    QTest::qData(format == datFormat::fixed ? "inFixed" : "inFree", QMetaType::Bool));
                QCOMPARE(operation(deck.writer()), !isRefused);
                QCOMPARE(deck.bytes().isEmpty(), isRefused || !writeMode);
                QCOMPARE(deck.writer().getErrorCount(), 0);
            }
    }

    void defaultsAndLimits()
    {
        CFEDatLineWriter writer;
        QCOMPARE(writer.getMaxWidthForInt(), 10);
        QCOMPARE(writer.getMaxNumberOfItemsPerLineForDouble(), 8);
        char text[CFEDatLineWriter::doubleBufferSize];
        QCOMPARE(writer.formatDouble(1.5, false, text), 19);
        writer.setFormat(datFormat(2)); // any other code is free, but only code 1 narrows
        QCOMPARE(writer.formatDouble(1.5, false, text), 20);
    }

    void formatsAreStacked()
    {
        CFEDatLineWriter writer(datExtensionMode::standard, datFormat::fixed);
        writer.pushFormat(datFormat::free);
        writer.pushFormat(datFormat::free);
        writer.pushFormat(datFormat::fixed);
        QCOMPARE(writer.popFormat(), datFormat::free);
        QCOMPARE(writer.popFormat(), datFormat::free);
        QCOMPARE(writer.popFormat(), datFormat::fixed);
        QCOMPARE(writer.getFormat(), datFormat::fixed);
        LogCapture log;
        writer.setFormat(datFormat::free);
        QCOMPARE(writer.popFormat(), datFormat::free);
        QCOMPARE(log.records().size(), 1);
        QCOMPARE(log.records().constFirst().tag, kdLog::FailedAssert);
    }

    void crop_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<double>("cropped");
        QTest::newRow("too small") << 1e-120 << 0.0;
        QTest::newRow("least") << 1e-99 << 1e-99;
        QTest::newRow("just fits") << 9.99e99 << 9.99e99;
        QTest::newRow("limit") << 1e100 << 1e99;
        QTest::newRow("too large") << 5e105 << 5e99;
        QTest::newRow("negative") << -5e105 << -5e99;
        QTest::newRow("infinite") << -infinity << -infinity;
    }

    void crop()
    {
        QFETCH(double, value);
        QFETCH(double, cropped);
        CFEDatLineWriter::cropDoubleValue(value);
        QCOMPARE(value, cropped);
        double nan = std::nan("");
        CFEDatLineWriter::cropDoubleValue(nan);
        QVERIFY(std::isnan(nan));
    }
};

KDQ_TEST_MAIN(TestDatLineWriter)
#include "tst_cfedatlinewriter.moc"
