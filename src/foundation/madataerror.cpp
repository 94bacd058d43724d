#include "madataerror.h"

namespace nKaldoranMaterial {

maDataError::~maDataError() = default;

maValueError::maValueError(const QString& text, qint32 value) : m_text(text), m_value(value) { }

maValueError::~maValueError() = default;

QString maValueError::message() const
{
    return m_text;
}

} // namespace nKaldoranMaterial
