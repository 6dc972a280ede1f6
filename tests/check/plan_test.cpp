// SPDX-License-Identifier: MIT
// The good program beside the job that asks for it, with some lines changed; and jobs whose program
// cannot be what they ask for.
#include "check/plan/plan.h"
#include "check/program_reader.h"
#include "check/targets.h"
#include "tests/check/good_program.h"
#include "tests/check/random_job.h"
#include "tests/gcode/job_to_write.h"

#include <set>

namespace torvik::check {
namespace {

using Texts = std::vector<std::string>;

// Black is the outline, Red the circle beside it, Green the holes.
JobToWrite goodJob() {
    std::string drawing = "SP1;PU400,400;PD1200,400;PD1200,1200;AA800,1200,180;PD400,400;"
                          "SP2;PU2600,1200;AA2400,1200,-360;SP3;";
    for (const char* x : {"800", "1200", "1600", "2000", "2400"})
        drawing += std::string("PU") + x + ",2000;CI100;";
    JobToWrite good(drawing);
    good.job.answers.gudtPens[2].blnDrill = false;
    good.tools.gudtTools = {{3, "Slot drill", 6}, {8, "Drill", 5}};
    good.tools.gintToolCount = 2;
    good.of(1) = {1, 2000, 600, 0, 150, 3, 1, 0, 0, false, false};
    good.of(2) = {1, 2000, 600, 0, 150, 3, 0, 0, 0, false, false};
    good.of(3, 1) = {2, 1200, 0, 0, 60, 4, 2, 0, 0.5F, false, false};
    return good;
}

Texts planOf(const JobToWrite& work, const std::string& program) {
    Texts texts;
    for (const std::string& text : shown(checkProgramOfJob(program, {}, work.job, work.tools))) {
        const std::string name = text.substr(0, text.find(' '));
        const auto row = std::find_if(kinds().begin(), kinds().end(),
                                      [&](const KindRow& kind) { return kind.name == name; });
        if (row->kind >= Kind::elementLost && row->kind <= Kind::clampedArc)
            texts.push_back(text);
    }
    return texts;
}

const char* const circle = "G0 X65.000 Y30.000\nG0 Z2.00\nG1 Z-3.00 F2.50\n"
                           "G2 X65.000 Y30.000 I-5.000 J0.000 F10.00";

const struct {
    const char* name;
    std::map<std::size_t, std::string> changes;
    const char* found;
} rows[]{
    {"nothing", {}, ""},
    {"a cut is missing", {{23, ""}}, "element-lost 23"},
    {"the last cut of a pass is missing", {{25, ""}}, "element-lost 25"},
    {"a pass is missing", {{21, ""}, {22, ""}, {23, ""}, {24, ""}, {25, ""}}, "element-lost 21"},
    {"the circle is missing",
     {{31, ""}, {32, ""}, {33, ""}, {34, ""}, {35, ""}},
     "element-lost 31"},
    {"only the way down to the circle is left", {{35, ""}}, "element-lost 34"},
    {"a cut is made twice",
     {{23, "G1 X30.000 Y30.000 F10.00\nG1 X30.000 Y30.000 F10.00"}},
     "element-twice 24"},
    {"two cuts are exchanged",
     {{22, "G1 X30.000 Y30.000 F10.00"}, {23, "G1 X30.000 Y10.000 F10.00"}},
     "element-order 23"},
    {"a cut goes on",
     {{35, "G2 X65.000 Y30.000 I-5.000 J0.000 F10.00\nG1 X70.000 Y30.000 F10.00"}},
     "not-asked 36"},
    {"Red comes before Black",
     {{13, std::string("G0 Z5.00\n") + circle + "\nG0 Z5.00"},
      {31, ""},
      {32, ""},
      {33, ""},
      {34, ""},
      {35, ""}},
     "group-order 22"},
    {"a cut ends a thousandth beside its place", {{18, "G1 X30.001 Y30.000 F10.00"}}, "place 18"},
    {"a cut begins at another place", {{32, "G0 X64.000 Y30.000"}}, "place 32"},
    {"I has another sign", {{19, "G3 X10.000 Y30.000 I10.000 J0.000 F10.00"}}, "place 19"},
    {"a hole is at another place", {{57, "G0 X40.000 Y55.000"}}, "place 57"},
    {"an arc turns the other way",
     {{19, "G2 X10.000 Y30.000 I-10.000 J0.000 F10.00"}},
     "shape-differs 19"},
    {"a pass is ten times too deep", {{26, "G1 Z-30.00 F2.50"}}, "deeper-than-asked 26"},
    {"a hole is too deep", {{60, "G1 Z-4.50 F1.00"}}, "deeper-than-asked 60"},
    {"the way down of a pass is missing", {{21, ""}}, "shallower-than-asked 21"},
    {"a hole is not deep enough", {{60, ""}}, "shallower-than-asked 60"},
    {"the way up is missing", {{31, ""}}, "way-differs 31"},
    {"the quick way down is missing", {{33, ""}}, "way-differs 33"},
    {"the program ends lower", {{78, "G0 Z49.00 M5"}}, "way-differs 78"},
    {"a stop before the right tool, another height behind it",
     {{11, "G0 Z50.00 M5\nT3 G43 H3"}, {13, "G0 Z6.00"}},
     "way-differs 11"},
    {"another tool is taken", {{40, "T3 G43 H3"}}, "tool-differs 40"},
    {"no tool is taken", {{40, ""}}, "tool-differs 40"},
    {"the spindle turns faster", {{41, "S1300 M3"}}, "speed-differs 41"},
    {"a cut is faster", {{29, "G3 X10.000 Y30.000 I-10.000 J0.000 F10.01"}}, "feed-differs 29"},
    {"a way down is faster", {{34, "G1 Z-3.00 F2.60"}}, "feed-differs 34"},
    {"a hole is drilled faster", {{53, "G1 Z-4.00 F1.10"}}, "feed-differs 53"},
    {"the drill waits longer", {{47, "G4 P501"}}, "dwell-differs 47"},
    {"the drill does not wait", {{54, ""}}, "dwell-differs 54"},
    {"a step of a hole is smaller", {{52, "G1 Z-1.50 F1.00"}}, "peck-differs 52"},
    {"a step of a hole is missing", {{45, ""}}, "peck-differs 45"},
};

TEST(Plan, EachKindIsFoundOnceAtItsLine) {
    const JobToWrite work = goodJob();
    std::set<std::string> seen;
    for (const auto& row : rows) {
        const std::string found = row.found;
        seen.insert(found.substr(0, found.find(' ')));
        EXPECT_EQ(planOf(work, changedProgram(row.changes)),
                  *row.found == 0 ? Texts{} : Texts{row.found})
            << row.name;
    }
    for (const KindRow& kind : kinds())
        if (kind.kind >= Kind::elementLost && kind.kind < Kind::sweepCircle) {
            EXPECT_TRUE(seen.contains(std::string(kind.name))) << kind.name << " has no row";
        }
}

std::string sentencesOf(const char* drawing, const char* changes) {
    JobToWrite work(drawing);
    for (Pen& pen : work.job.answers.gudtPens)
        pen.blnDrill = false;
    work.change(changes);
    StringSink program;
    writeProgram(work.job, work.tools, dialects()[3], 0, program, work.logger);
    std::string found;
    for (const Finding& finding :
         checkProgramOfJob(program.bytes(), {}, work.job, work.tools).findings.byLine())
        if (finding.kind >= Kind::elementLost && finding.kind <= Kind::clampedArc)
            found += std::string(rowOf(finding.kind).name) + ": " + sentenceOf(finding);
    return found;
}

TEST(Plan, WhatTheWriterCannotWriteRightIsFound) {
    EXPECT_EQ(sentencesOf("SP1;PU400,400;PD800,400;SP2;PD800,800;", "1.depth=5 2.depth=2"),
              "deeper-than-asked: The tool is at Z-5.00 here. That is too deep: for the Red lines "
              "the job asks for Z-2.00. It begins where the Black lines end. In the order, move "
              "Red before Black.");
    // 10 mm from the centre, a thousandth of a degree: 0.0002 mm.
    EXPECT_EQ(sentencesOf("SP1;PU400,0;AA0,0,0.001;PD0,0;", ""),
              "sweep-circle: A full circle is cut here. The drawing has an arc of 0.000 mm only, "
              "so short that its end is written like its start.");
    // They start 0.01 mm beside the direction of X.
    EXPECT_EQ(sentencesOf("SP1;PU400,0.4;AA0,0,90;", ""),
              "clamped-arc: The arc starts almost level with its centre and is read as if it "
              "started exactly there. It becomes 0.010 mm shorter than it is drawn.");
    EXPECT_EQ(sentencesOf("SP1;PU400,-0.4;AA0,0,360;", ""),
              "circle-lost: The drawing has a full circle here, but its end is written a little "
              "behind its start: only 0.010 mm of it are cut.");
}

TEST(Plan, HeightsThatAreAlikeOrTurnedRoundAreNoFaultOfTheProgram) {
    struct Row {
        const char* heights;
        const char* more; // of the drawing
        const char* found;
    };
    const char* const holes = "SP2;PU800,800;CI120;PU1600,800;CI120;";
    const Row rowsOfHeights[]{
        {"toolChange=5 safe=5 down=2", holes, ""},
        {"toolChange=5 safe=5 down=5", holes, ""},
        {"toolChange=2 safe=5 down=2", holes, ""},
        {"toolChange=5 safe=2 down=5", holes, ""},
        {"toolChange=-10 safe=-10 down=-10", "", "deeper-than-asked;deeper-than-asked;"},
    };
    for (const auto& [heights, more, found] : rowsOfHeights)
        for (const Dialect& dialect : dialects()) {
            JobToWrite work(std::string("SP1;PU400,400;PD800,400;PU400,800;PD800,800;") + more);
            work.change(std::string("1.depth=2 ") + heights);
            if (*more != 0)
                work.change("2/1.tool=2 2/1.depth=4 2/1.step=2");
            StringSink program;
            writeProgram(work.job, work.tools, dialect, 1, program, work.logger);
            std::string named;
            for (const std::string& text : planOf(work, program.bytes()))
                named += text.substr(0, text.find(' ')) + ";";
            EXPECT_EQ(named, found) << heights << ", " << dialect.name;
        }
}

TEST(Plan, AStopEndsTheCheckWhereverItHasGot) {
    const JobToWrite work = goodJob();
    const std::string program = changedProgram({});
    std::stop_source stop;
    const auto stopped = [&](const Walked& walked, Findings& findings) {
        stop.request_stop();
        EXPECT_THROW(findPlan(walked, work.job, work.tools, findings, stop.get_token()), Cancelled);
    };
    const Target* const target = checkProgram(program, {}, nullptr, stopped).target;
    ASSERT_TRUE(stop.stop_requested());
    Findings none;
    EXPECT_THROW(readProgram(*target, program, none, stop.get_token()), Cancelled);
    EXPECT_THROW(checkProgram({}, {}, target, {}, stop.get_token()), Cancelled);
    EXPECT_THROW(checkProgramOfJob(program, {}, work.job, work.tools, nullptr, stop.get_token()),
                 Cancelled);
}

// One pen that starts where a deeper one ended is the only fault that these jobs can have.
TEST(Plan, ProgramsOfGoodJobsHaveNoFinding) {
    std::size_t joined = 0;
    for (unsigned seed = 1; seed <= 100; ++seed) {
        const RandomJob random(seed);
        for (const Dialect& dialect : dialects()) {
            StringSink program;
            Logger muted;
            writeProgram(random.job, random.tools, dialect, 1, program, muted);
            for (const Finding& finding :
                 checkProgramOfJob(program.bytes(), {}, random.job, random.tools)
                     .findings.byLine()) {
                const bool isJoined =
                    finding.kind == Kind::deeperThanAsked && !finding.values[3].empty();
                joined += isJoined ? 1 : 0;
                EXPECT_TRUE(isJoined || rowOf(finding.kind).level < Level::wrong)
                    << "seed " << seed << ", " << dialect.name << ", line " << finding.line << ": "
                    << rowOf(finding.kind).name << ": " << sentenceOf(finding);
            }
        }
    }
    EXPECT_GT(joined, 0U);
}

} // namespace
} // namespace torvik::check
