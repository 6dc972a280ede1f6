// SPDX-License-Identifier: MIT
// The state machine of the six steps, through the window's own controls.
#include "tests/wizard/main_window_fixture.h"

#include <QDragEnterEvent>
#include <QMenuBar>
#include <QMimeData>
#include <QTableWidget>
#include <QTreeWidget>

#include <algorithm>

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
    // Fills step 2 so that Next is open.
    void fillHeights() {
        type("txtGlob1", "5");
        click("optUnits0");
    }
};

TEST_F(FrmMainTest, StartsAtStepOneWithStartAlone) {
    start();
    EXPECT_EQ(shown(), "picOpening Start");
    EXPECT_EQ(currentStep(), "1");
    EXPECT_EQ(caption(), "Torvik");
    EXPECT_EQ(focus(), "cmdStart");
    EXPECT_FALSE(showsPicture());
}

TEST_F(FrmMainTest, EveryRoadFromStepOneOpensTheFileDialogAfterItsEvent) {
    start();
    for (const std::int16_t direction : std::initializer_list<std::int16_t>{-1, 1}) {
        answers.expect("dlgOpen", DialogAnswers::cancel);
        window->Wizard(direction);
        EXPECT_EQ(answers.open(), 1U);
        settle();
    }
    answers.expect("dlgOpen", DialogAnswers::cancel);
    click("cmdStart");
    answers.expect("dlgOpen", DialogAnswers::cancel);
    key(Qt::Key_Return);
    for (const std::int16_t step : std::initializer_list<std::int16_t>{0, 7}) {
        job.gintWizardStep = step;
        window->Wizard(1);
        window->Wizard(-1);
        settle();
    }
    job.gintWizardStep = 1;
    EXPECT_EQ(shown(), "picOpening Start");
    EXPECT_FALSE(job.gblnUnsaved);
}

TEST_F(FrmMainTest, ADrawingWithItsAnswersPassesByNextAloneAndBackAgain) {
    startSample("bracket");
    EXPECT_EQ(caption(), "Torvik - importing from HPGL file " + drawing.string());
    struct Row {
        const char* button;
        const char* shown;
        const char* step;
        const char* title; // of the pen page
        const char* bold;
    };
    const std::string pens = "Please give the details for the ";
    const Row rows[] = {
        {"cmdNext", "picDetails Back Next", "3", "Black lines", "Black "},
        {"cmdNext", "picDetails Back Next", "3", "Red holes", "Red "},
        {"cmdNext", "picDetails Back Next", "3", "5.0 mm diam. holes", "Red 5.0mm "},
        {"cmdNext", "picDetails Back Next", "3", "8.0 mm diam. holes", "Red 8.0mm "},
        {"cmdNext", "picDetails Back Next", "3", "Blue holes", "Blue "},
        {"cmdNext", "picDetails Back Next", "3", "3.3 mm diam. holes", "Blue 3.3mm "},
        {"cmdNext", "picOrder Back Next", "4", "", ""},
        {"cmdNext", "picHeader Back Next", "5", "", ""},
        {"cmdNext", "picOutput Back Next", "6", "", ""},
        {"cmdBack", "picHeader Back Next", "5", "", ""},
        {"cmdBack", "picOrder Back Next", "4", "", ""},
        {"cmdBack", "picDetails Back Next", "3", "Blue holes", "Blue "},
        {"cmdBack", "picDetails Back Next", "3", "Red holes", "Red "},
        {"cmdBack", "picDetails Back Next", "3", "Black lines", "Black "},
        {"cmdBack", "picGlobals Back Next", "2", "", ""},
    };
    EXPECT_EQ(shown(), "picGlobals Back Next");
    for (const Row& row : rows) {
        click(row.button);
        const std::string at = std::string(row.step) + " " + row.title;
        EXPECT_EQ(shown(), row.shown) << at;
        EXPECT_EQ(currentStep(), row.step) << at;
        EXPECT_EQ(boldNodes(), row.bold) << at;
        EXPECT_EQ(isFlashing(), row.step[0] == '3') << at;
        if (row.step[0] == '3') {
            EXPECT_EQ(label("lblDetTitle"), pens + row.title);
        }
    }
    EXPECT_EQ(text("txtGlob0"), "50");
}

TEST_F(FrmMainTest, NoRoadGoesForwardWhileNextIsClosed) {
    startDrawing();
    EXPECT_EQ(focus(), "txtGlob1");
    const auto tryAllRoads = [&] {
        const std::string before = shown();
        EXPECT_NE(before.find("-Next"), std::string::npos);
        key(Qt::Key_Return);
        key(Qt::Key_Enter);
        key(Qt::Key_N, Qt::AltModifier);
        key(Qt::Key_S, Qt::AltModifier);
        click("cmdNext");
        EXPECT_EQ(shown(), before);
    };
    tryAllRoads();
    fillHeights();
    type("txtGlob1", "0");
    key(Qt::Key_Return); // open by now, but a height of 0 is refused
    EXPECT_EQ(messages.take(), "Torvik|48|The Safe Height for Rapids may not be zero");
    EXPECT_EQ(focus(), "txtGlob1");
    QTest::keyClicks(&find<QLineEdit>("txtGlob1"), "5");
    key(Qt::Key_Return);
    EXPECT_EQ(shown(), "picDetails Back -Next");
    tryAllRoads();
}

TEST_F(FrmMainTest, AnEnterKeyHeldDownIsNoSecondStep) {
    startDrawing();
    fillHeights();
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    QApplication::sendEvent(QApplication::focusWidget(), &held);
    EXPECT_EQ(shown(), "picGlobals Back Next");
}

TEST_F(FrmMainTest, BackFromStepTwoKeepsTheAnswersForTheSameDrawing) {
    enum class Then { same, changed, otherFirst };
    const std::pair<Then, const char*> rows[] = {
        {Then::same, "70|6"}, {Then::changed, "50|"}, {Then::otherFirst, "50|"}};
    const auto other = folder.file("other.plt", "SP1;PD40,40;");
    startDrawing();
    for (const auto& [then, heights] : rows) {
        type("txtGlob0", "70");
        type("txtGlob1", "6");
        answers.expect("dlgOpen", DialogAnswers::cancel);
        messages.answers = {buttonYes};
        click("cmdBack");
        EXPECT_EQ(messages.take(), "Open file|36|Are you sure you want to open a file\nwithout "
                                   "saving the current file as G-codes?");
        EXPECT_EQ(shown(), "picOpening Start");
        EXPECT_FALSE(find<QLabel>("lblColours").isVisible());
        EXPECT_TRUE(job.gblnUnsaved);
        if (then == Then::changed)
            drawing = folder.file("drawing.plt", std::string(threePens) + "PD10,10;");
        job.gblnUnsaved = false;
        if (then == Then::otherFirst) {
            open(other);
            job.gblnUnsaved = false;
        }
        job.gintWizardStep = 1;
        open(drawing);
        EXPECT_EQ(text("txtGlob0") + "|" + text("txtGlob1"), heights);
        EXPECT_TRUE(find<QLabel>("lblColours").isVisible());
    }
}

TEST_F(FrmMainTest, KeptAnswersBringBackWhatThePenPagesHeld) {
    startDrawing();
    fillHeights();
    click("cmdNext");
    type("txtDet0", "4000");
    click("optCut1"); // left out, with what was typed
    job.gintOrder[1] = 4;
    job.gblnOrderSet = true;
    job.gstrHeader[headerDesigner] = "Jo";
    click("cmdBack");
    answers.expect("dlgOpen", DialogAnswers::file(drawing));
    messages.answers = {buttonYes};
    click("cmdBack");
    messages.take();
    EXPECT_EQ(shown(), "picGlobals Back Next");
    EXPECT_TRUE(job.gudtPens[1].blnOmit);
    EXPECT_EQ(job.gudtSettings[1].sngSpindleSpeed, 4000);
    EXPECT_EQ(job.gintOrder[1], 4);
    EXPECT_EQ(job.gstrHeader[headerDesigner], "Jo");
    EXPECT_EQ(find<QTreeWidget>("tvwColours").topLevelItem(0)->toolTip(0), "Black: left out");
    EXPECT_TRUE(find<QRadioButton>("optUnits0").isChecked());
}

TEST_F(FrmMainTest, ARefusedDrawingLeavesNothingBehind) {
    startSample("bracket");
    go(4);
    job.gblnUnsaved = false;
    const auto broken = folder.file("broken.plt", "SP9;PD10,10;");
    answers.expect("dlgOpen", DialogAnswers::file(broken));
    key(Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(errors.size(), 1U);
    errors.clear();
    EXPECT_EQ(shown(), "picOpening Start");
    EXPECT_EQ(caption(), "Torvik");
    EXPECT_EQ(treeRows(), 0);
    EXPECT_FALSE(job.gblnUnsaved);
    EXPECT_EQ(job.gstrPlotFile, "");
    window->resize(1300, 900);
    settle();
    EXPECT_FALSE(showsPicture());
    emit find<QMenu>("mnuFile").aboutToShow();
    ASSERT_EQ(find<QMenu>("mnuFileRecent").actions().size(), 1);
    EXPECT_TRUE(find<QMenu>("mnuFileRecent").actions()[0]->text().contains("bracket"));
}

TEST_F(FrmMainTest, ADrawingOfNothingIsToldAndGoesNoFurther) {
    const std::string told = "Torvik|48|This drawing holds nothing that can be milled:\n";
    startDrawing("SP1;PU10,10;SP0;");
    EXPECT_EQ(messages.take(), told + drawing.string());
    EXPECT_EQ(shown(), "picGlobals Back -Next");
    EXPECT_TRUE(showsPicture());
    fillHeights();
    click("cmdNext");
    EXPECT_EQ(messages.take(), told + drawing.string());
    EXPECT_EQ(shown(), "picGlobals Back Next");
}

TEST_F(FrmMainTest, OpenLeavesThePageAloneUntilAnotherDrawingIsIn) {
    const auto other = folder.file("OTHER.PLT", "SP3;PD40,40;");
    startSample("bracket");
    for (const int step : {2, 3, 4, 5, 6}) {
        go(step);
        if (step == 3)
            type("txtDet0", "3456");
        const std::string before = shown();
        messages.answers = {buttonNo};
        find<QAction>("mnuFileOpen").trigger();
        settle();
        messages.answers = {buttonYes};
        answers.expect("dlgOpen", DialogAnswers::cancel);
        find<QAction>("mnuFileOpen").trigger();
        settle();
        EXPECT_EQ(shown(), before);
        EXPECT_EQ(isFlashing(), step == 3);
        EXPECT_EQ(job.gstrPlotFile, drawing.string());
        if (step == 3) {
            EXPECT_EQ(text("txtDet0"), "3456");
        }
        messages.take();

        messages.answers = {buttonYes};
        answers.expect("dlgOpen", DialogAnswers::file(other));
        find<QAction>("mnuFileOpen").trigger();
        settle();
        EXPECT_EQ(shown(), "picGlobals Back -Next");
        EXPECT_FALSE(isFlashing());
        EXPECT_EQ(treeRows(), 1);
        EXPECT_EQ(caption(), "Torvik - importing from HPGL file " + other.string());
        messages.answers = {buttonYes};
        window->ReadFile(drawing);
        messages.take();
    }
}

TEST_F(FrmMainTest, RecentDrawingsAreOfferedNewestFirstWhileTheyExist) {
    const auto first = folder.file("Nuts & bolts.plt", "SP1;PD40,40;");
    const auto second = folder.file("second.plt", "SP1;PD40,40;");
    start();
    for (const auto& name : {first, second, first}) {
        open(name);
        job.gblnUnsaved = false;
        job.gintWizardStep = 1;
    }
    emit find<QMenu>("mnuFile").aboutToShow();
    QList<QAction*> entries = find<QMenu>("mnuFileRecent").actions();
    ASSERT_EQ(entries.size(), 2);
    EXPECT_EQ(entries[0]->text(), "&1  Nuts && bolts.plt");
    EXPECT_EQ(entries[1]->toolTip().toStdString(), second.string());
    entries[1]->trigger();
    settle();
    EXPECT_EQ(job.gstrPlotFile, second.string());
    std::filesystem::remove(second);
    emit find<QMenu>("mnuFile").aboutToShow();
    EXPECT_EQ(find<QMenu>("mnuFileRecent").actions().size(), 1);
}

TEST_F(FrmMainTest, ADroppedDrawingIsOpenedAndOnlyOneAtATime) {
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
        return enter.isAccepted();
    };
    drawing = folder.file("Dropped.PLT", threePens);
    const auto text = folder.file("notes.txt", "");
    EXPECT_FALSE(drop({text}));
    EXPECT_FALSE(drop({drawing, drawing}));
    settle();
    EXPECT_EQ(shown(), "picOpening Start");
    EXPECT_TRUE(drop({drawing}));
    settle();
    EXPECT_EQ(job.gstrPlotFile, drawing.string());
    // While a dialog waits, what is dropped or asked for is passed over.
    messages.answers = {buttonYes};
    answers.expect("dlgOpen", [&](QDialog& dialog) {
        drop({text});
        drop({drawing});
        find<QAction>("mnuFileOpen").trigger();
        settle();
        dialog.reject();
    });
    find<QAction>("mnuFileOpen").trigger();
    settle();
    messages.take();
}

TEST_F(FrmMainTest, ClosingAsksWhileNothingIsWritten) {
    start();
    const std::pair<const char*, std::function<void()>> ways[] = {
        {"the window's own box", [&] { window->close(); }},
        {"the menu", [&] { find<QAction>("mnuFileExit").trigger(); }},
        {"its key", [&] { key(Qt::Key_Q, Qt::ControlModifier); }},
    };
    const std::string question = "Exit from Torvik|36|Are you sure you want to close without "
                                 "saving\nthe current file as G-codes?";
    for (const auto& [name, close] : ways) {
        job.gblnUnsaved = true;
        messages.answers = {buttonNo};
        close();
        settle();
        EXPECT_EQ(messages.take(), question) << name;
        EXPECT_TRUE(window->isVisible()) << name;
        EXPECT_EQ(std::exchange(shutdowns, 0), 0) << name;
    }
    messages.answers = {buttonYes};
    window->close();
    EXPECT_EQ(messages.take(), question);
    EXPECT_EQ(shutdowns, 1);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(FrmMainTest, ClosingEndsAtOnceWhereThereIsNothingToLose) {
    start();
    EXPECT_TRUE(window->CheckClose());
    EXPECT_EQ(shutdowns, 1);
}

TEST_F(FrmMainTest, ArrowKeysMoveTheOrderWhateverHasTheFocusAndOnlyThere) {
    startSample("bracket");
    go(3);
    find<QPushButton>("cmdNext").setFocus();
    key(Qt::Key_Down);
    go(4);
    const auto order = [&] {
        return label("lblOrd1") + " " + label("lblOrd2") + " " + label("lblOrd3");
    };
    EXPECT_EQ(order(), "Red Blue Black");
    find<QPushButton>("cmdNext").setFocus();
    key(Qt::Key_Down);
    EXPECT_EQ(order(), "Blue Red Black");
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    EXPECT_EQ(order(), "Blue Black Red");
    EXPECT_EQ(focus(), "cmdNext");
    key(Qt::Key_Up);
    EXPECT_EQ(order(), "Blue Red Black");
    click("cmdNext");
    EXPECT_EQ(job.gintOrder[1], 4);
    EXPECT_EQ(job.gintOrder[3], 1);
}

TEST_F(FrmMainTest, AMachinedGroupWithoutAToolIsNamedBeforeThePiece) {
    startSample("bracket");
    go(4);
    workshop.tools.gintToolCount = 6; // the drill of 8 mm is gone
    click("cmdNext");
    EXPECT_EQ(messages.take(), "Torvik|48|Please choose a tool for the 8.0 mm Red holes");
    EXPECT_EQ(shown(), "picOrder Back Next");
}

TEST_F(FrmMainTest, AfterToolsWereDeletedTheGroupsConcernedAreNamed) {
    startSample("bracket");
    go(3, "8.0 mm");
    const auto inDialog = [&](int row, const char* button) {
        return [this, row, button](QDialog& dialog) {
            dialog.findChild<QTableWidget*>()->selectRow(row);
            messages.answers = {buttonYes};
            DialogAnswers::press("cmdDelete")(dialog);
            dialog.findChild<QTableWidget*>()->selectRow(0);
            DialogAnswers::press(button)(dialog);
        };
    };
    // Tool 6, at place 6, is the one of the 5 mm holes; the groups at places behind it move too.
    answers.expect("frmToolSelect", inDialog(5, "cmdCancel"));
    click("cmdTool");
    std::string told = messages.take();
    EXPECT_NE(told.find("Torvik|48|After the deletion these have another tool, or none. Please "
                        "check them:\nthe 5.0 mm Red holes\nthe 8.0 mm Red holes"),
              std::string::npos)
        << told;
    EXPECT_EQ(told.find("Black"), std::string::npos);
    EXPECT_EQ(shown(), "picDetails Back Next");
    // The group on show is not named where the user has just chosen its tool.
    answers.expect("frmToolSelect", inDialog(0, "cmdOk"));
    messages.answers = {buttonYes};
    click("cmdTool");
    told = messages.take();
    EXPECT_NE(told.find("the 5.0 mm Red holes"), std::string::npos) << told;
    EXPECT_EQ(told.find("the 8.0 mm Red holes\n"), std::string::npos) << told;
}

TEST_F(FrmMainTest, AStepThatIsRefusedKeepsTheLinesBlinking) {
    startSample("bracket");
    go(3);
    type("txtDet4", "9");
    click("cmdNext");
    EXPECT_EQ(messages.take(),
              "Torvik|48|The Maximum Depth per Pass may not be greater than the Final Depth");
    EXPECT_EQ(label("lblDetTitle"), "Please give the details for the Black lines");
    EXPECT_EQ(text("txtDet4"), "9");
    EXPECT_TRUE(isFlashing());
}

TEST_F(FrmMainTest, HelpOpensAtTheControlElseAtTheStep) {
    start();
    key(Qt::Key_F1);
    EXPECT_EQ(topics.back(), 1);
    window.reset();
    startSample("bracket");
    const std::tuple<int, const char*, int> rows[] = {{2, "txtGlob2", 2}, {3, "txtDet1", 90},
                                                      {3, "cmdBack", 3},  {4, "cmdUp", 4},
                                                      {5, "txtHead8", 5}, {6, "optOutput2", 6}};
    for (const auto& [step, control, topic] : rows) {
        go(step);
        find<QWidget>(control).setFocus();
        key(Qt::Key_F1);
        EXPECT_EQ(topics.back(), topic) << control;
    }
    find<QAction>("mnuHelpAbout").trigger();
    settle();
    EXPECT_EQ(abouts, 1);
}

TEST_F(FrmMainTest, EveryControlHasItsNameAndNoKeyTwoMeanings) {
    startSample("bracket");
    for (int step = 2; step <= 6; ++step) {
        go(step);
        std::map<QChar, std::string> keys;
        const auto take = [&](const QString& text, const QString& name) {
            const qsizetype at = QString(text).replace("&&", "  ").indexOf('&');
            if (at < 0)
                return;
            const auto [other, isNew] = keys.emplace(text[at + 1].toUpper(), name.toStdString());
            EXPECT_TRUE(isNew) << name.toStdString() << " and " << other->second << ", " << step;
        };
        for (const QAction* menu : window->findChild<QMenuBar*>()->actions())
            take(menu->text(), menu->menu()->objectName());
        for (QWidget* const control : window->findChildren<QWidget*>()) {
            if (!control->isVisible())
                continue;
            const auto* const button = qobject_cast<QAbstractButton*>(control);
            const auto* const caption = qobject_cast<QLabel*>(control);
            if (button != nullptr)
                take(button->text(), button->objectName());
            else if (caption != nullptr && caption->buddy() != nullptr)
                take(caption->text(), caption->objectName());
            if (button == nullptr && qobject_cast<QLineEdit*>(control) == nullptr)
                continue;
            EXPECT_NE(control->objectName(), "") << control->metaObject()->className();
            EXPECT_TRUE(!control->accessibleName().isEmpty() ||
                        (button != nullptr && !button->text().isEmpty()))
                << control->objectName().toStdString();
        }
    }
}

TEST_F(FrmMainTest, TheTabKeyGoesDownThePageAndThenToTheButtons) {
    startSample("nameplate");
    const std::pair<int, std::vector<std::string>> rows[] = {
        {2, {"txtGlob0", "txtGlob1", "txtGlob2", "optUnits0", "cmdBack", "cmdNext"}},
        {3,
         {"optCut0", "optCut1", "cmdTool", "txtDet0", "txtDet1", "txtDet2", "txtDet3", "txtDet4",
          "cmdBack", "cmdNext"}},
        {4, {"picOrd1", "picOrd2", "cmdUp", "cmdBack", "cmdNext"}},
        {5,
         {"txtHead0", "txtHead1", "txtHead2", "txtHead3", "txtHead4", "txtHead5", "txtHead6",
          "txtHead7", "txtHead8", "cmdBack", "cmdNext"}},
        {6, {"optOutput4", "cmdDriveA", "cmdBack", "cmdNext"}},
    };
    for (const auto& [step, expected] : rows) {
        go(step);
        find<QWidget>(expected.front()).setFocus();
        std::vector<std::string> seen;
        do {
            seen.push_back(focus());
            key(Qt::Key_Tab);
        } while (std::ranges::find(seen, focus()) == seen.end());
        EXPECT_EQ(seen, expected) << step;
    }
}

} // namespace
} // namespace torvik
