#pragma once

#include <kdQCore/kdQLanguage>

#include <QTranslator>

/// The language of the window: the library's and the application's texts through the dispatcher, Qt's own
/// texts, and how numbers are written. Remembered from run to run.
class Language {
public:
    /// The remembered language, else that of the user's system.
    void restore();
    /// False, nothing changed, where the texts are missing.
    bool choose(kdQLanguage::KDLANGUAGE language);
    static kdQLanguage::KDLANGUAGE current();

private:
    void follow();

    QTranslator m_qtTexts;
};
