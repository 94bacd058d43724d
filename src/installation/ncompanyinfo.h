#pragma once

#include <kdqcore_export.h>

#include <QString>

/// Fixed texts about the maker.
///
/// The contact page is the German or the English one: by the language of the command dispatcher, in an
/// application without one by the default QLocale. Functions that depend on the dispatcher's language are for
/// the main thread.
namespace nCompanyInfo {

KDQCORE_EXPORT QString companyName();
KDQCORE_EXPORT QString companyNameShort();
KDQCORE_EXPORT QString
organizationNameForSettings(); ///< for QSettings; never changes, or users lose their settings
KDQCORE_EXPORT QString organisationDomainName();
KDQCORE_EXPORT QString companyContactHomepage(); ///< the address of the contact page in the user's language
/// The contact page as an HTML link; \a text is plain text.
KDQCORE_EXPORT QString companyContactHomepageLink(const QString& text);
KDQCORE_EXPORT QString legalCopyrightText();
KDQCORE_EXPORT QString legalCopyrightPartner(); ///< for the components of licensed partners

} // namespace nCompanyInfo
