// SPDX-License-Identifier: MIT
#include "prepare/dxf/curve_piece.h"

#include "prepare/arcs.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace torvik::dxf {
namespace {

using Piece = std::vector<Weighted>;

constexpr double alike = 1e-6;

bool hasEqualWeights(const Piece& piece) {
    return std::all_of(piece.begin(), piece.end(), [&](const Weighted& point) {
        return std::fabs(point.weight - piece.front().weight) <= 1e-9 * piece.front().weight;
    });
}

// A piece of the second degree whose legs are equal and whose weight is the cosine of half the turn
// between them is an arc.
std::optional<Segment> asArc(const Piece& piece) {
    if (piece.size() != 3)
        return {};
    const Point start = piece[0].place();
    const Point end = piece[2].place();
    const Point first = piece[1].place() - start;
    const Point second = end - piece[1].place();
    const double size = length(first);
    const double half = angleBetween(first, second) / 2;
    const double weight = piece[1].weight / std::sqrt(piece[0].weight * piece[2].weight);
    if (!(size > 0) || !(std::fabs(length(second) - size) <= alike * size) ||
        !(std::fabs(weight - std::cos(radians(half))) <= alike) || !(std::fabs(half) > alike))
        return {};
    const Point centre = start + turnedLeft(first) * (1 / std::tan(radians(half)));
    return Segment{SegmentKind::arc, end, centre, {}, 2 * half};
}

// The curve of the third degree that leaves and arrives as the piece does.
Segment nearCurve(const Piece& piece) {
    const std::size_t last = piece.size() - 1;
    const double third = static_cast<double>(last) / 3;
    const Point start = piece.front().place();
    const Point end = piece.back().place();
    const double leaving = piece[1].weight / piece.front().weight * third;
    const double arriving = piece[last - 1].weight / piece.back().weight * third;
    return curveSegment(start + (piece[1].place() - start) * leaving,
                        end + (piece[last - 1].place() - end) * arriving, end);
}

struct Halves {
    Piece first;
    Piece second;
};

Halves halvesOf(Piece points) {
    Halves halves;
    const std::size_t count = points.size();
    halves.first.reserve(count);
    halves.second.resize(count);
    for (std::size_t left = count; left > 0; --left) {
        halves.first.push_back(points.front());
        halves.second[left - 1] = points[left - 1];
        for (std::size_t i = 0; i + 1 < left; ++i)
            points[i] = between(points[i], points[i + 1], 0.5);
    }
    return halves;
}

Point placeAt(Piece points, double t) {
    for (std::size_t left = points.size() - 1; left > 0; --left)
        for (std::size_t i = 0; i < left; ++i)
            points[i] = between(points[i], points[i + 1], t);
    return points.front().place();
}

bool keepsTo(const Piece& piece, const Segment& curve, double tolerance) {
    constexpr std::array<double, 3> probes{0.25, 0.5, 0.75};
    const Point start = piece.front().place();
    return std::all_of(probes.begin(), probes.end(), [&](double t) {
        return distance(pointOnCurve(start, curve, t), placeAt(piece, t)) <= tolerance;
    });
}

void appendNear(std::vector<Segment>& segments, const Piece& piece, double tolerance, int depth,
                std::size_t& halvings) {
    const Segment curve = nearCurve(piece);
    if (depth == 0 || halvings == 0 || keepsTo(piece, curve, tolerance)) {
        segments.push_back(curve);
        return;
    }
    --halvings;
    const Halves halves = halvesOf(piece);
    appendNear(segments, halves.first, tolerance, depth - 1, halvings);
    appendNear(segments, halves.second, tolerance, depth - 1, halvings);
}

} // namespace

Weighted between(const Weighted& a, const Weighted& b, double part) {
    return {a.sum * (1 - part) + b.sum * part, a.weight * (1 - part) + b.weight * part};
}

void appendPiece(std::vector<Segment>& segments, const Piece& piece, double tolerance,
                 std::size_t& halvings) {
    constexpr int deepest = 8;
    if (piece.size() == 2)
        segments.push_back(lineSegment(piece.back().place()));
    else if (const auto arc = asArc(piece))
        segments.push_back(*arc);
    else if (piece.size() <= 4 && hasEqualWeights(piece))
        segments.push_back(nearCurve(piece));
    else
        appendNear(segments, piece, tolerance, deepest, halvings);
}

} // namespace torvik::dxf
