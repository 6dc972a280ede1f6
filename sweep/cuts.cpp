// SPDX-License-Identifier: MIT
#include "sweep/cuts.h"

#include "check/extents.h"
#include "sweep/field.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace torvik::sweep {
namespace {

using check::Move;
using check::MoveKind;

constexpr double deepest = std::numeric_limits<std::uint16_t>::max();

double diameterOf(const Diameters& diameters, int tool) {
    const auto found = diameters.find(tool);
    return found == diameters.end() || !(found->second > 0) ? unlistedDiameter : found->second;
}

bool goesSideways(const Move& move) {
    return move.isCut() || move.kind == MoveKind::rapidAcross;
}

// An arc without a radius, or from an unknown place, says nothing.
bool hasPlace(const Move& move) {
    if (!std::isfinite(move.to.x) || !std::isfinite(move.to.y) || !std::isfinite(move.to.z))
        return false;
    if (goesSideways(move) && !(std::isfinite(move.from.x) && std::isfinite(move.from.y)))
        return false;
    return !move.isArc() || std::isfinite(move.sweep());
}

bool cutsBelow(const Move& move) {
    return (check::takesMaterial(move) || (move.isRapid() && move.to.z < 0)) && hasPlace(move);
}

} // namespace

int toolNumber(const Move& change) {
    const bool isNumber = change.value >= 0 && change.value <= std::numeric_limits<int>::max();
    return isNumber ? static_cast<int>(change.value) : 0;
}

Cuts cutsOf(const check::Moves& moves, const Diameters& diameters) {
    Cuts cuts;
    double radius = unlistedDiameter / 2;
    for (std::size_t i = 0; i < moves.size(); ++i) {
        const Move& move = moves[i];
        if (move.kind == MoveKind::tool)
            radius = diameterOf(diameters, toolNumber(move)) / 2;
        if (!cutsBelow(move))
            continue;
        const double depth = std::min(std::round(-move.to.z * depthsPerMm), deepest);
        if (depth < 1)
            continue;
        const check::Extents reach = check::extentsOf(move);
        const auto low = [radius](double edge) { return static_cast<float>(edge - radius); };
        const auto high = [radius](double edge) { return static_cast<float>(edge + radius); };
        cuts.push_back({static_cast<std::uint32_t>(i), static_cast<std::uint16_t>(depth),
                        static_cast<float>(radius), low(reach.lowX), low(reach.lowY),
                        high(reach.highX), high(reach.highY)});
    }
    return cuts;
}

std::optional<Area> areaOf(const Cuts& cuts) {
    std::optional<Area> all;
    for (const Cut& cut : cuts) {
        const Area area{cut.lowX, cut.lowY, cut.highX, cut.highY};
        if (all)
            all->cover(area);
        else
            all = area;
    }
    return all;
}

Move partOf(const Move& move, double fraction) {
    Move part = move;
    const auto between = [fraction](double from, double to) {
        return fraction >= 1 || !std::isfinite(from) ? to : from + fraction * (to - from);
    };
    part.to = {between(move.from.x, move.to.x), between(move.from.y, move.to.y),
               between(move.from.z, move.to.z)};
    if (!move.isArc() || fraction >= 1)
        return part;
    const double turn = move.sweep() * fraction * (move.kind == MoveKind::cutClockwise ? -1 : 1);
    const double x = move.from.x - move.centre.x;
    const double y = move.from.y - move.centre.y;
    part.to.x = move.centre.x + x * std::cos(turn) - y * std::sin(turn);
    part.to.y = move.centre.y + x * std::sin(turn) + y * std::cos(turn);
    return part;
}

} // namespace torvik::sweep
