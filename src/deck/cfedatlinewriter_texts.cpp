#include "cfedatlinewriter.h"
#include "dattext_p.h"

namespace {

constexpr int longestJoinedText = 1023;
constexpr int longestCommentPiece = 158;

QByteArray commentLine(const QByteArray& text)
{
    return "$ " + text + '\n';
}

} // namespace

bool CFEDatLineWriter::writeCommentStart()
{
    return put("$ ", 2);
}

bool CFEDatLineWriter::writeCommentPart(int value)
{
    return putText(QByteArray::number(value));
}

bool CFEDatLineWriter::writeCommentPart(double value)
{
    char text[doubleBufferSize];
    return put(text, formatDouble(value, false, text));
}

bool CFEDatLineWriter::writeCommentPart(const char* text)
{
    return putText(nDatText::singleLine(nDatText::toBytes(text)));
}

bool CFEDatLineWriter::writeCommentPart(const std::string& text)
{
    return putText(nDatText::singleLine(nDatText::toBytes(text)));
}

bool CFEDatLineWriter::writeCommentPart(const QString& text)
{
    return putText(nDatText::singleLine(nDatText::toBytes(text)));
}

bool CFEDatLineWriter::writeSingleCommentLine(const QString& text)
{
    return putText(commentLine(nDatText::singleLine(nDatText::toBytes(text))));
}

bool CFEDatLineWriter::writeSingleCommentLine(const char* text)
{
    return putText(commentLine(nDatText::singleLine(nDatText::toBytes(text))));
}

bool CFEDatLineWriter::writeSingleCommentLine(const std::string& text)
{
    return putText(commentLine(nDatText::singleLine(nDatText::toBytes(text))));
}

bool CFEDatLineWriter::writeCommentLines(const QByteArray& text)
{
    const QByteArray comment = nDatText::singleLine(text);
    QByteArray lines;
    int start = 0;
    while (comment.size() - start >= longestCommentPiece) {
        const int length = nDatText::pieceLength(comment, start, longestCommentPiece);
        lines += commentLine(comment.mid(start, length));
        start += length;
    }
    return putText(lines + commentLine(comment.mid(start)));
}

bool CFEDatLineWriter::writeCommentLine(const char* text)
{
    return writeCommentLines(nDatText::toBytes(text));
}

bool CFEDatLineWriter::writeCommentLine(const std::string& text)
{
    return writeCommentLines(nDatText::toBytes(text));
}

bool CFEDatLineWriter::writeCommentLine(const QString& text)
{
    return writeCommentLines(nDatText::toBytes(text));
}

bool CFEDatLineWriter::writeKeywordLine(const char* text)
{
    return putText(nDatText::toBytes(text) + '\n');
}

bool CFEDatLineWriter::writeKeywordLine(const std::string& text)
{
    return putText(nDatText::toBytes(text) + '\n');
}

bool CFEDatLineWriter::writeKeywordLine(const QString& text)
{
    return putText(nDatText::toBytes(text) + '\n');
}

bool CFEDatLineWriter::writeStringUnformatted(const char* text)
{
    return putText(nDatText::toBytes(text));
}

bool CFEDatLineWriter::writeStringUnformatted(const std::string& text)
{
    return putText(nDatText::toBytes(text));
}

bool CFEDatLineWriter::writeStringUnformatted(const QString& text)
{
    return putText(nDatText::toBytes(text));
}

bool CFEDatLineWriter::writeJoined(const QByteArray& first, const QByteArray& second)
{
    const QByteArray text = first + second;
    return text.size() <= longestJoinedText && putText(text);
}

bool CFEDatLineWriter::writeJoinedLatin1(const QByteArray& first, const QByteArray& second)
{
    const QByteArray text = first + second;
    return text.size() <= longestJoinedText && put(text.constData(), text.size());
}

bool CFEDatLineWriter::writeStringCombiUnformatted(const char* first, const char* second)
{
    return writeJoined(nDatText::toBytes(first), nDatText::toBytes(second));
}

bool CFEDatLineWriter::writeStringCombiUnformatted(const std::string& first, const std::string& second)
{
    return writeJoined(nDatText::toBytes(first), nDatText::toBytes(second));
}

bool CFEDatLineWriter::writeStringCombiUnformatted(const QString& first, const QString& second)
{
    return writeJoinedLatin1(nDatText::toLatin1Bytes(first), nDatText::toLatin1Bytes(second));
}

bool CFEDatLineWriter::writeStringCombiUnformatted(const char* first, int second)
{
    return writeJoined(nDatText::toBytes(first), QByteArray::number(second));
}

bool CFEDatLineWriter::writeStringCombiUnformatted(const std::string& first, int second)
{
    return writeJoined(nDatText::toBytes(first), QByteArray::number(second));
}

bool CFEDatLineWriter::writeStringCombiUnformatted(const QString& first, int second)
{
    return writeJoinedLatin1(nDatText::toLatin1Bytes(first), QByteArray::number(second));
}

bool CFEDatLineWriter::writeStringCombiUnformatted(int first, const char* second)
{
    return writeJoined(QByteArray::number(first), nDatText::toBytes(second));
}

bool CFEDatLineWriter::writeStringCombiUnformatted(int first, const std::string& second)
{
    return writeJoined(QByteArray::number(first), nDatText::toBytes(second));
}

bool CFEDatLineWriter::writeStringCombiUnformatted(int first, const QString& second)
{
    return writeJoinedLatin1(QByteArray::number(first), nDatText::toLatin1Bytes(second));
}

bool CFEDatLineWriter::writeKeywordAndNumber(const char* keyword, int n)
{
    bool ok = writeString(keyword, 0);
    ok = writeInt(n) && ok;
    return writeLineBreak() && ok;
}

bool CFEDatLineWriter::writeElement(int n)
{
    return writeKeywordAndNumber("element", n);
}

bool CFEDatLineWriter::writeFeature(int n)
{
    return writeKeywordAndNumber("feature", n);
}

bool CFEDatLineWriter::writeNodal(int n)
{
    return writeKeywordAndNumber("nodal", n);
}

bool CFEDatLineWriter::writeKeywordAndText(const char* keyword, const QByteArray& text)
{
    bool ok = writeString(keyword, 0);
    ok = putText(nDatText::singleLine(text)) && ok;
    return writeLineBreak() && ok;
}

bool CFEDatLineWriter::writeLoadcase(const QString& name)
{
    return writeKeywordAndText("loadcase", nDatText::toBytes(name));
}

bool CFEDatLineWriter::writeLoadcase(const char* name)
{
    return writeKeywordAndText("loadcase", nDatText::toBytes(name));
}

bool CFEDatLineWriter::writeLoadcase(const std::string& name)
{
    return writeKeywordAndText("loadcase", nDatText::toBytes(name));
}

bool CFEDatLineWriter::writeTitle(const QString& text)
{
    return writeKeywordAndText("title", nDatText::toBytes(text));
}

bool CFEDatLineWriter::writeTitle(const char* text)
{
    return writeKeywordAndText("title", nDatText::toBytes(text));
}

bool CFEDatLineWriter::writeTitle(const std::string& text)
{
    return writeKeywordAndText("title", nDatText::toBytes(text));
}
