// SPDX-License-Identifier: MIT
#include "prepare/fitting/arc_fit.h"

#include "prepare/arcs.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace torvik {
namespace {

constexpr double largestSweep = 355;

// The height of the centre over the middle of the chord, by least squares: with the chord along X
// from -half to half, circles through both ends have x^2 + y^2 - half^2 = 2 * height * y.
struct ChordView {
    Point middle;
    Point along; // of length 1
    double half;

    Point seen(Point p) const {
        const Point from = p - middle;
        return {dot(from, along), cross(along, from)};
    }
};

struct Heights {
    double largest = 0; // of a point over the chord
    double centre = 0;
};

Heights heights(std::span<const Point> points, const ChordView& view) {
    Heights result;
    double products = 0;
    double squares = 0;
    for (const Point& point : points.subspan(1, points.size() - 2)) {
        const Point p = view.seen(point);
        result.largest = std::max(result.largest, std::fabs(p.y));
        products += (dot(p, p) - view.half * view.half) * p.y;
        squares += p.y * p.y;
    }
    if (squares > 0)
        result.centre = products / (2 * squares);
    return result;
}

bool areNear(std::span<const Point> points, Point centre, double radius, double tolerance) {
    const double low = std::max(radius - tolerance, 0.0);
    const double high = radius + tolerance;
    return std::all_of(points.begin(), points.end(), [&](const Point& point) {
        const double square = dot(point - centre, point - centre);
        return square >= low * low && square <= high * high;
    });
}

constexpr ArcFit flat{true, 0, 0};

// Points that are too close together to say where they go.
bool isSpeck(std::span<const Point> points, double tolerance) {
    return std::all_of(points.begin(), points.end(), [&](const Point& point) {
        return distance(point, points.front()) <= 2 * tolerance;
    });
}

// Whether a chord stands out among short ones: a long line between small corners, which only
// happens to end on their circle and must stay straight.
bool hasLoneChord(std::span<const Point> points, double radius, double tolerance) {
    constexpr double likeness = 4;
    const auto chord = [&](std::size_t i) {
        return i + 1 < points.size() ? distance(points[i], points[i + 1]) : 0.0;
    };
    double before = 0;
    double own = chord(0);
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        const double next = chord(i + 1);
        const bool bulges = own * own > 8 * radius * tolerance;
        if (bulges && own > likeness * std::max(before, next))
            return true;
        before = std::exchange(own, next);
    }
    return false;
}

// What points lie on: an arc, or a line.
struct Shape {
    bool isFlat = false;
    Point centre;
    double radius = 0;
};

double widestTurn(const FitOptions& options) {
    return options.roundTurn + turnSlack;
}

// The sweep over all chords; none where one of them turns too far or back.
std::optional<ArcFit> sweepOf(std::span<const Point> points, const Shape& arc, double widest) {
    ArcFit fit;
    double widestTurn = 0;
    Point before = points[0] - arc.centre;
    for (const Point& point : points.subspan(1)) {
        const Point next = point - arc.centre;
        const double turn = angleBetween(before, next);
        if (std::fabs(turn) > widest || turn * fit.sweep < 0 || turn == 0)
            return {};
        fit.sweep += turn;
        widestTurn = std::max(widestTurn, std::fabs(turn));
        before = next;
    }
    if (std::fabs(fit.sweep) > largestSweep)
        return {};
    fit.bulge = arc.radius * (1 - std::cos(radians(widestTurn) / 2));
    return fit;
}

// Whether there is a sweep. Turns are held against `widest` by their tangents, which are quicker
// than angles; where that is too close to be certain the sweep itself tells.
bool hasSweep(std::span<const Point> points, const Shape& arc, double widest) {
    constexpr double certain = 1e-9;
    constexpr double narrow = 80; // degrees, of turns whose tangents tell them apart
    if (widest > narrow)
        return sweepOf(points, arc, widest).has_value();
    const double most = std::tan(radians(widest));
    double tangents = 0; // their sum is more than that of the turns
    Point before = points[0] - arc.centre;
    for (const Point& point : points.subspan(1)) {
        const Point next = point - arc.centre;
        const double along = dot(before, next);
        const double tangent = cross(before, next) / along;
        const double size = std::fabs(tangent);
        if (!(along > 0 && size > certain && size < most - certain && tangent * tangents >= 0))
            return sweepOf(points, arc, widest).has_value();
        tangents += tangent;
        before = next;
    }
    return std::fabs(tangents) < radians(largestSweep - 1) ||
           sweepOf(points, arc, widest).has_value();
}

// What the points lie on, if anything.
std::optional<Shape> shapeOf(std::span<const Point> points, const FitOptions& options) {
    const Point chord = points.back() - points.front();
    const double half = length(chord) / 2;
    if (half <= options.tolerance)
        return isSpeck(points, options.tolerance) ? std::optional(Shape{true, {}, 0})
                                                  : std::nullopt;
    const ChordView view{points.front() + chord * 0.5, chord * (0.5 / half), half};
    const auto [largest, height] = heights(points, view);
    if (largest <= options.tolerance)
        return Shape{true, {}, 0};
    const double radius = std::sqrt(half * half + height * height);
    const Shape arc{false, view.middle + turnedLeft(view.along) * height, radius};
    if (radius > largestFittedRadius || !areNear(points, arc.centre, radius, options.tolerance) ||
        hasLoneChord(points, radius, options.tolerance) ||
        !hasSweep(points, arc, widestTurn(options)))
        return {};
    return arc;
}

} // namespace

ArcRun longestArc(std::span<const Point> points, const FitOptions& options) {
    std::size_t best = 0;
    Shape shape;
    const auto grow = [&](std::size_t chords) {
        const auto found = shapeOf(points.first(chords + 1), options);
        if (!found)
            return false;
        best = chords;
        shape = *found;
        return true;
    };
    const std::size_t all = points.empty() ? 0 : points.size() - 1;
    if (all < fewestChords || !grow(fewestChords))
        return {};
    std::size_t tooMany = fewestChords;
    do
        tooMany = std::min(best * 2, all + 1);
    while (tooMany <= all && grow(tooMany));
    while (best + 1 < tooMany) {
        const std::size_t middle = best + (tooMany - best) / 2;
        if (!grow(middle))
            tooMany = middle;
    }
    if (shape.isFlat)
        return {best, flat};
    return {best, *sweepOf(points.first(best + 1), shape, widestTurn(options))};
}

} // namespace torvik
