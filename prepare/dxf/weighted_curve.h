// SPDX-License-Identifier: MIT
// Splines of any degree with weights (NURBS) as strokes: arcs where a piece is one, exact curves up
// to the third degree without weights, else curves that keep to them.
#pragma once

#include "prepare/strokes.h"

#include <vector>

namespace torvik::dxf {

struct ControlPoint {
    Point place;
    double weight = 1;
};

struct WeightedCurve {
    std::size_t degree = 3;
    std::vector<double> knots; // one more than controls and degree together
    std::vector<ControlPoint> controls;
};

// A lone place that is no number where degree, knots and controls do not belong together.
Stroke strokeOf(const WeightedCurve& curve);

} // namespace torvik::dxf
