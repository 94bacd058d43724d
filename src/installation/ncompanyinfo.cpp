#include "ncompanyinfo.h"

#include "uilanguage.h"

#include <QCoreApplication>

QString nCompanyInfo::companyName()
{
    return QStringLiteral("Kaldoran Simulation Systems GmbH");
}

QString nCompanyInfo::companyNameShort()
{
    return QStringLiteral("Kaldoran");
}

QString nCompanyInfo::organizationNameForSettings()
{
    return QStringLiteral("Kaldoran");
}

QString nCompanyInfo::organisationDomainName()
{
    return QStringLiteral("kaldoran.example");
}

QString nCompanyInfo::companyContactHomepage()
{
    return QStringLiteral("https://www.%1/%2").arg(organisationDomainName(), uiLanguageCode());
}

QString nCompanyInfo::companyContactHomepageLink(const QString& text)
{
    return QStringLiteral("<a href=\"%1\">%2</a>").arg(companyContactHomepage(), text.toHtmlEscaped());
}

QString nCompanyInfo::legalCopyrightText()
{
    return QCoreApplication::translate("nCompanyInfo", "Copyright © %1. All rights reserved.")
        .arg(companyName());
}

QString nCompanyInfo::legalCopyrightPartner()
{
    return QCoreApplication::translate(
        "nCompanyInfo",
        "Contains components of licensed partners. The rights in these components "
        "remain with their owners.");
}
