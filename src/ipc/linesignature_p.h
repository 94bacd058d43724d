#pragma once

#include <QByteArray>

/// The signature of a socket message's line: the SHA-1 digest of the signed bytes, folded to 56 bits and sent
/// through a permutation whose key every process of the family knows. It tells lines of the family from those
/// of strangers and from damaged ones; whoever has the program can sign, so it protects no secret.
namespace nLineSignature {

constexpr int digitCount = 13;

/// Writes thirteen base-32 digits, "0" to "9" and "A" to "V".
void sign(const QByteArray& signedPart, char* digits);

/// \a digits: exactly thirteen characters, letters in either case.
bool verify(const QByteArray& signedPart, const QByteArray& digits);

} // namespace nLineSignature
