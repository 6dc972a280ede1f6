// SPDX-License-Identifier: MIT
// How long a program takes, and the one wording of it. Minutes.
#pragma once

#include "check/time/move_times.h"

#include <string>
#include <vector>

namespace torvik::check {

struct ToolTime {
    int tool; // its number, 0 before the first
    double minutes;
};

struct ProgramTime {
    double minutes = 0;          // with a stop at the end of every move: what is shown
    double lookAhead = 0;        // with a control that looks ahead: never longer
    std::vector<ToolTime> tools; // with exact stops, each tool once, as they are first taken
};

ProgramTime programTime(const Moves& moves, const Pace& pace);

// The minutes of the moves whose lines are from `first` to before `end`, of their times.
double minutesOfLines(const Moves& moves, const std::vector<MoveTime>& times, std::uint32_t first,
                      std::uint32_t end);

// As coarse as an estimate is: whole minutes up to 10, steps of 5 up to 60, then of 10.
double roundedMinutes(double minutes);
// "less than 1 min", "about 7 min", "about 1 h 20 min".
std::string timeText(double minutes);

} // namespace torvik::check
