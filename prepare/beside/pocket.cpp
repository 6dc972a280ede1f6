// SPDX-License-Identifier: MIT
#include "prepare/beside/pocket.h"

#include "prepare/beside/outline_start.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace torvik {
namespace {

// The rounds of one level that hang together, and those further in that they enclose.
struct Round {
    Patch patch;
    std::vector<std::size_t> inner;
    bool hasOuter = false;
};

class Pocket {
public:
    Pocket(const Area& recess, const Area& wall, const PocketOptions& options)
        : m_recess(recess), m_options(options), m_wall(wall), m_walls(wall.outlines()) {}

    std::vector<Stroke> strokes() {
        makeRounds();
        std::vector<Stroke> rounds = std::move(m_strokes);
        std::vector<Stroke> rest = leftStanding(rounds);
        // Whatever was left stands between rounds, far from the wall.
        rest.insert(rest.end(), std::make_move_iterator(rounds.begin()),
                    std::make_move_iterator(rounds.end()));
        return rest;
    }

private:
    // Curves further in touch nothing that stays.
    double coarse() const { return m_options.tolerance * 4; }

    void makeRounds() {
        std::vector<std::size_t> before;
        for (int level = 0;; ++level) {
            const Area area =
                level == 0 ? m_wall
                           : m_recess.grown(-m_options.radius - level * m_options.step, coarse());
            std::vector<std::size_t> now;
            for (Patch& patch : area.patches()) {
                now.push_back(m_rounds.size());
                const bool hasOuter = addTo(before, patch.outline.front());
                m_rounds.push_back({std::move(patch), {}, hasOuter});
            }
            if (now.empty())
                break;
            before = std::move(now);
        }
        for (std::size_t i = 0; i < m_rounds.size(); ++i)
            if (!m_rounds[i].hasOuter)
                draw(i);
    }

    // False where none of them encloses the place: the round is then drawn by itself.
    bool addTo(const std::vector<std::size_t>& outers, Point place) {
        const auto outer = std::find_if(outers.begin(), outers.end(), [&](std::size_t one) {
            return m_rounds[one].patch.contains(place);
        });
        if (outer == outers.end())
            return false;
        m_rounds[*outer].inner.push_back(m_rounds.size());
        return true;
    }

    // First what lies further in.
    void draw(std::size_t index) {
        const std::size_t first = m_strokes.size();
        for (const std::size_t inner : m_rounds[index].inner)
            draw(inner);
        std::vector<const Corners*> left{&m_rounds[index].patch.outline};
        for (const Corners& hole : m_rounds[index].patch.holes)
            left.push_back(&hole);
        bool isGoingOn = m_strokes.size() > first;
        while (!left.empty()) {
            const auto next = isGoingOn ? nearest(left, m_strokes.back().end())
                                        : Nearest{left.size() - 1, startOf(*left.back())};
            drawRound(*left[next.line], next.start, isGoingOn);
            isGoingOn = true;
            left.erase(left.begin() + static_cast<std::ptrdiff_t>(next.line));
        }
    }

    struct Start {
        std::size_t edge = 0; // from its corner to the next
        Point place;
    };
    struct Nearest {
        std::size_t line = 0;
        Start start;
    };

    static Start startOf(const Corners& corners) {
        const std::size_t edge = straightestEdge(corners);
        const Point from = corners[edge];
        const Point to = corners[(edge + 1) % corners.size()];
        return {edge, (from + to) * 0.5};
    }

    static Nearest nearest(const std::vector<const Corners*>& lines, Point place) {
        Nearest best;
        double least = HUGE_VAL;
        for (std::size_t line = 0; line < lines.size(); ++line) {
            const Corners& corners = *lines[line];
            for (std::size_t i = 0; i < corners.size(); ++i) {
                const Point from = corners[i];
                const Point edge = corners[(i + 1) % corners.size()] - from;
                const double part = std::clamp(dot(place - from, edge) / dot(edge, edge), 0.0, 1.0);
                const Point there = from + edge * part;
                if (const double gap = distance(place, there); gap < least) {
                    least = gap;
                    best = {line, {i, there}};
                }
            }
        }
        return best;
    }

    void drawRound(const Corners& corners, const Start& start, bool isGoingOn) {
        // Farther than the tool is wide it is quicker to lift.
        const bool isJoined =
            isGoingOn && distance(m_strokes.back().end(), start.place) <= 2 * m_options.radius &&
            staysInside(m_strokes.back().end(), start.place, m_walls);
        if (!isJoined)
            m_strokes.push_back({1, start.place, {}});
        Stroke& stroke = m_strokes.back();
        if (isJoined && stroke.end() != start.place)
            stroke.segments.push_back(lineSegment(start.place));
        appendRound(stroke, corners, start.edge);
        stroke.segments.push_back(lineSegment(start.place));
    }

    // In sharp corners rounds lie farther apart than the step, and a core can be left in the
    // middle.
    std::vector<Stroke> leftStanding(const std::vector<Stroke>& rounds) const {
        const Area reached = m_wall.grown(m_options.radius, m_options.tolerance);
        const Area swept =
            Area::sweptAlong(rounds, m_options.radius - m_options.tolerance, coarse());
        std::vector<Stroke> strokes;
        for (const Corners& corners : reached.without(swept).within(m_wall).outlines()) {
            if (isSpeck(corners))
                continue;
            appendRound(strokes.emplace_back(Stroke{1, corners.front(), {}}), corners, 0);
        }
        return strokes;
    }

    // Smaller than what the chords of rounds leave along the wall.
    bool isSpeck(const Corners& corners) const {
        StrokeExtents extents;
        for (const Point& corner : corners)
            extents.include(corner);
        const Point size = extents.high - extents.low;
        const double large = 8 * m_options.tolerance;
        return std::max(size.x, size.y) < large;
    }

    const Area& m_recess;
    const PocketOptions& m_options;
    const Area& m_wall; // where the tool's middle may go
    std::vector<Corners> m_walls;
    std::vector<Round> m_rounds;
    std::vector<Stroke> m_strokes;
};

} // namespace

std::vector<Stroke> pocketStrokes(const Area& recess, const Area& wall,
                                  const PocketOptions& options) {
    return Pocket(recess, wall, options).strokes();
}

} // namespace torvik
