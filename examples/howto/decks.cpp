// Decks: layouts, failures, values that a deck cannot hold.
#include <kdQCore/CFEDatLineWriter>
#include <kdQCore/cPointLoadCard>

#include <QBuffer>
#include <QFile>
#include <QTextStream>

#include <limits>

QTextStream out(stdout);

/// What a card looks like in a layout.
QByteArray linesOf(const cFeAbstractDatCard& card, CFEDatLineWriter::datExtensionMode widths,
                   CFEDatLineWriter::datFormat format)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QTextStream stream(&buffer);
    CFEDatLineWriter writer(widths, format);
    writer.setFileHandler(&stream);
    return writer.writeCard(card) && writer.flush() ? buffer.data() : QByteArray();
}

void layouts()
{
    cPointLoadCard load;
    load.setIs3DProcess(true);
    load.setForceZ(-2.0e4); // N
    load.setComponentBodyId(1);
    load.setListOfNodesName("edge");
    out << linesOf(load, CFEDatLineWriter::standard, CFEDatLineWriter::fixed);
    out << linesOf(load, CFEDatLineWriter::extended, CFEDatLineWriter::free);
    out.flush();
}

bool fullDisk()
{
    QFile file("/dev/full"); // a device that takes nothing
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QTextStream stream(&file);
    CFEDatLineWriter writer(CFEDatLineWriter::extended, CFEDatLineWriter::free);
    writer.setFileHandler(&stream);
    const bool isWritten = writer.writeTitle("a deck"); // into the stream's buffer
    const bool isOnDisk = writer.flush();
    out << "written: " << isWritten << ", on disk: " << isOnDisk << "\n";
    return !isOnDisk;
}

void extremes()
{
    for (double value : {1e-300, 1.5e250, std::numeric_limits<double>::infinity()}) {
        CFEDatLineWriter::cropDoubleValue(value);
        out << value << "\n";
    }
}

void listsOfNumbers()
{
    QTextStream stream(stdout);
    CFEDatLineWriter writer(CFEDatLineWriter::standard, CFEDatLineWriter::fixed);
    writer.setFileHandler(&stream);
    writer.writeList(QList<int>{101, 102, 103, 104, 105}, 3); // three in a line
    writer.flush();
}

int main()
{
    layouts();
    extremes();
    out.flush();
    listsOfNumbers();
    return fullDisk() ? 0 : 1;
}
