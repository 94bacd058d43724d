#pragma once

#include <kdqcore_export.h>

#include <QString>

/// A physical dimension and one of its units.
class KDQCORE_EXPORT kdUnitSystem {
public:
    /// The numbers are stored in files: they are added to, never reused or reordered.
    enum Dimension { None = 0 };

    kdUnitSystem() = default;
    QString symbol() const;
};
