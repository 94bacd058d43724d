#include "kdqtest.h"

#include <kdQCore/kdContainerConverter>

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

    void foreignElements()
    {
        const QList<QVariant> source{QStringLiteral("12"), QStringLiteral("2.5"), QStringLiteral("x"),
                                     QStringLiteral("false"), QVariant()};
        QList<int> ints;
        QList<double> doubles;
        QList<bool> bools;
        kdContainerConverter::fromQVariant(source, ints);
        kdContainerConverter::fromQVariant(source, doubles);
        kdContainerConverter::fromQVariant(source, bools);
        QCOMPARE(ints, (QList<int>{12, 0, 0, 0, 0}));
        QCOMPARE(doubles, (QList<double>{12.0, 2.5, 0.0, 0.0, 0.0}));
        QCOMPARE(bools, (QList<bool>{true, true, true, false, false}));
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
