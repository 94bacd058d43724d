// Messages: a listener and a caller of the family, here in one program.
#include <kdQCore/coIpcController>
#include <kdQCore/coProductInformation>
#include <kdQCore/kdDebugLog>

#include <QCoreApplication>
#include <QLocalServer>
#include <QLocalSocket>
#include <QTextStream>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

QTextStream out(stdout);

class JobStateMessage : public coIpcMessage {
public:
    explicit JobStateMessage(const QString& state = QString()) : m_state(state) { }
    static QString messageType() { return "JobState"; }
    QString type() const override { return messageType(); }
    QString state() const { return m_state; }

    void readXml(QXmlStreamReader& reader) override { m_state = reader.readElementText(); }
    void writeXml(QXmlStreamWriter& writer) const override
    {
        writer.writeStartDocument();
        writer.writeStartElement(xmlRootElementName());
        writer.writeAttribute(xmlTypeAttributeName(), type());
        writer.writeCharacters(m_state);
        writer.writeEndElement();
        writer.writeEndDocument();
    }

private:
    QString m_state;
};

class MyController : public coIpcController {
public:
    using coIpcController::coIpcController;

protected:
    QSharedPointer<coIpcMessage> createMessage(const QString& type) const override
    {
        if (type == JobStateMessage::messageType())
            return QSharedPointer<JobStateMessage>::create();
        return coIpcController::createMessage(type);
    }
    void messageReceived(QSharedPointer<coIpcMessage> message) override
    {
        if (const auto job = message.dynamicCast<JobStateMessage>()) {
            out << peerProgram().viewName() << " says: " << job->state() << "\n";
            QCoreApplication::quit();
        }
    }
};

bool listen(QLocalServer& server)
{
    server.setSocketOptions(QLocalServer::UserAccessOption);
    const QString name =
        coIpcController::socketName(nKaldoranProducts::Welding, QCoreApplication::applicationPid());
    QLocalServer::removeServer(name); // left by a crashed process that had our process id
    QObject::connect(&server, &QLocalServer::newConnection, [&server] {
        QLocalSocket* const socket = server.nextPendingConnection();
        QObject::connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        auto* const controller = new MyController(socket);
        controller->setParent(socket); // goes with it
    });
    return server.listen(name);
}

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    kdDebugLog::createInstance(argc, argv, false);
    coProductInformation::registerProduct(coProductType::welding(), coVersionNumber(2018, 1, 0, 345));
    QLocalServer server;
    if (!listen(server))
        return 1;

    QLocalSocket socket; // commonly in another process, which knows our process id
    socket.connectToServer(server.serverName());
    if (!socket.waitForConnected(5000))
        return 1;
    coIpcController caller(&socket);
    caller.sendMessage(QSharedPointer<JobStateMessage>::create("step 7 of 100"));
    const int status = QCoreApplication::exec();
    kdDebugLog::removeInstance();
    return status;
}
