#include "ncsv.h"

nCSV::e_FieldSeparator nCSV::separatorTypeFromString(const QString& separator)
{
    if (separator.isEmpty())
        return NoSeparator;
    for (const e_FieldSeparator type : {Semicolon, Comma, Blank})
        if (separator == separatorFromType(type))
            return type;
    return CustomSeparator;
}

QString nCSV::separatorFromType(int type)
{
    switch (type) {
    case Semicolon:
        return QStringLiteral(";");
    case Comma:
        return QStringLiteral(",");
    case Blank:
        return QStringLiteral(" ");
    default:
        return QStringLiteral("\t");
    }
}

QLocale nCSV::localeForDecimalSeparator(int decimalSeparator)
{
    return omitGroupSeparator(decimalSeparator == DecimalComma ? QLocale(QLocale::German, QLocale::Germany)
                                                               : QLocale::c());
}

QLocale nCSV::omitGroupSeparator(QLocale locale)
{
    locale.setNumberOptions(locale.numberOptions() | QLocale::OmitGroupSeparator);
    return locale;
}
