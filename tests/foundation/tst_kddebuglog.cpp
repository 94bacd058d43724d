#include "kdqtest.h"

#include <kdQCore/kdDebugLog>

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <sstream>

namespace {

QByteArray content(const QString& path)
{
    return kdqWithPlainLineEnds(kdqContentOf(path));
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
QStringList linesOf(const QByteArray& bytes)
{
    const QRegularExpression form(S("^[0-6] \\d{8} \\d\\d:\\d\\d:\\d\\d\\.\\d{6} \\d+ [^ :]+:\\d+\\] "));
    return QString::fromLocal8Bit(bytes).split(QLatin1Char('\n')).filter(form);
}

/// What the helper logged, with nothing before it but the severity.
QStringList ownTexts(QStringList lines)
{
    lines = lines.filter(S(" loghelper.cpp:"));
    return lines.replaceInStrings(QRegularExpression(S("^(.) .*?\\] Socket {11}")), S("\\1 "));
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

    QStringList linesOfTheOnlyFile() const
    {
        return files().size() == 1 ? linesOf(content(files().constFirst())) : QStringList();
    }

private Q_SLOTS:
    void init()
    {
        m_folder.reset(new QTemporaryDir);
        m_folder->setAutoRemove(false);
    }

    void cleanup() { kdqRemoveFolder(m_folder->path()); }

    /// What is logged before and after the life of the log goes to the standard error, the echo as well.
    void oneFileTakesAllSeverities()
    {
        QVERIFY(run(S("4 flush echo create 0 1 2 3 4 5 6 remove flush 5")));
        QCOMPARE(files().size(), 1);
        const QString file = QFileInfo(files().constFirst()).fileName();
        const QRegularExpression name(S("^loghelper(\\.exe)?-\\d{8}-\\d{6}\\.\\d+\\.log$"));
        QVERIFY2(name.match(file).hasMatch(), qPrintable(file));
        const QStringList lines = linesOfTheOnlyFile();
        QCOMPARE(
            ownTexts(lines).join(QLatin1Char(',')),
            S("0 severity 0,1 severity 1,2 severity 2,3 severity 3,4 severity 4,5 severity 5,6 severity 6"));
        QCOMPARE(m_errors.count("severity"), 9);
        QStringList echoed = linesOf(m_errors);
        QVERIFY(echoed.takeLast().endsWith(S("Socket           severity 5")));
        QCOMPARE(echoed, lines);

        const QString text = lines.constLast().mid(2, 17);
        const QDateTime time = QDateTime::fromString(text, S("yyyyMMdd HH:mm:ss"));
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
        const auto quoted = [](const QString& text) { return QRegularExpression::escape(text); };
        const QString expected = // of each line the label, and what it says where that is known
            S("-,OS,CPU,Architecture,Cores: \\d+,Physical memory: \\d+ kB,-,Username: Jörg,Hostname,HostID,-,"
              "%1: %2(\\.exe)?,Arguments: %3,Working directory: %4,"
              "Revision: \\d+ (\\d{4}-\\d\\d-\\d\\d|unknown),Build date,Qt version: %5,Configuration,-")
                .arg(quoted(label), quoted(QCoreApplication::applicationDirPath() + S("/loghelper")), steps,
                     quoted(QFileInfo(m_folder->path()).canonicalFilePath()), quoted(S(QT_VERSION_STR)));
        const QStringList facts = expected.split(QLatin1Char(','));
        const QStringList lines = linesOfTheOnlyFile();
        QCOMPARE(lines.size(), facts.size());
        for (int i = 0; i < facts.size(); ++i) {
            const QString what = facts.at(i).section(S(": "), 1);
            const QString fact =
                S(" *%1: %2").arg(facts.at(i).section(S(": "), 0, 0), what.isEmpty() ? S(".+") : what);
            const QRegularExpression form(S("^3 .*\\] General {10}(?=.{17}: |-)")
                                          + (facts.at(i) == S("-") ? S("-{79}") : fact) + S("$"));
            QVERIFY2(form.match(QDir::fromNativeSeparators(lines.at(i))).hasMatch(),
                     qPrintable(form.pattern()));
        }
        QCOMPARE(QString::fromLocal8Bit(m_output.trimmed()), files().constFirst());
    }

    void nameAndPlaceOfTheFile()
    {
        QVERIFY(run(S("createNameless 2 remove")));
        QVERIFY(QFileInfo(files().value(0)).fileName().startsWith(S("kaldoran-2")));
        QVERIFY(run(S("createHere 2 remove")));
        const QStringList here = filesIn(m_folder->path());
        QCOMPARE(here.size(), 1);
        QVERIFY(QFileInfo(here.constFirst()).fileName().startsWith(S("loghelper2")));
        QVERIFY(content(here.constFirst()).contains("Socket           "));
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
        QVERIFY(!m_errors.contains("severity"));
    }

    void textsFromOutsideForgeNoLine()
    {
        QVERIFY(run(S("create texts remove")));
        const QChar umlaut(0xE4);
        QStringList texts = ownTexts(linesOfTheOnlyFile());
        QVERIFY(texts.size() == 6 && texts.takeAt(4).startsWith(S("2 ")));
        QCOMPARE(texts,
                 (QStringList{S("2 two"), S("2 bell   escape  [2J end"), QString::fromUtf8("2 Größe "),
                              S("2 ") + QString(29000 / QString(umlaut).toLocal8Bit().size(), umlaut)
                                  + S(" [...]"),
                              S("2 ")}));
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
        QCOMPARE(ownTexts(linesOfTheOnlyFile()), QStringList{S("%1 severity %1").arg(steps.at(7))});
    }

    void manyThreadsLoseNoLine()
    {
        QVERIFY2(run(S("create threads remove")), m_errors.constData());
        const QStringList texts = ownTexts(linesOfTheOnlyFile());
        QCOMPARE(texts.size(), 1000);
        for (int i = 0; i < 1000; ++i) {
            const QString line = S("%1 thread %2 line %3").arg(i % 250 % 7).arg(i / 250).arg(i % 250);
            QCOMPARE(texts.filter(S("thread %1 ").arg(i / 250)).value(i % 250), line);
        }
    }

    void unusableFolderCostsLinesOnly()
    {
        const QString blocker = m_folder->filePath(S("kaldoran"));
        QVERIFY(kdqWrite(blocker, "x"));
        QVERIFY(run(S("create 0 6 remove")));
        QCOMPARE(content(blocker), QByteArray("x"));
    }

    void oldFilesGoAndTheNineNewestStay()
    {
        const QDir folder(m_folder->path());
        const QStringList older{S("app[1]-00.log"), S("app[1]-01.log"), S("app[1]-02.log")};
        QStringList others{S("app1-x.log"), S("app[1]-old.txt"), S("other.log")};
        for (int i = 3; i < 12; ++i)
            others.append(S("app[1]-%1.log").arg(i, 2, 10, QLatin1Char('0')));
        int age = 100;
        for (const QString& name : older + others) {
            QFile file(folder.filePath(name));
            QVERIFY(file.open(QIODevice::WriteOnly));
            const QDateTime time = QDateTime::currentDateTime().addSecs(-60 * --age);
            QVERIFY(file.setFileTime(time, QFile::FileModificationTime));
        }
        QVERIFY(folder.mkdir(S("app[1]-folder.log")));

        kdDebugLog::removeOldLogFiles(folder, S("app[1]"));

        const QStringList left = folder.entryList(QDir::Files);
        QCOMPARE(QSet<QString>(left.begin(), left.end()), QSet<QString>(others.begin(), others.end()));
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
