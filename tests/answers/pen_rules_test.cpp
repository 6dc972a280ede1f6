// SPDX-License-Identifier: MIT
// The rules of the pen pages, without a window. Rows of a page stand as one text, "-" for an empty
// box.
#include "answers/job_checks.h"
#include "answers/pen_checks.h"
#include "answers/pen_position.h"
#include "answers/pen_values.h"
#include "tests/job/drawing.h"

#include <gtest/gtest.h>
#include <sstream>

namespace torvik {
namespace {

constexpr auto cutting = PenForm::cutting;
constexpr auto drilling = PenForm::drilling;
const ToolList oneTool{{{7, "Drill", 6}}, 1, {}, 0};

Settings cut(float depth, float pass, float finalPass, float finalFeed, bool complete = true) {
    return {1, 12000, 600, finalFeed, 150, depth, pass, finalPass, 0, false, complete};
}

Settings drill(float depth, float peckDistance, float dwell, bool complete = true) {
    return {1, 2000, 0, 0, 90, depth, peckDistance, 0, dwell, true, complete};
}

PenTexts split(const char* rows) {
    PenTexts texts;
    std::istringstream in(rows);
    for (std::string& text : texts)
        if (in >> text && text == "-")
            text.clear();
    return texts;
}

TEST(ShownTexts, SayOnlyTheZerosThatMeanSomething) {
    const struct {
        const char* says;
        PenForm form;
        float factor;
        Settings settings;
        const char* texts;
    } rows[] = {
        {"an unset group is empty", cutting, 1, {}, ""},
        {"mm/min are whole", cutting, 1, cut(3, 1.125F, 0.2F, 300.5F),
         "12000 600 150 3.00 1.13 0.20 301"},
        {"mm/sec are not", cutting, 60, cut(3, 1, 0.2F, 100),
         "12000 10.00 2.50 3.00 1.00 0.20 1.67"},
        {"not said yet", cutting, 1, cut(3, 1, 0, 0, false), "12000 600 150 3.00 1.00 - -"},
        {"one pass has none", cutting, 1, cut(3, 3, 0.2F, 300), "12000 600 150 3.00 3.00 - -"},
        {"a feed that shows as 0", cutting, 1, cut(3, 1, 1, 0.4F),
         "12000 600 150 3.00 1.00 1.00 -"},
        {"no dwell", drilling, 60, drill(8, 2, 0), "2000 1.50 8.00 0 2.00"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(shownTexts(row.settings, row.form, row.factor), split(row.texts)) << row.says;
    EXPECT_THROW(shownTexts({}, cutting, 0), DivisionByZero);
}

TEST(StoreTexts, ReadsLeniently) {
    Settings group;
    group.intTool = 1;
    EXPECT_FALSE(
        storeTexts(split("12000rpm 10.00 2,5 3.5.1 x 0.2 5"), true, cutting, 60, oneTool, group));
    EXPECT_EQ(shownTexts(group, cutting, 1), split("12000 600 120 3.50 - 0.20 300"));
    EXPECT_FALSE(group.blnPeck || group.blnComplete);

    EXPECT_FALSE(storeTexts(split("2000 1.5 8 0.5 2 9 9"), true, drilling, 60, oneTool, group));
    EXPECT_EQ(shownTexts(group, drilling, 1), split("2000 90 8.00 0.50 2.00"));
    EXPECT_EQ(group.sngFinalPassDepth, 0.2F); // the cutting fields stay
    EXPECT_TRUE(group.blnPeck && group.blnComplete);

    // Too large only once multiplied.
    EXPECT_EQ(storeTexts(split("1 1e37 1 1 1"), false, drilling, 60, oneTool, group), 1U);
    EXPECT_TRUE(group.sngSpindleSpeed == 2000 && group.blnPeck);
}

TEST(IsCompleteGroup, AsksForWhatTheFormNeeds) {
    const struct {
        const char* says;
        PenForm form;
        Settings settings;
        void (*change)(Settings&);
        bool complete;
    } rows[] = {
        {"no tool", cutting, cut(3, 1, 1, 300), [](Settings& s) { s.intTool = 0; }, false},
        {"no feed", cutting, cut(3, 1, 1, 300), [](Settings& s) { s.sngFeedHorizontal = 0; },
         false},
        {"negative depths", cutting, cut(-3, -1, 0, 300), [](Settings&) {}, false},
        {"no depth per pass", cutting, cut(3, 0, 0, 300), [](Settings&) {}, false},
        {"a final pass without feed", cutting, cut(3, 1, 1, 0), [](Settings&) {}, false},
        {"one that never happens", cutting, cut(3, 3, 1, 0), [](Settings&) {}, true},
        {"no feed", drilling, drill(8, 2, 0), [](Settings& s) { s.sngFeedVertical = 0; }, false},
        {"no peck distance", drilling, drill(8, 0, 0), [](Settings&) {}, false},
        {"no pecks", drilling, drill(0, 0, 0), [](Settings& s) { s.blnPeck = false; }, true},
    };
    for (const auto& row : rows) {
        Settings settings = row.settings;
        row.change(settings);
        EXPECT_EQ(isCompleteGroup(settings, row.form, oneTool), row.complete) << row.says;
    }
}

TEST(InputFault, IsTheFirstOne) {
    using enum PenFault;
    const struct {
        PenForm form;
        bool peck;
        const char* texts; // an empty box is closed
        std::optional<InputFault> fault;
    } rows[] = {
        {cutting, false, "1 1 1 3 3 - -", {}},
        {cutting, false, "0 0 1 3 1 - -", {{0, zero}}},
        {cutting, false, "1 6.5.20 1 3 1 - -", {{1, notNumber}}},
        {cutting, false, "1 1 1 0.0 1 - -", {{3, zero}}},
        {cutting, false, "1 1 1 3 1 0 -", {}},
        {cutting, false, "1 1 1 3 1 -1 5", {{5, negative}}},
        {cutting, false, "1 1 1 3 1 1 0", {{6, zero}}},
        {cutting, false, "1 1 1 2 3 5 5", {{4, aboveOther, 3}}},
        {cutting, false, "1 1 1 3 1 1.01 5", {{5, aboveOther, 4}}},
        {drilling, false, "1 1 0 0 -", {{2, zero}}},
        {drilling, false, "1 1 2 -1 -", {{3, negative}}},
        {drilling, true, "1 1 2 0 0", {{4, zero}}},
        {drilling, false, "1 1 2 0 0", {}}, // pecking is not stored as on
        {drilling, false, "1 1 2 0 2.5", {{4, aboveOther, 2}}},
    };
    for (const auto& row : rows) {
        PenBoxes boxes{split(row.texts), {}};
        for (std::size_t i = 0; i < penRowCount; ++i)
            boxes.enabled[i] = !boxes.text[i].empty();
        EXPECT_TRUE(inputFault(boxes, row.form, row.peck) == row.fault) << row.texts;
    }
}

TEST(JobChecks, StoreHeightsThatStandAndTrimmedTexts) {
    Answers answers;
    storeHeights({"60.5", "1e39", ""}, answers);
    EXPECT_EQ(answers.gsngToolChangeHeight, 60.5F);
    EXPECT_EQ(answers.gsngSafeHeight, Answers().gsngSafeHeight);
    EXPECT_EQ(answers.gsngRapidDownTo, 0);
    answers.gstrHeader[8] = " 12 ";
    trimHeader(answers);
    EXPECT_EQ(answers.gstrHeader[8], "12");
}

TEST(MovePosition, GoesPenByPenAndHoleByHole) {
    const struct {
        const char* says;
        std::int16_t pen, radius;
        int direction;
        PenMove move;
        std::int16_t nextPen, nextRadius, settings;
    } rows[] = {
        {"to the first used pen", 0, 0, 1, PenMove::onPage, 2, 0, 1},
        {"to the next size", 2, 2, 1, PenMove::onPage, 2, 3, 4},
        {"from the last size to the next pen", 2, 3, 1, PenMove::onPage, 3, 0, 5},
        {"a pen that is cut has no sizes", 5, 0, 1, PenMove::behindLast, 5, 0, 99},
        {"back to the size before", 2, 3, -1, PenMove::onPage, 2, 2, 3},
        {"back into a drilled pen at its own page", 3, 0, -1, PenMove::onPage, 2, 0, 1},
    };
    for (const auto& row : rows) {
        Job job = setUpDrawing("SP2;PU0,0;CI40;CI80;CI120;SP3;PU0,0;PD40,0;SP5;PU0,0;CI40;");
        job.answers.gudtPens[2].blnDrill = true;
        job.position.gintCurrentPen = row.pen;
        job.position.gintCurrentRadius = row.radius;
        job.position.gintCurrentSettings = 99; // never counted on from here
        EXPECT_EQ(movePosition(job, row.direction), row.move) << row.says;
        EXPECT_EQ(job.position.gintCurrentPen, row.nextPen) << row.says;
        EXPECT_EQ(job.position.gintCurrentRadius, row.nextRadius) << row.says;
        EXPECT_EQ(job.position.gintCurrentSettings, row.settings) << row.says;
    }
}

TEST(ToolMissesHole, BeyondAHundredth) {
    Job job = setUpDrawing("SP1;PU0,0;CI120;");
    job.position.gintCurrentPen = job.position.gintCurrentRadius = 1;
    EXPECT_FALSE(toolMissesHole(job, 9)); // cut
    job.answers.gudtPens[1].blnDrill = true;
    for (const float fits : {5.99F, 6.0F, 6.01F})
        EXPECT_FALSE(toolMissesHole(job, fits)) << fits;
    for (const float misses : {5.98F, 6.0101F, 6.02F})
        EXPECT_TRUE(toolMissesHole(job, misses)) << misses;
}

} // namespace
} // namespace torvik
