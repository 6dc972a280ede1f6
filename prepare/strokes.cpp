// SPDX-License-Identifier: MIT
#include "prepare/strokes.h"

#include "prepare/arcs.h"

#include <algorithm>
#include <array>

namespace torvik {
namespace {

void includeArc(StrokeExtents& extents, Point start, const Segment& arc) {
    const double radius = distance(arc.first, start);
    const std::array<Point, 4> outermost{{{radius, 0}, {0, radius}, {-radius, 0}, {0, -radius}}};
    for (const Point& direction : outermost)
        if (isOnSweep(start, arc, arc.first + direction))
            extents.include(arc.first + direction);
}

// Where a coordinate of a curve turns back: the roots of its derivative between 0 and 1.
void includeTurns(StrokeExtents& extents, Point start, const Segment& curve, double Point::*axis) {
    const double a = curve.first.*axis - start.*axis;
    const double b = curve.second.*axis - curve.first.*axis;
    const double c = curve.end.*axis - curve.second.*axis;
    const double bent = a - 2 * b + c;
    const double root = std::sqrt(std::max((b - a) * (b - a) - bent * a, 0.0));
    // Divided so that a curve that is hardly bent loses nothing.
    const double sum = (a - b) + std::copysign(root, a - b);
    for (const double t : {sum / bent, a / sum})
        if (t > 0 && t < 1)
            extents.include(pointOnCurve(start, curve, t));
}

void includeCurve(StrokeExtents& extents, Point start, const Segment& curve) {
    includeTurns(extents, start, curve, &Point::x);
    includeTurns(extents, start, curve, &Point::y);
}

double drawnLength(Point start, const Segment& segment) {
    switch (segment.kind) {
    case SegmentKind::line:
        break;
    case SegmentKind::arc:
        return std::fabs(radians(segment.sweep)) * distance(segment.first, start);
    case SegmentKind::curve: {
        constexpr double chords = 64;
        double sum = 0;
        for (int i = 0; i < chords; ++i)
            sum += distance(pointOnCurve(start, segment, i / chords),
                            pointOnCurve(start, segment, (i + 1) / chords));
        return sum;
    }
    }
    return distance(start, segment.end);
}

} // namespace

bool Stroke::isCircle() const {
    return segments.size() == 1 && segments[0].kind == SegmentKind::arc &&
           std::fabs(segments[0].sweep) == fullTurn;
}

Segment lineSegment(Point end) {
    Segment segment;
    segment.end = end;
    return segment;
}

Segment arcSegment(Point start, Point centre, double sweep) {
    Segment segment;
    segment.kind = SegmentKind::arc;
    segment.end = centre + rotated(start - centre, sweep);
    segment.first = centre;
    segment.sweep = sweep;
    return segment;
}

Segment curveSegment(Point first, Point second, Point end) {
    Segment segment;
    segment.kind = SegmentKind::curve;
    segment.end = end;
    segment.first = first;
    segment.second = second;
    return segment;
}

Stroke circleStroke(int pen, Point centre, double radius) {
    const Point top{centre.x, centre.y + radius};
    return {pen, top, {arcSegment(top, centre, fullTurn)}};
}

Stroke reversed(const Stroke& stroke) {
    if (stroke.isCircle())
        return stroke;
    Stroke result{stroke.pen, stroke.end(), {}};
    result.segments.reserve(stroke.segments.size());
    for (std::size_t i = stroke.segments.size(); i-- > 0;) {
        Segment segment = stroke.segments[i];
        segment.end = i == 0 ? stroke.start : stroke.segments[i - 1].end;
        segment.sweep = -segment.sweep;
        if (segment.kind == SegmentKind::curve)
            std::swap(segment.first, segment.second);
        result.segments.push_back(segment);
    }
    return result;
}

void StrokeExtents::include(Point point) {
    low = {std::min(low.x, point.x), std::min(low.y, point.y)};
    high = {std::max(high.x, point.x), std::max(high.y, point.y)};
}

StrokeExtents extentsOf(std::span<const Stroke> strokes) {
    StrokeExtents extents;
    for (const Stroke& stroke : strokes) {
        Point from = stroke.start;
        extents.include(from);
        for (const Segment& segment : stroke.segments) {
            extents.include(segment.end);
            if (segment.kind == SegmentKind::arc)
                includeArc(extents, from, segment);
            if (segment.kind == SegmentKind::curve)
                includeCurve(extents, from, segment);
            from = segment.end;
        }
    }
    return extents;
}

double drawnLength(const Stroke& stroke) {
    double sum = 0;
    Point from = stroke.start;
    for (const Segment& segment : stroke.segments) {
        sum += drawnLength(from, segment);
        from = segment.end;
    }
    return sum;
}

std::size_t segmentCount(std::span<const Stroke> strokes) {
    std::size_t count = 0;
    for (const Stroke& stroke : strokes)
        count += stroke.segments.size();
    return count;
}

} // namespace torvik
