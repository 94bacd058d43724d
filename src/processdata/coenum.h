#pragma once

#include "coenumdata.h"

/// A value of an enumeration together with its table of names.
///
/// \code
/// coEnum field = data.fieldOfApplication();
/// if (field.isValid())
///     label->setText(field.translatedDisplayName());
/// \endcode
///
/// It holds any number, also one that has no row; such a value has empty names and is not valid. Two are
/// equal if they have the same value in the same table. A value type.
class KDQCORE_EXPORT coEnum {
public:
    /// \a data must outlive the object, as the constant tables do.
    coEnum(const coEnumData& data, int value, int invalidValue = -1)
        : m_data(&data), m_value(value), m_invalidValue(invalidValue)
    {
    }

    int value() const { return m_value; }
    void setValue(int value) { m_value = value; }
    /// False, and the value stays, where the table has no such name.
    bool setName(const QString& name);
    int invalidValue() const { return m_invalidValue; }
    /// Whether the value has a row and is not the invalid one.
    bool isValid() const;
    const coEnumData& data() const { return *m_data; }

    QString name() const { return m_data->name(m_value); }
    QString displayName() const { return m_data->displayName(m_value); }
    QString translatedDisplayName() const { return m_data->translatedDisplayName(m_value); }

    friend bool operator==(const coEnum& a, const coEnum& b)
    {
        return a.m_data == b.m_data && a.m_value == b.m_value;
    }
    friend bool operator!=(const coEnum& a, const coEnum& b) { return !(a == b); }

private:
    const coEnumData* m_data;
    int m_value;
    int m_invalidValue;
};
