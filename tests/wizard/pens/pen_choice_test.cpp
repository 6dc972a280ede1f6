// SPDX-License-Identifier: MIT
// The choice on a pen page, its tool, and the way through the pens.
#include "tests/wizard/pens/pen_page_fixture.h"

namespace torvik {
namespace {

TEST_F(PenPageTest, ChoosingToMachineLeadsToTheTool) {
    open();
    job.answers.gblnOrderSet = true;
    fill({"12000", "600"});
    QTest::keyClick(&page, Qt::Key_C, Qt::AltModifier);
    QTRY_VERIFY(option(0).isChecked());
    QTRY_COMPARE(QApplication::focusWidget(), &tool());
    EXPECT_EQ(state(), "machine  tool");
    EXPECT_EQ(rows(), "12000 600 150 ~ ~ (~) (~)");
    EXPECT_FALSE(job.answers.gblnOrderSet);
    host.takeCalls();
    QTest::keyClick(&tool(), Qt::Key_Space);
    EXPECT_EQ(host.takeCalls(), "tools ");
    page.ToolSelection(1);
    EXPECT_EQ(state(), "machine 7 tool");
    EXPECT_EQ(label("lblToolType") + " " + label("lblToolDiameter"), "Slot drill 6.000");
    EXPECT_EQ(QApplication::focusWidget(), &box(3));
}

TEST_F(PenPageTest, ALeftOutPenKeepsItsSettings) {
    open();
    job.answers.gudtSettings[1] = cut();
    host.nextChanges = 0;
    page.ShowPen(0);
    EXPECT_EQ(rows(), "12000 600 150 3.00 1.00 0.20 300");
    EXPECT_EQ(state(), "machine 7 tool next");
    EXPECT_EQ(host.nextChanges, 1); // its own writes are not followed one by one
    type(3, "4");
    type(5, "0");
    choose(1);
    EXPECT_EQ(rows(), "(12000) (600) (150) (4.00) (1.00) (0) (~)");
    EXPECT_EQ(state(), "leave  next");
    EXPECT_EQ(QColor(192, 192, 192),
              page.findChild<QLabel*>("lblToolType")->palette().color(QPalette::Window));
    for (int beat = 0; beat < 3; ++beat) { // at once, and at every beat
        EXPECT_FALSE(host.shown);
        page.FlashLines();
    }
    EXPECT_EQ(node(0).image, imageOmitted + 1);
    EXPECT_TRUE(page.SaveDetails() && page.blnInputValid());
    choose(0);
    EXPECT_EQ(rows(), "12000 600 150 4.00 1.00 0 (~)");
    EXPECT_EQ(state(), "machine 7 tool next");
    EXPECT_EQ(node(0).image, imageCut + 1);
}

TEST_F(PenPageTest, TheLastMachinedPenCannotBeLeftOut) {
    open("SP5;PU0,0;PD400,0;");
    EXPECT_FALSE(option(1).isEnabled());
    open();
    choose(1);
    page.ShowPen(1);
    EXPECT_TRUE(option(1).isEnabled());
    choose(1);
    page.ShowPen(1);
    EXPECT_EQ(label("lblDetTitle"), "Please give the details for the Blue lines");
    EXPECT_FALSE(option(1).isEnabled());
    choose(1);
    EXPECT_EQ(state(), "- ");
    page.ToolSelection(0);
    EXPECT_EQ(state(), "machine  tool");
    EXPECT_FALSE(job.answers.gudtPens[4].blnOmit);
}

TEST_F(PenPageTest, CirclesAreDrilledSizeBySize) {
    open();
    page.ShowPen(1);
    EXPECT_EQ(host.blinking, (std::vector<std::int16_t>{2, 3, 4}));
    messages.answers = {buttonYes};
    choose(0);
    EXPECT_EQ(messages.take(), "Drilling|36|Would you like to cut the circles as drilled holes?");
    EXPECT_EQ(label("lblDetTitle"), "Please give the details for the 3.0 mm diam. holes");
    EXPECT_EQ(host.blinking, (std::vector<std::int16_t>{2, 4}));
    EXPECT_EQ(state(), "machine  tool");
    EXPECT_TRUE(node(1).bold && node(1).expanded && node(1).children[0].bold);
    EXPECT_FALSE(node(0).bold || node(1).children[1].bold);
    EXPECT_EQ(node(1).image, imageCircles + 2);
    page.ToolSelection(2);

    page.ShowPen(1);
    EXPECT_EQ(label("lblDetTitle"), "Please give the details for the 5.0 mm diam. holes");
    EXPECT_EQ(label("lblPenPlace"), "Pen 2 of 3, hole size 2 of 2");
    EXPECT_EQ(host.blinking, (std::vector<std::int16_t>{3}));
    EXPECT_EQ(state(), "- ");
    choose(0);
    EXPECT_EQ(state(), "machine  tool");
    page.ToolSelection(3);
    EXPECT_EQ(messages.take(), ""); // a hole size is not asked about, nor is 0.01 mm
    messages.answers = {buttonNo};
    host.calls.clear();
    page.ToolSelection(1);
    EXPECT_EQ(messages.take(),
              "Torvik|36|You have chosen a 6.00 mm diameter tool to drill a 5.00 mm diameter "
              "circle.\nAre you sure you want to use this tool?");
    EXPECT_EQ(host.takeCalls(), "tools ");
    page.ToolSelection(0);
    EXPECT_EQ(label("lblToolNote"), "Not the right size: 6.00 mm for a 5.00 mm hole");
    page.ToolSelection(3);
    EXPECT_TRUE(page.findChild<QLabel*>("lblToolNote")->isHidden());
    page.SetTool(1);

    choose(1); // left out as a whole, from its second size
    EXPECT_EQ(job.position.gintCurrentSettings, 2);
    choose(0);
    EXPECT_EQ(job.position.gintCurrentSettings, 4);
    EXPECT_EQ(state(), "machine 7 tool");
}

TEST_F(PenPageTest, CirclesThatAreCutAreOnePen) {
    open();
    page.ShowPen(1);
    for (const int answer : {buttonNo, buttonCancel}) {
        messages.answers = {buttonYes, answer};
        choose(0);
        page.ShowPen(-1);
        page.ShowPen(1);
        choose(0); // selected already, asked again
        EXPECT_EQ(label("lblDetTitle"), "Please give the details for the Red lines");
        EXPECT_EQ(job.position.gintCurrentSettings, 2);
        EXPECT_EQ(host.blinking, (std::vector<std::int16_t>{2, 3, 4}));
        EXPECT_EQ(node(1).image, imageCut + 2);
        EXPECT_FALSE(node(1).expanded || job.answers.gudtPens[2].blnDrill);
        EXPECT_EQ(state(), "machine  tool");
    }
}

TEST_F(PenPageTest, TheOwnPageOfADrilledPenAsksForNothing) {
    open();
    job.answers.gudtPens[2].blnDrill = true;
    job.answers.gudtSettings[3] = drill(2);
    job.answers.gblnOrderSet = true;
    page.ShowPen(1);
    EXPECT_EQ(label("lblDetTitle") + rows(), "Please give the details for the Red holes");
    EXPECT_TRUE(peck().isHidden() && tool().isHidden());
    EXPECT_TRUE(option(0).isChecked() && host.next);
    EXPECT_EQ(host.blinking, (std::vector<std::int16_t>{2, 3, 4}));
    EXPECT_TRUE(page.SaveDetails() && page.blnInputValid());
    page.ShowPen(1);
    EXPECT_EQ(rows(), "2000 100 8.00 0.50 2.00");
    EXPECT_EQ(state(), "machine 3 tool next");
    EXPECT_EQ(messages.take(), "");
    EXPECT_TRUE(job.answers.gblnOrderSet);
}

TEST_F(PenPageTest, ThePensEndAtBothSides) {
    open();
    page.ShowPen(1);
    page.ShowPen(1);
    host.calls.clear();
    page.ShowPen(1);
    EXPECT_EQ(host.takeCalls(), "stop tree lines forward ");
    EXPECT_EQ(job.position.gintLastPen, 4);
    job.position.gintCurrentPen = job.position.gintLastPen;
    page.ShowPen(0);
    EXPECT_EQ(label("lblDetTitle"), "Please give the details for the Blue lines");
    page.ShowPen(-1);
    page.ShowPen(-1);
    host.calls.clear();
    page.ShowPen(-1);
    EXPECT_EQ(host.takeCalls(), "stop tree clear lines backward ");
    EXPECT_EQ(job.position.gintCurrentPen, 0);
}

TEST_F(PenPageTest, ACancelledToolSelection) {
    const struct {
        const char* says;
        int pages; // forward to the page
        bool drilled;
        std::int16_t group; // that has tool 1, 0 for none
        const char* state;
        bool leftOut;
        const char* note = "";
    } cases[] = {
        {"keeps the tool that is there", 0, false, 1, "machine 7 tool", false},
        {"leaves out a pen without a tool", 0, false, 0, "leave  next", true,
         "No tool was chosen, so the Black lines are left out"},
        {"asks circles that are cut again", 1, false, 0, "machine  tool", false},
        {"leaves out a pen at its first hole size", 2, true, 0, "leave  next", true,
         "No tool was chosen, so the Red holes are left out"},
        {"asks a later hole size again", 3, true, 0, "machine  tool", false},
    };
    for (const auto& [says, pages, drilled, group, expected, leftOut, note] : cases) {
        job = {};
        open();
        job.answers.gudtPens[2].blnDrill = drilled;
        for (int i = 0; i < pages; ++i)
            page.ShowPen(1);
        messages.answers = {buttonNo};
        choose(0);
        messages.answers.clear();
        if (group > 0)
            page.SetTool(1);
        type(0, "12000");
        const Settings& typed = job.answers.gudtSettings[job.position.gintCurrentSettings];
        host.focus = false;
        page.ToolSelection(0);
        EXPECT_EQ(state(), expected) << says;
        EXPECT_EQ(label("lblToolNote"), note) << says;
        EXPECT_EQ(host.focus, leftOut) << says;
        EXPECT_EQ(job.answers.gudtPens[job.position.gintCurrentPen].blnOmit, leftOut) << says;
        EXPECT_EQ(typed.sngSpindleSpeed, 12000) << says;
    }
}

TEST_F(PenPageTest, ADeletedToolIsNoTool) {
    open();
    job.answers.gudtSettings[1] = cut();
    page.ShowPen(0);
    workshop.tools.gintToolCount = 0;
    page.ToolSelection(0);
    EXPECT_EQ(state(), "- ");
    EXPECT_EQ(rows(), "12000 600 150 3.00 1.00 0.20 300");
}

} // namespace
} // namespace torvik
