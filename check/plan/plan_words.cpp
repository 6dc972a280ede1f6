// SPDX-License-Identifier: MIT
#include "check/plan/plan_words.h"

#include "base/picture.h"
#include "check/findings.h"

namespace torvik::check {
namespace {

std::string moveText(MoveKind kind, Point to, double z) {
    switch (kind) {
    case MoveKind::rapidHeight:
        return "the quick move to Z" + heightText(z);
    case MoveKind::rapidAcross:
        return "the quick move to " + pointText(to);
    case MoveKind::feedHeight:
        return "the slow move to Z" + heightText(z);
    case MoveKind::dwell:
        return "the wait";
    case MoveKind::spindleOff:
        return "the stop of the spindle";
    default:
        return "a move";
    }
}

std::string askedText(const AskedMove& move) {
    return moveText(move.kind, move.to, move.z);
}

std::string doneText(const Move& move) {
    return moveText(move.kind, endOf(move), move.to.z);
}

} // namespace

std::string pointText(Point point) {
    return "X" + lengthText(point.x) + " Y" + lengthText(point.y);
}

Point endOf(const Move& move) {
    return {move.to.x, move.to.y};
}

std::string numberText(double number, int decimals) {
    return std::isfinite(number) ? formatFixed(number, decimals) : "none";
}

std::string secondsText(double seconds) {
    return numberText(seconds, 2) + " s";
}

std::string toolText(double number) {
    return std::isfinite(number) ? "T" + formatFixed(number, 0) : "no tool";
}

std::string shapeText(MoveKind kind) {
    if (kind == MoveKind::cutLine)
        return "a straight line";
    return kind == MoveKind::cutClockwise ? "an arc clockwise" : "an arc counter-clockwise";
}

std::string theseText(std::size_t count, bool areHoles) {
    if (count == 1)
        return areHoles ? "This hole is" : "This cut is";
    return "These " + formatInteger(static_cast<long>(count)) + (areHoles ? " holes" : " cuts") +
           " are";
}

std::string differenceText(const Difference& difference) {
    if (difference.done.empty())
        return askedText(difference.asked.front()) + " is missing";
    if (difference.asked.empty())
        return doneText(*difference.done.front()) + " is too much";
    return doneText(*difference.done.front()) + " stands where " +
           askedText(difference.asked.front()) + " should be";
}

} // namespace torvik::check
