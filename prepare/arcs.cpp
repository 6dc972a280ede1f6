// SPDX-License-Identifier: MIT
#include "prepare/arcs.h"

#include <algorithm>
#include <numbers>

namespace torvik {

double radians(double degrees) {
    return degrees * (std::numbers::pi / 180);
}

double degrees(double radians) {
    return radians * (180 / std::numbers::pi);
}

Point rotated(Point vector, double degrees) {
    if (std::fmod(degrees, 90) == 0) {
        const auto quarters = static_cast<int>(std::fmod(degrees / 90, 4) + 4) % 4;
        for (int i = 0; i < quarters; ++i)
            vector = turnedLeft(vector);
        return vector;
    }
    const double cosine = std::cos(radians(degrees));
    const double sine = std::sin(radians(degrees));
    return {vector.x * cosine - vector.y * sine, vector.x * sine + vector.y * cosine};
}

double angleBetween(Point a, Point b) {
    return degrees(std::atan2(cross(a, b), dot(a, b)));
}

namespace {

// Whether the point lies on the sweep, as far as two products tell for certain; nothing near the
// ends of the sweep, or where it is about half a turn.
std::optional<bool> isSurelyOnSweep(Point start, const Segment& arc, Point point) {
    constexpr double certain = 1e-6;
    constexpr double nearHalf = 1; // degrees
    const Point from = start - arc.first;
    const Point to = arc.end - arc.first;
    const Point at = point - arc.first;
    const double least = certain * (dot(from, from) + dot(at, at));
    const double behindStart = std::copysign(1, arc.sweep) * cross(from, at);
    const double beforeEnd = std::copysign(1, arc.sweep) * cross(at, to);
    const double beyondHalf = std::fabs(arc.sweep) - fullTurn / 2;
    if (std::fabs(behindStart) < least || std::fabs(beforeEnd) < least ||
        std::fabs(beyondHalf) < nearHalf)
        return {};
    const bool isBehindStart = behindStart > 0;
    const bool isBeforeEnd = beforeEnd > 0;
    return beyondHalf < 0 ? isBehindStart && isBeforeEnd : isBehindStart || isBeforeEnd;
}

} // namespace

bool isOnSweep(Point start, const Segment& arc, Point point) {
    if (std::fabs(arc.sweep) >= fullTurn)
        return true;
    if (const auto isSurely = isSurelyOnSweep(start, arc, point))
        return *isSurely;
    double turn = angleBetween(start - arc.first, point - arc.first);
    if (turn != 0 && (turn < 0) != (arc.sweep < 0))
        turn += std::copysign(fullTurn, arc.sweep);
    return std::fabs(turn) <= std::fabs(arc.sweep);
}

Point pointOnArc(Point start, const Segment& arc, double part) {
    return arc.first + rotated(start - arc.first, arc.sweep * part);
}

double distanceToLine(Point a, Point b, Point point) {
    const Point along = b - a;
    const double square = dot(along, along);
    if (square == 0)
        return distance(a, point);
    const double part = dot(point - a, along) / square;
    if (part <= 0)
        return distance(a, point);
    if (part >= 1)
        return distance(b, point);
    return std::fabs(cross(along, point - a)) / std::sqrt(square);
}

double distanceToArc(Point start, const Segment& arc, Point point) {
    if (isOnSweep(start, arc, point))
        return std::fabs(distance(arc.first, point) - distance(arc.first, start));
    return std::min(distance(start, point), distance(arc.end, point));
}

std::optional<Point> centreThrough(Point a, Point b, Point c) {
    const Point toB = b - a;
    const Point toC = c - a;
    const double area = 2 * cross(toB, toC);
    // A circle much larger than any drawing is as good as a line.
    if (std::fabs(area) <= 1e-9 * (dot(toB, toB) + dot(toC, toC)))
        return {};
    const double x = (toC.y * dot(toB, toB) - toB.y * dot(toC, toC)) / area;
    const double y = (toB.x * dot(toC, toC) - toC.x * dot(toB, toB)) / area;
    return a + Point{x, y};
}

double sweepThrough(Point centre, Point start, Point between, Point end) {
    const bool isLeft = cross(between - start, end - start) > 0;
    double sweep = angleBetween(start - centre, end - centre);
    if (isLeft && sweep <= 0)
        sweep += fullTurn;
    if (!isLeft && sweep >= 0)
        sweep -= fullTurn;
    return sweep;
}

Point pointOnCurve(Point start, const Segment& curve, double t) {
    const double s = 1 - t;
    return start * (s * s * s) + curve.first * (3 * s * s * t) + curve.second * (3 * s * t * t) +
           curve.end * (t * t * t);
}

Segment partOfCurve(Point start, const Segment& curve, double from, double to) {
    const auto derivative = [&](double t) {
        const double s = 1 - t;
        return (curve.first - start) * (3 * s * s) + (curve.second - curve.first) * (6 * s * t) +
               (curve.end - curve.second) * (3 * t * t);
    };
    const double third = (to - from) / 3;
    const Point a = pointOnCurve(start, curve, from);
    const Point b = to == 1 ? curve.end : pointOnCurve(start, curve, to);
    return curveSegment(a + derivative(from) * third, b - derivative(to) * third, b);
}

} // namespace torvik
