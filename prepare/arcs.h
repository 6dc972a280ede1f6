// SPDX-License-Identifier: MIT
// Geometry of arcs in plotter units and degrees: where they end, which points lie on them, how far
// a point is from them.
#pragma once

#include "prepare/strokes.h"

#include <optional>

namespace torvik {

inline constexpr double fullTurn = 360;

double radians(double degrees);
double degrees(double radians);

// The vector turned counter-clockwise; by a multiple of 90 degrees exactly.
Point rotated(Point vector, double degrees);

// The angle from vector a to vector b, -180 to 180.
double angleBetween(Point a, Point b);

// Whether the direction from the arc's centre to the point lies on the arc's sweep.
bool isOnSweep(Point start, const Segment& arc, Point point);

// The point of an arc after the given part, 0 to 1, of its sweep.
Point pointOnArc(Point start, const Segment& arc, double part);

double distanceToLine(Point a, Point b, Point point); // of the line from a to b, not beyond it
double distanceToArc(Point start, const Segment& arc, Point point);

// The centre of the circle through three points; none where they lie on one line.
std::optional<Point> centreThrough(Point a, Point b, Point c);

// The sweep of the arc about the centre from `start` by way of `between` to `end`.
double sweepThrough(Point centre, Point start, Point between, Point end);

// The point of a cubic curve at the parameter t, 0 to 1.
Point pointOnCurve(Point start, const Segment& curve, double t);
// The part of a curve between two parameters, from pointOnCurve(from).
Segment partOfCurve(Point start, const Segment& curve, double from, double to);

} // namespace torvik
