// SPDX-License-Identifier: MIT
#include "prepare/fitting/flatten.h"

#include "prepare/arcs.h"

#include <algorithm>

namespace torvik {
namespace {

constexpr int mostHalvings = 16;

// A cubic curve is no farther from its chord than this part of its control points' distance from
// where they would stand on an evenly drawn line.
double distanceFromChord(Point start, const Segment& curve) {
    const Point off1 = curve.first * 3 - start * 2 - curve.end;
    const Point off2 = curve.second * 3 - curve.end * 2 - start;
    return std::sqrt(std::max(dot(off1, off1), dot(off2, off2))) / 4;
}

// The halves of a curve, by the middles of the lines between its control points.
void addChords(Point start, const Segment& curve, double tolerance, int depth,
               std::vector<Point>& ends) {
    if (depth == mostHalvings || distanceFromChord(start, curve) <= tolerance) {
        ends.push_back(curve.end);
        return;
    }
    const Point a = (start + curve.first) * 0.5;
    const Point b = (curve.first + curve.second) * 0.5;
    const Point c = (curve.second + curve.end) * 0.5;
    const Point ab = (a + b) * 0.5;
    const Point bc = (b + c) * 0.5;
    const Point middle = (ab + bc) * 0.5;
    addChords(start, curveSegment(a, ab, middle), tolerance, depth + 1, ends);
    addChords(middle, curveSegment(bc, c, curve.end), tolerance, depth + 1, ends);
}

} // namespace

std::vector<Point> flattenCurve(Point start, const Segment& curve, double tolerance) {
    std::vector<Point> ends;
    addChords(start, curve, tolerance, 0, ends);
    return ends;
}

} // namespace torvik
