#pragma once

#include <kdqcore_export.h>

#include <QList>
#include <QString>

/// The languages that the family speaks to its users.
///
/// \code
/// kdQLanguage::KDLANGUAGE language;
/// if (kdQLanguage::fromCode(QStringLiteral("de"), language))
///     kdCommandDispatcher::I().setLanguage(language);
/// \endcode
///
/// Thread-safe: it holds no state.
class KDQCORE_EXPORT kdQLanguage {
public:
    /// The numbers are stored in settings: they are never reused.
    enum KDLANGUAGE : int {
        German = 0,
        English = 1 ///< the language of the sources, needs no translation file
    };

    kdQLanguage() = delete;

    /// Two-letter code as in ISO 639-1 and in the names of translation files; empty for a number that is no
    /// language.
    static QString code(KDLANGUAGE language);
    /// What its speakers call it; not translated.
    static QString nativeName(KDLANGUAGE language);
    /// Takes "de", "DE", "de_AT" and "de-AT". False, \a language untouched, for a code that is not known.
    static bool fromCode(const QString& code, KDLANGUAGE& language);
    static QList<KDLANGUAGE> languages();
};
