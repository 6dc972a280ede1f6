// SPDX-License-Identifier: MIT
// Arcs as the job's own reader can take them. It takes a direction within 0.0014 radian of the X
// axis for the axis itself, so that an arc which begins there would end beside its place: such an
// arc begins with a short line that leads out of that range. An arc too large for the digits of a
// sweep becomes lines.
#pragma once

#include "prepare/strokes.h"

#include <vector>

namespace torvik {

// An arc with a sweep that four decimals cannot say finely enough; as lines it stays within the
// tolerance, in plotter units.
bool isTooLarge(Point start, const Segment& arc);
std::vector<Segment> linesForArc(Point start, const Segment& arc, double tolerance);

// Whether the reader would take the arc's start for a place on the X axis.
bool isMisread(Point start, const Segment& arc);
// Segments in written form in place of an arc that would be misread; the last one ends where the
// arc does.
std::vector<Segment> withLeadIn(Point start, const Segment& arc);

} // namespace torvik
