// SPDX-License-Identifier: MIT
// The state machine of the six steps, opening and closing, through the window's own controls.
#include "tests/wizard/main_window_fixture.h"
#include "tools/tool_edits.h"
#include "tools/tool_store.h"
#include "wizard/drawing_pictures.h"
#include "wizard/drawing_tile.h"
#include "wizard/recent_drawings.h"

#include <QDragEnterEvent>
#include <QMenu>
#include <QMimeData>
#include <QStatusBar>
#include <QTableWidget>
#include <QTreeWidget>

#include <algorithm>
#include <utility>

namespace torvik {
namespace {

class FrmMainTest : public MainWindowTest {
protected:
    bool isFlashing() { return find<QTimer>("tmrFlash").isActive(); }
    int treeRows() { return find<QTreeWidget>("tvwColours").topLevelItemCount(); }
    bool showsPicture() { return find<QWidget>("picPlot").isVisible(); }
    std::string currentStep() {
        std::string text;
        for (int i = 1; i <= 6; ++i)
            if (find<QLabel>("lblStep" + std::to_string(i)).font().bold())
                text += std::to_string(i);
        return text;
    }
    std::string boldNodes() {
        std::string text;
        for (QTreeWidgetItemIterator at(&find<QTreeWidget>("tvwColours")); *at != nullptr; ++at)
            if ((*at)->font(0).bold())
                text += (*at)->text(0).toStdString() + " ";
        return text;
    }
    void fillHeights() {
        type("txtGlob1", "5");
        click("optUnits0");
    }
    // The menu's Open, where the question about unsaved work gets the answer.
    void openFromMenu(int answer, DialogAnswers::Answer choice = {}) {
        messages.answers = {answer};
        if (choice)
            answers.expect("dlgOpen", std::move(choice));
        find<QAction>("mnuFileOpen").trigger();
        settle();
        messages.take();
    }
    QList<QAction*> recent() {
        emit find<QMenu>("mnuFile").aboutToShow();
        return find<QMenu>("mnuFileRecent").actions();
    }
};

TEST_F(FrmMainTest, EveryRoadFromStepOneOpensTheFileDialogAfterItsEvent) {
    start();
    EXPECT_EQ(shown() + currentStep() + caption() + focus(), "picOpening Start1TorvikcmdStart");
    const std::function<void()> roads[] = {[&] { window->Wizard(-1); }, [&] { window->Wizard(1); },
                                           [&] { click("cmdStart"); },
                                           [&] { key(Qt::Key_Return); }};
    for (const auto& road : roads) {
        answers.expect("dlgOpen", DialogAnswers::cancel);
        road();
        settle();
        EXPECT_EQ(answers.open(), 0U);
    }
    window->Wizard(1); // not yet: the event has not ended
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    answers.expect("dlgOpen", DialogAnswers::cancel);
    settle();
    EXPECT_FALSE(job.output.gblnUnsaved);
}

TEST_F(FrmMainTest, ADrawingWithItsAnswersPassesByNextAloneAndBackAgain) {
    startSample("bracket");
    EXPECT_EQ(caption(), "Torvik - importing from HPGL file " + drawing.string());
    EXPECT_EQ(shown(), "picGlobals Back Next");
    struct Row {
        const char* button;
        const char* page;
        std::string step; // and the nodes of the tree that are bold
        const char* title;
    };
    const Row rows[] = {
        {"cmdNext", "picDetails", "3Black ", "Black lines"},
        {"cmdNext", "picDetails", "3Red ", "Red holes"},
        {"cmdNext", "picDetails", "3Red 5.0mm ", "5.0 mm diam. holes"},
        {"cmdNext", "picDetails", "3Red 8.0mm ", "8.0 mm diam. holes"},
        {"cmdNext", "picDetails", "3Blue ", "Blue holes"},
        {"cmdNext", "picDetails", "3Blue 3.3mm ", "3.3 mm diam. holes"},
        {"cmdNext", "picOrder", "4", ""},
        {"cmdNext", "picHeader", "5", ""},
        {"cmdNext", "picOutput", "6", ""},
        {"cmdBack", "picHeader", "5", ""},
        {"cmdBack", "picOrder", "4", ""},
        {"cmdBack", "picDetails", "3Blue ", "Blue holes"},
        {"cmdBack", "picDetails", "3Red ", "Red holes"},
        {"cmdBack", "picDetails", "3Black ", "Black lines"},
        {"cmdBack", "picGlobals", "2", ""},
    };
    for (const Row& row : rows) {
        click(row.button);
        EXPECT_EQ(shown(), row.page + std::string(" Back Next")) << row.step;
        EXPECT_EQ(currentStep() + boldNodes(), row.step);
        EXPECT_EQ(isFlashing(), row.step[0] == '3') << row.step;
        EXPECT_TRUE(!isFlashing() || label("lblDetTitle").ends_with(row.title)) << row.step;
    }
}

TEST_F(FrmMainTest, NoRoadGoesForwardWhileNextIsClosed) {
    startDrawing();
    EXPECT_EQ(focus(), "txtGlob1");
    const auto tryAllRoads = [&](const std::string& page) {
        key(Qt::Key_Return);
        key(Qt::Key_Enter);
        key(Qt::Key_N, Qt::AltModifier);
        key(Qt::Key_S, Qt::AltModifier);
        click("cmdNext");
        EXPECT_EQ(shown(), page + " Back -Next");
    };
    tryAllRoads("picGlobals");
    fillHeights();
    type("txtGlob1", "0");
    key(Qt::Key_Return); // open by now, but a height of 0 is refused
    EXPECT_EQ(messages.take(), "Torvik|48|The Safe Height for Rapids may not be zero");
    QTest::keyClicks(QApplication::focusWidget(), "5");
    key(Qt::Key_Return);
    tryAllRoads("picDetails");
}

TEST_F(FrmMainTest, BackFromStepTwoKeepsAllAnswersForTheSameDrawingAlone) {
    enum class Then { same, changed, otherFirst };
    for (const Then then : {Then::same, Then::changed, Then::otherFirst}) {
        window.reset();
        startDrawing();
        messages.take(); // no, it does not go on where the row before stopped
        fillHeights();
        click("cmdNext");
        type("txtDet0", "4000");
        click("optCut1"); // left out, with what was typed
        job.answers.gstrHeader[headerDesigner] = "Jo";
        click("cmdBack");
        messages.answers = {buttonYes};
        answers.expect("dlgOpen", DialogAnswers::cancel);
        click("cmdBack");
        EXPECT_EQ(messages.take(), "Open file|36|Are you sure you want to open a file\nwithout "
                                   "saving the current file as G-codes?");
        EXPECT_EQ(shown(), "picOpening Start");
        EXPECT_TRUE(job.output.gblnUnsaved);

        if (then == Then::changed)
            folder.file("drawing.plt", std::string(threePens) + "PD10,10;");
        if (then == Then::otherFirst) {
            messages.answers = {buttonYes};
            window->ReadFile(folder.file("other.plt", "SP1;PD40,40;"));
        }
        messages.answers = {buttonYes};
        window->ReadFile(drawing);
        messages.take();
        const bool kept = then == Then::same;
        EXPECT_EQ(text("txtGlob1"), kept ? "5" : "");
        EXPECT_EQ(job.answers.gudtPens[1].blnOmit, kept);
        EXPECT_EQ(job.answers.gudtSettings[1].sngSpindleSpeed, kept ? 4000 : 0);
        EXPECT_EQ(job.answers.gstrHeader[headerDesigner], kept ? "Jo" : "");
        job.output.gblnUnsaved = false;
    }
}

TEST_F(FrmMainTest, ARefusedDrawingLeavesNothingButTheAnswersOfTheOneBefore) {
    startSample("bracket");
    go(3);
    type("txtDet0", "4321");
    openFromMenu(buttonYes, DialogAnswers::file(folder.file("broken.plt", "SP9;PD10,10;")));
    EXPECT_EQ(std::exchange(errors, {}).size(), 1U);
    EXPECT_EQ(shown() + caption(), "picOpening StartTorvik");
    EXPECT_EQ(treeRows(), 0);
    EXPECT_FALSE(job.output.gblnUnsaved);
    EXPECT_EQ(job.drawing.gstrPlotFile, "");
    window->resize(1300, 900);
    settle();
    EXPECT_FALSE(showsPicture() || find<QPushButton>("cmdContinue").isVisible());
    ASSERT_EQ(recent().size(), 1);
    EXPECT_EQ(recent()[0]->text(), "&1  bracket.plt");
    recent()[0]->trigger();
    settle();
    go(3);
    EXPECT_EQ(text("txtDet0"), "4321");
}

TEST_F(FrmMainTest, WhatOfTheSavedAnswersIsNotUsedIsSaid) {
    startSample("bracket");
    EXPECT_FALSE(find<QLabel>("lblDamage").isVisible());
    go(3);
    workshop.tools.gudtTools[job.answers.gudtSettings[1].intTool].intNumber = 99;
    job.output.gblnUnsaved = false;
    window->ReadFile(drawing);
    messages.take(); // no, without the answers of before
    go(3);
    EXPECT_EQ(label("lblToolNote"), "Tool T1 is no longer in the tool list");

    const auto saved = folder.path() / "PlotSave" / "bracket.plx";
    std::ofstream(saved, std::ios::app) << "x";
    job.output.gblnUnsaved = false;
    window->ReadFile(drawing);
    EXPECT_TRUE(label("lblDamage")
                    .starts_with("The saved answers are damaged and were not used: " +
                                 saved.string() + ", line "));
    job.output.gblnUnsaved = false;
}

TEST_F(FrmMainTest, TheStartPageShowsDrawingsThatAreThereAndOpensThem) {
    std::filesystem::create_directory(folder.path() / "Sample files");
    folder.file("Sample files/one.plt", threePens);
    const auto recentOne = folder.file("a & b.plt", threePens);
    const auto gone = folder.file("gone.plt", threePens);
    const auto broken = folder.file("broken.plt", "SP9;PD10,10;");
    for (const auto& name : {gone, recentOne, broken})
        addRecentDrawing(name);
    std::filesystem::remove(gone);
    start();
    const auto tiles = [this] { return window->findChildren<DrawingTile*>(); };
    ASSERT_TRUE(QTest::qWaitFor([&] { return tiles().size() == 2; }));
    settle();
    EXPECT_EQ(find<DrawingTile>("cmdRecent1").accessibleName(), "Open a & b.plt");
    EXPECT_EQ(find<DrawingTile>("cmdSample1").accessibleName(), "Open one.plt");
    EXPECT_EQ(focus(), "cmdStart");
    find<DrawingTile>("cmdRecent1").setFocus();
    key(Qt::Key_Return);
    EXPECT_EQ(shown() + caption(),
              "picGlobals Back -NextTorvik - importing from HPGL file " + recentOne.string());
}

TEST(DrawingPicture, HasTheLinesOfTheDrawingInItsPensColours) {
    const TemporaryFolder folder;
    // 10 mm by 10 mm: 32 pixels within the margins of 8, 8 more to the left of them.
    const auto drawing = folder.file("square.plt", "SP2;PU0,0;PD400,0;PD400,400;PD0,400;PD0,0;");
    const QImage picture = drawingPicture(drawing, {64, 48}, 2);
    EXPECT_EQ(picture.size(), QSize(128, 96));
    EXPECT_EQ(picture.pixelColor(64, 48), QColor(Qt::white));
    EXPECT_EQ(picture.pixelColor(64, 16), QColor(Qt::red));
    EXPECT_EQ(picture.pixelColor(64, 80), QColor(Qt::red));
    EXPECT_EQ(picture.pixelColor(32, 48), QColor(Qt::red));
    EXPECT_TRUE(drawingPicture(folder.path(), {64, 48}, 2).isNull());
}

TEST_F(FrmMainTest, TheStartPageLeadsBackToTheDrawingThatWasLeft) {
    startDrawing();
    fillHeights();
    for (const char* height : {"5", "7"}) {
        EXPECT_FALSE(find<QPushButton>("cmdContinue").isVisible());
        type("txtGlob1", height);
        messages.answers = {buttonYes};
        answers.expect("dlgOpen", DialogAnswers::cancel);
        click("cmdBack");
        messages.take();
        EXPECT_EQ(find<QPushButton>("cmdContinue").text(), "&Continue with drawing.plt");
        click("cmdContinue");
        EXPECT_EQ(shown() + text("txtGlob1"), std::string("picGlobals Back Next") + height);
    }
    messages.answers = {buttonYes};
    window->ReadFile(drawing); // what was left before it was continued is no longer offered
    messages.take();
    EXPECT_EQ(text("txtGlob1"), "");
}

TEST_F(FrmMainTest, ADrawingOfNothingIsToldAndGoesNoFurther) {
    startDrawing("SP1;PU10,10;SP0;");
    fillHeights();
    click("cmdNext");
    const std::string told =
        "Torvik|48|This drawing holds nothing that can be milled:\n" + drawing.string();
    EXPECT_EQ(messages.take(), told + told);
    EXPECT_EQ(shown(), "picGlobals Back Next");
}

TEST_F(FrmMainTest, OpenLeavesThePageAloneUntilAnotherDrawingIsIn) {
    std::filesystem::create_directory(folder.path() / "else");
    const auto other = folder.file("else/OTHER.PLT", "SP3;PD40,40;");
    startSample("bracket");
    for (const int step : {2, 3, 4, 5, 6}) {
        go(step);
        const std::string before = shown();
        if (step == 3) {
            type("txtDet4", "9");
            click("cmdNext"); // refused, it is more than the final depth
            EXPECT_NE(messages.take(), "");
        }
        openFromMenu(buttonNo);
        openFromMenu(buttonYes, DialogAnswers::cancel);
        EXPECT_EQ(shown(), before);
        EXPECT_EQ(isFlashing(), step == 3);
        EXPECT_TRUE(step != 3 || text("txtDet4") == "9");
        openFromMenu(buttonYes, DialogAnswers::file(other));
        EXPECT_EQ(shown(), "picGlobals Back -Next");
        EXPECT_EQ(registry.strRegistryValueGet("PLT File Path", ""), other.parent_path().string());
        EXPECT_FALSE(isFlashing());
        EXPECT_EQ(treeRows(), 1);
        openFromMenu(buttonYes, DialogAnswers::file(drawing));
    }
}

TEST_F(FrmMainTest, RecentDrawingsAreOfferedNewestFirstWhileTheyExist) {
    const auto first = folder.file("Nuts & bolts.plt", "SP1;PD40,40;");
    const auto second = folder.file("second.plt", "SP1;PD40,40;");
    start();
    for (const auto& name : {first, second, first}) {
        job.output.gblnUnsaved = false;
        window->ReadFile(name);
    }
    ASSERT_EQ(recent().size(), 2);
    EXPECT_EQ(recent()[0]->text(), "&1  Nuts && bolts.plt");
    job.output.gblnUnsaved = false;
    recent()[1]->trigger();
    settle();
    EXPECT_EQ(job.drawing.gstrPlotFile, second.string());
    std::filesystem::remove(second);
    EXPECT_EQ(recent().size(), 1);
}

TEST_F(FrmMainTest, ADroppedDrawingIsOpenedUnlessADialogWaits) {
    start();
    const auto drop = [&](const std::vector<std::filesystem::path>& names) {
        QMimeData data;
        QList<QUrl> urls;
        for (const auto& name : names)
            urls.append(QUrl::fromLocalFile(name.c_str()));
        data.setUrls(urls);
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
        enter.ignore();
        QApplication::sendEvent(&*window, &enter);
        QDropEvent event({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&*window, &event);
        settle();
        return enter.isAccepted();
    };
    drawing = folder.file("Dropped.PLT", threePens);
    EXPECT_FALSE(drop({folder.file("notes.txt", "")}));
    EXPECT_FALSE(drop({drawing, drawing}));
    EXPECT_EQ(shown(), "picOpening Start");
    answers.expect("dlgOpen", [&](QDialog& dialog) {
        drop({drawing});
        find<QAction>("mnuFileOpen").trigger();
        settle();
        dialog.reject();
    });
    click("cmdStart");
    EXPECT_EQ(shown(), "picOpening Start");
    EXPECT_TRUE(drop({drawing}));
    EXPECT_EQ(job.drawing.gstrPlotFile, drawing.string());
    // One that a second start of the program brings waits for the end of the dialog.
    const auto second = folder.file("second.plt", threePens);
    job.output.gblnUnsaved = false;
    answers.expect("dlgOpen", [&](QDialog& dialog) {
        window->ReadFileWhenFree(drawing);
        window->ReadFileWhenFree(second);
        QTest::qWait(150);
        EXPECT_EQ(job.drawing.gstrPlotFile, drawing.string());
        dialog.reject();
    });
    find<QAction>("mnuFileOpen").trigger();
    settle();
    EXPECT_TRUE(QTest::qWaitFor([&] { return job.drawing.gstrPlotFile == second.string(); }));
    answers.expect("frmPrepare", [](QDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QLabel*>("lblSource")->text(), "Part.HPGL");
        dialog.reject();
    });
    EXPECT_TRUE(drop({folder.file("Part.HPGL", threePens)}));
}

TEST_F(FrmMainTest, ALineBelowSaysWhatOfADrawingIsNotReadAndOpensTheDialog) {
    const auto line = [this] {
        const auto& button = find<QPushButton>("cmdSkipped");
        return button.isVisible() ? button.text().toStdString() : "";
    };
    const std::string end = " so something may be missing. See File ▸ Prepare a Drawing…";
    startDrawing("SP1;PD40,40;PR;PD1,1;PD1,1,2,2;EA40,40;");
    find<QStatusBar>("staMain").showMessage("a passing message");
    EXPECT_EQ(line(), "3 instructions of this drawing are not read," + end);
    const auto one = folder.file("one.plt", "SP1;PD40,40,80,80;PD0,0;");
    openFromMenu(buttonYes, DialogAnswers::file(one));
    EXPECT_EQ(line(), "1 instruction of this drawing is not read," + end);
    answers.expect("frmPrepare", [](QDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QLabel*>("lblSource")->text(), "one.plt");
        dialog.reject();
    });
    click("cmdSkipped");
    messages.answers = {buttonYes};
    answers.expect("dlgOpen", DialogAnswers::cancel);
    click("cmdBack"); // the drawing is closed
    messages.take();
    EXPECT_EQ(line(), "");
    openFromMenu(buttonYes, DialogAnswers::file(one));
    EXPECT_NE(line(), "");
    openFromMenu(buttonYes, DialogAnswers::file(folder.file("plain.plt", "SP1;PD40,40;")));
    EXPECT_EQ(line(), "");
}

TEST_F(FrmMainTest, ClosingAsksWhileNothingIsWritten) {
    start();
    const std::function<void()> ways[] = {[&] { window->close(); },
                                          [&] { find<QAction>("mnuFileExit").trigger(); },
                                          [&] { key(Qt::Key_Q, Qt::ControlModifier); }};
    job.output.gblnUnsaved = true;
    for (const auto& close : ways) {
        messages.answers = {buttonNo};
        close();
        settle();
        EXPECT_EQ(messages.take(), "Exit from Torvik|36|Are you sure you want to close without "
                                   "saving\nthe current file as G-codes?");
        EXPECT_TRUE(window->isVisible() && shutdowns == 0);
    }
    messages.answers = {buttonYes};
    window->close();
    messages.take();
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(shutdowns, 1);
    job.output.gblnUnsaved = false; // nothing to lose, nothing to ask
    EXPECT_TRUE(window->CheckClose());
}

TEST_F(FrmMainTest, ToolsThatCannotBeSavedAreToldInTheStatusBar) {
    startSample("bracket");
    go(3, "8.0 mm");
    for (const bool canStore : {true, false, true}) {
        registry.canStore = canStore;
        answers.expect("frmToolSelect", [](QDialog& dialog) {
            dialog.findChild<QTableWidget*>()->selectRow(6);
            DialogAnswers::press("cmdOk")(dialog);
        });
        click("cmdTool");
        EXPECT_EQ(find<QStatusBar>("staMain").isVisible(), !canStore);
        EXPECT_TRUE(label("lblToolsUnsaved").ends_with("Maskor.ini: they last until Torvik ends"));
    }
}

TEST_F(FrmMainTest, AMachinedGroupWithoutAToolIsNamedBeforeThePieceAndBeforeTheProgram) {
    startSample("bracket");
    for (const int step : {4, 6}) {
        go(step);
        const std::int16_t all = std::exchange(workshop.tools.gintToolCount, 6); // no drill of 8 mm
        click("cmdNext");
        EXPECT_EQ(messages.take(), "Torvik|48|Please choose a tool for the 8.0 mm Red holes");
        EXPECT_EQ(job.gintWizardStep, step);
        workshop.tools.gintToolCount = all;
    }
}

TEST_F(FrmMainTest, AfterToolsWereDeletedTheGroupsConcernedAreNamed) {
    startSample("bracket");
    go(3, "8.0 mm");
    const auto deleteRow = [&](int row, const char* button) {
        answers.expect("frmToolSelect", [=, this](QDialog& dialog) {
            auto& grid = *dialog.findChild<QTableWidget*>();
            grid.selectRow(row);
            messages.answers = {buttonYes};
            DialogAnswers::press("cmdDelete")(dialog);
            messages.take();
            messages.answers = {buttonYes}; // the question about a drill that does not fit
            grid.selectRow(0);
            DialogAnswers::press(button)(dialog);
        });
        click("cmdTool");
        return messages.take();
    };
    // Place 6 is the tool of the 5 mm holes; the one of the 8 mm holes moves up to it.
    const std::string told = "Torvik|48|After the deletion these have another tool, or none. "
                             "Please check them:\nthe 5.0 mm Red holes";
    EXPECT_EQ(deleteRow(5, "cmdCancel"), told + "\nthe 8.0 mm Red holes");
    // The group on show is not named where the user has just chosen its tool.
    const std::string again = deleteRow(5, "cmdOk");
    EXPECT_EQ(again.substr(0, told.size() + 8), told + "Torvik|3");
}

TEST_F(FrmMainTest, GroupsKeepTheirToolsWhereAnotherCopyHasDeletedOne) {
    startSample("bracket");
    go(3, "8.0 mm");
    ToolDataSave(workshop.tools, registry, workshop.logger);
    answers.expect("frmToolSelect", [&](QDialog& dialog) {
        ToolList theirs = workshop.tools;
        deleteTool(theirs, 6); // of the 5 mm holes
        ToolDataSave(theirs, registry, workshop.logger);
        auto& grid = *dialog.findChild<QTableWidget*>();
        grid.selectRow(5);
        DialogAnswers::press("cmdOk")(dialog);
        EXPECT_EQ(messages.take(),
                  "Torvik|48|Another copy of Torvik has deleted tool no. 6 meanwhile.\n"
                  "Please choose another tool.");
        grid.selectRow(5); // the one of the 8 mm holes, which has moved up
        DialogAnswers::press("cmdOk")(dialog);
    });
    click("cmdTool");
    EXPECT_EQ(messages.take(), "Torvik|48|After the deletion these have another tool, or none. "
                               "Please check them:\nthe 5.0 mm Red holes");
    EXPECT_EQ(job.answers.gudtSettings[job.position.gintCurrentSettings].intTool, 6);
    const auto& groups = job.answers.gudtSettings;
    const auto isOpen = [](const Settings& group) {
        return group.intTool == 0 && group.intToolGone == 6 && !group.blnComplete;
    };
    EXPECT_EQ(std::count_if(groups.begin(), groups.end(), isOpen), 1);
}

TEST_F(FrmMainTest, ArrowKeysMoveTheOrderWhateverHasTheFocus) {
    startSample("bracket");
    go(4);
    find<QPushButton>("cmdNext").setFocus();
    for (const auto way : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Up})
        key(way);
    EXPECT_EQ(label("lblOrd1") + label("lblOrd2") + focus(), "BlueRedcmdNext");
    click("cmdNext");
    EXPECT_EQ(job.answers.gintOrder[1], 4);
}

TEST_F(FrmMainTest, HelpOpensAtTheControlElseAtTheStep) {
    startSample("bracket");
    const std::tuple<int, const char*, int> rows[] = {
        {2, "txtGlob2", 2}, {3, "txtDet1", 90}, {3, "cmdTool", 60},  {3, "cmdBack", 3},
        {4, "cmdUp", 4},    {5, "txtHead8", 5}, {6, "optOutput2", 6}};
    for (const auto& [step, control, topic] : rows) {
        go(step);
        find<QWidget>(control).setFocus();
        key(Qt::Key_F1);
        EXPECT_EQ(topics.back(), topic) << control;
    }
}

TEST_F(FrmMainTest, EveryPageIsWalkedThroughWithoutTheMouse) {
    startSample("bracket");
    struct Row {
        int step;
        const char* title;
        std::string order; // that the Tab key takes, from the first on
        std::optional<Qt::Key> access;
        const char* to;
    };
    const Row rows[] = {
        {2, "", "txtGlob0 txtGlob1 txtGlob2 optUnits0 ", Qt::Key_M, "optUnits0"},
        {3, "Black",
         "optCut0 optCut1 cmdTool txtDet0 txtDet1 txtDet2 txtDet3 txtDet4 txtDet5 txtDet6 ",
         Qt::Key_C, "optCut0"},
        {3,
         "5.0 mm",
         "optCut0 optCut1 cmdTool txtDet0 txtDet1 txtDet2 txtDet3 chkPeck txtDet4 ",
         {},
         ""},
        {4, "", "picOrd1 picOrd2 picOrd3 cmdUp ", {}, ""},
        {5, "", "txtHead0 txtHead1 txtHead2 txtHead3 txtHead4 txtHead5 txtHead6 txtHead7 txtHead8 ",
         Qt::Key_M, "txtHead5"},
        {6, "", "optOutput4 cmdFinding cmdLook cmdDriveA picCut ", Qt::Key_3, "optOutput3"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.order);
        go(row.step, row.title);
        window->resize(1, 1); // as small as it becomes; a screen of 800 by 600 shows it whole
        EXPECT_TRUE(window->width() <= 784 && window->height() <= 552);
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return row.step != 6 || find<QWidget>("cmdLook").isEnabled(); })); // tried
        settle();
        expectReachable(*window);
        find<QWidget>(row.order.substr(0, row.order.find(' '))).setFocus();
        EXPECT_EQ(tabOrder(), row.order + "cmdBack cmdNext ");
        find<QWidget>("cmdNext").setFocus();
        if (!row.access)
            continue;
        key(*row.access, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return focus() == row.to; })) << focus();
    }
}

} // namespace
} // namespace torvik
