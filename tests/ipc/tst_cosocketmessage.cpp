#include "kdqtest.h"
#include "signedpart.h"
#include "speck_p.h"

class tst_cosocketmessage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theCipherIsThePublishedOne()
    {
        constexpr auto keys = nSpeck::roundKeys(0x1b1a1918U, 0x13121110U, 0x0b0a0908U, 0x03020100U);
        QCOMPARE(nSpeck::encrypted(0x3b7265747475432dULL, keys), quint64(0x8c6fa548454e028bULL));
        QCOMPARE(nSpeck::decrypted(0x8c6fa548454e028bULL, keys), quint64(0x3b7265747475432dULL));
    }

    void aLineComesBack_data()
    {
        QTest::addColumn<QByteArray>("payload");
        QTest::addColumn<int>("sessionId");
        QTest::addColumn<QByteArray>("signedPart");
        QTest::addColumn<QByteArray>("decoded");
        using Bytes = QByteArray;
        const auto row = [](const char* name, const Bytes& payload, int sessionId, const Bytes& part,
                            const Bytes& decoded) { kdqRow(name, payload, sessionId, part, decoded); };
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

    void aLineComesBack()
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

    void theLongestPayload()
    {
        coSocketMessage message;
        QVERIFY(message.decode(signedLine(QByteArray(2041, 'x'), 0x1A2B)));
        QCOMPARE(message.sessionId(), 0x1A2B);

        QVERIFY(message.encode(QByteArray(2048, 'x') + '\n'));
        QCOMPARE(message.signedMessage().indexOf('#'), 2048);
        QVERIFY(!message.encode(QByteArray(2049, 'x')));
        QCOMPARE(message.errorString(), S("The message is too long!"));
        QVERIFY(message.signedMessage().isNull() && message.message().isNull());
        QVERIFY(message.decode(signedLine(QByteArray(2042, 'x'), 0x1A2B))); // the id's last digit is cut off
        QCOMPARE(message.sessionId(), 0x1A2);
    }

    void faults_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<QString>("error");
        const QString noTag = S("No tag separator found!");
        const QString noId = S("No message ID found!");
        const QString badSignature = S("Invalid message signature!");
        const QByteArray good = signedLine("status?", 0x1A2B);
        kdqRow("null", QByteArray(), "Empty message!");
        kdqRow("empty", QByteArray(""), noTag);
        kdqRow("no tag", signedPart("status?"), noTag);
        kdqRow("cut behind the tag", signedLine(QByteArray(2047, 'x'), 1), noId);
        kdqRow("no id", signedPart("status?:"), noId);
        kdqRow("an id of blanks", signedPart("status?:   "), noId);
        kdqRow("an id of 33 bits", signedPart("status?:1FFFFFFFF"), noId);
        kdqRow("no signature", QByteArray("status?:  1A2B\n"), badSignature);
        kdqRow("short signature", good.left(good.size() - 2), badSignature);
        kdqRow("a digit too far", QByteArray(good).replace(good.size() - 2, 1, "W"), badSignature);
        const QByteArray other = signedPart("a:1"); // the same number, were it not for the bit above
        kdqRow("a 65th bit",
               QByteArray(other).replace(4, 1, QByteArray(1, char('G' + other.mid(4, 1).toInt(nullptr, 16)))),
               badSignature);
        kdqRow("another tag behind the signature", good + "x:1", badSignature);
    }

    void faults()
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

    void anyChangeOfALineIsSeen()
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
};

KDQ_TEST_MAIN(tst_cosocketmessage)
#include "tst_cosocketmessage.moc"
