// SPDX-License-Identifier: MIT
#include "prepare/dxf/figures.h"

#include "prepare/arcs.h"
#include "prepare/dxf/plane.h"

#include <cmath>
#include <utility>

namespace torvik::dxf {
namespace {

constexpr int startCode = 10; // or the centre
constexpr int endCode = 11;   // or the long axis
constexpr int radiusCode = 40;

// A whole turn that was written with few digits is one all the same.
double turnBetween(double from, double to) {
    constexpr double nearly = 1e-4; // degrees
    double sweep = std::remainder(to - from, fullTurn);
    if (sweep <= 0)
        sweep += fullTurn;
    return sweep >= fullTurn - nearly ? fullTurn : sweep;
}

Drawn roundOf(const Entity& entity, double from, double sweep) {
    const double radius = std::fabs(entity.number(radiusCode));
    const Affine map{{radius, 0}, {0, radius}, entity.point(startCode)};
    return inPlane(entity, {ellipseStroke(1, map, from, sweep)});
}

} // namespace

Drawn inPlane(const Entity& entity, std::vector<Stroke> strokes) {
    const auto plane = planeOf(entity);
    if (!plane)
        return {{}, false};
    if (*plane != Affine{})
        for (Stroke& stroke : strokes)
            stroke = mapped(stroke, *plane);
    return {std::move(strokes)};
}

Segment bulgeSegment(Point start, Point end, double bulge) {
    constexpr double straight = 1e-9;
    if (std::fabs(bulge) < straight)
        return lineSegment(end);
    const Point chord = end - start;
    const Point centre =
        start + chord * 0.5 + turnedLeft(chord) * ((1 - bulge * bulge) / (4 * bulge));
    return {SegmentKind::arc, end, centre, {}, degrees(4 * std::atan(bulge))};
}

Drawn lineOf(const Entity& entity) {
    if (entity.height(startCode) != entity.height(endCode))
        return {{}, false};
    return {{{1, entity.point(startCode), {lineSegment(entity.point(endCode))}}}};
}

Drawn circleOf(const Entity& entity) {
    return roundOf(entity, 0, fullTurn);
}

Drawn arcOf(const Entity& entity) {
    constexpr int fromCode = 50;
    constexpr int toCode = 51;
    const double from = entity.number(fromCode);
    return roundOf(entity, from, turnBetween(from, entity.number(toCode)));
}

// Its axes are the drawing's own; seen from below, it only turns the other way.
Drawn ellipseOf(const Entity& entity) {
    constexpr int ratioCode = 40;
    constexpr int fromCode = 41;
    constexpr int toCode = 42;
    const auto plane = planeOf(entity);
    if (!plane || entity.height(endCode) != 0)
        return {{}, false};
    const Point axis = entity.point(endCode);
    const double ratio = entity.number(ratioCode);
    const Point other = turnedLeft(axis) * (plane->determinant() < 0 ? -ratio : ratio);
    const double from = degrees(entity.number(fromCode, 0));
    const double to = degrees(entity.number(toCode, radians(fullTurn)));
    return {
        {ellipseStroke(1, {axis, other, entity.point(startCode)}, from, turnBetween(from, to))}};
}

Drawn pointOf(const Entity& entity) {
    return {{{1, entity.point(startCode), {}}}};
}

Drawn cornersOf(const Entity& entity) {
    constexpr int thirdCode = 12;
    constexpr int fourthCode = 13;
    const Point first = entity.point(startCode);
    const Point third = entity.point(thirdCode);
    const Point fourth = entity.has(fourthCode) ? entity.point(fourthCode) : third;
    Stroke stroke{1, first, {lineSegment(entity.point(endCode)), lineSegment(fourth)}};
    if (fourth != third)
        stroke.segments.push_back(lineSegment(third));
    stroke.segments.push_back(lineSegment(first));
    Drawn drawn = inPlane(entity, {std::move(stroke)});
    drawn.isFilled = true;
    return drawn;
}

} // namespace torvik::dxf
