// SPDX-License-Identifier: MIT
// The tool beside the line. Drawings are in plotter units of 1/40 mm, tools in mm.
#include "base/errors.h"
#include "prepare/beside/crossings.h"
#include "prepare/beside/pocket.h"
#include "prepare/beside/run_values.h"
#include "prepare/beside/tabs.h"
#include "prepare/placing/inside_first.h"
#include "prepare/prepare.h"
#include "tests/prepare/stroke_text.h"
#include "tests/prepare/swept.h"

#include <gtest/gtest.h>
#include <random>

namespace torvik {
namespace {

PreparedDrawing prepared(const std::string& drawing, const std::string& run,
                         const std::string& tabs = "") {
    PrepareOptions options;
    EXPECT_TRUE(run.empty() || readRun(run, options.beside)) << run;
    EXPECT_TRUE(tabs.empty() || readTabs(tabs, options.beside)) << tabs;
    return prepareDrawing(readHpgl(drawing, "test.plt"), options);
}

// To a tenth of a unit, which is 0.0025 mm: a quarter of the tolerance.
std::vector<Stroke> rounded(std::vector<Stroke> strokes) {
    const auto tenths = [](double value) { return std::round(value * 10) / 10 + 0.0; };
    const auto round = [&](Point& p) { p = {tenths(p.x), tenths(p.y)}; };
    for (Stroke& stroke : strokes) {
        round(stroke.start);
        for (Segment& segment : stroke.segments) {
            round(segment.end);
            round(segment.first);
            segment.sweep = tenths(segment.sweep);
        }
    }
    return strokes;
}

TEST(Beside, OutlinesAreRunByHalfATool) {
    const struct {
        const char *what, *drawing, *run, *strokes;
        long open, narrow;
    } rows[] = {
        {"a circle outside is one circle", "PU0,0;CI400;", "1=outside:6", "1: O0,0 r520", 0, 0},
        {"a circle inside", "PU0,0;CI400;", "1=inside:6", "1: O0,0 r280", 0, 0},
        {"a ring keeps its size on both sides", "PU0,0;CI800;CI400;", "1=outside:6",
         "1: O0,0 r280; 1: O0,0 r920", 0, 0},
        {"corners outside become arcs, the start is in the middle of an edge",
         "PU0,0;PD400,0,400,400,0,400,0,0;", "1=outside:2",
         "1: 440,200 L440,400 A400,400 90>400,440 L0,440 A0,400 90>-40,400 L-40,0 "
         "A0,0 90>0,-40 L400,-40 A400,0 90>440,0 L440,200",
         0, 0},
        {"inner corners keep what is round of the tool", "PU0,0;PD400,0,400,400,0,400,0,0;",
         "1=inside:2", "1: 200,360 L40,360 L40,40 L360,40 L360,360 L200,360", 0, 4},
        {"lines in any order and direction close",
         "PU0,0;PD400,0;PU400,400;PD0,400;"
         "PU400,400;PD400,0;PU0,0;PD0,400;",
         "1=inside:2", "1: 200,360 L40,360 L40,40 L360,40 L360,360 L200,360", 0, 4},
        {"an open line stays on the line", "PU0,0;PD400,0;", "1=outside:6", "1: 0,0 L400,0", 1, 0},
        {"another pen stays on the line", "PU0,0;CI400;", "2=outside:6", "1: O0,0 r400", 0, 0},
    };
    for (const auto& row : rows) {
        const PreparedDrawing drawing = prepared(row.drawing, row.run);
        std::string got = strokesText(rounded(drawing.strokes));
        EXPECT_EQ(got, row.strokes) << row.what;
        EXPECT_EQ(drawing.report.beside.openLines, row.open) << row.what;
        EXPECT_EQ(drawing.report.beside.unreached, row.narrow) << row.what;
    }
    EXPECT_EQ(refusal([] { prepared("PU0,0;CI40;", "1=inside:6"); }),
              "the tool of pen 1 is too wide to get in anywhere");
}

TEST(Beside, TabsAreGapsAndOutlinesThatCrossAreTold) {
    // 4 gaps of 3 + 6 mm: 360 units each, in a circle of radius 520.
    const PreparedDrawing drawing = prepared("PU0,0;CI400;", "1=outside:6", "1=2:4:3");
    ASSERT_EQ(drawing.strokes.size(), 5u);
    EXPECT_EQ(drawing.report.beside.tabs, 4);
    double cut = 0;
    for (const Stroke& stroke : drawing.strokes)
        cut += stroke.pen == 2 ? drawnLength(stroke) : 0;
    EXPECT_NEAR(cut, 2 * 3.14159265 * 520 - 4 * 360, 0.5);
    EXPECT_EQ(prepared("PU0,0;CI40;", "1=outside:6", "1=2:4:30").report.beside.withoutTabs, 1);

    const Corners eight{{0, 0}, {100, 100}, {100, 0}, {0, 100}};
    const auto places = crossingsOf(std::vector<Corners>{eight}, 10);
    ASSERT_EQ(places.size(), 1u);
    EXPECT_EQ(pointText(places[0]), "50,50");
    const Corners square{{0, 0}, {100, 0}, {100, 100}, {0, 100}};
    const Corners beside{{100, 0}, {200, 0}, {200, 100}, {100, 100}};
    EXPECT_TRUE(crossingsOf(std::vector<Corners>{square, beside}, 10).empty()) << "they only touch";
}

TEST(Beside, WhatLiesInsideComesFirst) {
    PrepareOptions options;
    options.beside.insideFirst = true;
    EXPECT_EQ(strokesText(
                  prepareDrawing(
                      readHpgl("PU0,0;CI800;CI400;PU2000,0;CI10;PU0,0;CI200;", "test.plt"), options)
                      .strokes),
              "1: O0,0 r200; 1: O0,0 r400; 1: O0,0 r800; 1: O2000,0 r10");
}

TEST(Beside, ValuesThatMeanNothingAreRefused) {
    RunOptions options;
    for (const char* const value : {"", "1", "1=outside", "9=outside:6", "1=along:6", "1=inside:0",
                                    "1=outside:6,40", "1=pocket:6,0", "1=pocket:6,x"})
        EXPECT_FALSE(readRun(value, options)) << value;
    for (const char* const value : {"1=2", "1=1:4:3", "1=2:0:3", "1=2:4:0", "1=2:4:3:1"})
        EXPECT_FALSE(readTabs(value, options)) << value;
    EXPECT_TRUE(options.runs.empty() && options.tabs.empty());
    EXPECT_TRUE(readRun("3=pocket:6,50", options));
    EXPECT_EQ(options.runs.at(3).stepPercent, 50);
}

// Stars of random corners, some with a hole.
std::vector<Corners> randomOutlines(std::mt19937& chance) {
    std::uniform_real_distribution<double> radius(300, 1500);
    std::vector<Corners> outlines(1);
    for (int i = 0; i < 12; ++i) {
        const double angle = 2 * 3.14159265 * i / 12;
        outlines[0].push_back(Point{std::cos(angle), std::sin(angle)} * radius(chance));
    }
    if (chance() % 2 == 0)
        outlines.push_back({{-100, -100}, {100, -80}, {90, 120}, {-110, 90}});
    return outlines;
}

std::string drawn(const std::vector<Corners>& outlines) {
    std::string text;
    for (const Corners& outline : outlines) {
        text += "PU" + pointText(outline.front()) + ";PD";
        for (std::size_t i = 1; i <= outline.size(); ++i)
            text += (i > 1 ? "," : "") + pointText(outline[i % outline.size()]);
        text += ";";
    }
    return text;
}

TEST(Beside, TheToolNeverEntersThePartAndClearsThePocket) {
    std::mt19937 chance(7);
    constexpr double radius = 60; // a tool of 3 mm
    constexpr double allowed = 0.02 * 40;
    for (int i = 0; i < 12; ++i) {
        const auto outlines = randomOutlines(chance);
        const Area part = Area::enclosedBy(outlines);
        const Area core = part.grown(-allowed, 0.02);
        const auto outside = prepared(drawn(outlines), "1=outside:3");
        EXPECT_LT(swept(outside.strokes, radius).within(core).size(), 1e-3) << i;
        // All of the part's wall that the tool can reach is touched.
        const Area reached = part.grown(radius, 0.02).grown(-radius, 0.02);
        const Area skin = reached.grown(2 * allowed, 0.02).without(reached.grown(allowed, 0.02));
        EXPECT_LT(skin.without(swept(outside.strokes, radius)).size(), skin.size() * 1e-3) << i;

        const auto pocket = prepared(drawn(outlines), "1=pocket:3");
        const Area cleared = swept(pocket.strokes, radius);
        EXPECT_LT(cleared.without(part.grown(allowed, 0.02)).size(), 1e-3) << i;
        const Area reachable = part.grown(-radius, 0.02).grown(radius, 0.02);
        EXPECT_LT(reachable.without(cleared).size(), reachable.size() * 1e-3) << i;
    }
}

} // namespace
} // namespace torvik
