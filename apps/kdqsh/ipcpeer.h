#pragma once

#include <kdQCore/coIpcController>

/// A line of text for the people at the other shell.
class IpcTextMessage : public coIpcMessage {
public:
    explicit IpcTextMessage(const QString& text = QString()) : m_text(text) { }

    static QString messageType() { return QStringLiteral("Text"); }
    QString text() const { return m_text; }

    QString type() const override { return messageType(); }
    void readXml(QXmlStreamReader& reader) override;
    void writeXml(QXmlStreamWriter& writer) const override;

private:
    QString m_text;
};

/// A connection to another shell, which takes greetings and texts.
class IpcPeer : public coIpcController {
    Q_OBJECT

public:
    using coIpcController::clientName;
    using coIpcController::coIpcController;

    bool hasGreeted() const { return m_hasGreeted; }
    void say(const QString& text) { sendMessage(QSharedPointer<IpcTextMessage>::create(text)); }

Q_SIGNALS:
    void signalGreetingReceived();
    void signalTextReceived(const QString& text);

protected:
    QSharedPointer<coIpcMessage> createMessage(const QString& type) const override;
    void messageReceived(QSharedPointer<coIpcMessage> message) override;

private:
    bool m_hasGreeted = false;
};
