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

private:
    static void prepare(KdqshRun& shell);
};

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
    kdqRow("nothing", "", "");
    kdqRow("list of tables", curve + S("table list"), "Table 'c': 3 rows, 2 columns.\n");
    kdqRow("name from the file", "table import curve.csv; table list", "Table 'curve': 3 rows, 2 columns.\n");
    kdqRow("show all and some", curve + S("table show c; table show c 1"),
           "time [min]  temperature [°C]\n"
           "         0                20\n"
           "         1               120\n"
           "         3               420\n"
           "time [min]  temperature [°C]\n"
           "         0                20\n");
    kdqRow("info", curve + S("table info c"),
           "Table 'c': 3 rows, 2 columns.\n"
           "time: Time [min], 0 to 3, increasing\n"
           "temperature: Temperature [°C], 20 to 420, increasing\n");
    kdqRow("lookup, at the end and beyond it",
           curve
               + S("table lookup c 2; table lookup c 4 temperature; table lookup c 4 y zero; table lookup c "
                   "2 1"),
           "270 °C\n420 °C\n0 °C\n2 min\n");
    kdqRow("convert", curve + S("table convert c x s y K; table lookup c 120"), "543.15 K\n");
    kdqRow("convert all columns but the first",
           "table import wide.csv as w; table unit w y MPa; table convert w y Pa; table lookup w 0.1 200",
           "50500000 Pa\n");
    kdqRow("undo of a conversion, past a query",
           curve + S("table convert c x s; table list; undo; table lookup c 1"),
           "Table 'c': 3 rows, 2 columns.\n120 °C\n");
    kdqRow("redo", curve + S("table convert c x s; undo; redo; table lookup c 60"), "120 °C\n");
    kdqRow("undo of an import that replaced a table",
           curve + S("table import wide.csv as c; undo; table list"), "Table 'c': 3 rows, 2 columns.\n");
    kdqRow("rename and undo", curve + S("table rename c d; table list; undo; table list"),
           "Table 'd': 3 rows, 2 columns.\nTable 'c': 3 rows, 2 columns.\n");
    kdqRow("remove and undo", curve + S("table remove c; table list; undo; table list"),
           "Table 'c': 3 rows, 2 columns.\n");
    kdqRow("rename to itself", curve + S("table rename c c; table list"), "Table 'c': 3 rows, 2 columns.\n");
    kdqRow("extract swaps", curve + S("table extract c y x as inverse; table lookup inverse 270"), "2 min\n");
    kdqRow("copy is apart",
           curve + S("table copy c d; table scale d y 2; table lookup c 1; table lookup d 1"),
           "120 °C\n240 °C\n");
    kdqRow("sort", "table import falling.csv as f; table sort f descending; table lookup f 1.5", "2.5 -\n");
    kdqRow("combine",
           curve + S("table copy c d; table scale d y 2; table combine c average d as m; table lookup m 1"),
           "180 °C\n");
    const QString parameters = S("parameter define power = u * i; parameter define u=24 + t/10; "
                                 "parameter define i = 2e1; parameter define t = -5; ");
    kdqRow("parameters in the order of their use",
           parameters + S("parameter list; parameter value; parameter value power"),
           "t = -5\nu = 24 + t/10\ni = 2e1\npower = u * i\n"
           "t = -5\nu = 23.5\ni = 20\npower = 470\n470\n");
    kdqRow("value beside what is not defined",
           "parameter define a = b; parameter define c = 2; parameter value c; parameter list",
           "2\na = b\nc = 2\n");
    kdqRow("undo of parameters",
           parameters
               + S("parameter define t = 5; undo; parameter remove i; undo; redo; undo; parameter value u"),
           "23.5\n");
    kdqRow("formula as understood", "formula check -x^2 + sin(30) or b", "(-(x^2) + sin(30)) or b\n");
    kdqRow("variables, value",
           parameters
               + S("formula evaluate 'power > 400 ? u : 1/0'; parameter define w = y; "
                   "formula variables 'y + u*pi + w'"),
           "23.5\ny\nu = 23.5\nw\n");
    kdqRow("formula over a variable, which hides a parameter and reaches those that use it",
           parameters + S("formula evaluate u over t from 0 to 5 points 3"),
           "t [-]  value [-]\n    0         24\n  2.5      24.25\n    5       24.5\n");
    kdqRow("table of a formula",
           "formula tabulate x^2 over x from 0 to 0.3 points 4 xunit mm yunit N as f; table info f; table "
           "lookup f 0.3; undo; table list",
           "Table 'f': 4 rows, 2 columns.\nx: Length [mm], 0 to 0.3, increasing\n"
           "f: Force [N], 0 to 0.09, increasing\n0.09 N\n");
    kdqRow("names",
           "name internal 'Platte (oben)' obj-platteoben; name unique display Table-3 table-3; name unique "
           "internal Tür; name number Part 2 part-1; name check display ' a ' b; name check internal ok",
           "Obj-Platteoben-2\nTable-4\nT-r\nPart-2\nPart-3\na\nThe name ' a ' holds control characters, or "
           "blanks at its ends.\nok\n");
    kdqRow("history", "table  list;log flush ;history", "   1  table list\n   2  log flush\n   3  history\n");
    kdqRow("quit ends", curve + S("quit; table list"), "");
    kdqRow("help of a command", "help undo",
           "undo\n    Takes back the last command that changed something.\nExample:\n"
           "    parameter define power = 24*20\n    undo\n    parameter list\n");
    kdqRow("comment", curve + S("table lookup c 1 # table list"), "120 °C\n");
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
    const auto row = [](const char* name, const QString& commands, const char* error) {
        kdqRow(name, commands, S("-c:1: %1\n").arg(QString::fromUtf8(error)));
    };
    row("unknown command", S("matrix list"), "Unknown command: >matrix list<!");
    row("unknown table command", S("table lst x"),
        "table: Unknown command: >table lst<! Known are: list, import, load, export, show, info, lookup, "
        "convert, unit, extract, copy, rename, remove, sort, scale, combine.");
    row("group alone", S("log"), "log: 'log' needs one of: path, echo, write, flush.");
    row("missing arguments", S("table rename c"), "table rename: Usage: table rename NAME NEW");
    row("too many arguments", S("table list all"), "table list: Usage: table list");
    row("open quote", S("table show 'c"), "The quote ' in column 12 is not closed.");
    row("missing file", S("table import none.csv as c"), "table import: 'none.csv' cannot be read: *");
    row("text instead of a number", S("table import bad.csv"),
        "table import: 'bad.csv': row 3, column 2: 'abc' is not a number");
    row("broken XML", S("table load bad.xml"), "table load: 'bad.xml', line 2: Premature end of document.");
    row("text instead of XML", S("table load bad.csv"), "table load: 'bad.csv', line 1: Start tag expected.");
    row("table that does not fit a card",
        S("table import falling.csv as f; ") + deck + S("deck table f id 1 variable 1"),
        "deck table: Table 'f' does not fit the card: x must not descend, *");
    row("curves that do not fit", curve + S("table import wide.csv as w; table combine c sum w as q"),
        "table combine: Tables 'c' and 'w' do not fit: two columns each, X rising or falling, units that "
        "convert, ranges that meet.");
    row("misplaced as", S("table import curve.csv at c"),
        "table import: 'as' and a name are missing after the file.");
    row("no such table", curve + S("table show d"), "table show: There is no table 'd', only c.");
    row("no table at all", S("table show d"),
        "table show: There is no table 'd'; none has been imported yet.");
    row("no such column", curve + S("table lookup c 1 3"),
        "table lookup: Table 'c' has no column '3'; number of columns: 2.");
    row("not a number", curve + S("table lookup c 1,5"), "table lookup: X must be a number, not '1,5'.");
    row("wrong unit", curve + S("table convert c x MPa"),
        "table convert: Column 'time' in min cannot be converted to 'MPa'.");
    row("no unit", curve + S("table unit c x parsec"), "table unit: 'parsec' is no unit.");
    row("nothing to undo", S("undo"), "undo: There is nothing that can be undone.");
    row("nothing to redo", S("redo"), "redo: There is nothing to redo.");
    row("own word with arguments", S("undo all"), "undo: 'undo' takes no arguments.");
    row("unknown help", S("help me"), "help: There is no command 'me'; 'help' shows them all.");
    row("wrong severity", S("log write 7 x"), "log write: A severity is 0 to 6, not 7.");
    row("csv into nowhere", curve + S("csv export c none/a.csv"),
        "csv export: 'none/a.csv' cannot be written: *");
    row("unknown word of csv", curve + S("csv export c a.csv semicolon"),
        "csv export: 'semicolon' is unknown here; possible are: separator, decimal, units, prefix, titles, "
        "bare, protect, mark.");
    row("csv with two headers", curve + S("csv export c a.csv bare titles"),
        "csv export: 'titles' and 'bare' exclude each other.");
    row("wrong decimal mark", curve + S("csv export c a.csv decimal ,"),
        "csv export: ',' is no decimal mark; possible are point and comma.");
    row("wrong unit of csv", curve + S("csv export c a.csv units s,MPa"),
        "csv export: No column of table 'c' can be converted to 'MPa'.");
    row("parameters in a circle",
        S("parameter define a = b; parameter define b = 2*c; parameter define c = a+1"),
        "parameter define: The formulas use each other in a circle: a -> b -> c -> a.");
    row("parameter that uses what is not defined", S("parameter define a = b; parameter value"),
        "parameter value: The formula of 'a' uses 'b', which is not defined.");
    row("parameter that cannot be read", S("parameter define a = 2 +* 3"),
        "parameter define: The formula of 'a' cannot be read: Syntax error. Line 1, column 4: *");
    row("no name of a parameter", S("parameter define e = 1"),
        "parameter define: 'e' cannot be the name of a formula.");
    row("no formula of a parameter", S("parameter define a 1"),
        "parameter define: '=' is missing between name and formula.");
    row("no such parameter", S("parameter define a = 1; parameter value b"),
        "parameter value: There is no parameter 'b', only a.");
    row("formula that cannot be read", S("formula check 'max(1,x)'"),
        "formula check: Math expression 'max(1,x)': Syntax error., Line 1, column 6: *");
    row("unknown function", S("formula check foo(x)"),
        "formula check: The formula contains unknown functions: foo");
    row("formula without a value", S("formula evaluate x/0"), "formula evaluate: Undefined variable(s): x.");
    row("formula that fails on the way", S("formula tabulate 1/x over x from -2 to 2 points 5 as f"),
        "formula tabulate: x = 0: Division by zero. In expression: (1 / x) which evaluates to: (1 / 0)");
    row("table without a variable", S("formula tabulate x^2 from 0 to 1 as f"),
        "formula tabulate: The table needs a variable that runs (over NAME) and a name of its own (as "
        "NEW).");
    row("range without length", S("formula evaluate x over x from 1 to 1"),
        "formula evaluate: 'x' needs two ends to run between (from A to B).");
    row("range of nothing", S("formula evaluate x from 1 to 2"),
        "formula evaluate: The variable that runs is missing (over NAME).");
    row("too few points", S("formula evaluate x over x from 0 to 1 points 1"),
        "formula evaluate: The number of points must be 2 to 10000000, not 1.");
    row("formula that grows beyond measure",
        S("parameter define a1 = x + x;") + doublings + S("formula evaluate a20 over x from 0 to 1"),
        "formula evaluate: With the parameters that it uses, the formula is longer than 100000 "
        "characters.");
    row("kind of name", S("name unique file x"),
        "name unique: 'file' is no kind of name; possible are display and internal.");
    row("nobody listens", S("ipc greet welding 1"), "ipc greet: No process 1 listens as welding: *");
    row("product that does not listen", S("ipc listen mesh"),
        "ipc listen: 'mesh' is no product that listens; possible are: forming, welding, joining, jes, "
        "material, additive.");
    row("no connection", S("tcp send x"),
        "tcp send: There is no connection; see 'tcp serve' and 'tcp connect'.");
    row("no port", S("tcp connect localhost 0"), "tcp connect: A port is 1 to 65535, not 0.");
    row("no address", S("remote serve address here"),
        "remote serve: 'here' is no address of the form 127.0.0.1 or ::1.");
    row("name without an address", S("tcp connect no.invalid 1"),
        "tcp connect: Cannot connect to no.invalid, port 1: The name has no address.");
    row("no timeout", S("tcp serve timeout 0"),
        "tcp serve: A timeout is more than 0 and up to 1000000 seconds, not 0.");
    row("no time", S("ipc listen jes seconds 0"), "ipc listen: 'seconds' must be from 1 to 86400, not 0.");
    row("no deck", S("deck title x"), "deck title: No deck is open; see 'deck open'.");
    row("wrong layout", S("deck open a.dat wide"),
        "deck open: 'wide' is no layout; possible are fixed, free, standard, extended.");
    row("folder instead of deck", S("deck open ."),
        "deck open: The deck '.' cannot be opened for writing: *");
    row("two decks", deck + S("deck open b.dat"),
        "deck open: The deck 'a.dat' is still open; see 'deck close'.");
    row("empty formula", deck + S("deck formula k id 1 variable 1 formula ' '"),
        "deck formula: The formula of table 'k' is empty.");
    row("formula that the deck does not take", deck + S("deck formula k id 1 variable 1 formula 'v1 +'"),
        "deck formula: Math expression 'v1 +': Syntax error., Line 1, column 5: *");
    row("formula of an unknown name", deck + S("deck formula k id 1 variable 1 formula v2"),
        "deck formula: 'v2' in the formula is neither a variable of the table (v1) nor a parameter.");
    row("table without id", curve + deck + S("deck table c variable 1 hold name x"),
        "deck table: The table needs an id above 0 (id ID).");
    row("unknown parameter", deck + S("deck process 4d"),
        "deck process: '4d' is unknown here; possible are: 3d, material, licences, type, noheat, kin, "
        "rigid, version, checkheat, contact.");
    row("parameter twice", deck + S("deck process 3d 3d"), "deck process: '3d' is given twice.");
    row("missing value", deck + S("deck pointload body 1 force 1 2"),
        "deck pointload: Too few values after 'force', which takes 3.");
    row("incomplete point load", deck + S("deck pointload body 1"),
        "deck pointload: The point load needs a list of nodes (nodes NAME) and a body of 0 or above (body "
        "ID); the deck holds comments instead.");
    row("incomplete point current", deck + S("deck pointcurrent label a current 5"),
        "deck pointcurrent: Missing control node.");
    row("unknown solver", deck + S("deck solver gauss"),
        "deck solver: 'gauss' is no solver; possible are: automatic, pardiso, multifrontal, mumps, "
        "iterative, sparse, casi, profile, mixed.");
    row("list of no numbers", deck + S("deck integers 8 1 2.5"),
        "deck integers: Number 2 must be a whole number, not '2.5'.");
    row("folder that cannot be set", S("paths set forming ."),
        "paths set: 'forming' cannot be set, only versionroot, additive, joining, welding, mesh, "
        "additivedemos, weldingdemos, weldingexamples.");
    row("missing folder", S("paths set mesh none"), "paths set: There is no folder 'none'.");
    row("missing file", S("paths store mesh 1 none"), "paths store: There is no file 'none'.");
    row("no executable", S("paths executable mesh 1"),
        "paths executable: No executable is stored for Kaldoran Mesh 1.");
    row("malformed version", S("paths remove mesh 1.x"),
        "paths remove: A version is one to four numbers with dots between, not '1.x'.");
    row("unknown product", S("paths application x"),
        "paths application: There is no product 'x', only additive, demos, forming, jes, joining, "
        "material, mesh, service, welding, monitor, remote.");
    row("names that are no numbers", curve + deck + S("deck grid c id 1 variable 1 variable2 2"),
        "deck grid: Column 2 of table 'c' must have a number as its name, not 'temperature'.");
}

void TestKdqsh::errors()
{
    QFETCH(QString, commands);
    KdqshRun shell;
    prepare(shell);
    QVERIFY(shell.runCommands(commands, {S("--quiet")}));
    QFETCH(QString, error);
    if (error.endsWith(S("*\n"))) { // the rest is told elsewhere
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
    kdqRow(
        "texts and numbers",
        fixed
            + S("deck title Young's 'steel; plate'; deck comment; deck comment a b; deck keyword end option; "
                "deck key dist; deck text ' x'; deck break; deck element 7; deck feature 8; deck nodal 9; "
                "deck loadcase fire; deck integers 2 1 2 3; deck reals 8 1.5 -2e3; deck format free; "
                "deck integers 8 1; deck section table"),
        QByteArray("titleYoung's steel; plate\n$ \n$ a b\nend option\ndist       x\n"
                   "element    7\nfeature    8\nnodal    9\nloadcasefire\n"
                   "    1    2 c\n    3\n1.50000E+0-2.0000E+3\n1,\ntable,0,0,2,1,1,0,0,1,\n"));
    kdqRow("column in its own unit",
           S("table import curve.csv as c; ") + fixed + S("deck column 8 c temperature"),
           QByteArray("2.00000E+11.20000E+24.20000E+2\n"));
    kdqRow("table",
           S("table import curve.csv as c; ") + fixed + S("deck table c id 3 variable 1 hold name t1"),
           QByteArray("tablet1\n    3    1    0    0    2\n    1    3    1\n"
                      "0.00000E+02.00000E+1\n1.00000E+01.20000E+2\n3.00000E+04.20000E+2\n"));
    kdqRow("grid with converted names",
           S("table import wide.csv as w; ") + fixed
               + S("deck grid w id 4 variable 7 variable2 12 from degC to K name s"),
           QByteArray("tables\n    4    2    0    0    0\n    7    3    2   12    2    2\n"
                      "0.00000E+01.00000E-12.00000E-1\n2.93149E+24.73149E+2\n"
                      "0.00000E+01.00000E+21.50000E+2 c\n0.00000E+05.05000E+17.50000E+1\n"));
    kdqRow("formulas, one in the solver's own language",
           free
               + S("deck formula k id 4 variable 12 formula ' 5.4e1-v1**2'; "
                   "deck formula k id 5 variable 12 unchecked formula 'max(1; v1)'"),
           QByteArray("table,k\n4,1,0,0,3,\n12,0,2,\n 5.4e1-v1**2\n"
                      "table,k\n5,1,0,0,3,\n12,0,2,\nmax(1; v1)\n"));
    kdqRow("formula with parameters",
           free
               + S("parameter define k = -2; parameter define n=0.1+0.2; parameter define f = v1*k+v2; deck "
                   "formula k id 4 variable 12 variable2 1 formula '2e3*kk(n) - f**n/e'"),
           QByteArray("table,k\n4,2,0,0,3,\n12,0,2,1,0,2,\n2e3*kk(0.30000000000000004) - "
                      "(v1*(-2)+v2)**0.30000000000000004/2.718281828459045\n"));
    kdqRow("solvers, process",
           free
               + S("deck solver mumps uppercase nonsymmetric; "
                   "deck solver iterative comment iterations 50 tolerance 1e-4; "
                   "deck process 3d material 1 type 4 noheat rigid 2 checkheat"),
           QByteArray("SOLVER\n12,1,0,0,0,0,0,0,\nOPTIMIZE,11,\n"
                      "$ Using sparse iterative solver (2)\nsolver\n2,0,0,0,0,0,0,0,\n50,1,5,\n"
                      "1.00000000000000E-4,\noptimize,9,\nautoforge,2,1,2,0,0,4,1,0,2,14,1,0,\n"));
    kdqRow("automatic load", fixed + S("deck autoload time 10 travel 2.5 steps 20 cutback 3"),
           QByteArray("auto load\n   20    0   10    1    31.00000E+12.50000E+0\n"));
    kdqRow("point load", fixed + S("deck pointload nodes top body 2 force 1 2 -3 3d component plate"),
           QByteArray("$ Point load for component 'plate'.\npoint load\n    1    0    0\n"
                      "    1    0    0    0    0    0ptld_2_top\n"
                      "1.00000E+02.00000E+0-3.0000E+0\n    0    0    0\n    2\ntop\n"));
    kdqRow("point current", fixed + S("deck pointcurrent label l node n current 1.5 unit kA table 6"),
           QByteArray("point current\n    0    0\n    1    0    0    0    0    0l\n"
                      "1.50000E+30.00000E+00.00000E+0\n    6    0    0\n    2\nn\n"));
    kdqRow("undo takes lines back, redo writes them again",
           fixed + S("deck comment a; deck comment b; undo; deck comment c; redo; undo; undo; redo; redo"),
           QByteArray("$ a\n$ c\n$ b\n"));
    kdqRow("undo of a format", fixed + S("deck format free; undo; deck integers 8 1; deck flush"),
           QByteArray("    1\n"));
    kdqRow("closed before the end", fixed + S("deck comment a; deck close; log flush"), QByteArray("$ a\n"));
    kdqRow("non-ASCII text", fixed + S("deck title Plattenhöhe; deck comment 20 °C"),
           S("titlePlattenhöhe\n$ 20 °C\n").toLocal8Bit());
}

void TestKdqsh::deck()
{
    QFETCH(QString, commands);
    KdqshRun shell;
    prepare(shell);
    QVERIFY(shell.runCommands(commands));
    QCOMPARE(shell.errors, QString());
    QFETCH(QByteArray, deck);
    QCOMPARE(shell.read(S("a.dat")).split('\n'), deck.split('\n')); // tells the line
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
    const QByteArray all("$ one\n$ two\n$ three\n");
    kdqRow("stops", QStringList(), missing, all.left(6));
    kdqRow("stops when told", QStringList{S("--stop-on-error")}, missing, all.left(6));
    kdqRow("goes on", QStringList{S("--keep-going")}, missing + others, all);
    kdqRow("goes on, short", QStringList{S("-k")}, missing + others, all);
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

    kdqRow("help", QStringList{S("--help")}, "Usage: ", "", 0);
    kdqRow("version", QStringList{S("--version")}, S("kdqsh " KDQSH_VERSION "\nQt 5."), "", 0);
    kdqRow("colour", QStringList{S("--color=red")}, "",
           "kdqsh: --color takes auto, always or never, not 'red'.\n", 2);
    kdqRow("colours always", QStringList{S("--color=always"), S("-c"), S("bogus")}, "",
           "\033[31m-c:1: Unknown command: >bogus<!\033[0m\n", 1);
    kdqRow("unknown option", QStringList{S("--frobnicate")}, "", "kdqsh: Unknown option 'frobnicate'.\n", 2);
    kdqRow("missing script", QStringList{S("none.kdqsh")}, "",
           S("'none.kdqsh' cannot be read: %1\n").arg(missingFileText()), 2);
    kdqRow("two scripts", QStringList{S("a"), S("b")}, "", "kdqsh: Only one script or one -c can be run.\n",
           2);
    kdqRow("contradiction", QStringList{S("-k"), S("--stop-on-error"), S("-c"), S("quit")}, "",
           "kdqsh: --keep-going and --stop-on-error exclude each other.\n", 2);
    kdqRow("line breaks in commands", QStringList{S("-c"), S("history\nbogus")}, "   1  history\n",
           "-c:2: Unknown command: >bogus<!\n", 1);
}

void TestKdqsh::commandLine()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, output);
    KdqshRun shell;
    QVERIFY(shell.run(arguments));
    QCOMPARE(output.isEmpty() ? shell.output : shell.output.left(output.size()), output);
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
    const QStringList errors = shell.errors.split(QLatin1Char('\n'));
    const QString full = S("The deck '/dev/full' cannot be written: No space left on device");
    QCOMPARE(errors.value(0), S("-c:2: deck comment: ") + full);
    QCOMPARE(errors.value(1), S("-c:3: deck close: ") + full);
    QCOMPARE(shell.status, 1);
    for (const QString& form : {S("table export xml"), S("table export text"), S("csv export")}) {
        QVERIFY(shell.runCommands(S("table import curve.csv as c; %1 c /dev/full").arg(form)));
        QCOMPARE(shell.errors,
                 S("-c:1: %1: '/dev/full' cannot be written: No space left on device\n")
                     .arg(form.section(QLatin1Char(' '), 0, 1)));
    }
}

void TestKdqsh::exportIsReadBack_data()
{
    QTest::addColumn<QString>("write");
    QTest::addColumn<QString>("read");
    kdqRow("xml", "table export xml c 'my table.xml'", "table load 'my table.xml' as d");
    for (const char* words :
         {"table export text c t.csv", "table export text c t.csv tab", "table export text c t.csv ','",
          "table export text c t.csv blank", "csv export c t.csv separator ';' titles",
          "csv export c t.csv separator | decimal comma titles",
          "csv export c t.csv separator tab decimal comma titles mark protect"})
        kdqRow(words, words, "table import t.csv as d");
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
    const QString deck =
        S("deck open %1 standard; deck table c id 3 variable 1 name t1; deck solver %2; deck close; ");
    QVERIFY(shell.runCommands(S("table import curve.csv as c; ") + deck.arg(S("a.dat free"), S("mumps"))
                              + deck.arg(S("b.dat fixed"), S("mumps nonsymmetric"))));
    QVERIFY(shell.runCommands(S("deck diff a.dat b.dat")) && shell.status == 1);
    QVERIFY2(shell.output.contains(S("solver: words that differ: 1")), qPrintable(shell.output));
    QVERIFY(shell.write(S("lines.txt"), "solver\n12,1,0,0,0,0,0,0,\noptimize,11,\n"));
    QVERIFY(shell.runCommands(S("deck patch a.dat replace solver with lines.txt keep; deck diff a.dat b.dat; "
                                "deck check a.dat; deck tables a.dat; table lookup t1 0.5")));
    QVERIFY2(shell.status == 0 && shell.output.endsWith(S("70\n")), qPrintable(shell.output + shell.errors));
    QVERIFY(shell.write(S("bad.dat"), "solver\n7,0,0,0,0,0,0,0,\n"));
    QVERIFY(shell.runCommands(S("deck check bad.dat")) && shell.status == 1);
    QVERIFY2(shell.output.contains(S("line 2, column 1: error: solver: ")), qPrintable(shell.output));
}

void TestKdqsh::csv_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QByteArray>("file"); // without the lines that begin with "# CSV" and "# Date"
    kdqRow("nothing said", "",
           QByteArray("#\n# Table: c\n#\n# time [min];temperature [°C]\n0;20\n1;120\n3;420\n"));
    kdqRow("all separators", "decimal comma separator ',' units h prefix %",
           QByteArray("%\n% Units in this file\n% Time: hour [h]\n% Table: c\n%\n"
                      "% time [h],temperature [°C]\n0,20\n\"0,016666666666666666\",120\n\"0,05\",420\n"));
    kdqRow("titles alone, units of both", "titles units s,K separator tab mark",
           QByteArray("\xEF\xBB\xBFtime [s]\ttemperature [K]\n0\t293.15\n60\t393.15\n180\t693.15\n"));
    kdqRow("bare", "bare separator blank", QByteArray("0 20\n1 120\n3 420\n"));
}

void TestKdqsh::csv()
{
    QFETCH(QString, words);
    KdqshRun shell;
    prepare(shell);
    QVERIFY(shell.runCommands(S("table import curve.csv as c; csv export c a.csv ") + words));
    QCOMPARE(shell.errors, QString());
    QString text = QString::fromLatin1(shell.read(S("a.csv"))); // byte by byte: a mark counts
    text.remove(QLatin1Char('\r'));
    text.remove(
        QRegularExpression(S("^. (CSV file produced by kdqsh " KDQSH_VERSION "|Date of creation: .*)\n"),
                           QRegularExpression::MultilineOption));
    QTEST(text.toLatin1(), "file");
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
    kdqRow("list", "paths",
           "base                 exists   #/inst/kaldoran (option -basePath)\n"
           "versionroot          exists   #/inst/kaldoran (derived)\n"
           "additive             missing  #/inst/kaldoran/additive (derived)\n");
    kdqRow("set, derived, taken back",
           "paths set welding inst; paths show weldingdemos; paths reset welding; paths show welding",
           "#/inst/demos\n#/inst/kaldoran/welding\n");
    kdqRow("all anew", "paths set mesh inst; paths reset; paths show mesh; paths application jes",
           "#/inst/kaldoran/tools/kaldoran.mesh\n"
           "#/inst/kaldoran/tools/bin/kaldoran.jes\n");
    kdqRow("executables",
           "paths store welding 2018.1 curve.csv; paths executables; paths executable welding 2018.1.0; "
           "paths remove welding 2018.1; paths executables; paths show components",
           "Kaldoran_Welding_2018.1.0.0: #/curve.csv\n#/curve.csv\n"
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
    kdqRow("English", "en_GB", "table show x", english);
    kdqRow("German user", "de_AT:en", "table show x", german);
    kdqRow("neither", "fi", "table show x", english);
    kdqRow("chosen", "en", "language de; table show x", german);
    kdqRow("chosen back", "de", "language en; table show x", english);
    kdqRow("undone", "en", "language de; undo; table show x", english);
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
    QVERIFY(shell.runCommands(S("parameter define a = 1; undo; log echo 4; log write 4 'an error; told'; "
                                "log write 3 quiet; log path")));
    QCOMPARE(shell.errors, S("log 4 Command          an error; told\n"));
    const QString path = shell.output.section(QLatin1Char('\n'), -2, -2);
    QVERIFY2(path.startsWith(shell.path(S("data/kaldoran/log/kdqsh"))), qPrintable(path));
    const QString log = QString::fromLocal8Bit(kdqWithPlainLineEnds(kdqContentOf(path)));
    for (const QString& pattern :
         {S("^4.*Command          an error; told$"), S("^3.*Command          quiet$"),
          S("^0.*Command          kdCommandDispatcher created\\.$"), S("Working directory: ")})
        QVERIFY2(log.contains(QRegularExpression(pattern, QRegularExpression::MultilineOption)),
                 qPrintable(pattern));
    // Nothing but the data folder has been written.
    QCOMPARE(QDir(shell.folder()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
             QStringList{S("data")});
}

KDQ_TEST_MAIN(TestKdqsh)
#include "tst_kdqsh.moc"
