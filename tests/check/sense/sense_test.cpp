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
    void order(std::int16_t first, std::int16_t second, std::int16_t third) {
        job.answers.gintOrder[1] = first;
        job.answers.gintOrder[2] = second;
        job.answers.gintOrder[3] = third;
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
    good.order(2, 3, 1);
    answers.gblnOrderSet = true;
    return good;
}

struct Row {
    const char* name;
    void (*change)(Asked&);
    const char* found;
};

const Row rows[]{
    {"the tool change height is below the material",
     [](Asked& a) { a.job.answers.gsngToolChangeHeight = -1; },
     "height-low 0/0: Tool Change Height,"},
    {"the quick way down ends at the surface", [](Asked& a) { a.job.answers.gsngRapidDownTo = 0; },
     "height-low 0/0: Rapid Down To,"},
    {"the safe height is above the tool change height",
     [](Asked& a) { a.job.answers.gsngSafeHeight = 51; },
     "height-order 0/0: Tool Change Height, Safe Height for Rapids,"},
    {"a hole leads more than 3 mm into the table", [](Asked& a) { a.group(3).sngDepth = 9.1F; },
     "billet-depth 2/1: the 5.0 mm Red holes, 9.10, 6.00,"},
    {"a cut has ten times its depth, in a billet that nobody measured",
     [](Asked& a) {
         a.group(4).sngDepth = 600;
         a.job.answers.gstrHeader[headerBilletZ] = "?";
     },
     "depth-high 3/0: the Green lines, 600.00, ?,"},
    {"the billet ends before the outline",
     [](Asked& a) { a.job.answers.gstrHeader[headerBilletX] = "69.9"; },
     "billet-outside 0/0: X70.000, X69.900,"},
    {"lines are cut with a drill", [](Asked& a) { a.group(4).intTool = 2; },
     "drill-cuts 3/0: the Green lines, Drill,"},
    {"holes are drilled with an end mill", [](Asked& a) { a.group(3).intTool = 3; },
     "end-mill-drills 2/1: the 5.0 mm Red holes,"},
    {"a thin tool takes it all at once",
     [](Asked& a) {
         a.group(4).intTool = 3;
         a.group(4).sngDepth = 3.5F;
         a.group(4).sngDepthPerPass = 3.5F;
     },
     "deep-step 3/0: the Green lines, 3.50, 3.00,"},
    {"the drill is wider than the hole", [](Asked& a) { a.group(3).intTool = 1; },
     "hole-narrow 2/1: the 5.0 mm Red holes, 6.00,"},
    {"the final pass is very fast", [](Asked& a) { a.group(1).sngFeedFinalPass = 6001; },
     "feed-high 1/0: the Black lines, 6001,"},
    {"mm per minute were typed as mm per second",
     [](Asked& a) {
         a.group(3).sngFeedVertical = 36000;
         a.job.answers.gsngFeedFactor = 60;
     },
     "feed-units 2/1: the 5.0 mm Red holes, 600.00, 36000,"},
    {"the drill waits for more than half a minute", [](Asked& a) { a.group(3).sngDwell = 30.5F; },
     "dwell-long 2/1: the 5.0 mm Red holes, 30.5,"},
    {"the outline comes before the holes in it", [](Asked& a) { a.order(3, 1, 2); },
     "outline-early 2/1: the Black lines, the 5.0 mm Red holes,"},
    {"the outer square of one pen comes first", [](Asked& a) { a.group(4).sngDepth = 6; },
     "outline-early-own 3/0: the Green lines,"},
    {"a tool is taken again after another one", [](Asked& a) { a.order(3, 2, 1); },
     "tool-changes 0/0: 2, 1,"},
};

// Each as "KIND PEN/SIZE: VALUES".
std::vector<std::string> found(const Asked& asked) {
    Findings findings;
    findSense(asked.job, asked.tools, findings);
    std::vector<std::string> texts;
    for (const Finding& finding : findings.byLine()) {
        std::string text = std::string(rowOf(finding.kind).name) + " " +
                           std::to_string(finding.group.pen) + "/" +
                           std::to_string(finding.group.radius) + ":";
        for (const std::string& value : finding.values)
            text += " " + value + ",";
        texts.push_back(text);
        EXPECT_EQ(finding.line, 0U);
    }
    return texts;
}

TEST(Sense, EachKindIsFoundOnceWithItsGroup) {
    std::set<std::string> seen;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        Asked asked = goodJob();
        row.change(asked);
        EXPECT_EQ(found(asked), std::vector<std::string>{row.found});
        seen.insert(std::string(row.found).substr(0, std::string(row.found).find(' ')));
    }
    for (const KindRow& kind : kinds().subspan(static_cast<std::size_t>(Kind::heightLow)))
        EXPECT_TRUE(seen.contains(std::string(kind.name))) << kind.name << " has no row";
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
            a.order(3, 1, 2);
            a.group(1).sngDepth = 5.9F;
        },
        [](Asked& a) {
            a.order(3, 1, 2);
            a.job.answers.gstrHeader[headerBilletZ] = "";
        },
        // the holes lie beside the outline
        [](Asked& a) {
            a.order(3, 1, 2);
            for (const int hole : {5, 6})
                a.job.drawing.gudtPaths[hole].sngCentreY = 5;
        },
    };
    for (std::size_t i = 0; i < std::size(changes); ++i) {
        Asked asked = goodJob();
        changes[i](asked);
        EXPECT_EQ(found(asked), std::vector<std::string>{}) << i;
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
            asked.order(1, 3, 0);
            Findings findings;
            findOrderSense(asked.job, asked.tools, std::vector<std::int16_t>{1, 3}, findings);
            EXPECT_EQ(findings.count(Kind::outlineEarly), isInside ? 1U : 0U) << sweep << place;
        }
    }
}

} // namespace
} // namespace torvik::check
