// SPDX-License-Identifier: MIT
// Whether a point lies inside a closed line of corners. Corners and points are anything with x and
// y; on the line itself either answer can come.
#pragma once

namespace torvik {

// There is at least one corner; the last one is joined to the first.
template <typename Corners, typename Point>
bool isInsidePolygon(const Corners& corners, const Point& point) {
    bool inside = false;
    auto before = corners.back();
    for (const auto& corner : corners) {
        if ((corner.y > point.y) != (before.y > point.y) &&
            point.x <
                (before.x - corner.x) * (point.y - corner.y) / (before.y - corner.y) + corner.x)
            inside = !inside;
        before = corner;
    }
    return inside;
}

} // namespace torvik
