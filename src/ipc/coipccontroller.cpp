#include "coipccontroller.h"

#include <kdQCore/coProductInformation>
#include <kdQCore/kdLog>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QLocalSocket>
#include <QPointer>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <utility>

namespace {

constexpr int sendTimeout = 30000; // milliseconds

constexpr const char* socketNames[] = {
    "",
    "7c496593ced3.kaldoran_forming.%1",
    "7c496593ced3.kaldoran_welding.%1",
    "7c496593ced3.kaldoran_joining.%1",
    "7c496593ced3.kaldoran_jes.%1",
    "7c496593ced3.kaldoran_material.%1",
    "7c496593ced3.kaldoran_additive.%1",
};

} // namespace

struct coIpcController::Private {
    explicit Private(QLocalSocket* localSocket) : socket(localSocket) { }

    /// Reads what is there now and keeps the complete messages of it.
    void read();

    struct Document {
        QByteArray bytes;
        bool isGreetingProcessed;
    };

    const QPointer<QLocalSocket> socket;
    QList<Document> inbox; ///< complete, not yet delivered
    bool isSending = false;

    coProductType peerProgram;
    coVersionNumber peerVersion;
    qint64 peerPid = -1;
};

void coIpcController::Private::read()
{
    if (socket.isNull() || socket->bytesAvailable() == 0)
        return;
    const QByteArray bytes = socket->readAll();
    int begin = 0;
    for (int end = bytes.indexOf('\0'); end >= 0; end = bytes.indexOf('\0', begin)) {
        inbox.append({bytes.mid(begin, end - begin), false});
        begin = end + 1;
    }
}

coIpcController::coIpcController(QLocalSocket* socket) : d(std::make_unique<Private>(socket))
{
    if (socket == nullptr || socket->thread() != thread()) {
        KD_LOG_FAILED_ASSERT(QStringLiteral("coIpcController needs a socket of its own thread."));
        return;
    }
    takeEarlyMessages();
    connect(socket, &QLocalSocket::readyRead, this, &coIpcController::processData);
    // Posted before the greeting may find the other side gone and have the application delete the controller.
    QMetaObject::invokeMethod(this, &coIpcController::processData, Qt::QueuedConnection);
    sendGreeting();
    takeEarlyMessages();
}

coIpcController::~coIpcController() = default;

QString coIpcController::socketName(nKaldoranProducts::e_Product product, qint64 pid)
{
    if (product < nKaldoranProducts::Forming || product > nKaldoranProducts::Additive)
        return {};
    return QString::fromLatin1(socketNames[product]).arg(pid);
}

coProductType coIpcController::peerProgram() const
{
    return d->peerProgram;
}

coVersionNumber coIpcController::peerVersion() const
{
    return d->peerVersion;
}

qint64 coIpcController::peerPid() const
{
    return d->peerPid;
}

QString coIpcController::clientName() const
{
    return QStringLiteral("[PID=%1] %2 %3")
        .arg(QString::number(d->peerPid), d->peerProgram.viewName(),
             d->peerVersion.toString(coVersionNumber::AllParts));
}

// The base of a constructor's stage: only greetings can be created yet.
void coIpcController::takeEarlyMessages()
{
    const int first = d->inbox.size();
    d->read();
    for (int i = first; i < d->inbox.size(); ++i) {
        const auto greeting = readMessage(d->inbox.at(i).bytes).dynamicCast<coIpcGreetingMessage>();
        if (greeting.isNull())
            continue;
        processGreeting(greeting.data());
        d->inbox[i].isGreetingProcessed = true;
    }
}

// A send reads ahead what comes meanwhile, after which the socket tells of no new data: so the socket is
// asked again after every message. A handler may delete the controller.
void coIpcController::processData()
{
    if (d->isSending)
        return;
    const QPointer<coIpcController> self(this);
    d->read();
    while (!self.isNull() && !d->inbox.isEmpty()) {
        const Private::Document document = d->inbox.takeFirst();
        receiveMessage(document.bytes, document.isGreetingProcessed);
        if (!self.isNull())
            d->read();
    }
}

void coIpcController::receiveMessage(const QByteArray& document, bool isGreetingProcessed)
{
    const QSharedPointer<coIpcMessage> message = readMessage(document);
    if (message.isNull())
        return;
    if (const auto* greeting = dynamic_cast<coIpcGreetingMessage*>(message.data()))
        if (!isGreetingProcessed)
            processGreeting(greeting);
    messageReceived(message);
}

QSharedPointer<coIpcMessage> coIpcController::readMessage(const QByteArray& document) const
{
    QXmlStreamReader reader(document);
    if (!reader.readNextStartElement() || reader.name() != coIpcMessage::xmlRootElementName())
        return {};
    const QString type = reader.attributes().value(coIpcMessage::xmlTypeAttributeName()).toString();
    if (type.isEmpty())
        return {};
    const QSharedPointer<coIpcMessage> message = createMessage(type);
    if (message.isNull())
        return {};
    message->readXml(reader);
    return reader.hasError() ? QSharedPointer<coIpcMessage>() : message;
}

void coIpcController::messageReceived(QSharedPointer<coIpcMessage>) { }

QSharedPointer<coIpcMessage> coIpcController::createMessage(const QString& type) const
{
    if (type == coIpcGreetingMessage::messageType())
        return QSharedPointer<coIpcGreetingMessage>::create();
    return {};
}

void coIpcController::sendMessage(QSharedPointer<const coIpcMessage> message)
{
    if (message.isNull()) {
        KD_LOG_FAILED_ASSERT(QStringLiteral("coIpcController was given no message to send."));
        return;
    }
    QByteArray document;
    QXmlStreamWriter writer(&document);
    message->writeXml(writer);
    if (writer.hasError() || document.contains('\0')) {
        KD_LOG(kdLog::Fault, kdLog::InterProcessCom,
               QStringLiteral("Message '%1' not sent: it holds characters that have no form in XML.")
                   .arg(message->type()));
        return;
    }
    sendMessage(std::move(document));
}

void coIpcController::sendMessage(QByteArray document)
{
    if (d->socket.isNull() || d->socket->state() != QLocalSocket::ConnectedState) {
        KD_LOG(kdLog::Notable, kdLog::InterProcessCom,
               QStringLiteral("Message to %1 not sent: there is no connection.").arg(clientName()));
        return;
    }
    document.append('\0');
    // Slots of the socket's signals run meanwhile.
    const QPointer<coIpcController> self(this);
    const bool wasSending = std::exchange(d->isSending, true);
    const QPointer<QLocalSocket> socket(d->socket);
    const QDeadlineTimer deadline(sendTimeout);
    socket->write(document);
    socket->flush();
    bool isProgressing = true; // one wait ends with the first of the bytes
    while (isProgressing && !socket.isNull() && socket->bytesToWrite() > 0)
        isProgressing = socket->waitForBytesWritten(int(deadline.remainingTime()));
    if (self.isNull())
        return;
    d->isSending = wasSending;
    if (!socket.isNull() && socket->bytesAvailable() > 0)
        QMetaObject::invokeMethod(this, &coIpcController::processData, Qt::QueuedConnection);
}

void coIpcController::processGreeting(const coIpcGreetingMessage* greeting)
{
    d->peerProgram = greeting->program();
    d->peerPid = greeting->pid();
    d->peerVersion = greeting->version();
    kdLog::write(kdLog::Trace, kdLog::InterProcessCom, "coipccontroller", __LINE__,
                 QLatin1String("Greeting received: ") + clientName());
}

void coIpcController::sendGreeting()
{
    const coProductInformation::Product own = coProductInformation::product();
    const auto greeting = QSharedPointer<coIpcGreetingMessage>::create();
    greeting->setProgram(own.type);
    greeting->setVersion(own.version);
    greeting->setPid(QCoreApplication::applicationPid());
    sendMessage(greeting);
}
