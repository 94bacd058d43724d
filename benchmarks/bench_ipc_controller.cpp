// A message of 64 characters to another thread and back: through two controllers, through bare local sockets
// with event loops that write and read the same documents, and as mere bytes, without any XML.

#include "duel.h"

#include <kdQCore/coIpcController>
#include <kdQCore/coProductInformation>

#include <QCoreApplication>
#include <QEventLoop>
#include <QLocalServer>
#include <QLocalSocket>
#include <QThread>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <memory>

namespace {

constexpr int messagesPerRound = 2000;
constexpr int rounds = 21;

class TextMessage : public coIpcMessage {
public:
    QString text;

    QString type() const override { return QStringLiteral("Text"); }
    void readXml(QXmlStreamReader& reader) override { text = reader.readElementText(); }
    void writeXml(QXmlStreamWriter& writer) const override
    {
        writer.writeStartDocument();
        writer.writeStartElement(xmlRootElementName());
        writer.writeAttribute(xmlTypeAttributeName(), type());
        writer.writeCharacters(text);
        writer.writeEndElement();
        writer.writeEndDocument();
    }
};

QSharedPointer<TextMessage> makeMessage()
{
    const auto message = QSharedPointer<TextMessage>::create();
    message->text = QString(64, QLatin1Char('x'));
    return message;
}

/// One end of a connection: hands every message to its handler.
class Controller : public coIpcController {
public:
    using Handler = std::function<void(Controller& self, const QSharedPointer<coIpcMessage>& message)>;

    Controller(QLocalSocket* socket, Handler handler) : coIpcController(socket), m_handler(std::move(handler))
    {
    }

protected:
    QSharedPointer<coIpcMessage> createMessage(const QString& type) const override
    {
        if (type == QLatin1String("Text"))
            return QSharedPointer<TextMessage>::create();
        return coIpcController::createMessage(type);
    }
    void messageReceived(QSharedPointer<coIpcMessage> message) override
    {
        if (!message.dynamicCast<TextMessage>().isNull())
            m_handler(*this, message);
    }

private:
    Handler m_handler;
};

/// What a bare socket does with a document: writes it and reads it as XML, or passes it on as bytes.
QByteArray writeBare(const TextMessage& message)
{
    QByteArray document;
    QXmlStreamWriter writer(&document);
    message.writeXml(writer);
    return document.append('\0');
}

QByteArray readAndWriteBare(const QByteArray& document)
{
    QXmlStreamReader reader(document.chopped(1));
    TextMessage message;
    reader.readNextStartElement();
    message.readXml(reader);
    return writeBare(message);
}

enum Kind { Bytes, Documents, Controllers };

void answerBare(QLocalSocket& socket, Kind kind)
{
    const QByteArray document = socket.readAll();
    socket.write(kind == Bytes ? document : readAndWriteBare(document));
    socket.flush();
}

/// Accepts one connection in a thread of its own and answers with what it receives.
class Echo : public QThread {
public:
    Echo(const QString& name, Kind kind) : m_kind(kind)
    {
        m_server.listen(name);
        m_server.moveToThread(this);
        start();
    }
    ~Echo() override
    {
        quit();
        wait();
    }

protected:
    void run() override
    {
        m_server.waitForNewConnection(-1);
        const std::unique_ptr<QLocalSocket> socket(m_server.nextPendingConnection());
        std::unique_ptr<Controller> controller;
        if (m_kind == Controllers)
            controller = std::make_unique<Controller>(
                socket.get(), [](Controller& self, const auto& message) { self.sendMessage(message); });
        else
            QObject::connect(socket.get(), &QLocalSocket::readyRead, socket.get(),
                             [this, &socket] { answerBare(*socket, m_kind); });
        exec();
        m_server.close();
    }

private:
    QLocalServer m_server;
    Kind m_kind;
};

/// The side that asks, in the main thread.
class Asker {
public:
    explicit Asker(Kind kind)
        : m_name(QStringLiteral("bench_ipc_%1_%2").arg(QCoreApplication::applicationPid()).arg(int(kind))),
          m_echo(m_name, kind)
    {
        m_socket.connectToServer(m_name);
        m_socket.waitForConnected();
    }

protected:
    bool isLast()
    {
        if (--m_open == 0)
            m_loop.quit();
        return m_open == 0;
    }

    QString m_name;
    Echo m_echo;
    QLocalSocket m_socket;
    QEventLoop m_loop;
    int m_open = 0;
};

class BareAsker : public Asker {
public:
    explicit BareAsker(Kind kind) : Asker(kind)
    {
        QObject::connect(&m_socket, &QLocalSocket::readyRead, &m_loop, [this, kind] {
            if (isLast())
                m_socket.readAll();
            else
                answerBare(m_socket, kind);
        });
    }

    void run()
    {
        m_open = messagesPerRound;
        m_socket.write(writeBare(*makeMessage()));
        m_socket.flush();
        m_loop.exec();
    }
};

class ControllerAsker : public Asker {
public:
    ControllerAsker()
        : Asker(Controllers), m_controller(&m_socket, [this](Controller& self, const auto& message) {
              if (!isLast())
                  self.sendMessage(message);
          })
    {
    }

    void run()
    {
        m_open = messagesPerRound;
        m_controller.sendMessage(makeMessage());
        m_loop.exec();
    }

private:
    Controller m_controller;
};

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    coProductInformation::registerProduct(coProductType::jes(), coVersionNumber(2018, 1, 0, 0));
    BareAsker bytes(Bytes);
    BareAsker documents(Documents);
    ControllerAsker controllers;
    Duel duel("A message of 64 characters there and back", messagesPerRound);
    duel.add("bare sockets, documents", [&documents] { documents.run(); });
    duel.add("bare sockets, mere bytes", [&bytes] { bytes.run(); });
    duel.add("two controllers", [&controllers] { controllers.run(); });
    duel.run(rounds);
    return duel.demand("two controllers", "bare sockets, documents", 1 / 1.2) ? 0 : 1;
}
