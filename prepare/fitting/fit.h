// SPDX-License-Identifier: MIT
// Strokes as few lines, arcs and circles: curves become arcs and lines, chords of one arc become
// the arc, a closed polyline of chords becomes the circle, lines in one direction become one line.
// The strokes' own points and curves stay within the tolerance; where an arc takes the place of
// chords it goes beyond them by no more than any arc through their ends must.
#pragma once

#include "prepare/fitting/fit_options.h"
#include "prepare/strokes.h"

#include <span>

namespace torvik {

struct FitReport {
    long circles = 0;            // made of chords or arcs
    long arcs = 0;               // made of chords
    long curves = 0;             // curves that became arcs and lines
    double largestDeviation = 0; // plotter units, of the strokes' own points
    double largestBulge = 0;     // of arcs beyond the chords they stand for
    // Closed polylines that would be circles with a larger tolerance, and how large.
    long nearCircles = 0;
    double nearCircleTolerance = 0;
};

// Leaves strokes in written form without curves. Fitting them again changes nothing. Raises
// RunTimeError where curves need millions of pieces.
void fitStrokes(std::vector<Stroke>& strokes, const FitOptions& options, FitReport& report);

} // namespace torvik
