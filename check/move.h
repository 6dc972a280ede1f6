// SPDX-License-Identifier: MIT
// What the machine does, step by step. Places are mm; what the program has not said is unknown
// (NaN), and every comparison with it is false. Each step knows the line it comes from.
#pragma once

#include "base/large_pages.h"
#include "check/statement.h"

#include <cmath>
#include <cstdint>

namespace torvik::check {

enum class MoveKind : std::uint8_t {
    rapidHeight,
    rapidAcross,
    feedHeight,
    cutLine,
    cutClockwise,
    cutCounterClockwise,
    dwell,     // value: seconds
    tool,      // value: its number
    spindleOn, // value: rpm
    spindleOff,
    programEnd,
    other, // a stop, or what is not understood
};

struct Point {
    double x = unknown;
    double y = unknown;
};

struct Place {
    double x = unknown;
    double y = unknown;
    double z = unknown;
};

struct Move {
    std::uint32_t line = 0;
    MoveKind kind = MoveKind::other;
    Place from;
    Place to;
    Point centre;            // of an arc
    double feed = unknown;   // mm/min
    double value = unknown;  // see the kinds
    double offset = unknown; // of a tool

    bool isArc() const {
        return kind == MoveKind::cutClockwise || kind == MoveKind::cutCounterClockwise;
    }
    bool isCut() const { return kind == MoveKind::cutLine || isArc(); }
    bool isFed() const { return isCut() || kind == MoveKind::feedHeight; }
    bool isRapid() const { return kind == MoveKind::rapidHeight || kind == MoveKind::rapidAcross; }
    // How an arc turns, full circles at least one turn; unknown for what has no radius.
    double sweep() const; // radians, above 0
};

using Moves = LongVector<Move>;

inline constexpr double heightStep = 0.01;  // written heights lie apart by this or are the same
inline constexpr double lengthStep = 0.001; // the same for places

inline bool isSameHeight(double a, double b) {
    return std::fabs(a - b) < heightStep / 2;
}
inline bool isSamePlace(double x1, double y1, double x2, double y2) {
    constexpr double most = 1.5 * lengthStep;
    return std::fabs(x1 - x2) < most && std::fabs(y1 - y2) < most;
}

} // namespace torvik::check
