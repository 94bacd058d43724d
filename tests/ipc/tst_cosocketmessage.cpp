#include "kdqtest.h"
#include "signedpart.h"
#include "speck_p.h"

class tst_cosocketmessage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theCipherIsThePublishedOne();
    void aLineComesBack_data();
    void aLineComesBack();
    void theLongestPayload();
    void faults_data();
    void faults();
    void anyChangeOfALineIsSeen();
};

void tst_cosocketmessage::theCipherIsThePublishedOne()
{
    constexpr auto keys = nSpeck::roundKeys(0x1b1a1918U, 0x13121110U, 0x0b0a0908U, 0x03020100U);
    QCOMPARE(nSpeck::encrypted(0x3b7265747475432dULL, keys), quint64(0x8c6fa548454e028bULL));
    QCOMPARE(nSpeck::decrypted(0x8c6fa548454e028bULL, keys), quint64(0x3b7265747475432dULL));
}

void tst_cosocketmessage::aLineComesBack_data()
{
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<int>("sessionId");
    QTest::addColumn<QByteArray>("signedPart");
    QTest::addColumn<QByteArray>("decoded");
    const auto row = [](const char* name, const QByteArray& payload, int sessionId, const QByteArray& part,
                        const QByteArray& decoded) {
        QTest::newRow(name) << payload << sessionId << part << decoded;
    };
    row("plain", "status?", 0x1A2B, "status?:  1A2B", "status?");
    row("empty", "", 0, ":     0", "");
    row("null", QByteArray(), 7, ":     7", "");
    row("one line feed goes", "a\n", 1, "a:     1", "a");
    row("separators inside", "a:12#b:", 0xFFFFFF, "a:12#b::FFFFFF", "a:12#b:");
    row("eight digits", "a", 0x7FFFFFFF, "a:7FFFFFFF", "a");
    row("unset id", "a", -1, "a:FFFFFFFF", "a");
    row("a zero ends it", QByteArray("a\0b", 3), 1, "a:     1", "a");
    row("bytes above ASCII", "\xE4\xFF", 1, "\xE4\xFF:     1", "\xE4\xFF");
}

void tst_cosocketmessage::aLineComesBack()
{
    QFETCH(QByteArray, payload);
    QFETCH(int, sessionId);
    QFETCH(QByteArray, signedPart);
    QFETCH(QByteArray, decoded);
    const QByteArray sent = signedLine(payload, sessionId);
    QCOMPARE(sent.left(signedPart.size() + 1), signedPart + '#');
    QCOMPARE(sent.size(), signedPart.size() + 15);
    QVERIFY(sent.endsWith('\n'));

    coSocketMessage message;
    for (const QByteArray& form : {sent, sent.left(sent.size() - 1), sent + "anything"}) {
        QVERIFY2(message.decode(form), qPrintable(message.errorString()));
        QCOMPARE(message.message(), decoded);
        QCOMPARE(message.sessionId(), sessionId);
        QCOMPARE(message.signedMessage(), form);
    }
    QByteArray lower = sent;
    lower.replace(signedPart.size(), 14, sent.mid(signedPart.size(), 14).toLower());
    QVERIFY(message.decode(lower));
}

void tst_cosocketmessage::theLongestPayload()
{
    coSocketMessage message;
    QVERIFY(message.decode(signedLine(QByteArray(2041, 'x'), 0x1A2B)));
    QCOMPARE(message.sessionId(), 0x1A2B);

    QVERIFY(message.encode(QByteArray(2048, 'x') + '\n'));
    QCOMPARE(message.signedMessage().indexOf('#'), 2048);
    QVERIFY(!message.encode(QByteArray(2049, 'x')));
    QCOMPARE(message.errorString(), QStringLiteral("The message is too long!"));
    QVERIFY(message.signedMessage().isNull() && message.message().isNull());
    QVERIFY(message.decode(signedLine(QByteArray(2042, 'x'), 0x1A2B))); // the id's last digit is cut off
    QCOMPARE(message.sessionId(), 0x1A2);
}

void tst_cosocketmessage::faults_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("error");
    const QString noTag = QStringLiteral("No tag separator found!");
    const QString noId = QStringLiteral("No message ID found!");
    const QString badSignature = QStringLiteral("Invalid message signature!");
    const QByteArray good = signedLine("status?", 0x1A2B);
    QTest::newRow("null") << QByteArray() << QStringLiteral("Empty message!");
    QTest::newRow("empty") << QByteArray("") << noTag;
    QTest::newRow("no tag") << signedPart("status?") << noTag;
    QTest::newRow("cut behind the tag") << signedLine(QByteArray(2047, 'x'), 1) << noId;
    QTest::newRow("no id") << signedPart("status?:") << noId;
    QTest::newRow("an id of blanks") << signedPart("status?:   ") << noId;
    QTest::newRow("an id of 33 bits") << signedPart("status?:1FFFFFFFF") << noId;
    QTest::newRow("no signature") << QByteArray("status?:  1A2B\n") << badSignature;
    QTest::newRow("short signature") << good.left(good.size() - 2) << badSignature;
    QTest::newRow("a digit too far") << QByteArray(good).replace(good.size() - 2, 1, "W") << badSignature;
    QTest::newRow("a 65th bit") << signedPart("a:1").replace(4, 1, "V") << badSignature;
    QTest::newRow("another tag behind the signature") << good + "x:1" << badSignature;
}

void tst_cosocketmessage::faults()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, error);
    coSocketMessage message;
    message.setSessionId(5);
    QVERIFY(message.encode("before"));
    QVERIFY(!message.decode(line));
    QCOMPARE(message.errorString(), error);
    QVERIFY(message.message().isNull() && message.signedMessage().isNull());
    QCOMPARE(message.sessionId(), 5);
    QVERIFY(message.encode("after") && message.errorString().isEmpty());
}

void tst_cosocketmessage::anyChangeOfALineIsSeen()
{
    const QByteArray good = signedLine("status?", 0x1A2B);
    coSocketMessage message;
    for (int i = 0; i < good.size() - 1; ++i)
        for (int bit = 0; bit < 8; ++bit) {
            QByteArray changed = good;
            changed[i] = char(changed.at(i) ^ (1 << bit));
            if (changed.toLower() != good.toLower() || i < good.indexOf('#'))
                QVERIFY2(!message.decode(changed), changed.constData());
        }
}

KDQ_TEST_MAIN(tst_cosocketmessage)
#include "tst_cosocketmessage.moc"
