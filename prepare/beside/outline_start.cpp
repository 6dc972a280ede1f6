// SPDX-License-Identifier: MIT
#include "prepare/beside/outline_start.h"

#include "prepare/arcs.h"

#include <algorithm>
#include <cmath>

namespace torvik {
namespace {

constexpr double sharpTurn = 24; // degrees; chords of a curve turn less
constexpr double leastEdge = 20; // plotter units

class Edges {
public:
    explicit Edges(const Corners& corners) : m_corners(corners) {}

    double lengthOf(std::size_t i) const { return length(edge(i)); }

    // Between corners, or clearly longer than a neighbour.
    bool isStraight(std::size_t i) const {
        const std::size_t before = (i + m_corners.size() - 1) % m_corners.size();
        const std::size_t after = (i + 1) % m_corners.size();
        constexpr double clearly = 3;
        return lengthOf(i) >= leastEdge &&
               (std::fabs(angleBetween(edge(before), edge(i))) > sharpTurn ||
                std::fabs(angleBetween(edge(i), edge(after))) > sharpTurn ||
                lengthOf(i) > clearly * std::min(lengthOf(before), lengthOf(after)));
    }

private:
    Point edge(std::size_t i) const {
        return m_corners[(i + 1) % m_corners.size()] - m_corners[i % m_corners.size()];
    }

    const Corners& m_corners;
};

struct Best {
    std::size_t edge = 0;
    bool isStraight = false;
};

Best bestEdge(const Corners& corners) {
    const Edges edges(corners);
    Best best;
    double longest = -1;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const bool isStraight = edges.isStraight(i);
        if (isStraight < best.isStraight)
            continue;
        if (isStraight > best.isStraight || edges.lengthOf(i) > longest) {
            best = {i, isStraight};
            longest = edges.lengthOf(i);
        }
    }
    return best;
}

} // namespace

std::size_t straightestEdge(const Corners& corners) {
    return bestEdge(corners).edge;
}

void appendRound(Stroke& stroke, const Corners& corners, std::size_t edge) {
    for (std::size_t i = 1; i <= corners.size(); ++i)
        stroke.segments.push_back(lineSegment(corners[(edge + i) % corners.size()]));
}

Stroke outlineStroke(int pen, const Corners& corners) {
    const auto [edge, isStraight] = bestEdge(corners);
    const std::size_t count = corners.size();
    Stroke stroke{pen, corners[edge], {}};
    if (isStraight)
        stroke.start = (corners[edge] + corners[(edge + 1) % count]) * 0.5;
    stroke.segments.reserve(count + 1);
    appendRound(stroke, corners, edge);
    if (isStraight)
        stroke.segments.push_back(lineSegment(stroke.start));
    return stroke;
}

} // namespace torvik
