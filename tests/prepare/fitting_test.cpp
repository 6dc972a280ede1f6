// SPDX-License-Identifier: MIT
// Chords, curves and lines as few pieces.
#include "prepare/arcs.h"
#include "prepare/fitting/fit.h"
#include "prepare/source/hpgl_source.h"
#include "stroke_text.h"

#include <gtest/gtest.h>
#include <string>

namespace torvik {
namespace {

// A polyline along a circle: `count` chords of one size.
void addChords(Stroke& stroke, Point centre, double sweep, int count) {
    const Point from = stroke.end() - centre;
    for (int i = 1; i <= count; ++i)
        stroke.segments.push_back(lineSegment(centre + rotated(from, sweep * i / count)));
}

// So many chords along a circle about the origin.
Stroke chords(Point start, double sweep, int count) {
    Stroke stroke{1, start, {}};
    addChords(stroke, {}, sweep, count);
    return stroke;
}

Stroke polygon(int corners, double radius = 100) {
    Stroke stroke = chords(rotated({radius, 0}, 10), 360, corners);
    stroke.segments.back().end = stroke.start;
    return stroke;
}

// A polygon of 24 corners, one of which is moved outwards.
Stroke dented(double by) {
    Stroke stroke = polygon(24);
    stroke.segments[5].end = stroke.segments[5].end * by;
    return stroke;
}

// One arc, whose sweep is no number that can be written.
Stroke nearlyRound(double sweep) {
    return {1, {200, 0}, {arcSegment({200, 0}, {}, sweep)}};
}

// The first stroke of a drawing.
Stroke drawn(const std::string& drawing) {
    return readHpgl(drawing, "").strokes.at(0);
}

std::vector<Stroke> fit(const Stroke& stroke, const FitOptions& options, FitReport& report) {
    std::vector<Stroke> strokes{stroke};
    fitStrokes(strokes, options, report);
    return strokes;
}

std::string fitted(const Stroke& stroke, const FitOptions& options = {}) {
    FitReport report;
    return strokesText(fit(stroke, options, report));
}

const FitOptions noArcs{0.4, 24, false};
const std::string circle = "1: O0,0 r100";

TEST(Fitting, MakesFewPiecesOfStrokes) {
    Stroke slot = drawn("PD1000,0");
    addChords(slot, {1000, 200}, 180, 12);
    slot.segments.push_back(lineSegment({0, 400}));
    addChords(slot, {0, 200}, 180, 12);
    Stroke noRadius{1, {5, 5}, {}};
    noRadius.segments.push_back(arcSegment({5, 5}, {5, 5}, 30));
    const std::string quarters = "PU100,0;PD;AA0,0,-90;AA0,0,-90;AA0,0,-90";
    const struct {
        const char* says;
        Stroke stroke;
        std::string pieces;
        FitOptions options{};
    } rows[] = {
        {"turns of 24 degrees make a circle", polygon(15), circle},
        {"larger ones do where they may", polygon(8), circle, {0.4, 45, true}},
        {"arcs of one circle are the circle", drawn(quarters + ";AA0,0,-90"), circle},
        {"arcs of a part of it are one arc", drawn(quarters), "1: 100,0 A0,0 -270>0,100"},
        {"four chords are an arc", chords({100, 0}, 60, 4), "1: 100,0 A0,0 60>50,86.603"},
        {"arcs stand between lines", slot,
         "1: 0,0 L1000,0 A1000,200 180>1000,400 L0,400 A0,200 180>0,0"},
        {"arcs that are drawn stay", drawn("PU9,0;PD;AA0,0,90"), "1: 9,0 A0,0 90>0,9", noArcs},
        {"lines in one direction are one line", drawn("PD10,0.1,20,-0.2,30,0,30,50,30,99"),
         "1: 0,0 L30,0 L30,99"},
        {"a line that comes back stays", drawn("PD100,0,50,0"), "1: 0,0 L100,0 L50,0"},
        {"a point within the tolerance goes", drawn("PD50,0.39,100,0"), "1: 0,0 L100,0"},
        {"a point outside stays", drawn("PD50,0.41,100,0"), "1: 0,0 L50,0.41 L100,0"},
        {"an arc that lacks 0.04 of its circle is the circle", nearlyRound(359.98854),
         "1: O0,0 r200"},
        // 200 units and 0.1719 degrees: the end lies 0.6 below the start and 0.0009 left of it.
        {"one that lacks 0.6 keeps its place", nearlyRound(359.82814),
         "1: 200,0 A0,0 359.828>199.999,-0.6"},
        {"a straight curve is a line", drawn("PD;BZ30,0,60,0,90,0"), "1: 0,0 L90,0"},
        {"what is too small to be written goes", drawn("PD0.00001,0"), ""},
        {"and an arc of no radius", noRadius, ""},
        {"a dot stays", {1, {5, 5}, {}}, "1: 5,5"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(fitted(row.stroke, row.options), row.pieces) << row.says;
}

TEST(Fitting, LeavesLinesThatAreNoChords) {
    // The corners are on a circle, but what stands between them is not.
    Stroke pointedSides{1, polygon(16, 1000).start, {}};
    for (const Segment& side : polygon(16, 1000).segments) {
        pointedSides.segments.push_back(lineSegment((pointedSides.end() + side.end) * 0.5));
        pointedSides.segments.push_back(side);
    }
    const struct {
        const char* says;
        Stroke stroke;
        FitOptions options{};
    } rows[] = {
        {"turns of more than 24 degrees", polygon(14)},
        {"smaller ones where they may not be so large", polygon(20), {0.4, 10, true}},
        {"chords where no arcs are wanted", polygon(16), noArcs},
        {"sides with points of their own", pointedSides},
        {"three chords", chords({200, 0}, 45, 3)},
        {"few chords that turn far", chords({300, 0}, 125, 5)},
    };
    for (const auto& row : rows)
        EXPECT_EQ(fitted(row.stroke, row.options), strokesText({&row.stroke, 1})) << row.says;
}

TEST(Fitting, MakesPiecesOfTheseKinds) {
    Stroke wave = chords({0, -300}, 90, 12);
    addChords(wave, wave.end() + Point{500, 0}, -90, 12);
    Stroke longLine = chords({2000, 0}, 1, 2);
    addChords(longLine, {}, 20, 1);
    addChords(longLine, {}, 1, 2);
    const Point besideAxis{1000 * std::cos(0.001), 1000 * std::sin(0.001)};
    const Point farOff{1e6, 5000};
    const struct {
        const char* says;
        Stroke stroke;
        const char* kinds;
    } rows[] = {
        {"an arc ends where its centre changes sides", wave, "AA"},
        {"a long line between short chords stays straight", longLine, "LLL"},
        {"an arc that begins beside the X axis, which the reader takes for on it, is led in",
         {1, besideAxis, {arcSegment(besideAxis, {}, 90)}},
         "LA"},
        {"an arc too large for the digits of its sweep is lines",
         {1, farOff, {arcSegment(farOff, {0, 5000}, 0.2)}},
         "LLL"},
    };
    for (const auto& row : rows) {
        std::string kinds = fitted(row.stroke);
        std::erase_if(kinds, [](char c) { return c < 'A' || c > 'Z'; });
        EXPECT_EQ(kinds, row.kinds) << row.says;
    }
}

// Corners at whole units, as drawing programs write them: the best centre is between them.
TEST(Circles, AreFoundByTheBestCentre) {
    const Stroke hole = drawn("PU156,156;PD179,141,206,135,233,141,256,156,272,179,277,206,272,233,"
                              "256,256,233,272,206,277,179,272,156,256,141,233,135,206,141,179,"
                              "156,156");
    FitReport report;
    const Stroke found = fit(hole, {0.388, 24, true}, report).at(0);
    ASSERT_TRUE(found.isCircle());
    EXPECT_EQ(report.circles, 1);
    EXPECT_LE(report.largestDeviation, 0.388);
    const Point centre = found.segments[0].first;
    for (const Segment& corner : hole.segments)
        EXPECT_NEAR(distance(corner.end, centre), distance(found.start, centre), 0.389);
}

TEST(Circles, AreArcsThatAllButEndWhereTheyBegan) {
    const auto isCircle = [](double sweep) {
        FitReport report;
        const Point start{100, 0};
        return fit({1, start, {arcSegment(start, {}, sweep)}}, {}, report).at(0).isCircle();
    };
    EXPECT_TRUE(isCircle(-359.8)); // a gap of 0.35
    EXPECT_TRUE(isCircle(360.2));
    EXPECT_FALSE(isCircle(359.7)); // of 0.52
}

TEST(Circles, NearMissesAreReportedWithTheToleranceThatTakesThem) {
    const auto isCircle = [](double by, double tolerance) {
        FitReport report;
        return fit(dented(by), {tolerance, 24, true}, report).at(0).isCircle();
    };
    EXPECT_TRUE(isCircle(1.003, 0.4));
    EXPECT_FALSE(isCircle(1.01, 0.4));
    FitReport report;
    fit(dented(1.014), {}, report);
    EXPECT_EQ(report.nearCircles, 1);
    EXPECT_GT(report.nearCircleTolerance, 0.4);
    EXPECT_TRUE(isCircle(1.014, report.nearCircleTolerance * 1.001));
}

TEST(Curves, BecomeFewPieces) {
    FitReport report;
    const auto strokes = fit(drawn("PD;BZ0,800,1200,800,1200,0"), {}, report);
    EXPECT_EQ(report.curves, 1);
    EXPECT_LE(strokes[0].segments.size(), 16U);
}

} // namespace
} // namespace torvik
