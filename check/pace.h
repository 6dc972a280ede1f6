// SPDX-License-Identifier: MIT
// How quick a machine is, as far as a program does not say it. The numbers here are those of a
// small mill; each control has its own, and a workshop can set them.
#pragma once

namespace torvik::check {

struct Pace {
    double rapid = 2000;       // in X and Y, mm/min
    double rapidZ = 1500;      // mm/min
    double acceleration = 200; // mm/s²
    double toolChange = 60;    // seconds from one tool to the next, until the machine goes on
    double spindleStart = 3;   // seconds until it turns as it should
    double feedCap = 2000;     // mm/min; a higher feed is made at this one
};

} // namespace torvik::check
