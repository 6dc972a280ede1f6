// SPDX-License-Identifier: MIT
// What a program does, in a few figures.
#pragma once

#include "check/extents.h"

#include <vector>

namespace torvik::check {

struct Summary {
    Extents extents;        // of what is cut, mm
    double deepest = 0;     // mm below the surface
    std::vector<int> tools; // in the order in which they are first taken
    int changes = 0;        // from one tool to the next
};

Summary summaryOf(const Moves& moves);

} // namespace torvik::check
