// SPDX-License-Identifier: MIT
#include "prepare/svg/stroke_builder.h"

#include "prepare/arcs.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace torvik::svg {
namespace {

// The arc that a curve stands for: both handles are tangents of one length, and the length is that
// of the usual stand-in for an arc.
std::optional<Segment> arcOf(Point start, const Segment& curve) {
    constexpr double likeness = 0.0005; // of the handles' length
    const Point in = curve.first - start;
    const Point out = curve.end - curve.second;
    const double handle = length(in);
    if (handle == 0 || std::fabs(length(out) - handle) > likeness * handle)
        return {};
    const double sweep = angleBetween(in, out);
    const Point chord = curve.end - start;
    const double half = radians(sweep) / 2;
    // On an arc the chord's direction lies midway between the tangents.
    if (std::fabs(sweep) < 0.1 || std::fabs(sweep) > 179 ||
        std::fabs(angleBetween(in, chord) - sweep / 2) > 0.01)
        return {};
    const double radius = length(chord) / (2 * std::fabs(std::sin(half)));
    if (std::fabs(handle - radius * 4 / 3 * std::fabs(std::tan(half / 2))) > likeness * handle)
        return {};
    const Point centre = start + turnedLeft(in) * (std::copysign(radius, sweep) / handle);
    Segment arc = arcSegment(start, centre, sweep);
    arc.end = curve.end;
    return arc;
}

// The ellipse that an arc is a part of: the map that makes it of the circle of radius 1, and where
// the arc lies on that circle.
struct ArcPlace {
    Affine map;
    double from = 0;
    double sweep = 0;
};

ArcPlace placeOf(const EllipticalArc& arc, Point start, Point end) {
    const Affine round = turned(arc.turn) * scaled(std::fabs(arc.radiusX), std::fabs(arc.radiusY));
    // Where the ellipse is the circle of radius 1, the chord's half and the way to the centre stand
    // upright on each other.
    const Point chord = rotated(end - start, -arc.turn);
    Point half{chord.x / 2 / std::fabs(arc.radiusX), chord.y / 2 / std::fabs(arc.radiusY)};
    const double reach = length(half);
    const double growth = std::max(1.0, reach);
    half = half * (1 / growth);
    const double away = std::sqrt(std::max(0.0, 1 - dot(half, half))) / length(half);
    const Point toCentre = turnedLeft(half) * (arc.isLarge == arc.isPositive ? -away : away);
    const Point from = half * -1 - toCentre;
    const Point to = half - toCentre;
    double sweep = angleBetween(from, to);
    if (arc.isPositive && sweep < 0)
        sweep += fullTurn;
    else if (!arc.isPositive && sweep > 0)
        sweep -= fullTurn;
    const Point middle = (start + end) * 0.5;
    const Affine grown = round * scaled(growth, growth);
    return {moved(middle + grown.turn(toCentre)) * grown, degrees(std::atan2(from.y, from.x)),
            sweep};
}

bool goesNowhere(const Stroke& stroke) {
    return std::all_of(stroke.segments.begin(), stroke.segments.end(), [&](const Segment& segment) {
        return isLine(segment) && segment.end == stroke.start;
    });
}

constexpr double samePlace = 1e-6; // after the map

void closeStroke(Stroke& stroke) {
    if (distance(stroke.end(), stroke.start) > samePlace)
        stroke.segments.push_back(lineSegment(stroke.start));
    else
        stroke.segments.back().end = stroke.start;
}

bool isStraight(const Stroke& stroke) {
    return std::all_of(stroke.segments.begin(), stroke.segments.end(), [&](const Segment& segment) {
        return isLine(segment) &&
               distanceToLine(stroke.start, stroke.end(), segment.end) <= samePlace;
    });
}

} // namespace

void StrokeBuilder::moveTo(Point place) {
    m_place = m_start = place;
    m_isOpen = false;
}

void StrokeBuilder::add(const Segment& segment, Point end) {
    if (!std::exchange(m_isOpen, true))
        m_strokes.push_back({1, m_map(m_place), {}});
    m_strokes.back().segments.push_back(segment);
    m_place = end;
}

void StrokeBuilder::lineTo(Point end) {
    add(lineSegment(m_map(end)), end);
}

void StrokeBuilder::curveTo(Point first, Point second, Point end) {
    const Segment curve = curveSegment(m_map(first), m_map(second), m_map(end));
    add(arcOf(m_map(m_place), curve).value_or(curve), end);
}

void StrokeBuilder::arcTo(const EllipticalArc& arc, Point end) {
    if (end == m_place)
        return;
    const ArcPlace place = placeOf(arc, m_place, end);
    const bool isArc = arc.radiusX != 0 && arc.radiusY != 0 && place.sweep != 0 &&
                       std::isfinite(place.sweep) && std::isfinite(place.map.origin.x) &&
                       std::isfinite(place.map.origin.y);
    if (!isArc) {
        lineTo(end);
        return;
    }
    Stroke stroke = ellipseStroke(1, m_map * place.map, place.from, place.sweep);
    stroke.segments.back().end = m_map(end);
    for (const Segment& segment : stroke.segments)
        add(segment, end);
}

void StrokeBuilder::close() {
    if (m_isOpen)
        closeStroke(m_strokes.back());
    m_place = m_start;
    m_isOpen = false;
}

std::vector<Stroke> StrokeBuilder::take() {
    for (Stroke& stroke : m_strokes)
        if (goesNowhere(stroke))
            stroke.segments.clear();
    m_isOpen = false;
    return std::exchange(m_strokes, {});
}

void closeArea(Stroke& stroke) {
    if (!isStraight(stroke))
        closeStroke(stroke);
}

} // namespace torvik::svg
