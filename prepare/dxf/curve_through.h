// SPDX-License-Identifier: MIT
// The smooth curve through given points, as CAD programs lay it.
#pragma once

#include "prepare/strokes.h"

#include <optional>
#include <vector>

namespace torvik::dxf {

// Third degree between the points, without a jump in its bend. Directions are those at the ends;
// without them the curve is straight there. A closed one comes back to its first point.
Stroke curveThrough(const std::vector<Point>& points, bool isClosed, std::optional<Point> leaving,
                    std::optional<Point> arriving);

} // namespace torvik::dxf
