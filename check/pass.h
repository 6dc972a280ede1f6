// SPDX-License-Identifier: MIT
// One pass: what is cut at one height without a new tool or speed between. Two pens may share a
// pass: the first pen's last cuts and the next pen's first ones can lie at one height.
#pragma once

#include "check/move.h"

#include <vector>

namespace torvik::check {

struct Pass {
    double z = unknown;
    std::vector<const Move*> cuts;
};

// The passes between two new tools or speeds, in their order.
using Section = std::vector<Pass>;

std::vector<Section> sectionsOf(const Moves& moves);

// Whether two cuts are the same way to the same place, wherever they start.
bool isSameWay(const Move& a, const Move& b);
bool startAlike(const Move& a, const Move& b);

// The number of cuts at the end of the first pass that are the first cuts of the second: those of
// the pen that both have in common.
std::size_t commonCuts(const Pass& first, const Pass& second);

// How many cuts of the second pass the first one has, wherever, from the same start.
std::size_t sharedCuts(const Pass& first, const Pass& second);

} // namespace torvik::check
