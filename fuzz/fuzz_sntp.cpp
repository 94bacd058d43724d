// Answers that a time server may send.
#include <kdQCore/coSntpClient>

#include <QCoreApplication>
#include <QUdpSocket>

#include <memory>

namespace {

/// Two sockets on loopback that are connected with each other.
struct Line {
    Line()
    {
        const QHostAddress loopback(QHostAddress::LocalHost);
        client.bind(loopback);
        server.bind(loopback);
        client.connectToHost(loopback, server.localPort());
        server.connectToHost(loopback, client.localPort());
    }

    QUdpSocket client;
    QUdpSocket server;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uchar* data, std::size_t size)
{
    static int argc = 1;
    static char name[] = "fuzz_sntp";
    static char* argv[] = {name};
    static const QCoreApplication* const application = new QCoreApplication(argc, argv);
    static Line* const line = new Line;
    Q_UNUSED(application)

    if (size > 2000 || line->server.write(reinterpret_cast<const char*>(data), qint64(size)) != qint64(size))
        return 0;
    line->client.waitForReadyRead(1000);
    coSntpClient client;
    const bool isGood = client.readResponse(line->client);
    if (isGood ? client.dateTime().date().year() < 2016 || size < 48 : client.errorString().isEmpty())
        abort();
    return 0;
}
