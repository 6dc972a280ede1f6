// SPDX-License-Identifier: MIT
#include "job/arc_geometry.h"

#include "base/error_trap.h"
#include "base/errors.h"
#include "base/numbers.h"
#include "job/records.h"

#include <cmath>

namespace torvik {
namespace {

// The constants are decimal, not the nearest doubles to pi: outputs depend on their digits.
constexpr double pi = 3.14159265359;
constexpr double straightAngle = 3.1415927;
constexpr double nearlyOne = 0.999999;

float length(float x, float y) {
    return toSingle(std::sqrt(double{x} * x + double{y} * y));
}

// Brings an angle into 0 to 2 pi by at most one turn each way.
float corrected(float angle) {
    if (angle < 0)
        angle = toSingle(angle + fullTurnRadians);
    if (angle > fullTurnRadians)
        angle = toSingle(angle - fullTurnRadians);
    return angle;
}

double angleOf(float x, float y) {
    const double size = std::sqrt(double{x} * x + double{y} * y);
    if (size == 0)
        throw DivisionByZero();
    const double cosine = x / size;
    double angle = 0;
    if (cosine > nearlyOne)
        angle = 0;
    else if (cosine < -nearlyOne)
        angle = straightAngle;
    else
        angle = std::atan(-cosine / std::sqrt(1 - cosine * cosine)) + 2 * std::atan(1.0);
    return y < 0 ? fullTurnRadians - angle : angle;
}

} // namespace

void GetEndPoint(Path& path, float sngSweep, Logger& logger) {
    const float dx = toSingle(double{path.sngStartX} - path.sngCentreX);
    const float dy = toSingle(double{path.sngStartY} - path.sngCentreY);
    const float start = sngArcCos(dx, dy, logger);
    const float from = corrected(start);
    const float to = corrected(toSingle(sngSweep * pi / 180 + start));

    path.sngRadius = length(dx, dy);
    path.sngEndX = toSingle(path.sngRadius * std::cos(double{to}) + path.sngCentreX);
    path.sngEndY = toSingle(path.sngRadius * std::sin(double{to}) + path.sngCentreY);
    path.sngAngleFrom = sngSweep > 0 ? from : to;
    path.sngAngleTo = sngSweep > 0 ? to : from;
}

float sngArcCos(float sngX, float sngY, Logger& logger) {
    float angle = 0;
    withQuietErrorTrap(logger, {"sngArcCos", "modHpgl"},
                       [&] { angle = toSingle(angleOf(sngX, sngY)); });
    return angle;
}

} // namespace torvik
