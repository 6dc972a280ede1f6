// SPDX-License-Identifier: MIT
#include "languages/language.h"

#include "languages/translator.h"

#include <QCoreApplication>

#include <array>

namespace torvik {
namespace {

const QString english = QStringLiteral("en");
const QString german = QStringLiteral("de");

QString& inUse() {
    static QString language = english;
    return language;
}

bool isSpoken(const QString& language) {
    return language == english || language == german;
}

} // namespace

QString spokenLanguage(const QString& choice, const QStringList& systemLanguages) {
    if (isSpoken(choice))
        return choice;
    for (const QString& wanted : systemLanguages)
        if (QString language = wanted.left(2); isSpoken(language))
            return language;
    return english;
}

void speak(const QString& language) {
    static std::array<Translator, 2> translators;
    for (Translator& translator : translators)
        QCoreApplication::removeTranslator(&translator);
    inUse() = language;
    if (language != german)
        return;
    translators[0].loadQtTexts(language);
    translators[1].loadOwnTexts(language);
    for (Translator& translator : translators)
        QCoreApplication::installTranslator(&translator); // the last one is asked first
}

QString languageInUse() {
    return inUse();
}

} // namespace torvik
