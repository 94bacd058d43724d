#include "kdqtest.h"

#include <kdQCore/kdProtocol>

#include <QTemporaryDir>

class TestKdProtocol : public QObject {
    Q_OBJECT

private:
    QScopedPointer<QTemporaryDir> m_folder;

    QString subject() const { return m_folder->filePath(QString::fromUtf8("jöb.dat")); }
    QString expectedPath() const
    {
        return QDir::toNativeSeparators(m_folder->path()) + QDir::separator() + S("_log") + QDir::separator()
            + QString::fromUtf8("jöb.dat.log");
    }

    /// The protocol with its dates replaced by "<date>".
    QString content() const
    {
        const QStringList dates{QLocale().toString(m_before, QLocale::ShortFormat),
                                QLocale().toString(QDateTime::currentDateTime(), QLocale::ShortFormat)};
        QString text = QString::fromLocal8Bit(kdqContentOf(expectedPath()));
        for (const QString& date : dates)
            text.replace(date, S("<date>"));
        return text;
    }

    const QString m_rule = QLatin1Char('$') + QString(80, QLatin1Char('-')) + QLatin1Char('\n');
    const QString m_nameLine = QString::fromUtf8("$Command log file for process: jöb.dat\n");
    const QString m_end = S("$<date>\n") + m_rule + QLatin1Char('\n');
    QDateTime m_before;

private Q_SLOTS:
    void init()
    {
        m_before = QDateTime::currentDateTime();
        m_folder.reset(new QTemporaryDir);
        QVERIFY(kdqWrite(subject()));
    }

    void everyObjectWritesOneHeader()
    {
        kdProtocol first(subject());
        QCOMPARE(first.absoluteFilePath(), expectedPath());
        QVERIFY(first.addMessage({S("a"), QString(), QString::fromUtf8("ß 100 %1")}));
        QVERIFY(first.addMessage(S("b")));
        const QString expected = m_rule + m_nameLine + m_end + QString::fromUtf8("a\nß 100 %1\nb\n");
        QCOMPARE(content(), expected);

        kdProtocol second(subject());
        QVERIFY(second.addMessage(S("c")));
        QVERIFY(first.addMessage(S("g")));
        QCOMPARE(content(), expected + m_rule + m_end + S("c\ng\n"));

        QVERIFY(QFile::remove(expectedPath())); // a lost file is made anew
        QVERIFY(first.addMessage(S("h")));
        QCOMPARE(content(), m_rule + m_nameLine + m_end + S("h\n"));
    }

    void nothingToSayMakesNoFile()
    {
        kdProtocol protocol(subject());
        QVERIFY(protocol.addMessage(QString()));
        QVERIFY(protocol.addMessage(QStringList{QString(), QLatin1String("")}));
        QVERIFY(!QFileInfo::exists(m_folder->filePath(S("_log"))));
        QVERIFY(kdProtocol(QString()).addMessage(QStringList()));
    }

    void aMissingSubjectIsRefused()
    {
        QVERIFY(QFile::remove(subject()));
        kdProtocol protocol(subject());
        QCOMPARE(protocol.absoluteFilePath() + kdProtocol(QString()).absoluteFilePath(), QString());
        QVERIFY(!protocol.addMessage(S("a")) && !kdProtocol(QString()).addMessage(S("a")));
        QVERIFY(!QFileInfo::exists(m_folder->filePath(S("_log"))));
        QVERIFY(kdqWrite(subject()) && protocol.addMessage(S("b")));
    }

    void blockedPlacesAreNoticed()
    {
        const QString blocker = m_folder->filePath(S("_log"));
        QVERIFY(kdqWrite(blocker) && !kdProtocol(subject()).addMessage(S("a")));
        QVERIFY(QFile::remove(blocker) && QDir().mkpath(expectedPath()));
        QVERIFY(!kdProtocol(subject()).addMessage(S("a")));
    }

    void aFullDiskIsNoticed()
    {
        if (!QFileInfo::exists(S("/dev/full")))
            QSKIP("This system has no device that is always full.");
        kdProtocol protocol(subject());
        QVERIFY(protocol.addMessage(S("a")));
        QVERIFY(QFile::remove(expectedPath()));
        QVERIFY(QFile::link(S("/dev/full"), expectedPath()));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(S("sequential device")));
        QVERIFY(!protocol.addMessage(S("b")));
    }
};

KDQ_TEST_MAIN(TestKdProtocol)
#include "tst_kdprotocol.moc"
