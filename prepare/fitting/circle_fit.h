// SPDX-License-Identifier: MIT
// The circle through the corners of a closed polyline, in plotter units.
#pragma once

#include "prepare/strokes.h"

#include <span>

namespace torvik {

struct CircleFit {
    Point centre;
    double radius = 0;
    double deviation = HUGE_VAL; // of the farthest corner; HUGE_VAL where there is no circle
    double largestTurn = 0;      // degrees, the widest chord as seen from the centre
};

// Corners in drawing order, without the closing one. There is no circle where the corners do not
// go once round their middle, always the same way, in turns of at most `roundTurn` degrees. A fit
// that comes close to the tolerance is made as good as it can be.
CircleFit fitCircle(std::span<const Point> corners, double tolerance, double roundTurn);

} // namespace torvik
