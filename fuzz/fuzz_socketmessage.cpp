// Signed lines as a peer may send them, with the fuzzer's signature or with ours.
#include "linesignature_p.h"

#include <kdQCore/coSocketMessage>

extern "C" int LLVMFuzzerTestOneInput(const uchar* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    coSocketMessage received;
    received.decode(bytes);

    QByteArray digits(nLineSignature::digitCount, ' ');
    nLineSignature::sign(bytes, digits.data());
    const QByteArray line = bytes + '#' + digits;
    if (received.decode(line) == !received.errorString().isEmpty())
        abort();
    if (received.signedMessage().isEmpty())
        return 0;
    // What was understood is said again, but for what a zero byte or the limit cuts off.
    coSocketMessage sent;
    sent.setSessionId(received.sessionId());
    const QByteArray payload = received.message();
    if (payload.contains('\0') || payload.endsWith('\n') || payload.size() > 2039)
        return 0;
    coSocketMessage again;
    if (!sent.encode(payload) || !again.decode(sent.signedMessage()) || again.message() != payload
        || again.sessionId() != received.sessionId())
        abort();
    return 0;
}
