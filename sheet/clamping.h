// SPDX-License-Identifier: MIT
// Which two sides of the billet may be clamped: those that the tool keeps farther away from. mm.
#pragma once

#include "preview/cut/cut_piece.h"

namespace torvik {

struct Clamping {
    enum class Sides : std::uint8_t { none, leftAndRight, frontAndBack };

    Sides sides = Sides::none;
    double room = 0; // between the tool and the nearer of the two edges
};

// None where the billet is not known, nothing is cut, or the tool passes every edge.
Clamping clampingOf(const CutPiece& piece);

} // namespace torvik
