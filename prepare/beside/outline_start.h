// SPDX-License-Identifier: MIT
// Where a closed outline is begun: on a straight piece, where the mark of the tool going down is
// seen least and no corner is spoilt.
#pragma once

#include "prepare/beside/area.h"

#include <cstddef>

namespace torvik {

// The longest edge that is no chord of a curve, or the longest of all. Edge i leads from corner i
// to the next.
std::size_t straightestEdge(const Corners& corners);

// Draws on along all the edges, from the corner where an edge begins back to that corner. The
// stroke stands on that edge.
void appendRound(Stroke& stroke, const Corners& corners, std::size_t edge);

// The outline as chords of a pen, begun in the middle of that edge; round ones begin at a corner.
Stroke outlineStroke(int pen, const Corners& corners);

} // namespace torvik
