// SPDX-License-Identifier: MIT
#include "check/summary.h"

#include <algorithm>

namespace torvik::check {
namespace {

constexpr double rapidSpeed = 2000; // mm/min, what a small mill reaches

double lengthOf(const Move& move) {
    const double across = std::hypot(move.to.x - move.from.x, move.to.y - move.from.y);
    if (move.isArc())
        return move.sweep() * std::hypot(move.from.x - move.centre.x, move.from.y - move.centre.y);
    if (move.kind == MoveKind::rapidHeight || move.kind == MoveKind::feedHeight)
        return std::fabs(move.to.z - move.from.z);
    return across;
}

} // namespace

double minutesOf(const Move& move) {
    if (move.kind == MoveKind::dwell)
        return move.value / 60;
    if (move.isRapid())
        return lengthOf(move) / rapidSpeed;
    return move.isFed() && move.feed > 0 ? lengthOf(move) / move.feed : 0;
}

Summary summaryOf(const Moves& moves) {
    Summary summary;
    int taken = 0;
    for (const Move& move : moves) {
        if (const double minutes = minutesOf(move); std::isfinite(minutes))
            summary.minutes += minutes;
        if (takesMaterial(move)) {
            summary.extents.add(extentsOf(move));
            summary.deepest = std::fmax(summary.deepest, -move.to.z);
        }
        if (move.kind != MoveKind::tool)
            continue;
        ++taken;
        const auto tool = std::isfinite(move.value) ? static_cast<int>(move.value) : 0;
        if (std::find(summary.tools.begin(), summary.tools.end(), tool) == summary.tools.end())
            summary.tools.push_back(tool);
    }
    summary.changes = std::max(taken - 1, 0);
    return summary;
}

} // namespace torvik::check
