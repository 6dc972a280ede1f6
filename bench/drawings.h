// SPDX-License-Identifier: MIT
// Drawings made up for measuring. The same arguments give the same bytes on every machine.
#pragma once

#include <string>

namespace torvik {

constexpr long smallestRadius = 40; // plotter units

// That many lines with pen 1, one instruction a line, on a sheet of 400 by 300 mm.
std::string lineDrawing(long lines);
// The same with arcs about centres near by, by any sweep.
std::string arcDrawing(long arcs);
// That many circles with pen 1, each moved to, in that many sizes from the smallest radius on.
std::string circleDrawing(long circles, long sizes, long smallest = smallestRadius);
// The same, each of its own size, the largest first.
std::string shrinkingCircles(long circles);

} // namespace torvik
