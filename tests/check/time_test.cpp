// SPDX-License-Identifier: MIT
// How long a program takes, worked out by hand.
#include "check/time/pace_settings.h"
#include "check/time/program_time.h"

#include <gtest/gtest.h>

namespace torvik::check {
namespace {

// 50 mm/s across, 20 mm/s up and down.
constexpr Pace pace{.rapid = 3000,
                    .rapidZ = 1200,
                    .acceleration = 100,
                    .toolChange = 40,
                    .spindleStart = 2,
                    .feedCap = 1800};

Move moved(MoveKind kind, Place from, Place to, double feed = unknown, Point centre = {}) {
    Move move;
    move.kind = kind;
    move.from = from;
    move.to = to;
    move.feed = feed;
    move.centre = centre;
    return move;
}

Move told(MoveKind kind, double value) {
    Move move;
    move.kind = kind;
    move.value = value;
    return move;
}

TEST(MoveTimes, EachKindTakesWhatItTakes) {
    const Place zero{0, 0, 0};
    struct Row {
        const char* what;
        Move move;
        double seconds;
    };
    const Row rows[]{
        {"100 mm: 0.5 s up to 50 mm/s in 12.5 mm, 75 mm in 1.5 s, 0.5 s down",
         moved(MoveKind::rapidAcross, zero, {60, 80, 0}), 2.5},
        {"16 mm: 0.4 s up to 40 mm/s, and down again",
         moved(MoveKind::rapidAcross, zero, {16, 0, 0}), 0.8},
        {"20 mm up at 20 mm/s", moved(MoveKind::rapidHeight, zero, {0, 0, 20}), 1.2},
        {"40 mm at 10 mm/s", moved(MoveKind::cutLine, zero, {40, 0, 0}, 600), 4.1},
        {"a feed above the machine's is made at 30 mm/s",
         moved(MoveKind::cutLine, zero, {60, 0, 0}, 9000), 2.3},
        {"a circle of radius 1 mm is made at 10 mm/s",
         moved(MoveKind::cutClockwise, zero, zero, 1800, {1, 0}), 0.1 + 2 * 3.14159265358979 / 10},
        {"dwell", told(MoveKind::dwell, 1.5), 1.5},
        {"a feed of 0 is not counted", moved(MoveKind::cutLine, zero, {40, 0, 0}, 0), 0},
        {"a way from nowhere is not counted", moved(MoveKind::rapidAcross, {}, {1, 1, 0}), 0},
    };
    for (const Row& row : rows)
        EXPECT_NEAR(moveTimes({row.move}, pace)[0].exactStop, row.seconds, 1e-9) << row.what;
}

// Straight on: 40 mm in one go, 4.1 s. At the right angle the speed falls to the root of
// 100 · 0.02 · 0.7071 / 0.2929 = 4.828, 2.197 mm/s: on each side of it (10 − 2.197) / 100 s are
// changing, in which 0.4759 mm are made, after 0.1 s with 0.5 mm at the other end.
TEST(MoveTimes, ALookAheadKeepsItsSpeedWhereTheDirectionStays) {
    const Place zero{0, 0, 0};
    const Moves straight{moved(MoveKind::cutLine, zero, {20, 0, 0}, 600),
                         moved(MoveKind::cutLine, {20, 0, 0}, {40, 0, 0}, 600)};
    EXPECT_NEAR(programTime(straight, pace).lookAhead * 60, 4.1, 1e-9);
    EXPECT_NEAR(programTime(straight, pace).minutes * 60, 4.2, 1e-9);
    const Moves corner{straight[0], moved(MoveKind::cutLine, {20, 0, 0}, {20, 20, 0}, 600)};
    const double side = 0.1 + 0.07803 + (20 - 0.5 - 0.47586) / 10;
    EXPECT_NEAR(programTime(corner, pace).lookAhead * 60, 2 * side, 1e-4);
    const Moves back{straight[0], moved(MoveKind::cutLine, {20, 0, 0}, zero, 600)};
    EXPECT_NEAR(programTime(back, pace).lookAhead * 60, 4.2, 1e-9);
}

TEST(ProgramTime, TheFirstToolIsThereAndASpindleStartsOnce) {
    const Moves moves{told(MoveKind::tool, 3),         told(MoveKind::spindleOn, 2000),
                      told(MoveKind::spindleOn, 2000), told(MoveKind::spindleOff, unknown),
                      told(MoveKind::tool, 8),         told(MoveKind::spindleOn, 2000)};
    const ProgramTime time = programTime(moves, pace);
    EXPECT_NEAR(time.minutes * 60, 2 + 40 + 2, 1e-9);
    ASSERT_EQ(time.tools.size(), 2U);
    EXPECT_EQ(time.tools[1].tool, 8);
    EXPECT_NEAR(time.tools[1].minutes * 60, 42, 1e-9);
}

TEST(ProgramTime, IsSaidAsCoarselyAsItIsSure) {
    struct Row {
        double minutes;
        const char* text;
    };
    for (const Row& row :
         {Row{0.99, "less than 1 min"}, Row{1.4, "about 1 min"}, Row{9.6, "about 10 min"},
          Row{12.6, "about 15 min"}, Row{57.6, "about 1 h"}, Row{84.9, "about 1 h 20 min"},
          Row{119, "about 2 h"}})
        EXPECT_EQ(timeText(row.minutes), row.text);
}

TEST(PaceSettings, WhatTheWorkshopSetsCountsWhereItMakesSense) {
    const Target& target = targets()[3];
    const Pace set = paceOf(target, "[Time-" + std::string(target.optionName) +
                                        "]\nRapidXY=4200\nrapidz=-1\nAcceleration=fast\n"
                                        "ToolChange=0\nFeedCap=1e999\n[Time-none]\nRapidZ=5\n");
    EXPECT_EQ(set.rapid, 4200);
    EXPECT_EQ(set.toolChange, 0);
    EXPECT_EQ(set.rapidZ, target.pace.rapidZ);
    EXPECT_EQ(set.acceleration, target.pace.acceleration);
    EXPECT_EQ(set.feedCap, target.pace.feedCap);
}

} // namespace
} // namespace torvik::check
