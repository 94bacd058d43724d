#include "kdqshrun.h"
#include "kdqtest.h"

#include <QRegularExpression>

/// The shell as a child process: what it prints, where it complains, and how it ends.
class TestKdqsh : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void commands_data();
    void commands();
    void errors_data();
    void errors();
    void deck_data();
    void deck();
    void scriptStopsOrGoesOn_data();
    void decksAreReadBack();
    void scriptStopsOrGoesOn();
    void commandLine_data();
    void commandLine();
    void standardInputIsRead();
    void dataBesideTheScriptIsFound();
    void fullDeviceIsReported();
    void exportIsReadBack_data();
    void exportIsReadBack();
    void csv_data();
    void csv();
    void csvSettingsAreKept();
    void paths_data();
    void paths();
    void languageIsChosen_data();
    void languageIsChosen();
    void helpStandsInTheDocumentation();
    void logHoldsTheRun();
    void onlyTheDataFolderIsWritten();

private:
    static void prepare(KdqshRun& shell);
};

#define S(text) QStringLiteral(text)

/// What the system says of a file that is not there, in the language of the runs.
static QString missingFileText()
{
    qputenv("LANGUAGE", "en");
    QFile file(S("no such file"));
    return file.open(QIODevice::ReadOnly) ? QString() : file.errorString();
}

void TestKdqsh::prepare(KdqshRun& shell)
{
    QVERIFY(shell.write(S("curve.csv"), "# a curve\ntime [min];temperature [degC]\n0;20\n1;120\n3;420\n"));
    QVERIFY(shell.write(S("wide.csv"), "strain;20;200\n0;0;0\n0.1;100;50.5\n0.2;150;75\n"));
    QVERIFY(shell.write(S("falling.csv"), "x;y\n0;1\n2;2\n1;3\n"));
    QVERIFY(shell.write(S("bad.csv"), "x;y\n1;2\n3;abc\n"));
    QVERIFY(shell.write(S("bad.xml"), "<kdDataTable name='a'>\n<row nb='1'>1;2"));
}

void TestKdqsh::commands_data()
{
    QTest::addColumn<QString>("commands");
    QTest::addColumn<QString>("output"); // of a quiet run, so results only

    const QString curve = S("table import curve.csv as c; ");
    QTest::newRow("nothing") << QString() << QString();
    QTest::newRow("list of tables") << curve + S("table list") << S("Table 'c': 3 rows, 2 columns.\n");
    QTest::newRow("name from the file")
        << S("table import curve.csv; table list") << S("Table 'curve': 3 rows, 2 columns.\n");
    QTest::newRow("show") << curve + S("table show c")
                          << S("time [min]  temperature [°C]\n"
                               "         0                20\n"
                               "         1               120\n"
                               "         3               420\n");
    QTest::newRow("show some") << curve + S("table show c 1")
                               << S("time [min]  temperature [°C]\n         0                20\n");
    QTest::newRow("info") << curve + S("table info c")
                          << S("Table 'c': 3 rows, 2 columns.\n"
                               "time: Time [min], 0 to 3, increasing\n"
                               "temperature: Temperature [°C], 20 to 420, increasing\n");
    QTest::newRow("lookup") << curve + S("table lookup c 2") << S("270 °C\n");
    QTest::newRow("lookup holds the end") << curve + S("table lookup c 4 temperature") << S("420 °C\n");
    QTest::newRow("lookup zero outside") << curve + S("table lookup c 4 y zero") << S("0 °C\n");
    QTest::newRow("lookup by number") << curve + S("table lookup c 2 1") << S("2 min\n");
    QTest::newRow("convert") << curve + S("table convert c x s y K; table lookup c 120") << S("543.15 K\n");
    QTest::newRow("convert all columns but the first")
        << S("table import wide.csv as w; table unit w y MPa; table convert w y Pa; table lookup w 0.1 200")
        << S("50500000 Pa\n");
    QTest::newRow("undo of a conversion, past a query")
        << curve + S("table convert c x s; table list; undo; table lookup c 1")
        << S("Table 'c': 3 rows, 2 columns.\n120 °C\n");
    QTest::newRow("redo") << curve + S("table convert c x s; undo; redo; table lookup c 60") << S("120 °C\n");
    QTest::newRow("undo of an import that replaced a table")
        << curve + S("table import wide.csv as c; undo; table list") << S("Table 'c': 3 rows, 2 columns.\n");
    QTest::newRow("rename and undo") << curve + S("table rename c d; table list; undo; table list")
                                     << S("Table 'd': 3 rows, 2 columns.\nTable 'c': 3 rows, 2 columns.\n");
    QTest::newRow("remove and undo") << curve + S("table remove c; table list; undo; table list")
                                     << S("Table 'c': 3 rows, 2 columns.\n");
    QTest::newRow("rename to itself")
        << curve + S("table rename c c; table list") << S("Table 'c': 3 rows, 2 columns.\n");
    QTest::newRow("extract swaps") << curve + S("table extract c y x as inverse; table lookup inverse 270")
                                   << S("2 min\n");
    QTest::newRow("copy is apart") << curve
            + S("table copy c d; table scale d y 2; table lookup c 1; table lookup d 1")
                                   << S("120 °C\n240 °C\n");
    QTest::newRow("sort") << S("table import falling.csv as f; table sort f descending; table lookup f 1.5")
                          << S("2.5 -\n");
    QTest::newRow("combine") << curve
            + S("table copy c d; table scale d y 2; table combine c average d as m; table lookup m 1")
                             << S("180 °C\n");
    const QString parameters = S("parameter define power = u * i; parameter define u=24 + t/10; "
                                 "parameter define i = 2e1; parameter define t = -5; ");
    QTest::newRow("parameters in the order of their use")
        << parameters + S("parameter list") << S("t = -5\nu = 24 + t/10\ni = 2e1\npower = u * i\n");
    QTest::newRow("values of parameters") << parameters + S("parameter value; parameter value power")
                                          << S("t = -5\nu = 23.5\ni = 20\npower = 470\n470\n");
    QTest::newRow("value beside what is not defined")
        << S("parameter define a = b; parameter define c = 2; parameter value c; parameter list")
        << S("2\na = b\nc = 2\n");
    QTest::newRow("undo of parameters") << parameters
            + S("parameter define t = 5; undo; parameter remove i; undo; redo; undo; parameter value u")
                                        << S("23.5\n");
    QTest::newRow("formula as understood")
        << S("formula check -x^2 + sin(30) or b") << S("(-(x^2) + sin(30)) or b\n");
    QTest::newRow("variables") << parameters + S("parameter define w = y; formula variables 'y + u*pi + w'")
                               << S("y\nu = 23.5\nw\n");
    QTest::newRow("value of a formula")
        << parameters + S("formula evaluate 'power > 400 ? u : 1/0'") << S("23.5\n");
    QTest::newRow("formula over a variable, which hides a parameter and reaches those that use it")
        << parameters + S("formula evaluate u over t from 0 to 5 points 3")
        << S("t [-]  value [-]\n    0         24\n  2.5      24.25\n    5       24.5\n");
    QTest::newRow("table of a formula")
        << S("formula tabulate x^2 over x from 0 to 0.3 points 4 xunit mm yunit N as f; table info f; "
             "table lookup f 0.3; undo; table list")
        << S("Table 'f': 4 rows, 2 columns.\nx: Length [mm], 0 to 0.3, increasing\n"
             "f: Force [N], 0 to 0.09, increasing\n0.09 N\n");
    QTest::newRow("names") << S(
        "name internal 'Platte (oben)' obj-platteoben; name unique display Table-3 table-3; "
        "name unique internal Tür; name number Part 2 part-1; "
        "name check display ' a ' b; name check internal ok")
                           << S("Obj-Platteoben-2\nTable-4\nT-r\nPart-2\nPart-3\na\nThe name ' a ' holds "
                                "control characters, or blanks at its ends.\nok\n");
    QTest::newRow("history") << S("table  list;log flush ;history")
                             << S("   1  table list\n   2  log flush\n   3  history\n");
    QTest::newRow("quit ends") << curve + S("quit; table list") << QString();
    QTest::newRow("help of a command")
        << S("help undo")
        << S("undo\n    Takes back the last command that changed something.\nExample:\n"
             "    parameter define power = 24*20\n    undo\n    parameter list\n");
    QTest::newRow("comment") << curve + S("table lookup c 1 # table list") << S("120 °C\n");
}

void TestKdqsh::commands()
{
    QFETCH(QString, commands);
    KdqshRun shell;
    prepare(shell);
    QVERIFY(shell.runCommands(commands, {S("--quiet")}));
    QCOMPARE(shell.errors, QString());
    QTEST(shell.output, "output");
    QCOMPARE(shell.status, 0);
}

void TestKdqsh::errors_data()
{
    QTest::addColumn<QString>("commands");
    QTest::addColumn<QString>("error");

    const QString curve = S("table import curve.csv as c; ");
    const QString deck = S("deck open a.dat; ");
    QString doublings;
    for (int i = 2; i <= 20; ++i)
        doublings += S("parameter define a%1 = a%2 + a%2;").arg(i).arg(i - 1);
    const auto row = [](const char* name, const QString& commands, const QString& error) {
        QTest::newRow(name) << commands << QStringLiteral("-c:1: %1\n").arg(error);
    };
    row("unknown command", S("matrix list"), S("Unknown command: >matrix list<!"));
    row("unknown command without parameters", S("frobnicate"), S("Unknown command: >frobnicate<!"));
    row("unknown table command", S("table lst x"),
        S("table: Unknown command: >table lst<! Known are: list, import, load, export, show, info, lookup, "
          "convert, "
          "unit, extract, copy, rename, remove, sort, scale, combine."));
    row("group alone", S("log"), S("log: 'log' needs one of: path, echo, write, flush."));
    row("missing arguments", S("table rename c"), S("table rename: Usage: table rename NAME NEW"));
    row("too many arguments", S("table list all"), S("table list: Usage: table list"));
    row("open quote", S("table show 'c"), S("The quote ' in column 12 is not closed."));
    row("missing file", S("table import none.csv as c"), S("table import: 'none.csv' cannot be read: *"));
    row("text instead of a number", S("table import bad.csv"),
        S("table import: 'bad.csv': row 3, column 2: 'abc' is not a number"));
    row("broken XML", S("table load bad.xml"),
        S("table load: 'bad.xml', line 2: Premature end of document."));
    row("text instead of XML", S("table load bad.csv"),
        S("table load: 'bad.csv', line 1: Start tag expected."));
    row("table that does not fit a card",
        S("table import falling.csv as f; ") + deck + S("deck table f id 1 variable 1"),
        S("deck table: Table 'f' does not fit the card: x must not descend, but 1 in row 3 follows 2."));
    row("table with too many columns",
        S("table import wide.csv as w; ") + deck + S("deck table w id 1 variable 1"),
        S("deck table: Table 'w' does not fit the card: it is no XY table (an X and a Y column); number of "
          "columns: "
          "3."));
    row("curves that do not fit", curve + S("table import wide.csv as w; table combine c sum w as q"),
        S("table combine: Tables 'c' and 'w' do not fit: two columns each, X rising or falling, units that "
          "convert, "
          "ranges that meet."));
    row("misplaced as", S("table import curve.csv at c"),
        S("table import: 'as' and a name are missing after the file."));
    row("no such table", curve + S("table show d"), S("table show: There is no table 'd', only c."));
    row("no table at all", S("table show d"),
        S("table show: There is no table 'd'; none has been imported yet."));
    row("no such column", curve + S("table lookup c 1 3"),
        S("table lookup: Table 'c' has no column '3'; number of columns: 2."));
    row("not a number", curve + S("table lookup c 1,5"), S("table lookup: X must be a number, not '1,5'."));
    row("wrong unit", curve + S("table convert c x MPa"),
        S("table convert: Column 'time' in min cannot be converted to 'MPa'."));
    row("no unit", curve + S("table unit c x parsec"), S("table unit: 'parsec' is no unit."));
    row("nothing to undo", S("undo"), S("undo: There is nothing that can be undone."));
    row("nothing to redo", S("redo"), S("redo: There is nothing to redo."));
    row("own word with arguments", S("undo all"), S("undo: 'undo' takes no arguments."));
    row("unknown help", S("help me"), S("help: There is no command 'me'; 'help' shows them all."));
    row("wrong severity", S("log write 7 x"), S("log write: A severity is 0 to 6, not 7."));
    row("csv of no table", curve + S("csv export d a.csv"), S("csv export: There is no table 'd', only c."));
    row("csv into nowhere", curve + S("csv export c none/a.csv"),
        S("csv export: 'none/a.csv' cannot be written: *"));
    row("unknown word of csv", curve + S("csv export c a.csv semicolon"),
        S("csv export: 'semicolon' is unknown here; possible are: separator, decimal, units, prefix, titles, "
          "bare, protect, mark."));
    row("csv with two headers", curve + S("csv export c a.csv bare titles"),
        S("csv export: 'titles' and 'bare' exclude each other."));
    row("wrong decimal mark", curve + S("csv export c a.csv decimal ,"),
        S("csv export: ',' is no decimal mark; possible are point and comma."));
    row("wrong unit of csv", curve + S("csv export c a.csv units s,MPa"),
        S("csv export: No column of table 'c' can be converted to 'MPa'."));
    row("wrong decimal mark of settings", S("csv settings separator | decimal dot"),
        S("csv settings: 'dot' is no decimal mark; possible are point and comma."));
    row("parameters in a circle",
        S("parameter define a = b; parameter define b = 2*c; parameter define c = a+1"),
        S("parameter define: The formulas use each other in a circle: a -> b -> c -> a."));
    row("parameter that uses what is not defined", S("parameter define a = b; parameter value"),
        S("parameter value: The formula of 'a' uses 'b', which is not defined."));
    row("parameter that cannot be read", S("parameter define a = 2 +* 3"),
        S("parameter define: The formula of 'a' cannot be read: Syntax error. Line 1, column 4: found '*', "
          "expected a number, a name, a function, a sign, \"not\", \"if\" or \"(\"."));
    row("no name of a parameter", S("parameter define e = 1"),
        S("parameter define: 'e' cannot be the name of a formula."));
    row("no formula of a parameter", S("parameter define a 1"),
        S("parameter define: '=' is missing between name and formula."));
    row("no such parameter", S("parameter define a = 1; parameter value b"),
        S("parameter value: There is no parameter 'b', only a."));
    row("formula that cannot be read", S("formula check 'max(1,x)'"),
        S("formula check: Math expression 'max(1,x)': Syntax error., Line 1, column 6: found ',', expected "
          "an "
          "operator or \")\"."));
    row("unknown function", S("formula check foo(x)"),
        S("formula check: The formula contains unknown functions: foo"));
    row("formula without a value", S("formula evaluate x/0"),
        S("formula evaluate: Undefined variable(s): x."));
    row("formula that fails on the way", S("formula tabulate 1/x over x from -2 to 2 points 5 as f"),
        S("formula tabulate: x = 0: Division by zero. In expression: (1 / x) which evaluates to: (1 / 0)"));
    row("table without a variable", S("formula tabulate x^2 from 0 to 1 as f"),
        S("formula tabulate: The table needs a variable that runs (over NAME) and a name of its own (as "
          "NEW)."));
    row("range without length", S("formula evaluate x over x from 1 to 1"),
        S("formula evaluate: 'x' needs two ends to run between (from A to B)."));
    row("range of nothing", S("formula evaluate x from 1 to 2"),
        S("formula evaluate: The variable that runs is missing (over NAME)."));
    row("too few points", S("formula evaluate x over x from 0 to 1 points 1"),
        S("formula evaluate: The number of points must be 2 to 10000000, not 1."));
    row("formula that grows beyond measure",
        S("parameter define a1 = x + x;") + doublings + S("formula evaluate a20 over x from 0 to 1"),
        S("formula evaluate: With the parameters that it uses, the formula is longer than 100000 "
          "characters."));
    row("kind of name", S("name unique file x"),
        S("name unique: 'file' is no kind of name; possible are display and internal."));
    row("nobody listens", S("ipc greet welding 1"), S("ipc greet: No process 1 listens as welding: *"));
    row("product that does not listen", S("ipc listen mesh"),
        S("ipc listen: 'mesh' is no product that listens; possible are: forming, welding, joining, jes, "
          "material, additive."));
    row("no connection", S("tcp send x"),
        S("tcp send: There is no connection; see 'tcp serve' and 'tcp connect'."));
    row("no port", S("tcp connect localhost 0"), S("tcp connect: A port is 1 to 65535, not 0."));
    row("no address", S("remote serve address here"),
        S("remote serve: 'here' is no address of the form 127.0.0.1 or ::1."));
    row("name without an address", S("tcp connect no.invalid 1"),
        S("tcp connect: Cannot connect to no.invalid, port 1: The name has no address."));
    row("no timeout", S("tcp serve timeout 0"),
        S("tcp serve: A timeout is more than 0 and up to 1000000 seconds, not 0."));
    row("no time", S("ipc listen jes seconds 0"), S("ipc listen: 'seconds' must be from 1 to 86400, not 0."));
    row("no deck", S("deck title x"), S("deck title: No deck is open; see 'deck open'."));
    row("wrong layout", S("deck open a.dat wide"),
        S("deck open: 'wide' is no layout; possible are fixed, free, standard, extended."));
    row("folder instead of deck", S("deck open ."),
        S("deck open: The deck '.' cannot be opened for writing: *"));
    row("two decks", deck + S("deck open b.dat"),
        S("deck open: The deck 'a.dat' is still open; see 'deck close'."));
    row("empty formula", deck + S("deck formula k id 1 variable 1 formula ' '"),
        S("deck formula: The formula of table 'k' is empty."));
    row("formula that the deck does not take", deck + S("deck formula k id 1 variable 1 formula 'v1 +'"),
        S("deck formula: Math expression 'v1 +': Syntax error., Line 1, column 5: found the end of the "
          "formula, "
          "expected a number, a name, a function, a sign, \"not\", \"if\" or \"(\"."));
    row("formula of an unknown name", deck + S("deck formula k id 1 variable 1 formula v2"),
        S("deck formula: 'v2' in the formula is neither a variable of the table (v1) nor a parameter."));
    row("table without id", curve + deck + S("deck table c variable 1 hold name x"),
        S("deck table: The table needs an id above 0 (id ID)."));
    row("unknown parameter", deck + S("deck process 4d"),
        S("deck process: '4d' is unknown here; possible are: 3d, material, licences, type, noheat, kin, "
          "rigid, "
          "version, checkheat, contact."));
    row("parameter twice", deck + S("deck process 3d 3d"), S("deck process: '3d' is given twice."));
    row("missing value", deck + S("deck pointload body 1 force 1 2"),
        S("deck pointload: Too few values after 'force', which takes 3."));
    row("missing one value", deck + S("deck autoload steps 1 time"),
        S("deck autoload: Too few values after 'time', which takes 1."));
    row("incomplete point load", deck + S("deck pointload body 1"),
        S("deck pointload: The point load needs a list of nodes (nodes NAME) and a body of 0 or above (body "
          "ID); "
          "the deck holds comments instead."));
    row("incomplete point current", deck + S("deck pointcurrent label a current 5"),
        S("deck pointcurrent: Missing control node."));
    row("unknown solver", deck + S("deck solver gauss"),
        S("deck solver: 'gauss' is no solver; possible are: automatic, pardiso, multifrontal, mumps, "
          "iterative, "
          "sparse, casi, profile, mixed."));
    row("list of no numbers", deck + S("deck integers 8 1 2.5"),
        S("deck integers: Number 2 must be a whole number, not '2.5'."));
    row("folder that cannot be set", S("paths set forming ."),
        S("paths set: 'forming' cannot be set, only versionroot, additive, joining, welding, mesh, "
          "additivedemos, weldingdemos, weldingexamples."));
    row("missing folder", S("paths set mesh none"), S("paths set: There is no folder 'none'."));
    row("missing file", S("paths store mesh 1 none"), S("paths store: There is no file 'none'."));
    row("no executable", S("paths executable mesh 1"),
        S("paths executable: No executable is stored for Kaldoran Mesh 1."));
    row("malformed version", S("paths remove mesh 1.x"),
        S("paths remove: A version is one to four numbers with dots between, not '1.x'."));
    row("unknown product", S("paths application x"),
        S("paths application: There is no product 'x', only additive, demos, forming, jes, joining, "
          "material, "
          "mesh, service, welding, monitor, remote."));
    row("names that are no numbers", curve + deck + S("deck grid c id 1 variable 1 variable2 2"),
        S("deck grid: Column 2 of table 'c' must have a number as its name, not 'temperature'."));
}

void TestKdqsh::errors()
{
    QFETCH(QString, commands);
    KdqshRun shell;
    prepare(shell);
    QVERIFY(shell.runCommands(commands, {S("--quiet")}));
    QFETCH(QString, error);
    if (error.endsWith(S("*\n"))) { // the rest is the system's text
        QVERIFY2(shell.errors.startsWith(error.chopped(2)), qPrintable(shell.errors));
        QCOMPARE(shell.errors.count(QLatin1Char('\n')), 1);
    } else {
        QCOMPARE(shell.errors, error);
    }
    QCOMPARE(shell.output, QString());
    QCOMPARE(shell.status, 1);
}

void TestKdqsh::deck_data()
{
    QTest::addColumn<QString>("commands");
    QTest::addColumn<QByteArray>("deck");

    const QString fixed = S("deck open a.dat fixed standard; ");
    const QString free = S("deck open a.dat; ");
    QTest::newRow("title and comment")
        << fixed + S("deck title Young's 'steel; plate'; deck comment; deck comment a b")
        << QByteArray("titleYoung's steel; plate\n$ \n$ a b\n");
    QTest::newRow("text") << fixed + S("deck keyword end option; deck key dist; deck text ' x'; deck break")
                          << QByteArray("end option\ndist       x\n");
    QTest::newRow("numbered lines") << fixed
            + S("deck element 7; deck feature 8; deck nodal 9; deck loadcase fire")
                                    << QByteArray("element    7\nfeature    8\nnodal    9\nloadcasefire\n");
    QTest::newRow("lists") << fixed
            + S("deck integers 2 1 2 3; deck reals 8 1.5 -2e3; deck format free; deck integers 8 1")
                           << QByteArray("    1    2 c\n    3\n1.50000E+0-2.0000E+3\n1,\n");
    QTest::newRow("column in its own unit")
        << S("table import curve.csv as c; ") + fixed + S("deck column 8 c temperature")
        << QByteArray("2.00000E+11.20000E+24.20000E+2\n");
    QTest::newRow("section key") << free + S("deck section table") << QByteArray("table,0,0,2,1,1,0,0,1,\n");
    QTest::newRow("table") << S("table import curve.csv as c; ") + fixed
            + S("deck table c id 3 variable 1 hold name t1")
                           << QByteArray(
                                  "tablet1\n    3    1    0    0    2\n    1    3    1\n"
                                  "0.00000E+02.00000E+1\n1.00000E+01.20000E+2\n3.00000E+04.20000E+2\n");
    QTest::newRow("grid with converted names")
        << S("table import wide.csv as w; ") + fixed
            + S("deck grid w id 4 variable 7 variable2 12 from degC to K name s")
        << QByteArray("tables\n    4    2    0    0    0\n    7    3    2   12    2    2\n"
                      "0.00000E+01.00000E-12.00000E-1\n2.93149E+24.73149E+2\n"
                      "0.00000E+01.00000E+21.50000E+2 c\n0.00000E+05.05000E+17.50000E+1\n");
    QTest::newRow("formula") << free + S("deck formula k id 4 variable 12 formula ' 5.4e1-v1**2'")
                             << QByteArray("table,k\n4,1,0,0,3,\n12,0,2,\n 5.4e1-v1**2\n");
    QTest::newRow("formula of the solver's own language")
        << free + S("deck formula k id 4 variable 12 unchecked formula 'max(1; v1)'")
        << QByteArray("table,k\n4,1,0,0,3,\n12,0,2,\nmax(1; v1)\n");
    QTest::newRow("formula with parameters")
        << free
            + S("parameter define k = -2; parameter define n=0.1+0.2; parameter define f = v1*k+v2; "
                "deck formula k id 4 variable 12 variable2 1 formula '2e3*kk(n) - f**n/e'")
        << QByteArray("table,k\n4,2,0,0,3,\n12,0,2,1,0,2,\n2e3*kk(0.30000000000000004) - "
                      "(v1*(-2)+v2)**0.30000000000000004/2.718281828459045\n");
    QTest::newRow("solver") << free + S("deck solver mumps uppercase nonsymmetric")
                            << QByteArray("SOLVER\n12,1,0,0,0,0,0,0,\nOPTIMIZE,11,\n");
    QTest::newRow("solver with comment")
        << free + S("deck solver iterative comment iterations 50 tolerance 1e-4")
        << QByteArray("$ Using sparse iterative solver (2)\nsolver\n2,0,0,0,0,0,0,0,\n50,1,5,\n"
                      "1.00000000000000E-4,\noptimize,9,\n");
    QTest::newRow("process") << free + S("deck process 3d material 1 type 4 noheat rigid 2 checkheat")
                             << QByteArray("autoforge,2,1,2,0,0,4,1,0,2,14,1,0,\n");
    QTest::newRow("automatic load") << fixed + S("deck autoload time 10 travel 2.5 steps 20 cutback 3")
                                    << QByteArray(
                                           "auto load\n   20    0   10    1    31.00000E+12.50000E+0\n");
    QTest::newRow("point load") << fixed
            + S("deck pointload nodes top body 2 force 1 2 -3 3d component plate")
                                << QByteArray(
                                       "$ Point load for component 'plate'.\npoint load\n    1    0    0\n"
                                       "    1    0    0    0    0    0ptld_2_top\n"
                                       "1.00000E+02.00000E+0-3.0000E+0\n    0    0    0\n    2\ntop\n");
    QTest::newRow("point current") << fixed
            + S("deck pointcurrent label l node n current 1.5 unit kA table 6")
                                   << QByteArray(
                                          "point current\n    0    0\n    1    0    0    0    0    0l\n"
                                          "1.50000E+30.00000E+00.00000E+0\n    6    0    0\n    2\nn\n");
    QTest::newRow("undo takes lines back, redo writes them again")
        << fixed + S("deck comment a; deck comment b; undo; deck comment c; redo; undo; undo; redo; redo")
        << QByteArray("$ a\n$ c\n$ b\n");
    QTest::newRow("undo of a format")
        << fixed + S("deck format free; undo; deck integers 8 1; deck flush") << QByteArray("    1\n");
    QTest::newRow("closed before the end")
        << fixed + S("deck comment a; deck close; log flush") << QByteArray("$ a\n");
    QTest::newRow("non-ASCII text") << fixed + S("deck title Plattenhöhe; deck comment 20 °C")
                                    << S("titlePlattenhöhe\n$ 20 °C\n").toLocal8Bit();
}

void TestKdqsh::deck()
{
    QFETCH(QString, commands);
    KdqshRun shell;
    prepare(shell);
    QVERIFY(shell.runCommands(commands));
    QCOMPARE(shell.errors, QString());
    QTEST(shell.read(S("a.dat")), "deck");
    QCOMPARE(shell.status, 0);
}

void TestKdqsh::scriptStopsOrGoesOn_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("errors");
    QTest::addColumn<QByteArray>("deck");

    const QString missing =
        S("run.kdqsh:3: table import: 'none.csv' cannot be read: %1\n").arg(missingFileText());
    const QString others = S("run.kdqsh:5: Unknown command: >bogus<!\n"
                             "run.kdqsh:6: The quote \" in column 14 is not closed.\n");
    QTest::newRow("stops") << QStringList() << missing << QByteArray("$ one\n");
    QTest::newRow("stops when told") << QStringList{S("--stop-on-error")} << missing << QByteArray("$ one\n");
    QTest::newRow("goes on") << QStringList{S("--keep-going")} << missing + others
                             << QByteArray("$ one\n$ two\n$ three\n");
    QTest::newRow("goes on, short") << QStringList{S("-k")} << missing + others
                                    << QByteArray("$ one\n$ two\n$ three\n");
}

void TestKdqsh::scriptStopsOrGoesOn()
{
    QFETCH(QStringList, options);
    KdqshRun shell;
    QVERIFY(
        shell.write(S("run.kdqsh"),
                    "\xEF\xBB\xBF"
                    "deck open a.dat # begins\r\ndeck comment one\r\ntable import none.csv\r\n"
                    "deck comment two\r\nbogus\r\ndeck comment \"open\r\ndeck comment \\\r\n  three\r\n"));
    QVERIFY(shell.run(options + QStringList{S("run.kdqsh")}));
    QTEST(shell.errors, "errors");
    QTEST(shell.read(S("a.dat")), "deck");
    QCOMPARE(shell.status, 1);
}

void TestKdqsh::commandLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("output"); // begins so
    QTest::addColumn<QString>("errors");
    QTest::addColumn<int>("status");

    QTest::newRow("help") << QStringList{S("--help")} << S("Usage: ") << QString() << 0;
    QTest::newRow("version") << QStringList{S("--version")} << S("kdqsh " KDQSH_VERSION "\nQt 5.")
                             << QString() << 0;
    QTest::newRow("colour") << QStringList{S("--color=red")} << QString()
                            << S("kdqsh: --color takes auto, always or never, not 'red'.\n") << 2;
    QTest::newRow("colours always") << QStringList{S("--color=always"), S("-c"), S("bogus")} << QString()
                                    << S("\033[31m-c:1: Unknown command: >bogus<!\033[0m\n") << 1;
    QTest::newRow("unknown option") << QStringList{S("--frobnicate")} << QString()
                                    << S("kdqsh: Unknown option 'frobnicate'.\n") << 2;
    QTest::newRow("missing script") << QStringList{S("none.kdqsh")} << QString()
                                    << S("'none.kdqsh' cannot be read: %1\n").arg(missingFileText()) << 2;
    QTest::newRow("two scripts") << QStringList{S("a"), S("b")} << QString()
                                 << S("kdqsh: Only one script or one -c can be run.\n") << 2;
    QTest::newRow("contradiction") << QStringList{S("-k"), S("--stop-on-error"), S("-c"), S("quit")}
                                   << QString()
                                   << S("kdqsh: --keep-going and --stop-on-error exclude each other.\n") << 2;
    QTest::newRow("line breaks in commands")
        << QStringList{S("-c"), S("history\nbogus")} << S("   1  history\n")
        << S("-c:2: Unknown command: >bogus<!\n") << 1;
}

void TestKdqsh::commandLine()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, output);
    KdqshRun shell;
    QVERIFY(shell.run(arguments));
    QVERIFY2(shell.output.startsWith(output) && shell.output.isEmpty() == output.isEmpty(),
             qPrintable(shell.output));
    QTEST(shell.errors, "errors");
    QTEST(shell.status, "status");
}

void TestKdqsh::standardInputIsRead()
{
    KdqshRun shell;
    prepare(shell);
    const QByteArray script("table import curve.csv as c\ntable lookup c 2\nbogus\ntable lookup c 1\n");
    for (const QStringList& arguments : {QStringList{S("-q")}, QStringList{S("-q"), S("-")}}) {
        QVERIFY(shell.run(arguments, script));
        QCOMPARE(shell.output, S("270 °C\n"));
        QCOMPARE(shell.errors, S("stdin:3: Unknown command: >bogus<!\n"));
        QCOMPARE(shell.status, 1);
    }
    QVERIFY(shell.run({}, "table list \\"));
    QCOMPARE(shell.errors, S("stdin:1: The input ends within a continued line.\n"));
    QCOMPARE(shell.status, 1);
}

void TestKdqsh::dataBesideTheScriptIsFound()
{
    KdqshRun shell;
    prepare(shell);
    QVERIFY(QDir(shell.folder()).mkpath(S("my scripts")));
    QVERIFY(shell.write(S("my scripts/beside.csv"), "x;y\n1;11\n"));
    QVERIFY(shell.write(S("my scripts/curve.csv"), "x;y\n1;12\n"));
    QVERIFY(shell.write(S("my scripts/s.kdqsh"),
                        "table import beside.csv as b; table lookup b 1\n"
                        "table import curve.csv as c; table lookup c 1\n"));
    QVERIFY(shell.run({S("-q"), S("my scripts/s.kdqsh")}));
    QCOMPARE(shell.output, S("11 -\n120 °C\n"));
    QCOMPARE(shell.errors, QString());
}

void TestKdqsh::fullDeviceIsReported()
{
    if (!QFile::exists(S("/dev/full")))
        QSKIP("no device that is always full");
    KdqshRun shell;
    prepare(shell);
    QVERIFY(shell.runCommands(S("deck open /dev/full\ndeck comment a\ndeck close\nundo"), {S("-k")}));
    QVERIFY2(shell.errors.startsWith(
                 S("-c:2: deck comment: The deck '/dev/full' cannot be written: No space left")),
             qPrintable(shell.errors));
    QVERIFY2(shell.errors.contains(S("-c:3: deck close: The deck '/dev/full' cannot be written:")),
             qPrintable(shell.errors));
    QCOMPARE(shell.status, 1);

    for (const QString& form : {S("table export xml"), S("table export text"), S("csv export")}) {
        QVERIFY(shell.runCommands(S("table import curve.csv as c; %1 c /dev/full").arg(form)));
        QVERIFY2(shell.errors.startsWith(S("-c:1: %1: '/dev/full' cannot be written: No space left")
                                             .arg(form.section(QLatin1Char(' '), 0, 1))),
                 qPrintable(shell.errors));
        QCOMPARE(shell.status, 1);
    }
}

void TestKdqsh::exportIsReadBack_data()
{
    QTest::addColumn<QString>("write");
    QTest::addColumn<QString>("read");
    QTest::newRow("xml") << S("table export xml c 'my table.xml'") << S("table load 'my table.xml' as d");
    QTest::newRow("text") << S("table export text c t.csv") << S("table import t.csv as d");
    QTest::newRow("text with tabs") << S("table export text c t.csv tab") << S("table import t.csv as d");
    QTest::newRow("csv with bars") << S("csv export c t.csv separator | decimal comma titles")
                                   << S("table import t.csv as d");
    QTest::newRow("text with commas") << S("table export text c t.csv ','") << S("table import t.csv as d");
    QTest::newRow("csv") << S("csv export c t.csv separator ';' titles") << S("table import t.csv as d");
    QTest::newRow("csv with every word")
        << S("csv export c t.csv separator tab decimal comma titles mark protect")
        << S("table import t.csv as d");
    QTest::newRow("text with blanks") << S("table export text c t.csv blank") << S("table import t.csv as d");
}

void TestKdqsh::exportIsReadBack()
{
    QFETCH(QString, write);
    QFETCH(QString, read);
    KdqshRun shell;
    prepare(shell);
    QVERIFY(shell.runCommands(S("table import curve.csv as c; table show c"), {S("-q")}));
    const QString expected = shell.output;
    QVERIFY(shell.runCommands(
        S("table import curve.csv as c; %1; table remove c; %2; table show d").arg(write, read), {S("-q")}));
    QCOMPARE(shell.errors, QString());
    QCOMPARE(shell.output, expected);
}

void TestKdqsh::decksAreReadBack()
{
    KdqshRun shell;
    prepare(shell);
    QVERIFY(shell.runCommands(S("table import curve.csv as c; deck open a.dat free standard; "
                                "deck table c id 3 variable 1 name t1; deck solver mumps; deck close; "
                                "deck open b.dat fixed standard; deck table c id 3 variable 1 name t1; "
                                "deck solver mumps nonsymmetric; deck close")));
    QVERIFY(shell.runCommands(S("deck diff a.dat b.dat")) && shell.status == 1);
    QVERIFY2(shell.output.contains(S("solver: words that differ: 1")), qPrintable(shell.output));
    QVERIFY(shell.write(S("lines.txt"), "solver\n12,1,0,0,0,0,0,0,\noptimize,11,\n"));
    QVERIFY(shell.runCommands(S("deck patch a.dat replace solver with lines.txt keep; deck diff a.dat b.dat; "
                                "deck check a.dat; deck tables a.dat; table lookup t1 0.5")));
    QVERIFY2(shell.status == 0 && shell.output.endsWith(S("70\n")), qPrintable(shell.output + shell.errors));
    QVERIFY(shell.write(S("bad.dat"), "solver\n7,0,0,0,0,0,0,0,\n"));
    QVERIFY(shell.runCommands(S("deck check bad.dat")) && shell.status == 1);
    QVERIFY2(shell.output.contains(S("line 2, column 1: error: solver: 7 is the number of no solver.")),
             qPrintable(shell.output));
}

void TestKdqsh::csv_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QByteArray>("file"); // without the lines that begin with "# CSV" and "# Date"
    const QByteArray name("#\n# Table: c\n#\n");
    QTest::newRow("nothing said") << QString()
                                  << name
            + "# time [min];temperature [\xC2\xB0"
              "C]\n0;20\n1;120\n3;420\n";
    QTest::newRow("all separators") << S("decimal comma separator ',' units h prefix %")
                                    << QByteArray("%\n% Units in this file\n% Time: hour [h]\n% Table: c\n%\n"
                                                  "% time [h],temperature [\xC2\xB0"
                                                  "C]\n0,20\n"
                                                  "\"0,016666666666666666\",120\n\"0,05\",420\n");
    QTest::newRow("titles alone, units of both") << S("titles units s,K separator tab mark")
                                                 << QByteArray("\xEF\xBB\xBFtime [s]\ttemperature [K]\n"
                                                               "0\t293.15\n60\t393.15\n180\t693.15\n");
    QTest::newRow("bare") << S("bare separator blank") << QByteArray("0 20\n1 120\n3 420\n");
}

void TestKdqsh::csv()
{
    QFETCH(QString, words);
    KdqshRun shell;
    prepare(shell);
    QVERIFY(shell.runCommands(S("table import curve.csv as c; csv export c a.csv ") + words));
    QCOMPARE(shell.errors, QString());
    QString text = QString::fromUtf8(shell.read(S("a.csv")));
    text.remove(QLatin1Char('\r'));
    text.remove(
        QRegularExpression(S("^. (CSV file produced by kdqsh " KDQSH_VERSION "|Date of creation: .*)\n"),
                           QRegularExpression::MultilineOption));
    QFETCH(QByteArray, file);
    QCOMPARE(text, QString::fromUtf8(file));
}

void TestKdqsh::csvSettingsAreKept()
{
    KdqshRun shell;
    prepare(shell);
    const QString exported = S("table import curve.csv as c; table convert c x h; csv export c a.csv bare");
    QVERIFY(shell.runCommands(S("csv settings"), {S("-q")}));
    QCOMPARE(shell.output, S("separator ';' decimal point\n"));
    QVERIFY(shell.runCommands(S("csv settings decimal comma separator tab"), {S("-q")}));
    QVERIFY(shell.runCommands(
        S("csv settings separator | ; csv settings decimal point; csv settings decimal comma"), {S("-q")}));
    QCOMPARE(shell.output,
             S("separator '|' decimal comma\nseparator '|' decimal point\n"
               "separator '|' decimal comma\n"));
    QVERIFY(shell.runCommands(exported));
    QVERIFY(shell.read(S("a.csv")).contains("\n0,05|420"));
    QVERIFY(shell.runCommands(exported + S(" decimal point")));
    QVERIFY(shell.read(S("a.csv")).contains("\n0.05|420"));
    QVERIFY(QFile::exists(shell.path(S("data/kaldoran/kdqsh.ini"))));
}

void TestKdqsh::paths_data()
{
    QTest::addColumn<QString>("commands");
    QTest::addColumn<QString>("output"); // begins so; "#" stands for the run's folder
    QTest::newRow("list") << S("paths")
                          << S("base                 exists   #/inst/kaldoran (option -basePath)\n"
                               "versionroot          exists   #/inst/kaldoran (derived)\n"
                               "additive             missing  #/inst/kaldoran/additive (derived)\n");
    QTest::newRow("set, derived, taken back")
        << S("paths set welding inst; paths show weldingdemos; paths reset welding; paths show welding")
        << S("#/inst/demos\n#/inst/kaldoran/welding\n");
    QTest::newRow("all anew") << S("paths set mesh inst; paths reset; paths show mesh; paths application jes")
                              << S("#/inst/kaldoran/tools/kaldoran.mesh\n"
                                   "#/inst/kaldoran/tools/bin/kaldoran.jes\n");
    QTest::newRow("executables") << S("paths store welding 2018.1 curve.csv; paths executables; "
                                      "paths executable welding 2018.1.0; paths remove welding 2018.1; "
                                      "paths executables; paths show components")
                                 << S("Kaldoran_Welding_2018.1.0.0: #/curve.csv\n#/curve.csv\n"
                                      "#/inst/kaldoran/components\n");
}

void TestKdqsh::paths()
{
    QFETCH(QString, commands);
    QFETCH(QString, output);
    KdqshRun shell;
    prepare(shell);
    QVERIFY(QDir(shell.folder()).mkpath(S("inst/kaldoran/welding")));
    QVERIFY(shell.runCommands(commands, {S("-basePath"), S("inst/kaldoran")}));
    QCOMPARE(shell.errors, QString());
    QString shown = QDir::fromNativeSeparators(shell.output).replace(shell.folder(), S("#"));
    shown.remove(S(".exe"));
    QCOMPARE(shown.left(output.size()), output);
    if (!kdqOnWindows)
        QVERIFY(shell.read(S("data/config/Kaldoran/Kaldoran_paths.ini")).contains("/inst/kaldoran\n"));
    QVERIFY(shell.runCommands(S("paths forget")));
    QVERIFY(!shell.read(S("data/config/Kaldoran/Kaldoran_paths.ini")).contains("BasePath"));
}

void TestKdqsh::languageIsChosen_data()
{
    QTest::addColumn<QString>("environment");
    QTest::addColumn<QString>("commands");
    QTest::addColumn<QString>("errors");

    const QString english = S("-c:1: table show: There is no table 'x'; none has been imported yet.\n");
    const QString german =
        S("-c:1: table show: Es gibt keine Tabelle „x“; es wurde noch keine importiert.\n");
    QTest::newRow("English") << S("en_GB") << S("table show x") << english;
    QTest::newRow("German user") << S("de_AT:en") << S("table show x") << german;
    QTest::newRow("neither") << S("fi") << S("table show x") << english;
    QTest::newRow("chosen") << S("en") << S("language de; table show x") << german;
    QTest::newRow("chosen back") << S("de") << S("language en; table show x") << english;
    QTest::newRow("undone") << S("en") << S("language de; undo; table show x") << english;
}

void TestKdqsh::languageIsChosen()
{
    QFETCH(QString, environment);
    QFETCH(QString, commands);
    KdqshRun shell;
    shell.setVariable(S("LANGUAGE"), environment);
    QVERIFY(shell.runCommands(commands, {S("-q")}));
    QTEST(shell.errors, "errors");
}

void TestKdqsh::helpStandsInTheDocumentation()
{
    QFile page(qEnvironmentVariable("KDQ_TEST_DATA") + S("/docs/kdqsh.md"));
    QVERIFY(page.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(page.readAll());
    KdqshRun shell;
    QVERIFY(shell.runCommands(S("help")));
    QVERIFY(text.contains(S("```\n%1```\n").arg(shell.output)));
    QStringList topics{S("prompt"), S("table import")};
    const QRegularExpression group(S("^(\\w+) \\.\\.\\.$"), QRegularExpression::MultilineOption);
    for (auto groups = group.globalMatch(shell.output); groups.hasNext();)
        topics.append(groups.next().captured(1));
    QVERIFY(topics.size() > 2);
    for (const QString& topic : qAsConst(topics)) {
        QVERIFY(shell.runCommands(S("help ") + topic));
        QVERIFY2(text.contains(S("```\n%1```\n").arg(shell.output)), qPrintable(topic));
    }
}

void TestKdqsh::logHoldsTheRun()
{
    KdqshRun shell;
    QVERIFY(shell.runCommands(S("log echo 4; log write 4 'an error; told'; log write 3 quiet; log path")));
    QCOMPARE(shell.errors, S("log 4 Command          an error; told\n"));
    const QString path = shell.output.trimmed();
    QVERIFY2(path.startsWith(shell.path(S("data/kaldoran/log/kdqsh"))), qPrintable(path));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString log = QString::fromLocal8Bit(kdqWithPlainLineEnds(file.readAll()));
    for (const QString& pattern :
         {S("^4.*Command          an error; told$"), S("^3.*Command          quiet$"),
          S("^0.*Command          kdCommandDispatcher created\\.$"), S("Working directory: ")})
        QVERIFY2(log.contains(QRegularExpression(pattern, QRegularExpression::MultilineOption)),
                 qPrintable(pattern));
}

void TestKdqsh::onlyTheDataFolderIsWritten()
{
    KdqshRun shell;
    prepare(shell);
    const auto entries = [&shell] {
        QStringList names =
            QDir(shell.folder()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
        names.sort();
        return names;
    };
    QStringList expected = entries() + QStringList{S("data")};
    expected.sort();
    QVERIFY(shell.runCommands(S("table import curve.csv as c; table convert c x s; undo; help; bogus")));
    QCOMPARE(entries(), expected);
}

KDQ_TEST_MAIN(TestKdqsh)
#include "tst_kdqsh.moc"
