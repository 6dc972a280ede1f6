// SPDX-License-Identifier: MIT
// A whole run from an opened drawing to the written programs, with the mouse. What was written is
// what the answers kept beside it say.
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
    void expectTool(int row) {
        answers.expect("frmToolSelect", [row](QDialog& dialog) {
            dialog.findChild<QTableWidget*>()->selectRow(row);
            DialogAnswers::press("cmdOk")(dialog);
        });
    }
    void chooseTool(int row) {
        expectTool(row);
        click("cmdTool");
    }
    // Fills the page with that title, then goes on.
    void fillPage(const std::string& title, std::initializer_list<const char*> rows) {
        EXPECT_EQ(label("lblDetTitle"), "Please give the details for the " + title);
        int row = 0;
        for (const char* const text : rows)
            type("txtDet" + std::to_string(row++), text);
        click("cmdNext");
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
    startSample("bracket");
    std::filesystem::remove(folder.path() / "PlotSave" / "bracket.plx"); // all is answered here
    job.output.gblnUnsaved = false;
    window->ReadFile(drawing);
    settle();
    type("txtGlob1", "5");
    click("optUnits0");
    click("cmdNext");
    click("optCut0");
    EXPECT_EQ(focus(), "cmdTool");
    chooseTool(0);
    fillPage("Black lines", {"3000", "180", "45", "5.2", "1", "0.2", "120"});
    // Red circles, drilled; the second drill does not fit and is chosen anew.
    messages.answers = {buttonYes};
    click("optCut0");
    EXPECT_EQ(messages.take(), "Drilling|36|Would you like to cut the circles as drilled holes?");
    chooseTool(5);
    click("chkPeck");
    fillPage("5.0 mm diam. holes", {"2200", "110", "6.5", "0.5", "2"});
    click("optCut0");
    messages.answers = {buttonNo};
    expectTool(5);
    chooseTool(6);
    messages.take();
    fillPage("8.0 mm diam. holes", {"1400", "80", "7", "0"});
    click("optCut1");
    fillPage("Blue lines", {});
    EXPECT_EQ(shown(), "picOrder Back Next");
    find<QPushButton>("cmdNext").setFocus(); // an arrow moves the order whatever has the focus
    key(Qt::Key_Down);
    EXPECT_EQ(label("lblOrd1") + focus(), "RedcmdNext");
    click("cmdNext");
    EXPECT_EQ(job.answers.gintOrder[1], 2);
    type("txtHead1", "Jo");
    type("txtHead5", "Brass");
    click("cmdNext");
    EXPECT_EQ(shown(), "picOutput Back Next");

    registry.RegistryValuePut("Drive A Path", folder.path().string());
    const std::pair<std::int16_t, const char*> targets[] = {{targetWinCam, "%MPF9"},
                                                            {targetWinNc, "oprg9"},
                                                            {targetMaskor, "b.mxc"},
                                                            {targetKestra, "b.iso"}};
    for (const auto& [target, name] : targets) {
        click("optOutput" + std::to_string(target));
        if (target <= targetWinNc)
            answers.expect("frmOutput", DialogAnswers::number("9"));
        else
            answers.expect("dlgSave", DialogAnswers::file(folder.path() / name));
        answers.expect("frmMenu", DialogAnswers::press("cmdSave"));
        click("cmdNext");
        const std::string written = readWholeFile(folder.path() / name, 1 << 20);
        EXPECT_EQ(written, expected(target, 9)) << name;
        EXPECT_EQ(written.find("T5"), std::string::npos) << "the left-out pen's tool";
    }
    EXPECT_FALSE(job.output.gblnUnsaved);
}

} // namespace
} // namespace torvik
