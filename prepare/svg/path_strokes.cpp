// SPDX-License-Identifier: MIT
#include "prepare/svg/path_strokes.h"

#include "prepare/arcs.h"

#include <QPainterPath>
#include <QTransform>

#include <algorithm>
#include <optional>
#include <utility>

namespace torvik {
namespace {

Point pointOf(const QPointF& p) {
    return {p.x(), p.y()};
}

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

bool keepsCircles(const QTransform& t) {
    const double size = std::hypot(t.m11(), t.m12());
    const double skew = std::hypot(t.m21(), t.m22()) - size;
    const double square = t.m11() * t.m21() + t.m12() * t.m22();
    return t.isAffine() && std::fabs(skew) <= 1e-6 * size &&
           std::fabs(square) <= 1e-6 * size * size;
}

} // namespace

std::vector<Stroke> strokesOfPath(const QPainterPath& path, const QTransform& transform) {
    std::vector<Stroke> strokes;
    const QPainterPath mapped = transform.map(path);
    for (int i = 0; i < mapped.elementCount(); ++i) {
        const QPainterPath::Element element = mapped.elementAt(i);
        const Point place = pointOf(element);
        if (element.isMoveTo() || strokes.empty()) {
            strokes.push_back({1, place, {}});
        } else if (element.isLineTo()) {
            strokes.back().segments.push_back(lineSegment(place));
        } else if (element.isCurveTo() && i + 2 < mapped.elementCount()) {
            const Point second = pointOf(mapped.elementAt(i + 1));
            const Point end = pointOf(mapped.elementAt(i + 2));
            const Segment curve = curveSegment(place, second, end);
            strokes.back().segments.push_back(arcOf(strokes.back().end(), curve).value_or(curve));
            i += 2;
        }
    }
    // A part that only says where to go draws nothing; one that goes nowhere is a dot.
    std::erase_if(strokes, [](const Stroke& stroke) { return stroke.segments.empty(); });
    for (Stroke& stroke : strokes)
        if (std::all_of(stroke.segments.begin(), stroke.segments.end(), [&](const Segment& s) {
                return s.kind == SegmentKind::line && s.end == stroke.start;
            }))
            stroke.segments.clear();
    return strokes;
}

std::vector<Stroke> strokesOfEllipse(const QRectF& rect, const QTransform& transform) {
    const bool isCircle = std::fabs(rect.width() - rect.height()) <= 1e-6 * rect.width();
    if (isCircle && keepsCircles(transform)) {
        const double factor = std::hypot(transform.m11(), transform.m12());
        return {circleStroke(1, pointOf(transform.map(rect.center())), rect.width() / 2 * factor)};
    }
    QPainterPath path;
    path.addEllipse(rect);
    return strokesOfPath(path, transform);
}

} // namespace torvik
