#include "cosocketmessage.h"

#include "linesignature_p.h"

#include <optional>

namespace {

constexpr int longestPayload = 2048;
constexpr int longestSignedPart = 2048;
constexpr int sessionIdWidth = 6;

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

    QByteArray line = message.left(int(qstrlen(message.constData())));
    line.reserve(line.size() + 32);
    line += ':';
    line +=
        QByteArray::number(static_cast<quint32>(m_sessionId), 16).toUpper().rightJustified(sessionIdWidth);
    line.truncate(longestSignedPart);
    const QByteArray signature = nLineSignature::sign(line);
    line += '#';
    line += signature;
    line += '\n';

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
