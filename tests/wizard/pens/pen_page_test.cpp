// SPDX-License-Identifier: MIT
// The settings of a pen page, driven through its controls.
#include "forms/quiet_line.h"
#include "tests/wizard/pens/pen_page_fixture.h"
#include "wizard/pens/pen_diagram.h"

#include <QScreen>

#include <functional>

namespace torvik {
namespace {

TEST_F(PenPageTest, UnitsFollowTheChoiceAndTheFormOfThePage) {
    open();
    EXPECT_EQ(label("lblDet1"), "Horizontal Feed Rate for Cutting (mm/\u2060min)");
    EXPECT_TRUE(peck().isHidden());
    job.answers.gudtPens[2].blnDrill = true;
    useSeconds(true);
    page.ShowPen(1);
    page.ShowPen(1);
    EXPECT_EQ(label("lblDet1") + label("lblUnit1"), "Drilling Feed Rate (mm/\u2060sec)mm/sec");
    EXPECT_EQ(box(1).property("helpContext").toInt(), 95);
    EXPECT_FALSE(peck().isHidden());
    EXPECT_EQ(option(0).text() + option(1).text(),
              "&Drill the Red holesDo NO&T drill the Red holes");
    EXPECT_EQ(option(1).property("helpContext").toInt(), 52);
}

TEST_F(PenPageTest, ThePictureFollowsTheFocus) {
    open();
    page.SetTool(1);
    const auto& diagram = *static_cast<PenDiagram*>(page.findChild<QWidget*>("picCut"));
    for (const std::size_t row : {rowDepth, rowPass, rowFeed}) {
        box(static_cast<int>(row)).setFocus();
        EXPECT_EQ(diagram.marked(), row);
    }
    option(0).setFocus();
    EXPECT_FALSE(diagram.marked());
}

TEST_F(PenPageTest, TypingFillsTheRowsThatFollow) {
    open();
    EXPECT_EQ(rows(), "~ ~ ~ ~ ~ (~) (~)");
    page.SetTool(1);
    EXPECT_EQ(state(), "machine 7 tool");
    const struct {
        const char* says;
        int row;
        const char* keys;
        const char* rows;
        bool next;
    } steps[] = {
        {"the speed has no followers", 0, "12000", "12000 ~ ~ ~ ~ (~) (~)", false},
        {"the vertical feed may be typed", 2, "100", "12000 ~ 100 ~ ~ (~) (~)", false},
        {"a quarter of the cutting feed overwrites it", 1, "800", "12000 800 200 ~ ~ (~) (~)",
         false},
        {"one depth alone opens nothing", 3, "3", "12000 800 200 3 ~ (~) (~)", false},
        {"one pass has no final pass", 4, "3", "12000 800 200 3 3 (~) (~)", true},
        {"several have one, with half the feed", 4, "1", "12000 800 200 3 1 0.15 400", true},
        {"a final pass of 0 needs no feed", 5, "0", "12000 800 200 3 1 0 (~)", true},
        {"a feed of 0 has no quarter", 1, "0", "12000 0 200 3 1 0 (~)", true},
        {"a final pass without a feed to halve", 5, "0.2", "12000 0 200 3 1 0.2 0", true},
        {"an emptied speed closes Next", 0, "\b", "~ 0 200 3 1 0.2 0", false},
        {"an emptied final pass is the usual one", 5, "\b", "~ 0 200 3 1 0.15 0", false},
    };
    for (const auto& [says, row, keys, expected, next] : steps) {
        type(row, keys);
        EXPECT_EQ(rows(), expected) << says;
        EXPECT_EQ(host.next, next) << says;
    }
    EXPECT_EQ(box(5).selectedText(), "0.15"); // typing goes on over it
    paste(1, "1e39");                         // has no quarter
    EXPECT_EQ(rows(), "~ 1e39 200 3 1 0.15 0");
    useSeconds(true);
    type(1, "10.00");
    EXPECT_EQ(box(2).text(), "2.50");
}

TEST_F(PenPageTest, ALineSaysWhatIsMissingAndWhatMakesNoSense) {
    open();
    job.answers.gstrHeader[headerBilletZ] = "5";
    const auto said = [this] {
        return page.findChild<QuietLine*>("lblQuietPen")->text().toStdString();
    };
    EXPECT_EQ(said(), "Choose above what is to be done with the Black lines");
    choose(0);
    EXPECT_EQ(said(), "Choose a tool");
    page.SetTool(2);
    EXPECT_EQ(said(),
              "Spindle Speed is empty\nA Drill cannot cut the Black lines: it is made to go "
              "straight down and breaks on its way sideways.");
    page.SetTool(1);
    fill({"12000", "600", "150", "9"});
    const std::string deep = "The depth of the Black lines is 9.00 mm, but the billet is only 5.00 "
                             "mm thick. The tool would cut the table.";
    EXPECT_EQ(said(), "Maximum Depth per Pass is empty\n" + deep);
    type(4, "3");
    EXPECT_EQ(said(), deep);
    choose(1);
    EXPECT_EQ(said(), "");
    job.answers.gudtPens[2].blnDrill = true;
    page.ShowPen(1);
    page.ShowPen(1);
    page.SetTool(1); // too wide, as is told beside the tool
    peck().click();
    EXPECT_EQ(said(), "Spindle Speed is empty");
    fill({"2000", "100", "4", "0"});
    EXPECT_EQ(said(), "Peck Distance is empty");
    peck().click();
    EXPECT_EQ(said(), "");
}

TEST_F(PenPageTest, AnEditIsOneChange) {
    open();
    job.answers.gudtSettings[1] = cut(); // 12000 600 150 3.00 1.00 0.20 300
    const struct {
        const char* says;
        std::vector<std::pair<int, const char*>> typed;
        const char* rows;
    } edits[] = {
        {"a depth that passes through the other", {{3, "15"}}, "12000 600 150 15 1.00 0.20 300"},
        {"a pass depth that begins with 0", {{4, "0.5"}}, "12000 600 150 3.00 0.5 0.20 300"},
        {"no final pass stays none", {{5, "0"}, {4, "3\b2"}}, "12000 600 150 3.00 2 0 (~)"},
        {"a final pass retyped over 0", {{5, "0.3"}}, "12000 600 150 3.00 1.00 0.3 300"},
        {"leaving the box makes it final",
         {{4, "3"}, {0, "9"}, {4, "1"}},
         "9 600 150 3.00 1 0.15 300"},
        {"a chosen feed does not follow",
         {{6, "99"}, {1, "800"}},
         "12000 800 200 3.00 1.00 0.20 99"},
        {"a feed of 0 follows", {{6, "0"}, {1, "800"}}, "12000 800 200 3.00 1.00 0.20 400"},
        {"until the edit ends",
         {{6, "0"}, {1, "800"}, {0, "9"}, {1, "1000"}},
         "9 1000 250 3.00 1.00 0.20 400"},
        {"none where there is no final pass",
         {{5, "0"}, {1, "800"}},
         "12000 800 200 3.00 1.00 0 (~)"},
    };
    for (const auto& [says, typed, expected] : edits) {
        page.ShowPen(0);
        for (const auto& [row, keys] : typed)
            type(row, keys);
        EXPECT_EQ(rows(), expected) << says;
    }
}

TEST_F(PenPageTest, OnlyCharactersOfNumbersAreTaken) {
    open();
    const int right = box(0).mapTo(&page, box(0).rect().bottomRight()).x() + 100;
    page.move(page.screen()->availableGeometry().right() - right, 0); // no room beside the box
    type(0, "1,2e,3\b4");
    EXPECT_EQ(box(0).text(), "1.24");
    auto& hint = *box(0).findChild<QLabel*>("lblHint");
    EXPECT_EQ(hint.text(), "There is a point already");
    QTest::mouseDClick(&box(0), Qt::LeftButton);
    EXPECT_EQ(box(0).selectedText(), "1.24");
    box(0).deselect();
    paste(1, "1,5");
    EXPECT_EQ(box(1).text(), "1.5") << "never 15";
    QKeyEvent deleteKey(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier, "\x7f");
    box(0).setFocus();
    box(0).setCursorPosition(0);
    QApplication::sendEvent(&box(0), &deleteKey);
    QInputMethodEvent composed;
    composed.setCommitString("2-5");
    QApplication::sendEvent(&box(0), &composed);
    EXPECT_EQ(box(0).text(), ".24");
    EXPECT_EQ(hint.text(), "Only digits and the point");
    EXPECT_TRUE(hint.testAttribute(Qt::WA_TransparentForMouseEvents) &&
                hint.windowFlags().testFlag(Qt::WindowTransparentForInput));
    for (const auto* control : page.findChildren<QWidget*>())
        if (control->isVisible() && control->focusPolicy() != Qt::NoFocus) {
            const QRect area(control->mapToGlobal(QPoint()), control->size());
            EXPECT_FALSE(hint.geometry().intersects(area)) << control->objectName().toStdString();
        }
    box(1).setFocus();
    EXPECT_FALSE(hint.isVisible());
}

TEST_F(PenPageTest, LeavingABoxMeansGoingToAnotherControl) {
    open();
    page.SetTool(1);
    fill({"12000", "600", "100"});
    box(1).setFocus();
    for (const auto reason :
         {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason, Qt::MenuBarFocusReason}) {
        QFocusEvent event(QEvent::FocusOut, reason);
        QApplication::sendEvent(&box(1), &event);
        EXPECT_EQ(box(2).text(), "100") << reason;
    }
    QTest::keyClick(&box(1), Qt::Key_Tab);
    EXPECT_EQ(box(2).text(), "150");
}

TEST_F(PenPageTest, HandlersRestOnOtherSteps) {
    open();
    page.SetTool(1);
    fill({"12000", "600", "150", "3", "3"});
    job.gintWizardStep = 4;
    host.next = false;
    host.calls.clear();
    host.interval = 0;
    type(1, "800");
    choose(1);
    QTest::mouseClick(&tool(), Qt::LeftButton);
    page.FlashLines();
    EXPECT_EQ(box(2).text(), "150");
    EXPECT_FALSE(host.next || job.answers.gudtPens[1].blnOmit);
    EXPECT_EQ(host.calls + std::to_string(host.interval), "0");
}

TEST_F(PenPageTest, PeckingOpensAndEmptiesItsRow) {
    open();
    job.answers.gudtPens[2].blnDrill = true;
    page.ShowPen(1);
    page.ShowPen(1);
    EXPECT_EQ(rows(), "~ ~ ~ ~ (~)"); // no pecks are asked for
    type(3, "0");
    page.SetTool(2);
    EXPECT_EQ(rows(), "~ ~ ~ 0 (~)"); // what was typed stays ...
    page.ShowPen(0);
    EXPECT_EQ(rows(), "~ ~ ~ ~ (~)"); // ... but an unset zero is not shown
    fill({"2000", "100", "8", "0"});
    QTest::keyClick(&peck(), Qt::Key_Space);
    EXPECT_EQ(rows(), "2000 100 8 0 ~");
    EXPECT_FALSE(host.next);
    type(4, "2");
    EXPECT_TRUE(host.next && page.SaveDetails() && job.answers.gudtSettings[3].blnComplete);
    page.ShowPen(0);
    EXPECT_EQ(rows(), "2000 100 8.00 0 2.00"); // no dwell, said by a complete group
    QTest::keyClick(&peck(), Qt::Key_Space);
    EXPECT_EQ(rows(), "2000 100 8.00 0 (~)");
    EXPECT_TRUE(host.next);
}

TEST_F(PenPageTest, AFaultIsShownAtItsBox) {
    open();
    page.SetTool(1);
    fill({"12000", "600", "150", "2", "3"});
    EXPECT_TRUE(page.SaveDetails());
    EXPECT_FALSE(page.blnInputValid());
    EXPECT_EQ(messages.take(),
              "Torvik|48|The Maximum Depth per Pass may not be greater than the Final Depth");
    EXPECT_EQ(QApplication::focusWidget(), &box(4));
    EXPECT_EQ(box(4).selectedText(), "3");
    type(4, "2");
    EXPECT_TRUE(page.blnInputValid());
    EXPECT_EQ(messages.take(), "");
}

TEST_F(PenPageTest, ANumberThatCannotBeStoredStaysInItsBox) {
    open();
    page.SetTool(1);
    fill({"12000", "600", "150", "3"});
    paste(4, "1e39");
    host.calls.clear();
    const std::pair<const char*, std::function<void()>> ways[] = {
        {"leaving the page", [&] { EXPECT_FALSE(page.SaveDetails()); }},
        {"leaving the pen out", [&] { choose(1); }},
        {"choosing another tool", [&] { QTest::mouseClick(&tool(), Qt::LeftButton); }},
        {"another tool that comes all the same", [&] { page.SetTool(2); }},
    };
    for (const auto& [says, tryIt] : ways) {
        SCOPED_TRACE(says);
        tryIt();
        EXPECT_EQ(messages.take(),
                  "Torvik|48|The Maximum Depth per Pass is too large to be stored");
        EXPECT_EQ(box(4).selectedText(), "1e39");
        EXPECT_EQ(state(), "machine 7 tool next");
        EXPECT_EQ(job.answers.gudtSettings[1].sngDepth, 0);
        EXPECT_FALSE(job.answers.gudtPens[1].blnOmit);
    }
    EXPECT_EQ(job.answers.gudtSettings[1].intTool, 1);
    EXPECT_EQ(host.calls, "");
}

TEST_F(PenPageTest, LinesBlinkFromTheirHiddenShortBeatOn) {
    open();
    EXPECT_FALSE(host.shown);
    EXPECT_EQ(host.interval, 200);
    page.FlashLines();
    EXPECT_TRUE(host.shown);
    EXPECT_EQ(host.interval, 1600);
}

} // namespace
} // namespace torvik
