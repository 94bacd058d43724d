// What the library writes, for the page of formats.
#include <kdQCore/coIpcGreetingMessage>
#include <kdQCore/coMatrixSolverSolutionProcedureType>
#include <kdQCore/coObjectName>
#include <kdQCore/coSntpClient>
#include <kdQCore/coSocketMessage>
#include <kdQCore/kdDataTable>
#include <kdQCore/kdProtocol>

#include <QTextStream>
#include <QUdpSocket>
#include <QXmlStreamWriter>

QTextStream out(stdout);

kdDataTable pressStroke()
{
    kdDataTable table(kdUnitSystem::Time, kdUnitSystem::Force);
    table.setName("press");
    table.addPoint(0, 1500);
    return table;
}

void elements()
{
    QString text;
    QXmlStreamWriter writer(&text);
    kdUnitValue(12.5, kdUnitSystem::fromSymbol("mm")).writeXML(writer, "width");
    text += "\n";
    coObjectName(coDisplayName("Upper die (hot)"), coInternalName("UpperDie")).writeXmlWithCustomTag(writer);
    text += "\n";
    coMatrixSolverSolutionProcedureType(coMatrixSolverSolutionProcedureType::SolutionProcedureFullK)
        .writeXML(writer);
    text += "\n";
    writer.setAutoFormatting(true);
    pressStroke().writeXMLForJES(writer);
    out << text << "\n";
}

void messages()
{
    coSocketMessage line;
    line.setSessionId(0x1A2B);
    if (line.encode("status?"))
        out << line.signedMessage();

    coIpcGreetingMessage greeting;
    greeting.setProgram(coProductType::welding());
    greeting.setVersion(coVersionNumber(2018, 1, 0, 345));
    greeting.setPid(4711);
    QString document;
    QXmlStreamWriter writer(&document);
    greeting.writeXml(writer);
    out << document.trimmed() << "\n";
}

void timeQuery()
{
    QUdpSocket server;
    server.bind(QHostAddress::LocalHost);
    QUdpSocket socket;
    socket.connectToHost(QHostAddress(QHostAddress::LocalHost), server.localPort());
    if (!socket.waitForConnected(5000) || !coSntpClient().writeQuery(socket)
        || !server.waitForReadyRead(5000))
        return;
    QByteArray packet(48, 0);
    server.readDatagram(packet.data(), packet.size());
    for (int i = 0; i < packet.size(); i += 16)
        out << packet.mid(i, 16).toHex(' ') << "\n";
}

int main()
{
    elements();
    messages();
    timeQuery();
    kdProtocol protocol("job.dat");
    return protocol.addMessage("deck write job.dat") ? 0 : 1;
}
