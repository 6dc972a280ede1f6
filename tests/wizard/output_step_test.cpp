// SPDX-License-Identifier: MIT
// From the output page to the written file and the menu behind it.
#include "base/files.h"
#include "gcode/dialects.h"
#include "tests/wizard/main_window_fixture.h"
#include "wizard/drive_a.h"
#include "wizard/frm_output.h"

#include <QMessageBox>

namespace torvik {
namespace {

class OutputTest : public MainWindowTest {
protected:
    // On step 6 of the bracket, with a folder for drive A.
    void startOutput() {
        std::filesystem::create_directory(driveFolder);
        registry.RegistryValuePut("Drive A Path", driveFolder.string());
        startSample("bracket");
        go(6);
    }
    void choose(int target) { click("optOutput" + std::to_string(target)); }
    std::string firstLines(const std::filesystem::path& file, std::size_t bytes) {
        return readWholeFile(file, 1 << 20).substr(0, bytes);
    }
    // The side text of a program without the header, which has its own tests.
    std::string origin(const std::filesystem::path& file) {
        const std::string text = readWholeFile(file, 1 << 20);
        return text.substr(0, text.find("\r\nDate - "));
    }
    std::filesystem::path answersFile() { return folder.path() / "PlotSave" / "bracket.plx"; }

    std::filesystem::path driveFolder = folder.path() / "floppy";
    const std::string noDiskette = "Torvik|53|Please put a diskette into Drive A:";
};

TEST_F(OutputTest, ANumberedProgramGoesToTheDisketteWithItsText) {
    struct Row {
        int target;
        const char* number;
        const char* name;
        const char* caption;
        std::string opening;
    };
    const Row rows[] = {
        {1, "12", "%MPF12", "WinCAM Program Number",
         "%MPF12\r\nN1 G54\r\nN2 G97 G94\r\nN3 G58 X0 Y0 Z0\r\n"},
        {2, "7", "oprg7", "WinNC Program Number", "\x1B&HE:\x12%\r\n:0007\r\nN1 G54\r\n"},
    };
    startOutput();
    for (const Row& row : rows) {
        std::filesystem::remove(answersFile());
        choose(row.target);
        answers.expect("frmOutput", [&](QDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), row.caption);
            EXPECT_EQ(dialog.findChild<QLabel*>("lblPrefix")->text() + row.number, row.name);
            DialogAnswers::number(row.number)(dialog);
        });
        answers.expect("frmMenu", [&](QDialog& dialog) {
            EXPECT_TRUE(dialog.findChild<QLabel*>("lblMenu")->text().contains(
                QString("a:\\%1\n").arg(row.name)));
            DialogAnswers::press("cmdSave")(dialog);
        });
        EXPECT_TRUE(row.target == 2 || job.gblnUnsaved);
        click("cmdNext");
        const auto program = driveFolder / row.name;
        EXPECT_EQ(firstLines(program, row.opening.size()), row.opening);
        EXPECT_EQ(origin(driveFolder / (std::string(row.name) + ".txt")),
                  "Origin - " + drawing.string() + "\r\nFile - " + row.name);
        EXPECT_TRUE(std::filesystem::exists(answersFile()));
        EXPECT_FALSE(job.gblnUnsaved);
        EXPECT_EQ(shown(), "picOutput Back Next");
    }
}

TEST_F(OutputTest, ANumberThatIsNoneWritesNothing) {
    startOutput();
    choose(1);
    const std::string tooLarge = "Torvik|48|The program number may be 1 to 32767 only";
    struct Row {
        const char* name;
        DialogAnswers::Answer answer;
        bool askedAgain;
    };
    const Row rows[] = {
        {"cancelled", DialogAnswers::press("cmdCancel"), false},
        {"closed", [](QDialog& dialog) { dialog.close(); }, false},
        {"zero", DialogAnswers::number("00"), false},
        {"more than a whole number holds", DialogAnswers::number("32768"), true},
        {"more than any number holds", DialogAnswers::number(std::string(400, '9').c_str()), true},
        {"pasted, less than nothing",
         [](QDialog& dialog) {
             dialog.findChild<QLineEdit*>("txtNumber")->setText("-3");
             DialogAnswers::press("cmdOk")(dialog);
         },
         true},
    };
    for (const Row& row : rows) {
        answers.expect("frmOutput", row.answer);
        if (row.askedAgain)
            answers.expect("frmOutput", DialogAnswers::press("cmdCancel"));
        click("cmdNext");
        EXPECT_EQ(messages.take(), row.askedAgain ? tooLarge : "") << row.name;
        EXPECT_TRUE(job.gblnUnsaved) << row.name;
        EXPECT_TRUE(std::filesystem::is_empty(driveFolder)) << row.name;
    }
}

TEST_F(OutputTest, TheNumberBoxTakesDigitsOnlyAndOkNeedsOne) {
    FrmOutput dialog(dialectFor(targetWinCam));
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    auto& box = *dialog.findChild<QLineEdit*>("txtNumber");
    auto& ok = *dialog.findChild<QPushButton*>("cmdOk");
    EXPECT_TRUE(box.hasFocus());
    EXPECT_FALSE(ok.isEnabled());
    QTest::keyClicks(&box, "a 1-.2\u00B2");
    EXPECT_EQ(box.text(), "12");
    EXPECT_TRUE(ok.isEnabled());
    QTest::keyClick(&box, Qt::Key_Backspace);
    QTest::keyClick(&box, Qt::Key_Backspace);
    EXPECT_FALSE(ok.isEnabled());
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible());
    QTest::keyClicks(&box, "4");
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_EQ(dialog.tag(), "4");
}

TEST_F(OutputTest, AMissingDisketteIsAskedForUntilItIsThereOrGivenUp) {
    startOutput();
    choose(1);
    std::filesystem::remove(driveFolder);
    answers.expect("frmOutput", DialogAnswers::number("1"));
    messages.answers = {buttonRetry, buttonRetry, buttonCancel};
    click("cmdNext");
    EXPECT_EQ(messages.take(), noDiskette + noDiskette + noDiskette);
    EXPECT_TRUE(job.gblnUnsaved);
    registry.RegistryValuePut("Drive A Path", folder.file("no folder", "").string());
    answers.expect("frmOutput", DialogAnswers::number("1"));
    messages.answers = {buttonCancel};
    click("cmdNext");
    EXPECT_EQ(messages.take(), noDiskette);
    EXPECT_FALSE(isDriveReady({}));
}

TEST_F(OutputTest, AnExistingProgramIsOnlyReplacedAfterAYes) {
    startOutput();
    choose(2);
    for (const char* name : {"oprg1", "oprg2"})
        std::ofstream(driveFolder / name) << "old";
    answers.expect("frmOutput", DialogAnswers::number("1"));
    answers.expect("frmOutput", DialogAnswers::number("2"));
    answers.expect("frmMenu", DialogAnswers::cancel);
    messages.answers = {buttonNo, buttonYes};
    click("cmdNext");
    const std::string exists = " already exists on the diskette\nDo you want to overwrite it?";
    EXPECT_EQ(messages.take(),
              "Torvik|36|A file named oprg1" + exists + "Torvik|36|A file named oprg2" + exists);
    EXPECT_EQ(firstLines(driveFolder / "oprg1", 9), "old");
    EXPECT_EQ(firstLines(driveFolder / "oprg2", 1), "\x1B");
    EXPECT_EQ(shown(), "picOutput Back Next"); // the menu was left without a choice
}

TEST_F(OutputTest, TheFileDialogProposesTheDrawingsNameAndRemembersItsFolder) {
    struct Row {
        int target;
        const char* title;
        const char* proposed;
        const char* setting;
        const char* chosen;
        const char* written; // the extension is added where there is none
    };
    const Row rows[] = {
        {3, "Select the destination Maskor file", "bracket.mxc", "CNC File Path", "gear",
         "gear.mxc"},
        {4, "Select the destination Kestra file", "bracket.iso", "Kestra File Path", "gear.nc",
         "gear.nc"},
    };
    startOutput();
    const auto out = folder.path() / "out";
    std::filesystem::create_directory(out);
    for (const Row& row : rows) {
        choose(row.target);
        answers.expect("dlgSave", [&](QDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), row.title);
            EXPECT_EQ(dialog.findChild<QLineEdit*>("fileNameEdit")->text(), row.proposed);
            DialogAnswers::file(out / row.chosen)(dialog);
        });
        answers.expect("frmMenu", DialogAnswers::press("cmdSave"));
        click("cmdNext");
        EXPECT_EQ(firstLines(out / row.written, 2), "%\r");
        EXPECT_EQ(registry.strRegistryValueGet(row.setting, ""), out.string() + "/");
        EXPECT_FALSE(std::filesystem::exists(out / (std::string(row.written) + ".txt")));
    }
}

TEST_F(OutputTest, TheDrawingItselfIsNeverTheProgramsFile) {
    startOutput();
    choose(3);
    const std::string before = readWholeFile(drawing, 1 << 20);
    answers.expect("dlgSave", DialogAnswers::file(drawing));
    answers.expect("", [](QDialog& replace) { // asked first, as of any file
        dynamic_cast<QMessageBox&>(replace).button(QMessageBox::Yes)->click();
    });
    answers.expect("dlgSave", DialogAnswers::cancel);
    click("cmdNext");
    EXPECT_EQ(messages.take(), "Torvik|48|This is the drawing itself.\nPlease choose another name "
                               "for the program.");
    EXPECT_EQ(readWholeFile(drawing, 1 << 20), before);
    EXPECT_TRUE(job.gblnUnsaved);
}

TEST_F(OutputTest, AFileThatCannotBeOpenedCanBeTriedAgain) {
    startOutput();
    choose(1);
    std::filesystem::create_directory(driveFolder / "%MPF3"); // no file takes its place
    answers.expect("frmOutput", DialogAnswers::number("3"));
    messages.answers = {buttonYes, buttonRetry, buttonCancel};
    click("cmdNext");
    const std::string writable = "Torvik|53|Please make sure the diskette is writable";
    EXPECT_EQ(messages.take(), "Torvik|36|A file named %MPF3 already exists on the diskette\n"
                               "Do you want to overwrite it?" +
                                   writable + writable);
    EXPECT_TRUE(job.gblnUnsaved);
}

TEST_F(OutputTest, AFailedWriteShowsNoMenuAndLeavesTheWorkUnsaved) {
    startOutput();
    choose(1);
    std::filesystem::remove(answersFile());
    std::filesystem::create_symlink("/dev/full", driveFolder / "%MPF4");
    answers.expect("frmOutput", DialogAnswers::number("4"));
    messages.answers = {buttonYes};
    click("cmdNext");
    EXPECT_EQ(errors.size(), 1U);
    errors.clear();
    messages.take();
    EXPECT_TRUE(job.gblnUnsaved);
    EXPECT_FALSE(std::filesystem::exists(answersFile()));
    EXPECT_EQ(shown(), "picOutput Back Next");
}

TEST_F(OutputTest, AGroupWithoutAToolIsNamedBeforeAnythingIsAsked) {
    startOutput();
    workshop.tools.gintToolCount = 6;
    click("cmdNext");
    EXPECT_EQ(messages.take(), "Torvik|48|Please choose a tool for the 8.0 mm Red holes");
}

TEST_F(OutputTest, TheMenuLeadsToAnotherFileOrEndsTheProgram) {
    startOutput();
    choose(1);
    answers.expect("frmOutput", DialogAnswers::number("1"));
    answers.expect("frmMenu", DialogAnswers::press("cmdOpen"));
    click("cmdNext");
    EXPECT_EQ(shown(), "picOpening Start");
    EXPECT_EQ(caption(), "Torvik");
    window->resize(1200, 900);
    settle();
    EXPECT_FALSE(find<QWidget>("picPlot").isVisible());
    EXPECT_TRUE(job.gudtColourTree.empty());

    open(drawing);
    go(6);
    answers.expect("frmOutput", DialogAnswers::number("2"));
    answers.expect("frmMenu", DialogAnswers::press("cmdClose"));
    click("cmdNext");
    EXPECT_EQ(shutdowns, 1);
}

TEST_F(OutputTest, TheTargetUsedLastIsSetTheNextTime) {
    startOutput();
    EXPECT_TRUE(find<QRadioButton>("optOutput4").isChecked());
    choose(2);
    answers.expect("frmOutput", DialogAnswers::cancel);
    click("cmdNext");
    window.reset();
    start();
    EXPECT_TRUE(find<QRadioButton>("optOutput2").isChecked());
    QSettings(QSettings::IniFormat, QSettings::UserScope, "Torvik", "Torvik")
        .setValue("OutputTarget", 9);
    window.reset();
    start();
    EXPECT_TRUE(find<QRadioButton>("optOutput1").isChecked()); // one always is
}

TEST_F(OutputTest, ThePageShowsWhereDriveALeadsAndChangesIt) {
    startOutput();
    EXPECT_EQ(label("lblDriveA"), "a:\\ is " + driveFolder.string());
    answers.expect("dlgDriveA", DialogAnswers::cancel);
    click("cmdDriveA");
    const auto stick = folder.path() / "stick";
    std::filesystem::create_directory(stick);
    answers.expect("dlgDriveA", DialogAnswers::file(stick));
    click("cmdDriveA");
    EXPECT_EQ(registry.strRegistryValueGet("Drive A Path", ""), stick.string());
    EXPECT_EQ(label("lblDriveA"), "a:\\ is " + stick.string());

    const auto tooLong = folder.path() / std::string(80, 'x');
    std::filesystem::create_directory(tooLong);
    answers.expect("dlgDriveA", DialogAnswers::file(tooLong));
    click("cmdDriveA");
    EXPECT_EQ(messages.take(), "Torvik|48|The folder's name is too long to be remembered, please "
                               "choose another:\n" +
                                   tooLong.string());
    EXPECT_EQ(label("lblDriveA"), "a:\\ is " + stick.string());
}

} // namespace
} // namespace torvik
