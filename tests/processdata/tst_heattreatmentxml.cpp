#include "kdqtest.h"
#include "randomprocess.h"

#include <kdQCore/coHeatTreatmentDataFactory>
#include <kdQCore/coPredefTableOrConstant>

#include <QDir>
#include <QDomDocument>
#include <QRegularExpression>
#include <QTranslator>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>

using Xml = coHeatTreatmentData::Xml;

namespace {

constexpr quint32 seed = 20261121;

QString written(const coHeatTreatmentData& data)
{
    QString xml;
    QXmlStreamWriter writer(&xml);
    Xml::Writer::writeXml(writer, data);
    return xml;
}

coHeatTreatmentData factoryMade(nHeatTreatment::e_FieldOfApplication field)
{
    coHeatTreatmentData data(field);
    nHeatTreatment::coHeatTreatmentDataFactory::setup(data);
    return data;
}

QString inStage(const QString& elements, const QString& index = S("1"))
{
    return S("<coHeatTreatmentData><stages><stage stage_index='0'><nb_result_steps>77"
             "</nb_result_steps></stage><stage stage_index='%1'><nb_result_steps>78"
             "</nb_result_steps>%2</stage></stages></coHeatTreatmentData>")
        .arg(index, elements);
}

/// Children in another order and strange ones among them.
void shuffle(QDomElement element, RandomProcess& random)
{
    QDomDocument document = element.ownerDocument();
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
        if (child.tagName() != QLatin1String("kdDataTable"))
            shuffle(child, random);
    for (int i = element.childNodes().count(); i > 0 && !element.firstChildElement().isNull(); --i) {
        element.appendChild(element.childNodes().at(random.below(i)));
        if (random.below(4) == 0)
            element.appendChild(document.createElement(S("future")))
                .appendChild(document.createElement(S("stage_enabled")));
    }
}

class UserDefinedInGerman : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* text, const char*, int) const override
    {
        return qstrcmp(text, "<user-defined>") == 0 ? S("<benutzerdefiniert>") : QString();
    }
};

} // namespace

class TestHeatTreatmentXml : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Equal text shows that constants keep their bits, equal objects that nothing stayed unwritten.
    void roundTrip()
    {
        RandomProcess random(seed);
        for (int i = 0; i < 3000; ++i) {
            const coHeatTreatmentData data = random.create();
            coHeatTreatmentData read = random.withOtherContents(data);
            const QString xml = written(data);
            QXmlStreamReader reader(xml);
            QVERIFY2(!Xml::Reader::readXml(reader, read), qPrintable(reader.errorString()));
            QVERIFY2(read == data && written(read) == xml, qPrintable(xml));
        }
    }

    void anyOrderAndUnknownElements()
    {
        RandomProcess random(seed);
        for (int i = 0; i < 300; ++i) {
            const coHeatTreatmentData data = random.create();
            QDomDocument document;
            QVERIFY(document.setContent(written(data).remove(S("&#13;"))));
            coHeatTreatmentData inOrder = random.withOtherContents(data);
            coHeatTreatmentData shuffled = random.withOtherContents(data);
            QXmlStreamReader reader(document.toString(-1));
            QCOMPARE(int(Xml::Reader::read(reader, inOrder)), int(Xml::Reader::ReadAll));
            shuffle(document.documentElement(), random);
            reader.clear();
            reader.addData(document.toString(-1));
            QCOMPARE(int(Xml::Reader::read(reader, shuffled)), int(Xml::Reader::ReadAll));
            QVERIFY(shuffled == inOrder);
        }
    }

    // Later versions must still read these files, whatever they write themselves.
    void goldenFiles()
    {
        const QFileInfoList files = QDir(QStringLiteral(GOLDEN_FOLDER)).entryInfoList(QDir::Files);
        QVERIFY(files.size() >= 4);
        for (const QFileInfo& file : files) {
            const QString xml = QString::fromUtf8(kdqContentOf(file.filePath())).trimmed();
            QXmlStreamReader reader(xml);
            const auto field = Xml::Reader::findField(reader);
            QVERIFY(nHeatTreatment::FieldOfApplicationEnumData.find(int(field)) != nullptr);
            coHeatTreatmentData data = RandomProcess(seed).withOtherContents(factoryMade(field));
            QVERIFY2(Xml::Reader::read(reader, data) == Xml::Reader::ReadAll,
                     qPrintable(file.fileName() + reader.errorString()));
            const QRegularExpression version(S(" version=\"[^\"]*\""));
            QCOMPARE(written(data).remove(version), QString(xml).remove(version));
        }
    }

    // The one answer of readXml() and the three of read().
    void answers_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::addColumn<bool>("answer");
        QTest::addColumn<int>("result");
        QTest::addColumn<int>("stage0");
        const QString all = inStage(QString());
        QTest::newRow("all") << all << false << int(Xml::Reader::ReadAll) << 77;
        QTest::newRow("no stage") << "<coHeatTreatmentData/>" << false << int(Xml::Reader::ReadAll) << 10;
        QTest::newRow("other document") << "<x><stages/></x>" << false << int(Xml::Reader::ReadAll) << 10;
        for (const char* index : {"99", "-1", "", "x", "1.0"})
            QTest::newRow(index) << inStage(QString(), QString::fromLatin1(index)) << false
                                 << int(Xml::Reader::UnknownStage) << 77;
        QTest::newRow("broken") << all.left(all.size() - 3) << true << int(Xml::Reader::ReadError) << 77;
        QTest::newRow("broken after an unknown index")
            << inStage(QString(), S("99")).chopped(3) << false << int(Xml::Reader::ReadError) << 77;
        QTest::newRow("empty") << "" << true << int(Xml::Reader::ReadError) << 10;
        QTest::newRow("deep") << S("<stages>").repeated(100000) << true << int(Xml::Reader::ReadError) << 10;
    }
    void answers()
    {
        QFETCH(QString, xml);
        coHeatTreatmentData data = factoryMade(nHeatTreatment::StressRelief);
        QXmlStreamReader reader(xml);
        QTEST(int(Xml::Reader::read(reader, data)), "result");
        QTEST(data.getStage(0)->incrementsBetweenResults(), "stage0");
        QXmlStreamReader again(xml);
        QTEST(Xml::Reader::readXml(again, data), "answer");
    }

    void unreadableValues_data()
    {
        QTest::addColumn<QString>("elements");
        QTest::addColumn<QString>("error");
        for (const QString& material : {S("nitrogen %2"), QString(), S("Carbon")})
            QTest::newRow(qPrintable(material))
                << S("<potential material='%1'/>").arg(material)
                << S("Unsupported potential material '") + material + S("' is read for stage 1.");
        const auto add = [](const char* element, const char* content, const char* around = nullptr) {
            QString xml = S("<%1>%2</%1>").arg(QLatin1String(element), QLatin1String(content));
            if (around)
                xml = S("<%1 material='carbon'>%2</%1>").arg(QLatin1String(around), xml);
            QTest::addRow("%s: %s", element, content)
                << xml
                << S("Failed to read the value of the XML element %1 of stage 1.")
                       .arg(QLatin1String(element));
        };
        add("stage_enabled", "True");
        add("stage_use_fixed_temp", "");
        add("stage_use_termination_temp", "1");
        add("stage_duration", "1,5");
        add("stage_fixed_temp", "");
        add("stage_termination_temp", "hot");
        add("stage_termination_rel", "1.0");
        add("nb_result_steps", "99999999999");
        add("stage_temp_table", "");
        add("stage_temp_table", "<kdDataTable><columndata/><row>x</row></kdDataTable>");
        add("stage_htc_mode", "constant");
        add("stage_htc_fixed_value", "x");
        add("stage_htc_table", "<table/>");
        add("pass", "cold", "analysis_passes");
        add("pass", "", "analysis_passes");
        add("stage_timeStepLength", "x");
        add("mode", "", "massTransferCoeff");
        add("fixed_value", "1 mm/s", "massTransferCoeff");
        add("table", "<kdDataTable><row>1</row></kdDataTable>", "potential");
    }
    void unreadableValues()
    {
        QFETCH(QString, elements);
        const coHeatTreatmentData before = factoryMade(nHeatTreatment::CaseHardening);
        coHeatTreatmentData data = before;
        QXmlStreamReader reader(inStage(elements));
        QVERIFY(Xml::Reader::readXml(reader, data));
        QTEST(reader.errorString(), "error");
        QVERIFY(*data.getStage(1) == *before.getStage(1));
        QCOMPARE(data.getStage(0)->incrementsBetweenResults(), 77);
    }

    // Cut off anywhere, the reader's own error remains and every stage is either the old or the new one.
    void brokenAnywhere()
    {
        RandomProcess random(seed);
        const coHeatTreatmentData after = factoryMade(nHeatTreatment::QuenchTemper);
        const coHeatTreatmentData before = random.withOtherContents(after);
        const QString xml = written(after);
        for (int length = 0; length < xml.size() - 1; length += 7) {
            coHeatTreatmentData data = before;
            QXmlStreamReader reader(xml.left(length));
            QVERIFY(Xml::Reader::readXml(reader, data));
            QCOMPARE(reader.error(), QXmlStreamReader::PrematureEndOfDocumentError);
            for (const int index : data.getStageIndices())
                QVERIFY(*data.getStage(index) == *before.getStage(index)
                        || *data.getStage(index) == *after.getStage(index));
        }
    }

    // A short element of an older version: tables go, passes are replaced, all else stays.
    void absentElements()
    {
        RandomProcess random(seed);
        const coHeatTreatmentData before =
            random.withOtherContents(factoryMade(nHeatTreatment::CaseHardening));
        coHeatTreatmentData expected = before;
        const auto stage = expected.getStage(1).staticCast<coHtCaseHardeningStageProp>();
        const auto withoutTable = [](coTableInput input) {
            input.removeDataTable();
            return input;
        };
        stage->setTemperature(withoutTable(stage->temperature()));
        stage->setHtcToEnv(withoutTable(stage->htcToEnv()));
        stage->setMassTransferCoefficient(withoutTable(stage->massTransferCoefficient()));
        stage->setCarbonPotential(withoutTable(stage->carbonPotential()));
        stage->setAnalysisPasses(nHeatTreatment::DiffusionPass | nHeatTreatment::StructuralPass);
        stage->setIncrementsBetweenResults(78);
        expected.getStage(0)->setIncrementsBetweenResults(77);

        QXmlStreamReader reader(inStage(S("<analysis_passes><pass>structural</pass><pass>none</"
                                          "pass><pass>diffusion</pass></analysis_passes>"
                                          "<massTransferCoeff/><name>Nobody</name>")));
        coHeatTreatmentData data = before;
        QVERIFY(!Xml::Reader::readXml(reader, data));
        QVERIFY(*data.getStage(1) == *stage);
    }

    // The document around it goes on where the element ends.
    void readsItsElementOnly()
    {
        QXmlStreamReader reader(S("<project>") + inStage(QString()) + S("<after/></project>"));
        coHeatTreatmentData data = factoryMade(nHeatTreatment::QuenchTemper);
        QCOMPARE(int(Xml::Reader::findField(reader)), int(nHeatTreatment::InvalidField));
        QVERIFY(!Xml::Reader::readXml(reader, data));
        QCOMPARE(data.getStage(1)->incrementsBetweenResults(), 78);
        QVERIFY(reader.readNextStartElement());
        QCOMPARE(reader.name().toString(), S("after"));
    }

    void massTransferDimension()
    {
        struct Row {
            kdUnitSystem old;
            kdUnitSystem corrected;
            double value;
        };
        const auto transfer = [](int unit) {
            return kdUnitSystem(kdUnitSystem::MassTransferCoefficient, unit);
        };
        const kdUnitSystem perCent(kdUnitSystem::None, 1);
        for (const Row& row : {Row{kdUnitSystem(kdUnitSystem::Velocity, 1), transfer(1), 3.0},  // mm/s
                               Row{kdUnitSystem(kdUnitSystem::Velocity, 3), transfer(0), 0.05}, // m/min
                               Row{kdUnitSystem(), transfer(0), 3.0},
                               Row{kdUnitSystem(kdUnitSystem::None, -1), transfer(0), 3.0},
                               Row{transfer(2), transfer(2), 3.0}, Row{perCent, perCent, 3.0}}) {
            kdDataTable table(kdUnitSystem::Temperature, kdUnitSystem::None);
            table.setUnitY(row.old);
            table.addPoint(1200.0, 3.0);
            coTableInput input(table);
            Xml::Reader::correctMassTransferCoefficientDimension(input);
            QCOMPARE(input.dataTable()->yUnitSystem(), row.corrected);
            QCOMPARE(input.dataTable()->pointAt(0), QPointF(1200.0, row.value));
            QCOMPARE(input.dataTable()->xUnitSystem(), kdUnitSystem(kdUnitSystem::Temperature));
        }
    }

    void userDefinedIsNeverTranslatedInFiles()
    {
        UserDefinedInGerman german;
        QVERIFY(QCoreApplication::installTranslator(&german));
        coHeatTreatmentData data = factoryMade(nHeatTreatment::QuenchTemper);
        coTableInput input(kdDataTable(kdUnitSystem::Temperature, kdUnitSystem::HeatTransferCoefficient));
        input.setTableName(coPredefTableOrConstant::getPredefinedTableName(2, S("oil")));
        data.getStage(0)->setHtcToEnv(input);
        QCOMPARE(coPredefTableOrConstant(input).text(), S("<benutzerdefiniert>"));
        QCOMPARE(nHeatTreatment::getUserDefinedTableName(true), S("<benutzerdefiniert>"));
        const QString xml = written(data);
        QVERIFY(xml.contains(S("<stage_htc_material>&lt;user-defined&gt;</stage_htc_material>")));
        QVERIFY(!xml.contains(S("benutzerdefiniert")));
    }

    void inputsOwnElement()
    {
        RandomProcess random(seed);
        for (int i = 0; i < 300; ++i) {
            const coTableInput input = random.create().stages().first()->htcToEnv();
            QString xml;
            QXmlStreamWriter writer(&xml);
            input.writeXML(writer, S("input"));
            coTableInput read = random.create().stages().first()->htcToEnv();
            QXmlStreamReader reader(xml);
            QVERIFY(reader.readNextStartElement());
            QVERIFY2(read.readXML(reader, S("input")) && read == input, qPrintable(xml));
            const int end = xml.lastIndexOf(S("<fixed_value"));
            QXmlStreamReader broken(xml.left(end));
            broken.readNextStartElement();
            coTableInput kept = read;
            QVERIFY(!kept.readXML(broken, S("input")) && broken.hasError() && kept == read);
        }
    }
};

KDQ_TEST_MAIN(TestHeatTreatmentXml)
#include "tst_heattreatmentxml.moc"
