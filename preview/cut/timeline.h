// SPDX-License-Identifier: MIT
// When each move of a program is made. Seconds from its beginning, with a stop at the end of every
// move; tool changes and spindle starts, in which nothing moves, are passed over.
#pragma once

#include "check/time/move_times.h"

#include <cstddef>
#include <vector>

namespace torvik {

struct Moment {
    std::size_t move = 0; // the one that is under way; the number of moves: all are made
    double fraction = 0;  // of it that is made
};

class Timeline {
public:
    explicit Timeline(const check::Moves& moves, check::Pace pace = {});

    double seconds() const { return m_ends.empty() ? 0 : m_ends.back(); }
    Moment at(double seconds) const;
    // When a move begins.
    double start(std::size_t move) const;
    double end(std::size_t move) const { return start(move + 1); }

private:
    std::vector<double> m_ends;
};

} // namespace torvik
