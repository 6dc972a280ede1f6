// SPDX-License-Identifier: MIT
// One walk through the program: a home of its own, a drawing by chance, actions by chance, and at
// the end a program that is written and checked.
#pragma once

#include "app/help_window.h"
#include "app/message_window.h"
#include "base/logger.h"
#include "tests/base/temporary_folder.h"
#include "tests/reliability/dialog_walker.h"
#include "tests/reliability/walk_drawings.h"
#include "tests/tools/ini_registry.h"
#include "wizard/frm_main.h"

#include <map>
#include <memory>
#include <set>

namespace torvik {

class Walk {
public:
    Walk(unsigned seed, Record& record);

    // Checks after each action; ends at the first that left something wrong.
    void go(int actions);
    // The pages that were shown: the steps, and 7 for a page of one hole size.
    const std::set<int>& pages() const { return m_pages; }

private:
    // What is there as long as the program runs.
    struct Run {
        explicit Run(Walk& walk);

        Workshop workshop;
        FrmMain window;
    };

    void start();
    void act();
    void open();
    void fillPage();
    void type();
    void use();
    void key();
    void accessKey();
    void menu();
    void resize();
    void point();
    void next();
    void back();
    void endAndStart();

    void finish();
    void chooseWork();
    void check();
    void settle();
    void showHelp(int topic);
    template <typename Control>
    Control& find(const QString& name);
    void typeInto(const QString& name, const char* text);
    void press(const char* name);
    int step() const { return m_run->workshop.job.gintWizardStep; }
    std::filesystem::path drawing();

    Chance m_chance;
    Record& m_record;
    TemporaryFolder m_folder;
    std::filesystem::path m_programs;
    IniRegistry m_registry;
    MessageWindow m_messages;
    Logger m_logger;
    HelpWindow m_help;
    DialogWalker m_dialogs;
    std::unique_ptr<Run> m_run;
    std::set<int> m_pages;
    bool m_mayFail = false; // a damaged drawing may be opened by this action
    bool m_hasEnded = false;
};

} // namespace torvik
