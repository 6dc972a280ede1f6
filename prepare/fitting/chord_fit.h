// SPDX-License-Identifier: MIT
// A polyline as few lines and arcs.
#pragma once

#include "prepare/fitting/fit_options.h"
#include "prepare/strokes.h"

#include <cstddef>
#include <vector>

namespace torvik {

struct FittedPiece {
    Segment segment;
    std::size_t last = 0; // the point of the polyline where it ends
    double bulge = 0;     // of an arc beyond the chords it stands for
};

// Points are in written form and there are two or more. Arcs may end by a trifle beside their
// point, as written arcs do.
std::vector<FittedPiece> fitChords(std::vector<Point> points, const FitOptions& options);

} // namespace torvik
