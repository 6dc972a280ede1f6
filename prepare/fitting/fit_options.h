// SPDX-License-Identifier: MIT
// What the fitting may do. Lengths are plotter units, angles degrees.
#pragma once

#include <cstddef>

namespace torvik {

struct FitOptions {
    double tolerance = 0.4;
    double roundTurn = 24;              // the widest chord that may stand for a piece of a circle
    bool arcs = true;                   // chords may become arcs and circles
    std::size_t pointLimit = 3'000'000; // of one stroke whose curves are taken apart
};

// Rounded coordinates turn a chord by a trifle.
inline constexpr double turnSlack = 0.01;

// What the rounding of coordinates may add to a distance.
inline constexpr double roundingSlack = 0.0003;

// Larger circles are as good as straight on any machine, and their sweeps cannot be written finely
// enough.
inline constexpr double largestFittedRadius = 40000;

} // namespace torvik
