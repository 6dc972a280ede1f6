// SPDX-License-Identifier: MIT
#include "prepare/beside/tabs.h"

#include "prepare/arcs.h"
#include "prepare/beside/outlines.h"

namespace torvik {
namespace {

std::vector<Stroke> arcsBetweenGaps(const Stroke& circle, int count, double gap) {
    const Segment& whole = circle.segments[0];
    const double radius = distance(whole.first, circle.start);
    const double room = whole.sweep / count;
    const double gapTurn = std::copysign(degrees(gap / radius), whole.sweep);
    std::vector<Stroke> pieces;
    for (int i = 0; i < count; ++i) {
        const Point from =
            whole.first + rotated(circle.start - whole.first, room * (i + 0.5) + gapTurn / 2);
        pieces.push_back({circle.pen, from, {arcSegment(from, whole.first, room - gapTurn)}});
    }
    return pieces;
}

// Walks along chords and cuts out pieces.
class ChordWalk {
public:
    ChordWalk(const Stroke& closed, double tolerance) : m_pen(closed.pen) {
        m_points = cornersOf(closed, tolerance);
        m_points.push_back(m_points.front());
        m_ends.push_back(0);
        for (std::size_t i = 1; i < m_points.size(); ++i)
            m_ends.push_back(m_ends.back() + distance(m_points[i - 1], m_points[i]));
    }

    double length() const { return m_ends.back(); }

    // From one way along the outline to another, which may lie beyond its end.
    Stroke piece(double from, double to) const {
        Stroke stroke{m_pen, at(from), {}};
        for (int round = 0; round < 2; ++round)
            for (std::size_t i = 1; i < m_points.size(); ++i)
                if (const double way = m_ends[i] + round * length(); way > from && way < to)
                    stroke.segments.push_back(lineSegment(m_points[i]));
        stroke.segments.push_back(lineSegment(at(to)));
        return stroke;
    }

private:
    Point at(double way) const {
        way = std::fmod(way, length());
        std::size_t i = 1;
        while (i + 1 < m_ends.size() && m_ends[i] < way)
            ++i;
        const double edge = m_ends[i] - m_ends[i - 1];
        const double part = edge > 0 ? (way - m_ends[i - 1]) / edge : 0;
        return m_points[i - 1] + (m_points[i] - m_points[i - 1]) * part;
    }

    int m_pen;
    std::vector<Point> m_points;
    std::vector<double> m_ends; // the way to each point
};

} // namespace

std::vector<Stroke> betweenGaps(const Stroke& closed, int count, double gap, double tolerance) {
    if (closed.isCircle()) {
        const double around = drawnLength(closed);
        return gap * count < around ? arcsBetweenGaps(closed, count, gap) : std::vector<Stroke>{};
    }
    const ChordWalk walk(closed, tolerance);
    const double room = walk.length() / count;
    std::vector<Stroke> pieces;
    if (gap >= room)
        return pieces;
    for (int i = 0; i < count; ++i)
        pieces.push_back(walk.piece(room * (i + 0.5) + gap / 2, room * (i + 1.5) - gap / 2));
    return pieces;
}

} // namespace torvik
