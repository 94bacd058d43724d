#include "language.h"

#include "familyapplication.h"

#include <kdQCore/kdCommandDispatcher>

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QSettings>

namespace {

const QLatin1String settingsKey("language");

/// That of the system where it speaks the language: its numbers may differ from one country to the next.
QLocale localeOf(const QString& code)
{
    const QLocale system = QLocale::system();
    const QLocale locale(code);
    return system.language() == locale.language() ? system : locale;
}

} // namespace

void Language::restore()
{
    kdQLanguage::KDLANGUAGE remembered = kdQLanguage::English;
    if (!kdQLanguage::fromCode(QSettings().value(settingsKey).toString(), remembered)
        || !kdCommandDispatcher::I().setLanguage(remembered))
        FamilyApplication::setUserLanguage();
    follow();
}

bool Language::choose(kdQLanguage::KDLANGUAGE language)
{
    // The locale goes first: windows write their numbers anew when the texts change.
    const QLocale before;
    QLocale::setDefault(localeOf(kdQLanguage::code(language)));
    if (!kdCommandDispatcher::I().setLanguage(language)) {
        QLocale::setDefault(before);
        return false;
    }
    QSettings().setValue(settingsKey, kdQLanguage::code(language));
    follow();
    return true;
}

kdQLanguage::KDLANGUAGE Language::current()
{
    return kdCommandDispatcher::I().language();
}

void Language::follow()
{
    const QString code = kdQLanguage::code(current());
    QLocale::setDefault(localeOf(code));
    QCoreApplication::removeTranslator(&m_qtTexts);
    const QString file = QStringLiteral("qtbase_%1").arg(code);
    const bool isFound =
        m_qtTexts.load(file, QCoreApplication::applicationDirPath() + QStringLiteral("/translations"))
        || m_qtTexts.load(file, QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    if (isFound)
        QCoreApplication::installTranslator(&m_qtTexts);
}
