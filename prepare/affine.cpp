// SPDX-License-Identifier: MIT
#include "prepare/affine.h"

#include "prepare/arcs.h"

#include <algorithm>
#include <cmath>

namespace torvik {
namespace {

// The curve of a piece of the circle about (0, 0) through `from`, taken through the map.
Segment curveOfArc(const Affine& map, Point from, double sweep) {
    const double handle = 4.0 / 3 * std::tan(radians(sweep) / 4);
    const Point to = rotated(from, sweep);
    return curveSegment(map(from + turnedLeft(from) * handle), map(to - turnedLeft(to) * handle),
                        map(to));
}

void appendCurves(Stroke& stroke, const Affine& map, Point from, double sweep) {
    constexpr double widest = 45;
    const double wanted = std::ceil(std::fabs(sweep) / widest);
    const int pieces = wanted >= 1 ? static_cast<int>(wanted) : 1; // one of what is no number, too
    for (int i = 0; i < pieces; ++i) {
        stroke.segments.push_back(curveOfArc(map, from, sweep / pieces));
        from = rotated(from, sweep / pieces);
    }
}

} // namespace

bool Affine::keepsCircles() const {
    constexpr double likeness = 1e-6;
    const double size = length(xAxis);
    return std::fabs(length(yAxis) - size) <= likeness * size &&
           std::fabs(dot(xAxis, yAxis)) <= likeness * size * size;
}

Affine operator*(const Affine& outer, const Affine& inner) {
    return {outer.turn(inner.xAxis), outer.turn(inner.yAxis), outer(inner.origin)};
}

Affine moved(Point by) {
    return {{1, 0}, {0, 1}, by};
}

Affine scaled(double x, double y) {
    return {{x, 0}, {0, y}, {}};
}

Affine turned(double degrees) {
    return {rotated({1, 0}, degrees), rotated({0, 1}, degrees), {}};
}

Stroke ellipseStroke(int pen, const Affine& map, double from, double sweep) {
    const bool isWhole = std::fabs(sweep) >= fullTurn;
    const Point first = rotated({1, 0}, from);
    if (map.keepsCircles()) {
        if (isWhole)
            return circleStroke(pen, map.origin, length(map.xAxis));
        const double turn = map.determinant() < 0 ? -sweep : sweep;
        return {pen, map(first), {arcSegment(map(first), map.origin, turn)}};
    }
    Stroke stroke{pen, map(first), {}};
    appendCurves(stroke, map, first, isWhole ? std::copysign(fullTurn, sweep) : sweep);
    if (isWhole)
        stroke.segments.back().end = stroke.start;
    return stroke;
}

Stroke mapped(const Stroke& stroke, const Affine& map) {
    const bool staysRound = map.keepsCircles();
    if (staysRound && stroke.isCircle()) {
        const Segment& arc = stroke.segments[0];
        return circleStroke(stroke.pen, map(arc.first),
                            distance(arc.first, stroke.start) * length(map.xAxis));
    }
    Stroke result{stroke.pen, map(stroke.start), {}};
    result.segments.reserve(stroke.segments.size());
    Point start = stroke.start;
    for (const Segment& segment : stroke.segments) {
        if (isArc(segment) && !staysRound) {
            const Point radius = start - segment.first;
            const Affine round{radius, turnedLeft(radius), segment.first};
            appendCurves(result, map * round, {1, 0}, segment.sweep);
            result.segments.back().end = map(segment.end);
        } else {
            result.segments.push_back({segment.kind, map(segment.end), map(segment.first),
                                       map(segment.second),
                                       map.determinant() < 0 ? -segment.sweep : segment.sweep});
        }
        start = segment.end;
    }
    return result;
}

} // namespace torvik
