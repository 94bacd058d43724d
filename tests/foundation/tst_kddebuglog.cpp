#include "kdqtest.h"

#include <kdQCore/kdDebugLog>

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <sstream>

namespace {

struct Line {
    int severity;
    QString time;
    QString source;
    QString text; ///< with the tag
};

} // namespace

class TestKdDebugLog : public QObject {
    Q_OBJECT

private:
    static constexpr int deadline = 60000;

    QScopedPointer<QTemporaryDir> m_folder;
    QByteArray m_output;
    QByteArray m_errors;

    QString logFolder() const { return m_folder->filePath(QStringLiteral("kaldoran/log")); }

    /// An empty value removes the variable from the child's environment.
    void start(QProcess& process, const QStringList& arguments, const QMap<QString, QString>& variables = {})
    {
        QMap<QString, QString> all{{QStringLiteral("LOCALAPPDATA"), m_folder->path()},
                                   {QStringLiteral("USERNAME"), QString::fromUtf8("Jörg")},
                                   {QStringLiteral("TZ"), QString()}};
        for (auto it = variables.cbegin(); it != variables.cend(); ++it)
            all.insert(it.key(), it.value());
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (auto it = all.cbegin(); it != all.cend(); ++it) {
            environment.remove(it.key());
            if (!it.value().isEmpty())
                environment.insert(it.key(), it.value());
        }
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(m_folder->path());
        process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/loghelper"), arguments);
    }

    bool run(const QStringList& arguments)
    {
        QProcess process;
        start(process, arguments);
        const bool finished = process.waitForFinished(deadline);
        m_output = kdqWithPlainLineEnds(process.readAllStandardOutput());
        m_errors = kdqWithPlainLineEnds(process.readAllStandardError());
        return finished && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    }

    QStringList files(const QString& folder) const
    {
        QStringList result;
        const QFileInfoList entries =
            QDir(folder).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System);
        for (const QFileInfo& entry : entries)
            if (!entry.isDir())
                result.append(entry.absoluteFilePath());
        return result;
    }

    static QByteArray content(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? kdqWithPlainLineEnds(file.readAll()) : QByteArray();
    }

    /// The lines that begin with a severity; the heading that the back end writes has none.
    static QVector<Line> lines(const QByteArray& bytes)
    {
        static const QRegularExpression form(
            QStringLiteral("^([0-6]) (\\d{8} \\d\\d:\\d\\d:\\d\\d\\.\\d{6}) \\d+ ([^ :]+):\\d+\\] (.*)$"));
        QVector<Line> result;
        const QStringList all = QString::fromLocal8Bit(bytes).split(QLatin1Char('\n'));
        for (const QString& line : all) {
            const QRegularExpressionMatch match = form.match(line);
            if (match.hasMatch())
                result.append(
                    {match.captured(1).toInt(), match.captured(2), match.captured(3), match.captured(4)});
        }
        return result;
    }

    QVector<Line> linesOfTheOnlyFile() const
    {
        const QStringList all = files(logFolder());
        return all.size() == 1 ? lines(content(all.constFirst())) : QVector<Line>();
    }

    /// The lines after the block of system information, without their tag.
    QStringList ownTexts() const
    {
        QStringList result;
        const QVector<Line> all = linesOfTheOnlyFile();
        for (const Line& line : all)
            if (line.source == QStringLiteral("loghelper.cpp"))
                result.append(line.text.mid(17));
        return result;
    }

private Q_SLOTS:
    void init()
    {
        m_folder.reset(new QTemporaryDir);
        m_folder->setAutoRemove(false);
    }

    void cleanup() { kdqRemoveFolder(m_folder->path()); }

    void oneFileTakesAllSeverities()
    {
        QVERIFY(run({QStringLiteral("severities")}));
        QCOMPARE(files(logFolder()).size(), 1);
        const QString file = QFileInfo(files(logFolder()).constFirst()).fileName();
        const QRegularExpression name(QStringLiteral("^loghelper(\\.exe)?-\\d{8}-\\d{6}\\.\\d+\\.log$"));
        QVERIFY2(name.match(file).hasMatch(), qPrintable(file));
        QVector<Line> all = linesOfTheOnlyFile();
        all = all.mid(all.size() - 7);
        for (int severity = 0; severity < 7; ++severity) {
            QCOMPARE(all.at(severity).severity, severity);
            QCOMPARE(all.at(severity).source, QStringLiteral("loghelper.cpp"));
            QCOMPARE(all.at(severity).text, QStringLiteral("Socket           severity %1").arg(severity));
        }
        QCOMPARE(m_errors, QByteArray());
    }

    void timesAreLocal()
    {
        // The C library of Windows takes no names of zones; without the variable it uses the system's own.
        const QString zone = kdqOnWindows ? QString() : qEnvironmentVariable("TZ");
        QProcess process;
        start(process, {QStringLiteral("severities")}, {{QStringLiteral("TZ"), zone}});
        QVERIFY(process.waitForFinished(deadline));
        const QString text = linesOfTheOnlyFile().constLast().time;
        const QDateTime time = QDateTime::fromString(text.left(17), QStringLiteral("yyyyMMdd HH:mm:ss"));
        QVERIFY2(qAbs(time.secsTo(QDateTime::currentDateTime())) < 600, qPrintable(text));
    }

    void systemInformation_data()
    {
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QString>("program");
        const QString path = QCoreApplication::applicationDirPath() + QStringLiteral("/loghelper");
        QTest::newRow("application object")
            << "withApplication" << QStringLiteral("       Executable: ") + path;
        QTest::newRow("arguments of main")
            << "severities" << QStringLiteral("          argv[0]: ") + QDir::toNativeSeparators(path);
    }

    void systemInformation()
    {
        QFETCH(QString, mode);
        QFETCH(QString, program);
        QVERIFY(run({mode, QStringLiteral("second"), QStringLiteral("third")}));
        const QString rule(79, QLatin1Char('-'));
        const QStringList expected{
            rule,
            QStringLiteral("               OS: "),
            QStringLiteral("              CPU: "),
            QStringLiteral("     Architecture: "),
            QStringLiteral("            Cores: "),
            QStringLiteral("  Physical memory: "),
            rule,
            QString::fromUtf8("         Username: Jörg"),
            QStringLiteral("         Hostname: "),
            QStringLiteral("           HostID: "),
            rule,
            program,
            QStringLiteral("        Arguments: %1 second third").arg(mode),
            QStringLiteral("Working directory: %1").arg(QFileInfo(m_folder->path()).canonicalFilePath()),
            QStringLiteral("         Revision: "),
            QStringLiteral("       Build date: "),
            QStringLiteral("       Qt version: " QT_VERSION_STR),
            QStringLiteral("    Configuration: "),
            rule};
        const QVector<Line> all = linesOfTheOnlyFile();
        QVERIFY(all.size() >= expected.size());
        for (int i = 0; i < expected.size(); ++i) {
            QCOMPARE(all.at(i).severity, 3);
            QCOMPARE(all.at(i).source, QStringLiteral("kddebuglog.cpp"));
            const QString start = QStringLiteral("General          ") + expected.at(i);
            QVERIFY2(all.at(i).text.startsWith(start), qPrintable(all.at(i).text));
        }
        QVERIFY(all.at(5).text.endsWith(QStringLiteral(" kB")));
        const QRegularExpression revision(QStringLiteral("Revision: \\d+ (\\d{4}-\\d\\d-\\d\\d|unknown)$"));
        QVERIFY2(revision.match(all.at(14).text).hasMatch(), qPrintable(all.at(14).text));
        if (mode == QStringLiteral("withApplication"))
            QCOMPARE(QString::fromLocal8Bit(m_output.trimmed()), files(logFolder()).constFirst());
    }

    void nameAndPlaceOfTheFile_data()
    {
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("nameStart");
        QTest::newRow("no argv") << "withoutArguments"
                                 << "kaldoran/log"
                                 << "kaldoran-2";
        QTest::newRow("current directory") << "currentDirectory"
                                           << "."
                                           << "loghelper2";
    }

    void nameAndPlaceOfTheFile()
    {
        QFETCH(QString, mode);
        QFETCH(QString, folder);
        QFETCH(QString, nameStart);
        QVERIFY(run({mode}));
        const QStringList found = files(m_folder->filePath(folder));
        QCOMPARE(found.size(), 1);
        QVERIFY2(QFileInfo(found.constFirst()).fileName().startsWith(nameStart),
                 qPrintable(found.constFirst()));
        QVERIFY(content(found.constFirst()).contains("Socket           "));
    }

    void echoRepeatsTheFile()
    {
        QVERIFY(run({QStringLiteral("echo")}));
        const QVector<Line> echoed = lines(m_errors);
        const QVector<Line> filed = linesOfTheOnlyFile();
        QVERIFY(filed.size() >= 7);
        QCOMPARE(echoed.size(), filed.size());
        for (int i = 0; i < filed.size(); ++i)
            QCOMPARE(echoed.at(i).time + echoed.at(i).text, filed.at(i).time + filed.at(i).text);
    }

    void linesBeforeAndAfterTheLifeOfTheLog()
    {
        QVERIFY(run({QStringLiteral("aroundLife")}));
        QCOMPARE(ownTexts().size(), 7);
        QVERIFY(m_errors.contains("Socket           before\n"));
        QVERIFY(m_errors.contains("Socket           after\n"));
        QVERIFY(!m_errors.contains("severity 5"));
    }

    void createAndRemoveTwice()
    {
        QVERIFY(run({QStringLiteral("createAndRemoveTwice")}));
        const QStringList all = files(logFolder());
        QCOMPARE(all.size(), 2);
        const QByteArray first = content(all.at(0));
        QVERIFY(first.contains("General          kdDebugLog creation failed!\n"));
        QVERIFY(first.contains("first life"));
        QVERIFY(!first.contains("second life"));
        QVERIFY(content(all.at(1)).contains("second life"));
        QCOMPARE(m_errors.count("General          kdDebugLog remove failed!\n"), 2);
    }

    void textsFromOutsideForgeNoLine()
    {
        QVERIFY(run({QStringLiteral("textsFromOutside")}));
        const QStringList texts = ownTexts();
        QCOMPARE(texts.size(), 6);
        QCOMPARE(texts.at(0), QStringLiteral("two"));
        QCOMPARE(texts.at(1), QStringLiteral("bell   escape  [2J end"));
        QCOMPARE(texts.at(2), QString::fromUtf8("Größe "));
        QCOMPARE(texts.at(3),
                 QString(29000 / QString(QChar(0xE4)).toLocal8Bit().size(), QChar(0xE4))
                     + QStringLiteral(" [...]"));
        QCOMPARE(texts.at(5), QString());
        const QByteArray bytes = content(files(logFolder()).constFirst());
        QVERIFY(bytes.contains("\n    6 20260101"));
        QVERIFY(bytes.contains("lines\n    and three\n"));
    }

    void lastWordsSurviveAKill_data()
    {
        QTest::addColumn<QString>("severity");
        QTest::addColumn<QString>("flush");
        QTest::newRow("severity 4") << "4"
                                    << "no";
        QTest::newRow("severity 6") << "6"
                                    << "no";
        QTest::newRow("flushed by hand") << "0"
                                         << "flush";
    }

    void lastWordsSurviveAKill()
    {
        QFETCH(QString, severity);
        QFETCH(QString, flush);
        QProcess process;
        start(process, {QStringLiteral("untilKilled"), severity, flush});
        while (!process.canReadLine())
            QVERIFY2(process.waitForReadyRead(deadline), qPrintable(process.errorString()));
        process.kill();
        QVERIFY(process.waitForFinished(deadline));
        QCOMPARE(ownTexts(), QStringList{QStringLiteral("last words")});
    }

    void manyThreadsLoseNoLine()
    {
        QVERIFY2(run({QStringLiteral("manyThreads")}), m_errors.constData());
        const QStringList texts = ownTexts();
        QCOMPARE(texts.size(), 1000);
        for (int thread = 0; thread < 4; ++thread) {
            const QString start = QStringLiteral("thread %1 ").arg(thread);
            const QStringList ofThread = texts.filter(start);
            for (int i = 0; i < 250; ++i)
                QCOMPARE(ofThread.at(i), start + QStringLiteral("line %1").arg(i));
        }
    }

    void missingVariableMeansTheRootFolder()
    {
        QProcess process;
        start(process, {QStringLiteral("severities")}, {{QStringLiteral("LOCALAPPDATA"), QString()}});
        const QString ending = QStringLiteral(".%1.log").arg(process.processId());
        QVERIFY(process.waitForFinished(deadline));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 0);

        // Only a privileged user gets a file there.
        const QString path = m_folder->path();
        const QDir root(path.left(path.indexOf(QLatin1Char('/')) + 1));
        const QStringList found = files(root.filePath(QStringLiteral("kaldoran/log"))).filter(ending);
        for (const QString& file : found)
            QVERIFY(QFile::remove(file));
        root.rmdir(QStringLiteral("kaldoran/log"));
        root.rmdir(QStringLiteral("kaldoran"));
        QCOMPARE(found.size(), QFileInfo(root.path()).isWritable() ? 1 : 0);
    }

    void unusableFolderCostsLinesOnly()
    {
        QFile blocker(m_folder->filePath(QStringLiteral("kaldoran")));
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        QVERIFY(run({QStringLiteral("severities")}));
        QCOMPARE(blocker.size(), 0);
    }

    void oldFilesGoAndTheNineNewestStay()
    {
        const QDir folder(m_folder->path());
        const QDateTime now = QDateTime::currentDateTime();
        const auto make = [&](const QString& name, int age) {
            QFile file(folder.filePath(name));
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write("x") == 1 && file.flush());
            QVERIFY(file.setFileTime(now.addSecs(-age), QFileDevice::FileModificationTime));
        };
        for (int age = 0; age < 12; ++age)
            make(QStringLiteral("app[1]-%1.log").arg(11 - age, 2, 10, QLatin1Char('0')), age * 60);
        const QStringList others{QStringLiteral("app[1]-old.txt"), QStringLiteral("app1-x.log"),
                                 QStringLiteral("other.log")};
        for (const QString& other : others)
            make(other, 100000);
        QVERIFY(folder.mkdir(QStringLiteral("app[1]-folder.log")));

        kdDebugLog::removeOldLogFiles(folder, QStringLiteral("app[1]"));

        QStringList expected = others;
        for (int number = 3; number < 12; ++number)
            expected.append(QStringLiteral("app[1]-%1.log").arg(number, 2, 10, QLatin1Char('0')));
        expected.sort();
        QStringList left = folder.entryList(QDir::Files);
        left.sort();
        QCOMPARE(left, expected);
        QVERIFY(folder.exists(QStringLiteral("app[1]-folder.log")));
    }

    void textsEnterAStreamInLocalEncoding()
    {
        std::ostringstream stream;
        stream << QString::fromUtf8("Größe") << ' ' << QString();
        QCOMPARE(QByteArray::fromStdString(stream.str()), QString::fromUtf8("Größe ").toLocal8Bit());
    }
};

KDQ_TEST_MAIN(TestKdDebugLog)
#include "tst_kddebuglog.moc"
