#include "kderrormessagehandler.h"

kdErrorMessageHandler::kdErrorMessageHandler() = default;
kdErrorMessageHandler::kdErrorMessageHandler(kdErrorMessageHandler&& other) noexcept = default;
kdErrorMessageHandler& kdErrorMessageHandler::operator=(kdErrorMessageHandler&& other) noexcept = default;
kdErrorMessageHandler::~kdErrorMessageHandler() = default;

kdErrorMessageHandler::kdErrorMessageHandler(const kdErrorMessageHandler& other)
    : m_errorMessages(other.m_errorMessages ? std::make_unique<QStringList>(*other.m_errorMessages) : nullptr)
{
}

kdErrorMessageHandler& kdErrorMessageHandler::operator=(const kdErrorMessageHandler& other)
{
    if (this != &other)
        *this = kdErrorMessageHandler(other);
    return *this;
}

QStringList kdErrorMessageHandler::getErrorMessages() const
{
    return m_errorMessages ? *m_errorMessages : QStringList();
}

QString kdErrorMessageHandler::getErrorString(const QString& separator) const
{
    return m_errorMessages ? m_errorMessages->join(separator) : QString();
}

int kdErrorMessageHandler::errorCount() const
{
    return m_errorMessages ? m_errorMessages->size() : 0;
}

bool kdErrorMessageHandler::hasErrors() const
{
    return errorCount() > 0;
}

void kdErrorMessageHandler::addErrorMessage(const QString& message)
{
    if (!m_errorMessages)
        m_errorMessages = std::make_unique<QStringList>();
    m_errorMessages->append(message);
}

void kdErrorMessageHandler::clearErrorMessages()
{
    m_errorMessages.reset();
}
