// SPDX-License-Identifier: MIT
#include "check/machine.h"
#include "sweep/growth.h"

#include <gtest/gtest.h>
#include <numbers>
#include <random>

namespace torvik::sweep {
namespace {

using check::Move;
using check::MoveKind;
using check::Moves;

// Moves of one tool, each from where the last one ended.
class Track {
public:
    Track() { add(MoveKind::tool).value = 1; }

    Track& height(double z) {
        m_at.z = z;
        add(MoveKind::feedHeight);
        return *this;
    }
    Track& line(double x, double y, MoveKind kind = MoveKind::cutLine) {
        m_at = {x, y, m_at.z};
        add(kind);
        return *this;
    }
    Track& arc(double x, double y, double centreX, double centreY, bool clockwise) {
        m_at = {x, y, m_at.z};
        add(clockwise ? MoveKind::cutClockwise : MoveKind::cutCounterClockwise).centre = {centreX,
                                                                                          centreY};
        return *this;
    }
    Moves moves;

private:
    Move& add(MoveKind kind) {
        Move move;
        move.kind = kind;
        move.from = moves.empty() ? m_at : moves.back().to;
        move.to = m_at;
        moves.push_back(move);
        return moves.back();
    }

    check::Place m_at{0, 0, 5};
};

double distanceTo(const Move& move, double x, double y) {
    const double toEnd = std::hypot(x - move.to.x, y - move.to.y);
    const double toStart = std::hypot(x - move.from.x, y - move.from.y);
    if (move.isArc()) {
        const double fromX = move.from.x - move.centre.x;
        const double fromY = move.from.y - move.centre.y;
        const double atX = x - move.centre.x;
        const double atY = y - move.centre.y;
        double turn = std::atan2(fromX * atY - fromY * atX, fromX * atX + fromY * atY);
        if (move.kind == MoveKind::cutClockwise)
            turn = -turn;
        if (turn < 0)
            turn += 2 * std::numbers::pi;
        const double beside = std::fabs(std::hypot(atX, atY) - std::hypot(fromX, fromY));
        return turn <= move.sweep() ? beside : std::min(toStart, toEnd);
    }
    const double dx = move.to.x - move.from.x;
    const double dy = move.to.y - move.from.y;
    const double square = dx * dx + dy * dy;
    if (square == 0)
        return toEnd;
    const double part = ((x - move.from.x) * dx + (y - move.from.y) * dy) / square;
    const double nearest = std::clamp(part, 0.0, 1.0);
    return std::hypot(x - move.from.x - nearest * dx, y - move.from.y - nearest * dy);
}

// Looks at every cell for every move, in their order.
Field stamped(const Grid& grid, const Moves& moves, double radius) {
    Field field(grid);
    for (std::size_t i = 0; i < moves.size(); ++i) {
        const double depth = std::round(-moves[i].to.z * depthsPerMm);
        for (int row = 0; row < grid.rows && depth > 0 && moves[i].kind != MoveKind::tool; ++row) {
            for (int column = 0; column < grid.columns; ++column) {
                const double x = grid.lowX + (column + 0.5) * grid.cell;
                const std::size_t cell = field.at(column, row);
                if (depth > field.depths[cell] &&
                    distanceTo(moves[i], x, grid.centreY(row)) <= radius) {
                    field.depths[cell] = static_cast<std::uint16_t>(depth);
                    field.moves[cell] = static_cast<std::uint32_t>(i);
                }
            }
        }
    }
    return field;
}

// Lines, short and long, arcs both ways and full circles, plunges, at six depths.
Moves randomWalk(int count) {
    std::minstd_rand engine{7};
    std::uniform_real_distribution<double> place{0, 40};
    std::uniform_real_distribution<double> angle{0, 2 * std::numbers::pi};
    Track track;
    for (int i = 0; i < count; ++i) {
        const check::Place at = track.moves.back().to;
        const double turn = angle(engine);
        const double radius = place(engine) / 5;
        const double centreX = at.x + radius * std::cos(turn);
        const double centreY = at.y + radius * std::sin(turn);
        const double further = i % 5 == 0 ? 0 : angle(engine);
        const double end = turn + std::numbers::pi + further;
        switch (engine() % 4) {
        case 0:
            track.height(-0.5 * static_cast<double>(engine() % 7) + 0.5);
            break;
        case 1:
            track.line(place(engine), place(engine));
            break;
        case 2:
            track.line(at.x + std::cos(turn), at.y + std::sin(turn));
            break;
        default:
            track.arc(further == 0 ? at.x : centreX + radius * std::cos(end),
                      further == 0 ? at.y : centreY + radius * std::sin(end), centreX, centreY,
                      engine() % 2 == 0);
        }
    }
    return track.moves;
}

int countCut(const Field& field) {
    return static_cast<int>(field.cells()) -
           static_cast<int>(std::count(field.depths.begin(), field.depths.end(), 0));
}

// With cells of 1 mm whose centres lie at half millimetres.
Field swept(const Moves& moves, double diameter) {
    Field field(gridOver({0, 0, 40, 20}, 40));
    EXPECT_TRUE(sweepOn(field, moves, cutsOf(moves, {{1, diameter}}), {}));
    return field;
}

TEST(SweepTest, ALineLeavesASlotAsWideAsItsToolAndADepthInEveryCell) {
    // Y 9 to 11 over X 10 to 30 is 2 rows of 20; of the round ends, one cell each row and end has
    // its centre within 1 mm: at 0.5, 0.5.
    const Field field = swept(Track().line(10, 10).height(-1.25).line(30, 10).moves, 2);
    EXPECT_EQ(countCut(field), 2 * 22);
    EXPECT_EQ(field.depths[field.at(9, 9)], 125);
    EXPECT_EQ(field.depths[field.at(8, 9)], 0);
    EXPECT_EQ(field.depths[field.at(20, 11)], 0);
    EXPECT_EQ(field.moves[field.at(9, 10)], 2U) << "the plunge, which came first";
    EXPECT_EQ(field.moves[field.at(20, 10)], 3U);
}

TEST(SweepTest, AHoleIsADisc) {
    // Within 2 mm of (10, 10) lie 12 centres: 16 but for the corners at 1.5, 1.5.
    EXPECT_EQ(countCut(swept(Track().line(10, 10).height(-3).moves, 4)), 12);
}

TEST(SweepTest, ADeeperPassGoesOverAShallowOneAndNotTheOtherWayRound) {
    Track track;
    track.line(10, 10).height(-2).line(30, 10).height(-1).line(20, 10);
    track.line(20, 5).height(-2).line(20, 15);
    const Field field = swept(track.moves, 2);
    EXPECT_EQ(field.moves[field.at(20, 10)], 3U) << "as deep before";
    EXPECT_EQ(field.depths[field.at(20, 6)], 200);
    EXPECT_EQ(field.moves[field.at(20, 6)], 8U);
}

TEST(SweepTest, WhatLiesAboveTheSurfaceOrIsNotKnownCutsNothingAndAQuickMoveBelowDoes) {
    EXPECT_EQ(countCut(swept(Track().line(10, 10).line(30, 10).moves, 2)), 0);
    Track track;
    track.height(-1).line(check::unknown, 10);
    EXPECT_EQ(cutsOf(track.moves, {}).size(), 1U);
    EXPECT_EQ(
        cutsOf(track.line(5, 5, MoveKind::rapidAcross).line(9, 5, MoveKind::rapidAcross).moves, {})
            .size(),
        2U);
}

TEST(SweepTest, AWalkOfAllKindsIsAsTheStampLeavesItWithAnyNumberOfThreads) {
    const Moves moves = randomWalk(300);
    for (const double radius : {0.3, 3.0}) {
        const Grid grid = gridOver({-5, -5, 45, 45}, 200);
        const Field expected = stamped(grid, moves, radius);
        for (const int threads : {1, 2, 3}) {
            Field field(grid);
            sweepOn(field, moves, cutsOf(moves, {{1, 2 * radius}}), {threads});
            EXPECT_EQ(field.depths, expected.depths);
            EXPECT_EQ(field.moves, expected.moves);
        }
    }
}

TEST(GrowthTest, ThePieceAtAMoveIsTheSameFromWhereverOneComes) {
    const Moves moves = randomWalk(3000);
    Growth growth(moves, {{1, 6.0}}, {0, 0, 40, 40});
    ASSERT_TRUE(growth.build({}));
    const auto expected = [&](std::size_t count) {
        const Moves first(moves.begin(), moves.begin() + static_cast<std::ptrdiff_t>(count));
        Field field(growth.whole().grid);
        sweepOn(field, first, cutsOf(first, {{1, 6.0}}), {});
        return field;
    };
    EXPECT_EQ(growth.whole().moves, expected(moves.size()).moves);
    for (const std::size_t count : {40U, 41U, 2900U, 1500U, 1502U, 0U, 3001U}) {
        growth.show(count, count % 2 == 0 ? 0.5 : 0);
        growth.show(count);
        EXPECT_EQ(growth.field().depths, expected(count).depths) << count;
        EXPECT_EQ(growth.field().moves, expected(count).moves) << count;
    }
}

TEST(GrowthTest, HalfAMoveCutsHalfItsWay) {
    Track track;
    track.line(10, 10).height(-1).arc(30, 10, 20, 10, false).line(30, 30);
    Growth growth(track.moves, {{1, 2.0}}, {0, 0, 40, 40});
    ASSERT_TRUE(growth.build({}));
    growth.show(3, 0.5);
    const auto depthAt = [&](double x, double y) {
        const Grid& grid = growth.field().grid;
        return growth.field().depths[growth.field().at(grid.columnAt(x), grid.rowAt(y))];
    };
    EXPECT_EQ(depthAt(20, 0.5), 100);
    EXPECT_EQ(depthAt(22, 0.5), 0);
    growth.show(4, 0.5);
    EXPECT_EQ(depthAt(22, 0.5), 100);
    EXPECT_EQ(depthAt(30, 19), 100);
    EXPECT_EQ(depthAt(30, 22), 0);
}

TEST(GrowthTest, ACancelledSweepSaysSoAndProgressEndsAtOne) {
    const Moves moves = randomWalk(400);
    Growth growth(moves, {}, {0, 0, 40, 40});
    double last = 0;
    ASSERT_TRUE(growth.build({2, nullptr, [&](double part) { last = std::max(last, part); }}));
    EXPECT_DOUBLE_EQ(last, 1);
    const std::atomic<bool> cancel = true;
    EXPECT_FALSE(growth.build({2, &cancel}));
}

} // namespace
} // namespace torvik::sweep
