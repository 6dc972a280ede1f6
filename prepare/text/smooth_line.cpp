// SPDX-License-Identifier: MIT
#include "prepare/text/smooth_line.h"

#include "prepare/arcs.h"

#include <cmath>
#include <optional>

namespace torvik {
namespace {

constexpr double sharpTurn = 55; // degrees; what turns more is a corner

class SmoothLine {
public:
    SmoothLine(std::span<const Point> points, double longChord)
        : m_points(points), m_longChord(longChord),
          m_isClosed(points.size() > 3 && points.front() == points.back()) {}

    Stroke stroke() const {
        Stroke stroke{1, m_points.front(), {}};
        for (std::size_t i = 0; i + 1 < m_points.size(); ++i)
            stroke.segments.push_back(isStraight(i) ? lineSegment(m_points[i + 1]) : curve(i));
        return stroke;
    }

private:
    Point chord(std::size_t i) const { return m_points[i + 1] - m_points[i]; }
    std::size_t chords() const { return m_points.size() - 1; }

    bool isLong(std::size_t i) const { return length(chord(i)) >= m_longChord; }

    // Straight, too, between two corners.
    bool isStraight(std::size_t i) const { return isLong(i) || (!tangent(i) && !tangent(i + 1)); }

    std::optional<std::size_t> before(std::size_t point) const {
        if (point > 0)
            return point - 1;
        return m_isClosed ? std::optional(chords() - 1) : std::nullopt;
    }
    std::optional<std::size_t> after(std::size_t point) const {
        if (point < chords())
            return point;
        return m_isClosed ? std::optional<std::size_t>(0) : std::nullopt;
    }

    // The direction at a point where the line bends without a corner: that of the circle through it
    // and its neighbours, or of the long chord that ends there.
    std::optional<Point> tangent(std::size_t point) const {
        const auto in = before(point);
        const auto out = after(point);
        if (!in || !out)
            return {};
        const Point a = chord(*in);
        const Point b = chord(*out);
        if (std::fabs(angleBetween(a, b)) > sharpTurn)
            return {};
        if (isLong(*in) != isLong(*out))
            return isLong(*in) ? a : b;
        return a * (length(b) / length(a)) + b * (length(a) / length(b));
    }

    // At an end or a corner the curve is as round as at its other end.
    static Point mirrored(Point direction, Point chord) {
        return rotated(chord, -angleBetween(chord, direction));
    }

    static Point handle(Point direction, Point chord) {
        const double off = std::cos(radians(angleBetween(chord, direction)) / 2);
        return direction * (length(chord) / (3 * off * off * length(direction)));
    }

    Segment curve(std::size_t i) const {
        const Point step = chord(i);
        const auto from = tangent(i);
        const auto to = tangent(i + 1);
        const Point start = from ? *from : mirrored(*to, step);
        const Point end = to ? *to : mirrored(*from, step);
        return curveSegment(m_points[i] + handle(start, step), m_points[i + 1] - handle(end, step),
                            m_points[i + 1]);
    }

    std::span<const Point> m_points;
    double m_longChord;
    bool m_isClosed;
};

} // namespace

Stroke smoothLine(std::span<const Point> points, double longChord) {
    return SmoothLine(points, longChord).stroke();
}

} // namespace torvik
