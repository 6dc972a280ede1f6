// SPDX-License-Identifier: MIT
// A written program as it was read: its control, what its header tells, its statements, and what
// the machine does at them.
#pragma once

#include "check/move.h"
#include "check/program_header.h"

#include <cstdint>

namespace torvik::check {

// Where a statement stands and what it means. Its numbers are in the moves.
struct StatementMark {
    std::uint32_t line;
    Meaning meaning;
};

struct Program {
    const Target* target = nullptr;
    Header header;
    LongVector<StatementMark> statements;
    Moves moves;
    std::uint32_t lines = 0;

    std::uint32_t lastLine() const { return lines == 0 ? 1 : lines; }
};

} // namespace torvik::check
