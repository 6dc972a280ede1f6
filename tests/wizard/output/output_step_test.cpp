// SPDX-License-Identifier: MIT
// From the output page to the written file and the menu behind it.
#include "base/files.h"
#include "convert/converter.h"
#include "gcode/dialects.h"
#include "tests/wizard/main_window_fixture.h"
#include "wizard/output/drive_a.h"

#include <QAbstractItemView>
#include <QDir>
#include <QFileDialog>

#include <sstream>

namespace torvik {
namespace {

class OutputTest : public MainWindowTest {
protected:
    // On step 6 of the bracket, with a folder for drive A.
    void SetUp() override {
        std::filesystem::create_directory(drive);
        registry.RegistryValuePut("Drive A Path", drive.string());
        startSample("bracket");
        go(6);
        std::filesystem::remove(answersFile());
    }
    void choose(int target) { click("optOutput" + std::to_string(target)); }
    static std::string firstBytes(const std::filesystem::path& file, std::size_t count) {
        return readWholeFile(file, 1 << 20).substr(0, count);
    }
    std::filesystem::path answersFile() { return folder.path() / "PlotSave" / "bracket.plx"; }
    void expectNothingWritten() {
        EXPECT_TRUE(job.output.gblnUnsaved);
        EXPECT_FALSE(std::filesystem::exists(answersFile()));
        EXPECT_EQ(shown(), "picOutput Back Next");
    }

    std::filesystem::path drive = folder.path() / "floppy";
};

TEST_F(OutputTest, ANumberedProgramGoesToTheDisketteWithItsText) {
    struct Row {
        int target;
        const char* number;
        const char* name;
        const char* caption;
    };
    const Row rows[] = {{1, "12", "%MPF12", "WinCAM Program Number"},
                        {2, "7", "oprg7", "WinNC Program Number"}};
    for (const Row& row : rows) {
        choose(row.target);
        answers.expect("frmOutput", [&](QDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), row.caption);
            EXPECT_EQ(dialog.findChild<QLabel*>("lblPrefix")->text() + row.number, row.name);
            EXPECT_FALSE(dialog.findChild<QPushButton*>("cmdOk")->isEnabled());
            QTest::keyClicks(dialog.focusWidget(), "a -.");
            DialogAnswers::number(row.number)(dialog);
        });
        answers.expect("frmMenu", [&](QDialog& dialog) {
            const QString text = dialog.findChild<QLabel*>("lblMenu")->text();
            EXPECT_TRUE(text.contains(row.name) && text.contains(" min on the machine."));
            DialogAnswers::press("cmdSave")(dialog);
        });
        click("cmdNext");
        const auto program = drive / row.name;
        const std::string origin =
            "Origin - " + drawing.string() + "\r\nFile - " + row.name + "\r\nDate - ";
        EXPECT_NE(firstBytes(program, 50).find("\r\nN1 G54\r\n"), std::string::npos);
        EXPECT_EQ(firstBytes(program.string() + ".txt", origin.size()), origin);
        EXPECT_TRUE(std::filesystem::exists(answersFile()));
        EXPECT_FALSE(job.output.gblnUnsaved);
        EXPECT_EQ(shown(), "picOutput Back Next");
    }
}

TEST_F(OutputTest, ANumberThatIsNoneWritesNothing) {
    choose(1);
    const auto pasted = [](const char* text) -> DialogAnswers::Answer {
        return [text](QDialog& dialog) {
            dialog.findChild<QLineEdit*>("txtNumber")->setText(text);
            DialogAnswers::press("cmdOk")(dialog);
        };
    };
    const std::tuple<const char*, DialogAnswers::Answer, bool> rows[] = {
        {"cancelled", DialogAnswers::press("cmdCancel"), false},
        {"zero", DialogAnswers::number("00"), true},
        {"more than a whole number holds", DialogAnswers::number("32768"), true},
        {"more than any number holds", DialogAnswers::number(std::string(400, '9')), true},
        {"less than nothing", pasted("-3"), true},
        {"not whole", pasted("1.5"), true},
        {"no number as it stands", pasted("1,5"), true},
    };
    for (const auto& [name, answer, askedAgain] : rows) {
        answers.expect("frmOutput", answer);
        if (askedAgain)
            answers.expect("frmOutput", DialogAnswers::cancel);
        click("cmdNext");
        EXPECT_EQ(messages.take(),
                  askedAgain ? "Torvik|48|The program number may be 1 to 32767 only" : "")
            << name;
        EXPECT_TRUE(std::filesystem::is_empty(drive)) << name;
    }
    expectNothingWritten();
}

TEST_F(OutputTest, AMissingDisketteIsAskedForUntilItIsThereOrGivenUp) {
    choose(1);
    std::filesystem::remove(drive);
    answers.expect("frmOutput", DialogAnswers::number("1"));
    messages.answers = {buttonRetry, buttonCancel};
    click("cmdNext");
    const std::string told = "Torvik|53|Please put a diskette into Drive A:";
    EXPECT_EQ(messages.take(), told + told);
    expectNothingWritten();
    EXPECT_FALSE(isDriveReady(drawing)); // a file is no drive
    EXPECT_FALSE(isDriveReady({}));
}

TEST_F(OutputTest, AnExistingProgramIsOnlyReplacedAfterAYes) {
    choose(2);
    for (const char* name : {"oprg1", "oprg2"})
        std::ofstream(drive / name) << "old";
    answers.expect("frmOutput", DialogAnswers::number("1"));
    answers.expect("frmOutput", DialogAnswers::number("2"));
    answers.expect("frmMenu", DialogAnswers::cancel);
    messages.answers = {buttonNo, buttonYes};
    click("cmdNext");
    const std::string exists = " already exists on the diskette\nDo you want to overwrite it?";
    EXPECT_EQ(messages.take(),
              "Torvik|36|A file named oprg1" + exists + "Torvik|36|A file named oprg2" + exists);
    EXPECT_EQ(firstBytes(drive / "oprg1", 9), "old");
    EXPECT_EQ(firstBytes(drive / "oprg2", 1), "\x1B");
    EXPECT_EQ(shown(), "picOutput Back Next"); // the menu was left without a choice
}

TEST_F(OutputTest, TheSaveDialogStartsBesideTheDrawingAndAsksOfTheWholeName) {
    choose(3);
    const auto other = drive / "bracket.plt";
    std::filesystem::copy_file(drawing, other);
    job.drawing.gstrPlotFile = other.string();
    registry.RegistryValuePut("CNC File Path", (folder.path() / "gone").string());
    const std::string before = readWholeFile(other, 1 << 20);
    const auto program = drive / "part.v2.mxc";
    std::ofstream(program) << "old";
    answers.expect("dlgSave", [&](QDialog& dialog) {
        const QDir start = qobject_cast<QFileDialog*>(&dialog)->directory();
        EXPECT_EQ(start.absolutePath().toStdString(), drive.string());
        DialogAnswers::file(other)(dialog);
    });
    for (int i = 0; i < 2; ++i)
        answers.expect("dlgSave", DialogAnswers::file(drive / "part.v2"));
    answers.expect("frmMenu", DialogAnswers::cancel);
    messages.answers = {buttonOk, buttonNo, buttonYes};
    click("cmdNext");
    const std::string asked = "Torvik|260|A file named part.v2.mxc already exists in this folder\n"
                              "Do you want to overwrite it?";
    EXPECT_EQ(messages.take(), "Torvik|48|This is the drawing itself.\nPlease choose another name "
                               "for the program." +
                                   asked + asked);
    EXPECT_EQ(readWholeFile(other, 1 << 20), before);
    EXPECT_EQ(firstBytes(program, 1), "%");
}

TEST_F(OutputTest, AFileThatCannotBeOpenedCanBeTriedAgainAndAFailedWriteShowsNoMenu) {
    choose(1);
    std::filesystem::create_directory(drive / "%MPF3"); // no file takes its place
    answers.expect("frmOutput", DialogAnswers::number("3"));
    messages.answers = {buttonYes, buttonRetry, buttonCancel};
    click("cmdNext");
    const std::string told = "Torvik|53|Please make sure the diskette is writable";
    EXPECT_TRUE(messages.take().ends_with(told + told));
    expectNothingWritten();

    std::filesystem::create_directory(drive / "%MPF4.txt"); // nor of the text
    answers.expect("frmOutput", DialogAnswers::number("4"));
    messages.answers = {buttonYes};
    click("cmdNext");
    messages.take();
    EXPECT_EQ(std::exchange(errors, {}).size(), 1U);
    EXPECT_FALSE(std::filesystem::exists(drive / "%MPF4"));
    expectNothingWritten();
}

TEST_F(OutputTest, ALongProgramIsAskedAboutAndCanBeCancelled) {
    choose(1);
    Settings& settings = job.answers.gudtSettings[job.answers.gudtPens[1].intSettings];
    settings.sngDepth = 99999;
    settings.sngDepthPerPass = 0.01F;
    click("cmdNext");
    EXPECT_TRUE(messages.take().starts_with("Torvik|48|This program would have more than 20000000 "
                                            "lines, most of them for the Black lines, so it is "));
    settings.sngDepth = 512;
    messages.answers = {buttonNo, buttonYes};
    click("cmdNext");
    EXPECT_TRUE(messages.take().starts_with("Torvik|260|This program will have "));
    answers.expect("frmOutput", DialogAnswers::number("1"));
    answers.expect("dlgWriting", [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    click("cmdNext");
    messages.take();
    EXPECT_TRUE(std::filesystem::is_empty(drive));
    expectNothingWritten();
}

TEST_F(OutputTest, WhatIsDangerousIsShownAndNamedBeforeItIsWritten) {
    const auto found = [&] {
        EXPECT_TRUE(QTest::qWaitFor([&] { return find<QWidget>("cmdLook").isEnabled(); }));
        QString texts = find<QWidget>("lblFindings").accessibleName();
        for (const QLabel* label : find<QWidget>("lstFindings").findChildren<QLabel*>())
            texts += u'\n' + label->text();
        return texts.toStdString();
    };
    EXPECT_TRUE(found().starts_with("Nothing dangerous or wrong is found in it."));
    Settings& settings = job.answers.gudtSettings[job.answers.gudtPens[1].intSettings];
    settings.sngDepth = 600;
    settings.sngDepthPerPass = 50;
    job.answers.gsngSafeHeight = -10;
    choose(2);
    const auto asked = [](const char* button) -> DialogAnswers::Answer {
        return [button](QDialog& dialog) {
            const QString named = dialog.findChild<QLabel*>("lblDanger")->text();
            for (const char* part : {"The Safe Height for Rapids must be above 0",
                                     "The depth of the Black lines is 600.00 mm", "\nand "})
                EXPECT_TRUE(named.contains(part)) << named.toStdString();
            EXPECT_EQ(dialog.focusWidget()->objectName(), "cmdGoBack");
            button != nullptr ? DialogAnswers::press(button)(dialog)
                              : QTest::keyClick(&dialog, Qt::Key_Escape);
        };
    };
    answers.expect("frmDanger", asked(nullptr)); // the trial may still be under way
    click("cmdNext");
    EXPECT_TRUE(std::filesystem::is_empty(drive));
    expectNothingWritten();
    EXPECT_NE(found().find("The Safe Height for Rapids must be above 0"), std::string::npos);
    answers.expect("frmDanger", asked("cmdWrite"));
    answers.expect("frmOutput", DialogAnswers::number("1"));
    answers.expect("frmMenu", DialogAnswers::cancel);
    click("cmdNext");
    EXPECT_TRUE(std::filesystem::exists(drive / "oprg1"));
}

TEST_F(OutputTest, AProgramThatMillsNothingSaysSo) {
    for (Pen& pen : job.answers.gudtPens)
        pen.blnOmit = true;
    job.answers.gblnOrderSet = false;
    click("cmdBack");
    click("cmdBack");
    EXPECT_EQ(find<QWidget>("lblQuietOrder").accessibleName().toStdString(),
              "Every pen is left out, so nothing is milled.");
    go(6);
    EXPECT_TRUE(QTest::qWaitFor([&] { return find<QWidget>("lblFindings").isVisible(); }));
    EXPECT_EQ(find<QWidget>("lblFindings").accessibleName().toStdString(),
              "It mills nothing: every pen is left out.");
}

TEST_F(OutputTest, AFindingLeadsToItsLineInThePiece) {
    job.answers.gsngRapidDownTo =
        -1; // the quick way down to the second pass goes into the material
    choose(2);
    EXPECT_TRUE(QTest::qWaitFor([&] { return find<QWidget>("cmdLook").isEnabled(); }));
    auto& finding = find<QPushButton>("cmdFinding");
    const int line =
        finding.accessibleName().mid(5).section(u':', 0, 0).section(u' ', 0, 0).toInt();
    ASSERT_GT(line, 1) << finding.accessibleName().toStdString();
    EXPECT_EQ(finding.findChild<QLabel*>()->foregroundRole(), QPalette::WindowText);
    const auto looked = [&](QDialog& dialog) {
        auto& list = *dialog.findChild<QAbstractItemView*>("lstProgram");
        EXPECT_TRUE(QTest::qWaitFor([&] { return list.isEnabled(); }));
        EXPECT_EQ(list.currentIndex().row() + 1, line);
        EXPECT_EQ(dialog.focusWidget(), &list);
        dialog.reject();
    };
    answers.expect("FrmCut", looked);
    QTest::mouseClick(&finding, Qt::LeftButton);
    settle();
    answers.expect("FrmCut", looked);
    finding.setFocus();
    key(Qt::Key_Return);
    find<QRadioButton>("optOutput2").setFocus();
    key(Qt::Key_Tab);
    EXPECT_EQ(focus(), "cmdFinding") << "Tab leads to it from the controls";
}

TEST_F(OutputTest, TextsThatACommentCannotHoldAreNamedForTheTargetsConcerned) {
    std::string& type =
        workshop.tools
            .gudtTools[job.answers.gudtSettings[job.answers.gudtPens[1].intSettings].intTool]
            .strType;
    type = "Drill (long)";
    choose(4);
    EXPECT_EQ(
        label("lblComments"),
        "Type of tool T1, \"Drill (long)\": a round bracket ends the comment, and the control "
        "may read the rest as statements");
    choose(3);
    EXPECT_FALSE(find<QLabel>("lblComments").isVisible());
    type = "\xC5\x81";
    choose(3);
    EXPECT_EQ(label("lblComments"), "Type of tool T1, \"\xC5\x81\": a program cannot hold "
                                    "\xC5\x81, ? stands there instead");
}

TEST_F(OutputTest, TheMenuLeadsToAnotherFileOrEndsTheProgram) {
    choose(1);
    answers.expect("frmOutput", DialogAnswers::number("1"));
    answers.expect("frmMenu", DialogAnswers::press("cmdOpen"));
    click("cmdNext");
    EXPECT_EQ(shown() + caption(), "picOpening StartTorvik");
    EXPECT_TRUE(job.position.gudtColourTree.empty());
    window->resize(1200, 900);
    settle();
    EXPECT_FALSE(find<QWidget>("picPlot").isVisible());

    open(drawing);
    go(6);
    EXPECT_TRUE(find<QRadioButton>("optOutput1").isChecked()); // the target used last
    answers.expect("frmOutput", DialogAnswers::number("2"));
    answers.expect("frmMenu", DialogAnswers::press("cmdClose"));
    click("cmdNext");
    EXPECT_EQ(shutdowns, 1);
}

TEST_F(OutputTest, ThePageShowsWhereDriveALeadsAndChangesIt) {
    const auto chooseFolder = [&](const std::string& name) {
        const auto chosen = folder.path() / name;
        std::filesystem::create_directory(chosen);
        answers.expect("dlgDriveA", DialogAnswers::file(chosen));
        click("cmdDriveA");
        return chosen.string();
    };
    EXPECT_EQ(label("lblDriveA"), "a:\\ is " + drive.string());
    const std::string stick = chooseFolder("stick");
    EXPECT_EQ(registry.strRegistryValueGet("Drive A Path", ""), stick);
    const std::string tooLong = chooseFolder(std::string(80, 'x'));
    EXPECT_EQ(messages.take(), "Torvik|48|The folder's name is too long to be remembered, please "
                               "choose another:\n" +
                                   tooLong);
    registry.canStore = false;
    const std::string forNow = chooseFolder("for now");
    EXPECT_NE(messages.take().find("It will not be remembered"), std::string::npos);
    EXPECT_EQ(label("lblDriveA"), "a:\\ is " + forNow);
    answers.expect("dlgDriveA", DialogAnswers::cancel);
    click("cmdDriveA");
    EXPECT_EQ(label("lblDriveA"), "a:\\ is " + forNow);
}

// A made-up fifth control, for which nothing but its row is written.
class FifthTarget : public MainWindowTest {
protected:
    static std::vector<Dialect> fiveRows() {
        std::vector<Dialect> rows(dialects().begin(), dialects().end());
        Dialect& fifth = rows.emplace_back(rows.back());
        fifth.code = 5;
        fifth.name = "Fifth";
        fifth.optionName = "fifth";
        fifth.commentOpener = "/";
        fifth.commentCloser = "\\";
        fifth.extension = "fth";
        fifth.saveTitle = "Select the fifth file";
        fifth.saveKind = "Fifth files";
        fifth.folderSetting = "Fifth File Path";
        fifth.isUsual = false;
        return rows;
    }

    const std::vector<Dialect> rows = fiveRows();
    const OtherDialects other{rows};
};

TEST_F(FifthTarget, IsWrittenByItsRowAlone) {
    startSample("bracket");
    go(3);
    type("txtDet0", "4321"); // goes into the program by the kept answers, too
    go(6);
    click("optOutput5");
    const auto file = folder.path() / "part.fth";
    answers.expect("dlgSave", [&](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Select the fifth file");
        EXPECT_EQ(dialog.findChild<QLineEdit*>("fileNameEdit")->text(), "bracket.fth");
        const QStringList filters = qobject_cast<QFileDialog*>(&dialog)->nameFilters();
        EXPECT_TRUE(filters.constFirst().startsWith("Fifth files (*.fth"));
        DialogAnswers::file(folder.path() / "part")(dialog);
    });
    answers.expect("frmMenu", DialogAnswers::cancel);
    key(Qt::Key_Return);
    const std::string written = readWholeFile(file, 1 << 20);
    EXPECT_TRUE(written.starts_with("%\r\n/Date - "));
    EXPECT_NE(written.find("\\\r\nN1 G54\r\n"), std::string::npos);
    EXPECT_NE(written.find("S4321"), std::string::npos);
    EXPECT_EQ(registry.strRegistryValueGet("Fifth File Path", ""), folder.path().string() + "/");
    EXPECT_FALSE(std::filesystem::exists(file.string() + ".txt"));

    // The console program writes the same.
    const auto again = (folder.path() / "again.fth").string();
    std::ostringstream out;
    std::ostringstream err;
    EXPECT_EQ(runConverter({"torvik-convert", job.drawing.gstrPlotFile, "--target", "fifth",
                            "--answers", job.answers.gstrSavedFile, "--tools",
                            std::string(TORVIK_SAMPLES) + "/Maskor.ini", "--output", again},
                           out, err),
              0)
        << err.str();
    EXPECT_EQ(readWholeFile(again, 1 << 20), written);
}

} // namespace
} // namespace torvik
