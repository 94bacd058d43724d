#include "coenum.h"

bool coEnum::setName(const QString& name)
{
    const coEnumData::Row* const row = m_data->find(name);
    if (row)
        m_value = row->value;
    return row != nullptr;
}

bool coEnum::isValid() const
{
    return m_value != m_invalidValue && m_data->find(m_value) != nullptr;
}
