// SPDX-License-Identifier: MIT
// A walk through every page, dialog and window of the program, so that what holds for all of them
// is written once.
#pragma once

#include "app/about_box.h"
#include "app/help_window.h"
#include "app/message_window.h"
#include "tests/wizard/main_window_fixture.h"
#include "wizard/output/frm_danger.h"

#include <QTabWidget>

namespace torvik {

class EveryForm : public MainWindowTest {
protected:
    using Visit = std::function<void(QWidget&)>;

    // Calls the visit on each form while it is shown.
    void visitAll(Visit visit) {
        m_visit = std::move(visit);
        visitStandAlone();
        start();
        see("start page", *window);
        answers.expect("frmPrepare", [this](QDialog& dialog) { prepare(dialog); });
        window->PrepareDrawing(std::filesystem::path(TORVIK_SAMPLES) / "prepare" / "sign.svg");
        window.reset();
        startSample("bracket");
        visitPages();
        visitOutput();
    }

private:
    void see(const std::string& name, QWidget& form) {
        SCOPED_TRACE(name);
        QApplication::setActiveWindow(&form);
        QApplication::processEvents();
        m_visit(form);
    }
    DialogAnswers::Answer seeAnd(const std::string& name, DialogAnswers::Answer then) {
        return [this, name, then = std::move(then)](QDialog& dialog) {
            see(name, dialog);
            then(dialog);
        };
    }
    void prepare(QDialog& dialog) {
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return dialog.findChild<QPushButton*>("cmdSave")->isEnabled(); }, 20000));
        see("prepared", dialog);
        dialog.findChild<QTabWidget*>("tabDetails")->setCurrentIndex(1);
        see("report", dialog);
        dialog.reject();
    }
    void visitStandAlone() {
        answers.expect("msgBox", seeAnd("message", DialogAnswers::cancel));
        MessageWindow().intStdMsgBox("Would you?", styleQuestion, usualTitle);
        answers.expect("frmAbout", seeAnd("about", DialogAnswers::cancel));
        showAboutBox(nullptr);
        answers.expect("frmDanger", seeAnd("danger", DialogAnswers::cancel));
        FrmDanger({"Line 7: the tool goes through the table."}).exec();
        HelpWindow help;
        help.showTopic(1);
        see("help", help);
    }
    void visitPages() {
        see("heights", *window);
        click("cmdNext");
        visitTools();
        click("optCut1");
        see("pen left out", *window);
        click("optCut0");
        std::set<std::string> seen;
        for (; job.gintWizardStep == 3; click("cmdNext"))
            if (seen.insert(find<QRadioButton>("optCut0").text().toStdString()).second)
                see("pen " + *seen.rbegin(), *window);
        see("order", *window);
        go(5);
        see("job details", *window);
    }
    void visitTools() {
        answers.expect("frmToolSelect", seeAnd("tools", [this](QDialog& tools) {
                           answers.expect("frmToolData", seeAnd("tool", [this](QDialog& tool) {
                                              answers.expect(
                                                  "frmToolType",
                                                  seeAnd("types", DialogAnswers::cancel));
                                              DialogAnswers::press("cmdToolType")(tool);
                                              tool.reject();
                                          }));
                           DialogAnswers::press("cmdAdd")(tools);
                           tools.reject();
                       }));
        click("cmdTool");
    }
    void visitOutput() {
        click("cmdNext");
        QAbstractButton& look = find<QAbstractButton>("cmdLook");
        EXPECT_TRUE(QTest::qWaitFor([&] { return look.isEnabled(); }, 20000));
        see("output", *window);
        answers.expect("FrmCut", seeAnd("piece", [this](QDialog& dialog) {
                           auto& tabs = *dialog.findChild<QTabWidget*>("tabCut");
                           EXPECT_TRUE(
                               QTest::qWaitFor([&] { return tabs.isTabEnabled(1); }, 20000));
                           tabs.setCurrentIndex(1);
                           see("solid", dialog);
                           dialog.reject();
                       }));
        look.click();
        settle();
        answers.expect("frmSheet", seeAnd("job sheet", DialogAnswers::cancel));
        window->showJobSheet();
        std::filesystem::create_directory(folder.path() / "floppy");
        registry.RegistryValuePut("Drive A Path", (folder.path() / "floppy").string());
        click("optOutput1");
        answers.expect("frmOutput", seeAnd("program number", DialogAnswers::number("7")));
        answers.expect("frmMenu", seeAnd("menu", DialogAnswers::cancel));
        click("cmdNext");
    }

    Visit m_visit;
};

} // namespace torvik
