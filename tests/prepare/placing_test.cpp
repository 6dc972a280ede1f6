// SPDX-License-Identifier: MIT
// Where strokes lie, which pens draw them, and in which order.
#include "base/errors.h"
#include "prepare/arcs.h"
#include "prepare/placing/join.h"
#include "prepare/placing/order.h"
#include "prepare/placing/place.h"
#include "stroke_text.h"

#include <gtest/gtest.h>
#include <random>

namespace torvik {
namespace {

Stroke line(int pen, Point from, Point to) {
    return {pen, from, {lineSegment(to)}};
}

std::string placed(const Placement& placement) {
    // An angle with an arc: 10 to 40 in X, 20 to 40 in Y.
    std::vector<Stroke> strokes{{1, {10, 20}, {lineSegment({30, 20})}}};
    strokes[0].segments.push_back(arcSegment({30, 20}, {30, 30}, 90));
    place(strokes, placement);
    return strokesText(strokes);
}

TEST(Placement, MovesScalesMirrorsAndTurnsOnThePaper) {
    EXPECT_EQ(placed({}), "1: 10,20 L30,20 A30,30 90>40,30");
    EXPECT_EQ(placed({2, Mirror::none, 0, {}}), "1: 20,40 L60,40 A60,60 90>80,60");
    EXPECT_EQ(placed({1, Mirror::leftRight, 0, {}}), "1: 40,20 L20,20 A20,30 -90>10,30");
    EXPECT_EQ(placed({1, Mirror::upDown, 0, {}}), "1: 10,30 L30,30 A30,20 -90>40,20");
    EXPECT_EQ(placed({1, Mirror::none, 90, {}}), "1: 20,20 L20,40 A10,40 90>10,50");
    EXPECT_EQ(placed({1, Mirror::none, 180, {}}), "1: 40,30 L20,30 A20,20 90>10,20");
    EXPECT_EQ(placed({1, Mirror::none, 0, Point{-5, 0}}), "1: -5,0 L15,0 A15,10 90>25,10");
    EXPECT_EQ(placed({0.5, Mirror::leftRight, 0, Point{0, 0}}), "1: 15,0 L5,0 A5,5 -90>0,5");
    EXPECT_THROW(placed({1e6, Mirror::none, 0, {}}), RunTimeError);
    EXPECT_THROW(placed({1, Mirror::none, 0, Point{0, -1e7}}), RunTimeError);
}

TEST(Placing, GoesByTheDrawnCurve) {
    // The parabola's top lies at half its control points' height, the wave's ends at a fifth.
    std::vector<Stroke> strokes{{1, {0, 0}, {curveSegment({0, -40}, {30, -40}, {30, 0})}}};
    place(strokes, {1, Mirror::none, 0, Point{0, 0}});
    EXPECT_EQ(strokesText(strokes), "1: 0,30 B0,-10 30,-10>30,30");
    const StrokeExtents wave =
        extentsOf(std::vector<Stroke>{{1, {0, 0}, {curveSegment({10, 30}, {20, -30}, {30, 0})}}});
    EXPECT_NEAR(wave.high.y, 30 / std::sqrt(12.0), 1e-9);
    EXPECT_NEAR(wave.low.y, -30 / std::sqrt(12.0), 1e-9);
    EXPECT_NEAR(wave.high.x, 30, 1e-9);
}

TEST(Pens, AreMappedAndAbove8Refused) {
    std::vector<Stroke> strokes{line(12, {}, {1, 0}), line(3, {}, {1, 0}), line(9, {}, {1, 0})};
    auto mapped = strokes;
    mapped.push_back(line(0, {}, {1, 0}));
    auto withPenZero = mapped;
    EXPECT_EQ(mapPens(mapped, {{12, 1}, {9, 3}, {3, 4}}).size(), 1U);
    EXPECT_TRUE(mapPens(withPenZero, {{0, 2}, {12, 1}, {9, 3}}).empty());
    EXPECT_EQ(withPenZero.back().pen, 2);
    EXPECT_EQ(strokesText(mapped), "1: 0,0 L1,0; 4: 0,0 L1,0; 3: 0,0 L1,0");
    EXPECT_THROW(mapPens(strokes, {}), RunTimeError);
}

TEST(Dots, BecomeCirclesOrGo) {
    const std::vector<Stroke> strokes{
        {2, {5, 5}, {}}, line(1, {}, {1, 0}), circleStroke(3, {7, 7}, 0.00004)};
    auto circles = strokes;
    EXPECT_EQ(replaceDots(circles, 8), 2);
    EXPECT_EQ(strokesText(circles), "2: O5,5 r4; 1: 0,0 L1,0; 3: O7,7 r4");
    auto none = strokes;
    EXPECT_EQ(replaceDots(none, {}), 2);
    EXPECT_EQ(strokesText(none), "1: 0,0 L1,0");
}

TEST(Joining, TakesStrokesThatGoOnWhereOneEnded) {
    std::vector<Stroke> strokes{line(1, {0, 0}, {9, 0}), line(1, {9, 0}, {9, 9}),
                                line(2, {9, 9}, {0, 0}), line(2, {1, 0}, {2, 0})};
    EXPECT_EQ(joinTouching(strokes), 1);
    EXPECT_EQ(strokesText(strokes), "1: 0,0 L9,0 L9,9; 2: 9,9 L0,0; 2: 1,0 L2,0");
}

TEST(Joining, LeavesClosedStrokesCirclesAndDotsByThemselves) {
    const Stroke closed{1, {0, 0}, {lineSegment({9, 0}), lineSegment({9, 9}), lineSegment({0, 0})}};
    std::vector<Stroke> strokes{
        closed,          line(1, {0, 0}, {5, 5}), closed,
        {1, {0, 0}, {}}, line(1, {0, 0}, {0, 4}), circleStroke(1, {0, 0}, 4)};
    EXPECT_EQ(joinTouching(strokes), 0);
    EXPECT_EQ(strokes.size(), 6U);
}

TEST(Duplicates, GoWhicheverWayTheyAreDrawn) {
    std::vector<Stroke> strokes{
        line(1, {0, 0}, {9, 0}),
        {1, {9, 9}, {lineSegment({9, 0}), lineSegment({0, 0}), lineSegment({0, 5})}},
        line(2, {9, 0}, {0, 0}),
        circleStroke(1, {5, 5}, 2),
        circleStroke(1, {5, 5}, 2),
        {1, {1, 0}, {arcSegment({1, 0}, {0, 0}, 90)}},
        {1, {0, 1}, {arcSegment({0, 1}, {0, 0}, -90)}},
        {1, {0, 1}, {arcSegment({0, 1}, {0, 0}, 270)}}};
    EXPECT_EQ(dropDuplicates(strokes), 3);
    EXPECT_EQ(strokesText(strokes),
              "1: 0,0 L9,0; 1: 9,9 L9,0; 1: 0,0 L0,5; 2: 9,0 L0,0; 1: O5,5 r2; 1: 1,0 A0,0 90>0,1; "
              "1: 0,1 A0,0 270>1,0");
}

TEST(Order, GoesToTheNearestEndAndTurnsStrokesRound) {
    std::vector<Stroke> strokes{line(2, {90, 0}, {60, 0}), line(1, {100, 0}, {70, 0}),
                                line(1, {40, 0}, {10, 0}), circleStroke(1, {55, 0}, 5)};
    orderStrokes(strokes);
    EXPECT_EQ(strokesText(strokes), "1: 10,0 L40,0; 1: O55,0 r5; 1: 70,0 L100,0; 2: 90,0 L60,0");
    EXPECT_NEAR(airLength(strokes), 10 + std::hypot(15, 5) * 2 + 10, 1e-9);
}

TEST(Order, TurnsArcsRoundWithTheirStroke) {
    std::vector<Stroke> strokes{
        {1, {500, 0}, {lineSegment({30, 20}), arcSegment({30, 20}, {30, 0}, 90)}}};
    orderStrokes(strokes);
    EXPECT_EQ(strokesText(strokes), "1: 10,0 A30,0 -90>30,20 L500,0");
}

TEST(Order, SavesMostOfTheWayAndKeepsEveryStroke) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> place(0, 10000);
    std::vector<Stroke> strokes;
    for (int i = 0; i < 1000; ++i) {
        const Point from{place(random), place(random)};
        strokes.push_back(line(1, from, from + Point{place(random) / 50, place(random) / 50}));
    }
    const double before = airLength(strokes);
    orderStrokes(strokes);
    EXPECT_LT(airLength(strokes), 0.1 * before);
    auto again = strokes;
    orderStrokes(again);
    EXPECT_EQ(again, strokes) << "an order that cannot be made much shorter stays";
    dropDuplicates(again);
    EXPECT_EQ(again.size(), 1000U) << "each of them once";
}

} // namespace
} // namespace torvik
