// SPDX-License-Identifier: MIT
#include "wizard/language_menu.h"

#include "base/std_message_box.h"
#include "languages/language.h"
#include "wizard/output/own_settings.h"

#include <QActionGroup>
#include <QCoreApplication>
#include <QMenu>

namespace torvik {
namespace {

QString words(const char* text) {
    return QCoreApplication::translate("LanguageMenu", text);
}

} // namespace

void addLanguages(QMenu& menu, StdMessageBox& messages) {
    struct Choice {
        const char* name;
        QString language;
        QString caption;
    };
    // A language is written as those write it who speak it.
    const Choice choices[] = {
        {"mnuLanguageSystem", QString(), words("That of the &system")},
        {"mnuLanguageEnglish", QStringLiteral("en"), QStringLiteral("&English")},
        {"mnuLanguageGerman", QStringLiteral("de"), QStringLiteral("&Deutsch")},
    };
    auto* const group = new QActionGroup(&menu);
    const QString kept = ownSettings()->value(languageKey).toString();
    for (const Choice& choice : choices) {
        QAction* const action = group->addAction(menu.addAction(choice.caption));
        action->setObjectName(QLatin1String(choice.name));
        action->setData(choice.language);
        action->setCheckable(true);
        action->setChecked(choice.language == kept);
    }
    QObject::connect(
        group, &QActionGroup::triggered, &menu,
        [&messages, saved = group->checkedAction()](QAction* chosen) mutable {
            if (saveOwnSetting(languageKey, chosen->data())) {
                saved = chosen;
                return;
            }
            chosen->setChecked(false);
            if (saved != nullptr)
                saved->setChecked(true);
            messages.intStdMsgBox(
                words("The language could not be saved in %1, so it is at the next start what it "
                      "was until now.")
                    .arg(ownSettings()->fileName())
                    .toStdString(),
                styleExclamation, usualTitle);
        });
}

} // namespace torvik
