// SPDX-License-Identifier: MIT
// The piece as cells: how deep each is cut, in hundredths of a millimetre as programs write it, and
// the move that cut it so deep.
#pragma once

#include "sweep/grid.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace torvik::sweep {

inline constexpr std::uint32_t noMove = 0xFFFFFFFF;
inline constexpr int depthsPerMm = 100;

struct Field {
    Grid grid;
    std::vector<std::uint16_t> depths; // 0: not cut
    std::vector<std::uint32_t> moves;  // a place in the list of moves, or noMove

    Field() = default;
    explicit Field(const Grid& over) : grid(over), depths(cells(), 0), moves(cells(), noMove) {}

    std::size_t cells() const {
        return static_cast<std::size_t>(grid.columns) * static_cast<std::size_t>(grid.rows);
    }
    std::size_t at(int column, int row) const {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(grid.columns) +
               static_cast<std::size_t>(column);
    }
};

} // namespace torvik::sweep
