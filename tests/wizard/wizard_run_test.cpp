// SPDX-License-Identifier: MIT
// Whole runs from an opened drawing to the written programs, once with the mouse and once with keys
// alone. What was written is what the answers kept beside it say.
#include "answers/import_drawing.h"
#include "base/files.h"
#include "gcode/dialects.h"
#include "gcode/output_file.h"
#include "gcode/program_output.h"
#include "tests/wizard/main_window_fixture.h"

#include <QTableWidget>

namespace torvik {
namespace {

class WizardRunTest : public MainWindowTest {
protected:
    // A sample without the answers that belong to it.
    void startFresh(const std::string& name) {
        startSample(name);
        std::filesystem::remove(folder.path() / "PlotSave" / (name + ".plx"));
        job.output.gblnUnsaved = false;
        window->ReadFile(drawing);
        settle();
    }
    void chooseTool(int row) {
        answers.expect("frmToolSelect", [row](QDialog& dialog) {
            dialog.findChild<QTableWidget*>()->selectRow(row);
            DialogAnswers::press("cmdOk")(dialog);
        });
        click("cmdTool");
    }
    void fillPage(std::initializer_list<const char*> rows) {
        int row = 0;
        for (const char* const text : rows)
            type("txtDet" + std::to_string(row++), text);
    }
    void expectPage(const std::string& title) {
        EXPECT_EQ(label("lblDetTitle"), "Please give the details for the " + title);
    }
    void fillHeader() {
        type("txtHead1", "Jo");
        type("txtHead5", "Brass");
    }
    // The program that the kept answers ask for.
    std::string expected(std::int16_t target, std::int16_t number) {
        Job again;
        const auto result =
            importDrawing(again, drawing, workshop.tools, folder.path() / "PlotSave", logger);
        EXPECT_EQ(result.saved.outcome, SavedOutcome::taken);
        StringSink sink;
        EXPECT_TRUE(writeProgram(again, workshop.tools, dialectFor(target), number, sink, logger));
        return sink.bytes();
    }
};

TEST_F(WizardRunTest, ADrawingWithCutDrilledAndLeftOutPensGoesToAllTargets) {
    startFresh("bracket");
    type("txtGlob1", "5");
    click("optUnits0");
    click("cmdNext");
    expectPage("Black lines");
    // Black lines, with a lighter final pass.
    click("optCut0");
    EXPECT_EQ(focus(), "cmdTool");
    chooseTool(0);
    fillPage({"3000", "180", "45", "5.2", "1", "0.2", "120"});
    click("cmdNext");
    expectPage("Red lines");
    // Red circles, drilled; the second drill does not fit and is chosen anew.
    messages.answers = {buttonYes};
    click("optCut0");
    EXPECT_EQ(messages.take(), "Drilling|36|Would you like to cut the circles as drilled holes?");
    expectPage("5.0 mm diam. holes");
    chooseTool(5);
    click("chkPeck");
    fillPage({"2200", "110", "6.5", "0.5", "2"});
    click("cmdNext");
    expectPage("8.0 mm diam. holes");
    click("optCut0");
    messages.answers = {buttonNo};
    answers.expect("frmToolSelect", [](QDialog& dialog) {
        dialog.findChild<QTableWidget*>()->selectRow(5);
        DialogAnswers::press("cmdOk")(dialog);
    });
    chooseTool(6);
    messages.take();
    fillPage({"1400", "80", "7", "0"});
    click("cmdNext");
    expectPage("Blue lines");
    // Blue circles, left out.
    click("optCut1");
    click("cmdNext");
    EXPECT_EQ(shown(), "picOrder Back Next");
    key(Qt::Key_Down);
    EXPECT_EQ(label("lblOrd1"), "Red");
    click("cmdNext");
    fillHeader();
    click("cmdNext");
    messages.take();
    EXPECT_EQ(shown(), "picOutput Back Next");

    const auto drive = folder.path() / "drive";
    std::filesystem::create_directory(drive);
    registry.RegistryValuePut("Drive A Path", drive.string());
    const std::pair<std::int16_t, std::filesystem::path> targets[] = {
        {targetWinCam, drive / "%MPF9"},
        {targetWinNc, drive / "oprg9"},
        {targetMaskor, folder.path() / "b.mxc"},
        {targetKestra, folder.path() / "b.iso"}};
    for (const auto& [target, file] : targets) {
        click("optOutput" + std::to_string(target));
        if (target <= targetWinNc)
            answers.expect("frmOutput", DialogAnswers::number("9"));
        else
            answers.expect("dlgSave", DialogAnswers::file(file));
        answers.expect("frmMenu", DialogAnswers::press("cmdSave"));
        click("cmdNext");
        ASSERT_TRUE(std::filesystem::exists(file)) << target;
        const std::string written = readWholeFile(file, 1 << 20);
        EXPECT_EQ(written, expected(target, 9)) << target;
        EXPECT_EQ(written.find("T5"), std::string::npos) << "the left-out pen's tool";
    }
    EXPECT_FALSE(job.output.gblnUnsaved);

    // The same drawing again: everything is there.
    answers.expect("dlgSave", DialogAnswers::file(folder.path() / "c.iso"));
    answers.expect("frmMenu", DialogAnswers::press("cmdOpen"));
    click("cmdNext");
    open(drawing);
    go(6);
    EXPECT_TRUE(job.answers.gudtPens[4].blnOmit);
    answers.expect("dlgSave", DialogAnswers::file(folder.path() / "d.iso"));
    answers.expect("frmMenu", DialogAnswers::press("cmdClose"));
    click("cmdNext");
    EXPECT_EQ(readWholeFile(folder.path() / "c.iso", 1 << 20),
              readWholeFile(folder.path() / "d.iso", 1 << 20));
}

TEST_F(WizardRunTest, ADrawingGoesThroughByKeysAlone) {
    startFresh("nameplate");
    const auto keys = [&](const char* typed) {
        QTest::keyClicks(QApplication::focusWidget(), typed);
        settle();
    };
    const auto nextBox = [&](const char* typed) {
        keys(typed);
        key(Qt::Key_Tab);
    };
    // A button shows that it is pressed before it acts.
    const auto alt = [&](Qt::Key letter, const std::string& focused) {
        key(letter, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] {
            const auto* const option = window->findChild<QRadioButton*>(focused.c_str());
            return focus() == focused && (option == nullptr || option->isChecked());
        })) << focused;
    };
    keys("5"); // the safe height, the only one that is empty
    alt(Qt::Key_M, "optUnits0");
    key(Qt::Key_Return);
    const char* const depths[] = {"0.4", "3"};
    for (const char* const depth : depths) {
        answers.expect("frmToolSelect", [](QDialog& dialog) {
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Down);
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
        });
        alt(Qt::Key_C, "cmdTool");
        key(Qt::Key_Space);
        ASSERT_EQ(focus(), "txtDet0");
        nextBox("4000");
        nextBox("300");
        nextBox("75");
        nextBox(depth);
        keys(depth);
        key(Qt::Key_Return);
    }
    ASSERT_EQ(shown(), "picOrder Back Next");
    key(Qt::Key_Down);
    alt(Qt::Key_N, "txtHead1");
    nextBox("Sam");
    alt(Qt::Key_M, "txtHead5");
    keys("Acrylic");
    key(Qt::Key_Return);
    ASSERT_EQ(shown(), "picOutput Back Next");
    alt(Qt::Key_3, "optOutput3");
    answers.expect("dlgSave",
                   [](QDialog& dialog) { QTest::keyClick(dialog.focusWidget(), Qt::Key_Return); });
    answers.expect("frmMenu", [](QDialog& dialog) { // Save
        QTest::keyClick(&dialog, Qt::Key_S, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !dialog.isVisible(); }));
    });
    key(Qt::Key_Return);
    EXPECT_EQ(readWholeFile(folder.path() / "nameplate.mxc", 1 << 20), expected(targetMaskor, 0));
    EXPECT_EQ(job.answers.gintOrder[1], 2);
    EXPECT_EQ(shown(), "picOutput Back Next");
}

} // namespace
} // namespace torvik
