// SPDX-License-Identifier: MIT
#include "tests/wizard/pen_page_fixture.h"
#include "wizard/globals_page.h"

namespace torvik {
namespace {

class GlobalsPageTest : public testing::Test {
protected:
    GlobalsPageTest() {
        workshop.job.gintWizardStep = 2;
        page.show();
        QApplication::setActiveWindow(&page);
    }
    QLineEdit& box(int i) { return *page.findChild<QLineEdit*>("txtGlob" + QString::number(i)); }
    void type(int i, const char* keys) {
        box(i).setFocus();
        box(i).selectAll();
        QTest::keyClicks(&box(i), keys);
    }
    void choose(int unit) {
        QTest::mouseClick(page.findChild<QRadioButton*>("optUnits" + QString::number(unit)),
                          Qt::LeftButton, {}, QPoint(8, 8));
    }
    std::string texts() {
        std::string all;
        for (int i = 0; i < 3; ++i)
            all += (i == 0 ? "" : "|") + box(i).text().toStdString();
        return all;
    }

    NotingHost host;
    ScriptedMessages messages;
    NoRegistry registry;
    Logger logger;
    Workshop workshop{registry, logger, messages};
    Job& job = workshop.job;
    GlobalsPage page{workshop, host};
};

TEST_F(GlobalsPageTest, NextOpensWhenEveryHeightIsFilledAndAUnitChosen) {
    page.enter();
    EXPECT_FALSE(host.next);
    EXPECT_TRUE(box(0).hasFocus());
    type(0, "50");
    type(1, "5");
    type(2, "2");
    EXPECT_FALSE(host.next);
    choose(0);
    EXPECT_TRUE(host.next);
    box(1).clear();
    EXPECT_FALSE(host.next);
    type(1, "-");
    EXPECT_TRUE(host.next);
    box(2).clear();
    page.enter();
    EXPECT_TRUE(box(2).hasFocus());
}

TEST_F(GlobalsPageTest, HandlersActOnTheirOwnStepOnly) {
    job.gintWizardStep = 3;
    host.next = true;
    box(0).setText("1");
    choose(1);
    EXPECT_TRUE(host.next);
}

TEST_F(GlobalsPageTest, HeightsAreStoredAsTypedAndShownAsWholeMillimetres) {
    struct Row {
        const char* name;
        std::array<const char*, 3> typed;
        std::array<float, 3> stored;
        const char* shown;
    };
    const Row rows[] = {
        {"whole heights stay", {"50", "5", "2"}, {50, 5, 2}, "50|5|2"},
        {"half a millimetre is rounded when shown",
         {"50.4", "2.5", "-5"},
         {50.4F, 2.5F, -5},
         "50|3|-5"},
        {"no number is 0, and 0 is an empty box", {"-", ".", "0"}, {0, 0, 0}, "||"},
        {"a comma is discarded", {"1,5", "2", "3"}, {15, 2, 3}, "15|2|3"},
        {"what can be read counts", {"7-2", "1.2.3", "4"}, {7, 1.2F, 4}, "7|1|4"},
    };
    for (const Row& row : rows) {
        for (int i = 0; i < 3; ++i)
            type(i, row.typed[static_cast<std::size_t>(i)]);
        page.SaveGlobals();
        EXPECT_EQ((std::array{job.gsngToolChangeHeight, job.gsngSafeHeight, job.gsngRapidDownTo}),
                  row.stored)
            << row.name;
        page.RestoreGlobals();
        EXPECT_EQ(texts(), row.shown) << row.name;
    }
}

TEST_F(GlobalsPageTest, TheUnitDecidesFactorAndCaption) {
    choose(0);
    page.SaveGlobals();
    EXPECT_EQ(job.gsngFeedFactor, 1);
    EXPECT_EQ(job.gstrFeedUnits, "(mm/min)");
    choose(1);
    page.SaveGlobals();
    EXPECT_EQ(job.gsngFeedFactor, 60);
    EXPECT_EQ(job.gstrFeedUnits, "(mm/sec)");
    for (const float factor : {1.0F, 60.0F, 0.0F}) {
        job.gsngFeedFactor = factor;
        page.RestoreGlobals();
        EXPECT_EQ(page.findChild<QRadioButton*>("optUnits0")->isChecked(), factor == 1);
        EXPECT_EQ(page.findChild<QRadioButton*>("optUnits1")->isChecked(), factor != 1);
    }
}

TEST_F(GlobalsPageTest, TheFirstHeightThatIsZeroIsNamedAndSelected) {
    struct Row {
        const char* name;
        std::array<const char*, 3> texts;
        const char* message; // empty: the page may be left
        int box;
    };
    const Row rows[] = {
        {"all heights", {"50", "5", "2"}, "", 0},
        {"a negative height passes", {"50", "-5", "2"}, "", 0},
        {"the first of two", {"0", "0", "2"}, "The Tool Change Height may not be zero", 0},
        {"the safe height", {"50", "0.0", "2"}, "The Safe Height for Rapids may not be zero", 1},
        {"text that is no number", {"50", "5", "x"}, "The Rapid Down To may not be zero", 2},
        {"a number without bounds",
         {"50", "1e39", "2"},
         "The Safe Height for Rapids is too large a number",
         1},
    };
    for (const Row& row : rows) {
        for (int i = 0; i < 3; ++i)
            box(i).setText(row.texts[static_cast<std::size_t>(i)]);
        const bool valid = page.blnGlobalsValid();
        const std::string told = messages.take();
        EXPECT_EQ(valid, *row.message == '\0') << row.name;
        if (valid)
            continue;
        EXPECT_EQ(told, std::string("Torvik|48|") + row.message) << row.name;
        EXPECT_TRUE(box(row.box).hasFocus()) << row.name;
        EXPECT_EQ(box(row.box).selectedText(), box(row.box).text()) << row.name;
    }
}

TEST_F(GlobalsPageTest, AHeightThatCannotBeStoredLeavesTheJobsAlone) {
    job.gsngSafeHeight = 4;
    box(1).setText("1e39");
    page.SaveGlobals();
    EXPECT_EQ(job.gsngSafeHeight, 4);
    EXPECT_EQ(messages.take(), "");
    EXPECT_EQ(box(1).text(), "1e39");
}

} // namespace
} // namespace torvik
