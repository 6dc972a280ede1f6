// SPDX-License-Identifier: MIT
#include "check/extents.h"

#include <array>
#include <numbers>

namespace torvik::check {

Extents extentsOf(const Move& move) {
    Extents extents;
    extents.add(move.from.x, move.from.y);
    extents.add(move.to.x, move.to.y);
    if (!move.isArc())
        return extents;
    const double startX = move.from.x - move.centre.x;
    const double startY = move.from.y - move.centre.y;
    const double radius = std::hypot(startX, startY);
    const double turns = move.kind == MoveKind::cutClockwise ? -1 : 1;
    const double start = std::atan2(startY, startX);
    constexpr double quarter = std::numbers::pi / 2;
    constexpr std::array<Point, 4> axes{{{1, 0}, {0, 1}, {-1, 0}, {0, -1}}};
    for (std::size_t i = 0; i < axes.size(); ++i) {
        double turn = turns * (static_cast<double>(i) * quarter - start);
        turn -= std::floor(turn / (4 * quarter)) * 4 * quarter;
        if (turn < move.sweep())
            extents.add(move.centre.x + axes[i].x * radius, move.centre.y + axes[i].y * radius);
    }
    return extents;
}

bool takesMaterial(const Move& move) {
    return (move.isCut() || move.kind == MoveKind::feedHeight) && move.to.z < 0;
}

} // namespace torvik::check
