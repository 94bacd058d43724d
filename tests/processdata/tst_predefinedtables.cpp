#include "kdqtest.h"
#include "logcapture.h"

#include <kdQCore/coHeatTreatmentDataFactory>
#include <kdQCore/coHtCaseHardeningStageProp>
#include <kdQCore/coPredefinedTableListModel>

#include <QAbstractItemModelTester>
#include <QTemporaryDir>

namespace {

kdDataTable coefficient(const QString& name, double value)
{
    kdDataTable table(kdUnitSystem::Temperature, kdUnitSystem::HeatTransferCoefficient);
    table.setName(name);
    table.addPoint(300.0, value);
    return table;
}

bool write(const QString& path, const kdDataTable& table)
{
    QFile file(path);
    return table.writeXML(file);
}

coTableInput predefined(const QString& name)
{
    coTableInput input;
    input.setMode(coTableInput::PredefinedTable);
    input.setTableName(name);
    return input;
}

} // namespace

class TestPredefinedTables : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder.reset(new QTemporaryDir);
        QVERIFY(QDir(m_folder->path()).mkdir(S("installed")));
        QVERIFY(write(installed("a.xml"), coefficient(S("Water"), 3000.0)));
        QVERIFY(write(installed("b.xml"), coefficient(S("Oil 60 °C"), 1500.0)));
        QVERIFY(write(installed("c.xml"), coefficient(S("Water"), 1.0)));
        QVERIFY(write(installed("Still air.xml"), coefficient(QString(), 30.0)));
        QVERIFY(kdqWrite(installed("notes.xml"), "<notes/>"));
        QVERIFY(kdqWrite(installed("half.xml"), "<kdDataTable name='Half'><row>"));
        QVERIFY(kdqWrite(installed("table.txt"), "<kdDataTable name='Text'/>"));
    }

    void list()
    {
        LogCapture log;
        coPredefinedTableListModel model(installed(""));
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QStringList names;
        for (int row = 0; row < model.rowCount(); ++row)
            names.append(model.index(row).data().toString());
        QCOMPARE(names, (QStringList{S("Half"), S("Oil 60 °C"), S("Still air"), S("Water")}));
        QCOMPARE(log.records().size(), 2); // the second water and the notes
        QCOMPARE(model.table(S("Water"))->pointAt(0).y(), 3000.0);
        QVERIFY(model.errorText().isEmpty());
        for (const char* name : {"Half", "Text", ""}) {
            QVERIFY(model.table(QString::fromLatin1(name)).isNull());
            QVERIFY(!model.errorText().isEmpty());
        }
        QVERIFY(QFile::remove(installed("a.xml")));
        model.reload();
        QCOMPARE(model.table(S("Water"))->pointAt(0).y(), 1.0);
        QVERIFY(!coPredefinedTableListModel(installed("none")).rowCount());
    }

    // All inputs of a process, the project's own copy being left alone.
    void copyToProject()
    {
        coPredefinedTableListModel model(installed(""));
        model.setProjectFolder(m_folder->filePath(S("project/tables")));
        coHeatTreatmentData data(nHeatTreatment::CaseHardening);
        nHeatTreatment::coHeatTreatmentDataFactory::setup(data);
        QVERIFY(data.ensureTableCopiedToProject(&model) && !QFile::exists(model.projectFolder()));
        const auto stage = data.getStage(2).staticCast<coHtCaseHardeningStageProp>();
        stage->setHtcToEnv(predefined(S("Still air")));
        stage->setMassTransferCoefficient(predefined(S("Missing")));
        stage->setCarbonPotential(predefined(S("Water")));
        QVERIFY(!data.ensureTableCopiedToProject(nullptr));
        QVERIFY(!data.ensureTableCopiedToProject(&model)); // but it copies the other two
        const auto fileNames = [&model] { return QDir(model.projectFolder()).entryList(QDir::Files); };
        QCOMPARE(fileNames().size(), 2);

        stage->setMassTransferCoefficient(coTableInput());
        const QString copy = model.projectFolder() + S("/a.xml");
        QVERIFY(write(copy, coefficient(S("Water"), 42.0)));
        QVERIFY(data.ensureTableCopiedToProject(&model));
        coPredefinedTableListModel project(model.projectFolder());
        QCOMPARE(project.table(S("Water"))->pointAt(0).y(), 42.0);
        QCOMPARE(project.table(S("Still air"))->pointAt(0).y(), 30.0);
    }

    void projectFolderCannotBeMade()
    {
        coPredefinedTableListModel model(installed(""));
        for (const QString& folder : {QString(), installed("a.xml/below")}) {
            model.setProjectFolder(folder);
            QVERIFY(!model.copyToProject(S("Water")));
            QVERIFY(model.errorText().contains(folder));
        }
    }

private:
    QString installed(const char* name) const
    {
        return m_folder->filePath(S("installed/") + QString::fromLatin1(name));
    }

    QScopedPointer<QTemporaryDir> m_folder;
};

KDQ_TEST_MAIN(TestPredefinedTables)
#include "tst_predefinedtables.moc"
