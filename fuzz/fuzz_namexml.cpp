// Any bytes as the XML of an object's name. What is read must come back the same from what is written for it,
// what is refused must leave the name alone, and the names that are made out of it must keep their rules.

#include <kdQCore/coCheckAndCorrectName>
#include <kdQCore/coUniqueNameGenerator>
#include <kdQCore/nCreateObjectName>

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

bool isFree(const QString& name, const QStringList& taken)
{
    return !taken.contains(name, Qt::CaseInsensitive);
}

void checkRoundTrip(const coObjectName& name)
{
    QByteArray xml;
    QXmlStreamWriter writer(&xml);
    name.writeXmlWithCustomTag(writer);
    coObjectName again;
    QXmlStreamReader reader(xml);
    require(again.readXmlWithCustomTag(reader));
    require(again == name);
}

void checkNames(const coObjectName& name)
{
    coTakenNames taken({name});
    for (int i = 0; i < 3; ++i) {
        const coObjectName made =
            nCreateObjectName::createUniqueName(name.displayName(), name.internalName(), taken);
        require(!made.displayName().isEmpty() && made.displayName().size() <= coObjectName::maxLength());
        require(coObjectName::isValidInternalName(made.internalName()));
        require(made.internalName().size() <= coObjectName::maxInternalLength());
        require(isFree(made.displayName(), taken.displayNames()));
        require(isFree(made.internalName(), taken.internalNames()));
        taken.append(made);
    }
    const coInternalName internal = nCreateObjectName::createUniqueInternalNameFromDisplayName(
        name.displayName(), name.internalName(), taken);
    require(coObjectName::isValidInternalName(internal));
    require(internal.size() <= coObjectName::maxInternalLength());
    require(isFree(internal, taken.internalNames()));

    coUniqueNameGenerator generator(name.internalName().isEmpty() ? QChar() : name.internalName().at(0));
    generator.reserve(taken);
    require(isFree(generator.next(name.displayName()), taken.displayNames()));

    const QString remark = name.displayName();
    QString wrapped = coCheckAndCorrectName::wrapTextForPreferredLength(remark, 7);
    require(wrapped.remove(QLatin1Char('\n')) == QString(remark).remove(QLatin1Char('\n')));
    coCheckAndCorrectName::checkAndCorrectName(remark, taken, coCheckAndCorrectName::eInternalName);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    QXmlStreamReader reader(QByteArray(reinterpret_cast<const char*>(data), int(size)));
    const coObjectName former = coObjectName::fromSingleString(QStringLiteral("former"));
    coObjectName name = former;
    if (!name.readXmlWithCustomTag(reader)) {
        require(reader.hasError());
        require(name == former);
        return 0;
    }
    checkRoundTrip(name);
    checkNames(name);
    return 0;
}
