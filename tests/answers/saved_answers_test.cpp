// SPDX-License-Identifier: MIT
#include "answers/saved_answers.h"
#include "tests/answers/workshop_tools.h"
#include "tests/job/drawing.h"

#include <gtest/gtest.h>

namespace torvik {
namespace {

TEST(SavedAnswers, AnOrderIsTakenOverOnlyWhereItNamesEachMachinedPenOnce) {
    // Pens 1, 3, 4 and 8 are used, and 4 is left out.
    using Order = std::array<std::int16_t, penCount>;
    const Order inPenOrder{1, 3, 8};
    const struct {
        const char* says;
        Order entries;
        bool taken;
        Order order;
    } rows[] = {
        {"entries of 0 or less stand between them", {0, 8, -3, 0, 1, 0, 0, 3}, true, {8, 1, 3}},
        {"one is missing", {8, 1}, false, inPenOrder},
        {"one is repeated in place of another", {8, 8, 1}, false, inPenOrder},
        {"one is not used", {8, 1, 2}, false, inPenOrder},
        {"one is no pen", {8, 1, 9}, false, inPenOrder},
    };
    for (const auto& row : rows) {
        Job job = setUpDrawing("SP1;PD1,1;SP3;PD2,2;SP4;PD3,3;SP8;PD4,4");
        job.answers.gudtPens[4].blnOmit = true;
        job.answers.gintOrder.fill(7);
        takeOrder(job, row.entries);
        EXPECT_EQ(job.answers.gblnOrderSet, row.taken) << row.says;
        EXPECT_EQ(job.answers.gintOrderCount, 3) << row.says;
        EXPECT_TRUE(std::equal(row.order.begin(), row.order.end(), job.answers.gintOrder.begin()))
            << row.says;
    }
}

TEST(SavedAnswers, AGroupIsCompleteWhenItsToolIsStillInTheList) {
    Logger logger;
    ToolList tools = workshopTools({11, 7, 12});
    Job job = setUpDrawing("SP1;CI40;CI80;CI120");
    SavedAnswers answers = answersShape(job);
    answers.pens[0].own.toolNumber = 12;
    answers.pens[0].holes[0].toolNumber = 8;
    answers.pens[0].holes[2].toolNumber = 7;
    takeAnswers(job, answers, tools);
    std::string places;
    for (const Settings& group : job.answers.gudtSettings)
        places += std::to_string(group.intTool) + (group.blnComplete ? "+ " : "- ");
    EXPECT_EQ(places, "3+ 0- 0- 2+ ");
}

} // namespace
} // namespace torvik
