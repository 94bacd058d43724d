#include "kdunitvalue.h"

#include <QCoreApplication>
#include <QDebug>
#include <QHash>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <tuple>

namespace {

constexpr char dimensionAttribute[] = "dimension";
constexpr char unitAttribute[] = "unit";

// Everything that a comparison looks at, in its order of weight.
std::tuple<int, bool, double> meaning(const kdUnitValue& value)
{
    return {value.dimension(), value.unitSystem().isValid(), value.toSIUnit().value()};
}

QString withSymbol(const QString& number, const kdUnitSystem& unit)
{
    const QString symbol = unit.symbol();
    if (symbol.isEmpty() || unit == kdUnitSystem())
        return number;
    return unit.dimension() == kdUnitSystem::Angle && symbol == QStringLiteral("°")
        ? number + symbol
        : number + QLatin1Char(' ') + symbol;
}

bool readUnit(const QXmlStreamAttributes& attributes, kdUnitSystem* unit)
{
    bool ok = false;
    const int number = attributes.value(QLatin1String(dimensionAttribute)).toInt(&ok);
    const bool hasDimension = ok && kdUnitSystem::isDimension(number);
    const auto dimension = static_cast<kdUnitSystem::Dimension>(hasDimension ? number : 0);
    const QString symbol = attributes.value(QLatin1String(unitAttribute)).toString();
    if (!symbol.isEmpty()) {
        *unit = hasDimension ? kdUnitSystem::fromSymbol(symbol, dimension, &ok)
                             : kdUnitSystem::fromSymbol(symbol, &ok);
        return ok;
    }
    const bool isStoredWithoutUnit = attributes.hasAttribute(QLatin1String(unitAttribute));
    *unit = kdUnitSystem(dimension, isStoredWithoutUnit ? kdUnitSystem::NoUnit : 0);
    return hasDimension || !attributes.hasAttribute(QLatin1String(dimensionAttribute));
}

QString unknownUnitText(const QString& elementName, const QXmlStreamAttributes& attributes)
{
    return QCoreApplication::translate("kdUnitValue", "Element '%1': unit '%2' of dimension '%3' is unknown.")
        .arg(elementName, attributes.value(QLatin1String(unitAttribute)).toString(),
             attributes.value(QLatin1String(dimensionAttribute)).toString());
}

// Moves to the start of the element, which is where most callers already stand.
bool enterElement(QXmlStreamReader& reader, const QString& elementName)
{
    if (reader.tokenType() == QXmlStreamReader::NoToken
        || reader.tokenType() == QXmlStreamReader::StartDocument)
        reader.readNextStartElement();
    if (reader.isStartElement() && reader.name() == elementName)
        return true;
    if (!reader.hasError())
        reader.raiseError(QCoreApplication::translate("kdUnitValue", "Element '%1' expected, '%2' found.")
                              .arg(elementName, reader.name().toString()));
    return false;
}

} // namespace

kdUnitValue kdUnitValue::toUnit(const kdUnitSystem& unit) const
{
    return m_unit.canConvertTo(unit) ? kdUnitValue(valueIn(unit), unit) : *this;
}

kdUnitValue kdUnitValue::toSIUnit() const
{
    return toUnit(kdUnitSystem::siUnit(dimension()));
}

kdUnitValue kdUnitValue::toViewUnit() const
{
    return toUnit(kdUnitSystem::viewUnit(dimension()));
}

QString kdUnitValue::toString() const
{
    return withSymbol(QString::number(m_value, 'g', QLocale::FloatingPointShortest), m_unit);
}

QString kdUnitValue::toLocalizedString(const QLocale& locale) const
{
    return withSymbol(locale.toString(m_value, 'g', QLocale::FloatingPointShortest), m_unit);
}

void kdUnitValue::writeXML(QXmlStreamWriter& writer, const QString& elementName) const
{
    writer.writeStartElement(elementName);
    writer.writeAttribute(QLatin1String(dimensionAttribute), QString::number(dimension()));
    writer.writeAttribute(QLatin1String(unitAttribute), m_unit.symbol());
    writer.writeCharacters(QString::number(m_value, 'g', QLocale::FloatingPointShortest));
    writer.writeEndElement();
}

bool kdUnitValue::readXML(QXmlStreamReader& reader, const QString& elementName)
{
    if (!enterElement(reader, elementName))
        return false;
    const QXmlStreamAttributes attributes = reader.attributes();
    const QString text = reader.readElementText(QXmlStreamReader::SkipChildElements).trimmed();
    if (reader.hasError())
        return false;
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    if (!isNumber) {
        reader.raiseError(QCoreApplication::translate("kdUnitValue", "Element '%1': '%2' is not a number.")
                              .arg(elementName, text));
        return false;
    }
    kdUnitSystem unit;
    if (!readUnit(attributes, &unit)) {
        reader.raiseError(unknownUnitText(elementName, attributes));
        return false;
    }
    *this = kdUnitValue(value, unit);
    return true;
}

bool operator==(const kdUnitValue& a, const kdUnitValue& b)
{
    return meaning(a) == meaning(b);
}

bool operator<(const kdUnitValue& a, const kdUnitValue& b)
{
    return meaning(a) < meaning(b);
}

bool operator<=(const kdUnitValue& a, const kdUnitValue& b)
{
    return a < b || a == b;
}

uint qHash(const kdUnitValue& value, uint seed)
{
    const auto [dimension, isValid, number] = meaning(value);
    return qHash(std::make_pair(qHash(number), dimension * 2 + int(isValid)), seed);
}

QDebug operator<<(QDebug debug, const kdUnitValue& value)
{
    const QDebugStateSaver saver(debug);
    return debug.nospace().noquote() << "kdUnitValue(" << value.toString() << ')';
}
