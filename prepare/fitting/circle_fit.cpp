// SPDX-License-Identifier: MIT
#include "prepare/fitting/circle_fit.h"

#include "prepare/arcs.h"
#include "prepare/fitting/fit_options.h"

#include <algorithm>
#include <array>
#include <optional>

namespace torvik {
namespace {

// Half the spread of the distances from the centre, and their middle.
CircleFit measured(std::span<const Point> corners, Point centre) {
    double nearest = HUGE_VAL;
    double farthest = 0;
    for (const Point& corner : corners) {
        const double square = dot(corner - centre, corner - centre);
        nearest = std::min(nearest, square);
        farthest = std::max(farthest, square);
    }
    nearest = std::sqrt(nearest);
    farthest = std::sqrt(farthest);
    return {centre, (nearest + farthest) / 2, (farthest - nearest) / 2, 0};
}

// The centre by least squares; none where all corners lie on one line.
std::optional<Point> leastSquaresCentre(std::span<const Point> corners) {
    Point mean;
    for (const Point& corner : corners)
        mean = mean + corner * (1.0 / static_cast<double>(corners.size()));
    double xx = 0;
    double yy = 0;
    double xy = 0;
    Point right;
    for (const Point& corner : corners) {
        const Point p = corner - mean;
        const double square = dot(p, p);
        xx += p.x * p.x;
        yy += p.y * p.y;
        xy += p.x * p.y;
        right = right + p * (square / 2);
    }
    const double determinant = xx * yy - xy * xy;
    if (determinant <= 1e-9 * xx * yy)
        return {};
    return mean + Point{(right.x * yy - right.y * xy) / determinant,
                        (right.y * xx - right.x * xy) / determinant};
}

// Moves the centre step by step to where the farthest corner is nearest.
CircleFit improved(std::span<const Point> corners, CircleFit best) {
    constexpr double finest = 1.0 / 256; // of the deviation
    static constexpr std::array<Point, 8> directions{
        {{1, 0}, {0, 1}, {-1, 0}, {0, -1}, {1, 1}, {-1, 1}, {-1, -1}, {1, -1}}};
    const double last = best.deviation * finest;
    // Corners near a line get better for ever with the centre moving away.
    int left = 200;
    for (double step = best.deviation / 2; step > last && left > 0; --left) {
        const CircleFit before = best;
        for (const Point& direction : directions) {
            const CircleFit next = measured(corners, before.centre + direction * step);
            if (next.deviation < best.deviation)
                best = next;
        }
        if (best.deviation == before.deviation)
            step /= 2;
    }
    return best;
}

// The widest chord as seen from the centre, in degrees; HUGE_VAL where the corners do not go once
// round.
double largestTurn(std::span<const Point> corners, Point centre) {
    double largest = 0;
    double total = 0;
    Point before = corners.back() - centre;
    for (const Point& corner : corners) {
        const Point next = corner - centre;
        const double turn = angleBetween(before, next);
        if (turn * total < 0)
            return HUGE_VAL;
        total += turn;
        largest = std::max(largest, std::fabs(turn));
        before = next;
    }
    return std::fabs(std::fabs(total) - fullTurn) < 1 ? largest : HUGE_VAL;
}

} // namespace

CircleFit fitCircle(std::span<const Point> corners, double tolerance, double roundTurn) {
    constexpr double worthImproving = 4; // tolerances
    const double fewest = fullTurn / (roundTurn + turnSlack);
    if (static_cast<double>(corners.size()) < std::max(fewest, 3.0))
        return {};
    const auto centre = leastSquaresCentre(corners);
    if (!centre)
        return {};
    CircleFit fit = measured(corners, *centre);
    if (fit.deviation > fit.radius / 8)
        return {};
    if (fit.deviation > tolerance && fit.deviation <= worthImproving * tolerance)
        fit = improved(corners, fit);
    fit.largestTurn = largestTurn(corners, fit.centre);
    return fit.largestTurn <= roundTurn + turnSlack ? fit : CircleFit{};
}

} // namespace torvik
