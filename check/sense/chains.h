// SPDX-License-Identifier: MIT
// The paths of one group as chains: each runs on where the path before it ends, and a closed one
// comes back to its start. Lengths are mm.
#pragma once

#include "check/move.h"
#include "job/extents.h"
#include "job/job.h"

#include <span>
#include <vector>

namespace torvik::check {

struct Chain {
    std::span<const std::int16_t> paths; // subscripts of gudtPaths
    torvik::Extents box;
    Point start;
    bool closed;
};

// The paths as they are cut one after the other; the subscripts must outlive the chains.
std::vector<Chain> chainsOf(const Drawing& drawing, std::span<const std::int16_t> paths);

// The corners of a closed chain. Arcs become chords that lie within 0.4 % of their radius.
std::vector<Point> cornersOf(const Drawing& drawing, const Chain& chain);

} // namespace torvik::check
