#pragma once

#include <kdQCore/coIpcGreetingMessage>
#include <kdQCore/nKaldoranProducts>

#include <QObject>
#include <QSharedPointer>

#include <memory>

QT_BEGIN_NAMESPACE
class QLocalSocket;
QT_END_NAMESPACE

/// One end of a connection between two processes of the family: greets the other side, sends messages and
/// receives them.
///
/// The application that listens opens a QLocalServer under socketName(), the other connects to that name;
/// each wraps its connected socket. Own messages come with a derived class:
///
/// \code
/// class JobController : public coIpcController {
/// public:
///     using coIpcController::coIpcController;
///
/// protected:
///     QSharedPointer<coIpcMessage> createMessage(const QString& type) const override
///     {
///         if (type == JobStateMessage::messageType())
///             return QSharedPointer<JobStateMessage>::create();
///         return coIpcController::createMessage(type);
///     }
///     void messageReceived(QSharedPointer<coIpcMessage> message) override;
/// };
///
/// QLocalServer server;
/// server.setSocketOptions(QLocalServer::UserAccessOption); // nobody but the same user
/// server.listen(coIpcController::socketName(nKaldoranProducts::Jes, QCoreApplication::applicationPid()));
/// ...
/// auto* controller = new JobController(server.nextPendingConnection());
/// \endcode
///
/// The one-read rule: a message must arrive whole in one read of the socket. What follows the last complete
/// message of a read is dropped, and so is its rest in the next read. Messages of up to some 4000 bytes, each
/// sent and answered before the next large one, arrive whole; of larger ones some are lost. Malformed
/// messages and those of unknown types are dropped without an answer, and the connection stays open.
///
/// Lives in the thread of its socket, which needs an event loop, and does not own the socket. Messages are
/// delivered one at a time in the order of their arrival, never from within sendMessage(). A handler may
/// send, and may delete the controller.
class KDQCORE_EXPORT coIpcController : public QObject {
    Q_OBJECT

public:
    /// Takes what the socket already holds and sends the greeting. The derived class does not exist yet, so
    /// it is given these messages, the greeting included, from the event loop.
    explicit coIpcController(QLocalSocket* socket);
    ~coIpcController() override;

    /// Blocks until the bytes are on their way, 30 seconds at most; what a peer does not take by then is not
    /// reported. A message that cannot be sent at all is logged: there is no connection, or a text of it
    /// holds characters that XML has no form for, such as a zero.
    void sendMessage(QSharedPointer<const coIpcMessage> message);

    /// Under this name the process \a pid of the product listens; empty for other products.
    static QString socketName(nKaldoranProducts::e_Product product, qint64 pid);

protected:
    /// Called for every message that was read without error, the greeting included.
    virtual void messageReceived(QSharedPointer<coIpcMessage> message);

    /// A new, empty message; null for an unknown type, whose message is dropped.
    virtual QSharedPointer<coIpcMessage> createMessage(const QString& type) const;

    // The other side: the unknown product, 0.0.0.0 and -1 until its greeting has come.
    coProductType peerProgram() const;
    coVersionNumber peerVersion() const;
    qint64 peerPid() const;

    /// The other side for logs and lists: "[PID=4711] Kaldoran Welding 2018.1.0.345".
    QString clientName() const;

private:
    struct Private;

    void processData();
    void takeEarlyMessages();
    void receiveMessage(const QByteArray& document, bool isGreetingProcessed);
    QSharedPointer<coIpcMessage> readMessage(const QByteArray& document) const;
    void sendMessage(QByteArray document);
    void processGreeting(const coIpcGreetingMessage* greeting);
    void sendGreeting();

    const std::unique_ptr<Private> d;
};
