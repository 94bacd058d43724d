#include "kdqtest.h"

#include <kdQCore/coScriptMode>
#include <kdQCore/kdTypedException>

using ScriptException = kdTypedException<QString>;

class TestCoScriptMode : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    QString write(const char* name, const QByteArray& content)
    {
        const QString path = m_folder->filePath(QString::fromUtf8(name));
        return kdqWrite(path, content) ? path : QString();
    }

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void content_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<QString>("content");
        const auto row = [](const char* name, const QByteArray& script, const char* content) {
            QTest::newRow(name) << script << QString::fromUtf8(content);
        };
        row("no line break at the end", "a\nb", "a\nb\n");
        row("carriage returns", "a\r\n\r\nb\r\n", "a\n\nb\n");
        row("byte order mark", "\xef\xbb\xbftitle", "title\n");
        row("UTF-16",
            QByteArray("\xff\xfe"
                       "a\0\xe4\0\n\0",
                       8),
            "aä\n");
        row("quotes, blanks, semicolon", "  include  \"one.txt\" ; \ninclude 'one.txt'", "1\n1\n");
        row("relative to the including script", "include sub/two.txt\ninclude one.txt", "2\n3\n1\n");
        row("words that only begin so", "included one.txt\ninclude_all one.txt\nx include one.txt",
            "included one.txt\ninclude_all one.txt\nx include one.txt\n");
    }

    void content()
    {
        QFETCH(QByteArray, script);
        QFETCH(QString, content);
        write("one.txt", "1");
        write("sub/two.txt", "2\ninclude three.txt");
        write("sub/three.txt", "3\n");
        QCOMPARE(coScriptMode::readScriptContentToExecute(write("main.txt", script)), content);
    }

    void failures_data()
    {
        QTest::addColumn<QByteArray>("script"); // null: there is none
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("payload"); // begins so
        const QString notFound = QStringLiteral("Included script expected but not found");
        QTest::newRow("missing") << QByteArray("include no%1.txt") << notFound
                                 << QStringLiteral("include script 'no%1.txt' could not be found");
        QTest::newRow("not named") << QByteArray("include") << notFound
                                   << QStringLiteral("include script '' could not be found");
        QTest::newRow("itself through another")
            << QByteArray("include back.txt") << QStringLiteral("Included script includes itself")
            << QStringLiteral("include script 'main.txt' is included by '");
        QTest::newRow("exponential") << QByteArray("include e1.txt\ninclude e1.txt")
                                     << QStringLiteral("Too many included scripts")
                                     << QStringLiteral("include script 'e");
        QTest::newRow("cannot be opened") << QByteArray() << QStringLiteral("Failed to open script file.")
                                          << QStringLiteral("Path: #/main.txt, Error: ");
    }

    void failures()
    {
        QFETCH(QByteArray, script);
        QFETCH(QString, message);
        QFETCH(QString, payload);
        write("back.txt", "include main.txt");
        for (int i = 1; i < 40; ++i) {
            const QByteArray next = "include e" + QByteArray::number(i + 1) + ".txt\n";
            write(qPrintable(QStringLiteral("e%1.txt").arg(i)), next + next);
        }
        write("e40.txt", "end");
        if (!script.isNull())
            write("main.txt", script);
        payload.replace(QLatin1Char('#'), m_folder->path());
        try {
            coScriptMode::readScriptContentToExecute(m_folder->filePath(QStringLiteral("main.txt")));
            QFAIL("nothing thrown");
        } catch (const ScriptException& failure) {
            QCOMPARE(failure.getErrorMessage(), message);
            QCOMPARE(failure.payload().left(payload.size()), payload);
        }
    }
};

KDQ_TEST_MAIN(TestCoScriptMode)
#include "tst_coscriptmode.moc"
