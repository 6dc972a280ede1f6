// SPDX-License-Identifier: MIT
#include "sweep/shape.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace torvik::sweep {
namespace {

using check::Move;
using check::MoveKind;

constexpr Span nothing{1, -1};
constexpr double slack = 1e-9; // mm: neighbours that share an edge leave no gap

// Keeps of the span where slope * x + height >= 0.
Span clipped(Span span, double slope, double height) {
    if (std::fabs(slope) < 1e-12)
        return height >= -slack ? span : nothing;
    const double edge = -height / slope;
    if (slope > 0)
        span.low = std::max(span.low, edge - slack);
    else
        span.high = std::min(span.high, edge + slack);
    return span;
}

double halfWidth(double radius, double distance) {
    const double square = radius * radius - distance * distance;
    return square > 0 ? std::sqrt(square) : 0;
}

Span moved(Span span, double x) {
    return {span.low + x, span.high + x};
}

} // namespace

Shape::Shape(const Move& move, double radius)
    : m_radius(radius), m_start{move.from.x, move.from.y}, m_end{move.to.x, move.to.y},
      m_isArc(move.isArc()) {
    if (m_isArc)
        setArc(move);
    else
        setLine(move);
}

// A way up or down is a line of no length, whose start need not be known.
void Shape::setLine(const Move& move) {
    const double x = move.to.x - move.from.x;
    const double y = move.to.y - move.from.y;
    const double length = std::hypot(x, y);
    if (!(length > 0)) {
        m_start = m_end;
        return;
    }
    m_length = length;
    m_direction = {x / length, y / length};
}

void Shape::setArc(const Move& move) {
    m_centre = move.centre;
    const double x = move.from.x - m_centre.x;
    const double y = move.from.y - m_centre.y;
    const double path = std::hypot(x, y);
    m_inner = std::max(0.0, path - m_radius);
    m_outer = path + m_radius;
    const bool isClockwise = move.kind == MoveKind::cutClockwise;
    const double sweep = std::min(move.sweep(), 2 * std::numbers::pi);
    m_sectorCount = std::clamp<std::size_t>(
        static_cast<std::size_t>(std::ceil(sweep / (0.6 * std::numbers::pi))), 1, m_sectors.size());
    // Counterclockwise, beginning at the end of a clockwise arc.
    const double first = std::atan2(y, x) - (isClockwise ? sweep : 0);
    const double step = sweep / static_cast<double>(m_sectorCount);
    const auto direction = [&](std::size_t i) {
        const double angle = first + step * static_cast<double>(i);
        return Point{std::cos(angle), std::sin(angle)};
    };
    for (std::size_t i = 0; i < m_sectorCount; ++i)
        m_sectors[i] = {direction(i), direction(i + 1)};
}

Span Shape::discAt(Point centre, double y) const {
    const double distance = y - centre.y;
    if (std::fabs(distance) > m_radius)
        return nothing;
    const double half = halfWidth(m_radius, distance);
    return {centre.x - half, centre.x + half};
}

// The rectangle beside the line.
Span Shape::stripAt(double y) const {
    const double up = y - m_start.y;
    const auto& [x, slope] = m_direction;
    Span span{-m_length - m_radius, m_length + m_radius};
    span = clipped(span, x, slope * up);
    span = clipped(span, -x, m_length - slope * up);
    span = clipped(span, -slope, x * up + m_radius);
    span = clipped(span, slope, m_radius - x * up);
    return moved(span, m_start.x);
}

std::size_t Shape::spansAt(double y, Spans& spans) const {
    std::size_t count = 0;
    const auto add = [&](Span span) {
        if (!span.isEmpty())
            spans[count++] = span;
    };
    add(discAt(m_start, y));
    add(discAt(m_end, y));
    if (!m_isArc) {
        if (m_length > 0)
            add(stripAt(y));
        // Together they are convex: one span.
        for (std::size_t i = 1; i < count; ++i)
            spans[0] = {std::min(spans[0].low, spans[i].low),
                        std::max(spans[0].high, spans[i].high)};
        return std::min<std::size_t>(count, 1);
    }
    const double up = y - m_centre.y;
    if (std::fabs(up) > m_outer)
        return count;
    const double outer = halfWidth(m_outer, up);
    const double inner = halfWidth(m_inner, up);
    for (std::size_t i = 0; i < m_sectorCount; ++i) {
        const auto& [from, to] = m_sectors[i];
        for (const Span half : {Span{-outer, -inner}, Span{inner, outer}}) {
            const Span left = clipped(half, -from.y, from.x * up);
            add(moved(clipped(left, to.y, -to.x * up), m_centre.x));
        }
    }
    return count;
}

} // namespace torvik::sweep
