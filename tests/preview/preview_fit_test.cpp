// SPDX-License-Identifier: MIT
#include "preview/path_points.h"
#include "preview/preview_fit.h"
#include "tests/preview/machined_job.h"

#include <cmath>
#include <gtest/gtest.h>

namespace torvik {
namespace {

constexpr FrameSize frame{600 * 15, 400 * 15};

LineScale lineScale(const char* drawing) {
    const Job job = readDrawing(drawing);
    Logger logger;
    LineScale scale;
    EXPECT_TRUE(GetScale(job.drawing, frame, scale, logger));
    return scale;
}

void expectNumbers(std::vector<double> found, const std::vector<double>& expected) {
    for (std::size_t i = 0; i < expected.size(); ++i)
        EXPECT_NEAR(found[i], expected[i], 0.0003 + 3e-7 * std::abs(expected[i])) << i;
}

TEST(GetScale, FitsDrawings) {
    const struct {
        const char* says;
        const char* drawing;
        double scale, offsetX, offsetY;
        double left, top, width, height; // of the picture, in twips
    } rows[] = {
        {"the width is filled", "SP1;PU400,400;PD4400,2400", 87.6, 756, 756, 0, 690, 9000, 4620},
        {"a level line keeps off", "SP1;PU400,800;PD1200,800", 438, 4260, 8640, 0, 2880, 9000, 240},
        {"a dot is scaled most", "SP1;PU40,0;PD40,0", 99999, 99879, -120, 4380, 2880, 240, 240},
        {"a circle counts with all its sides", "SP1;CI400", 288, -3000, -3000, 1500, 0, 6000, 6000},
        {"the search starts at 1000 mm", "SP1;PU80000,0;PD100000,100000", 2.304, 2184, -120, 2652,
         0, 3696, 6000},
        {"an empty drawing fills the frame", "SP1;PU4000,4000", 15, -120, -120, 0, 0, 9000, 6000},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.says);
        const auto [extents, fit, picture] = lineScale(row.drawing);
        const auto& [left, top, width, height] = picture;
        expectNumbers(
            {fit.gsngScale, fit.gsngOffsetX, fit.gsngOffsetY, left, top, width, height},
            {row.scale, row.offsetX, row.offsetY, row.left, row.top, row.width, row.height});
    }
}

TEST(GetScale, ArcsCountWithTheirBulges) {
    const struct {
        const char* name;
        const char* drawing; // radius 10 mm about 0, 0
        std::vector<double> extents;
    } cases[] = {
        {"over the top", "SP1;PU240,320;AA0,0,73.7398", {-6, 8, 6, 10}},
        {"over the angle 0", "SP1;PU240,-320;AA0,0,106.2602", {6, -8, 10, 8}},
        {"all but the right side", "SP1;PU240,320;AA0,0,253.7398", {-10, -10, 6, 10}},
        {"the same, clockwise", "SP1;PU240,-320;AA0,0,-253.7398", {-10, -10, 6, 10}},
        {"over 0 and round to the bottom", "SP1;PU-320,-240;AA0,0,253.7398", {-8, -10, 10, 10}},
        {"within a quarter", "SP1;PU320,240;AA0,0,16.2602", {6, 6, 8, 8}},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.name);
        const Extents found = lineScale(row.drawing).extents;
        expectNumbers({found.minX, found.minY, found.maxX, found.maxY}, row.extents);
    }
}

TEST(Arcs, AWholeTurnWithinAHundredthIsACircle) {
    const struct {
        float to;
        double gap; // between both ends, at a radius of 100
    } rows[] = {{6.279F, 0}, {0.009F, 0}, {6.26F, 200 * std::sin(M_PI - 3.13)}, {0.02F, 2}};
    for (const auto& row : rows) {
        Path arc{
            .intType = arcCounterClockwise, .intPen = 1, .sngAngleTo = row.to, .sngRadius = 100};
        Points points;
        appendLine(points, arc, plainView(1, 0));
        EXPECT_NEAR(
            std::hypot(points.front().x - points.back().x, points.front().y - points.back().y),
            row.gap, 1e-3)
            << row.to;
    }
}

// Chords across the curve are as close, but a third fewer; their first and last deviate most.
TEST(Arcs, ChordsLieCloseAndKeepTheEnds) {
    Path arc{.intType = arcCounterClockwise, .intPen = 1, .sngAngleTo = 3, .sngRadius = 100};
    Points points[2];
    for (const Chords chords : {Chords::within, Chords::across}) {
        Points& found = points[static_cast<std::size_t>(chords)];
        appendLine(found, arc, plainView(1, 0), chords);
        for (std::size_t i = 1; i < found.size(); ++i) {
            EXPECT_NEAR(std::hypot(found[i].x, found[i].y), 100, 0.1001);
            EXPECT_NEAR(std::hypot(found[i].x + found[i - 1].x, found[i].y + found[i - 1].y) / 2,
                        100, 1.0 / 6);
        }
        EXPECT_NEAR(std::hypot(found.front().x - 100, found.front().y), 0, 1e-4);
        EXPECT_NEAR(std::hypot(found.back().x, found.back().y), 100, 1e-4);
    }
    EXPECT_LT(points[1].size() * 4, points[0].size() * 3);
}

TEST(GetPieceScale, WidensEachPathByItsTool) {
    // Black lines, Red ones that are left out, a Blue circle drilled with a tool of 3 mm.
    Job job = machinedDrawing("SP1;PU400,400;PD4400,2400;SP2;PU400,400;PD8000,2400;"
                              "SP4;PU200,2000;CI400",
                              {{1, 4}, {0, 9}, {0, 0}, {2, 2.5F}});
    job.answers.gudtPens[2].blnOmit = true;
    job.answers.gudtPens[4].blnDrill = true;
    Logger logger;
    PieceScale piece;
    ASSERT_TRUE(GetPieceScale(job.drawing, job.answers, toolsOf({6, 3}), frame, piece, logger));
    const Extents& around = piece.extents; // from the hole to the left-out line, without a width
    expectNumbers({around.minX, around.minY, around.maxX, around.maxY}, {3.5, 7, 200, 63});
    expectNumbers(
        {piece.fit.gsngScale, piece.fit.gsngOffsetX, piece.sngShallowest, piece.sngDeepest},
        {8760 / 196.5, 8760 / 196.5 * 3.5 - 120, 2.5, 4});
}

} // namespace
} // namespace torvik
