// SPDX-License-Identifier: MIT
#include "app/help_window.h"
#include "languages/language.h"
#include "languages/shown_text.h"
#include "tests/wizard/main_window_fixture.h"
#include "wizard/output/own_settings.h"

#include <QListWidget>

namespace torvik {
namespace {

TEST(SpokenLanguage, IsTheChosenOneOrTheBestThatTheSystemWants) {
    const struct {
        const char* choice;
        QStringList system;
        const char* spoken;
    } rows[] = {
        {"de", {"en-GB"}, "de"},     {"en", {"de-DE"}, "en"},
        {"", {"de-AT", "en"}, "de"}, {"", {"en", "de"}, "en"},
        {"", {"fr-FR", "de"}, "de"}, {"", {"pl"}, "en"},
        {"xx", {"de"}, "de"},        {"", {}, "en"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(spokenLanguage(row.choice, row.system).toStdString(), row.spoken);
}

TEST(Speak, TranslatesOwnTextsAndThoseOfQtUntilAnotherLanguageIsSpoken) {
    const auto cancel = [] { return QCoreApplication::translate("QPlatformTheme", "Retry"); };
    EXPECT_EQ(shownText("Black"), "Black");
    speak("de");
    EXPECT_EQ(shownText("Black"), "Schwarz");
    EXPECT_EQ(shownText("Slot drill"), "Slot drill");
    EXPECT_EQ(shownText("dimensions (not drawn)"), "Bemaßungen (nicht gezeichnet)");
    EXPECT_EQ(shownText("2 holes of the 3.0 mm Red holes are"),
              "2 Bohrungen (die 3.0-mm-Bohrungen in Rot) sind");
    EXPECT_EQ(shownText("the quick move to Z5.00 stands where the quick move to X1.000 Y2.000 "
                        "should be"),
              "der Eilgang auf Z5.00 steht dort, wo der Eilgang nach X1.000 Y2.000 stehen müsste");
    EXPECT_EQ(shownText(" It begins where the Red lines end. In the order, move Blue before Red."),
              " Es beginnt dort, wo die Linien in Rot enden. Schieben Sie in der Reihenfolge Blau "
              "vor Rot.");
    EXPECT_EQ(QCoreApplication::translate("AnyWindow", "Heights"), "Höhen");
    EXPECT_EQ(cancel(), "Wiederholen");
    speak("en");
    EXPECT_EQ(shownText("Black"), "Black");
    EXPECT_EQ(cancel(), "Retry");
}

TEST(Help, IsInTheLanguageOfTheProgram) {
    speak("de");
    HelpWindow help;
    help.showTopic(2);
    EXPECT_EQ(help.findChild<QListWidget*>("lstHelp")->currentItem()->text(), "Schritt 2: Höhen");
    speak("en");
    EXPECT_EQ(HelpWindow::topicFile(2), ":/help/topic-002.html");
}

using LanguageMenu = MainWindowTest;

TEST_F(LanguageMenu, KeepsTheChoiceForTheNextStart) {
    ownSettings()->setValue(languageKey, "en");
    start();
    const auto action = [&](const char* name) { return window->findChild<QAction*>(name); };
    EXPECT_TRUE(action("mnuLanguageEnglish")->isChecked());
    action("mnuLanguageGerman")->trigger();
    EXPECT_EQ(ownSettings()->value(languageKey).toString(), "de");
    EXPECT_FALSE(action("mnuLanguageEnglish")->isChecked());
    action("mnuLanguageSystem")->trigger();
    EXPECT_EQ(ownSettings()->value(languageKey).toString(), "");
}

TEST_F(LanguageMenu, TakesAChoiceBackThatCannotBeSaved) {
    const std::filesystem::path file = ownSettings()->fileName().toStdString();
    std::filesystem::create_directories(file); // a folder takes its name
    start();
    const auto action = [&](const char* name) { return window->findChild<QAction*>(name); };
    action("mnuLanguageGerman")->trigger();
    EXPECT_TRUE(messages.take().starts_with("Torvik|48|The language could not be saved in " +
                                            file.string()));
    EXPECT_TRUE(action("mnuLanguageSystem")->isChecked());
    std::filesystem::remove(file);
    action("mnuLanguageEnglish")->trigger();
    EXPECT_EQ(ownSettings()->value(languageKey).toString(), "en");
}

} // namespace
} // namespace torvik
