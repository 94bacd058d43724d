#include "kdqtest.h"
#include "linehistory.h"
#include "shellcompletion.h"
#include "shellgroups.h"
#include "shellsession.h"

#include <kdQCore/coHeatTreatmentDataFactory>
#include <kdQCore/kdCommandDispatcher>

#include <QTemporaryDir>

class TestShellCompletion : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        kdCommandDispatcher::createInstance();
        nShellGroups::registerCommands();
        kdDataTable fire(kdUnitSystem::Time, kdUnitSystem::Angle);
        fire.columnRef(1).setName(QStringLiteral("heat"));
        m_session.tables.put(QStringLiteral("fire"), fire);
        m_session.tables.put(QStringLiteral("two words"), kdDataTable());
        m_session.tables.put(QStringLiteral("two ways"), kdDataTable());
        m_session.parameters.put(QStringLiteral("firing"), coExpression(QStringLiteral("1")));
        coHeatTreatmentData process(nHeatTreatment::StressRelief);
        nHeatTreatment::coHeatTreatmentDataFactory::setup(process);
        m_session.processes.put(QStringLiteral("gear"), process);
        for (const char* name : {"curve.csv", "cut.csv", "it's.csv", "my folder/in ner.csv"})
            QVERIFY(kdqWrite(m_folder.filePath(QLatin1String(name))));
        QVERIFY(QDir::setCurrent(m_folder.path()));
        const ShellLocks::Lock lock = m_session.locks.of(QStringLiteral("my folder"));
        QVERIFY(lock->tryLock(0));
        m_session.locks.keep(lock);
    }

    void cleanupTestCase()
    {
        m_session.locks = ShellLocks();
        QDir::setCurrent(QDir::rootPath());
        kdCommandDispatcher::removeInstance();
    }

    void candidates_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("expected"); // with "|" between them

        const auto row = [](const char* typed, const char* expected) {
            kdqRow(typed, QString::fromLatin1(typed), QString::fromLatin1(expected));
        };
        row("la", "language");
        row("h", "heat|help|history");
        row("undo; ta", "table");
        row("table lo", "load|lookup");
        row("help log e", "echo");
        row("help qu", "quit");
        row("language ", "de|en");
        row("remote run table lo", "load|lookup");
        row("table show ", "fire|two ways|two words");
        row("table show \"two w", "two ways|two words");
        row("table show fire ", "");
        row("table export ", "xml|text");
        row("table export xml ", "fire|two ways|two words");
        row("table lookup fire 5 ", "x|y|heat|zero");
        row("table convert fire he", "heat");
        row("table convert fire y ", "rad|\xb0");
        row("table unit fire x s ", "x|y|heat");
        row("table combine fire sum ", "fire|two ways|two words");
        row("table combine fire sum fire ", "as");
        row("table import curve.csv as ", "");
        row("table import curve.csv ", "as");
        row("parameter value ", "firing");
        row("parameter define ", "firing");
        row("formula evaluate 2*fi", "2*firing");
        row("formula evaluate x over x fr", "from");
        row("plot heat ", "gear");
        row("plot formula 2*fi", "2*firing");
        row("plot table fire ", "to");
        row("heat new ", "quenchtemper|stressrelief|casehardening");
        row("heat show ge", "gear");
        row("heat disable gear 0 ", "0|1|2|3");
        row("heat set gear 0 htc ", "predefined|project|table");
        row("heat set gear 0 htc table f", "fire");
        row("heat set gear 0 terminate ", "above|below");
        row("deck table ", "fire|two ways|two words");
        row("deck table fire id 3 ", "variable");
        row("deck table fire id 3 variable 1 h", "hold");
        row("deck column 8 fire h", "heat");
        row("deck open curve.csv fixed s", "standard");
        row("paths set w", "welding|weldingdemos|weldingexamples");
        row("paths set mesh m", "my folder/");
        row("table import cu", "curve.csv|cut.csv");
        row("table import m", "my folder/");
        row("table import 'my folder/i", "my folder/in ner.csv");
        row("table none ", "");
        row("undo ", "");
        row("table show f # f", "");
    }

    void candidates()
    {
        QFETCH(QString, typed);
        QTEST(nShellCompletion::complete(typed).candidates.join(QLatin1Char('|')), "expected");
    }

    /// What stands on the line behind Tab.
    void words_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("line");
        const auto row = [](const char* typed, const char* line) {
            kdqRow(typed, QString::fromLatin1(typed), QString::fromLatin1(line));
        };
        row("table show fi", "table show fire ");
        row("table import cu", "table import cu");
        row("table show two", "table show \"two w");
        row("table show 'two wa", "table show 'two ways' ");
        row("table import 'it", "table import 'it''s.csv' ");
        row("table import it", "table import it's.csv ");
        row("table import m", "table import \"my folder/");
        row("table import \"my folder/i", "table import \"my folder/in ner.csv\" ");
    }

    void words()
    {
        QFETCH(QString, typed);
        const LineEditor::Completion completion = nShellCompletion::complete(typed);
        QTEST(typed.left(completion.begin) + completion.text, "line");
    }

    void lockedFolder()
    {
        const LineEditor::Completion completion = nShellCompletion::complete(QStringLiteral("lock release "));
        QCOMPARE(completion.candidates,
                 QStringList{QDir::toNativeSeparators(QDir(QStringLiteral("my folder")).canonicalPath())});
    }

    /// Two sessions side by side, and one after them.
    void historyIsKept()
    {
        const QString path = m_folder.filePath(QStringLiteral("data/history"));
        LineHistory first(path);
        LineHistory second(path);
        for (int i = 0; i < 1500; ++i)
            first.add(QStringLiteral("line %1").arg(i));
        for (const char* line :
             {"table list", "gr\xc3\xbc\xc3\x9f", " hidden", "", "table list ", "line 1499"})
            second.add(QString::fromUtf8(line));
        const LineHistory later(path);
        QCOMPARE(later.lines().size(), 1000);
        QCOMPARE(later.lines().mid(997),
                 (QStringList{QString::fromUtf8("gr\xc3\xbc\xc3\x9f"), QStringLiteral("table list"),
                              QStringLiteral("line 1499")}));
        first.add(QString(2000, QLatin1Char('x')));
        for (int i = 0; i < 1000; ++i)
            second.add(QStringLiteral("more %1").arg(i));
        LineHistory{path};
        QCOMPARE(kdqContentOf(path).count('\n'), 1000);
        if (!kdqOnWindows)
            QCOMPARE(int(QFile::permissions(path)
                         & (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther)),
                     0);
    }

private:
    QTemporaryDir m_folder;
    ShellSession m_session;
};

KDQ_TEST_MAIN(TestShellCompletion)
#include "tst_shellcompletion.moc"
