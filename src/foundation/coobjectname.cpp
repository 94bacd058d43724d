#include "coobjectname.h"

#include "xmltext_p.h"

#include <QCoreApplication>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>

namespace {

bool isLetterOrDigit(QChar c)
{
    return (c >= QLatin1Char('a') && c <= QLatin1Char('z'))
        || (c >= QLatin1Char('A') && c <= QLatin1Char('Z'))
        || (c >= QLatin1Char('0') && c <= QLatin1Char('9'));
}

// An empty text would bring the header of the translation file.
QString translated(const QString& name)
{
    return name.isEmpty() ? name : QCoreApplication::translate("coObjectName", name.toUtf8().constData());
}

QRegularExpression negated(QString characterClass)
{
    return QRegularExpression(characterClass.insert(1, QLatin1Char('^')));
}

} // namespace

coObjectName::coObjectName() = default;

coObjectName::coObjectName(const coDisplayName& displayName, const coInternalName& internalName)
    : m_displayName(displayName), m_internalName(internalName)
{
}

coObjectName::~coObjectName() = default;

coObjectName coObjectName::fromSingleString(const QString& text)
{
    return {text, text};
}

coObjectName coObjectName::buildInvalidObjectName(const QString& text)
{
    return fromSingleString(text);
}

QString coObjectName::regExpFirstCharNamePattern()
{
    return QStringLiteral("[a-zA-Z\\d]");
}

QString coObjectName::regExpFollowUpCharsNamePattern()
{
    return QStringLiteral("[a-zA-Z\\d\\-]");
}

QRegularExpression coObjectName::negatedFirstCharNameRegExp()
{
    return negated(regExpFirstCharNamePattern());
}

QRegularExpression coObjectName::negatedFollowUpCharsNameRegExp()
{
    return negated(regExpFollowUpCharsNamePattern());
}

QString coObjectName::regExpNamePattern()
{
    return regExpFirstCharNamePattern() + regExpFollowUpCharsNamePattern()
        + QStringLiteral("{0,%1}").arg(maxInternalLength() - 1);
}

bool coObjectName::isValidInternalName(const QString& text)
{
    return !text.isEmpty() && isLetterOrDigit(text.at(0))
        && std::all_of(text.begin() + 1, text.end(),
                       [](QChar c) { return isLetterOrDigit(c) || c == QLatin1Char('-'); });
}

QString coObjectName::tdisplayName() const
{
    return translated(m_displayName);
}

QString coObjectName::tinternalName() const
{
    return translated(m_internalName);
}

QString coObjectName::t_internalName() const
{
    return tinternalName();
}

bool coObjectName::isEmpty() const
{
    return m_displayName.isEmpty() && m_internalName.isEmpty();
}

void coObjectName::setName(const coDisplayName& displayName, const coInternalName& internalName)
{
    m_displayName = displayName;
    m_internalName = internalName;
}

bool coObjectName::setInternalName(const coInternalName& internalName, bool onlyIfValid)
{
    if (onlyIfValid && (internalName.size() > maxInternalLength() || !isValidInternalName(internalName)))
        return false;
    m_internalName = internalName;
    return true;
}

void coObjectName::swap(coObjectName& other) noexcept
{
    m_displayName.swap(other.m_displayName);
    m_internalName.swap(other.m_internalName);
    m_xmlReferenceName.swap(other.m_xmlReferenceName);
}

QString coObjectName::xmlReferenceName() const
{
    return m_xmlReferenceName.isEmpty() ? QString(m_internalName) : m_xmlReferenceName;
}

void coObjectName::setXmlReferenceName(const QString& name)
{
    m_xmlReferenceName = name;
}

QString coObjectName::xmlElementName()
{
    return QStringLiteral("name");
}

QString coObjectName::xmlDisplayNameAttribute(const QString& prefix)
{
    return prefix + QStringLiteral("display_name");
}

QString coObjectName::xmlInternalNameAttribute(const QString& prefix)
{
    return prefix + QStringLiteral("internal_name");
}

bool coObjectName::xmlHasNameAttribute(const QXmlStreamReader& reader, const QString& prefix)
{
    const QXmlStreamAttributes attributes = reader.attributes();
    return attributes.hasAttribute(xmlDisplayNameAttribute(prefix))
        || attributes.hasAttribute(xmlInternalNameAttribute(prefix));
}

void coObjectName::writeXmlWithCustomTag(QXmlStreamWriter& writer, const QString& tag) const
{
    writer.writeStartElement(tag);
    writeXmlAttributes(writer);
    writeXmlElements(writer);
    writer.writeEndElement();
}

void coObjectName::writeXmlAttributes(QXmlStreamWriter& writer, const QString& prefix) const
{
    writer.writeAttribute(xmlDisplayNameAttribute(prefix), textAllowedInXml(m_displayName));
    writer.writeAttribute(xmlInternalNameAttribute(prefix), textAllowedInXml(m_internalName));
}

bool coObjectName::readXmlWithCustomTag(QXmlStreamReader& reader)
{
    if (!reader.isStartElement() && !reader.readNextStartElement()) {
        if (!reader.hasError())
            reader.raiseError(
                QCoreApplication::translate("coObjectName", "the element of an object's name is missing"));
        return false;
    }
    const coObjectName former = *this;
    if (readXmlAttributes(reader))
        readXmlElements(reader);
    if (reader.hasError())
        coObjectName::operator=(former);
    return !reader.hasError();
}

bool coObjectName::readXmlAttributes(QXmlStreamReader& reader, const QString& displayNameAttribute,
                                     const QString& internalNameAttribute)
{
    if (reader.hasError())
        return false;
    const QXmlStreamAttributes attributes = reader.attributes();
    for (const QString& attribute : {displayNameAttribute, internalNameAttribute})
        if (!attributes.hasAttribute(attribute)) {
            reader.raiseError(
                QCoreApplication::translate("coObjectName", "the element '%1' has no attribute '%2'")
                    .arg(reader.name().toString(), attribute));
            return false;
        }
    setName(attributes.value(displayNameAttribute).toString(),
            attributes.value(internalNameAttribute).toString());
    return true;
}

void coObjectName::readXmlElements(QXmlStreamReader& reader)
{
    reader.skipCurrentElement();
}

void coObjectName::writeXmlElements(QXmlStreamWriter&) const { }

bool operator==(const coObjectName& a, const coObjectName& b)
{
    return a.displayName() == b.displayName() && a.internalName() == b.internalName();
}

bool operator!=(const coObjectName& a, const coObjectName& b)
{
    return !(a == b);
}

bool operator<(const coObjectName& a, const coObjectName& b)
{
    const int order = a.displayName().compare(b.displayName());
    return order < 0 || (order == 0 && a.internalName().compare(b.internalName()) < 0);
}
