// SPDX-License-Identifier: MIT
// One statement of a program, with its numbers and its line.
#pragma once

#include "check/targets.h"

#include <cstdint>
#include <limits>

namespace torvik::check {

inline constexpr double unknown = std::numeric_limits<double>::quiet_NaN();

// What the statement does not hold, or what cannot be read, is unknown.
struct Statement {
    std::uint32_t line = 0;
    Meaning meaning = Meaning::unknown;
    double x = unknown; // mm, as y to j
    double y = unknown;
    double z = unknown;
    double i = unknown;
    double j = unknown;
    double feed = unknown;   // mm/min
    double value = unknown;  // tool number, spindle speed in rpm, dwell in seconds
    double offset = unknown; // offset number of a tool
};

} // namespace torvik::check
