// SPDX-License-Identifier: MIT
// Strokes: what a pen draws between coming down and going up, as lines, arcs, circles and cubic
// curves. Lengths are plotter units of 1/40 mm in double precision, angles are degrees, positive
// counter-clockwise. Every stage of the preparation takes strokes and gives strokes.
#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace torvik {

struct Point {
    double x = 0;
    double y = 0;

    bool operator==(const Point&) const = default;
};

inline Point operator+(Point a, Point b) {
    return {a.x + b.x, a.y + b.y};
}
inline Point operator-(Point a, Point b) {
    return {a.x - b.x, a.y - b.y};
}
inline Point operator*(Point a, double factor) {
    return {a.x * factor, a.y * factor};
}
inline double dot(Point a, Point b) {
    return a.x * b.x + a.y * b.y;
}
inline double cross(Point a, Point b) {
    return a.x * b.y - a.y * b.x;
}
inline double length(Point a) {
    return std::sqrt(dot(a, a));
}
inline double distance(Point a, Point b) {
    return length(b - a);
}

// The vector turned by 90 degrees counter-clockwise.
inline Point turnedLeft(Point a) {
    return {-a.y, a.x};
}

enum class SegmentKind : std::uint8_t { line, arc, curve };

// A piece of a stroke, from where the piece before it ended.
struct Segment {
    SegmentKind kind = SegmentKind::line;
    Point end;
    Point first;      // of an arc its centre, of a curve its first control point
    Point second;     // of a curve its second control point
    double sweep = 0; // of an arc, never 0, at most a full turn

    bool operator==(const Segment&) const = default;
};

inline bool isLine(const Segment& segment) {
    return segment.kind == SegmentKind::line;
}
inline bool isArc(const Segment& segment) {
    return segment.kind == SegmentKind::arc;
}

struct Stroke {
    int pen = 1;
    Point start;
    std::vector<Segment> segments; // none: a dot

    Point end() const { return segments.empty() ? start : segments.back().end; }
    bool isDot() const { return segments.empty(); }
    // One arc of a full turn.
    bool isCircle() const;

    bool operator==(const Stroke&) const = default;
};

Segment lineSegment(Point end);
// An arc from `start`; where it ends follows from centre and sweep.
Segment arcSegment(Point start, Point centre, double sweep);
Segment curveSegment(Point first, Point second, Point end);

// A circle as it is drawn: counter-clockwise from its top.
Stroke circleStroke(int pen, Point centre, double radius);

// The same stroke drawn from its end to its start. A circle stays as it is.
Stroke reversed(const Stroke& stroke);

// The rectangle that strokes fill; empty where nothing was included.
struct StrokeExtents {
    Point low{HUGE_VAL, HUGE_VAL};
    Point high{-HUGE_VAL, -HUGE_VAL};

    bool empty() const { return high.x < low.x; }
    void include(Point point);
};

// Of what is drawn: the control points of curves do not count.
StrokeExtents extentsOf(std::span<const Stroke> strokes);

// The length that is drawn; of a curve, that of 64 chords.
double drawnLength(const Stroke& stroke);

std::size_t segmentCount(std::span<const Stroke> strokes);

} // namespace torvik
