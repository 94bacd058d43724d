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
        for (const char* valid : {"A-1", "1-", "aaaaaaaaaaaaaaaaaaaa"})
            QTest::newRow(valid) << s(valid) << true;
        for (const char* invalid : {"-A", "A_1", "", "Träger", "\xd9\xa3", "A\n"})
            QTest::newRow(invalid) << s(invalid) << false;
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
        coObjectName name(text, s("former"));
        QCOMPARE(name.setInternalName(text, true), isValid);
        QCOMPARE(name.internalName(), isValid ? text : s("former"));
        QVERIFY(!name.setInternalName(repeated('a', 21), true));
        QVERIFY(name.setInternalName(text, false));
    }

    void counters()
    {
        const auto chopped = [](const char* name) {
            QString rest = s(name);
            const int counter = chopCounter(rest);
            return rest + QStringLiteral("|%1").arg(counter);
        };
        QCOMPARE(chopped("Table-007"), s("Table|7"));
        QCOMPARE(chopped("A-1-2"), s("A-1|2"));
        QCOMPARE(chopped("-5"), s("|5"));
        QCOMPARE(chopped("X-2147483648"), s("X-2147483648|-1"));
        QCOMPARE(chopped("Table-3a"), s("Table-3a|-1"));
        QCOMPARE(chopped("Table-\xd9\xa3"), s("Table-\xd9\xa3|-1"));
        QCOMPARE(chopped(""), s("|-1"));
    }

    void unique()
    {
        const auto unique = [](const QString& name, const QString& taken, bool internal = false,
                               bool force = false) {
            return ensureUniqueCounter(name, list(taken), internal, force);
        };
        QCOMPARE(unique(s("A-7"), s("A")), s("A-7"));
        QCOMPARE(unique(s("A"), s(""), false, true), s("A-1"));
        QCOMPARE(unique(s("A-5"), s("A-6"), true, true), s("A-5"));
        QCOMPARE(unique(s("part"), s("Part")), s("part-2"));
        QCOMPARE(unique(s("A-0"), s("A-0")), s("A-2"));
        QCOMPARE(unique(s("A"), s("A A-02 A-1 B-2 AA-2 A-x A_2")), s("A-2"));
        QCOMPARE(unique(s("A-3"), s("A-6 a-4 A-3 A-2")), s("A-5"));
        QCOMPARE(unique(s("X-2147483647"), s("X-2147483647")), s("X-2147483648"));
        const QString a = repeated('a', 17);
        QCOMPARE(unique(a + s("-9"), a + s("-9")), a + s("-10"));
        QCOMPARE(unique(a + s("b-9"), a + s("b-9 ") + a + s("-10"), true), a + s("-11"));
        const QString pair = a + s("\xf0\x9f\x98\x80-"); // is not split
        QCOMPARE(unique(pair, pair, true), a + s("-2"));
    }

    void prefixes()
    {
        const QStringList names = {s("Table 12 top-4"), s("Tablex3"),          s("Table34"), s("Table-x"),
                                   s("Table"),          s("Table-2147483648"), s("table-3"), s("Table_0")};
        QCOMPARE(getNamePrefixesWithCounters(names, s("Table")), QStringList({s("Table 12"), s("Table_0")}));
        QCOMPARE(getNamePrefixWithCounter(s("_3"), QString()), s("_3"));
    }

    void display()
    {
        const auto unique = [](const QString& display, const char* internal, const QStringList& taken) {
            return QString(createUniqueDisplayName(display, s(internal), taken));
        };
        QCOMPARE(unique(s("Table-3"), "Table", {s("Table")}), s("Table-3"));
        QCOMPARE(unique(QString(), "x", {s("name")}), s("Name-2"));
        QCOMPARE(unique(repeated('x', 1005), "", {}), repeated('x', 1000));
        QCOMPARE(unique(s("Table-3"), "Table-3", list(s("Table-3 Table-4"))), s("Table-5"));
        QCOMPARE(unique(s("Table-3 top"), "Table-3", {s("table-3 TOP"), s("Table-4 top")}), s("Table-5 top"));
        QCOMPARE(unique(s("Table 3"), "Table", {s("Table 3")}), s("Table 4"));
        QCOMPARE(unique(s("Table-3 top"), "T", {s("Table-3 top")}), s("Table-3 top-2"));
        const QString longest = s("-9 ") + repeated('x', 997);
        QCOMPARE(unique(longest, "-0", {longest}), longest.left(998) + s("-2"));
    }

    void internal()
    {
        const auto both = [](const char* display, const char* internal, const char* taken) {
            return createUniqueInternalName(s(internal), list(s(taken))) + QLatin1Char(' ')
                + createUniqueInternalNameFromDisplayName(s(display), s(internal), list(s(taken)));
        };
        QCOMPARE(both("", "", "object obj"), s("Object-2 Obj-2"));
        QCOMPARE(both("Part-1", "P", "part-1 p"), s("P-2 Part-2"));
        QCOMPARE(both("abcdefghijklmnopqrstuvwxy", "P", ""), s("P abcdefghijklmnopqrst"));
        QCOMPARE(both("ä", "abcdefghijklmnopqrstuvwxy", "ABCDEFGHIJKLMNOPQRST"),
                 s("abcdefghijklmnopqr-2 abcdefghijklmnopqr-2"));
        QCOMPARE(both("Träger (oben)", "_a_ü", ""), s("0a-- 0a---Trgeroben"));
        QCOMPARE(both("\xf0\x9f\x98\x80", "\xf0\x9f\x98\x80", ""), s("0- 0-"));
        QCOMPARE(both("ü12", "abcdefghijklmnopqr", ""), s("abcdefghijklmnopqr abcdefghijklmnopqr-1"));
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

    void correcting()
    {
        const auto corrected = [](const QString& name, coCheckAndCorrectName::e_Mode mode) {
            QStringList remarks;
            const QString result =
                coCheckAndCorrectName::checkAndCorrectName(name, {s("Die")}, mode, &remarks);
            return result + QStringLiteral("|%1").arg(remarks.size());
        };
        const auto display = coCheckAndCorrectName::eDisplayName;
        const auto internal = coCheckAndCorrectName::eInternalName;
        QCOMPARE(corrected(s("Upper die"), display), s("Upper die|0"));
        QCOMPARE(corrected(s(" a\tb\n"), display), s("a b|1"));
        QCOMPARE(corrected(s(" die"), display), s("die-2|1"));
        QCOMPARE(corrected(s("  "), display), s("Name|1"));
        QCOMPARE(corrected(s("_") + repeated('x', 20), internal), s("0") + repeated('x', 19) + s("|2"));
        QCOMPARE(corrected(s("DIE"), internal), s("DIE-2|1"));
    }

    void wrapping()
    {
        const auto wrapped = [](const char* text, int length) {
            return coCheckAndCorrectName::wrapTextForPreferredLength(s(text), length);
        };
        QCOMPARE(wrapped("one  two", 3), s("one  \ntwo"));
        QCOMPARE(wrapped("a abcdefgh b", 3), s("a \nabc\ndef\ngh \nb"));
        QCOMPARE(wrapped("ab\n\ncd ef\n", 2), s("ab\n\ncd \nef\n"));
        QCOMPARE(wrapped("a\xf0\x9f\x98\x80", 2), s("a\n\xf0\x9f\x98\x80")); // the pair stays whole
        QCOMPARE(wrapped("one two", 0), s("one two"));
    }

    void xmlRoundTrip()
    {
        const QString markup = s("<Träger & \"co\">\t\n\r \xf0\x9f\x98\x80");
        Tagged name(markup + QChar(1) + QChar(0xd800), s("I"));
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
        QCOMPARE(QString(read.displayName()), markup + QString(2, QChar(0xfffd)));
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
