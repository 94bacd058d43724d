#include "kdqtest.h"
#include "shellcompletion.h"
#include "shellgroups.h"
#include "shellsession.h"

#include <kdQCore/kdCommandDispatcher>

#include <QTemporaryDir>

class TestShellCompletion : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void candidates_data();
    void candidates();

private:
    QTemporaryDir m_folder;
    ShellSession m_session;
};

void TestShellCompletion::initTestCase()
{
    kdCommandDispatcher::createInstance();
    nShellGroups::registerCommands();
    m_session.tables.put(QStringLiteral("fire"), kdDataTable());
    m_session.tables.put(QStringLiteral("two words"), kdDataTable());
    m_session.parameters.put(QStringLiteral("firing"), coExpression(QStringLiteral("1")));
    m_session.processes.put(QStringLiteral("gear"), coHeatTreatmentData());
    QVERIFY(QDir(m_folder.path()).mkpath(QStringLiteral("folder")));
    for (const char* name : {"curve.csv", "cut.csv", "my file.csv", "folder/inner.csv"}) {
        QFile file(m_folder.filePath(QLatin1String(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QVERIFY(QDir::setCurrent(m_folder.path()));
}

void TestShellCompletion::cleanupTestCase()
{
    QDir::setCurrent(QDir::rootPath());
    kdCommandDispatcher::removeInstance();
}

void TestShellCompletion::candidates_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QStringList>("expected");

    const auto row = [](const char* typed, const QStringList& expected) {
        QTest::newRow(typed) << QString::fromLatin1(typed) << expected;
    };
    row("la", {QStringLiteral("language")});
    row("h", {QStringLiteral("heat"), QStringLiteral("help"), QStringLiteral("history")});
    row("heat show ge", {QStringLiteral("gear")});
    row("plot heat ge", {QStringLiteral("gear")});
    row("plot formula fir", {QStringLiteral("firing")});
    row("undo; ta", {QStringLiteral("table")});
    row("table lo", {QStringLiteral("load"), QStringLiteral("lookup")});
    row("help log e", {QStringLiteral("echo")});
    row("help qu", {QStringLiteral("quit")});
    row("language ", {QStringLiteral("de"), QStringLiteral("en")});
    row("table show ", {QStringLiteral("fire")});
    row("parameter value ", {QStringLiteral("firing")});
    row("formula evaluate fi", {QStringLiteral("firing")});
    row("table lookup fire 5 ", {QStringLiteral("fire"), QStringLiteral("zero")});
    row("table import cu", {QStringLiteral("curve.csv"), QStringLiteral("cut.csv")});
    row("table import fo", {QStringLiteral("folder/")});
    row("table import folder/", {QStringLiteral("folder/inner.csv")});
    row("paths set w",
        {QStringLiteral("welding"), QStringLiteral("weldingdemos"), QStringLiteral("weldingexamples")});
    row("paths set mesh fo", {QStringLiteral("folder/")});
    row("table import m", {});
    row("table import 'cu", {});
    row("table none ", {});
    row("undo ", {});
}

void TestShellCompletion::candidates()
{
    QFETCH(QString, typed);
    QTEST(nShellCompletion::candidates(typed), "expected");
}

KDQ_TEST_MAIN(TestShellCompletion)
#include "tst_shellcompletion.moc"
