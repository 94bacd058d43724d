#pragma once

#include "coipcmessage.h"

#include <kdQCore/coProductType>
#include <kdQCore/coVersionNumber>

/// What two processes tell each other first: which application runs there, in which version, and its process
/// id. Controllers send and read it themselves. A value type.
class KDQCORE_EXPORT coIpcGreetingMessage : public coIpcMessage {
public:
    coProductType program() const { return m_program; }
    void setProgram(const coProductType& program) { m_program = program; }
    coVersionNumber version() const { return m_version; }
    void setVersion(const coVersionNumber& version) { m_version = version; }
    /// -1 where the greeting says none.
    qint64 pid() const { return m_pid; }
    void setPid(qint64 pid) { m_pid = pid; }

    /// Elements that are missing leave their values alone, as does a product id that no product has; a
    /// process id that is no decimal number reads as 0. Unknown elements are skipped, for later versions.
    void readXml(QXmlStreamReader& reader) override;
    void writeXml(QXmlStreamWriter& writer) const override;
    QString type() const override { return messageType(); }

    static QString messageType() { return QStringLiteral("Greeting"); }
    static QString xmlProductIdElementName() { return QStringLiteral("ProductId"); }
    static QString xmlProductVersionElementName() { return QStringLiteral("ProductVersion"); }
    static QString xmlPidElementName() { return QStringLiteral("Pid"); }

private:
    coProductType m_program;
    coVersionNumber m_version;
    qint64 m_pid = -1;
};
