#include "kdqshrun.h"
#include "kdqtest.h"

/// Heat treatments in the shell; the example of a gear runs through all that goes well.
class TestKdqshHeat : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void settings_data();
    void settings();
    void errors_data();
    void errors();
    void undo();
    void predefinedTables();
};

#define S(text) QStringLiteral(text)

void TestKdqshHeat::settings_data()
{
    QTest::addColumn<QString>("set");
    QTest::addColumn<QString>("shown");
    QTest::newRow("duration") << S("duration 1.5 h") << S("duration 1.5 h");
    QTest::newRow("temperature") << S("temperature 1706 degF") << S("temperature 1706 °F");
    QTest::newRow("table") << S("htc table c") << S("htc <user-defined>");
    QTest::newRow("predefined") << S("htc predefined 'Oil 60'") << S("htc Oil 60");
    QTest::newRow("project") << S("potential project boost") << S("potential boost");
    QTest::newRow("table of bare per cents") << S("potential table p") << S("potential <user-defined>");
    QTest::newRow("back to a constant")
        << S("htc table c; heat set g 1 htc 7 'W/m2/K'") << S("htc 7 W/(m²·K)");
    QTest::newRow("end") << S("terminate below 80 degC") << S("terminate below 80 °C");
    QTest::newRow("whole") << S("terminate above 1 K; heat set g 1 whole") << S("whole");
    QTest::newRow("passes") << S("passes structural,diffusion") << S("passes diffusion,structural");
    QTest::newRow("no pass") << S("passes none") << S("passes none");
    QTest::newRow("several") << S("increments 3 timestep 5 ms duration 2 s") << S("timestep 5 ms");
}

void TestKdqshHeat::settings()
{
    QFETCH(QString, set);
    QFETCH(QString, shown);
    KdqshRun shell;
    QVERIFY(shell.write(S("c.csv"), "temperature [degC];htc [W/(m2 K)]\n20;300\n500;2500\n"));
    QVERIFY(shell.write(S("p.csv"), "time [min];potential [%]\n0;1\n60;0.8\n"));
    QVERIFY(shell.runCommands(S("table import c.csv; table import p.csv; heat new casehardening as g; "
                                "heat set g 1 %1; heat save g g.xml; heat load g.xml as h; heat compare g h; "
                                "heat show h 1")
                                  .arg(set),
                              {S("-q")}));
    QCOMPARE(shell.errors, QString());
    QVERIFY2(shell.output.split(QLatin1Char('\n')).contains(shown), qPrintable(shell.output));
}

void TestKdqshHeat::errors_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("error");
    QTest::newRow("field") << S("new annealing as x") << S("'annealing' is no field of application");
    QTest::newRow("as") << S("new stressrelief to x") << S("'as' is missing");
    QTest::newRow("process") << S("list x") << S("There is no process 'x', only g.");
    QTest::newRow("stage") << S("show g 5") << S("There is no stage '5', only 0, 1, 2, 3, 4.");
    QTest::newRow("one stage of several") << S("disable g 0 x") << S("There is no stage 'x'");
    QTest::newRow("unit") << S("set g 0 duration 5 mm") << S("'mm' is no unit of the quantity 'Time'.");
    QTest::newRow("number") << S("set g 0 htc 5e W/m2/K") << S("VALUE must be a number, not '5e'.");
    QTest::newRow("carbon") << S("set g 0 potential 1 %") << S("'potential' is unknown here");
    QTest::newRow("table") << S("set g 0 htc table t") << S("There is no table 't'");
    QTest::newRow("quantity")
        << S("curve g as t; heat set g 0 htc table t")
        << S("Table 't' has not two columns, the second in a unit of the quantity 'Heat "
             "transfer coefficient'.");
    QTest::newRow("pass") << S("set g 0 passes warm") << S("'warm' is no pass");
    QTest::newRow("side") << S("set g 0 terminate at 5 K") << S("'at' is neither above nor below.");
    QTest::newRow("no table") << S("extract g 1 temperature as t")
                              << S("Stage 1 has no table for 'temperature'.");
    QTest::newRow("no input") << S("extract g 1 potential as t") << S("The stage has no input 'potential'.");
    QTest::newRow("different") << S("new quenchtemper as h; heat disable h 1 2; heat compare g h")
                               << S("The processes differ in the stages 1, 2.");
    QTest::newRow("fields") << S("new stressrelief as h; heat compare g h")
                            << S("The processes belong to different fields of application.");
    QTest::newRow("no time") << S("disable g 0 1 2 3 4; heat curve g as t")
                             << S("No enabled stage of process 'g'");
    QTest::newRow("file") << S("save g no/folder/g.xml") << S("'no/folder/g.xml' cannot be written: ");
    QTest::newRow("value in the file")
        << S("load bad.xml")
        << S("'bad.xml', line 3: Failed to read the value of the XML element nb_result_steps of stage 2.");
    QTest::newRow("unknown stage") << S("load unknown.xml")
                                   << S("'unknown.xml' has stages that the process does not know: 7, x.");
    QTest::newRow("broken") << S("load broken.xml") << S("'broken.xml', line 1: ");
    QTest::newRow("field in the file")
        << S("load field.xml") << S("'field.xml' names no field of application");
    QTest::newRow("another file") << S("load other.xml")
                                  << S("The element 'coHeatTreatmentData' is missing.");
    QTest::newRow("missing predefined table")
        << S("set g 0 htc predefined oil; heat collect g from . to tables")
        << S("There is no predefined table 'oil'.");
}

void TestKdqshHeat::errors()
{
    QFETCH(QString, command);
    QFETCH(QString, error);
    KdqshRun shell;
    const QByteArray head = "<coHeatTreatmentData factoryName='QuenchTemper'><stages>";
    QVERIFY(shell.write(S("bad.xml"),
                        head + "<stage stage_index='2'>\n\n<nb_result_steps>1,5</nb_result_steps></stage>"));
    QVERIFY(shell.write(S("unknown.xml"),
                        head
                            + "<stage stage_index='7'/><stage stage_index='x'/></stages>"
                              "</coHeatTreatmentData>"));
    QVERIFY(shell.write(S("broken.xml"), head));
    QVERIFY(shell.write(S("field.xml"), "<coHeatTreatmentData factoryName='Nitriding'/>"));
    QVERIFY(shell.write(S("other.xml"), "<kdDataTable/>"));
    QVERIFY(shell.runCommands(S("heat new quenchtemper as g; heat ") + command));
    QCOMPARE(shell.status, 1);
    QVERIFY2(shell.errors.contains(error), qPrintable(shell.errors));
}

void TestKdqshHeat::undo()
{
    KdqshRun shell;
    const QString lists = S("heat list; heat show g 1; table list; ");
    QVERIFY(shell.runCommands(S("heat new quenchtemper as g; ") + lists, {S("-q")}));
    const QString before = shell.output;
    QVERIFY(shell.runCommands(S("heat new quenchtemper as g; heat set g 1 duration 5 s; heat disable g 0; "
                                "heat curve g as t; heat remove g; undo; undo; undo; undo; ")
                                  + lists,
                              {S("-q")}));
    QCOMPARE(shell.errors, QString());
    QCOMPARE(shell.output, before);
}

void TestKdqshHeat::predefinedTables()
{
    KdqshRun shell;
    QVERIFY(QDir(shell.folder()).mkpath(S("installed")));
    QVERIFY(shell.write(S("c.csv"), "temperature [degC];htc [W/(m2 K)]\n20;300\n500;2500\n"));
    QVERIFY(
        shell.runCommands(S("table import c.csv as 'Oil 60'; table export xml 'Oil 60' installed/oil.xml; "
                            "heat predefined installed; heat new quenchtemper as g; "
                            "heat set g 2 htc predefined 'Oil 60'; heat collect g from installed to project; "
                            "heat predefined project"),
                          {S("-q")}));
    QCOMPARE(shell.errors, QString());
    QCOMPARE(shell.output, S("Oil 60\nOil 60\n"));
    QCOMPARE(shell.read(S("project/oil.xml")), shell.read(S("installed/oil.xml")));
}

KDQ_TEST_MAIN(TestKdqshHeat)
#include "tst_kdqsh_heat.moc"
