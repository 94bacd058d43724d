#include <kdQCore/CFEDatLineWriter>

#include <QTextCodec>
#include <QTextStream>

#include <cstdlib>

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    return 0;
}

// Whatever a text holds: comment lines stay comment lines of at most 160 bytes and lose nothing, a title
// stays one line.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    QByteArray deck;
    QTextStream stream(&deck, QIODevice::WriteOnly);
    CFEDatLineWriter writer(CFEDatLineWriter::standard, CFEDatLineWriter::fixed);
    writer.setFileHandler(&stream);

    require(writer.writeSingleCommentLine(text) && writer.flush());
    const QByteArray whole = deck.mid(2, deck.size() - 3);
    require(deck.startsWith("$ ") && deck.count('\n') == 1 && deck.endsWith('\n'));

    const int start = deck.size();
    require(writer.writeCommentLine(text) && writer.flush());
    QByteArray joined;
    QList<QByteArray> lines = deck.mid(start).split('\n');
    require(lines.takeLast().isEmpty());
    for (const QByteArray& line : qAsConst(lines)) {
        require(line.startsWith("$ ") && line.size() <= 160);
        joined += line.mid(2);
    }
    require(joined == whole);

    const int title = deck.size();
    require(writer.writeTitle(text) && writer.flush() && deck.indexOf('\n', title) == deck.size() - 1);
    const bool isField = writer.writeString(text, 20);
    require(writer.flush() && isField == (whole.size() <= 20));
    return 0;
}
