#include "cocsvbase.h"

#include "cocsvsettings.h"

coCSVBase::coCSVBase()
    : m_delimiter(coCSVSettings::defaultFieldSeparator()), m_commentPrefix(QStringLiteral("#")),
      m_locale(nCSV::localeForDecimalSeparator(coCSVSettings::defaultDecimalSeparator()))
{
}

void coCSVBase::initFromSettings()
{
    initFromSettings(coCSVSettings());
}

void coCSVBase::initFromSettings(const coCSVSettings& settings)
{
    setDelimiter(settings.fieldSeparator());
    setLocale(settings.locale());
}

void coCSVBase::setLocale(const QLocale& locale)
{
    m_locale = nCSV::omitGroupSeparator(locale);
}

int coCSVBase::unitIndices(kdUnitSystem::Dimension dimension) const
{
    return m_unitIndices.value(dimension, kdUnitSystem::NoUnit);
}

void coCSVBase::setUnitIndices(const UnitIndices& indices)
{
    m_unitIndices.clear();
    for (auto i = indices.cbegin(); i != indices.cend(); ++i)
        setUnitIndex(i.key(), i.value());
}

void coCSVBase::setUnitIndex(kdUnitSystem::Dimension dimension, int unitIndex)
{
    if (kdUnitSystem(dimension, unitIndex).isValid())
        m_unitIndices.insert(dimension, unitIndex);
    else
        m_unitIndices.remove(dimension);
}
