// SPDX-License-Identifier: MIT
// The way of a tool that clears an area: rounds inside one another, from the inside out, the wall
// last. Plotter units.
#pragma once

#include "prepare/beside/area.h"

#include <vector>

namespace torvik {

struct PocketOptions {
    double radius = 0; // of the tool
    double step = 0;   // between rounds
    double tolerance = 0;
};

// Chords of pen 1. `wall` is the recess smaller by the tool's radius. Rounds are joined where the
// tool can go straight to the next one inside the area. What the rounds leave standing is milled
// before the wall.
std::vector<Stroke> pocketStrokes(const Area& recess, const Area& wall,
                                  const PocketOptions& options);

} // namespace torvik
