// Any bytes as an input deck, in both widths. Options follow each other without a gap; a card that is read
// writes lines that read as the same card; the check takes the deck as it is.

#include <kdQCore/coDeckCheck>
#include <kdQCore/coDeckReader>

#include <QBuffer>
#include <QTextStream>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

using Mode = CFEDatLineWriter::datExtensionMode;

void require(bool condition)
{
    if (!condition)
        std::abort();
}

QByteArray written(const cFeAbstractDatCard& card, Mode mode, CFEDatLineWriter::datFormat format)
{
    QByteArray bytes;
    QTextStream stream(&bytes, QIODevice::WriteOnly);
    CFEDatLineWriter writer(mode, format);
    writer.setFileHandler(&stream);
    const bool isWritten = writer.writeCard(card);
    stream.flush();
    return isWritten ? bytes : QByteArray();
}

/// Numbers wider than their fields do not come back; all else is the same from the first writing on.
void requireStable(const coDeckOption& option, Mode mode)
{
    const QByteArray once = written(*option.card, mode, CFEDatLineWriter::free);
    QBuffer device;
    device.setData(once);
    device.open(QIODevice::ReadOnly);
    coDeckReader reader(device, mode);
    coDeckOption again;
    if (once.isEmpty() || !reader.next(again) || !again.card)
        return;
    require(written(*again.card, mode, CFEDatLineWriter::free) == once);
}

void readAll(QByteArray bytes, Mode mode)
{
    QBuffer device(&bytes);
    device.open(QIODevice::ReadOnly);
    coDeckReader reader(device, mode);
    coDeckOption option;
    qint64 offset = 0;
    qint64 line = 1;
    while (reader.next(option)) {
        require(option.offset == offset && option.firstLine == line && option.size > 0 && option.lines > 0);
        offset += option.size;
        line += option.lines;
        if (option.card)
            requireStable(option, mode);
    }
    require(offset == bytes.size());
    device.seek(0);
    coDeckCheck check(mode);
    require(check.run(device) == (check.errors() == 0));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), int(size));
    readAll(bytes, CFEDatLineWriter::standard);
    readAll(bytes, CFEDatLineWriter::extended);
    return 0;
}
