#pragma once

#include <kdqcore_export.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

/// One line of the family's talk over TCP: a payload, the number of the session and a signature.
///
/// \code
/// coSocketMessage message;
/// message.setSessionId(0x1A2B);
/// if (message.encode("status?"))
///     device.write(message.signedMessage()); // "status?:  1A2B#", 13 digits and a line feed
/// \endcode
///
/// The signature tells a line of the family from one of a stranger or a damaged one. It is no protection
/// against someone who has the program, and hides nothing: see docs/messages.md, also for the line's form.
///
/// A value type; not thread-safe.
class KDQCORE_EXPORT coSocketMessage {
    Q_DECLARE_TR_FUNCTIONS(coSocketMessage)

public:
    /// Makes the signed line of a payload with the session id. One line feed at the payload's end is dropped;
    /// a zero byte ends what goes into the line. A line feed inside is not looked for: it would part the line
    /// in two, and the peer would refuse both.
    ///
    /// Fails with "The message is too long!" for more than 2048 bytes. The signed bytes, which include ":"
    /// and the session id, are cut to 2048 too, so a payload of more than 2041 bytes (2039 with a session id
    /// of eight digits) loses the end of its session id and cannot be read back as what it was.
    bool encode(QByteArray message);

    /// Checks a received line and takes it apart; what follows the signature, such as the line feed, is
    /// ignored. Where it fails, errorString() says why, the session id is what it was and the rest is empty.
    bool decode(const QByteArray& line);

    /// Of the last encode() or decode(), translated; empty after success.
    QString errorString() const { return m_errorString; }

    /// -1 when unset. On the wire it is an unsigned number of up to eight hexadecimal digits.
    void setSessionId(int sessionId) { m_sessionId = sessionId; }
    int sessionId() const { return m_sessionId; }

    /// The payload, without a line feed at its end.
    QByteArray message() const { return m_message; }
    /// The whole line as it goes on the wire, or came from it.
    QByteArray signedMessage() const { return m_signedMessage; }

private:
    void clear();
    bool fail(const QString& text);

    QString m_errorString;
    qint32 m_sessionId = -1;
    QByteArray m_message;
    QByteArray m_signedMessage;
};
