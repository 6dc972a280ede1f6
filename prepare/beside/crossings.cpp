// SPDX-License-Identifier: MIT
#include "prepare/beside/crossings.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <unordered_map>

namespace torvik {
namespace {

struct Edge {
    Point from;
    Point to;
};

std::vector<Edge> edgesOf(std::span<const Corners> outlines) {
    std::vector<Edge> edges;
    for (const Corners& outline : outlines)
        for (std::size_t i = 0; i < outline.size(); ++i)
            edges.push_back({outline[i], outline[(i + 1) % outline.size()]});
    return edges;
}

std::optional<Point> crossing(const Edge& a, const Edge& b) {
    const Point u = a.to - a.from;
    const Point v = b.to - b.from;
    const double turn = cross(u, v);
    if (turn == 0)
        return {};
    // Parts of both edges; near an end they only touch.
    constexpr double trifle = 1e-6;
    const double part = cross(b.from - a.from, v) / turn;
    const double other = cross(b.from - a.from, u) / turn;
    const auto isWithin = [](double t) { return t > trifle && t < 1 - trifle; };
    if (!isWithin(part) || !isWithin(other))
        return {};
    return a.from + u * part;
}

// The edges by the squares that they pass through.
class Squares {
public:
    explicit Squares(const std::vector<Edge>& edges) {
        double sum = 0;
        for (const Edge& edge : edges)
            sum += distance(edge.from, edge.to);
        m_side =
            std::max(2 * sum / static_cast<double>(std::max<std::size_t>(edges.size(), 1)), 1.0);
        for (std::size_t i = 0; i < edges.size(); ++i)
            add(edges[i], i);
    }

    const auto& all() const { return m_squares; }

private:
    // In steps of half a square, so that none is missed by more than its corner; the square on
    // either side of a step is taken, too.
    void add(const Edge& edge, std::size_t index) {
        const Point step = edge.to - edge.from;
        const int steps = static_cast<int>(std::ceil(length(step) / m_side * 2)) + 1;
        for (int i = 0; i <= steps; ++i) {
            const Point at = edge.from + step * (static_cast<double>(i) / steps);
            for (const double dx : {-0.25, 0.25})
                for (const double dy : {-0.25, 0.25})
                    put(at + Point{dx, dy} * m_side, index);
        }
    }

    void put(Point at, std::size_t index) {
        const auto column = static_cast<std::int64_t>(std::floor(at.x / m_side));
        const auto row = static_cast<std::int64_t>(std::floor(at.y / m_side));
        auto& square = m_squares[column * 0x100000 + row];
        if (square.empty() || square.back() != index)
            square.push_back(index);
    }

    double m_side = 1;
    std::unordered_map<std::int64_t, std::vector<std::size_t>> m_squares;
};

} // namespace

std::vector<Point> crossingsOf(std::span<const Corners> outlines, std::size_t most) {
    const std::vector<Edge> edges = edgesOf(outlines);
    const Squares squares(edges);
    std::vector<Point> places;
    for (const auto& [square, indices] : squares.all())
        for (std::size_t i = 0; i < indices.size(); ++i)
            for (std::size_t k = i + 1; k < indices.size(); ++k)
                if (const auto place = crossing(edges[indices[i]], edges[indices[k]]);
                    place && std::none_of(places.begin(), places.end(), [&](Point known) {
                        return distance(known, *place) < 1;
                    })) {
                    places.push_back(*place);
                    if (places.size() == most)
                        return places;
                }
    return places;
}

} // namespace torvik
