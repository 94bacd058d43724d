#include "kdqtest.h"

#include <kdQCore/kdDebugLog>

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <sstream>

#define S(text) QStringLiteral(text)

namespace {

struct Line {
    int severity;
    QString time;
    QString source;
    QString text; ///< with the tag
};

QByteArray content(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? kdqWithPlainLineEnds(file.readAll()) : QByteArray();
}

QStringList filesIn(const QDir& folder)
{
    QStringList result;
    const QStringList names = folder.entryList(QDir::Files | QDir::System);
    for (const QString& name : names)
        result.append(folder.absoluteFilePath(name));
    return result;
}

/// The lines that begin with a severity; the heading that the back end writes has none.
QVector<Line> linesOf(const QByteArray& bytes)
{
    static const QRegularExpression form(
        S("^([0-6]) (\\d{8} \\d\\d:\\d\\d:\\d\\d\\.\\d{6}) \\d+ ([^ :]+):\\d+\\] (.*)$"));
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

} // namespace

class TestKdDebugLog : public QObject {
    Q_OBJECT

private:
    static constexpr int deadline = 60000;

    QScopedPointer<QTemporaryDir> m_folder;
    QByteArray m_output;
    QByteArray m_errors;

    QStringList files() const { return filesIn(m_folder->filePath(S("kaldoran/log"))); }

    void start(QProcess& process, const QString& steps) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(S("LOCALAPPDATA"), m_folder->path());
        environment.insert(S("USERNAME"), QString::fromUtf8("Jörg"));
        // The C library of Windows takes no names of zones; without the variable it uses the system's own.
        if (kdqOnWindows)
            environment.remove(S("TZ"));
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(m_folder->path());
        process.start(QCoreApplication::applicationDirPath() + S("/loghelper"),
                      steps.split(QLatin1Char(' ')));
    }

    bool run(const QString& steps)
    {
        QProcess process;
        start(process, steps);
        const bool finished = process.waitForFinished(deadline);
        m_output = kdqWithPlainLineEnds(process.readAllStandardOutput());
        m_errors = kdqWithPlainLineEnds(process.readAllStandardError());
        return finished && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    }

    QVector<Line> linesOfTheOnlyFile() const
    {
        return files().size() == 1 ? linesOf(content(files().constFirst())) : QVector<Line>();
    }

    /// The lines after the block of system information, without their tag.
    QStringList ownTexts() const
    {
        QStringList result;
        const QVector<Line> all = linesOfTheOnlyFile();
        for (const Line& line : all)
            if (line.source == S("loghelper.cpp"))
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

    /// What is logged before and after the life of the log goes to the standard error, nothing else does.
    void oneFileTakesAllSeverities()
    {
        QVERIFY(run(S("4 flush create 0 1 2 3 4 5 6 remove flush 5")));
        QCOMPARE(files().size(), 1);
        const QString file = QFileInfo(files().constFirst()).fileName();
        const QRegularExpression name(S("^loghelper(\\.exe)?-\\d{8}-\\d{6}\\.\\d+\\.log$"));
        QVERIFY2(name.match(file).hasMatch(), qPrintable(file));
        QCOMPARE(ownTexts().size(), 7);
        const QVector<Line> all = linesOfTheOnlyFile();
        for (int severity = 0; severity < 7; ++severity) {
            const Line& line = all.at(all.size() - 7 + severity);
            QCOMPARE(line.severity, severity);
            QCOMPARE(line.text, S("Socket           severity %1").arg(severity));
        }
        QCOMPARE(m_errors.count("severity"), 2);
        QVERIFY(m_errors.contains("Socket           severity 4\n"));
        QVERIFY(m_errors.contains("Socket           severity 5\n"));

        const QString text = all.constLast().time;
        const QDateTime time = QDateTime::fromString(text.left(17), S("yyyyMMdd HH:mm:ss"));
        QVERIFY2(qAbs(time.secsTo(QDateTime::currentDateTime())) < 600, qPrintable(text)); // local, that is
    }

    void systemInformation_data()
    {
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QString>("label");
        QTest::newRow("application object") << S("application create path remove") << S("Executable");
        QTest::newRow("arguments of main") << S("create path remove") << S("argv[0]");
    }

    void systemInformation()
    {
        QFETCH(QString, steps);
        QFETCH(QString, label);
        QVERIFY(run(steps));
        const QStringList labels =
            S("-,OS,CPU,Architecture,Cores,Physical memory,-,Username,Hostname,HostID,-,%1,Arguments,"
              "Working directory,Revision,Build date,Qt version,Configuration,-")
                .arg(label)
                .split(QLatin1Char(','));
        const QVector<Line> all = linesOfTheOnlyFile();
        QVERIFY(all.size() >= labels.size());
        QStringList values;
        for (int i = 0; i < labels.size(); ++i) {
            const bool isRule = labels.at(i) == S("-");
            const QString start = S("General          ")
                + (isRule ? QString(79, QLatin1Char('-')) : labels.at(i).rightJustified(17) + S(": "));
            QCOMPARE(all.at(i).severity, 3);
            QVERIFY2(all.at(i).text.startsWith(start), qPrintable(all.at(i).text));
            values.append(all.at(i).text.mid(start.size()));
        }
        QVERIFY(values.at(5).endsWith(S(" kB")));
        QCOMPARE(values.at(7), QString::fromUtf8("Jörg"));
        const QString program = QCoreApplication::applicationDirPath() + S("/loghelper");
        QVERIFY(QDir::fromNativeSeparators(values.at(11)).startsWith(program));
        QCOMPARE(values.at(12), steps);
        QCOMPARE(values.at(13), QFileInfo(m_folder->path()).canonicalFilePath());
        const QRegularExpression revision(S("^\\d+ (\\d{4}-\\d\\d-\\d\\d|unknown)$"));
        QVERIFY2(revision.match(values.at(14)).hasMatch(), qPrintable(values.at(14)));
        QCOMPARE(values.at(16), S(QT_VERSION_STR));
        QCOMPARE(QString::fromLocal8Bit(m_output.trimmed()), files().constFirst());
    }

    void nameAndPlaceOfTheFile()
    {
        QVERIFY(run(S("createNameless 2 remove")));
        QCOMPARE(ownTexts().size(), 1);
        QVERIFY(QFileInfo(files().constFirst()).fileName().startsWith(S("kaldoran-2")));
        QVERIFY(run(S("createHere 2 remove")));
        const QStringList here = filesIn(m_folder->path());
        QCOMPARE(here.size(), 1);
        QVERIFY(QFileInfo(here.constFirst()).fileName().startsWith(S("loghelper2")));
        QVERIFY(content(here.constFirst()).contains("Socket           "));
    }

    void echoRepeatsTheFile()
    {
        QVERIFY(run(S("echo create 0 6 remove")));
        const QVector<Line> echoed = linesOf(m_errors);
        const QVector<Line> filed = linesOfTheOnlyFile();
        QCOMPARE(ownTexts().size(), 2);
        QCOMPARE(echoed.size(), filed.size());
        for (int i = 0; i < filed.size(); ++i)
            QCOMPARE(echoed.at(i).time + echoed.at(i).text, filed.at(i).time + filed.at(i).text);
    }

    void createAndRemoveTwice()
    {
        QVERIFY(run(S("remove create create 1 remove remove create 2 remove")));
        QCOMPARE(files().size(), 2);
        const QByteArray first = content(files().at(0));
        QVERIFY(first.contains("General          kdDebugLog creation failed!\n"));
        QVERIFY(first.contains("severity 1") && !first.contains("severity 2"));
        QVERIFY(content(files().at(1)).contains("severity 2"));
        QCOMPARE(m_errors.count("General          kdDebugLog remove failed!\n"), 2);
    }

    void textsFromOutsideForgeNoLine()
    {
        QVERIFY(run(S("create texts remove")));
        const QStringList texts = ownTexts();
        QCOMPARE(texts.size(), 6);
        QCOMPARE(texts.at(0), S("two"));
        QCOMPARE(texts.at(1), S("bell   escape  [2J end"));
        QCOMPARE(texts.at(2), QString::fromUtf8("Größe "));
        const QChar umlaut(0xE4);
        QCOMPARE(texts.at(3), QString(29000 / QString(umlaut).toLocal8Bit().size(), umlaut) + S(" [...]"));
        QCOMPARE(texts.at(5), QString());
        const QByteArray bytes = content(files().constFirst());
        QVERIFY(bytes.contains("\n    6 20260101"));
        QVERIFY(bytes.contains("lines\n    and three\n"));
    }

    void lastWordsSurviveAKill_data()
    {
        QTest::addColumn<QString>("steps");
        for (const char* steps : {"create 4 wait", "create 6 wait", "create 0 flush wait"})
            QTest::newRow(steps) << QString::fromLatin1(steps);
    }

    void lastWordsSurviveAKill()
    {
        QFETCH(QString, steps);
        QProcess process;
        start(process, steps);
        while (!process.canReadLine())
            QVERIFY2(process.waitForReadyRead(deadline), qPrintable(process.errorString()));
        process.kill();
        QVERIFY(process.waitForFinished(deadline));
        QCOMPARE(ownTexts(), QStringList{S("severity ") + steps.at(7)});
    }

    void manyThreadsLoseNoLine()
    {
        QVERIFY2(run(S("create threads remove")), m_errors.constData());
        const QStringList texts = ownTexts();
        QCOMPARE(texts.size(), 1000);
        for (int thread = 0; thread < 4; ++thread) {
            const QString start = S("thread %1 ").arg(thread);
            const QStringList ofThread = texts.filter(start);
            for (int i = 0; i < 250; ++i)
                QCOMPARE(ofThread.at(i), start + S("line %1").arg(i));
        }
    }

    void missingVariableMeansTheRootFolder()
    {
        const QByteArray former = qgetenv("LOCALAPPDATA");
        qunsetenv("LOCALAPPDATA");
        const QDir folder(S("/kaldoran/log"));
        QCOMPARE(kdDebugLog::defaultLogPath(QString()), folder.absoluteFilePath(S("kaldoran-")));
        qputenv("LOCALAPPDATA", former);
        QDir::root().rmdir(S("/kaldoran/log")); // a privileged user has made them
        QDir::root().rmdir(S("/kaldoran"));
    }

    void unusableFolderCostsLinesOnly()
    {
        QFile blocker(m_folder->filePath(S("kaldoran")));
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        QVERIFY(run(S("create 0 6 remove")));
        QCOMPARE(blocker.size(), 0);
    }

    void oldFilesGoAndTheNineNewestStay()
    {
        const QDir folder(m_folder->path());
        QStringList expected;
        const auto make = [&](const QString& name, int age, bool stays) {
            QFile file(folder.filePath(name));
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write("x") == 1 && file.flush());
            QVERIFY(
                file.setFileTime(QDateTime::currentDateTime().addSecs(-age), QFile::FileModificationTime));
            if (stays)
                expected.append(name);
        };
        for (int age = 11; age >= 0; --age)
            make(S("app[1]-%1.log").arg(11 - age, 2, 10, QLatin1Char('0')), age * 60, age < 9);
        for (const char* other : {"app[1]-old.txt", "app1-x.log", "other.log"})
            make(QString::fromLatin1(other), 100000, true);
        QVERIFY(folder.mkdir(S("app[1]-folder.log")));

        kdDebugLog::removeOldLogFiles(folder, S("app[1]"));

        expected.sort();
        QStringList left = folder.entryList(QDir::Files);
        left.sort();
        QCOMPARE(left, expected);
        QVERIFY(folder.exists(S("app[1]-folder.log")));
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
