// SPDX-License-Identifier: MIT
// The machine: takes the statements of a program and says what it does at each of them.
#pragma once

#include "check/move.h"

#include <utility>

namespace torvik::check {

class Machine {
public:
    // Some statements are two moves. What is not used costs nothing.
    explicit Machine(std::size_t statements) { m_moves.reserve(statements + statements / 8); }

    void take(const Statement& statement);
    Moves finish() { return std::move(m_moves); }

private:
    void stopSpindle(std::uint32_t line);

    Moves m_moves;
    Place m_at;
};

} // namespace torvik::check
