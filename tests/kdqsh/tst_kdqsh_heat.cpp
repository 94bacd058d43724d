#include "kdqshrun.h"
#include "kdqtest.h"

/// Heat treatments in the shell; the example of a gear runs through all that goes well.
class TestKdqshHeat : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void settings_data()
    {
        QTest::addColumn<QString>("set");
        QTest::addColumn<QString>("shown");
        kdqRow("duration", "duration 1.5 h", "duration 1.5 h");
        kdqRow("temperature", "temperature 1706 degF", "temperature 1706 °F");
        kdqRow("table", "htc table c", "htc <user-defined>");
        kdqRow("predefined", "htc predefined 'Oil 60'", "htc Oil 60");
        kdqRow("project", "potential project boost", "potential boost");
        kdqRow("table of bare per cents", "potential table p", "potential <user-defined>");
        kdqRow("back to a constant", "htc table c; heat set g 1 htc 7 'W/m2/K'", "htc 7 W/(m²·K)");
        kdqRow("end", "terminate below 80 degC", "terminate below 80 °C");
        kdqRow("whole", "terminate above 1 K; heat set g 1 whole", "whole");
        kdqRow("passes", "passes structural,diffusion", "passes diffusion,structural");
        kdqRow("no pass", "passes none", "passes none");
        kdqRow("several", "increments 3 timestep 5 ms duration 2 s", "timestep 5 ms");
    }

    void settings()
    {
        QFETCH(QString, set);
        QFETCH(QString, shown);
        KdqshRun shell;
        QVERIFY(shell.write(S("c.csv"), "temperature [degC];htc [W/(m2 K)]\n20;300\n500;2500\n"));
        QVERIFY(shell.write(S("p.csv"), "time [min];potential [%]\n0;1\n60;0.8\n"));
        QVERIFY(shell.runCommands(
            S("table import c.csv; table import p.csv; heat new casehardening as g; heat set g 1 %1; "
              "heat save g g.xml; heat load g.xml as h; heat compare g h; heat show h 1")
                .arg(set),
            {S("-q")}));
        QCOMPARE(shell.errors, QString());
        QVERIFY2(shell.output.split(QLatin1Char('\n')).contains(shown), qPrintable(shell.output));
    }

    void errors_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("error");
        kdqRow("field", "new annealing as x", "'annealing' is no field of application");
        kdqRow("as", "new stressrelief to x", "'as' is missing");
        kdqRow("process", "list x", "There is no process 'x', only g.");
        kdqRow("stage", "show g 5", "There is no stage '5', only 0, 1, 2, 3, 4.");
        kdqRow("one stage of several", "disable g 0 x", "There is no stage 'x'");
        kdqRow("unit", "set g 0 duration 5 mm", "'mm' is no unit of the quantity 'Time'.");
        kdqRow("number", "set g 0 htc 5e W/m2/K", "VALUE must be a number, not '5e'.");
        kdqRow("carbon", "set g 0 potential 1 %", "'potential' is unknown here");
        kdqRow("table", "set g 0 htc table t", "There is no table 't'");
        kdqRow("quantity", "curve g as t; heat set g 0 htc table t",
               "Table 't' has not two columns, the second in a unit of the quantity 'Heat transfer "
               "coefficient'.");
        kdqRow("pass", "set g 0 passes warm", "'warm' is no pass");
        kdqRow("side", "set g 0 terminate at 5 K", "'at' is neither above nor below.");
        kdqRow("no table", "extract g 1 temperature as t", "Stage 1 has no table for 'temperature'.");
        kdqRow("no input", "extract g 1 potential as t", "The stage has no input 'potential'.");
        kdqRow("different", "new quenchtemper as h; heat disable h 1 2; heat compare g h",
               "The processes differ in the stages 1, 2.");
        kdqRow("fields", "new stressrelief as h; heat compare g h",
               "The processes belong to different fields of application.");
        kdqRow("no time", "disable g 0 1 2 3 4; heat curve g as t", "No enabled stage of process 'g'");
        kdqRow("file", "save g no/folder/g.xml", "'no/folder/g.xml' cannot be written: ");
        kdqRow("value in the file", "load bad.xml",
               "'bad.xml', line 3: Failed to read the value of the XML element nb_result_steps of stage 2.");
        kdqRow("unknown stage", "load unknown.xml",
               "'unknown.xml' has stages that the process does not know: 7, x.");
        kdqRow("broken", "load broken.xml", "'broken.xml', line 1: ");
        kdqRow("field in the file", "load field.xml", "'field.xml' names no field of application");
        kdqRow("another file", "load other.xml", "The element 'coHeatTreatmentData' is missing.");
        kdqRow("missing predefined table", "set g 0 htc predefined oil; heat collect g from . to tables",
               "There is no predefined table 'oil'.");
    }

    void errors()
    {
        QFETCH(QString, command);
        QFETCH(QString, error);
        KdqshRun shell;
        const QByteArray head = "<coHeatTreatmentData factoryName='QuenchTemper'><stages>";
        QVERIFY(
            shell.write(S("bad.xml"),
                        head + "<stage stage_index='2'>\n\n<nb_result_steps>1,5</nb_result_steps></stage>"));
        QVERIFY(shell.write(
            S("unknown.xml"),
            head + "<stage stage_index='7'/><stage stage_index='x'/></stages></coHeatTreatmentData>"));
        QVERIFY(shell.write(S("broken.xml"), head));
        QVERIFY(shell.write(S("field.xml"), "<coHeatTreatmentData factoryName='Nitriding'/>"));
        QVERIFY(shell.write(S("other.xml"), "<kdDataTable/>"));
        QVERIFY(shell.runCommands(S("heat new quenchtemper as g; heat ") + command));
        QCOMPARE(shell.status, 1);
        QVERIFY2(shell.errors.contains(error), qPrintable(shell.errors));
    }

    void undo()
    {
        KdqshRun shell;
        const QString lists = S("heat list; heat show g 1; table list; ");
        QVERIFY(shell.runCommands(S("heat new quenchtemper as g; ") + lists, {S("-q")}));
        const QString before = shell.output;
        QVERIFY(
            shell.runCommands(S("heat new quenchtemper as g; heat set g 1 duration 5 s; heat disable g 0; "
                                "heat curve g as t; heat remove g; undo; undo; undo; undo; ")
                                  + lists,
                              {S("-q")}));
        QCOMPARE(shell.errors, QString());
        QCOMPARE(shell.output, before);
    }

    void predefinedTables()
    {
        KdqshRun shell;
        QVERIFY(QDir(shell.folder()).mkpath(S("installed")));
        QVERIFY(shell.write(S("c.csv"), "temperature [degC];htc [W/(m2 K)]\n20;300\n500;2500\n"));
        QVERIFY(shell.runCommands(
            S("table import c.csv as 'Oil 60'; table export xml 'Oil 60' installed/oil.xml; "
              "heat predefined installed; heat new quenchtemper as g; heat set g 2 htc predefined 'Oil 60'; "
              "heat collect g from installed to project; heat predefined project"),
            {S("-q")}));
        QCOMPARE(shell.errors, QString());
        QCOMPARE(shell.output, S("Oil 60\nOil 60\n"));
        QCOMPARE(shell.read(S("project/oil.xml")), shell.read(S("installed/oil.xml")));
    }
};

KDQ_TEST_MAIN(TestKdqshHeat)
#include "tst_kdqsh_heat.moc"
