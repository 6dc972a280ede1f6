// SPDX-License-Identifier: MIT
#include "prepare/fitting/line_fit.h"

#include "prepare/arcs.h"

#include <algorithm>
#include <cstddef>

namespace torvik {
namespace {

// A range is parted at its farthest point so often at most; beyond that all its points stay. Only
// made-up polylines go so deep, and the time stays in proportion to the points.
constexpr int deepest = 64;

struct Range {
    std::size_t first;
    std::size_t last;
    int depth;
};

struct Farthest {
    std::size_t place = 0;
    double distance = 0;
};

Farthest farthestBetween(std::span<const Point> points, const Range& range) {
    Farthest farthest;
    for (std::size_t i = range.first + 1; i < range.last; ++i) {
        const double d = distanceToLine(points[range.first], points[range.last], points[i]);
        if (d > farthest.distance)
            farthest = {i, d};
    }
    return farthest;
}

} // namespace

std::vector<bool> findCorners(std::span<const Point> points, double tolerance) {
    std::vector<bool> isCorner(points.size(), false);
    if (points.empty())
        return isCorner;
    isCorner.front() = true;
    isCorner.back() = true;
    std::vector<Range> ranges{{0, points.size() - 1, 0}};
    while (!ranges.empty()) {
        const Range range = ranges.back();
        ranges.pop_back();
        if (range.depth > deepest) {
            std::fill(isCorner.begin() + static_cast<std::ptrdiff_t>(range.first),
                      isCorner.begin() + static_cast<std::ptrdiff_t>(range.last), true);
            continue;
        }
        const Farthest farthest = farthestBetween(points, range);
        if (farthest.distance <= tolerance)
            continue;
        isCorner[farthest.place] = true;
        ranges.push_back({range.first, farthest.place, range.depth + 1});
        ranges.push_back({farthest.place, range.last, range.depth + 1});
    }
    return isCorner;
}

} // namespace torvik
