#include "kdqtest.h"

#include <kdQCore/coCheckAndCorrectName>
#include <kdQCore/coUniqueNameGenerator>
#include <kdQCore/nCreateObjectName>

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

using namespace nCreateObjectName;

namespace {

static_assert(!std::is_constructible<coDisplayName, coInternalName>::value, "kinds of name mix");
static_assert(!std::is_constructible<coInternalName, coDisplayName>::value, "kinds of name mix");

QStringList list(const QString& names)
{
    return names.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

QString s(const char* text)
{
    return QString::fromUtf8(text);
}

QString repeated(char c, int count)
{
    return QString(count, QLatin1Char(c));
}

/// A name with a child element.
class Tagged : public coObjectName {
public:
    using coObjectName::coObjectName;
    QString tag;

private:
    void readXmlElements(QXmlStreamReader& reader) override
    {
        while (reader.readNextStartElement())
            tag = reader.readElementText();
    }
    void writeXmlElements(QXmlStreamWriter& writer) const override
    {
        writer.writeTextElement(QStringLiteral("tag"), tag);
    }
};

} // namespace

class TestObjectNames : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void validity_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("isValid");
        QTest::newRow("hyphen inside") << "A-1" << true;
        QTest::newRow("digit first, hyphen last") << "1-" << true;
        QTest::newRow("hyphen first") << "-A" << false;
        QTest::newRow("underscore") << "A_1" << false;
        QTest::newRow("empty") << "" << false;
        QTest::newRow("letter beyond ASCII") << QString::fromUtf8("Träger") << false;
        QTest::newRow("digit beyond ASCII") << QString(QChar(0x0663)) << false;
        QTest::newRow("line break last") << "A\n" << false;
        QTest::newRow("longest") << repeated('a', 20) << true;
    }

    void validity()
    {
        QFETCH(QString, text);
        QFETCH(bool, isValid);
        QCOMPARE(coObjectName::isValidInternalName(text), isValid);
        const QString pattern = QRegularExpression::anchoredPattern(coObjectName::regExpNamePattern());
        QCOMPARE(QRegularExpression(pattern).match(text).hasMatch(), isValid);
        const bool offends = text.left(1).contains(coObjectName::negatedFirstCharNameRegExp())
            || text.mid(1).contains(coObjectName::negatedFollowUpCharsNameRegExp());
        QCOMPARE(!text.isEmpty() && !offends, isValid);
        coObjectName name(text, QStringLiteral("former"));
        QCOMPARE(name.setInternalName(text, true), isValid);
        QCOMPARE(name.internalName(), isValid ? text : QStringLiteral("former"));
        QVERIFY(!name.setInternalName(repeated('a', 21), true));
        QVERIFY(name.setInternalName(text, false));
    }

    void counters_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("rest");
        QTest::addColumn<int>("counter");
        const auto row = [](const char* name, const char* rest, int counter) {
            QTest::newRow(name) << s(name) << s(rest) << counter;
        };
        row("Table-007", "Table", 7);
        row("A-1-2", "A-1", 2);
        row("-5", "", 5);
        row("X-2147483648", "X-2147483648", -1);
        row("Table-3a", "Table-3a", -1);
        row("Table-\xd9\xa3", "Table-\xd9\xa3", -1);
        row("", "", -1);
    }

    void counters()
    {
        QFETCH(QString, name);
        QTEST(chopCounter(name), "counter");
        QTEST(name, "rest");
    }

    void unique_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("taken");
        QTest::addColumn<bool>("internal");
        QTest::addColumn<bool>("force");
        QTest::addColumn<QString>("result");
        const auto row = [](const QString& name, const QString& taken, bool internal, bool force,
                            const QString& result) {
            QTest::addRow("%s among %s", qPrintable(name), qPrintable(taken))
                << name << taken << internal << force << result;
        };
        const QString a17 = repeated('a', 17);
        row(s("A-7"), s("A"), false, false, s("A-7"));
        row(s("A"), s(""), false, true, s("A-1"));
        row(s("A-5"), s("A-6"), true, true, s("A-5"));
        row(s("part"), s("Part"), false, false, s("part-2"));
        row(s("A-0"), s("A-0"), false, false, s("A-2"));
        row(s("A"), s("A A-02 A-1 B-2 AA-2 A-x A_2"), false, false, s("A-2"));
        row(s("A-3"), s("A-6 a-4 A-3 A-2"), false, false, s("A-5"));
        row(s("X-2147483647"), s("X-2147483647"), false, false, s("X-2147483648"));
        row(a17 + s("-9"), a17 + s("-9"), false, false, a17 + s("-10"));
        row(a17 + s("b-9"), a17 + s("b-9 ") + a17 + s("-10"), true, false, a17 + s("-11"));
        const QString pair = a17 + s("\xf0\x9f\x98\x80-"); // is not split
        row(pair, pair, true, false, a17 + s("-2"));
    }

    void unique()
    {
        QFETCH(QString, name);
        QFETCH(QString, taken);
        QFETCH(bool, internal);
        QFETCH(bool, force);
        QTEST(ensureUniqueCounter(name, list(taken), internal, force), "result");
    }

    void prefixes()
    {
        const QStringList names = {s("Table 12 top-4"), s("Tablex3"),          s("Table34"), s("Table-x"),
                                   s("Table"),          s("Table-2147483648"), s("table-3"), s("Table_0")};
        QCOMPARE(getNamePrefixesWithCounters(names, s("Table")), QStringList({s("Table 12"), s("Table_0")}));
        QCOMPARE(getNamePrefixWithCounter(s("_3"), QString()), s("_3"));
    }

    void display_data()
    {
        QTest::addColumn<QString>("display");
        QTest::addColumn<QString>("internal");
        QTest::addColumn<QStringList>("taken");
        QTest::addColumn<QString>("result");
        const auto row = [](const char* title, const QString& display, const char* internal,
                            const QStringList& taken, const QString& result) {
            QTest::newRow(title) << display << s(internal) << taken << result;
        };
        row("free", s("Table-3"), "Table", {s("Table")}, s("Table-3"));
        row("empty", QString(), "x", {s("name")}, s("Name-2"));
        row("too long", repeated('x', 1005), "", {}, repeated('x', 1000));
        row("copy of a numbered one", s("Table-3"), "Table-3", list(s("Table-3 Table-4")), s("Table-5"));
        row("copy, counter inside", s("Table-3 top"), "Table-3", {s("table-3 TOP"), s("Table-4 top")},
            s("Table-5 top"));
        row("copy, other separator", s("Table 3"), "Table", {s("Table 3")}, s("Table 4"));
        row("copy, another internal name", s("Table-3 top"), "T", {s("Table-3 top")}, s("Table-3 top-2"));
        row("copy, too long for its counter", s("-9 ") + repeated('x', 997), "-0",
            {s("-9 ") + repeated('x', 997)}, s("-9 ") + repeated('x', 995) + s("-2"));
    }

    void display()
    {
        QFETCH(QString, display);
        QFETCH(QString, internal);
        QFETCH(QStringList, taken);
        QTEST(QString(createUniqueDisplayName(display, internal, taken)), "result");
    }

    void internal_data()
    {
        QTest::addColumn<QString>("display");
        QTest::addColumn<QString>("internal");
        QTest::addColumn<QString>("taken");
        QTest::addColumn<QString>("result");
        QTest::addColumn<QString>("resultFromDisplay");
        const auto row = [](const char* title, const char* display, const char* internal, const char* taken,
                            const char* result, const char* fromDisplay) {
            QTest::newRow(title) << s(display) << s(internal) << s(taken) << s(result) << s(fromDisplay);
        };
        row("both empty", "", "", "object obj", "Object-2", "Obj-2");
        row("valid display", "Part-1", "P", "part-1 p", "P-2", "Part-2");
        row("long display", "abcdefghijklmnopqrstuvwxy", "P", "", "P", "abcdefghijklmnopqrst");
        row("25 characters", "ä", "abcdefghijklmnopqrstuvwxy", "ABCDEFGHIJKLMNOPQRST", "abcdefghijklmnopqr-2",
            "abcdefghijklmnopqr-2");
        row("invalid characters", "Träger (oben)", "_a_ü", "", "0a--", "0a---Trgeroben");
        row("pair beyond 16 bits", "\xf0\x9f\x98\x80", "\xf0\x9f\x98\x80", "", "0-", "0-");
        row("room for one", "ü12", "abcdefghijklmnopqr", "", "abcdefghijklmnopqr", "abcdefghijklmnopqr-1");
    }

    void internal()
    {
        QFETCH(QString, display);
        QFETCH(QString, internal);
        QFETCH(QString, taken);
        QTEST(QString(createUniqueInternalName(internal, list(taken))), "result");
        QTEST(QString(createUniqueInternalNameFromDisplayName(display, internal, list(taken))),
              "resultFromDisplay");
    }

    void takenNames()
    {
        const coDisplayName display(QStringLiteral("Die.").constData(), 3);
        const coInternalName internal("D", 1);
        coObjectNameList names;
        for (int i = 0; i < 3; ++i)
            names.append(createUniqueName(display, internal, names));
        QCOMPARE(coDisplayNameList(names).join(QStringLiteral(",")), QStringLiteral("Die,Die-2,Die-3"));
        QCOMPARE(createUniqueInternalName(display.left(3), names), QStringLiteral("Die"));
        QCOMPARE(createUniqueInternalName(internal, coInternalNameList(names)), QStringLiteral("D-4"));

        coDisplayNameList sorted = coDisplayNameList{s("b")} + coDisplayNameList(names);
        sorted << coDisplayName(s("C"));
        sorted.sort(Qt::CaseInsensitive);
        QCOMPARE(sorted.toStringList(), list(s("b C Die Die-2 Die-3")));
    }

    void generator()
    {
        coUniqueNameGenerator generator(QLatin1Char('_'));
        generator.reserve({QStringLiteral("PART_2"), QString::fromUtf8("ß_1")});
        QStringList made;
        for (const char* base :
             {"Part", "part", "Part_3", "", "ß", "ẞ", "\xf0\x90\x90\x80", "\xf0\x90\x90\xa8"})
            made.append(generator.next(QString::fromUtf8(base)));
        QCOMPARE(made.join(QLatin1Char(' ')),
                 QString::fromUtf8("Part_1 part_3 Part_3_1 Name_1 ß_2 ẞ_3 "
                                   "\xf0\x90\x90\x80_1 \xf0\x90\x90\xa8_2"));
        coUniqueNameGenerator unseparated{QChar()};
        for (int i = 0; i < 23; ++i)
            made.append(unseparated.next(i == 1 || i == 2 ? s("A1") : s("A")));
        QVERIFY(made.contains(QStringLiteral("A13")));
        QCOMPARE(made.removeDuplicates(), 0);
    }

    void correcting_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("result");
        QTest::addColumn<int>("remarks");
        const int display = coCheckAndCorrectName::eDisplayName;
        const int internal = coCheckAndCorrectName::eInternalName;
        QTest::newRow("nothing wrong") << "Upper die" << display << "Upper die" << 0;
        QTest::newRow("blanks and a control character") << " a\tb\n" << display << "a b" << 1;
        QTest::newRow("taken once corrected") << " die" << display << "die-2" << 1;
        QTest::newRow("only blanks") << "  " << display << "Name" << 1;
        QTest::newRow("internal, all wrong") << QStringLiteral("_") + repeated('x', 20) << internal
                                             << QStringLiteral("0") + repeated('x', 19) << 2;
        QTest::newRow("internal, taken") << "DIE" << internal << "DIE-2" << 1;
    }

    void correcting()
    {
        QFETCH(QString, name);
        QFETCH(int, mode);
        QStringList remarks;
        QTEST(coCheckAndCorrectName::checkAndCorrectName(name, {QStringLiteral("Die")},
                                                         coCheckAndCorrectName::e_Mode(mode), &remarks),
              "result");
        QTEST(remarks.size(), "remarks");
    }

    void wrapping_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("length");
        QTest::addColumn<QString>("result");
        QTest::newRow("blank behind the limit") << "one  two" << 3 << "one  \ntwo";
        QTest::newRow("long word") << "a abcdefgh b" << 3 << "a \nabc\ndef\ngh \nb";
        QTest::newRow("own breaks") << "ab\n\ncd ef\n" << 2 << "ab\n\ncd \nef\n";
        QTest::newRow("pair stays whole")
            << QString::fromUtf8("a\xf0\x9f\x98\x80") << 2 << QString::fromUtf8("a\n\xf0\x9f\x98\x80");
        QTest::newRow("no length") << "one two" << 0 << "one two";
    }

    void wrapping()
    {
        QFETCH(QString, text);
        QFETCH(int, length);
        QTEST(coCheckAndCorrectName::wrapTextForPreferredLength(text, length), "result");
    }

    void xmlRoundTrip_data()
    {
        QTest::addColumn<QString>("display");
        QTest::addColumn<QString>("readBack");
        const QString markup = s("<Träger & \"co\">\t\n\r \xf0\x9f\x98\x80");
        QTest::newRow("markup and white space") << markup << markup;
        QTest::newRow("control characters, half a pair")
            << QStringLiteral("a\x01z") + QChar(0xd800) << QStringLiteral("a\xfffdz\xfffd");
    }

    void xmlRoundTrip()
    {
        QFETCH(QString, display);
        Tagged name(display, QStringLiteral("I"));
        name.tag = QStringLiteral("t");
        QString xml;
        QXmlStreamWriter writer(&xml);
        name.writeXmlWithCustomTag(writer, QStringLiteral("part"));

        QXmlStreamReader reader(QStringLiteral("<l>") + xml + xml + QStringLiteral("</l>"));
        QVERIFY(reader.readNextStartElement());
        reader.readNext();
        QVERIFY(coObjectName::xmlHasNameAttribute(reader));
        QVERIFY(!coObjectName::xmlHasNameAttribute(reader, QStringLiteral("x_")));
        coObjectName plain;
        QVERIFY(plain.readXmlWithCustomTag(reader));
        Tagged read;
        QVERIFY2(read.readXmlWithCustomTag(reader), qPrintable(reader.errorString()));
        QTEST(QString(read.displayName()), "readBack");
        QCOMPARE(plain, static_cast<coObjectName&>(read));
        QCOMPARE(read.tag, name.tag);
        QVERIFY(!read.readXmlWithCustomTag(reader)); // there is no third
        QCOMPARE(reader.errorString(), QStringLiteral("the element of an object's name is missing"));
    }

    void prefixedAttributes()
    {
        const QString prefix = s("old_");
        QString xml;
        QXmlStreamWriter writer(&xml);
        writer.writeEmptyElement(s("e"));
        coObjectName(s("D"), s("I")).writeXmlAttributes(writer, prefix);
        writer.writeEndDocument();
        QCOMPARE(xml, s("<e old_display_name=\"D\" old_internal_name=\"I\"/>\n"));
        QXmlStreamReader reader(xml);
        coObjectName name;
        QVERIFY(reader.readNextStartElement()
                && name.readXmlAttributes(reader, coObjectName::xmlDisplayNameAttribute(prefix),
                                          coObjectName::xmlInternalNameAttribute(prefix)));
        QCOMPARE(name.internalName(), s("I"));
    }

    void xmlFaults()
    {
        const coObjectName former = coObjectName::fromSingleString(s("former"));
        for (const char* xml : {"<n display_name='D'/>", "<n display_name='D' internal_name='I'><a></n>"}) {
            coObjectName name = former;
            QXmlStreamReader reader{s(xml)};
            QVERIFY(!name.readXmlWithCustomTag(reader));
            QVERIFY(reader.hasError());
            QCOMPARE(reader.errorString() == s("the element 'n' has no attribute 'internal_name'"),
                     !s(xml).contains(s("internal_name")));
            QCOMPARE(name, former);
        }
    }

    void comparing()
    {
        const auto named = [](const char* a, const char* b) { return coObjectName(s(a), s(b)); };
        QVERIFY(named("a", "z") < named("b", "a"));
        QVERIFY(named("a", "a") < named("a", "b"));
        QVERIFY(!(named("b", "a") < named("a", "z")));
        coObjectName name = named("a", "b");
        name.setXmlReferenceName(s("ref-1"));
        QVERIFY(name == named("a", "b"));
        name.setXmlReferenceName(QString());
        QCOMPARE(name.xmlReferenceName(), s("b"));
    }
};

KDQ_TEST_MAIN(TestObjectNames)
#include "tst_objectnames.moc"
