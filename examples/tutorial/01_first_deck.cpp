// The first deck: a title, a comment and one card.
#include <kdQCore/cFeAutoLoadCard>
#include <kdQCore/CFEDatLineWriter>

#include <QFile>
#include <QTextStream>

int main()
{
    QFile file("plate.dat");
    if (!file.open(QIODevice::WriteOnly)) // not as QIODevice::Text: the writer ends the lines itself
        return 1;
    QTextStream stream(&file);
    CFEDatLineWriter writer(CFEDatLineWriter::extended, CFEDatLineWriter::free);
    writer.setFileHandler(&stream);

    cFeAutoLoadCard loading;
    loading.setTotalTime(3600); // s
    loading.setTimeSteps(120);
    loading.setTotalTravelDist(0.15); // m

    bool ok = writer.writeTitle("A steel plate is heated");
    ok = writer.writeCommentLine("Units: m, kg, s, K") && ok;
    ok = writer.writeCard(loading) && ok;
    return writer.flush() && ok ? 0 : 1;
}
