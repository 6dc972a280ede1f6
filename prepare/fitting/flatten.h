// SPDX-License-Identifier: MIT
// Cubic curves as many short chords, from which arcs and lines are fitted as from any chords.
#pragma once

#include "prepare/strokes.h"

#include <vector>

namespace torvik {

// The ends of chords in drawing order, the curve's own end last; no chord is farther from the curve
// than `tolerance` in plotter units.
std::vector<Point> flattenCurve(Point start, const Segment& curve, double tolerance);

} // namespace torvik
