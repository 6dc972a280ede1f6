// SPDX-License-Identifier: MIT
// Which moves of a program take material, how wide and how deep. A quick move below the surface
// counts too: the machine does what is written. A move whose place is not known is left out.
#pragma once

#include "check/move.h"
#include "sweep/grid.h"

#include <cstdint>
#include <map>
#include <optional>
#include <vector>

namespace torvik::sweep {

// Diameters in mm by the tool's number.
using Diameters = std::map<int, double>;

inline constexpr double unlistedDiameter = 1; // mm, of a tool that the table does not have

struct Cut {
    std::uint32_t move;  // its place in the list of moves
    std::uint16_t depth; // 1/100 mm, above 0
    float radius;        // mm, of the tool
    float lowX;          // mm, what it reaches
    float lowY;
    float highX;
    float highY;
};
using Cuts = std::vector<Cut>;

// In the order of the moves.
Cuts cutsOf(const check::Moves& moves, const Diameters& diameters);

// What the cuts reach; nothing where there are none.
std::optional<Area> areaOf(const Cuts& cuts);

// The tool's number at each move; 0 before the first.
int toolNumber(const check::Move& change);

// The first part of a move, `fraction` (0 to 1) of its way.
check::Move partOf(const check::Move& move, double fraction);

} // namespace torvik::sweep
