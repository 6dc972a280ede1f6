// SPDX-License-Identifier: MIT
// Chords, curves and lines as few pieces.
#include "prepare/arcs.h"
#include "prepare/fitting/fit.h"
#include "prepare/fitting/line_fit.h"
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

Stroke polygon(Point centre, double radius, int corners, double firstAngle = 10) {
    Stroke stroke{1, centre + rotated({radius, 0}, firstAngle), {}};
    addChords(stroke, centre, 360, corners);
    stroke.segments.back().end = stroke.start;
    return stroke;
}

Stroke polyline(std::vector<Point> points) {
    Stroke stroke{1, points.front(), {}};
    for (std::size_t i = 1; i < points.size(); ++i)
        stroke.segments.push_back(lineSegment(points[i]));
    return stroke;
}

std::string fitted(const Stroke& stroke, const FitOptions& options = {}) {
    std::vector<Stroke> strokes{stroke};
    FitReport report;
    fitStrokes(strokes, options, report);
    return strokesText(strokes);
}

std::string kinds(const Stroke& stroke, const FitOptions& options = {}) {
    std::string text;
    std::vector<Stroke> strokes{stroke};
    FitReport report;
    fitStrokes(strokes, options, report);
    for (const Segment& segment : strokes.at(0).segments)
        text += strokes[0].isCircle() ? 'O' : isArc(segment) ? 'A' : 'L';
    return text;
}

TEST(Circles, AreMadeOfPolygonsWithNoTurnOver24Degrees) {
    EXPECT_EQ(fitted(polygon({500, 400}, 100, 16)), "1: O500,400 r100");
    EXPECT_EQ(fitted(polygon({500, 400}, 100, 15)), "1: O500,400 r100");
    EXPECT_EQ(kinds(polygon({500, 400}, 100, 14)), std::string(14, 'L'));
    EXPECT_EQ(kinds(polygon({0, 0}, 100, 8)), "LLLLLLLL") << "an octagon stays an octagon";
    EXPECT_EQ(kinds(polygon({0, 0}, 100, 8), {0.4, 45, true}), "O") << "unless it is round enough";
}

TEST(Circles, NeedEveryCornerWithinTheTolerance) {
    Stroke dented = polygon({0, 0}, 100, 24);
    dented.segments[5].end = dented.segments[5].end * 1.003;
    EXPECT_EQ(kinds(dented), "O") << "0.3 units are within the tolerance";
    dented.segments[5].end = dented.segments[5].end * 1.01;
    EXPECT_NE(kinds(dented), "O");
}

// Corners at whole units, as drawing programs write them: the best centre is between them.
TEST(Circles, AreFoundByTheBestCentre) {
    // The outline as the differences of its corners.
    const int steps[] = {23,  -15, 27,  -6,  27, 6,   23, 15,  16, 23,  5,
                         27,  -5,  27,  -16, 23, -23, 16, -27, 5,  -27, -5,
                         -23, -16, -15, -23, -6, -27, 6,  -27, 15, -23};
    std::vector<Point> corners{{156, 156}};
    for (std::size_t i = 0; i < std::size(steps); i += 2)
        corners.push_back(corners.back() + Point{steps[i] * 1.0, steps[i + 1] * 1.0});
    const Stroke hole = polyline(corners);
    std::vector<Stroke> strokes{hole};
    FitReport report;
    fitStrokes(strokes, {0.388, 24, true}, report);
    ASSERT_TRUE(strokes[0].isCircle());
    EXPECT_EQ(report.circles, 1);
    EXPECT_LE(report.largestDeviation, 0.388);
    for (const Segment& corner : hole.segments)
        EXPECT_NEAR(distance(corner.end, strokes[0].segments[0].first),
                    distance(strokes[0].start, strokes[0].segments[0].first), 0.389);
}

TEST(Circles, NearMissesAreReportedWithTheToleranceThatTakesThem) {
    Stroke dented = polygon({0, 0}, 100, 24);
    dented.segments[5].end = dented.segments[5].end * 1.014;
    std::vector<Stroke> strokes{dented};
    FitReport report;
    fitStrokes(strokes, {}, report);
    EXPECT_EQ(report.nearCircles, 1);
    ASSERT_GT(report.nearCircleTolerance, 0.4);
    EXPECT_EQ(kinds(dented, {report.nearCircleTolerance * 1.001, 24, true}), "O");
}

// Its corners are on a circle, but what stands between them is not.
TEST(Circles, AreNotMadeOfSidesWithPointsOfTheirOwn) {
    const Stroke bare = polygon({0, 0}, 1000, 16);
    Stroke stroke{1, bare.start, {}};
    for (const Segment& side : bare.segments) {
        stroke.segments.push_back(lineSegment((stroke.end() + side.end) * 0.5));
        stroke.segments.push_back(side);
    }
    EXPECT_EQ(kinds(stroke), std::string(32, 'L'));
}

TEST(Circles, AreMadeOfArcsOfOneCircle) {
    Stroke stroke{1, {100, 0}, {}};
    for (int i = 0; i < 4; ++i)
        stroke.segments.push_back(arcSegment(stroke.end(), {0, 0}, -90));
    EXPECT_EQ(fitted(stroke), "1: O0,0 r100");
    stroke.segments.pop_back();
    EXPECT_EQ(fitted(stroke), "1: 100,0 A0,0 -270>0,100");
}

TEST(Arcs, AreMadeOfFourChordsButNotOfThree) {
    Stroke stroke{1, {300, 0}, {}};
    addChords(stroke, {100, 0}, 60, 4);
    EXPECT_EQ(fitted(stroke), "1: 300,0 A100,0 60>200,173.205");
    stroke.segments.pop_back();
    EXPECT_EQ(kinds(stroke), "LLL");
}

TEST(Arcs, StandBetweenLines) {
    // A slot: two straight sides and two round ends.
    Stroke slot{1, {0, 0}, {lineSegment({1000, 0})}};
    addChords(slot, {1000, 200}, 180, 12);
    slot.segments.push_back(lineSegment({0, 400}));
    addChords(slot, {0, 200}, 180, 12);
    EXPECT_EQ(fitted(slot), "1: 0,0 L1000,0 A1000,200 180>1000,400 L0,400 A0,200 180>0,0");
}

TEST(Arcs, ChangeWhereTheRadiusOrTheSenseChanges) {
    Stroke wave{1, {0, 0}, {}};
    addChords(wave, {0, 300}, 90, 12);
    addChords(wave, wave.end() + Point{500, 0}, -90, 12);
    EXPECT_EQ(kinds(wave), "AA");
}

TEST(Arcs, AreNotMadeOfChordsThatTurnTooFar) {
    Stroke stroke{1, {300, 0}, {}};
    addChords(stroke, {0, 0}, 125, 5);
    EXPECT_EQ(kinds(stroke), "LLLLL");
}

TEST(Arcs, LeaveALongLineBetweenShortChordsStraight) {
    Stroke stroke{1, {2000, 0}, {}};
    addChords(stroke, {0, 0}, 1, 2);
    addChords(stroke, {0, 0}, 20, 1);
    addChords(stroke, {0, 0}, 1, 2);
    EXPECT_EQ(kinds(stroke).find('A'), std::string::npos);
}

TEST(Arcs, AreNotMadeWhereTheyAreNotWanted) {
    FitOptions options;
    options.arcs = false;
    EXPECT_EQ(kinds(polygon({0, 0}, 100, 16), options), std::string(16, 'L'));
    Stroke own{1, {100, 0}, {arcSegment({100, 0}, {0, 0}, 90)}};
    EXPECT_EQ(kinds(own, options), "A") << "the drawing's own arcs stay";
}

// The reader takes a direction near the X axis for the axis.
TEST(Arcs, ThatBeginBesideTheAxisAreLedInByALine) {
    const Point start{1000 * std::cos(0.001), 1000 * std::sin(0.001)};
    EXPECT_EQ(kinds({1, start, {arcSegment(start, {0, 0}, 90)}}), "LA");
    EXPECT_EQ(kinds({1, {1000, 0}, {arcSegment({1000, 0}, {0, 0}, 90)}}), "A");
}

TEST(Arcs, TooLargeForTheDigitsOfASweepBecomeLines) {
    const Point start{1e6, 5000};
    EXPECT_EQ(kinds({1, start, {arcSegment(start, {0, 5000}, 0.2)}}), "LLL");
}

TEST(Lines, InOneDirectionBecomeOne) {
    EXPECT_EQ(fitted(polyline({{0, 0}, {10, 0.1}, {20, -0.2}, {30, 0}, {30, 50}, {30, 99}})),
              "1: 0,0 L30,0 L30,99");
    EXPECT_EQ(fitted(polyline({{0, 0}, {100, 0}, {50, 0}})), "1: 0,0 L100,0 L50,0");
    EXPECT_EQ(fitted(polyline({{0, 0}, {50, 0.39}, {100, 0}})), "1: 0,0 L100,0");
    EXPECT_EQ(fitted(polyline({{0, 0}, {50, 0.41}, {100, 0}})), "1: 0,0 L50,0.41 L100,0");
    EXPECT_EQ(fitted({1, {0, 0}, {curveSegment({30, 0}, {60, 0}, {90, 0})}}), "1: 0,0 L90,0");
}

TEST(Lines, CornersOfCornersAreTheSameCorners) {
    std::vector<Point> points;
    points.reserve(500);
    for (int i = 0; i < 500; ++i)
        points.push_back({i * 1.0, 3 * std::sin(i * 0.7) * std::sin(i * 0.013)});
    std::vector<Point> corners;
    const auto first = findCorners(points, 0.4);
    for (std::size_t i = 0; i < points.size(); ++i)
        if (first[i])
            corners.push_back(points[i]);
    ASSERT_LT(corners.size(), points.size());
    const auto again = findCorners(corners, 0.4);
    EXPECT_EQ(std::count(again.begin(), again.end(), true), std::ssize(corners));
}

TEST(Curves, BecomeFewArcsCloseToThem) {
    const Segment curve = curveSegment({0, 800}, {1200, 800}, {1200, 0});
    std::vector<Stroke> strokes{{1, {0, 0}, {curve}}};
    FitReport report;
    fitStrokes(strokes, {}, report);
    EXPECT_EQ(report.curves, 1);
    EXPECT_LE(strokes[0].segments.size(), 16U);
    for (int i = 0; i <= 100; ++i) {
        const Point point = pointOnCurve({0, 0}, curve, i / 100.0);
        double nearest = HUGE_VAL;
        Point from = strokes[0].start;
        for (const Segment& piece : strokes[0].segments) {
            nearest = std::min(nearest, isArc(piece) ? distanceToArc(from, piece, point)
                                                     : distanceToLine(from, piece.end, point));
            from = piece.end;
        }
        EXPECT_LE(nearest, 0.41) << i;
    }
}

TEST(Strokes, TooSmallToBeWrittenGo) {
    EXPECT_EQ(fitted(polyline({{0, 0}, {0.00001, 0}})), "");
    EXPECT_EQ(fitted({1, {5, 5}, {}}), "1: 5,5") << "a dot is no such stroke";
}

} // namespace
} // namespace torvik
