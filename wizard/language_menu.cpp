// SPDX-License-Identifier: MIT
#include "wizard/language_menu.h"

#include "languages/language.h"
#include "wizard/output/own_settings.h"

#include <QActionGroup>
#include <QCoreApplication>
#include <QMenu>

namespace torvik {

void addLanguages(QMenu& menu) {
    struct Choice {
        const char* name;
        QString language;
        QString caption;
    };
    // A language is written as those write it who speak it.
    const Choice choices[] = {
        {"mnuLanguageSystem", QString(),
         QCoreApplication::translate("LanguageMenu", "That of the &system")},
        {"mnuLanguageEnglish", QStringLiteral("en"), QStringLiteral("&English")},
        {"mnuLanguageGerman", QStringLiteral("de"), QStringLiteral("&Deutsch")},
    };
    auto* const group = new QActionGroup(&menu);
    const QString kept = ownSettings()->value(languageKey).toString();
    for (const Choice& choice : choices) {
        QAction* const action = group->addAction(menu.addAction(choice.caption));
        action->setObjectName(QLatin1String(choice.name));
        action->setCheckable(true);
        action->setChecked(choice.language == kept);
        QObject::connect(action, &QAction::triggered, &menu,
                         [language = choice.language] { saveOwnSetting(languageKey, language); });
    }
}

} // namespace torvik
