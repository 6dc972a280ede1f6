// SPDX-License-Identifier: MIT
#include "languages/translator.h"

// Outside every namespace, as the resource compiler wants it.
static void initLanguages() {
    Q_INIT_RESOURCE(languages);
}

namespace torvik {

bool Translator::loadOwnTexts(const QString& language) {
    initLanguages();
    m_isOwn = true;
    return load(QStringLiteral(":/languages/torvik_%1.qm").arg(language));
}

bool Translator::loadQtTexts(const QString& language) {
    initLanguages();
    m_isOwn = false;
    return load(QStringLiteral(":/languages/qtbase_%1.qm").arg(language));
}

QString Translator::translate(const char* context, const char* sourceText,
                              const char* disambiguation, int n) const {
    return QTranslator::translate(m_isOwn ? textContext : context, sourceText, disambiguation, n);
}

} // namespace torvik
