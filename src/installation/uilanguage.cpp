#include "uilanguage.h"

#include <kdQCore/kdCommandDispatcher>

#include <QLocale>

QString uiLanguageCode()
{
    if (kdCommandDispatcher::created())
        return kdQLanguage::code(kdCommandDispatcher::I().language());
    const bool isGerman = QLocale().language() == QLocale::German;
    return kdQLanguage::code(isGerman ? kdQLanguage::German : kdQLanguage::English);
}
