// SPDX-License-Identifier: MIT
#include "check/plan/sweep.h"

#include "job/records.h"

#include <cmath>
#include <numbers>

namespace torvik::check {
namespace {

constexpr double fullTurn = 2 * std::numbers::pi;
constexpr double anglesRound = 1e-6;     // radians
constexpr double takenForLevel = 0.0015; // radians from the direction of X, read as that direction

double withinTurn(double angle) {
    return angle < 0 ? angle + fullTurn : angle;
}

double placesRound(const Path& arc) {
    constexpr double single = 1e-6; // of a number's size
    return single * (1 + arc.sngRadius + std::fabs(arc.sngCentreX) + std::fabs(arc.sngCentreY));
}

// A circle whose start was read as level with its centre ends there, beside its start.
bool isCircleReadAsLevel(const Path& arc) {
    const double startY = double{arc.sngStartY} - arc.sngCentreY;
    const double endY = double{arc.sngEndY} - arc.sngCentreY;
    return std::fabs(startY) < takenForLevel * arc.sngRadius && std::fabs(endY) <= placesRound(arc);
}

} // namespace

double drawnSweep(const Path& arc) {
    const double told = withinTurn(double{arc.sngAngleTo} - arc.sngAngleFrom);
    if (told > anglesRound && told < fullTurn - anglesRound)
        return told;
    // The angles tell a circle; they do so for a very short arc as well.
    const double startX = double{arc.sngStartX} - arc.sngCentreX;
    const double startY = double{arc.sngStartY} - arc.sngCentreY;
    const double endX = double{arc.sngEndX} - arc.sngCentreX;
    const double endY = double{arc.sngEndY} - arc.sngCentreY;
    if (std::hypot(endX - startX, endY - startY) <= placesRound(arc) || isCircleReadAsLevel(arc))
        return fullTurn;
    const double turn = std::atan2(startX * endY - startY * endX, startX * endX + startY * endY);
    return withinTurn(arc.intType == arcClockwise ? -turn : turn);
}

} // namespace torvik::check
