// SPDX-License-Identifier: MIT
// One arc for a run of chords, from the first point to the last.
#pragma once

#include "prepare/fitting/fit_options.h"
#include "prepare/strokes.h"

#include <cstddef>
#include <span>

namespace torvik {

inline constexpr std::size_t fewestChords = 4;

struct ArcFit {
    bool isFlat = false; // the points lie along their chord: a line serves as well
    double sweep = 0;    // degrees
    double bulge = 0;    // how far the arc goes beyond its chords at most
};

struct ArcRun {
    std::size_t chords = 0; // 0 where none was found
    ArcFit fit;
};

// The longest run of chords from the first point on that lie on one arc, at least fewestChords.
// Points lie on no arc where one is farther off than the tolerance, a chord turns by more than
// roundTurn or the other way, one is a long line between short ones, or the arc is almost a whole
// circle or larger than largestFittedRadius. It looks at no more than twice as many points as it
// takes.
ArcRun longestArc(std::span<const Point> points, const FitOptions& options);

} // namespace torvik
