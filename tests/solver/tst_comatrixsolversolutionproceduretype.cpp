#include "kdqtest.h"

#include <kdQCore/coMatrixSolverSolutionProcedureType>

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

using Procedure = coMatrixSolverSolutionProcedureType;

class TestSolutionProcedure : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void idsAndNames()
    {
        QVERIFY(Procedure().isSolutionProcedureDI());
        QCOMPARE(Procedure().viewName(), QStringLiteral("Solution procedure DI"));
        const Procedure fullK(Procedure::typeFromId(1));
        QVERIFY(fullK.isSolutionProcedureFullK() && !fullK.isSolutionProcedureDI());
        QCOMPARE(fullK.viewName(), QStringLiteral("Solution procedure FullK"));
        QCOMPARE(fullK.toVariant(), QVariant(1));
        QVERIFY(Procedure::fromVariant(1) == fullK);
        for (int id : {-1, 0, 2, 257})
            QCOMPARE(Procedure::typeFromId(id), Procedure::SolutionProcedureDI);
    }

    void read_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::addColumn<int>("before");
        QTest::addColumn<int>("after");
        QTest::addColumn<QString>("failedElement");
        const QString own = QStringLiteral("matrix_solver_solution_procedure_type");
        const auto row = [](const char* name, const char* xml, int before, int after,
                            const QString& failed = QString()) {
            QTest::newRow(name) << QString::fromLatin1(xml) << before << after << failed;
        };
        row("attribute", R"(<matrix_solver_solution_procedure_type value="1"/>)", 0, 1);
        row("attribute wins over text",
            R"(<matrix_solver_solution_procedure_type value="0">1</matrix_solver_solution_procedure_type>)",
            1, 0);
        row("text", R"(<matrix_solver_solution_procedure_type> 1 </matrix_solver_solution_procedure_type>)",
            0, 1);
        row("other element", R"(<procedure value="0">1</procedure>)", 0, 1);
        row("other integer", R"(<matrix_solver_solution_procedure_type value="7"/>)", 1, 0);
        row("no integer", R"(<matrix_solver_solution_procedure_type value="full"/>)", 1, 1, own);
        row("empty text", R"(<matrix_solver_solution_procedure_type/>)", 1, 1, own);
        row("too large", R"(<matrix_solver_solution_procedure_type value="4294967297"/>)", 0, 0, own);
        row("child in the text", R"(<procedure><one/>1</procedure>)", 0, 0, QStringLiteral("procedure"));
        row("cut off", R"(<matrix_solver_solution_procedure_type>)", 1, 1, own);
    }

    void read()
    {
        QFETCH(QString, xml);
        QFETCH(int, before);
        QFETCH(int, after);
        QFETCH(QString, failedElement);
        QXmlStreamReader reader(xml);
        reader.readNextStartElement();
        Procedure procedure(Procedure::typeFromId(before));
        QCOMPARE(procedure.readXML(reader), failedElement.isEmpty());
        QCOMPARE(procedure.typeToId(), after);
        if (!failedElement.isEmpty())
            QCOMPARE(reader.errorString(),
                     QStringLiteral("Failed to read the value of the XML element: %1").arg(failedElement));
        else
            QVERIFY(reader.isEndElement() && !reader.hasError());
    }

    void writtenElementIsReadBackBetweenOthers()
    {
        QString xml;
        QXmlStreamWriter writer(&xml);
        writer.writeStartElement(QStringLiteral("run"));
        Procedure(Procedure::SolutionProcedureFullK).writeXML(writer);
        Procedure(Procedure::SolutionProcedureDI).writeXML(writer);
        writer.writeEndElement();
        QCOMPARE(xml,
                 QStringLiteral("<run><matrix_solver_solution_procedure_type value=\"1\"/>"
                                "<matrix_solver_solution_procedure_type value=\"0\"/></run>"));

        QXmlStreamReader reader(xml);
        reader.readNextStartElement();
        QList<int> ids;
        while (reader.readNextStartElement()) {
            Procedure procedure;
            QVERIFY(procedure.readXML(reader));
            ids.append(procedure.typeToId());
        }
        QCOMPARE(ids, QList<int>({1, 0}));
    }
};

KDQ_TEST_MAIN(TestSolutionProcedure)
#include "tst_comatrixsolversolutionproceduretype.moc"
