// SPDX-License-Identifier: MIT
#include "prepare/fitting/grid.h"

#include "prepare/arcs.h"

#include <utility>

namespace torvik {
namespace {

// An arc whose numbers can be written as they are keeps its centre, unless it was meant to begin
// elsewhere. So does one that is nearly a whole turn: its short chord cannot tell the centre.
Segment gridArcOf(Point start, const Segment& arc) {
    constexpr double near = 0.01; // plotter units
    const Segment same = arcSegment(start, toGrid(arc.first), toGrid(arc.sweep));
    if (start == same.first)
        return lineSegment(toGrid(arc.end));
    const Segment moved = gridArc(start, arc.end, arc.sweep);
    const bool isOnGrid = arc.first == same.first && arc.sweep == same.sweep;
    const bool losesPlace = isArc(moved) ? distance(moved.first, same.first) > near
                                         : std::fabs(same.sweep) > fullTurn / 2;
    return (isOnGrid || losesPlace) && distance(same.end, arc.end) <= near ? same : moved;
}

} // namespace

Segment gridArc(Point start, Point target, double sweep) {
    sweep = toGrid(sweep);
    const Point chord = target - start;
    const double half = radians(sweep) / 2;
    if (sweep == 0 || start == target)
        return lineSegment(toGrid(target));
    const Point centre = start + chord * 0.5 + turnedLeft(chord) * (0.5 / std::tan(half));
    return arcSegment(start, toGrid(centre), sweep);
}

Segment gridSegment(Point start, const Segment& segment) {
    switch (segment.kind) {
    case SegmentKind::arc:
        return gridArcOf(start, segment);
    case SegmentKind::curve:
        return curveSegment(segment.first, segment.second, toGrid(segment.end));
    case SegmentKind::line:
        break;
    }
    return lineSegment(toGrid(segment.end));
}

void settle(Stroke& stroke) {
    if (stroke.isCircle()) {
        const Point centre = stroke.segments[0].first;
        stroke = circleStroke(stroke.pen, toGrid(centre), toGrid(distance(centre, stroke.start)));
        return;
    }
    stroke.start = toGrid(stroke.start);
    Point place = stroke.start;
    std::size_t kept = 0;
    for (const Segment& segment : stroke.segments) {
        const Segment next = gridSegment(place, segment);
        if (next.kind == SegmentKind::line && next.end == place)
            continue;
        place = next.end;
        stroke.segments[kept++] = next;
    }
    stroke.segments.resize(kept);
}

} // namespace torvik
