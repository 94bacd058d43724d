#include "kdqtest.h"
#include "shelldeck.h"

#include <QTemporaryDir>

/// What a user stops on its way into the deck.
class TestShellDeck : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void stoppedWritingIsTakenBack();
};

void TestShellDeck::stoppedWritingIsTakenBack()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("d.dat"));
    ShellLocks locks;
    ShellDeck deck;
    QVERIFY(deck.open(path, CFEDatLineWriter::free, CFEDatLineWriter::extended, locks));
    QVERIFY(deck.writer().writeKeywordLine("before") && deck.flush());
    const ShellDeck::Mark mark = deck.mark();
    QList<double> numbers;
    for (int i = 0; i < 100000; ++i)
        numbers.append(i);
    double written = 0.0;
    {
        const auto stopAtHalf = [&written](double done) { return (written = done) < 0.5; };
        const ShellDeck::Watch watch(deck, stopAtHalf, qint64(numbers.size()) * 20);
        QVERIFY(!deck.writer().writeDoubleValues(numbers, 8));
    }
    QVERIFY(written >= 0.5 && written < 0.6);
    QVERIFY(deck.goBackTo(mark));
    QVERIFY(deck.writer().writeKeywordLine("after") && deck.close());
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("before\nafter\n"));
}

KDQ_TEST_MAIN(TestShellDeck)
#include "tst_shelldeck.moc"
