#include "crestartcard.h"

#include <kdQCore/coDeckReader>

#include <QBuffer>
#include <QTest>
#include <QTextStream>

class tst_RestartCard : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void roundTrip_data();
    void roundTrip();
    void refusesOtherLines();
    void tellsOfValuesThatMakeNoSense();
};

static QByteArray linesOf(const cFeAbstractDatCard& card, int widths, int format, bool* ok)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QTextStream stream(&buffer);
    CFEDatLineWriter writer(static_cast<CFEDatLineWriter::datExtensionMode>(widths),
                            static_cast<CFEDatLineWriter::datFormat>(format));
    writer.setFileHandler(&stream);
    *ok = writer.writeCard(card);
    *ok = writer.flush() && *ok;
    return buffer.data();
}

void tst_RestartCard::roundTrip_data()
{
    QTest::addColumn<int>("widths");
    QTest::addColumn<int>("format");
    QTest::newRow("standard fixed") << int(CFEDatLineWriter::standard) << int(CFEDatLineWriter::fixed);
    QTest::newRow("standard free") << int(CFEDatLineWriter::standard) << int(CFEDatLineWriter::free);
    QTest::newRow("extended fixed") << int(CFEDatLineWriter::extended) << int(CFEDatLineWriter::fixed);
    QTest::newRow("extended free") << int(CFEDatLineWriter::extended) << int(CFEDatLineWriter::free);
}

void tst_RestartCard::roundTrip()
{
    QFETCH(int, widths);
    QFETCH(int, format);
    cRestartCard card;
    card.setIncrements(25);
    card.setStartTime(1536.0); // has an exact print in 10 columns
    bool ok = false;
    QByteArray deck = "$ before\n" + linesOf(card, widths, format, &ok) + "continue\n";
    QVERIFY(ok);

    QBuffer buffer(&deck);
    buffer.open(QIODevice::ReadOnly);
    const coDeckLayout layout(static_cast<CFEDatLineWriter::datExtensionMode>(widths));
    coDeckReader reader(buffer, layout);
    coDeckOption option;
    while (reader.next(option) && option.keyword != "restart") { }
    cRestartCard again;
    QVERIFY(again.read(deck.mid(int(option.offset), int(option.size)), layout.mode()));
    QCOMPARE(again.increments(), 25);
    QCOMPARE(again.startTime(), 1536.0);
}

void tst_RestartCard::refusesOtherLines()
{
    cRestartCard card;
    QVERIFY(!card.read("restart\n1,two,\n", CFEDatLineWriter::extended));
    QVERIFY(!card.read("restart\n", CFEDatLineWriter::extended));
    QVERIFY(!card.read("solver\n1,2.0,\n", CFEDatLineWriter::extended));
    QCOMPARE(card.increments(), 1);
}

void tst_RestartCard::tellsOfValuesThatMakeNoSense()
{
    cRestartCard card;
    card.setIncrements(0);
    bool ok = true;
    QVERIFY(linesOf(card, CFEDatLineWriter::extended, CFEDatLineWriter::free, &ok).startsWith("restart\n0,"));
    QVERIFY(!ok);
}

QTEST_GUILESS_MAIN(tst_RestartCard)
#include "tst_restartcard.moc"
