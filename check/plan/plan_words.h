// SPDX-License-Identifier: MIT
// The words that stand in the sentences of the plan: places, numbers, moves. mm, mm/min.
#pragma once

#include "check/plan/asked_way.h"

#include <string>

namespace torvik::check {

Point endOf(const Move& move);

// "X1.000 Y2.000".
std::string pointText(Point point);
// "none" where it is unknown.
std::string numberText(double number, int decimals);
std::string secondsText(double seconds);
// "T3", or "no tool".
std::string toolText(double number);
// "a straight line".
std::string shapeText(MoveKind kind);
// "This cut is", "These 3 holes are".
std::string theseText(std::size_t count, bool areHoles);
// Which move is missing, too much or another one.
std::string differenceText(const Difference& difference);

} // namespace torvik::check
