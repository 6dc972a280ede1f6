// SPDX-License-Identifier: MIT
// Builds strokes out of what paths and shapes say, taken through a map to where they are drawn:
// lines, cubic curves, elliptical arcs. Arcs and curves that stand for a piece of a circle become
// arcs where the map keeps them round.
#pragma once

#include "prepare/affine.h"

#include <vector>

namespace torvik::svg {

// An elliptical arc as paths write it: radii, how the ellipse is turned in degrees, which of the
// four arcs.
struct EllipticalArc {
    double radiusX = 0;
    double radiusY = 0;
    double turn = 0;
    bool isLarge = false;
    bool isPositive = false; // towards growing angles
};

class StrokeBuilder {
public:
    explicit StrokeBuilder(const Affine& map) : m_map(map) {}

    void moveTo(Point place);
    void lineTo(Point end);
    void curveTo(Point first, Point second, Point end);
    // A line where a radius is 0; radii that are too small to reach grow.
    void arcTo(const EllipticalArc& arc, Point end);
    void close();

    Point place() const { return m_place; } // before the map
    // One stroke for each part; a part that goes nowhere is a dot, one that only moves is none.
    std::vector<Stroke> take();

private:
    void add(const Segment& segment, Point end);

    Affine m_map;
    std::vector<Stroke> m_strokes;
    Point m_place;
    Point m_start;         // of the part
    bool m_isOpen = false; // the part has drawn something
};

// Closes the edge of an area whose path does not say so. A straight line stays one.
void closeArea(Stroke& stroke);

} // namespace torvik::svg
