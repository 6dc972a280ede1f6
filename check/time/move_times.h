// SPDX-License-Identifier: MIT
// How long a machine takes for each move. Every way begins and ends with acceleration, a quick way
// as one at a feed; an arc is made no faster than its radius allows.
#pragma once

#include "check/move.h"
#include "check/pace.h"

#include <vector>

namespace torvik::check {

// Seconds, 0 and above.
struct MoveTime {
    double exactStop = 0; // the machine stands still at the end of every move
    double lookAhead = 0; // it keeps its speed where the direction hardly changes
};

// The time of a way of this length (mm) from stand to stand: a trapezoid, or a triangle where the
// speed (mm/s) is not reached. 0 where a number is not above 0 or not known.
double secondsFromStandToStand(double length, double speed, double acceleration);

// One for each move; what is not known takes no time. The first tool is in its place already.
std::vector<MoveTime> moveTimes(const Moves& moves, const Pace& pace);

} // namespace torvik::check
