// SPDX-License-Identifier: MIT
// The closed outlines of one pen, put together of strokes that meet end to end, whichever way round
// and in whatever order they were drawn. Plotter units.
#pragma once

#include "prepare/strokes.h"

#include <vector>

namespace torvik {

struct Outlines {
    std::vector<Stroke> closed; // each ends exactly where it begins
    std::vector<Stroke> open;   // what closes nowhere, dots too
};

// Whether a stroke ends no farther than `reach` from its start; neither a dot nor a lone line or
// curve is closed.
bool isClosed(const Stroke& stroke, double reach);

// Ends that are no farther apart than `reach` meet.
Outlines outlinesOf(std::vector<Stroke> strokes, double reach);

// A closed stroke as corners, without the closing one, no chord farther from it than `tolerance`.
std::vector<Point> cornersOf(const Stroke& closed, double tolerance);

} // namespace torvik
