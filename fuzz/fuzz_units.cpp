// Unit symbols as users type them, and the XML of values as files hold them.
#include <kdQCore/kdUnitValue>

#include <QXmlStreamReader>

extern "C" int LLVMFuzzerTestOneInput(const uchar* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const QString text = QString::fromUtf8(bytes);

    bool ok = false;
    const kdUnitSystem unit = kdUnitSystem::fromSymbol(text, &ok);
    // What was understood in any dimension is understood in its own.
    if (ok && kdUnitSystem::fromSymbol(text, unit.dimension()) != unit)
        abort();

    QXmlStreamReader reader(bytes);
    kdUnitValue value;
    if (value.readXML(reader, QStringLiteral("duration")) == reader.hasError())
        abort();
    value.toViewUnit().toString();
    return 0;
}
