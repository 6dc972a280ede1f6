// SPDX-License-Identifier: MIT
// How far cuts reach, by the tool's centre. mm.
#pragma once

#include "check/move.h"

namespace torvik::check {

struct Extents {
    double lowX = unknown; // all four are unknown as long as nothing was added
    double lowY = unknown;
    double highX = unknown;
    double highY = unknown;

    // A place that is not known is passed over.
    void add(double x, double y) {
        if (!std::isfinite(x) || !std::isfinite(y))
            return;
        // An extent that is unknown is neither below nor above.
        lowX = lowX < x ? lowX : x;
        lowY = lowY < y ? lowY : y;
        highX = highX > x ? highX : x;
        highY = highY > y ? highY : y;
    }
    void add(const Extents& other) {
        add(other.lowX, other.lowY);
        add(other.highX, other.highY);
    }
};

// Of one move, an arc's bulge included.
Extents extentsOf(const Move& move);

// Whether the move takes material: a cut below 0, or a way down to below 0.
bool takesMaterial(const Move& move);

} // namespace torvik::check
