// SPDX-License-Identifier: MIT
// Cubic curves as arcs and lines.
#pragma once

#include "prepare/fitting/fit_options.h"
#include "prepare/strokes.h"

#include <vector>

namespace torvik {

// Appends segments in written form that stay within the tolerance of the curve and the curve of
// them, and as many points of the curve for each segment as it was measured by, in order: the last
// one is the segment's end.
struct CurvePiece {
    Segment segment;
    std::vector<Point> samples;
};

std::vector<CurvePiece> fitCurve(Point start, const Segment& curve, const FitOptions& options);

} // namespace torvik
