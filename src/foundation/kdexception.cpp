#include "kdexception.h"

#include "nhtml.h"

kdException::kdException() : kdException(QString()) { }

kdException::kdException(const QString& message) : std::runtime_error(message.toLocal8Bit().constData()) { }

kdException::~kdException() = default;

QString kdException::getErrorMessage() const
{
    return QString::fromLocal8Bit(what());
}

kdException::operator QString() const
{
    return getErrorMessage();
}

QString kdException::nonHTMLErrorMessage() const
{
    return nHtml::toPlainText(getErrorMessage());
}
