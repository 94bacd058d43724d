#include "kdqlanguage.h"

namespace {

struct Entry {
    kdQLanguage::KDLANGUAGE language;
    const char* code;
    const char* nativeName;
};

constexpr Entry entries[] = {
    {kdQLanguage::German, "de", "Deutsch"},
    {kdQLanguage::English, "en", "English"},
};

const Entry* find(kdQLanguage::KDLANGUAGE language)
{
    for (const Entry& entry : entries)
        if (entry.language == language)
            return &entry;
    return nullptr;
}

} // namespace

QString kdQLanguage::code(KDLANGUAGE language)
{
    const Entry* entry = find(language);
    return entry ? QString::fromLatin1(entry->code) : QString();
}

QString kdQLanguage::nativeName(KDLANGUAGE language)
{
    const Entry* entry = find(language);
    return entry ? QString::fromUtf8(entry->nativeName) : QString();
}

bool kdQLanguage::fromCode(const QString& code, KDLANGUAGE& language)
{
    const bool hasCountry =
        code.size() > 2 && (code.at(2) == QLatin1Char('_') || code.at(2) == QLatin1Char('-'));
    const QString plain = hasCountry ? code.left(2) : code;
    for (const Entry& entry : entries) {
        if (plain.compare(QLatin1String(entry.code), Qt::CaseInsensitive) == 0) {
            language = entry.language;
            return true;
        }
    }
    return false;
}

QList<kdQLanguage::KDLANGUAGE> kdQLanguage::languages()
{
    QList<KDLANGUAGE> result;
    for (const Entry& entry : entries)
        result.append(entry.language);
    return result;
}
