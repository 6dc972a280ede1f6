// SPDX-License-Identifier: MIT
// The rules of the pen pages, without a window.
#include "tests/job/drawing.h"
#include "wizard/pen_checks.h"
#include "wizard/pen_position.h"
#include "wizard/pen_values.h"

#include <gtest/gtest.h>

namespace torvik {
namespace {

const ToolList oneTool{{{7, "Drill", 6}}, 1, {}, 0};

Settings cutSettings(float depth, float pass, float finalPass, float finalFeed) {
    return {1, 12000, 600, finalFeed, 150, depth, pass, finalPass, 0, false, true};
}

Settings drillSettings(float depth, float peckDistance, float dwell, bool peck) {
    return {1, 2000, 0, 0, 90, depth, peckDistance, 0, dwell, peck, true};
}

std::string joined(const PenTexts& texts) {
    std::string all;
    for (const std::string& text : texts)
        all += (text.empty() ? "~" : text) + " ";
    all.pop_back();
    return all;
}

TEST(ShownTexts, SayOnlyTheZerosThatMeanSomething) {
    const auto incomplete = [](Settings settings) {
        settings.blnComplete = false;
        return settings;
    };
    const struct {
        const char* says;
        PenForm form;
        float factor;
        Settings settings;
        const char* texts;
    } rows[] = {
        {"an unset group is empty", PenForm::cutting, 1, {}, "~ ~ ~ ~ ~ ~ ~"},
        {"feeds in mm/min are whole", PenForm::cutting, 1, cutSettings(3, 1.125F, 0.2F, 300.5F),
         "12000 600 150 3.00 1.13 0.20 301"},
        {"feeds in mm/sec have two decimals", PenForm::cutting, 60, cutSettings(3, 1, 0.2F, 100),
         "12000 10.00 2.50 3.00 1.00 0.20 1.67"},
        {"no final pass, said by a complete group", PenForm::cutting, 1, cutSettings(3, 1, 0, 0),
         "12000 600 150 3.00 1.00 0 ~"},
        {"no final pass in one not complete", PenForm::cutting, 1,
         incomplete(cutSettings(3, 1, 0, 0)), "12000 600 150 3.00 1.00 ~ ~"},
        {"one pass has no final pass", PenForm::cutting, 1, cutSettings(3, 3, 0.2F, 300),
         "12000 600 150 3.00 3.00 ~ ~"},
        {"a feed that shows as 0 is empty", PenForm::cutting, 1, cutSettings(3, 1, 0.2F, 0.4F),
         "12000 600 150 3.00 1.00 0.20 ~"},
        {"no dwell, said by a complete group", PenForm::drilling, 60, drillSettings(8, 2, 0, true),
         "2000 1.50 8.00 0 2.00 ~ ~"},
        {"no dwell in one not complete", PenForm::drilling, 1,
         incomplete(drillSettings(8, 2, 0, true)), "2000 90 8.00 ~ 2.00 ~ ~"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(joined(shownTexts(row.settings, row.form, row.factor)), row.texts) << row.says;
    EXPECT_THROW(shownTexts({}, PenForm::cutting, 0), DivisionByZero);
}

TEST(StoreTexts, ReadsLeniently) {
    Settings cut;
    cut.intTool = 1;
    EXPECT_FALSE(storeTexts({"12000rpm", "10.00", "2,5", "3.5.1", "x", "0.2", "5"}, true,
                            PenForm::cutting, 60, oneTool, cut));
    EXPECT_EQ(cut.sngSpindleSpeed, 12000);
    EXPECT_EQ(cut.sngFeedHorizontal, 600);
    EXPECT_EQ(cut.sngFeedVertical, 120);
    EXPECT_EQ(cut.sngDepth, 3.5F);
    EXPECT_EQ(cut.sngDepthPerPass, 0);
    EXPECT_EQ(cut.sngFinalPassDepth, 0.2F);
    EXPECT_EQ(cut.sngFeedFinalPass, 300);
    EXPECT_FALSE(cut.blnPeck || cut.blnComplete);

    Settings hole = cut;
    EXPECT_FALSE(storeTexts({"2000", "1.5", "8", "0.5", "2", "9", "9"}, true, PenForm::drilling, 60,
                            oneTool, hole));
    EXPECT_EQ(hole.sngFeedVertical, 90);
    EXPECT_EQ(hole.sngDepth, 8);
    EXPECT_EQ(hole.sngDwell, 0.5F);
    EXPECT_EQ(hole.sngDepthPerPass, 2);
    EXPECT_EQ(hole.sngFinalPassDepth, 0.2F); // the cutting fields stay
    EXPECT_TRUE(hole.blnPeck && hole.blnComplete);

    // Too large for the field, for a number at all, and only when multiplied.
    for (const char* huge : {"1e39", "-1e999", "1e37"}) {
        Settings kept = hole;
        EXPECT_EQ(
            storeTexts({"1", huge, "1", "1", "1"}, false, PenForm::drilling, 60, oneTool, kept), 1U)
            << huge;
        EXPECT_TRUE(kept.sngSpindleSpeed == 2000 && kept.blnPeck) << huge;
    }
    EXPECT_EQ(cannotBeStored(PenForm::drilling, 1),
              "The Drilling Feed Rate is too large to be stored");
}

TEST(IsCompleteGroup, AsksForWhatTheFormNeeds) {
    const auto with = [](Settings settings, float Settings::*field, float value) {
        settings.*field = value;
        return settings;
    };
    const auto withTool = [](Settings settings, std::int16_t tool) {
        settings.intTool = tool;
        return settings;
    };
    const Settings cut = cutSettings(3, 1, 0.2F, 300);
    const Settings hole = drillSettings(8, 2, 0, true);
    const struct {
        const char* says;
        PenForm form;
        Settings settings;
        bool complete;
    } rows[] = {
        {"all of a cut", PenForm::cutting, cut, true},
        {"no tool", PenForm::cutting, withTool(cut, 0), false},
        {"a tool that the list does not have", PenForm::cutting, withTool(cut, 2), false},
        {"no speed", PenForm::cutting, with(cut, &Settings::sngSpindleSpeed, 0), false},
        {"no cutting feed", PenForm::cutting, with(cut, &Settings::sngFeedHorizontal, 0), false},
        {"a negative depth", PenForm::cutting, with(cut, &Settings::sngDepth, -1), false},
        {"no depth per pass", PenForm::cutting, with(cut, &Settings::sngDepthPerPass, 0), false},
        {"a final pass without a feed", PenForm::cutting, cutSettings(3, 1, 0.2F, 0), false},
        {"no final pass needs no feed", PenForm::cutting, cutSettings(3, 1, 0, 0), true},
        {"nor does one that never happens", PenForm::cutting, cutSettings(3, 3, 0.2F, 0), true},
        {"all of a hole, without dwell", PenForm::drilling, hole, true},
        {"no drilling feed", PenForm::drilling, with(hole, &Settings::sngFeedVertical, 0), false},
        {"pecks without a distance", PenForm::drilling, drillSettings(8, 0, 0, true), false},
        {"without pecks the depth is not asked", PenForm::drilling, drillSettings(0, 0, 0, false),
         true},
    };
    for (const auto& row : rows)
        EXPECT_EQ(isCompleteGroup(row.settings, row.form, oneTool), row.complete) << row.says;
}

TEST(InputFault, IsTheFirstOne) {
    constexpr auto cutting = PenForm::cutting;
    constexpr auto drilling = PenForm::drilling;
    const struct {
        const char* says;
        PenForm form;
        bool peck;
        PenTexts texts; // an empty one is closed
        std::size_t row;
        const char* message;
    } rows[] = {
        {"nothing wrong", cutting, false, {"1", "1", "1", "3", "3"}, 9, ""},
        {"speed",
         cutting,
         false,
         {"0", "0", "1", "3", "1"},
         0,
         "The Spindle Speed may not be zero"},
        {"no number",
         cutting,
         false,
         {"1", "x", "1", "3", "1"},
         1,
         "The Horizontal Feed Rate for Cutting may not be zero"},
        {"negative",
         cutting,
         false,
         {"1", "1", "-1", "3", "1"},
         2,
         "The Vertical Feed Rate into Material may not be zero"},
        {"depth", cutting, false, {"1", "1", "1", ".", "1"}, 3, "The Final Depth may not be zero"},
        {"pass",
         cutting,
         false,
         {"1", "1", "1", "3", "0"},
         4,
         "The Maximum Depth per Pass may not be zero"},
        {"no final pass", cutting, false, {"1", "1", "1", "3", "1", "0"}, 9, ""},
        {"a negative final pass",
         cutting,
         false,
         {"1", "1", "1", "3", "1", "-1", "5"},
         5,
         "The Final Pass Depth of Cut may not be negative"},
        {"its feed",
         cutting,
         false,
         {"1", "1", "1", "3", "1", "1", "0"},
         6,
         "The Final Pass Horizontal Feed Rate may not be zero"},
        {"a deeper pass",
         cutting,
         false,
         {"1", "1", "1", "2", "3", "5", "5"},
         4,
         "The Maximum Depth per Pass may not be greater than the Final Depth"},
        {"a deeper final pass",
         cutting,
         false,
         {"1", "1", "1", "3", "1", "1.01", "5"},
         5,
         "The Final Pass Depth of Cut may not be greater than the Maximum Depth per Pass"},
        {"a huge pass",
         cutting,
         false,
         {"1", "1", "1", "3", "1e400", "1", "5"},
         4,
         "The Maximum Depth per Pass may not be greater than the Final Depth"},
        {"no dwell", drilling, true, {"1", "1", "2", "0", "2"}, 9, ""},
        {"drilling feed",
         drilling,
         true,
         {"1", "0", "2", "0", "2"},
         1,
         "The Drilling Feed Rate may not be zero"},
        {"hole", drilling, false, {"1", "1", "0", "0", ""}, 2, "The Depth of Hole may not be zero"},
        {"dwell",
         drilling,
         false,
         {"1", "1", "2", "-1", ""},
         3,
         "The Dwell Time may not be negative"},
        {"peck", drilling, true, {"1", "1", "2", "0", "0"}, 4, "The Peck Distance may not be zero"},
        {"a peck of 0 that is not stored as on", drilling, false, {"1", "1", "2", "0", "0"}, 9, ""},
        {"a deeper peck, though pecking is off",
         drilling,
         false,
         {"1", "1", "2", "0", "2.5"},
         4,
         "The Peck Distance may not be greater than the Depth of Hole"},
    };
    for (const auto& row : rows) {
        PenBoxes boxes{row.texts, {}};
        for (std::size_t i = 0; i < penRowCount; ++i)
            boxes.enabled[i] = !row.texts[i].empty();
        const InputFault fault = inputFault(boxes, row.form, row.peck).value_or(InputFault{9, ""});
        EXPECT_EQ(fault.row, row.row) << row.says;
        EXPECT_EQ(fault.message, row.message) << row.says;
    }
}

TEST(MovePosition, GoesPenByPenAndHoleByHole) {
    // Used: Red with three hole sizes, Green, Brown with one hole size.
    const std::string drawing = "SP2;PU0,0;CI40;CI80;CI120;SP3;PU0,0;PD40,0;SP5;PU0,0;CI40;";
    const struct {
        const char* says;
        std::int16_t pen;
        std::int16_t radius;
        int direction;
        PenMove move;
        std::int16_t nextPen;
        std::int16_t nextRadius;
        std::int16_t settings;
    } rows[] = {
        {"to the first used pen", 0, 0, 1, PenMove::onPage, 2, 0, 1},
        {"into a drilled pen", 2, 0, 1, PenMove::onPage, 2, 1, 2},
        {"to the next size", 2, 2, 1, PenMove::onPage, 2, 3, 4},
        {"from the last size to the next pen", 2, 3, 1, PenMove::onPage, 3, 0, 5},
        {"a pen that is cut has no sizes", 5, 0, 1, PenMove::behindLast, 5, 0, 6},
        {"back to the size before", 2, 3, -1, PenMove::onPage, 2, 2, 3},
        {"back from the first size to the pen before", 2, 1, -1, PenMove::beforeFirst, 0, 0, 1},
        {"back into a drilled pen at its own page", 3, 0, -1, PenMove::onPage, 2, 0, 1},
        {"staying at a size", 2, 2, 0, PenMove::onPage, 2, 2, 3},
        {"staying at an own page", 2, 0, 0, PenMove::onPage, 2, 0, 1},
    };
    for (const auto& row : rows) {
        Job job = setUpDrawing(drawing);
        job.gudtPens[2].blnDrill = true;
        job.gintCurrentPen = row.pen;
        job.gintCurrentRadius = row.radius;
        job.gintCurrentSettings = 99; // never counted on from here
        EXPECT_EQ(movePosition(job, row.direction), row.move) << row.says;
        EXPECT_EQ(job.gintCurrentPen, row.nextPen) << row.says;
        EXPECT_EQ(job.gintCurrentRadius, row.nextRadius) << row.says;
        EXPECT_EQ(job.gintCurrentSettings, row.move == PenMove::onPage ? row.settings : 99)
            << row.says;
        EXPECT_EQ(job.gintLastPen, row.move == PenMove::behindLast ? 5 : 0) << row.says;
    }
}

TEST(ToolMissesHole, BeyondAHundredth) {
    Job job = setUpDrawing("SP1;PU0,0;CI120;");
    job.gintCurrentPen = 1;
    job.gintCurrentRadius = 1;
    EXPECT_FALSE(toolMissesHole(job, 9)); // cut
    job.gudtPens[1].blnDrill = true;
    for (const float fits : {5.99F, 6.0F, 6.01F})
        EXPECT_FALSE(toolMissesHole(job, fits)) << fits;
    for (const float misses : {5.98F, 6.0101F, 6.02F})
        EXPECT_TRUE(toolMissesHole(job, misses)) << misses;
    job.gintCurrentRadius = 0;
    EXPECT_FALSE(toolMissesHole(job, 9));
    EXPECT_EQ(strToolTitle(job), "Black holes");
}

} // namespace
} // namespace torvik
