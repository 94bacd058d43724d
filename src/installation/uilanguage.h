#pragma once

#include <QString>

/// "de" or "en", the languages of the maker's documents and pages: German where the default QLocale is
/// German.
QString uiLanguageCode();
