// A heat treatment of 10 000 stages, half of them with tables of 1 000 points, as XML: the library beside
// Qt's plain stream classes on the same document, in turns; and a tenth of it, to see that the time is
// linear.

#include "duel.h"

#include <kdQCore/coHeatTreatmentData>
#include <kdQCore/coHtCaseHardeningStageProp>

#include <QBuffer>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <cstdio>

namespace {

constexpr int stages = 10000;
constexpr int points = 1000;

kdDataTable createTable(int seed)
{
    QVector<QPointF> curve(points);
    for (int i = 0; i < points; ++i)
        curve[i] = QPointF(i * 3.625, 293.0 + i * 0.9375 + seed / 1024.0); // exact with 16 digits
    kdDataTable table(kdUnitSystem::Time, kdUnitSystem::Temperature);
    table.setPoints(curve);
    return table;
}

coHeatTreatmentData createProcess(int count, bool isFilled)
{
    QList<coHeatTreatmentData::StagePointer> list;
    for (int i = 0; i < count; ++i) {
        const nHeatTreatment::coStageInformation information(i, nHeatTreatment::Carburising,
                                                             QStringLiteral("Carburising"));
        const auto stage = QSharedPointer<coHtCaseHardeningStageProp>::create(
            coHeatTreatmentStage::Information::create(information));
        if (isFilled && i % 2 == 0)
            stage->setTemperature(coTableInput(createTable(i)));
        list.append(stage);
    }
    coHeatTreatmentData data(nHeatTreatment::CaseHardening);
    data.setStages(list);
    return data;
}

/// A process and its document, which every candidate writes anew or reads.
struct Subject {
    explicit Subject(int count) : filled(createProcess(count, true)), empty(createProcess(count, false))
    {
        write();
        copied.reserve(document.size());
    }

    void write()
    {
        document.resize(0);
        QBuffer buffer(&document);
        buffer.open(QIODevice::WriteOnly);
        QXmlStreamWriter writer(&buffer);
        coHeatTreatmentData::Xml::Writer::writeXml(writer, filled);
    }

    void read()
    {
        QBuffer buffer(&document);
        buffer.open(QIODevice::ReadOnly);
        QXmlStreamReader reader(&buffer);
        if (coHeatTreatmentData::Xml::Reader::read(reader, empty)
            != coHeatTreatmentData::Xml::Reader::ReadAll)
            std::printf("reading failed: %s\n", qPrintable(reader.errorString()));
    }

    void copy()
    {
        QBuffer buffer(&document);
        buffer.open(QIODevice::ReadOnly);
        copied.resize(0);
        QBuffer target(&copied);
        target.open(QIODevice::WriteOnly);
        QXmlStreamReader reader(&buffer);
        QXmlStreamWriter writer(&target);
        while (!reader.atEnd() && reader.readNext() != QXmlStreamReader::Invalid)
            writer.writeCurrentToken(reader);
    }

    void walk()
    {
        QBuffer buffer(&document);
        buffer.open(QIODevice::ReadOnly);
        QXmlStreamReader reader(&buffer);
        while (!reader.atEnd())
            reader.readNext();
    }

    coHeatTreatmentData filled;
    coHeatTreatmentData empty;
    QByteArray document;
    QByteArray copied;
};

} // namespace

int main()
{
    Subject whole(stages);
    Subject tenth(stages / 10);
    std::printf("The document has %.0f MB.\n", double(whole.document.size()) / 1e6);
    const auto tenTimes = [&tenth](void (Subject::*task)()) {
        return [&tenth, task] {
            for (int i = 0; i < 10; ++i)
                (tenth.*task)();
        };
    };
    Duel duel("A process of 10 000 stages, per stage", stages);
    duel.add("QXmlStreamReader alone", [&whole] { whole.walk(); });
    duel.add("QXmlStreamReader to QXmlStreamWriter", [&whole] { whole.copy(); });
    duel.add("readXml", [&whole] { whole.read(); });
    duel.add("writeXml", [&whole] { whole.write(); });
    duel.add("readXml, 10 times 1 000 stages", tenTimes(&Subject::read));
    duel.add("writeXml, 10 times 1 000 stages", tenTimes(&Subject::write));
    duel.run(3);
    bool held = duel.demand("readXml", "QXmlStreamReader alone", 1.0 / 3.0);
    held = duel.demand("writeXml", "QXmlStreamReader to QXmlStreamWriter", 1.0) && held;
    held = duel.demand("readXml", "readXml, 10 times 1 000 stages", 0.67) && held;
    held = duel.demand("writeXml", "writeXml, 10 times 1 000 stages", 0.67) && held;
    if (whole.filled != whole.empty)
        std::printf("What was read differs from what was written.\n");
    return held && whole.filled == whole.empty ? 0 : 1;
}
