// SPDX-License-Identifier: MIT
// The piece at any move of its program. Fields of some moments are kept, so that each other one is
// had from the nearest before it: in about 25 ms, whatever the program.
#pragma once

#include "sweep/sweep.h"

#include <memory>

namespace torvik::sweep {

class Growth {
public:
    // The moves must outlive it.
    Growth(const check::Moves& moves, const Diameters& diameters, const Area& billet);

    // Sweeps the whole program. False where it was cancelled.
    bool build(const Control& control);

    // From here on only after build().
    const Field& whole() const { return m_kept.back().field; }
    const Field& field() const { return m_field; }
    const Cuts& cuts() const { return m_cuts; }

    // Makes field() the piece after the first `moves` moves and `fraction` (0 to 1) of the next.
    void show(std::size_t moves, double fraction = 0);

private:
    struct Kept {
        std::size_t cuts;
        Field field;
    };

    void begin(const Kept& kept);
    void sweepTo(std::size_t cuts);

    const check::Moves& m_moves;
    Cuts m_cuts;
    Grid m_grid;
    std::vector<Kept> m_kept;
    Field m_field;
    std::size_t m_done = 0; // cuts in m_field
    double m_part = 0;      // of the next one
};

} // namespace torvik::sweep
