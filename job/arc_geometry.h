// SPDX-License-Identifier: MIT
// Where an arc ends and which angles it spans.
#pragma once

namespace torvik {

struct Path;
class Logger;

inline constexpr double fullTurnRadians = 6.28318530718; // as the system rounds it

// Fills the end point, the radius and the angles of a path whose start point and centre are set.
// The sweep is in degrees, positive counter-clockwise. Raises Overflow where a result does not fit
// a single.
void GetEndPoint(Path& path, float sngSweep, Logger& logger);

// The angle of the vector, 0 to 2 pi. A vector of no length is logged and gives 0.
float sngArcCos(float sngX, float sngY, Logger& logger);

} // namespace torvik
