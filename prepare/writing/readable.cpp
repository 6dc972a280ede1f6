// SPDX-License-Identifier: MIT
#include "prepare/writing/readable.h"

#include "prepare/arcs.h"
#include "prepare/fitting/grid.h"

#include <algorithm>

namespace torvik {
namespace {

constexpr double largestRadius =
    400'000;                          // plotter units: a sweep's last digit moves its end by 0.7
constexpr double axisRange = 0.00142; // radians
constexpr double wayOut = 0.0017;     // radians from the axis, out of the range for certain

// The angle between the vector and the X axis, either way along it.
double angleOffAxis(Point vector) {
    return std::atan2(std::fabs(vector.y), std::fabs(vector.x));
}

bool isMisread(Point start, const Segment& arc) {
    constexpr double harmless = 0.02; // plotter units
    const Point vector = start - arc.first;
    return angleOffAxis(vector) < axisRange && std::fabs(vector.y) > harmless;
}

// How far the arc must turn from its start to leave the range about the axis, in degrees.
double sweepOut(Point start, const Segment& arc) {
    const Point vector = start - arc.first;
    const bool leavesAxis = (vector.x * vector.y > 0) == (arc.sweep > 0);
    const double off = angleOffAxis(vector);
    return std::copysign(degrees(leavesAxis ? wayOut - off : wayOut + off), arc.sweep);
}

void appendArc(Stroke& stroke, const Segment& arc) {
    Segment rest = arc;
    if (isMisread(stroke.end(), arc)) {
        const double out = sweepOut(stroke.end(), arc);
        if (std::fabs(out) < std::fabs(arc.sweep)) {
            const Point first = arc.first + rotated(stroke.end() - arc.first, out);
            stroke.segments.push_back(lineSegment(toGrid(first)));
            rest = gridArc(stroke.end(), arc.end, arc.sweep - out);
        } else {
            rest = lineSegment(toGrid(arc.end));
        }
    } else {
        rest = gridSegment(stroke.end(), arc);
    }
    stroke.segments.push_back(rest);
}

void appendChords(Stroke& stroke, const Segment& arc, double tolerance) {
    const double radius = distance(stroke.end(), arc.first);
    const double widest = 2 * std::acos(1 - std::min(tolerance / 2, radius) / radius);
    const double chords = std::max(1.0, std::ceil(radians(std::fabs(arc.sweep)) / widest));
    const Point start = stroke.end();
    for (int i = 1; i < static_cast<int>(chords); ++i)
        stroke.segments.push_back(lineSegment(toGrid(pointOnArc(start, arc, i / chords))));
    stroke.segments.push_back(lineSegment(toGrid(arc.end)));
}

Stroke readable(const Stroke& stroke, double tolerance) {
    Stroke result{stroke.pen, stroke.start, {}};
    result.segments.reserve(stroke.segments.size());
    for (const Segment& segment : stroke.segments) {
        if (segment.kind != SegmentKind::arc)
            result.segments.push_back(segment);
        else if (distance(result.end(), segment.first) > largestRadius)
            appendChords(result, segment, tolerance);
        else
            appendArc(result, segment);
    }
    return result;
}

} // namespace

void makeReadable(std::vector<Stroke>& strokes, double tolerance) {
    for (Stroke& stroke : strokes)
        if (!stroke.isCircle() &&
            std::any_of(stroke.segments.begin(), stroke.segments.end(),
                        [](const Segment& s) { return s.kind == SegmentKind::arc; }))
            stroke = readable(stroke, tolerance);
}

} // namespace torvik
