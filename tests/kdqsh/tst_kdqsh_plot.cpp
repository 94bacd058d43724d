#include "kdqshrun.h"
#include "kdqtest.h"

#include <QXmlStreamReader>

/// Pictures from the shell. What they show is tested with the charts.
class TestKdqshPlot : public QObject {
    Q_OBJECT

private Q_SLOTS:
#ifdef KDQPLOT_IS_BUILT
    void pictures_data();
    void pictures();
    void documents();
    void png();
    void oldPictureStaysUntilTheNewIsComplete();
    void plotterSpeaksTheLanguageOfTheShell();
#endif
    void errors_data();
    void errors();
    void withoutThePlotter();

private:
    static bool writeTables(const KdqshRun& shell);
};

namespace {

const QString import = S("table import a.csv; table import b.csv; ");

} // namespace

bool TestKdqshPlot::writeTables(const KdqshRun& shell)
{
    return shell.write(S("a.csv"),
                       "time [min];temperature [degC];stress [MPa];width [mm]\n0;20;5;1\n60;900;7;2\n")
        && shell.write(S("b.csv"), "time [s];temperature [K]\n0;300\n3600;1200\n");
}

#ifdef KDQPLOT_IS_BUILT

/// A number as in the locale C, which a variable cannot choose on Windows.
static QString withPoint(const QString& text)
{
    static const QRegularExpression comma(S("^(-?\\d+),(\\d+)$"));
    return kdqOnWindows ? QString(text).replace(comma, S("\\1.\\2")) : text;
}

static QStringList texts(const QByteArray& svg)
{
    QStringList texts;
    QXmlStreamReader reader(svg);
    while (!reader.atEnd())
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == S("text"))
            texts.append(withPoint(reader.readElementText()));
    return reader.hasError() ? QStringList() : texts;
}

void TestKdqshPlot::pictures_data()
{
    QTest::addColumn<QString>("commands");
    QTest::addColumn<QStringList>("shown");
    kdqRow("tables", "plot table a b to p.svg columns x,temperature xunit h title 'Two furnaces'",
           QStringList{S("Two furnaces"), S("Time [h]"), S("Temperature [°C]"), S("a"), S("b")});
    kdqRow("two axes",
           "plot table a to p.svg columns 1,2,4 yunit m,K steps ytitle Furnace y2title Strip names "
           "furnace,strip",
           QStringList{S("a"), S("Furnace [K]"), S("Strip [m]"), S("strip")});
    kdqRow("range", "plot table b to p.svg points xrange 0 7200 yrange 0 2000 size 400x300",
           QStringList{S("7000"), S("2000")});
    kdqRow("formulas",
           "parameter define square = x*x; plot formula square '1/x' over x from 0 to 4 to p.svg yrange 0 16 "
           "xunit s xtitle Time",
           QStringList{S("square"), S("1/x"), S("Time [s]"), S("15")});
    kdqRow("logarithmic", "plot formula x^2 over x from 0.01 to 100 to p.svg logx logy",
           QStringList{S("x^2"), S("0.01"), S("10000")});
    kdqRow("process", "heat new casehardening as g; plot heat g to p.svg yunit K,kg/kg xunit min",
           QStringList{S("g"), S("Time [min]"), S("Temperature [K]"), S("Carbon potential [kg/kg]"),
                       S("Diffusion"), S("Quenching in oil")});
    kdqRow("curve of a process", "heat new stressrelief as g; heat curve g as t picture p.svg; table info t",
           QStringList{S("Temperature [°C]"), S("Heating")});
}

void TestKdqshPlot::pictures()
{
    QFETCH(QString, commands);
    QFETCH(QStringList, shown);
    KdqshRun shell;
    shell.setVariable(S("LC_ALL"), S("C"));
    QVERIFY(writeTables(shell));
    QVERIFY(shell.runCommands(import + commands, {S("-q")}));
    QCOMPARE(shell.errors, QString());
    const QByteArray first = shell.read(S("p.svg"));
    const QStringList found = texts(first);
    for (const QString& text : qAsConst(shown))
        QVERIFY2(found.contains(text), qPrintable(text + S(" is not in ") + found.join(S(" / "))));
    QVERIFY(shell.runCommands(import + commands, {S("-q")}));
    QVERIFY2(shell.read(S("p.svg")) == first, "the same commands draw the same bytes");
}

/// The documents show what their script draws.
void TestKdqshPlot::documents()
{
    KdqshRun shell;
    shell.setVariable(S("LC_ALL"), S("C.UTF-8"));
    const QString root = QDir(qEnvironmentVariable("KDQ_TEST_DATA")).canonicalPath(); // with its drive
    QVERIFY(shell.run({S("-q"), root + S("/examples/case-hardening/gear.kdqsh")}));
    QVERIFY(shell.run({S("-q"), root + S("/docs/pictures/pictures.kdqsh")}));
    QCOMPARE(shell.errors, QString());
    const QStringList shown = QDir(root + S("/docs/pictures")).entryList({S("*.svg")});
    QCOMPARE(QDir(shell.folder()).entryList({S("*.svg")}), shown);
    for (const QString& name : shown) {
        QFile file(root + S("/docs/pictures/") + name);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(texts(shell.read(name)), texts(file.readAll()));
    }
}

void TestKdqshPlot::png()
{
    KdqshRun shell;
    QVERIFY(writeTables(shell));
    QVERIFY(shell.runCommands(import + S("plot table b to 'my picture.PNG' size 320x240; undo")));
    QVERIFY2(shell.output.contains(S("Picture 'my picture.PNG' drawn.\n")), qPrintable(shell.output));
    const QByteArray bytes = shell.read(S("my picture.PNG"));
    QVERIFY(bytes.startsWith("\x89PNG"));
    QCOMPARE(bytes.mid(16, 8), QByteArray::fromHex("00000140000000f0"));
}

void TestKdqshPlot::oldPictureStaysUntilTheNewIsComplete()
{
    KdqshRun shell;
    QVERIFY(writeTables(shell) && shell.write(S("p.svg"), "old"));
    QVERIFY(shell.runCommands(import + S("plot table b to p.svg size 10x10")));
    QCOMPARE(shell.errors, S("-c:1: plot table: A picture has 200 to 10000 pixels each way, not 10 x 10.\n"));
    QCOMPARE(shell.read(S("p.svg")), QByteArray("old"));
    QCOMPARE(QDir(shell.folder()).entryList({S("p.svg*")}, QDir::Files), QStringList{S("p.svg")});
    QVERIFY(shell.runCommands(import + S("plot table b to none/p.svg")));
    QVERIFY2(shell.errors.startsWith(S("-c:1: plot table: 'none/p.svg' cannot be written: ")),
             qPrintable(shell.errors));
}

void TestKdqshPlot::plotterSpeaksTheLanguageOfTheShell()
{
    KdqshRun shell;
    QVERIFY(writeTables(shell));
    QVERIFY(shell.runCommands(S("language de; ") + import + S("plot table b to p.svg size 10x10")));
    QVERIFY2(shell.errors.contains(S("Ein Bild hat in jeder Richtung 200 bis")), qPrintable(shell.errors));
}

#endif

void TestKdqshPlot::errors_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("error");
    kdqRow("no file", "plot table a b c", "The picture is missing: to FILE");
    kdqRow("other ending", "plot table a to p.pdf", "ends in .svg or .png");
    kdqRow("no table", "plot table c to p.svg", "There is no table 'c'");
    kdqRow("three quantities", "plot table a to p.svg", "choose columns");
    kdqRow("one column", "plot table a to p.svg columns 2", "'columns' needs");
    kdqRow("no column", "plot table a to p.svg columns 1,9", "Table 'a' has no column '9'");
    kdqRow("few names", "plot table b to p.svg names a,b", "gives 2 names to 1 curves");
    kdqRow("both forms", "plot table b to p.svg steps points", "exclude each other");
    kdqRow("no unit", "plot formula x over x from 0 to 1 to p.svg xunit elephants",
           "'elephants' is no unit.");
    kdqRow("no variable", "plot formula x from 0 to 1 to p.svg logx", "over NAME");
    kdqRow("unknown name", "plot formula x+k over x from 0 to 1 to p.svg", "variable(s): k");
    kdqRow("no end", "plot formula x over x from 0 to p.svg logx logy", "from A to B");
    kdqRow("no values", "plot formula 'ln(0*x)' over x from 0 to 1 to p.svg", "ln(");
    kdqRow("gaps only", "plot formula -1-x over x from 0 to 1 to p.svg logy", "nothing to draw");
    kdqRow("two processes", "plot heat g h to p.svg", "One process");
    kdqRow("no process", "plot heat g to p.svg", "There is no process 'g'");
    kdqRow("curve", "heat curve g as t image p.svg", "'g'");
}

void TestKdqshPlot::errors()
{
    QFETCH(QString, command);
    QFETCH(QString, error);
    KdqshRun shell;
    QVERIFY(writeTables(shell));
    QVERIFY(shell.runCommands(import + command, {S("-q")}));
    QVERIFY2(shell.errors.contains(error), qPrintable(shell.errors));
    QCOMPARE(shell.status, 1);
    QVERIFY(shell.read(S("p.svg")).isEmpty());
}

/// As it is where the build had no Qt Charts.
void TestKdqshPlot::withoutThePlotter()
{
    KdqshRun shell;
    QVERIFY(writeTables(shell));
#ifdef KDQPLOT_IS_BUILT
    if (kdqOnWindows)
        QSKIP("the shell finds its DLLs where it finds the plotter");
    const QString alone = shell.path(QFileInfo(S(KDQSH_PROGRAM)).fileName());
    QVERIFY(QFile::copy(S(KDQSH_PROGRAM), alone));
    shell.setProgram(alone);
    shell.setVariable(S("PATH"), shell.folder());
#endif
    QVERIFY(shell.runCommands(import + S("plot table b to p.svg")));
    QVERIFY2(
        shell.errors.startsWith(S("-c:1: plot table: No pictures can be drawn here: the program 'kdqplot'")),
        qPrintable(shell.errors));
}

KDQ_TEST_MAIN(TestKdqshPlot)
#include "tst_kdqsh_plot.moc"
