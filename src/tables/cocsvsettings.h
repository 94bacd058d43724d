#pragma once

#include "ncsv.h"

#include <memory>

QT_BEGIN_NAMESPACE
class QSettings;
QT_END_NAMESPACE

/// The user's choice of separators for CSV files, kept in the group "CSVExport/" of the settings.
///
/// What is not stored, or cannot be understood, has its default: semicolon and decimal point, the same for
/// every user, so that two machines write the same file. The type of the separator goes before its text.
///
/// \code
/// coCSVSettings settings;
/// settings.setFieldSeparatorType(nCSV::separatorTypeFromString(typed));
/// settings.setFieldSeparator(typed);               // counts where the type is nCSV::CustomSeparator
/// settings.setDecimalSeprator(nCSV::DecimalComma);
/// \endcode
///
/// The setters only store; QSettings writes to disk when it is destroyed or by its own timer. As QSettings
/// itself, an object is not thread-safe.
class KDQCORE_EXPORT coCSVSettings {
public:
    /// The settings of the application, which this object opens for itself.
    coCSVSettings();
    /// Other settings, which stay the caller's and must live longer; null means those of the application.
    explicit coCSVSettings(QSettings* settings);
    explicit coCSVSettings(QSettings& settings);
    coCSVSettings(coCSVSettings&& other) noexcept;
    coCSVSettings& operator=(coCSVSettings&& other) noexcept;
    ~coCSVSettings();

    /// The stored number, even where this version has no such type. Where only a text is stored, its type.
    nCSV::e_FieldSeparator fieldSeparatorType() const;
    void setFieldSeparatorType(int type);

    /// The text of the type; for nCSV::CustomSeparator the stored text, or the default where that is empty.
    QString fieldSeparator() const;
    /// Stores the text and leaves the type alone.
    void setFieldSeparator(const QString& separator);

    nCSV::e_DecimalSeparator decimalSeparator() const;
    void setDecimalSeprator(int decimalSeparator);
    /// The locale of the decimal separator.
    QLocale locale() const;

    static nCSV::e_FieldSeparator defaultFieldSeparatorType() { return nCSV::Semicolon; }
    static QString defaultFieldSeparator();
    static nCSV::e_DecimalSeparator defaultDecimalSeparator() { return nCSV::DecimalPoint; }

private:
    QString storedSeparator() const;

    std::unique_ptr<QSettings> m_own;
    QSettings* m_settings;
};
