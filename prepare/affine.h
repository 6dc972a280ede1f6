// SPDX-License-Identifier: MIT
// Affine maps of the plane: what pictures, blocks and texts use to scale, turn, skew and move what
// they hold. Angles are degrees, positive counter-clockwise.
#pragma once

#include "prepare/strokes.h"

namespace torvik {

// Takes (1, 0) to xAxis, (0, 1) to yAxis and (0, 0) to origin.
struct Affine {
    Point xAxis{1, 0};
    Point yAxis{0, 1};
    Point origin;

    Point operator()(Point p) const { return xAxis * p.x + yAxis * p.y + origin; }
    // A direction: what moves is left out.
    Point turn(Point p) const { return xAxis * p.x + yAxis * p.y; }
    double determinant() const { return cross(xAxis, yAxis); }
    // Circles stay circles, within a millionth.
    bool keepsCircles() const;

    bool operator==(const Affine&) const = default;
};

// First the inner map, then the outer one.
Affine operator*(const Affine& outer, const Affine& inner);

Affine moved(Point by);
Affine scaled(double x, double y);
Affine turned(double degrees);

// A whole turn of an ellipse, or a part of it that begins at `from` degrees of its own angle, in
// the map that makes it of the circle of radius 1. Arcs where the map keeps circles, else curves of
// at most an eighth of a turn.
Stroke ellipseStroke(int pen, const Affine& map, double from, double sweep);

// The stroke after the map. Arcs stay arcs where circles stay circles; else they become curves.
Stroke mapped(const Stroke& stroke, const Affine& map);

} // namespace torvik
