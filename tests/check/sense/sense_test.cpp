// SPDX-License-Identifier: MIT
// Each kind that is seen from the job alone, in a good job with one answer changed.
#include "check/sense/sense.h"
#include "tests/job/drawing.h"
#include "tools/tool_list.h"

#include <gtest/gtest.h>
#include <set>

namespace torvik::check {
namespace {

struct Asked {
    Job job;
    ToolList tools;

    Settings& group(int settings) { return job.answers.gudtSettings[settings]; }
    void order(std::initializer_list<std::int16_t> pens) {
        std::copy(pens.begin(), pens.end(), job.answers.gintOrder.begin());
    }
};

// Black is an outline of 60 by 40 mm that is cut through, Red two holes of 5 mm in it, Green a
// square in a square, not cut through. Groups: Black 1, Red's holes 3, Green 4.
Asked goodJob() {
    Asked good{setUpDrawing("SP1;PU400,400;PD2800,400;PD2800,2000;PD400,2000;PD400,400;"
                            "SP2;PU800,800;CI100;PU1600,800;CI100;"
                            "SP3;PU1000,1200;PD1400,1200;PD1400,1600;PD1000,1600;PD1000,1200;"
                            "PU1100,1300;PD1300,1300;PD1300,1500;PD1100,1500;PD1100,1300;"),
               {}};
    good.tools.gudtTools = {{1, "Slot drill", 6}, {8, "Drill", 5}, {3, "End mill", 3}};
    good.tools.gintToolCount = 3;
    Answers& answers = good.job.answers;
    answers.gsngSafeHeight = 5;
    answers.gsngFeedFactor = 1;
    answers.gstrHeader[headerBilletX] = "80";
    answers.gstrHeader[headerBilletY] = "60mm";
    answers.gstrHeader[headerBilletZ] = " 6";
    answers.gudtPens[2].blnDrill = true;
    good.group(1) = {1, 3000, 600, 300, 150, 6.2F, 2, 0.2F, 0, false, true};
    good.group(3) = {2, 2000, 0, 0, 100, 6.5F, 2, 0, 0.5F, true, true};
    good.group(4) = {1, 3000, 600, 0, 150, 3, 1, 0, 0, false, true};
    good.order({2, 3, 1});
    answers.gblnOrderSet = true;
    return good;
}

struct Row {
    const char* name;
    void (*change)(Asked&);
    Kind kind;
    PenGroup group;
    const char* sentence;
};

const Row rows[]{
    {"the tool change height is below the material",
     [](Asked& a) { a.job.answers.gsngToolChangeHeight = -1; },
     Kind::heightLow,
     {},
     "The Tool Change Height must be above 0, or the tool goes through the material at full "
     "speed."},
    {"the quick way down ends at the surface",
     [](Asked& a) { a.job.answers.gsngRapidDownTo = 0; },
     Kind::heightLow,
     {},
     "The Rapid Down To must be above 0, or the tool goes through the material at full speed."},
    {"the safe height is above the tool change height",
     [](Asked& a) { a.job.answers.gsngSafeHeight = 51; },
     Kind::heightOrder,
     {},
     "The Tool Change Height is lower than the Safe Height for Rapids. It should be at least as "
     "high."},
    {"a hole leads more than 3 mm into the table",
     [](Asked& a) { a.group(3).sngDepth = 9.1F; },
     Kind::billetDepth,
     {2, 1},
     "The depth of the 5.0 mm Red holes is 9.10 mm, but the billet is only 6.00 mm thick. The tool "
     "would cut the table."},
    {"a cut has ten times its depth, in a billet that nobody measured",
     [](Asked& a) {
         a.group(4).sngDepth = 600;
         a.job.answers.gstrHeader[headerBilletZ] = "?";
     },
     Kind::depthHigh,
     {3, 0},
     "The depth of the Green lines is 600.00 mm. No tool is that long."},
    {"the billet ends before the outline",
     [](Asked& a) { a.job.answers.gstrHeader[headerBilletX] = "69.9"; },
     Kind::billetOutside,
     {},
     "The drawing reaches X70.000, outside the billet that lies from 0 to X69.900."},
    {"lines are cut with a drill",
     [](Asked& a) { a.group(4).intTool = 2; },
     Kind::drillCuts,
     {3, 0},
     "A Drill cannot cut the Green lines: it is made to go straight down and breaks on its way "
     "sideways."},
    {"holes are drilled with an end mill",
     [](Asked& a) { a.group(3).intTool = 3; },
     Kind::endMillDrills,
     {2, 1},
     "An End mill is to drill the 5.0 mm Red holes. Many do not cut in their middle; a Drill is "
     "safer."},
    {"a thin tool takes it all at once",
     [](Asked& a) {
         a.group(4).intTool = 3;
         a.group(4).sngDepth = 3.5F;
         a.group(4).sngDepthPerPass = 3.5F;
     },
     Kind::deepStep,
     {3, 0},
     "Each pass of the Green lines is 3.50 mm deep, but the tool is only 3.00 mm wide. It may "
     "break."},
    {"the drill is wider than the hole",
     [](Asked& a) { a.group(3).intTool = 1; },
     Kind::holeNarrow,
     {2, 1},
     "The tool is 6.00 mm wide, too wide for the 5.0 mm Red holes."},
    {"the final pass is very fast",
     [](Asked& a) { a.group(1).sngFeedFinalPass = 6001; },
     Kind::feedHigh,
     {1, 0},
     "A feed of 6001 mm/min for the Black lines is faster than usual."},
    {"mm per minute were typed as mm per second",
     [](Asked& a) {
         a.group(3).sngFeedVertical = 36000;
         a.job.answers.gsngFeedFactor = 60;
     },
     Kind::feedUnits,
     {2, 1},
     "A feed of 600.00 mm/sec for the 5.0 mm Red holes is 36000 mm/min. Was mm per minute meant? "
     "The unit is chosen on the page of the heights."},
    {"the drill waits for more than half a minute",
     [](Asked& a) { a.group(3).sngDwell = 30.5F; },
     Kind::dwellLong,
     {2, 1},
     "The tool waits 30.5 s in each of the 5.0 mm Red holes. That is longer than usual."},
    {"the outline comes before the holes in it",
     [](Asked& a) {
         a.order({3, 1, 2});
     },
     Kind::outlineEarly,
     {2, 1},
     "An outline of the Black lines is cut through before the 5.0 mm Red holes inside it, so the "
     "part may come loose. Put the 5.0 mm Red holes before it in the order."},
    {"the outer square of one pen comes first",
     [](Asked& a) { a.group(4).sngDepth = 6; },
     Kind::outlineEarlyOwn,
     {3, 0},
     "An outline of the Green lines is cut through before other lines of its pen inside it, so the "
     "part may come loose. Draw the outline last, or with a pen of its own."},
    {"a tool is taken again after another one",
     [](Asked& a) {
         a.order({3, 2, 1});
     },
     Kind::toolChanges,
     {},
     "Tool changes: 2. With another order of the pens there would be only 1."},
};

std::vector<std::string> sentences(const Asked& asked) {
    Findings findings;
    findSense(asked.job, asked.tools, findings);
    std::vector<std::string> found;
    for (const Finding& finding : findings.byLine())
        found.push_back(sentenceOf(finding));
    return found;
}

TEST(Sense, EachKindIsFoundOnceWithItsGroup) {
    std::set<Kind> seen;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        Asked asked = goodJob();
        row.change(asked);
        EXPECT_EQ(sentences(asked), std::vector<std::string>{row.sentence});
        Findings findings;
        findSense(asked.job, asked.tools, findings);
        ASSERT_EQ(findings.count(row.kind), 1U);
        EXPECT_EQ(findings.byLine()[0].group, row.group);
        EXPECT_EQ(findings.byLine()[0].line, 0U);
        seen.insert(row.kind);
    }
    EXPECT_EQ(seen.size(), kindCount - static_cast<std::size_t>(Kind::heightLow))
        << "a kind has no row";
}

TEST(Sense, WhatCanBeMeantIsNotFound) {
    void (*const changes[])(Asked&){
        [](Asked&) {},
        [](Asked& a) {
            a.job = Job{};
            a.job.answers.gsngSafeHeight = 5;
        }, // nothing is open
        [](Asked& a) { a.tools.gintToolCount = 0; },
        [](Asked& a) { a.group(3).sngDepth = 9; },
        [](Asked& a) { a.job.answers.gsngSafeHeight = 50; },
        [](Asked& a) { a.job.answers.gstrHeader[headerBilletX] = "70"; },
        [](Asked& a) { a.group(1).sngFeedFinalPass = 6000; },
        // not cut through, or the billet's depth is unknown
        [](Asked& a) {
            a.order({3, 1, 2});
            a.group(1).sngDepth = 5.9F;
        },
        [](Asked& a) {
            a.order({3, 1, 2});
            a.job.answers.gstrHeader[headerBilletZ] = "";
        },
        // the holes lie beside the outline
        [](Asked& a) {
            a.order({3, 1, 2});
            for (const int hole : {5, 6})
                a.job.drawing.gudtPaths[hole].sngCentreY = 5;
        },
    };
    for (std::size_t i = 0; i < std::size(changes); ++i) {
        Asked asked = goodJob();
        changes[i](asked);
        EXPECT_EQ(sentences(asked), std::vector<std::string>{}) << i;
    }
}

// A round outline of arcs, drawn both ways, in a drawing with many outlines beside it.
TEST(Sense, AnOutlineOfArcsHoldsWhatLiesInItsBulgeAlone) {
    for (const std::string sweep : {"180", "-180"}) {
        std::string text = "SP1;";
        for (int i = 0; i < 400; ++i) {
            const int x = 2000 + i * 90;
            const auto at = [](int px, int py) {
                return std::to_string(px) + "," + std::to_string(py) + ";";
            };
            text += "PU" + at(x, 0) + "PD" + at(x + 80, 0) + "PD" + at(x + 80, 80) + "PD" +
                    at(x, 80) + "PD" + at(x, 0);
        }
        const std::string arc = "AA0,0," + sweep + ";";
        text += "PU1000,0;PD1000,0;" + arc + arc + "SP3;PU";
        for (const auto& [place, isInside] :
             {std::pair{"690,690", true}, std::pair{"720,720", false},
              std::pair{"-690,690", true}}) {
            Asked asked = goodJob();
            asked.job.drawing = setUpDrawing(text + place + ";PD0,0;").drawing;
            asked.order({1, 3, 0});
            Findings findings;
            findOrderSense(asked.job, asked.tools, std::vector<std::int16_t>{1, 3}, findings);
            EXPECT_EQ(findings.count(Kind::outlineEarly), isInside ? 1U : 0U) << sweep << place;
        }
    }
}

} // namespace
} // namespace torvik::check
