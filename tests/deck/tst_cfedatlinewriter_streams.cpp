#include "deckbuffer.h"
#include "kdqtest.h"

#include <kdQCore/cFeAbstractDatCard>
#include <kdQCore/CFEDatLineWriter>

#include <QBuffer>
#include <QTemporaryDir>
#include <QTextCodec>

namespace {

// Takes so many bytes, then none.
class FullDevice : public QIODevice {
public:
    explicit FullDevice(qint64 room) : m_room(room) { open(WriteOnly | Unbuffered); }

    QByteArray bytes;

protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char* data, qint64 size) override
    {
        const qint64 taken = std::min(size, m_room - bytes.size());
        bytes.append(data, static_cast<int>(taken));
        return taken > 0 ? taken : -1;
    }

private:
    qint64 m_room;
};

QList<double> reals(int count)
{
    QList<double> result;
    for (int i = 0; i < count; ++i)
        result.append(i * 0.37 - 1000);
    return result;
}

using FilePointer = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

FilePointer openFile(const QString& path, const char* mode = "wb")
{
    return FilePointer(std::fopen(QFile::encodeName(path).constData(), mode), std::fclose);
}

} // namespace

class TestDatLineWriterStreams : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
        m_folder = std::make_unique<QTemporaryDir>();
    }

    void withoutStream()
    {
        CFEDatLineWriter writer;
        QVERIFY(!writer.writeInt(1) && !writer.writeTitle(QStringLiteral("Ü")) && !writer.flush());
        QVERIFY(!writer.writeList(reals(3), 8));
        QVERIFY(writer.writeList(QList<int>(), 8) && writer.writeStringUnformatted(""));
        QTextStream nowhere;
        writer.setFileHandler(&nowhere);
        QVERIFY(!writer.writeElement(1) && !writer.flush());
        writer.setIsInWriteMode(false);
        QVERIFY(writer.writeElement(1));
    }

    void statusBeforeCounts()
    {
        DeckBuffer deck;
        CFEDatLineWriter& writer = deck.writer();
        deck.stream().setStatus(QTextStream::ReadCorruptData);
        QVERIFY(!writer.writeInt(1) && !writer.writeTitle(QStringLiteral("Ü")));
        QVERIFY(!writer.writeList(reals(20000), 8) && !writer.flush());
        deck.stream().resetStatus();
        QVERIFY(writer.writeInt(2) && writer.flush());
        QCOMPARE(deck.bytes(), QByteArray("    2"));
    }

    void filesStayTheCallers()
    {
        const QString first = m_folder->filePath(QStringLiteral("first"));
        const QString second = m_folder->filePath(QStringLiteral("second"));
        const FilePointer firstFile = openFile(first);
        const FilePointer secondFile = openFile(second);
        QByteArray bytes;
        QTextStream stream(&bytes, QIODevice::WriteOnly);
        {
            CFEDatLineWriter writer(CFEDatLineWriter::standard, CFEDatLineWriter::fixed);
            writer.setFileHandler(firstFile.get());
            QVERIFY(writer.writeTitle(QStringLiteral("Öfen")) && writer.flush());
            QCOMPARE(kdqContentOf(first), QByteArray("titleÖfen\n"));
            std::fputs("by hand\n", firstFile.get());
            QVERIFY(writer.writeInt(1));
            writer.setFileHandler(nullptr);
            QVERIFY(!writer.getFileHandler());
            writer.setFileHandler(secondFile.get());
            QVERIFY(writer.writeInt(2) && writer.getFileHandler() == secondFile.get());
            writer.setFileHandler(&stream);
            QVERIFY(writer.writeInt(3));
        }
        stream << QLatin1String(" still there");
        stream.flush();
        std::fflush(firstFile.get());
        std::fflush(secondFile.get());
        QCOMPARE(kdqContentOf(first), QByteArray("titleÖfen\nby hand\n    1"));
        QCOMPARE(kdqContentOf(second), QByteArray("    2"));
        QCOMPARE(bytes, QByteArray("    3 still there"));
    }

    void fileClosedAfterFlushIsLeftAlone()
    {
        const QString path = m_folder->filePath(QStringLiteral("job.dat"));
        const QString other = m_folder->filePath(QStringLiteral("other.txt"));
        FilePointer otherFile(nullptr, std::fclose);
        {
            FilePointer file = openFile(path);
            CFEDatLineWriter writer(CFEDatLineWriter::standard, CFEDatLineWriter::fixed);
            writer.setFileHandler(file.get());
            QVERIFY(writer.writeInt(1) && writer.flush());
            file.reset();
            otherFile = openFile(other); // usually takes the place of the closed one
            std::fputs("not flushed yet", otherFile.get());
        }
        QCOMPARE(kdqContentOf(path), QByteArray("    1"));
        QCOMPARE(kdqContentOf(other), QByteArray());
    }

    void longLists_data()
    {
        QTest::addColumn<QByteArray>("codec");
        QTest::addColumn<bool>("byteOrderMark");
        kdqRow("local", QByteArray(), false);
        kdqRow("mark first", QByteArray("UTF-8"), true);
        kdqRow("two bytes a character", QByteArray("UTF-16LE"), false);
    }

    void longLists()
    {
        QFETCH(QByteArray, codec);
        QFETCH(bool, byteOrderMark);
        const auto write = [&](QTextStream& stream) {
            CFEDatLineWriter writer(CFEDatLineWriter::extended, CFEDatLineWriter::free);
            writer.setFileHandler(&stream);
            bool ok = writer.writeList(reals(30000), 7) && writer.writeKeywordLine("between");
            QList<int> numbers;
            for (int i = 0; i < 50000; ++i)
                numbers.append(i);
            ok = writer.writeList(numbers, 1000) && writer.writeLineBreak() && ok;
            return writer.flush() && ok;
        };
        QString text;
        QTextStream toText(&text);
        QVERIFY(write(toText));

        const QString path = m_folder->filePath(QStringLiteral("list.dat"));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QTextStream toFile(&file);
        if (!codec.isEmpty())
            toFile.setCodec(codec.constData());
        toFile.setGenerateByteOrderMark(byteOrderMark);
        toFile << QStringLiteral("$ ö\n");
        QVERIFY(write(toFile));
        const QTextCodec* const reader =
            codec.isEmpty() ? QTextCodec::codecForLocale() : QTextCodec::codecForName(codec);
        QVERIFY(kdqContentOf(path).startsWith("\xef\xbb\xbf") == byteOrderMark);
        QVERIFY(reader->toUnicode(kdqContentOf(path)) == QStringLiteral("$ ö\n") + text);
    }

    void textsAreEncodedOnce()
    {
        for (const auto& [codec, line] :
             {qMakePair(QByteArray("UTF-8"), QByteArray("titleÄ€\n")),
              qMakePair(QByteArray("ISO-8859-15"), QByteArray("title\xc4\xa4\n"))}) {
            DeckBuffer deck;
            deck.stream().setCodec(codec.constData());
            QVERIFY(deck.writer().writeTitle(QStringLiteral("Ä€")));
            QVERIFY(deck.writer().writeTitle("Ä€") && deck.writer().writeTitle(std::string("Ä€")));
            QCOMPARE(deck.bytes(), line + line + line);
        }
    }

    void bytesThatAreNoLocalTextStayAsTheyAre()
    {
        DeckBuffer deck;
        QVERIFY(deck.writer().writeString("\xc4", 3) && deck.writer().writeKeywordLine("\xff\xfe"));
        QVERIFY(deck.writer().writeStringUnformatted("\xef\xbb\xbf"
                                                     "end"));
        QCOMPARE(deck.bytes(),
                 QByteArray("  \xc4\xff\xfe\n\xef\xbb\xbf"
                            "end"));
    }

    void callersPaddingDoesNotReachTheDeck()
    {
        DeckBuffer deck;
        deck.stream().setFieldWidth(30);
        QVERIFY(deck.writer().writeInt(1) && deck.writer().writeTitle(QStringLiteral("Ä")));
        QCOMPARE(deck.stream().fieldWidth(), 30);
        QCOMPARE(deck.bytes(), QByteArray("    1titleÄ\n"));
    }

    void deviceThatFillsUp()
    {
        for (const int room : {30000, 20000 * 20 + 2500 * 3 - 2 - 1}) { // in the first block, at the end
            FullDevice device(room);
            QTextStream stream(&device);
            CFEDatLineWriter writer(CFEDatLineWriter::extended, CFEDatLineWriter::fixed);
            writer.setFileHandler(&stream);
            const bool isWritten = writer.writeList(reals(20000), 8);
            QVERIFY(!writer.flush() || !isWritten);
            QCOMPARE(device.bytes.size(), room);
            QVERIFY(!writer.writeInt(1) && !writer.writeList(reals(20000), 8) && !writer.flush());
            QCOMPARE(writer.getErrorCount(), 0);
        }
    }

    void fullDisk()
    {
        const QString path = QStringLiteral("/dev/full");
        if (!QFile::exists(path))
            QSKIP("This system has no device that is always full.");
        for (const int count : {1, 100000}) {
            const FilePointer file = openFile(path);
            CFEDatLineWriter writer;
            writer.setFileHandler(file.get());
            const bool isSeenAtOnce = !writer.writeList(reals(count), 8);
            QCOMPARE(isSeenAtOnce, count > 10000);
            QVERIFY(!writer.flush());
            QVERIFY(!writer.writeKeywordLine("end"));
        }
    }

    void fieldwiseFailureIsSeenOnceTheStreamKnows()
    {
        FullDevice device(0);
        QTextStream stream(&device);
        CFEDatLineWriter writer;
        writer.setFileHandler(&stream);
        QVERIFY(writer.writeIntNTimes(1, 10));
        QVERIFY(!writer.writeIntNTimes(1, 100000));
        QVERIFY(!writer.writeDoubleNTimes(1, 1));
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

KDQ_TEST_MAIN(TestDatLineWriterStreams)
#include "tst_cfedatlinewriter_streams.moc"
