// SPDX-License-Identifier: MIT
// What the user wants of the tool beside the line. Lengths are mm.
#pragma once

#include <cstdint>
#include <map>
#include <vector>

namespace torvik {

enum class RunSide : std::uint8_t { outside, inside, pocket };

// How the tool of one pen runs beside its closed outlines.
struct PenRun {
    RunSide side = RunSide::outside;
    double diameter = 0;     // of the tool
    double stepPercent = 40; // of the diameter, between the rounds of a pocket
};

// Pen `to` gets the outlines of pen `from` with gaps.
struct Tabs {
    int from = 1;
    int to = 2;
    int count = 4;
    double length = 3; // of each tab
};

struct RunOptions {
    std::map<int, PenRun> runs; // by the pen that draws, 1 to 8
    std::vector<Tabs> tabs;
    bool insideFirst = false;
};

} // namespace torvik
