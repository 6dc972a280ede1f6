// SPDX-License-Identifier: MIT
#include "base/picture.h"
#include "job/pens.h"
#include "job/sort_paths.h"
#include "tests/job/drawing.h"

#include <gtest/gtest.h>

namespace torvik {
namespace {

// Each used pen as "PEN@GROUP cut" or "PEN@GROUP RADII", then the count of groups.
std::string pensOf(const Job& job) {
    std::string text;
    for (std::int16_t number = 1; number <= penCount; ++number) {
        const Pen& pen = job.answers.gudtPens[number];
        if (!pen.blnUsed)
            continue;
        text += std::to_string(number) + "@" + std::to_string(pen.intSettings);
        text += pen.blnCircles ? "" : " cut";
        for (std::int16_t k = 1; k <= pen.intRadiusCount; ++k)
            text += " " + formatFixed(pen.sngRadii[k], 3);
        text += "; ";
    }
    return text + std::to_string(job.answers.gudtSettings.count());
}

TEST(SetUpPens, MakesAGroupForEachPenAndEachOfItsCircleSizes) {
    const struct {
        const char* says;
        const char* drawing;
        const char* pens;
    } rows[] = {
        {"an empty drawing has no pen and no group", "", "0"},
        {"sizes ascend, and near ones are one", "SP1;CI200;PU0,0;CI200.2;PU0,0;CI120;PU0,0;CI200",
         "1@1 3.000 5.000; 3"},
        {"pens come in their own order", "SP3;PD1,1;SP8;CI40;SP1;PD1,1",
         "1@1 cut; 3@2 cut; 8@3 1.000; 4"},
        {"one line before the circles, and the pen is cut", "SP1;PD1,1;CI40;CI80;", "1@1 cut; 1"},
        {"a line after two sizes leaves their groups behind", "SP1;CI40;CI80;PD1,1;CI120;SP2;CI40",
         "1@1 cut; 2@4 1.000; 5"},
        {"an arc of 360 degrees is a circle", "SP1;PU400,0;AA0,0,-360", "1@1 10.000; 2"},
        {"359 degrees leave 1.7 mm open at 100 mm", "SP1;PU4000,0;AA0,0,359", "1@1 cut; 1"},
        {"ends 0.24 mm apart in X and Y are closed", "SP1;PU9.6,0;AA0,0,90", "1@1 0.240; 2"},
        {"ends 0.26 mm apart in X and Y are open", "SP1;PU10.4,0;AA0,0,90", "1@1 cut; 1"},
        {"a circle of radius 0 is a line", "SP1;CI40;CI0", "1@1 cut; 2"},
        {"1 and 1.01 are within 0.01 as singles", "SP1;CI40;PU0,0;CI40.4", "1@1 1.000; 2"},
        {"5 and 5.01 are not", "SP1;CI200.4;PU0,0;CI200", "1@1 5.000 5.010; 3"},
        {"a size is compared with kept ones alone", "SP1;CI200;PU0,0;CI200.3;PU0,0;CI200.6",
         "1@1 5.000 5.015; 3"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(pensOf(setUpDrawing(row.drawing)), row.pens) << row.says;
    const Job job = setUpDrawing("SP1;PU4,0;AA0,0,90;SP2;PU4,0;PD0,0;AA1,0,90");
    EXPECT_EQ(job.answers.gintPenCount, 2);
    EXPECT_EQ(job.drawing.gudtPaths[1].sngAngleTo, job.drawing.gudtPaths[1].sngAngleFrom)
        << "a full turn";
    EXPECT_NE(job.drawing.gudtPaths[3].sngAngleTo, job.drawing.gudtPaths[3].sngAngleFrom)
        << "not looked at";
}

TEST(SetUpPens, StopsAtAPenOutside1To8) {
    Job job = setUpDrawing("SP1;CI40;SP2;PD1,1");
    job.drawing.gudtPaths[2].intPen = 9;
    std::string said;
    Logger logger({}, [&](const ErrorReport& report) { said = report.message(); });
    EXPECT_FALSE(SetUpPens(job, logger));
    EXPECT_EQ(said, "An error has occurred in SetUpPens (modHpgl):\n"
                    "there is no entry number 9 (the list runs from 1 to 8).");
    EXPECT_EQ(pensOf(job), "1@1 1.000; 2@3 cut; 3") << "as it was";
    job.drawing.gudtPaths[2].intPen = 2;
    EXPECT_TRUE(SetUpPens(job, logger));
    EXPECT_EQ(pensOf(job), "1@1 1.000; 2@3 cut; 3") << "a second time from the start";
}

TEST(SetUpPens, StopsWhereTheGroupsExceed16Bits) {
    Job job;
    for (std::int16_t i = 0; i < 32767; ++i)
        job.drawing.gudtPaths.append(
            {.intType = arcCounterClockwise, .intPen = 1, .sngRadius = 1 + static_cast<float>(i)});
    job.drawing.gintPathCount = 32767;
    Logger logger;
    EXPECT_FALSE(SetUpPens(job, logger));
    EXPECT_EQ(job.answers.gudtSettings.count(), 32767);
}

TEST(SortPaths, KeepsFileOrderAmongEqualKeys) {
    const float keys[] = {3, 1e-9F, -2, 1e-9F, 3e9F, 0, 3, -0.0F, -2.5F};
    EXPECT_EQ(SortPaths(keys), (std::vector<std::size_t>{8, 2, 5, 7, 1, 3, 0, 6, 4}));
}

TEST(RebuildOrder, HoldsTheMachinedPensInPenOrder) {
    Job job = setUpDrawing("SP7;PD1,1;SP5;PD1,2;SP2;PD1,1");
    job.answers.gudtPens[5].blnOmit = true;
    job.answers.gintOrder.fill(7);
    rebuildOrder(job);
    EXPECT_EQ(job.answers.gintOrderCount, 2);
    EXPECT_EQ(std::vector(job.answers.gintOrder.begin(), job.answers.gintOrder.end()),
              (std::vector<std::int16_t>{2, 7, 0, 0, 0, 0, 0, 0}));
}

} // namespace
} // namespace torvik
