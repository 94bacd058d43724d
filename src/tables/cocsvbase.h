#pragma once

#include <kdQCore/kdUnitSystem>
#include <kdqcore_export.h>

#include <QChar>
#include <QLocale>
#include <QMap>
#include <QString>

class coCSVSettings;

/// How a CSV file looks: separator, comment prefix, decimal mark, and the unit of every dimension.
///
/// A new object has the defaults of coCSVSettings; initFromSettings() takes the user's choice over.
///
/// \code
/// coCSVBase form;
/// form.initFromSettings();
/// form.setUnitIndex(kdUnitSystem::Temperature, 1); // degC
/// \endcode
///
/// A value: copyable, movable, and as safe among threads as any value.
class KDQCORE_EXPORT coCSVBase {
public:
    using UnitIndices = QMap<kdUnitSystem::Dimension, int>;

    coCSVBase();

    /// Takes separator and locale from the application's settings, or from those given.
    void initFromSettings();
    void initFromSettings(const coCSVSettings& settings);

    QString delimiter() const { return m_delimiter; }
    /// Any text, also of several characters.
    void setDelimiter(const QString& delimiter) { m_delimiter = delimiter; }
    void setDelimiter(QChar delimiter) { m_delimiter = QString(delimiter); }

    /// What lines begin with that hold no data; "#" at first.
    QString commentPrefix() const { return m_commentPrefix; }
    void setCommentPrefix(const QString& prefix) { m_commentPrefix = prefix; }

    QLocale locale() const { return m_locale; }
    /// Its group separator is switched off.
    void setLocale(const QLocale& locale);
    /// Whether numbers have a decimal comma. Nothing else of the locale shows in numbers: sign and digits are
    /// ASCII, so that any program reads them.
    bool hasDecimalComma() const { return m_locale.decimalPoint() == QLatin1Char(','); }

    /// kdUnitSystem::NoUnit where none is chosen.
    int unitIndices(kdUnitSystem::Dimension dimension) const;
    const UnitIndices& unitIndices() const { return m_unitIndices; }
    void setUnitIndices(const UnitIndices& indices);
    /// An index that the dimension does not have takes the choice back.
    void setUnitIndex(kdUnitSystem::Dimension dimension, int unitIndex);

private:
    QString m_delimiter;
    QString m_commentPrefix;
    QLocale m_locale;
    UnitIndices m_unitIndices;
};
