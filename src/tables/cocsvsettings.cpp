#include "cocsvsettings.h"

#include <QSettings>
#include <QVariant>

namespace {

const QLatin1String typeKey("CSVExport/FieldSeparatorType");
const QLatin1String separatorKey("CSVExport/FieldSeparator");
const QLatin1String decimalKey("CSVExport/DecimalSeparator");

} // namespace

coCSVSettings::coCSVSettings() : coCSVSettings(nullptr) { }

coCSVSettings::coCSVSettings(QSettings* settings)
    : m_own(settings == nullptr ? std::make_unique<QSettings>() : nullptr),
      m_settings(settings == nullptr ? m_own.get() : settings)
{
}

coCSVSettings::coCSVSettings(QSettings& settings) : m_settings(&settings) { }

coCSVSettings::coCSVSettings(coCSVSettings&& other) noexcept = default;
coCSVSettings& coCSVSettings::operator=(coCSVSettings&& other) noexcept = default;
coCSVSettings::~coCSVSettings() = default;

QString coCSVSettings::storedSeparator() const
{
    return m_settings->value(separatorKey).toString();
}

nCSV::e_FieldSeparator coCSVSettings::fieldSeparatorType() const
{
    bool isNumber = false;
    const int type = m_settings->value(typeKey).toInt(&isNumber);
    if (isNumber)
        return static_cast<nCSV::e_FieldSeparator>(type);
    const QString separator = storedSeparator();
    return separator.isEmpty() ? defaultFieldSeparatorType() : nCSV::separatorTypeFromString(separator);
}

void coCSVSettings::setFieldSeparatorType(int type)
{
    m_settings->setValue(typeKey, type);
}

QString coCSVSettings::fieldSeparator() const
{
    const nCSV::e_FieldSeparator type = fieldSeparatorType();
    if (type != nCSV::CustomSeparator)
        return nCSV::separatorFromType(type);
    const QString separator = storedSeparator();
    return separator.isEmpty() ? defaultFieldSeparator() : separator;
}

void coCSVSettings::setFieldSeparator(const QString& separator)
{
    m_settings->setValue(separatorKey, separator);
}

nCSV::e_DecimalSeparator coCSVSettings::decimalSeparator() const
{
    bool isNumber = false;
    const int stored = m_settings->value(decimalKey).toInt(&isNumber);
    const bool isKnown = isNumber && (stored == nCSV::DecimalPoint || stored == nCSV::DecimalComma);
    return isKnown ? static_cast<nCSV::e_DecimalSeparator>(stored) : defaultDecimalSeparator();
}

void coCSVSettings::setDecimalSeprator(int decimalSeparator)
{
    m_settings->setValue(decimalKey, decimalSeparator);
}

QLocale coCSVSettings::locale() const
{
    return nCSV::localeForDecimalSeparator(decimalSeparator());
}

QString coCSVSettings::defaultFieldSeparator()
{
    return nCSV::separatorFromType(defaultFieldSeparatorType());
}
