// SPDX-License-Identifier: MIT
#include "prepare/fitting/readable_arc.h"

#include "prepare/arcs.h"
#include "prepare/fitting/grid.h"

#include <algorithm>

namespace torvik {
namespace {

constexpr double axisRange = 0.00142; // radians
constexpr double wayOut = 0.0017;     // radians from the axis, out of the range for certain

// The angle between the vector and the X axis, either way along it.
double angleOffAxis(Point vector) {
    return std::atan2(std::fabs(vector.y), std::fabs(vector.x));
}

// How far the arc must turn from its start to leave the range about the axis, in degrees.
double sweepOut(Point start, const Segment& arc) {
    const Point vector = start - arc.first;
    const bool leavesAxis = (vector.x * vector.y > 0) == (arc.sweep > 0);
    const double off = angleOffAxis(vector);
    return std::copysign(degrees(leavesAxis ? wayOut - off : wayOut + off), arc.sweep);
}

} // namespace

bool isTooLarge(Point start, const Segment& arc) {
    // The last digit of a sweep moves the end of this circle's arcs by 0.7 plotter units.
    constexpr double largestRadius = 400'000;
    return distance(start, arc.first) > largestRadius;
}

std::vector<Segment> linesForArc(Point start, const Segment& arc, double tolerance) {
    const double radius = distance(start, arc.first);
    const double widest = 2 * std::acos(1 - tolerance / radius);
    const double count = std::max(1.0, std::ceil(radians(std::fabs(arc.sweep)) / widest));
    std::vector<Segment> lines;
    for (int i = 1; i < static_cast<int>(count); ++i)
        lines.push_back(lineSegment(toGrid(pointOnArc(start, arc, i / count))));
    lines.push_back(lineSegment(toGrid(arc.end)));
    return lines;
}

bool isMisread(Point start, const Segment& arc) {
    constexpr double harmless = 0.02; // plotter units
    const Point vector = start - arc.first;
    return angleOffAxis(vector) < axisRange && std::fabs(vector.y) > harmless;
}

std::vector<Segment> withLeadIn(Point start, const Segment& arc) {
    const double out = sweepOut(start, arc);
    if (std::fabs(out) >= std::fabs(arc.sweep))
        return {lineSegment(toGrid(arc.end))};
    const Segment line = lineSegment(toGrid(pointOnArc(start, arc, out / arc.sweep)));
    return {line, gridArc(line.end, arc.end, arc.sweep - out)};
}

} // namespace torvik
