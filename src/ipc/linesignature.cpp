#include "linesignature_p.h"
#include "speck_p.h"

#include <QCryptographicHash>

#include <optional>

namespace {

constexpr char digitTexts[] = "0123456789ABCDEFGHIJKLMNOPQRSTUV";

// The first 128 binary places of the golden ratio: a key without a secret. Changing it parts the process from
// all others of the family.
constexpr nSpeck::RoundKeys familyKeys =
    nSpeck::roundKeys(0x9E3779B9U, 0x7F4A7C15U, 0xF39CC060U, 0x5CEDC834U);

quint64 folded(const QByteArray& signedPart)
{
    const QByteArray digest = QCryptographicHash::hash(signedPart, QCryptographicHash::Sha1);
    quint64 fold = 0;
    for (int i = 0; i <= 18; i += 3)
        fold = fold << 8 | static_cast<uchar>(digest.at(i));
    return fold;
}

/// -1 for a character that is no digit.
int digitValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'A' && c <= 'V')
        return c - 'A' + 10;
    return c >= 'a' && c <= 'v' ? c - 'a' + 10 : -1;
}

/// Nothing where the digits are no number of 64 bits.
std::optional<quint64> number(const QByteArray& digits)
{
    if (digits.size() != nLineSignature::digitCount || digitValue(digits.at(0)) > 15)
        return std::nullopt;
    quint64 value = 0;
    for (const char c : digits) {
        const int digit = digitValue(c);
        if (digit < 0)
            return std::nullopt;
        value = value << 5 | static_cast<quint64>(digit);
    }
    return value;
}

} // namespace

void nLineSignature::sign(const QByteArray& signedPart, char* digits)
{
    quint64 value = nSpeck::encrypted(folded(signedPart), familyKeys);
    for (int i = digitCount; i-- > 0; value >>= 5)
        digits[i] = digitTexts[value & 31];
}

bool nLineSignature::verify(const QByteArray& signedPart, const QByteArray& digits)
{
    const std::optional<quint64> value = number(digits);
    return value && nSpeck::decrypted(*value, familyKeys) == folded(signedPart);
}
