#pragma once

#include "linesignature_p.h"

/// A line with a valid signature, whatever it signs.
inline QByteArray signedPart(const QByteArray& part)
{
    QByteArray digits(nLineSignature::digitCount, ' ');
    nLineSignature::sign(part, digits.data());
    return part + '#' + digits + '\n';
}
