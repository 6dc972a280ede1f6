// SPDX-License-Identifier: MIT
// Finds the translation of a text. The program's own texts are found by the text alone, whichever
// window asks: the same English text has the same translation everywhere.
#pragma once

#include <QTranslator>

namespace torvik {

// The one context of the program's own texts.
inline constexpr const char* textContext = "Torvik";

class Translator : public QTranslator {
public:
    // The language's texts of the program, or of Qt. False where there are none.
    bool loadOwnTexts(const QString& language);
    bool loadQtTexts(const QString& language);

    QString translate(const char* context, const char* sourceText, const char* disambiguation,
                      int n) const override;

private:
    bool m_isOwn = false;
};

} // namespace torvik
