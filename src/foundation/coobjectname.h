#pragma once

#include "codisplayname.h"
#include "cointernalname.h"

#include <QRegularExpression>

QT_BEGIN_NAMESPACE
class QXmlStreamReader;
class QXmlStreamWriter;
QT_END_NAMESPACE

/// The two names of an object: a free one that users see, and a short one that is safe in solver decks, file
/// names and references.
///
/// \code
/// coObjectName name(QStringLiteral("Upper die (hot)"), QStringLiteral("UpperDie"));
/// name.writeXmlWithCustomTag(writer); // <name display_name="Upper die (hot)" internal_name="UpperDie"/>
/// \endcode
///
/// The class holds what it is given, also what it reads. nCreateObjectName makes names that keep the rules
/// and are not taken; isValidInternalName() tells whether a text from outside keeps them.
///
/// Subclasses that carry more write and read it as child elements. A value type; not thread-safe.
class KDQCORE_EXPORT coObjectName {
public:
    coObjectName();
    coObjectName(const coDisplayName& displayName, const coInternalName& internalName);
    coObjectName(const coObjectName&) = default;
    coObjectName(coObjectName&&) = default;
    coObjectName& operator=(const coObjectName&) = default;
    coObjectName& operator=(coObjectName&&) = default;
    virtual ~coObjectName();

    /// Both names from one text.
    static coObjectName fromSingleString(const QString& text);
    /// The same, for a text that need not keep the rules of an internal name: it stands for an object that is
    /// missing or could not be read.
    static coObjectName buildInvalidObjectName(const QString& text);

    /// The longest display name, in characters.
    static int maxLength() { return 1000; }
    /// The longest internal name, in characters.
    static int maxInternalLength() { return 20; }
    /// Whether display names may hold any character.
    static bool useUnrestrictedNames() { return true; }

    /// Patterns of the characters of an internal name. Letters and digits are those of ASCII; "\d" is meant
    /// for QRegularExpression, as QRegExp takes the digits of all scripts for it.
    static QString regExpFirstCharNamePattern();
    static QString regExpFollowUpCharsNamePattern();
    /// They find the characters that an internal name may not hold.
    static QRegularExpression negatedFirstCharNameRegExp();
    static QRegularExpression negatedFollowUpCharsNameRegExp();
    /// A whole internal name of at most maxInternalLength() characters. Anchor it for a match.
    static QString regExpNamePattern();
    /// Whether \a text holds only the characters of an internal name, and at least one. Its length is not
    /// looked at.
    static bool isValidInternalName(const QString& text);

    const coDisplayName& displayName() const { return m_displayName; }
    const coInternalName& internalName() const { return m_internalName; }
    /// The names in the user's language where they have a translation in this class's context, as those of
    /// predefined objects may; only for showing.
    QString tdisplayName() const;
    QString tinternalName() const;
    /// The same as tinternalName().
    QString t_internalName() const;
    /// Whether both names are empty.
    bool isEmpty() const;

    void setName(const coDisplayName& displayName, const coInternalName& internalName);
    /// With \a onlyIfValid, a name that is too long or fails isValidInternalName() is refused: the former one
    /// stays, and the result is false.
    bool setInternalName(const coInternalName& internalName, bool onlyIfValid = false);
    void swap(coObjectName& other) noexcept;

    /// The text by which the elements of one document refer to the object: the internal name, unless the
    /// document's reader or writer has set another. Neither compared nor written with the name.
    QString xmlReferenceName() const;
    /// An empty text brings the internal name back.
    void setXmlReferenceName(const QString& name);

    /// "name"
    static QString xmlElementName();
    /// The attributes "display_name" and "internal_name", directly behind the caller's prefix.
    static QString xmlDisplayNameAttribute(const QString& prefix = QString());
    static QString xmlInternalNameAttribute(const QString& prefix = QString());
    /// Whether the reader's element has one of the two attributes.
    static bool xmlHasNameAttribute(const QXmlStreamReader& reader, const QString& prefix = QString());

    /// Writes an element with both attributes. Characters that XML cannot hold become U+FFFD.
    void writeXmlWithCustomTag(QXmlStreamWriter& writer, const QString& tag = xmlElementName()) const;
    /// Writes both attributes to the element that the writer has just opened.
    void writeXmlAttributes(QXmlStreamWriter& writer, const QString& prefix = QString()) const;

    /// Reads an element of any tag, the one that the reader is at or else the next one, to its end. Where an
    /// attribute is missing, the error is raised on \a reader, this name stays as it is, and the result is
    /// false.
    bool readXmlWithCustomTag(QXmlStreamReader& reader);
    /// Reads both attributes of the element that the reader is at, and fails likewise.
    bool readXmlAttributes(QXmlStreamReader& reader,
                           const QString& displayNameAttribute = xmlDisplayNameAttribute(),
                           const QString& internalNameAttribute = xmlInternalNameAttribute());

private:
    /// Reads the child elements, from the start of the name's element to its end. The base skips them.
    virtual void readXmlElements(QXmlStreamReader& reader);
    /// Writes child elements. The base writes none.
    virtual void writeXmlElements(QXmlStreamWriter& writer) const;

    coDisplayName m_displayName;
    coInternalName m_internalName;
    QString m_xmlReferenceName;
};

using coObjectNameList = QList<coObjectName>;

KDQCORE_EXPORT bool operator==(const coObjectName& a, const coObjectName& b);
KDQCORE_EXPORT bool operator!=(const coObjectName& a, const coObjectName& b);
/// By display name, then by internal name.
KDQCORE_EXPORT bool operator<(const coObjectName& a, const coObjectName& b);

Q_DECLARE_METATYPE(coObjectName)
