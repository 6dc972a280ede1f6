// SPDX-License-Identifier: MIT
// Which language the desktop program speaks. "en" and "de" are its languages; an empty choice
// stands for that of the system.
#pragma once

#include <QStringList>

namespace torvik {

// The key of the program's own settings that keeps the choice.
inline constexpr const char* languageKey = "Language";

// The language for a choice; systemLanguages is what the system prefers ("de-AT", "en"), best
// first. English where none of them is spoken.
QString spokenLanguage(const QString& choice, const QStringList& systemLanguages);

// Speaks the language from now on: texts that are shown already stay as they are.
void speak(const QString& language);

// What speak() was given last, "en" before.
QString languageInUse();

} // namespace torvik
