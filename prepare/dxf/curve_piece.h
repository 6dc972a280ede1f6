// SPDX-License-Identifier: MIT
// One piece of a spline between two knots: a polynomial by its control points (Bézier), which
// carry their weights.
#pragma once

#include "prepare/strokes.h"

#include <vector>

namespace torvik::dxf {

// X and Y are multiplied by the weight.
struct Weighted {
    Point sum;
    double weight = 1;

    Point place() const { return sum * (1 / weight); }
};

Weighted between(const Weighted& a, const Weighted& b, double part);

// Adds the piece to a stroke that ends where it begins, within `tolerance` as far as the halvings
// last, from which it takes what it needs.
void appendPiece(std::vector<Segment>& segments, const std::vector<Weighted>& piece,
                 double tolerance, std::size_t& halvings);

} // namespace torvik::dxf
