#pragma once

#include "linesignature_p.h"

#include <kdQCore/coSocketMessage>

/// A line with a valid signature, whatever it signs.
inline QByteArray signedPart(const QByteArray& part)
{
    QByteArray digits(nLineSignature::digitCount, ' ');
    nLineSignature::sign(part, digits.data());
    return part + '#' + digits + '\n';
}

/// Empty where the payload cannot be sent.
inline QByteArray signedLine(const QByteArray& payload, int sessionId)
{
    coSocketMessage message;
    message.setSessionId(sessionId);
    return message.encode(payload) ? message.signedMessage() : QByteArray();
}
