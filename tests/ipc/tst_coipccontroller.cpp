#include "kdqtest.h"
#include "logcapture.h"

#include <kdQCore/coIpcController>
#include <kdQCore/coProductInformation>

#include <QLocalServer>
#include <QLocalSocket>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <future>
#include <memory>

namespace {

class TextMessage : public coIpcMessage {
public:
    explicit TextMessage(const QString& content = QString()) : text(content) { }
    QString type() const override { return S("Text"); }
    void readXml(QXmlStreamReader& reader) override { text = reader.readElementText(); }
    void writeXml(QXmlStreamWriter& writer) const override
    {
        writer.writeStartElement(xmlRootElementName());
        writer.writeAttribute(xmlTypeAttributeName(), type());
        writer.writeCharacters(text);
        writer.writeEndDocument();
    }

    QString text;
};

class Controller : public coIpcController {
public:
    using coIpcController::clientName;
    using coIpcController::coIpcController;

    QByteArrayList received;
    std::function<void(const QByteArray& text)> handler = [](const QByteArray&) {};

    void send(const QString& text) { sendMessage(QSharedPointer<TextMessage>::create(text)); }

protected:
    QSharedPointer<coIpcMessage> createMessage(const QString& type) const override
    {
        return type == QLatin1String("Text") ? QSharedPointer<TextMessage>::create()
                                             : coIpcController::createMessage(type);
    }
    void messageReceived(QSharedPointer<coIpcMessage> message) override
    {
        const auto text = message.dynamicCast<TextMessage>();
        received.append((text.isNull() ? message->type() : text->text).toUtf8());
        handler(received.last());
    }
};

struct Listener {
    Listener()
    {
        static int number = 0;
        const QString name =
            S("kdq-ipc-%1-%2")
                .arg(QString::number(QCoreApplication::applicationPid()), QString::number(++number));
        server.setSocketOptions(QLocalServer::UserAccessOption);
        if (!server.listen(name))
            qFatal("%s", qPrintable(server.errorString()));
    }

    std::unique_ptr<QLocalSocket> accept()
    {
        server.waitForNewConnection(10000);
        return std::unique_ptr<QLocalSocket>(server.nextPendingConnection());
    }

    QLocalServer server;
};

void write(QLocalSocket& peer, const QByteArray& bytes)
{
    peer.write(bytes);
    peer.flush();
}

/// A bare peer, and the socket on our side.
struct Connection {
    Connection()
    {
        peer.connectToServer(listener.server.serverName());
        ours = listener.accept();
    }

    void write(const QByteArray& bytes) { ::write(peer, bytes); }

    Listener listener;
    QLocalSocket peer;
    std::unique_ptr<QLocalSocket> ours;
};

QByteArray message(const QByteArray& content, const QByteArray& type = "Text")
{
    return "<Message type=\"" + type + "\">" + content + "</Message>" + '\0';
}

const QByteArray
    welding("<ProductId>9</ProductId><ProductVersion>2018.1.0.345</ProductVersion><Pid>42</Pid>");
const QString weldingName = S("[PID=42] Kaldoran Welding 2018.1.0.345");
const QString nobody = S("[PID=-1] Kaldoran 0.0.0.0");

} // namespace

/// What controllers make of the bytes that a peer sends, and what they send, over real local sockets.
class TestIpcController : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void messagesDuringASendAreDelivered() { sendWhileThePeerSends(false); }
    void messagesDuringAHandlersSendAreDelivered() { sendWhileThePeerSends(true); }
    void initTestCase()
    {
        coProductInformation::registerProduct(coProductType::additive(), coVersionNumber(2018, 1, 2, 3));
    }

    void socketNames()
    {
        QStringList names;
        for (int product = 0; product < 8; ++product)
            names += coIpcController::socketName(nKaldoranProducts::e_Product(product), 5000000000)
                         .replace(S("7c496593ced3.kaldoran_"), S("<"))
                         .replace(S(".5000000000"), S(">"));
        QCOMPARE(names.join(QString()), S("<forming><welding><joining><jes><material><additive>"));
    }

    void greetingIsRead_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("client"); // empty: dropped

        kdqRow("whole", welding, weldingName);
        kdqRow("empty", QByteArray(), nobody);
        kdqRow("unreadable process id", QByteArray("<Pid>0x10</Pid>"), "[PID=0] Kaldoran 0.0.0.0");
        kdqRow("unknown element", "<Mood><Good/>9</Mood>" + welding, weldingName);
        for (const char* id : {"0", "12", "-1", "9.5", "4294967297", "nine", ""})
            QTest::addRow("product id '%s'", id) << QByteArray("<ProductId>") + id + "</ProductId>" << nobody;
        kdqRow("element in a value", QByteArray("<Pid><b>42</b></Pid>"), "");
        kdqRow("open element", QByteArray("<Pid>42"), "");
    }

    void greetingIsRead()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, client);
        const LogCapture log;
        Connection connection;
        Controller controller(connection.ours.get());
        connection.write(message(content, "Greeting") + message("end"));
        QTRY_COMPARE(controller.received.value(controller.received.size() - 1), QByteArray("end"));
        QCOMPARE(controller.received.size(), client.isEmpty() ? 1 : 2);
        QCOMPARE(controller.clientName(), client.isEmpty() ? nobody : client);
        QCOMPARE(
            log.contains(kdLog::Trace, kdLog::InterProcessCom, QLatin1String("Greeting received: ") + client),
            !client.isEmpty());
    }

    void greetingIsSent()
    {
        Connection connection;
        const Controller controller(connection.ours.get());
        const QByteArray expected =
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?><Message type=\"Greeting\"><ProductId>1</ProductId>"
            "<ProductVersion>2018.1.2.3</ProductVersion><Pid>"
            + QByteArray::number(QCoreApplication::applicationPid()) + "</Pid></Message>\n" + '\0';
        QTRY_COMPARE(connection.peer.bytesAvailable(), qint64(expected.size()));
        QCOMPARE(connection.peer.readAll(), expected);
    }

    void reads_data()
    {
        QTest::addColumn<QByteArrayList>("reads"); // each arrives as a read of its own
        QTest::addColumn<QByteArrayList>("received");

        using Reads = QByteArrayList;
        const QByteArrayList none;
        const QByteArray whole = message("one");
        kdqRow("two messages in one read", Reads{whole + message("two")}, Reads{"one", "two"});
        kdqRow("two reads", Reads{whole, message("two")}, Reads{"one", "two"});
        kdqRow("4000 bytes", Reads{message(QByteArray(3960, 'x'))}, Reads{QByteArray(3960, 'x')});
        kdqRow("in two pieces", Reads{whole.left(9), whole.mid(9)}, none);
        kdqRow("zero byte late", Reads{whole.chopped(1), QByteArray(1, '\0')}, none);
        kdqRow("half after a whole", Reads{message("two") + whole.left(20), whole.mid(20)}, Reads{"two"});
        kdqRow("piece completed by chance", Reads{"<Message ty", whole}, Reads{"one"});
        kdqRow("half, ended", Reads{whole.left(22) + '\0' + whole}, Reads{"one"});
        kdqRow("zero bytes", Reads{QByteArray(1000, '\0') + whole}, Reads{"one"});
        kdqRow("no XML", Reads{QByteArray("\xff\xfe<Message\0]]>\x01\0", 16) + whole}, Reads{"one"});
        kdqRow("lower-case root", Reads{QByteArray("<message type=\"Text\">a</message>\0", 33)}, none);
        kdqRow("no type", Reads{QByteArray("<Message>a</Message>\0", 21)}, none);
        kdqRow("empty type", Reads{message("a", "")}, none);
        kdqRow("unknown type", Reads{message("a", "text")}, none);
        kdqRow("error in the content", Reads{message("a&b;")}, none);
        kdqRow("content unlike the type", Reads{message("<a/>")}, none);
        const auto entity = [](const char* name, const QByteArray& value) {
            return QByteArray("<!ENTITY ") + name + " \"" + value.repeated(10) + "\">";
        };
        const QByteArray bomb = "<!DOCTYPE Message [" + entity("a", "x") + entity("b", "&a;")
            + entity("c", "&b;") + entity("d", "&c;") + "]>";
        kdqRow("entity bomb", Reads{bomb + message("&d;")}, none);
        kdqRow("deep nesting", Reads{message(QByteArray("<a>").repeated(1000), "Greeting")}, none);
    }

    void reads()
    {
        QFETCH(QByteArrayList, reads);
        QFETCH(QByteArrayList, received);
        Connection connection;
        Controller controller(connection.ours.get());
        const QSignalSpy arrivals(connection.ours.get(), &QLocalSocket::readyRead);
        for (int i = 0; i < reads.size(); ++i) {
            connection.write(reads.at(i));
            QTRY_COMPARE(arrivals.count(), i + 1);
        }
        connection.write(message("end")); // whatever came before, the connection lives
        QTRY_COMPARE(controller.received, received + QByteArrayList{"end"});
    }

    void peerClosesAtEveryPoint()
    {
        const QByteArray bytes = message(welding, "Greeting");
        for (int size = 0; size <= bytes.size(); ++size) {
            Connection connection;
            Controller controller(connection.ours.get());
            connection.write(bytes.left(size));
            connection.peer.disconnectFromServer();
            QTRY_COMPARE(connection.ours->state(), QLocalSocket::UnconnectedState);
            QCOMPARE(controller.received.size(), size == bytes.size() ? 1 : 0);
            controller.send(S("into the void"));
        }
    }

    void earlyMessagesAreDelivered()
    {
        Connection connection;
        connection.write(message(welding, "Greeting") + message("one"));
        QVERIFY(connection.ours->waitForReadyRead(10000));
        const LogCapture log;
        Controller controller(connection.ours.get());
        QCOMPARE(controller.clientName(), weldingName);
        QCOMPARE(controller.received, QByteArrayList());
        connection.write(message("two"));
        QTRY_COMPARE(controller.received, QByteArrayList({"Greeting", "one", "two"}));
        QCOMPARE(log.texts().count(QLatin1String("Greeting received: ") + weldingName), 1);
    }

    void handlerMayDeleteTheController()
    {
        Connection connection;
        auto* const controller = new Controller(connection.ours.get());
        const QPointer<Controller> alive(controller);
        controller->handler = [controller](const QByteArray&) { delete controller; };
        connection.write(message("one") + message("two"));
        QTRY_VERIFY(alive.isNull());
    }

    void whatCannotBeSentIsLogged()
    {
        const LogCapture log;
        Connection connection;
        Controller controller(connection.ours.get());
        connection.write(message(welding, "Greeting"));
        QTRY_COMPARE(controller.clientName(), weldingName);
        controller.send(QString(QChar(0)));
        controller.sendMessage(QSharedPointer<const coIpcMessage>());
        connection.ours->abort();
        controller.send(S("a"));
        connection.ours.reset();
        controller.send(S("b"));
        const Controller withoutSocket(nullptr);
        const QString unsent = S("Message to %1 not sent: there is no connection.").arg(weldingName);
        QCOMPARE(log.texts().mid(1),
                 QStringList({S("Message 'Text' not sent: it holds characters that have no form in XML."),
                              S("coIpcController was given no message to send."), unsent, unsent,
                              S("coIpcController needs a socket of its own thread.")}));
    }

private:
    /// The peer sends while we wait for it to take a message larger than any buffer on the way.
    static void sendWhileThePeerSends(bool isHandler)
    {
        const QString large(10'000'000, QLatin1Char('x'));
        Listener listener;
        const auto peer =
            std::async(std::launch::async, [name = listener.server.serverName(), size = large.size()] {
                QLocalSocket socket;
                socket.setReadBufferSize(4096); // slow, so that the send has to wait
                socket.connectToServer(name);
                write(socket, message("one"));
                bool isAnswered = false;
                for (qint64 taken = 0; taken < size && socket.waitForReadyRead(10000);) {
                    taken += socket.readAll().size();
                    if (taken > 1000 && !isAnswered)
                        write(socket, message("two") + message("three"));
                    isAnswered = taken > 1000;
                }
            });
        const std::unique_ptr<QLocalSocket> ours = listener.accept();
        Controller controller(ours.get());
        bool isSending = false;
        const auto send = [&] {
            isSending = true;
            controller.send(large);
            isSending = false;
        };
        QByteArrayList duringSend;
        controller.handler = [&](const QByteArray& text) {
            if (isSending)
                duringSend.append(text);
            if (isHandler && text == "one")
                send();
        };
        if (!isHandler)
            send();
        QTRY_COMPARE(controller.received, QByteArrayList({"one", "two", "three"}));
        QCOMPARE(duringSend, QByteArrayList());
    }
};

KDQ_TEST_MAIN(TestIpcController)
#include "tst_coipccontroller.moc"
