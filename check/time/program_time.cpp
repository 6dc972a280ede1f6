// SPDX-License-Identifier: MIT
#include "check/time/program_time.h"

#include "base/picture.h"

#include <algorithm>

namespace torvik::check {

ProgramTime programTime(const Moves& moves, const Pace& pace) {
    ProgramTime time;
    const std::vector<MoveTime> times = moveTimes(moves, pace);
    int tool = 0;
    for (std::size_t i = 0; i < moves.size(); ++i) {
        if (moves[i].kind == MoveKind::tool)
            tool = std::isfinite(moves[i].value) ? static_cast<int>(moves[i].value) : 0;
        const double minutes = times[i].exactStop / 60;
        time.minutes += minutes;
        time.lookAhead += times[i].lookAhead / 60;
        const auto of = [tool](const ToolTime& known) { return known.tool == tool; };
        const auto known = std::find_if(time.tools.begin(), time.tools.end(), of);
        if (known != time.tools.end())
            known->minutes += minutes;
        else if (minutes > 0)
            time.tools.push_back({tool, minutes});
    }
    return time;
}

double minutesOfLines(const Moves& moves, const std::vector<MoveTime>& times, std::uint32_t first,
                      std::uint32_t end) {
    const auto isBefore = [](const Move& move, std::uint32_t line) { return move.line < line; };
    const auto from = std::lower_bound(moves.begin(), moves.end(), first, isBefore);
    const auto to = std::lower_bound(from, moves.end(), end, isBefore);
    double seconds = 0;
    for (auto move = from; move != to; ++move)
        seconds += times[static_cast<std::size_t>(move - moves.begin())].exactStop;
    return seconds / 60;
}

double roundedMinutes(double minutes) {
    const auto to = [minutes](double step) { return std::round(minutes / step) * step; };
    if (minutes < 1)
        return 0;
    if (minutes <= 10)
        return to(1);
    return minutes <= 60 ? to(5) : to(10);
}

std::string timeText(double minutes) {
    const double rounded = roundedMinutes(minutes);
    if (!(rounded >= 1))
        return "less than 1 min";
    const double hours = std::floor(rounded / 60);
    const double rest = rounded - 60 * hours;
    std::string text = "about";
    if (hours > 0)
        text += " " + formatFixed(hours, 0) + " h";
    if (rest > 0)
        text += " " + formatFixed(rest, 0) + " min";
    return text;
}

} // namespace torvik::check
