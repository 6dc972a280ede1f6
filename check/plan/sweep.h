// SPDX-License-Identifier: MIT
// How far an arc of the drawing turns.
#pragma once

namespace torvik {
struct Path;
}

namespace torvik::check {

// Radians, above 0; one turn for a circle.
double drawnSweep(const Path& arc);

} // namespace torvik::check
