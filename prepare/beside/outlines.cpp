// SPDX-License-Identifier: MIT
#include "prepare/beside/outlines.h"

#include "prepare/arcs.h"
#include "prepare/fitting/flatten.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <utility>

namespace torvik {
namespace {

// The open strokes by the places of their ends, in squares as wide as the reach.
class OpenEnds {
public:
    OpenEnds(const std::vector<Stroke>& strokes, double reach)
        : m_strokes(strokes), m_reach(reach), m_free(strokes.size(), true) {
        for (std::size_t i = 0; i < strokes.size(); ++i)
            for (const bool isStart : {true, false})
                m_squares[squareOf(placeOf({i, isStart}))].push_back({i, isStart});
    }

    struct End {
        std::size_t stroke;
        bool isStart;
    };

    bool isFree(std::size_t stroke) const { return m_free[stroke]; }
    void take(std::size_t stroke) { m_free[stroke] = false; }

    // The nearest end of a free stroke within the reach.
    std::optional<End> nearest(Point place) const {
        std::optional<End> best;
        double least = m_reach;
        const auto [column, row] = squareOf(place);
        for (long x = column - 1; x <= column + 1; ++x)
            for (long y = row - 1; y <= row + 1; ++y) {
                const auto found = m_squares.find({x, y});
                if (found == m_squares.end())
                    continue;
                for (const End& end : found->second)
                    if (const double gap = distance(place, placeOf(end));
                        m_free[end.stroke] && gap <= least) {
                        best = end;
                        least = gap;
                    }
            }
        return best;
    }

private:
    using Square = std::pair<long, long>;

    Point placeOf(const End& end) const {
        const Stroke& stroke = m_strokes[end.stroke];
        return end.isStart ? stroke.start : stroke.end();
    }
    Square squareOf(Point p) const {
        return {std::lround(p.x / m_reach), std::lround(p.y / m_reach)};
    }

    const std::vector<Stroke>& m_strokes;
    double m_reach;
    std::vector<bool> m_free;
    std::map<Square, std::vector<End>> m_squares;
};

void append(Stroke& stroke, const Stroke& next) {
    // A trifle of a gap is closed by a line that the fitting takes out again.
    if (next.start != stroke.end())
        stroke.segments.push_back(lineSegment(next.start));
    stroke.segments.insert(stroke.segments.end(), next.segments.begin(), next.segments.end());
}

void close(Stroke& stroke) {
    if (stroke.end() != stroke.start)
        stroke.segments.push_back(lineSegment(stroke.start));
}

// The stroke with all that goes on from its end, until it closes.
Stroke chainFrom(const std::vector<Stroke>& strokes, std::size_t first, OpenEnds& ends,
                 double reach) {
    Stroke chain = strokes[first];
    ends.take(first);
    while (!isClosed(chain, reach)) {
        const auto next = ends.nearest(chain.end());
        if (!next)
            break;
        ends.take(next->stroke);
        append(chain, next->isStart ? strokes[next->stroke] : reversed(strokes[next->stroke]));
    }
    return chain;
}

} // namespace

bool isClosed(const Stroke& stroke, double reach) {
    return !stroke.isDot() && (stroke.isCircle() || stroke.segments.size() > 1) &&
           distance(stroke.start, stroke.end()) <= reach;
}

Outlines outlinesOf(std::vector<Stroke> strokes, double reach) {
    Outlines result;
    std::vector<Stroke> open;
    for (Stroke& stroke : strokes) {
        if (isClosed(stroke, reach)) {
            close(stroke);
            result.closed.push_back(std::move(stroke));
        } else if (stroke.isDot()) {
            result.open.push_back(std::move(stroke));
        } else {
            open.push_back(std::move(stroke));
        }
    }
    OpenEnds ends(open, reach);
    for (std::size_t i = 0; i < open.size(); ++i) {
        if (!ends.isFree(i))
            continue;
        Stroke chain = chainFrom(open, i, ends, reach);
        if (isClosed(chain, reach)) {
            close(chain);
            result.closed.push_back(std::move(chain));
        } else {
            result.open.push_back(std::move(chain));
        }
    }
    return result;
}

std::vector<Point> cornersOf(const Stroke& closed, double tolerance) {
    std::vector<Point> corners{closed.start};
    Point start = closed.start;
    for (const Segment& segment : closed.segments) {
        if (isArc(segment)) {
            const double radius = distance(segment.first, start);
            const double widest =
                radius > tolerance ? 2 * degrees(std::acos(1 - tolerance / radius)) : 90;
            const int chords =
                std::max(1, static_cast<int>(std::ceil(std::fabs(segment.sweep) / widest)));
            for (int i = 1; i < chords; ++i)
                corners.push_back(pointOnArc(start, segment, static_cast<double>(i) / chords));
            corners.push_back(segment.end);
        } else if (isLine(segment)) {
            corners.push_back(segment.end);
        } else {
            const std::vector<Point> chords = flattenCurve(start, segment, tolerance);
            corners.insert(corners.end(), chords.begin(), chords.end());
        }
        start = segment.end;
    }
    corners.pop_back();
    return corners;
}

} // namespace torvik
