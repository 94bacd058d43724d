#pragma once

#include <kdqcore_export.h>

#include <QString>

namespace nKaldoranMaterial {

/// Root of the failures in material data. It has no base: handlers of std::exception do not see it, so the
/// reader of a material must catch it by name.
class KDQCORE_EXPORT maDataError {
public:
    virtual ~maDataError();
    /// A text for the user.
    virtual QString message() const = 0;

protected:
    maDataError() = default;
    maDataError(const maDataError&) = default;
    maDataError(maDataError&&) = default;
    maDataError& operator=(const maDataError&) = default;
    maDataError& operator=(maDataError&&) = default;
};

/// A value of a material that cannot be right: a text and a number, whose meaning (a row, an id) is the
/// thrower's.
class KDQCORE_EXPORT maValueError : public maDataError {
public:
    explicit maValueError(const QString& text, qint32 value = 0);
    maValueError(const maValueError&) = default;
    maValueError(maValueError&&) = default;
    maValueError& operator=(const maValueError&) = default;
    maValueError& operator=(maValueError&&) = default;
    ~maValueError() override;

    QString message() const override;
    QString text() const { return m_text; }
    qint32 value() const { return m_value; }

private:
    QString m_text;
    qint32 m_value;
};

} // namespace nKaldoranMaterial
