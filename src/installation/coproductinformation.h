#pragma once

#include "coproducttype.h"
#include "coversionnumber.h"

/// Which application this process is, and in which version.
///
/// An application registers itself once at start-up; whatever names the running application (greetings
/// between processes, records, file headers) asks here instead of being told by every caller.
///
/// \code
/// coProductInformation::registerProduct(coProductType::welding(), coVersionNumber(2018, 1, 0, 345));
/// ...
/// title = coProductInformation::productType().viewName();
/// \endcode
///
/// Process-wide; every function may be called from any thread.
class KDQCORE_EXPORT coProductInformation {
public:
    /// Replaces what was registered before.
    static void registerProduct(const coProductType& type, const coVersionNumber& version);
    /// Back to nothing registered.
    static void unregisterProduct();

    static bool isRegistered();

    /// The unknown product before registration.
    static coProductType productType();
    /// 0.0.0.0 before registration.
    static coVersionNumber versionNumber();

    struct Product {
        coProductType type;
        coVersionNumber version;
    };
    /// Type and version of one registration, also while another thread registers anew.
    static Product product();
};
