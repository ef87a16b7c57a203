#pragma once
// The game in the player's language: its own texts and Qt's standard ones (box buttons,
// context menus), chosen by the locale as Qt reads it from LANGUAGE, LC_MESSAGES and LANG.
#include <QLocale>

namespace platform {

// Installs the translators for `locale` into the application; English needs none. Returns
// whether the game's own texts are translated.
bool installTranslators(const QLocale& locale = QLocale());
// Whether the player gets the German texts, help pages and word files; everyone else English.
bool isGerman(const QLocale& locale = QLocale());

} // namespace platform
