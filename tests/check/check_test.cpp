// SPDX-License-Identifier: MIT
// Each kind of finding in the good program with one line changed.
#include "check/check.h"
#include "check/finding_rows.h"
#include "tests/check/good_program.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace torvik::check {
namespace {

using Texts = std::vector<std::string>;

struct Row {
    const char* name;
    std::size_t at; // the line that is changed
    const char* text;
    Kind kind;
    std::uint32_t line; // where it is found
};

const Row rows[]{
    {"a bell stands in a line", 13, "G0 Z5.00\a", Kind::lineEnd, 13},
    {"a number is left out", 13, "N7 G0 Z5.00", Kind::lineNumber, 13},
    {"a number has a zero before it", 13, "N06 G0 Z5.00", Kind::lineNumber, 13},
    {"a line is of another control", 47, "G4 X0.50", Kind::statement, 47},
    {"two blanks stand between words", 13, "G0  Z5.00", Kind::statement, 13},
    {"a blank stands at the end", 13, "G0 Z5.00 ", Kind::statement, 13},
    {"a comment stands among the statements", 13, "(up)\nG0 Z5.00", Kind::statement, 13},
    {"the zero point is set again", 13, "G0 Z5.00\nG54", Kind::statement, 14},
    {"a stop leads to no tool", 36, "M0\nG0 Z5.00", Kind::statement, 36},
    {"a place has two decimals", 14, "G0 X10.00 Y10.000", Kind::number, 14},
    {"a number has a decimal comma", 14, "G0 X10,000 Y10.000", Kind::number, 14},
    {"a zero has a sign", 35, "G2 X65.000 Y30.000 I-5.000 J-0.000 F10.00", Kind::number, 35},
    {"a feed has no decimals", 16, "G1 Z-1.00 F3", Kind::number, 16},
    {"the first line is missing", 1, "", Kind::opening, 1},
    {"the first line is another one", 1, "%%", Kind::opening, 1},
    {"the zero point is missing", 10, "", Kind::opening, 10},
    {"the last line is missing", 81, "", Kind::ending, 80},
    {"the end is missing before it", 80, "", Kind::ending, 80},
    {"lines follow behind the end", 81, "%\nG0 Z5.00", Kind::ending, 82},
    {"the program ends in its middle", 36, "M30\nG0 Z5.00", Kind::ending, 36},
    {"a bracket stands in a comment", 2, "(Name of Part - Badge (2))", Kind::comment, 2},
    {"a comment does not close", 2, "(Name of Part - Badge", Kind::comment, 2},

    {"the way up is missing behind a cut", 31, "", Kind::rapidSideways, 31},
    {"a quick move ends at the surface", 33, "G0 Z0.00", Kind::rapidDown, 33},
    {"the way up is missing behind a hole", 56, "", Kind::lowRapid, 56},
    {"a height is used nowhere else", 48, "G0 Z3.00", Kind::oddHeight, 48},
    {"the tool goes across at the tool change height", 42, "", Kind::oddHeight, 42},
    {"the first way across is missing", 14, "", Kind::unknownPlace, 15},
    {"the way down is missing before a cut", 34, "", Kind::airCut, 34},
    {"a way down ends above the material", 45, "G1 Z1.00 F1.00", Kind::airCut, 45},
    {"a way down leads up", 21, "G1 Z-0.50 F2.50", Kind::upwardFeed, 21},
    {"a cut is missing", 35, "", Kind::emptyPlunge, 34},
    {"the way across to a hole is missing", 57, "", Kind::lostRapid, 57},
    {"the program ends below the tool change height", 78, "G0 Z5.00 M5", Kind::endHeight, 81},
    {"a cut goes along the surface", 34, "G1 Z0.00 F2.50", Kind::surfaceCut, 35},
    {"the quick way down is missing", 33, "", Kind::slowPlunge, 33},

    {"the tool is changed at the safe height", 37, "G0 Z5.00 M5", Kind::toolLow, 40},
    {"the spindle is not stopped", 37, "G0 Z50.00", Kind::toolSpinning, 40},
    {"the stop before a tool is missing", 39, "", Kind::toolStop, 39},
    {"the tools are taken in another order", 11, "T8 G43 H8", Kind::toolOrder, 11},
    {"a listed tool is not taken", 7,
     "(Second tool - T8 5.0mm Drill)\n(Third tool - T9 1.0mm Drill)", Kind::toolOrder, 82},
    {"a tool has the offset of another", 40, "T8 G43 H3", Kind::toolOffset, 40},
    {"a tool is not in the list", 40, "T9 G43 H9", Kind::toolUnlisted, 40},
    {"the speed is missing behind a tool", 41, "", Kind::spindleOff, 44},
    {"the speed is 0", 41, "S0 M3", Kind::spindleZero, 41},
    {"the spindle turns at the end", 78, "G0 Z50.00", Kind::spindleLeftOn, 81},
    {"the speed is very low", 41, "S12 M3", Kind::spindleOdd, 41},

    {"a cut has no feed", 35, "G2 X65.000 Y30.000 I-5.000 J0.000", Kind::feedMissing, 35},
    {"a feed is 0", 34, "G1 Z-3.00 F0.00", Kind::feedZero, 34},
    {"a feed is ten times too high", 34, "G1 Z-3.00 F250.00", Kind::feedOdd, 34},
    {"one cut of a pass has another feed", 29, "G3 X10.000 Y30.000 I-10.000 J0.000 F11.00",
     Kind::feedOdd, 29},
    {"the drill waits for a minute", 47, "G4 P60000", Kind::dwellOdd, 47},
    {"the drill waits above its hole", 49, "G4 P500\nG0 Z5.00", Kind::dwellOdd, 49},

    {"I and J are exchanged", 19, "G3 X10.000 Y30.000 I0.000 J-10.000 F10.00", Kind::arcMisses, 19},
    {"an arc has no centre", 35, "G2 X65.000 Y30.000 I0.000 J0.000 F10.00", Kind::arcNoRadius, 35},
    {"a circle's end passes its start", 35, "G2 X65.000 Y29.998 I-5.000 J0.000 F10.00",
     Kind::arcCollapsed, 35},
    {"a circle's end lies beside its start", 35, "G2 X65.002 Y30.000 I-5.000 J0.000 F10.00",
     Kind::arcOneAngle, 35},

    {"a hole leads far into the table", 5, "(Billet Depth Z - 0.9mm)", Kind::tooDeep, 46},
    {"a cut goes through", 5, "(Billet Depth Z - 4mm)", Kind::through, 46},
    {"an arc bulges out of the billet", 4, "(Billet Width Y - 39.9mm)", Kind::outside, 19},
    {"the cuts are wider than the billet", 3, "(Billet Length X - 54mm)", Kind::tooWide, 81},
    {"a cut of the second pass is missing", 22, "", Kind::passDiffers, 22},
    {"a pass is missing", 21, "G1 Z-2.40 F2.50", Kind::passDiffers, 22},
    {"one hole has another depth", 60, "G1 Z-3.50 F1.00", Kind::holeDiffers, 59},
    {"a hole goes down in uneven steps", 45, "G1 Z-0.50 F1.00", Kind::holeDiffers, 45},
    {"a hole is drilled twice", 71, "G0 X20.000 Y50.000", Kind::holeTwice, 73},
};

TEST(Check, AGoodProgramHasNoFinding) {
    EXPECT_EQ(shown(checkProgram(changedProgram(0, ""))), Texts{});
}

TEST(Check, EachKindIsFoundAtItsLine) {
    std::set<Kind> seen{Kind::noTool, Kind::noList}; // below
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const Report report = checkProgram(changedProgram(row.at, row.text));
        const Texts found = shown(report);
        const std::string wanted =
            std::string(rowOf(row.kind).name) + " " + std::to_string(row.line);
        EXPECT_EQ(std::count(found.begin(), found.end(), wanted), 1)
            << wanted << " in " << testing::PrintToString(found);
        const std::size_t own = rowOf(row.kind).level == Level::danger ? 1 : 0;
        EXPECT_EQ(shown(report, Level::danger).size(), own) << testing::PrintToString(found);
        seen.insert(row.kind);
    }
    // Those of the plan, and of the job's sense, have their own tests.
    for (const KindRow& row : kinds().first(static_cast<std::size_t>(Kind::holeTwice) + 1))
        if (row.kind < Kind::elementLost || row.kind > Kind::clampedArc) {
            EXPECT_TRUE(seen.contains(row.kind)) << row.name << " has no row";
        }
}

TEST(Check, WithoutToolAndList) {
    const std::string program = "%\r\nN1 G0 Z5.00\r\nN2 G0 X1.000 Y1.000\r\nN3 G1 Z-1.00 F60\r\n"
                                "N4 G1 X2.000 Y1.000 F60\r\n";
    EXPECT_EQ(shown(checkProgram(program + "N5 G0 Z5.00\r\n%\r\n")), Texts{"no-tool 4"});
    EXPECT_EQ(shown(checkProgram("%\r\nN1 T1\r\nN2 S900\r\nN3 G0 Z5.00\r\n%\r\n")),
              Texts{"no-list 1"});
}

TEST(Check, LinesThatEndOtherwise) {
    std::string program = changedProgram(0, "");
    program.resize(program.size() - 2);
    EXPECT_EQ(shown(checkProgram(program)), Texts{"line-end 81"});
    program.erase(std::remove(program.begin(), program.end(), '\r'), program.end());
    const Report report = checkProgram(program);
    EXPECT_EQ(report.findings.count(Kind::lineEnd), 81U);
    EXPECT_EQ(report.findings.byLine().size(), Findings::keptOfKind);
    const std::vector<FindingRow> told = findingRows(report.findings);
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told[0].where(), "line 1 and 80 more");
}

// Two pens of one tool and one speed, each a line cut in passes; the numbers are the heights.
std::string twoPens(const Texts& heights, const char* secondPen) {
    std::string program = "%\r\n*Tool - T1 6.0mm Slot drill\r\nN1 T1\r\nN2 S900\r\n";
    int block = 2;
    const auto put = [&](const std::string& text) {
        program += "N" + std::to_string(++block) + " " + text + "\r\n";
    };
    for (const std::string& height : heights) {
        const bool isSecond = height.starts_with(secondPen);
        put("G0 Z5.00");
        put(isSecond ? "G0 X50.000 Y50.000" : "G0 X10.000 Y10.000");
        put("G0 Z2.00");
        put("G1 Z-" + height.substr(height.find(' ') + 1) + " F60");
        put(isSecond ? "G1 X60.000 Y50.000 F600" : "G1 X20.000 Y10.000 F600");
    }
    put("G0 Z5.00");
    put("G0 Z50.00");
    return program + "%\r\n";
}

TEST(Check, PensOfOneToolAreNotTakenForPassesOfOnePen) {
    const Texts good[]{
        {"a 1.00", "a 2.00", "b 2.00", "b 4.00"},           // the second pen has larger steps
        {"a 1.00", "b 1.00", "b 2.00"},                     // the first pen has one pass
        {"a 1.00", "a 2.00", "a 2.30", "a 2.45", "b 3.00"}, // a rest and a final pass
    };
    for (const Texts& heights : good)
        EXPECT_EQ(shown(checkProgram(twoPens(heights, "b"))), Texts{}) << heights.back();
    EXPECT_EQ(shown(checkProgram(twoPens({"a 1.00", "a 3.00"}, "b"))), Texts{"pass-differs 14"});
}

} // namespace
} // namespace torvik::check
