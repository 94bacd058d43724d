#pragma once

#include "coproducttype.h"

#include <QString>

/// The name of a product and all forms of its version text, made from one table. What the family's version
/// functions return.
class ProductVersion {
public:
    constexpr explicit ProductVersion(coProductType::e_Type type) : m_type(type) { }

    bool isKnown() const { return m_type != coProductType::Unknown; }

    QString productName() const;
    QString productVersion() const;            ///< "2018"
    QString fullVersion(bool withMinor) const; ///< "2018.1"
    QString fullRevisionVersion() const;       ///< "2018.1.345"
    QString fullRevisionOSVersion() const;     ///< "2018.1.345.linux64"
    QString fullRevisionOSVersionDate() const;
    QString productNameAndVersion() const;
    QString productNameAndFullVersion() const;
    QString productNameAndFullRevisionVersion() const;
    QString productNameAndFullRevisionOSVersion() const;
    QString productNameAndFullRevisionOSVersionTime() const;
    QString fullVersionAndSuffix() const;

    /// What marks versions that are not released, with a blank in front.
    static QString suffix();

private:
    coProductType::e_Type m_type;
};
