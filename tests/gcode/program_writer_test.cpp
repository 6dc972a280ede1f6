// SPDX-License-Identifier: MIT
#include "gcode/dialects.h"
#include "tests/gcode/job_to_write.h"

#include <gtest/gtest.h>

namespace torvik {
namespace {

constexpr std::int16_t noTarget = 9;
constexpr const char* line = "SP1;PD400,0";      // to X10
constexpr const char* hole = "SP1;PU400,0;CI40"; // of radius 1 at X10
constexpr const char* twoLines = "SP1;PD400,0;SP2;PU0,400;PD400,400";
constexpr const char* twoHoles = "SP1;CI40;SP1;PU0,0;CI80"; // at one place

const std::string start = "T1;S1000;G0 Z5.00;";
const std::string end = "G0 Z5.00;G0 Z50.00;%;";
const std::string cutLine = "G0 X0.000 Y0.000;G0 Z2.00;G1 Z-1.00 F100;G1 X10.000 Y0.000 F300;";
const std::string secondLine =
    "G0 Z5.00;G0 X0.000 Y10.000;G0 Z2.00;G1 Z-1.00 F100;G1 X10.000 Y10.000 F300;";
const std::string kestraStart = "T1 G43 H1;S1000 M3;G0 Z5.00;";
const std::string kestraEnd = "G0 Z5.00;G0 Z50.00 M5;G49;M30;%;"; // of WinNC too

struct Row {
    const char* says;
    const char* drawing;
    const char* changes;
    std::int16_t target;
    std::string body;
    const char* cause = ""; // of the error that ends it
};

void expectBody(const Row& row, JobToWrite& work) {
    work.change(row.changes);
    EXPECT_EQ(work.body(row.target), row.body) << row.says;
    EXPECT_EQ(work.reports, row.cause) << row.says;
    EXPECT_EQ(work.whole, work.reports.empty()) << row.says;
}

void expectBodies(std::span<const Row> rows) {
    for (const Row& row : rows) {
        JobToWrite work(row.drawing);
        expectBody(row, work);
    }
}

TEST(WriteGcodes, ChangesToolsAndSpeeds) {
    const Row rows[] = {
        {"a first tool at the height of rapids goes to safe height first", line, "toolChange=2",
         targetWinCam,
         "G0 Z5.00;G0 Z2.00 M5;M1;T1 D1 M0;M3 S1000;G0 Z5.00;" + cutLine +
             "G0 Z5.00;G0 Z2.00 M5;M30;"},
        {"another tool while at the safe height goes straight up", twoLines, "1.depth=0 2.tool=2",
         targetMaskor, start + "G0 Z50.00;T7;S1000;" + secondLine + end},
        {"a safe height below that of rapids is written again", twoHoles,
         "safe=0 1/1.depth=0 1/2.depth=0 1/2.tool=2", targetWinNc,
         "T1 G43 H1;S1000 M3;G0 Z0.00;G0 X0.000 Y0.000;G0 Z0.00;G0 Z50.00 M5;G49;M0;T7 G43 H7;"
         "S1000 M3;G0 Z0.00;G0 Z0.00;G0 Z50.00 M5;G49;M30;%;"},
        {"a first group without tool and speed is machined at once", line, "1.tool=0 1.speed=0",
         targetMaskor, "G0 Z5.00;" + cutLine + end},
        {"an unknown target has no statement of its own and looks no tool up", twoHoles,
         "1/1.dwell=1 1/2.tool=9", noTarget,
         "G0 Z5.00;G0 X0.000 Y0.000;G0 Z2.00;G1 Z-1.00 F100;G0 Z2.00;G0 Z5.00;G0 Z5.00;G0 Z2.00;"
         "G1 Z-1.00 F100;G0 Z2.00;G0 Z5.00;"},
        {"a tool that is not in the list ends at the statement that names it", line, "1.tool=4",
         targetWinCam, "M1;", "there is no entry number 4 (the list runs from 1 to 3);"},
    };
    expectBodies(rows);

    JobToWrite work(twoLines);
    work.job.answers.gintOrder[1] = -3;
    work.job.answers.gintOrder[8] = 9;
    expectBody({"empty entries are skipped, a pen above 8 ends after those before it", "", "",
                targetMaskor, start + secondLine.substr(9),
                "there is no entry number 9 (the list runs from 1 to 8);"},
               work);
}

TEST(WriteGcodes, CutsPaths) {
    const std::string down = start + "G0 X0.000 Y0.000;G0 Z2.00;G1 Z-1.00 F100;";
    const Row rows[] = {
        {"a start within 0.001 of where the tool stands needs no move",
         "SP1;PD400,0;PU400.036,0;PD0,0", "", targetMaskor,
         down + "G1 X10.000 Y0.000 F300;G1 X0.000 Y0.000 F300;" + end},
        {"one that is more than 0.001 away as singles does", "SP1;PD400,0;PU400,0.0400001;PD0,0",
         "", targetMaskor,
         down +
             "G1 X10.000 Y0.000 F300;G0 Z5.00;G0 X10.000 Y0.001;G0 Z2.00;G1 Z-1.00 F100;"
             "G1 X0.000 Y0.000 F300;" +
             end},
        {"from a safe height at that of rapids the feed starts", line, "safe=2", targetMaskor,
         "T1;S1000;G0 Z2.00;G0 X0.000 Y0.000;G1 Z-1.00 F100;G1 X10.000 Y0.000 F300;G0 Z2.00;"
         "G0 Z50.00;%;"},
        {"a height of rapids at the pass level leaves nothing to feed down", line, "down=-1",
         targetMaskor, start + "G0 X0.000 Y0.000;G0 Z-1.00;G1 X10.000 Y0.000 F300;" + end},
        {"feeds are divided in double precision", line, "1.feed=2.1", targetKestra,
         kestraStart + "G0 X0.000 Y0.000;G0 Z2.00;G1 Z-1.00 F1.67;G1 X10.000 Y0.000 F0.03;" +
             kestraEnd},
        {"a step that is lost in a large level never ends", "SP1;PD0,0",
         "1.depth=1e8 1.step=1 1.final=2e8", targetMaskor,
         start + "G0 X0.000 Y0.000;G0 Z2.00;G1 X0.000 Y0.000 F300;",
         "a step of 1 mm below Z 100000000 never reaches the depth;"},
    };
    expectBodies(rows);

    JobToWrite other("SP1;PU400,400;PD0,400;PU0,0;PD400,0");
    other.job.drawing.gudtPaths[1].intType = 4;
    expectBody({"paths of another kind are passed over, their moves too", "", "", targetMaskor,
                start + cutLine + end},
               other);
}

TEST(WriteGcodes, DrillsHoles) {
    const std::string down = "G0 X10.000 Y0.000;G0 Z2.00;";
    const std::string twice = "G0 X0.000 Y0.000;G0 Z2.00;G1 Z-1.00 F100;G0 Z2.00;G0 Z5.00;G0 Z2.00;"
                              "G1 Z-1.00 F100;G0 Z2.00;";
    const Row rows[] = {
        {"holes of two sizes at one place need no move between them", twoHoles, "", targetMaskor,
         start + twice + end},
        {"pecks above the height of rapids are not fed to", hole, "down=-0.5 1/1.step=0.25",
         targetMaskor,
         start + "G0 X10.000 Y0.000;G0 Z-0.50;G1 Z-0.75 F100;G1 Z-1.00 F100;G0 Z-0.50;" + end},
        {"a peck upward never ends", hole, "1/1.step=-1", targetMaskor, start + down,
         "a step of -1 mm below Z 0 never reaches the depth;"},
        {"milliseconds are computed in double precision", hole, "1/1.dwell=0.0025", targetKestra,
         kestraStart + down + "G1 Z-1.00 F1.67;G4 P2;G0 Z2.00;" + kestraEnd},
    };
    expectBodies(rows);

    const struct {
        const char* says;
        float first, second; // radii of the sizes; the circle's own is 1
        std::string holes;
    } sizes[] = {
        {"a circle less than 0.01 from two sizes is drilled for each", 1.0099F, 0.9901F, twice},
        {"one of 1 is so near to 1.01 and 0.99 as singles", 1.01F, 0.99F, twice},
        {"sizes further off have no hole", 1.0101F, 0.9899F, ""},
    };
    for (const auto& size : sizes) {
        JobToWrite work(twoHoles);
        work.job.answers.gudtPens[1].sngRadii = {size.first, size.second};
        expectBody({size.says, "", "", targetMaskor, start + size.holes + end}, work);
    }
}

TEST(WriteGcodes, GoesDownInPasses) {
    const struct {
        const char* says;
        const char* changes;
        const char* passes; // Z and feed of each pass over a path that ends where it starts
    } rows[] = {
        {"the last pass is at full depth and at the final feed", "1.depth=5 1.step=2",
         "-2.00@300 -4.00@300 -5.00@400 "},
        {"a final pass of the whole depth roughs at the surface", "1.final=1",
         "0.00@300 -1.00@400 "},
        {"a final pass below the depth goes too deep in steps", "1.step=0.4 1.final=-0.5",
         "-0.40@300 -0.80@300 -1.20@300 "},
        {"levels are singles: three steps of 0.1 are 0.3", "1.depth=0.3 1.step=0.1",
         "-0.10@300 -0.20@300 -0.30@400 "},
        {"so is the roughing floor: a step of 0.9 reaches 1 - 0.1", "1.step=0.9 1.final=0.1",
         "-0.90@300 -1.00@400 "},
        {"a negative depth has no pass", "1.depth=-1 1.step=0.5", ""},
    };
    for (const auto& row : rows) {
        JobToWrite work("SP1;PD0,0");
        work.change("1.finalFeed=400");
        work.change(row.changes);
        std::istringstream statements(work.body(targetMaskor));
        std::string passes = work.reports;
        std::string z;
        for (std::string statement; std::getline(statements, statement, ';');) {
            const std::string words = statement.substr(0, 4);
            if (words == "G1 Z")
                z = statement.substr(4, statement.find(' ', 4) - 4);
            else if (words == "G1 X")
                passes += z + "@" + statement.substr(statement.find('F') + 1) + " ";
        }
        EXPECT_EQ(passes, row.passes) << row.says;
    }
}

TEST(CommandLine, NumbersRunFrom1To9999AndAgain) {
    Job job;
    StringSink sink;
    ProgramOutput output(sink);
    std::string expected;
    for (int i = 0; i < 10100; ++i) {
        output.CommandLine("M1");
        expected += "N" + std::to_string(i % 9999 + 1) + " M1\r\n";
    }
    output.flush();
    EXPECT_TRUE(sink.bytes() == expected);
}

// Most of them stand in the file as they stand in memory, with numbers of four digits.
TEST(BlockLines, AreWrittenWithTheNumbersThatFollow) {
    constexpr std::uint32_t lines = 12345;
    constexpr std::uint32_t few = 7;
    StringSink sink;
    ProgramOutput output(sink);
    BlockLines blocks;
    for (std::uint32_t i = 0; i < lines; ++i)
        blocks.append("G1 X" + std::to_string(i) + " F1\r\n");
    int written = 0;
    std::string expected;
    const auto pass = [&](std::uint32_t first, std::uint32_t last, const std::string& feed) {
        output.writeBlocks(blocks, first, last);
        for (std::uint32_t i = first; i < last; ++i)
            expected += "N" + std::to_string(written++ % 9999 + 1) + " G1 X" + std::to_string(i) +
                        feed + "\r\n";
        output.CommandLine("M1");
        expected += "N" + std::to_string(written++ % 9999 + 1) + " M1\r\n";
    };
    pass(0, lines, " F1");
    pass(few, 2 * few, " F1");
    pass(few, lines, " F1");
    blocks.changeEnds(" F1\r\n", " F1000\r\n");
    pass(0, lines, " F1000");
    output.flush();
    EXPECT_TRUE(sink.bytes() == expected);
}

} // namespace
} // namespace torvik
