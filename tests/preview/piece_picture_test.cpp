// SPDX-License-Identifier: MIT
#include "preview/depths.h"
#include "preview/machined_path.h"
#include "preview/piece_picture.h"
#include "tests/preview/machined_job.h"

#include <cmath>
#include <gtest/gtest.h>

namespace torvik {
namespace {

constexpr int side = 200; // pixels, 4 to a mm

struct Painted {
    QImage image;
    DepthList depths;

    QRgb at(double x, double y) const { // mm
        return image.pixel(static_cast<int>(x * 4), static_cast<int>(side - y * 4));
    }
};

Painted paint(const Job& job, const ToolList& tools, double pixelRatio = 1) {
    Logger logger;
    PieceScale piece;
    EXPECT_TRUE(
        GetPieceScale(job.drawing, job.answers, tools, {side * 15, side * 15}, piece, logger));
    Painted painted;
    const int size = static_cast<int>(side * pixelRatio);
    const auto works = worksByDepth(job.drawing, job.answers, tools);
    paintPiece(painted.image, {size, size}, plainView(4, side, pixelRatio), works, piece);
    painted.depths = depthsOf(works);
    return painted;
}

constexpr QRgb grey(int level) {
    return qRgb(level, level, level);
}

// From the point to the nearest of many points of the path.
double distanceTo(const Path& path, double x, double y) {
    double nearest = 1e9;
    for (double part = 0; part <= 1; part += 0.002) {
        double px = path.sngStartX + part * (path.sngEndX - path.sngStartX);
        double py = path.sngStartY + part * (path.sngEndY - path.sngStartY);
        if (path.intType != straightLine) {
            double sweep = path.sngAngleTo - path.sngAngleFrom;
            sweep += sweep <= 0 ? 2 * M_PI : 0;
            px = path.sngCentreX + path.sngRadius * std::cos(path.sngAngleFrom + part * sweep);
            py = path.sngCentreY + path.sngRadius * std::sin(path.sngAngleFrom + part * sweep);
        }
        nearest = std::min(nearest, std::hypot(px - x, py - y));
    }
    return nearest;
}

TEST(LngPlotColour, IsRoundedHalfToEven) {
    EXPECT_EQ(lngPlotColour(1, 0, 384), 208 * 0x010101); // 207.5
    EXPECT_EQ(lngPlotColour(3, 0, 384), 206 * 0x010101); // 206.5
}

// Whatever the shape: what the tool touches has the depth's colour, all else is untouched.
TEST(DrawPiece, ShowsJustWhatTheToolTouches) {
    const struct {
        const char* name;
        const char* drawing;
        bool drill;
    } cases[] = {
        {"a line", "SP1;PU600,800;PD1500,1300", false},
        {"a dot", "SP1;PU600,800;PD600,800", false},
        {"an arc", "SP1;PU1400,1000;AA1000,1000,200", false},
        {"a clockwise arc", "SP1;PU1400,1000;AA1000,1000,-70", false},
        {"an arc narrower than the tool", "SP1;PU1100,1000;AA1000,1000,120", false},
        {"a circle", "SP1;PU1000,1000;CI500", false},
        {"a circle narrower than the tool", "SP1;PU1000,1000;CI100", false},
        {"a drilled hole", "SP1;PU1000,1000;CI500", true},
    };
    const ToolList tools = toolsOf({8});
    for (const auto& row : cases) {
        SCOPED_TRACE(row.name);
        Job job = machinedDrawing(row.drawing, {{1, 2}});
        for (Settings& settings : job.answers.gudtSettings)
            settings = job.answers.gudtSettings[1];
        job.answers.gudtPens[1].blnDrill = row.drill;
        const Painted painted = paint(job, tools);
        const Path& path = job.drawing.gudtPaths[1];
        int wrong = 0;
        for (int y = 0; y < side; y += 3)
            for (int x = 0; x < side; x += 3) {
                const double mmX = (x + 0.5) / 4;
                const double mmY = (side - y - 0.5) / 4;
                const double distance =
                    row.drill ? std::hypot(path.sngCentreX - mmX, path.sngCentreY - mmY)
                              : distanceTo(path, mmX, mmY);
                const QRgb pixel = painted.image.pixel(x, y);
                wrong += distance < 3.75 && pixel != grey(0xC0); // a pixel's width inside
                wrong += distance > 4.25 && pixel != white;
            }
        EXPECT_EQ(wrong, 0);
    }
}

TEST(DrawPiece, DeeperWorkLiesOverShallowerAndHolesKeepTheirRims) {
    // Holes 1 mm deep, on one of which a line 5 mm deep ends; drawn first in the file. A line that
    // is left out.
    Job job = machinedDrawing("SP1;PU400,1000;PD1000,1000;SP2;PU1000,1000;CI200;PU1600,1600;CI200;"
                              "SP3;PU200,200;PD1800,200",
                              {{1, 5}, {0, 0}, {2, 1}, {1, 7}});
    job.answers.gudtPens[2].blnDrill = true;
    job.answers.gudtPens[3].blnOmit = true;
    const Painted painted = paint(job, toolsOf({2, 10}));
    EXPECT_EQ(painted.at(25, 25), grey(16));      // the line's end within the hole
    EXPECT_EQ(painted.at(27, 27.5), grey(208));   // the hole beside it
    EXPECT_GT(qGray(painted.at(20.15, 25)), 190); // the hole's rim on the line
    EXPECT_EQ(painted.at(18, 25), grey(16));      // the line outside
    EXPECT_EQ(painted.at(40, 40), grey(208));     // the other hole
    EXPECT_EQ(painted.at(25, 5), white);
    EXPECT_EQ(painted.depths.gsngDepths, (OneBasedArray<float>{1, 5}));
}

TEST(DrawPiece, AHoleThatTwoSizesClaimIsAsDeepAsTheDeeperOne) {
    // Sizes of 5 and 5.015 mm; the circle of 5.008 mm between them belongs to both.
    const struct {
        const char* says;
        std::vector<float> diameters; // of the tools for the smaller and the larger size
        Group small, large;
        int middle, edge; // greys at the middle of the hole and 4.5 mm from there
        OneBasedArray<float> depths;
    } rows[] = {
        {"the smaller size is deeper", {10, 10}, {1, 6}, {2, 2}, 0xC0, 0xC0, {6}},
        {"a wider drill leaves a step", {10, 4}, {1, 2}, {2, 6}, 16, 208, {2, 6}},
        {"a narrower drill leaves none", {4, 10}, {1, 2}, {2, 6}, 0xC0, 0xC0, {6}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.says);
        Job job = machinedDrawing("SP1;PU1000,1000;CI200;CI200.6", {{0, 0}, row.small, row.large});
        job.answers.gudtPens[1].blnDrill = true;
        ASSERT_EQ(job.answers.gudtPens[1].intRadiusCount, 2);
        job.drawing.gudtPaths = {job.drawing.gudtPaths[1]};
        job.drawing.gudtPaths[1].sngRadius = 5.008F;
        const Painted painted = paint(job, toolsOf(row.diameters));
        EXPECT_EQ(painted.at(25, 25), grey(row.middle));
        EXPECT_EQ(painted.at(29.3, 25), grey(row.edge));
        EXPECT_EQ(painted.depths.gsngDepths, row.depths);
    }
}

TEST(DrawPiece, ChordsOfACurveShowNoSeams) {
    std::string curve = "SP1;PU1500,1000;";
    for (int i = 1; i <= 180; ++i)
        curve += "PD" + std::to_string(1000 + 500 * std::cos(i * M_PI / 90)) + "," +
                 std::to_string(1000 + 500 * std::sin(i * M_PI / 90)) + ";";
    Job job = machinedDrawing(curve, {{1, 2}});
    const Painted painted = paint(job, toolsOf({4}));
    for (int i = 0; i < 360; ++i)
        for (const double radius : {11.0, 12.5, 14.0})
            EXPECT_EQ(painted.at(25 + radius * std::cos(i * M_PI / 180),
                                 25 + radius * std::sin(i * M_PI / 180)),
                      grey(0xC0));
}

TEST(DrawPiece, AToolThinnerThanAPixelStillShows) {
    for (const double ratio : {1.0, 2.0}) {
        Job job = machinedDrawing("SP1;PU401,0;PD401,2000", {{1, 2}});
        const Painted painted = paint(job, toolsOf({0.1F}), ratio);
        double ink = 0; // pixels' worth of full colour in one row
        for (int x = 0; x < painted.image.width(); ++x)
            ink += (255 - qGray(painted.image.pixel(x, 50))) / (255.0 - 0xC0);
        EXPECT_NEAR(ink, ratio, 0.1);
    }
}

} // namespace
} // namespace torvik
