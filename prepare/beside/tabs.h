// SPDX-License-Identifier: MIT
// Outlines with gaps, so that tabs hold the part. Plotter units.
#pragma once

#include "prepare/strokes.h"

#include <vector>

namespace torvik {

// The pieces of a closed stroke between `count` gaps, spread evenly; the first gap is half a piece
// behind its start. Nothing where the gaps would take all of it. Curves become chords within the
// tolerance; a circle's arcs stay arcs.
std::vector<Stroke> betweenGaps(const Stroke& closed, int count, double gap, double tolerance);

} // namespace torvik
