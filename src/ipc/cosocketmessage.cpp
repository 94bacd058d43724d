#include "cosocketmessage.h"

#include "linesignature_p.h"

#include <optional>

namespace {

constexpr int longestPayload = 2048;
constexpr int longestSignedPart = 2048;
constexpr int sessionIdWidth = 6;
constexpr int longestSessionId = 8;

/// As ":%6X" prints it.
void appendSessionId(QByteArray& line, quint32 sessionId)
{
    char text[longestSessionId];
    char* begin = text + longestSessionId;
    for (; sessionId != 0 || begin == text + longestSessionId; sessionId >>= 4)
        *--begin = "0123456789ABCDEF"[sessionId & 15];
    while (begin > text + longestSessionId - sessionIdWidth)
        *--begin = ' ';
    line.append(':').append(begin, int(text + longestSessionId - begin));
}

/// The number that \a text begins with, after blanks; nothing where there is none of 32 bits.
std::optional<quint32> leadingHexNumber(const QByteArray& text)
{
    const auto isHexDigit = [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f');
    };
    int begin = 0;
    while (begin < text.size() && text.at(begin) == ' ')
        ++begin;
    int end = begin;
    while (end < text.size() && isHexDigit(text.at(end)))
        ++end;
    bool ok = false;
    const quint32 value = text.mid(begin, end - begin).toUInt(&ok, 16);
    return ok ? std::optional<quint32>(value) : std::nullopt;
}

} // namespace

bool coSocketMessage::encode(QByteArray message)
{
    clear();
    if (message.endsWith('\n'))
        message.chop(1);
    if (message.size() > longestPayload)
        return fail(tr("The message is too long!"));

    char tail[nLineSignature::digitCount + 2] = {'#'};
    QByteArray line;
    line.reserve(message.size() + longestSessionId + 1 + int(sizeof tail));
    line.append(message.constData()); // to its first zero byte
    appendSessionId(line, static_cast<quint32>(m_sessionId));
    line.truncate(longestSignedPart);
    nLineSignature::sign(line, tail + 1);
    tail[sizeof tail - 1] = '\n';
    line.append(tail, sizeof tail);

    m_message = message;
    m_signedMessage = line;
    return true;
}

bool coSocketMessage::decode(const QByteArray& line)
{
    clear();
    if (line.isNull())
        return fail(tr("Empty message!"));
    const int tag = line.lastIndexOf(':');
    if (tag < 0)
        return fail(tr("No tag separator found!"));
    const std::optional<quint32> sessionId = leadingHexNumber(line.mid(tag + 1));
    if (!sessionId)
        return fail(tr("No message ID found!"));
    // A tag behind the signature would not be signed.
    const int separator = line.lastIndexOf('#');
    if (separator < tag
        || !nLineSignature::verify(line.left(separator), line.mid(separator + 1, nLineSignature::digitCount)))
        return fail(tr("Invalid message signature!"));

    m_sessionId = static_cast<qint32>(*sessionId);
    m_message = line.left(tag);
    m_signedMessage = line;
    return true;
}

void coSocketMessage::clear()
{
    m_errorString.clear();
    m_message.clear();
    m_signedMessage.clear();
}

bool coSocketMessage::fail(const QString& text)
{
    m_errorString = text;
    return false;
}
