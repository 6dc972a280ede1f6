// SPDX-License-Identifier: MIT
// Where a drawing lies and how large it is, which pens draw it, what becomes of its dots. All of
// it before the fitting, so that tolerances are those of the part.
#pragma once

#include "prepare/strokes.h"

#include <map>
#include <optional>
#include <vector>

namespace torvik {

enum class Mirror { none, leftRight, upDown };

struct Placement {
    double scale = 1; // about the origin
    // Mirroring and turning leave the drawing's lower left corner where it is.
    Mirror mirror = Mirror::none;
    int rotation = 0;            // 0, 90, 180 or 270 degrees counter-clockwise
    std::optional<Point> origin; // where the lower left corner comes to, plotter units
};

// Strokes `alongside` are moved as the others, whose corner counts. Raises RunTimeError where
// strokes come to lie more than 100 m from the origin.
void place(std::vector<Stroke>& strokes, const Placement& placement,
           std::vector<Stroke>* alongside = nullptr);

// Gives strokes another pen, and takes out those of pen 0 that get none, which are given back.
// Raises RunTimeError with a list where pens above 8 are left.
std::vector<Stroke> mapPens(std::vector<Stroke>& strokes, const std::map<int, int>& pens);

// Makes circles of dots, of the diameter in plotter units; without one takes them out. A circle so
// small that it would be written without a size is a dot, too. Returns their count.
long replaceDots(std::vector<Stroke>& strokes, std::optional<double> diameter);

} // namespace torvik
