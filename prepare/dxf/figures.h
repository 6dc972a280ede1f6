// SPDX-License-Identifier: MIT
// The single figures of a DXF drawing as strokes in its own units: lines, circles, arcs, ellipses,
// points, filled corners.
#pragma once

#include "prepare/dxf/entity.h"

#include <vector>

namespace torvik::dxf {

// What becomes of a thing that is looked at: strokes, or that it does not lie flat.
struct Drawn {
    std::vector<Stroke> strokes;
    bool isFlat = true;
    bool isFilled = false; // only its outline is drawn
};

Drawn lineOf(const Entity& entity);
Drawn circleOf(const Entity& entity);
Drawn arcOf(const Entity& entity);
Drawn ellipseOf(const Entity& entity);
Drawn pointOf(const Entity& entity);
// Three or four corners, the last two changed over.
Drawn cornersOf(const Entity& entity);

// Strokes of a plane of the thing's own, taken to the drawing's.
Drawn inPlane(const Entity& entity, std::vector<Stroke> strokes);

// An arc as a bulge tells it: the tangent of a quarter of its sweep, 0 for a line.
Segment bulgeSegment(Point start, Point end, double bulge);

} // namespace torvik::dxf
