// SPDX-License-Identifier: MIT
// Which points of a polyline are its corners: the others lie within the tolerance of the lines
// between them.
#pragma once

#include "prepare/strokes.h"

#include <span>
#include <vector>

namespace torvik {

// One flag for each point; the ends are always kept. The corners of corners are the same corners,
// so that doing it again changes nothing.
std::vector<bool> findCorners(std::span<const Point> points, double tolerance);

} // namespace torvik
