#include "kdqtest.h"

#include <kdQCore/kdContainerConverter>

#include <QSettings>
#include <QTemporaryDir>

Q_DECLARE_METATYPE(QList<QVariant>)

class TestContainerConverter : public QObject {
    Q_OBJECT

private:
    template <typename T>
    static void verifyRoundTrip(const QList<T>& values)
    {
        QList<QVariant> stored;
        kdContainerConverter::toQVariant(values, stored);
        QCOMPARE(stored.size(), values.size());
        QList<T> result = values.mid(0, 1);
        kdContainerConverter::fromQVariant(stored, result);
        QCOMPARE(result, values.mid(0, 1) + values);
    }

private Q_SLOTS:
    void roundTripAppends()
    {
        verifyRoundTrip(QList<int>{-1, 0, INT_MAX});
        verifyRoundTrip(QList<double>{0.1, -5e-324, 1.7976931348623157e308});
        verifyRoundTrip(QList<bool>{true, false, true});
        verifyRoundTrip(QList<QString>{QStringLiteral("Größe"), QString(), QStringLiteral("1;2")});
        verifyRoundTrip(QList<QList<QString>>{{QStringLiteral("a"), QStringLiteral("b")}, {}, {QString()}});
        verifyRoundTrip(QList<QStringList>{{QStringLiteral("a"), QStringLiteral("b")}, {}});
        verifyRoundTrip(QList<double>{});
    }

    void foreignElements_data()
    {
        QTest::addColumn<QVariant>("element");
        QTest::addColumn<int>("asInt");
        QTest::addColumn<double>("asDouble");
        QTest::addColumn<bool>("asBool");
        QTest::addColumn<QString>("asText");
        QTest::newRow("text of a number")
            << QVariant(QStringLiteral("12")) << 12 << 12.0 << true << QStringLiteral("12");
        QTest::newRow("point in a comma locale")
            << QVariant(QStringLiteral("2.5")) << 0 << 2.5 << true << QStringLiteral("2.5");
        QTest::newRow("no number") << QVariant(QStringLiteral("x")) << 0 << 0.0 << true
                                   << QStringLiteral("x");
        QTest::newRow("false as settings store it")
            << QVariant(QStringLiteral("false")) << 0 << 0.0 << false << QStringLiteral("false");
        QTest::newRow("nothing") << QVariant() << 0 << 0.0 << false << QString();
    }

    void foreignElements()
    {
        QFETCH(QVariant, element);
        const QList<QVariant> source{element, QVariant(1)};
        QList<int> ints;
        QList<double> doubles;
        QList<bool> bools;
        QList<QString> texts;
        kdContainerConverter::fromQVariant(source, ints);
        kdContainerConverter::fromQVariant(source, doubles);
        kdContainerConverter::fromQVariant(source, bools);
        kdContainerConverter::fromQVariant(source, texts);
        QTEST(ints.value(0), "asInt");
        QTEST(doubles.value(0), "asDouble");
        QTEST(bools.value(0), "asBool");
        QTEST(texts.value(0), "asText");
        QCOMPARE(ints.value(1) + doubles.value(1), 2.0);
    }

    void listsOfTextsComeInSeveralTypes()
    {
        const QList<QString> texts{QStringLiteral("a"), QStringLiteral("b")};
        QList<QList<QString>> lists;
        QList<QStringList> stringLists;
        const QList<QVariant> source{QVariant::fromValue(texts), QVariant(QStringList(texts)),
                                     QVariant(QVariantList{texts.at(0), texts.at(1)})};
        kdContainerConverter::fromQVariant(source, lists);
        kdContainerConverter::fromQVariant(source, stringLists);
        QCOMPARE(lists, (QList<QList<QString>>{texts, texts, texts}));
        QCOMPARE(stringLists, (QList<QStringList>{texts, texts, texts}));
    }

    void listsOfTextsPassThroughSettings()
    {
        const QList<QList<QString>> lists{{QStringLiteral("a, b"), QStringLiteral("c")},
                                          {QStringLiteral("one")}};
        const QTemporaryDir folder;
        QSettings settings(folder.filePath(QStringLiteral("lists.ini")), QSettings::IniFormat);
        QList<QVariant> stored;
        kdContainerConverter::toQVariant(lists, stored);
        settings.setValue(QStringLiteral("lists"), stored);
        settings.sync();
        QSettings reread(settings.fileName(), QSettings::IniFormat);
        QList<QList<QString>> result;
        kdContainerConverter::fromQVariant(reread.value(QStringLiteral("lists")).toList(), result);
        QCOMPARE(result, lists);
    }

    void standardStringsAreLocalText()
    {
        QStringList result{QStringLiteral("first")};
        const QString umlauts = QStringLiteral("Größe");
        kdContainerConverter::toQStringList(
            result, {umlauts.toLocal8Bit().toStdString(), std::string("a\0b", 3), {}});
        QCOMPARE(
            result,
            (QStringList{QStringLiteral("first"), umlauts, QString(QLatin1String("a\0b", 3)), QString()}));
    }
};

KDQ_TEST_MAIN(TestContainerConverter)
#include "tst_containerconverter.moc"
